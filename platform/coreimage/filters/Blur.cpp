// Blurs.
#include "platform/coreimage/passes/Blur.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

const RecipeFilter gaussianBlurFilter{
    {.name = "CIGaussianBlur",
        .displayName = "Gaussian Blur",
        .category = kCICategoryBlur,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            fitted(scalar("inputRadius", "Radius",
                       {.standard = 10, .min = 0, .sliderMin = 0, .sliderMax = 100, .identity = 0}),
                Meaning::Length)}},
    [](const Values& in) { return gaussianBlur(in.image(), in.number("inputRadius")); }};

/// The radius is the full width, made odd: 40 acts as 39.
const RecipeFilter boxBlurFilter{
    {.name = "CIBoxBlur",
        .displayName = "Box Blur",
        .category = kCICategoryBlur,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            distance("inputRadius", "Radius", {.standard = 10, .min = 1, .sliderMin = 1, .sliderMax = 100})}},
    [](const Values& in) {
        const double width = std::max(1.0, 2 * std::floor((in.number("inputRadius") - 1) / 2) + 1);
        return boxBlur(in.image(), width, width);
    }};

} // namespace
} // namespace ci
