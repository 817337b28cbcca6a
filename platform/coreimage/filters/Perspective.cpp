// The picture as seen from elsewhere.
#include "platform/coreimage/graph/Projection.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

Quadrilateral cornersOf(const Values& in)
{
    return {
        in.point("inputBottomLeft"), in.point("inputBottomRight"), in.point("inputTopRight"), in.point("inputTopLeft")};
}

std::vector<CIInputAttributes> withCorners(std::vector<CIInputAttributes> inputs)
{
    inputs.push_back(position("inputTopLeft", "Top Left", {118, 484}));
    inputs.push_back(position("inputTopRight", "Top Right", {646, 507}));
    inputs.push_back(position("inputBottomRight", "Bottom Right", {548, 140}));
    inputs.push_back(position("inputBottomLeft", "Bottom Left", {155, 153}));
    return inputs;
}

/// The picture's corners go to the four points.
CIImage perspective(const CIImage& source, const Quadrilateral& to)
{
    if (source.extent().isInfinite() || source.extent().isEmpty())
        return source;
    const auto map = Projection::between(Quadrilateral::of(source.extent()), to);
    return map ? projected(source, *map, to.bounds()) : CIImage();
}

const RecipeFilter perspectiveTransform{{.name = "CIPerspectiveTransform",
                                            .displayName = "Perspective Transform",
                                            .category = kCICategoryGeometryAdjustment,
                                            .usage = Video | HighDynamicRange,
                                            .inputs = withCorners({image()})},
    [](const Values& in) { return perspective(in.image(), cornersOf(in)); }};

/// Only what lies in inputExtent is taken, and its corners go to the points.
const RecipeFilter perspectiveTransformWithExtent{
    {.name = "CIPerspectiveTransformWithExtent",
        .displayName = "Perspective Transform with Extent",
        .category = kCICategoryGeometryAdjustment,
        .usage = Video | HighDynamicRange,
        .inputs = withCorners({image(), rectangle("inputExtent", "Extent", {0, 0, 300, 300})})},
    [](const Values& in) {
        const CIRect part = in.rect("inputExtent");
        const auto map = Projection::between(Quadrilateral::of(part), cornersOf(in));
        return map && !part.isEmpty() ? projected(in.image().cropped(part), *map, cornersOf(in).bounds()) : CIImage();
    }};

} // namespace
} // namespace ci
