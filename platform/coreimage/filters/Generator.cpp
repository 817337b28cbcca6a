// Generators: images from nothing.
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

const RecipeFilter constantColorGenerator{
    {.name = "CIConstantColorGenerator",
        .displayName = "Constant Color",
        .category = kCICategoryGenerator,
        .usage = Video | HighDynamicRange,
        .inputs = {automatic(color("inputColor", "Color", CIColor{1, 0, 0, 1}), CIColor{1, 0.5, 0, 0.5})}},
    [](const Values& in) { return CIImage::fromColor(in.color("inputColor")); }};

} // namespace
} // namespace ci
