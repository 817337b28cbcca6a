// Geometry adjustments.
#include "platform/coreimage/kernel/SampleFilter.h"

namespace ci {
namespace {

const RecipeFilter crop{{.name = "CICrop",
                            .displayName = "Crop",
                            .category = kCICategoryGeometryAdjustment,
                            .usage = Video | HighDynamicRange,
                            .inputs = {image(),
                                fitted(vector("inputRectangle", "Rectangle", CIVector(CIRect::infinite()),
                                           CIVector(CIRect::infinite()), InputKind::Rectangle),
                                    CIVector{30, 30, 240, 240})}},
    [](const Values& in) { return in.image().cropped(in.rect("inputRectangle")); }};

const RecipeFilter affineTransform{{.name = "CIAffineTransform",
                                       .displayName = "Affine Transform",
                                       .category = kCICategoryGeometryAdjustment,
                                       .usage = Video | HighDynamicRange,
                                       .inputs = {image(), transform()}},
    [](const Values& in) { return in.image().transformed(in.transform("inputTransform")); }};

/// Turned about the middle, and enlarged until the picture's frame is full.
const RecipeFilter straighten{
    {.name = "CIStraightenFilter",
        .displayName = "Straighten",
        .category = kCICategoryGeometryAdjustment,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            fitted(angle("inputAngle", "Angle", {.standard = 0, .sliderMin = -M_PI, .sliderMax = M_PI, .identity = 0}),
                0.1)}},
    [](const Values& in) {
        const CIImage source = in.image();
        const CIRect frame = source.extent();
        const double angle = in.number("inputAngle");
        if (frame.isInfinite() || frame.isEmpty() || angle == 0)
            return source;
        const double c = std::abs(std::cos(angle)), s = std::abs(std::sin(angle)), shape = frame.width / frame.height;
        const double scale = std::max(c + s / shape, c + s * shape);
        const CIPoint middle = frame.center();
        return source.clampedToExtent()
            .transformed(CIAffineTransform::translation(-middle.x, -middle.y)
                             .then(CIAffineTransform::rotation(angle))
                             .then(CIAffineTransform::scaling(scale, scale))
                             .then(CIAffineTransform::translation(middle.x, middle.y)))
            .cropped(frame);
    }};

} // namespace
} // namespace ci
