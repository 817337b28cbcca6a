// Generators: images from nothing.
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

const RecipeFilter constantColorGenerator{{.name = "CIConstantColorGenerator",
                                              .displayName = "Constant Color",
                                              .category = kCICategoryGenerator,
                                              .usage = Video | HighDynamicRange,
                                              .inputs = {color("inputColor", "Color", CIColor{1, 0, 0, 1})}},
    [](const Values& in) { return CIImage::fromColor(in.color("inputColor")); }};

} // namespace
} // namespace ci
