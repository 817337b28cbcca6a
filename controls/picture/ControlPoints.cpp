#include "controls/picture/ControlPoints.h"

#include "controls/panel/FilterNames.h"

#include <algorithm>
#include <utility>

using namespace ParmMode;

bool hasControlPoint(const CIInputAttributes& input) { return input.kind == InputKind::Transform || input.isPlace(); }

namespace {

void appendPoints(
    std::vector<ControlPoint>& points, const CIInputAttributes& input, const CIValue& value, const std::string& label)
{
    if (input.kind == InputKind::Transform) {
        const CIAffineTransform t = value.isTransform() ? value.toTransform() : CIAffineTransform();
        points.push_back({input.key, kOrigin, {t.tx, t.ty}, label + " origin"});
        return;
    }
    const CIVector v = value.toVector();
    if (input.kind != InputKind::Rectangle) {
        points.push_back({input.key, input.kind == InputKind::Position ? kPosition : kPosition3, v.point(), label});
        return;
    }
    const double left = v.X(), bottom = v.Y(), right = v.X() + v.Z(), top = v.Y() + v.W();
    points.push_back({input.key, kTopRight, {right, top}, label + " top right"});
    points.push_back({input.key, kTopLeft, {left, top}, label + " top left"});
    points.push_back({input.key, kBottomRight, {right, bottom}, label + " bottom right"});
    points.push_back({input.key, kBottomLeft, {left, bottom}, label + " bottom left"});
}

DraggedValue draggedCorner(const CIVector& old, std::uint32_t mode, CIPoint p)
{
    double x1 = old.X(), y1 = old.Y(), x2 = old.X() + old.Z(), y2 = old.Y() + old.W();
    (mode == kTopLeft || mode == kBottomLeft ? x1 : x2) = p.x;
    (mode == kBottomLeft || mode == kBottomRight ? y1 : y2) = p.y;
    // The numbers wrap as unsigned ones: a top left or bottom right corner can become a mode without a corner.
    if (float(x1) > float(x2)) {
        std::swap(x1, x2);
        mode = ((mode - 3) ^ 1) + 3;
    }
    if (float(y1) > float(y2)) {
        std::swap(y1, y2);
        mode = ((mode - 3) ^ 2) + 3;
    }
    return {CIVector{x1, y1, x2 - x1, y2 - y1}, mode};
}

} // namespace

std::vector<ControlPoint> controlPoints(const CIFilter& filter)
{
    std::vector<ControlPoint> points;
    for (const std::string& key : filter.inputKeys()) {
        const CIInputAttributes* input = filter.attributesForKey(key);
        if (!input || !hasControlPoint(*input) || key == "inputExtent") // which the chain overwrites
            continue;
        const QString label = shownFilterName(CIFilter::localizedNameForFilterName(filter.name())) + QLatin1Char(' ')
            + shownInputName(input->displayName);
        appendPoints(points, *input, filter.valueForKey(key), label.toStdString());
    }
    return points;
}

bool isLinearGradient(const CIFilter& filter)
{
    const std::vector<std::string> ends{"inputPoint0", "inputPoint1"}, colors{"inputColor0", "inputColor1"};
    const auto has = [&](const std::string& key) { return filter.attributesForKey(key) != nullptr; };
    return std::ranges::all_of(ends, has) && std::ranges::all_of(colors, has);
}

std::optional<std::size_t> nearestControlPoint(std::span<const ControlPoint> points, CIPoint p)
{
    std::optional<std::size_t> nearest;
    float nearestDistance = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const float dx = float(p.x) - float(points[i].position.x);
        const float dy = float(p.y) - float(points[i].position.y);
        const float distance = dx * dx + dy * dy;
        if (!nearest || nearestDistance > distance) {
            nearest = i;
            nearestDistance = distance;
        }
    }
    return nearest;
}

std::optional<DraggedValue> draggedValue(const CIValue& old, std::uint32_t mode, CIPoint p)
{
    switch (mode) {
    case kPosition:
        return DraggedValue{CIVector{p.x, p.y, 0, 0}, mode};
    case kTopLeft:
    case kBottomLeft:
    case kTopRight:
    case kBottomRight:
        return draggedCorner(old.toVector(), mode, p);
    case kOrigin: {
        CIAffineTransform t = old.isTransform() ? old.toTransform() : CIAffineTransform();
        t.tx = p.x;
        t.ty = p.y;
        return DraggedValue{t, mode};
    }
    case kPosition3:
        return DraggedValue{CIVector{p.x, p.y, old.toVector().Z()}, mode};
    default:
        return {};
    }
}
