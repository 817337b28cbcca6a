// Sharpening: what a blur takes away is added once more.
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/passes/Blur.h"

namespace ci {
namespace {

/// Each color moved away from its blurred neighborhood.
template <class V>
struct UnsharpMask {
    explicit UnsharpMask(const Inputs<V>& in)
        : intensity(in.scalar("inputIntensity"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& soft) const
    {
        return {mulAdd(intensity, p.r - soft.r, p.r), mulAdd(intensity, p.g - soft.g, p.g),
            mulAdd(intensity, p.b - soft.b, p.b), p.a};
    }
    static constexpr bool keepsAlpha = true;
    V intensity;
};

const RecipeFilter unsharpMask{
    {.name = "CIUnsharpMask",
        .displayName = "Unsharp Mask",
        .category = kCICategorySharpen,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            distance(
                "inputRadius", "Radius", {.standard = 2.5, .min = 0, .sliderMin = 0, .sliderMax = 100, .identity = 0}),
            scalar("inputIntensity", "Intensity",
                {.standard = 0.5, .min = 0, .sliderMin = 0, .sliderMax = 1, .identity = 0})}},
    [](const Values& in) {
        const CIImage source = in.image();
        return pointwise<UnsharpMask>(in, {source, blurredWithin(source, in.number("inputRadius"))}, source.extent());
    }};

/// The same with the luminance alone, added to all colors alike: no colored fringes.
template <class V>
struct SharpenLuminance {
    static constexpr bool keepsAlpha = true;
    explicit SharpenLuminance(const Inputs<V>& in)
        : sharpness(in.scalar("inputSharpness"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& soft) const
    {
        const V more = sharpness * (luma(p) - luma(soft));
        return {p.r + more, p.g + more, p.b + more, p.a};
    }
    V sharpness;
};

const RecipeFilter sharpenLuminance{
    {.name = "CISharpenLuminance",
        .displayName = "Sharpen Luminance",
        .category = kCICategorySharpen,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            fitted(
                scalar("inputSharpness", "Sharpness", {.standard = 0.4, .sliderMin = 0, .sliderMax = 2, .identity = 0}),
                1.0),
            fitted(scalar("inputRadius", "Radius", {.standard = 1.69, .sliderMin = 0, .sliderMax = 20, .identity = 0}),
                Meaning::Length)}},
    [](const Values& in) {
        const CIImage source = in.image();
        return pointwise<SharpenLuminance>(
            in, {source, blurredWithin(source, in.number("inputRadius"))}, source.extent());
    }};

} // namespace
} // namespace ci
