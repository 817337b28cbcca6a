// Geometry adjustments.
#include "platform/coreimage/kernel/SampleFilter.h"

namespace ci {
namespace {

const RecipeFilter crop{{.name = "CICrop",
                            .displayName = "Crop",
                            .category = kCICategoryGeometryAdjustment,
                            .usage = Video | HighDynamicRange,
                            .inputs = {image(),
                                vector("inputRectangle", "Rectangle", kCIAttributeTypeRectangle,
                                    CIVector(CIRect::infinite()), CIVector(CIRect::infinite()))}},
    [](const Values& in) { return in.image().cropped(in.rect("inputRectangle")); }};

const RecipeFilter affineTransform{{.name = "CIAffineTransform",
                                       .displayName = "Affine Transform",
                                       .category = kCICategoryGeometryAdjustment,
                                       .usage = Video | HighDynamicRange,
                                       .inputs = {image(), transform()}},
    [](const Values& in) { return in.image().transformed(in.transform("inputTransform")); }};

} // namespace
} // namespace ci
