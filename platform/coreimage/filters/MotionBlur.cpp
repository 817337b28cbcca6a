// Blurs along lines: what moved while the shutter was open.
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/passes/LineBlur.h"

namespace ci {
namespace {

/// A Gaussian along the angle, of which inputRadius is the standard deviation (measured).
const RecipeFilter motionBlur{
    {.name = "CIMotionBlur",
        .displayName = "Motion Blur",
        .category = kCICategoryBlur,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            distance(
                "inputRadius", "Radius", {.standard = 20, .min = 0, .sliderMin = 0, .sliderMax = 100, .identity = 0}),
            angle("inputAngle", "Angle", {.standard = 0, .sliderMin = -M_PI, .sliderMax = M_PI, .identity = 0})}},
    [](const Values& in) { return blurAlong(in.image(), in.number("inputAngle"), in.number("inputRadius")); }};

/// Smears toward the center: by 30 picks up what lies at 6/11 of the distance and beyond (measured; the law between
/// amounts is the simplest one through that). Negative amounts smear the other way.
const RecipeFilter zoomBlur{
    {.name = "CIZoomBlur",
        .displayName = "Zoom Blur",
        .category = kCICategoryBlur,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), center(),
            distance("inputAmount", "Amount", {.standard = 20, .sliderMin = -200, .sliderMax = 200, .identity = 0})},
        .tolerance = 3e-3f}, // far tiles lay denser rays
    [](const Values& in) {
        constexpr double kMost = 1000;
        const double amount = std::clamp(in.number("inputAmount"), -kMost, kMost);
        return blurToward(in.image(), in.point("inputCenter"), 1 - amount / (36 + std::abs(amount)));
    }};

} // namespace
} // namespace ci
