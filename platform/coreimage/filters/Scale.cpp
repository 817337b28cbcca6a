// Scaling. Widths are scaled by inputScale times inputAspectRatio, heights by inputScale.
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/passes/Resample.h"

namespace ci {
namespace {

double scaleX(const Values& in) { return in.number("inputScale") * in.number("inputAspectRatio"); }
double scaleY(const Values& in) { return in.number("inputScale"); }

const RecipeFilter lanczosScaleTransform{
    {.name = "CILanczosScaleTransform",
        .displayName = "Lanczos Scale Transform",
        .category = kCICategoryGeometryAdjustment,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            fitted(scalar("inputScale", "Scale",
                       {.standard = 1, .min = 0, .sliderMin = 0.05, .sliderMax = 1.5, .identity = 1}),
                0.5),
            scalar("inputAspectRatio", "Aspect Ratio",
                {.standard = 1, .min = 0, .sliderMin = 0.5, .sliderMax = 2, .identity = 1})}},
    [](const Values& in) { return lanczosScaled(in.image(), scaleX(in), scaleY(in)); }};

const RecipeFilter bicubicScaleTransform{
    {.name = "CIBicubicScaleTransform",
        .displayName = "Bicubic Scale Transform",
        .category = kCICategoryGeometryAdjustment,
        .usage = Video | HighDynamicRange | NonSquarePixels,
        .inputs = {image(),
            fitted(scalar("inputScale", "Scale",
                       {.standard = 1, .min = 0, .sliderMin = 0.05, .sliderMax = 100, .identity = 1}),
                0.5),
            scalar("inputAspectRatio", "Aspect Ratio",
                {.standard = 1, .min = 0, .sliderMin = 0.5, .sliderMax = 2, .identity = 1}),
            scalar("inputB", "B", {.standard = 0, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1}),
            scalar("inputC", "C", {.standard = 0.75, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1})}},
    [](const Values& in) {
        return cubicScaled(in.image(), scaleX(in), scaleY(in), in.number("inputB"), in.number("inputC"));
    }};

const RecipeFilter maximumScaleTransform{
    {.name = "CIMaximumScaleTransform",
        .displayName = "Maximum Scale Transform",
        .category = kCICategoryGeometryAdjustment,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), fitted(scalar("inputScale", "Scale", {.standard = 1, .min = 0}), 0.5),
            scalar("inputAspectRatio", "Aspect Ratio", {.standard = 1, .min = 0})},
        .boundToPixelGrid = true}, // the largest of fewer, averaged pixels is smaller
    [](const Values& in) { return maximumScaled(in.image(), scaleX(in), scaleY(in)); }};

} // namespace
} // namespace ci
