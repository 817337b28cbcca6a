#include "controls/picture/LayerPoints.h"

#include "controls/panel/FilterNames.h"

#include <algorithm>
#include <cmath>

using namespace ParmMode;

namespace {

constexpr double kSmallest = 4; // px of the longer side: a layer can always be seen and taken hold of

struct Corner {
    std::uint32_t mode;
    int x, y; // -1 or 1
    const char* name;
};
constexpr Corner kCorners[] = {{kLayerTopRight, 1, 1, " top right"}, {kLayerTopLeft, -1, 1, " top left"},
    {kLayerBottomRight, 1, -1, " bottom right"}, {kLayerBottomLeft, -1, -1, " bottom left"}};

} // namespace

std::vector<ControlPoint> layerPoints(const CIFilter& filter, std::span<const FreeLayer> layers)
{
    std::vector<ControlPoint> points;
    const std::string name = shownFilterName(filter.displayName()).toStdString();
    for (const FreeLayer& layer : layers) {
        const CIRect frame = layer.frame();
        points.push_back({layer.placeKey, kLayerMiddle, layer.place.center, name});
        for (const Corner& corner : kCorners)
            points.push_back({layer.placeKey, corner.mode,
                {corner.x < 0 ? frame.left() : frame.right(), corner.y < 0 ? frame.bottom() : frame.top()},
                name + corner.name});
    }
    return points;
}

std::optional<std::size_t> layerPointAt(
    std::span<const ControlPoint> points, std::span<const FreeLayer> layers, CIPoint p, double reach)
{
    const auto nearest = nearestControlPoint(points, p);
    if (!nearest)
        return {};
    const CIPoint at = points[*nearest].position;
    if (std::hypot(at.x - p.x, at.y - p.y) <= reach)
        return nearest;
    for (const FreeLayer& layer : layers)
        if (layer.frame().contains(p))
            for (std::size_t i = 0; i < points.size(); ++i)
                if (points[i].key == layer.placeKey && points[i].mode == kLayerMiddle)
                    return i;
    return {};
}

LayerPlace draggedLayer(const FreeLayer& layer, std::uint32_t mode, CIPoint to)
{
    LayerPlace place = layer.place;
    if (mode == kLayerMiddle)
        return {to, place.scale};
    for (const Corner& corner : kCorners)
        if (corner.mode == mode) {
            // Along the diagonal from the opposite corner.
            const double x = corner.x * layer.size.x, y = corner.y * layer.size.y;
            const CIPoint fixed(place.center.x - x * place.scale / 2, place.center.y - y * place.scale / 2);
            const double along = ((to.x - fixed.x) * x + (to.y - fixed.y) * y) / (x * x + y * y);
            const double smallest = kSmallest / std::max(layer.size.x, layer.size.y);
            place.scale = std::max(along, smallest);
            if (layer.isWhole && place.scale > 1)
                place.scale = std::round(place.scale);
            place.center = {fixed.x + x * place.scale / 2, fixed.y + y * place.scale / 2};
        }
    return place;
}
