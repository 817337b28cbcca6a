#include "controls/crop/CropGeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

/// One direction of a rectangle that grows from a place.
struct Reach {
    Reach(double fixed, double dragged, double end)
        : forward(fixed < 1 || (dragged >= fixed && end - fixed >= 1))
        , room(forward ? end - fixed : fixed)
        , wanted(std::clamp(forward ? dragged - fixed : fixed - dragged, 0.0, room))
    {
    }
    bool forward;
    double room, wanted;
};

double wholeLength(double length, double room) { return std::clamp(std::round(length), 1.0, std::max(room, 1.0)); }

} // namespace

CIRect largestCrop(CIPoint picture, double proportions)
{
    const double shape = proportions > 0 ? proportions : picture.x / picture.y;
    const double width = wholeLength(std::min(picture.x, picture.y * shape), picture.x);
    const double height = wholeLength(std::min(picture.y, picture.x / shape), picture.y);
    return {std::floor((picture.x - width) / 2), std::floor((picture.y - height) / 2), width, height};
}

CIRect cropBetween(CIPoint fixed, CIPoint dragged, double proportions, CIPoint picture)
{
    const CIPoint start{
        std::clamp(std::round(fixed.x), 0.0, picture.x), std::clamp(std::round(fixed.y), 0.0, picture.y)};
    const Reach x(start.x, dragged.x, picture.x), y(start.y, dragged.y, picture.y);
    double width = x.wanted, height = y.wanted;
    if (proportions > 0) {
        width = std::min({std::max(width, height * proportions), x.room, y.room * proportions});
        height = width / proportions;
    }
    width = wholeLength(width, x.room);
    height = wholeLength(height, y.room);
    return {x.forward ? start.x : start.x - width, y.forward ? start.y : start.y - height, width, height};
}

CIRect cropToEdge(const CIRect& crop, int side, int end, CIPoint by, double proportions, CIPoint picture)
{
    const double roomX = side < 0 ? crop.right() : picture.x - (side > 0 ? crop.left() : 0);
    const double roomY = end < 0 ? crop.top() : picture.y - (end > 0 ? crop.bottom() : 0);
    double width = std::clamp(crop.width + side * by.x, 1.0, roomX);
    double height = std::clamp(crop.height + end * by.y, 1.0, roomY);
    if (proportions > 0) {
        width = std::min({side ? width : height * proportions, roomX, roomY * proportions});
        height = width / proportions;
    }
    width = wholeLength(width, roomX);
    height = wholeLength(height, roomY);
    const auto start = [](int edge, double low, double high, double now) {
        return edge < 0 ? high - now : edge > 0 ? low : (low + high - now) / 2;
    };
    return movedCrop(
        {start(side, crop.left(), crop.right(), width), start(end, crop.bottom(), crop.top(), height), width, height},
        {}, picture);
}

CIRect movedCrop(const CIRect& crop, CIPoint by, CIPoint picture)
{
    return {std::clamp(std::round(crop.x + by.x), 0.0, picture.x - crop.width),
        std::clamp(std::round(crop.y + by.y), 0.0, picture.y - crop.height), crop.width, crop.height};
}

CIRect sizedCrop(const CIRect& crop, CIPoint size, double proportions, CIPoint picture)
{
    double width = wholeLength(size.x, picture.x), height = wholeLength(size.y, picture.y);
    if (proportions > 0) {
        width = wholeLength(std::min(width, picture.y * proportions), picture.x);
        height = wholeLength(width / proportions, picture.y);
    }
    const CIPoint middle = crop.center();
    return movedCrop({middle.x - width / 2, middle.y - height / 2, width, height}, {}, picture);
}

CIPoint straightenedSize(CIPoint picture, double angle, bool fills)
{
    const double c = std::abs(std::cos(angle)), s = std::abs(std::sin(angle));
    constexpr double tiny = 1e-6; // no pixel more or less by a rounding error
    if (!fills)
        return {std::ceil(picture.x * c + picture.y * s - tiny), std::ceil(picture.x * s + picture.y * c - tiny)};
    const double shape = picture.x / picture.y, scale = std::max(c + s / shape, c + s * shape);
    return {std::max(std::floor(picture.x / scale + tiny), 1.0), std::max(std::floor(picture.y / scale + tiny), 1.0)};
}

double levelingAngle(CIPoint from, CIPoint to)
{
    const double angle = std::atan2(to.y - from.y, to.x - from.x);
    return -std::remainder(angle, std::numbers::pi / 2);
}
