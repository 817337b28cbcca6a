// Stylizing filters.
#include "platform/coreimage/graph/Cells.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

/// Squares of inputScale, counted from the center, in the mean color of what they cover.
const RecipeFilter pixellate{
    {.name = "CIPixellate",
        .displayName = "Pixelate",
        .category = kCICategoryStylize,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), center(),
            distance("inputScale", "Scale", {.standard = 8, .min = 1, .sliderMin = 1, .sliderMax = 100})}},
    [](const Values& in) {
        const CIImage source = in.image();
        return cells(source.clampedToExtent(), in.point("inputCenter"), in.number("inputScale"))
            .cropped(source.extent());
    }};

} // namespace
} // namespace ci
