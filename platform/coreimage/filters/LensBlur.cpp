// Blurs as lenses make them, and blurs by a mask.
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/passes/Blur.h"
#include "platform/coreimage/passes/Convolution.h"
#include "platform/coreimage/passes/DiscBlur.h"

#include <array>

namespace ci {
namespace {

const RecipeFilter discBlurFilter{
    {.name = "CIDiscBlur",
        .displayName = "Disc Blur",
        .category = kCICategoryBlur,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            distance("inputRadius", "Radius", {.standard = 8, .min = 0, .sliderMin = 0, .sliderMax = 100})}},
    [](const Values& in) { return discBlur(in.image(), {.radius = in.number("inputRadius")}); }};

/// A disc of 0.95 of the radius (measured) with a brighter ring at its rim, and a softened outline.
const RecipeFilter bokehBlur{
    {.name = "CIBokehBlur",
        .displayName = "Bokeh Blur",
        .category = kCICategoryBlur,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            distance("inputRadius", "Radius", {.standard = 20, .min = 0, .max = 500, .sliderMin = 0, .sliderMax = 100}),
            scalar(
                "inputRingAmount", "Ring Amount", {.standard = 0, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1}),
            scalar("inputRingSize", "Ring Size",
                {.standard = 0.1, .min = 0, .max = 0.2, .sliderMin = 0, .sliderMax = 0.2}),
            scalar("inputSoftness", "Softness",
                {.standard = 1, .min = 0, .max = 10, .sliderMin = 0.25, .sliderMax = 0.4})}},
    [](const Values& in) {
        constexpr double kPerSoftness = 0.04; // of the radius
        constexpr double kRingLight = 0.5; // more would outshine the disc
        const double radius = 0.95 * in.number("inputRadius");
        const CIImage disc = discBlur(in.image(),
            {.radius = radius,
                .ringFrom = 1 - in.number("inputRingSize"),
                .ringAmount = kRingLight * in.number("inputRingAmount")});
        return gaussianBlur(disc, kPerSoftness * in.number("inputSoftness") * radius);
    }};

/// One step in a stack of ever wider blurs: where the mask asks for a wider one than the last, in part or whole. A mix
/// of two Gaussians has the variance between theirs.
template <class V>
struct WiderWhereMasked {
    explicit WiderWhereMasked(const Inputs<V>& in)
        : widest(in.scalar("widest"))
        , before(in.scalar("before") * in.scalar("before"))
        , perVariance(1.0f / max(V(in.scalar("sigma") * in.scalar("sigma") - before), 1e-6f))
    {
    }
    Pixel<V> operator()(const Pixel<V>& sharper, const Pixel<V>& wider, const Pixel<V>& mask) const
    {
        const V light = saturate(luma(mask));
        const V sigma = select(light < V(kNothing), V(0.0f), widest * light);
        return mix(sharper, wider, saturate(V((sigma * sigma - before) * perVariance)));
    }
    static constexpr float kNothing = 0.03f; // darker masks leave the picture alone (measured)
    V widest, before, perVariance;
};

const RecipeFilter maskedVariableBlur{
    {.name = "CIMaskedVariableBlur",
        .displayName = "Masked Variable Blur",
        .category = kCICategoryBlur,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), fitted(image("inputMask", "Mask"), Meaning::SpotMask),
            fitted(scalar("inputRadius", "Radius",
                       {.standard = 5, .min = 0, .sliderMin = 0, .sliderMax = 10, .identity = 0}),
                15, Meaning::Length)}},
    [](const Values& in) {
        constexpr double kMeasured = 1.17; // sigma for each radius, under a white mask
        constexpr double kFinest = 0.4; // px
        const CIImage source = in.image(), mask = in.image("inputMask");
        const double widest = std::min(kMeasured * in.number("inputRadius"), 1000.0);
        CIImage result = source;
        double before = 0;
        for (const double share : {0.13, 0.3, 0.58, 1.0}) {
            const double sigma = share * widest;
            if (sigma < kFinest)
                continue;
            const CIImage wider = gaussianBlur(source, sigma);
            result = pointwise<WiderWhereMasked>(in.with("widest", widest).with("before", before).with("sigma", sigma),
                {result, wider, mask}, wider.extent());
            before = sigma;
        }
        return result;
    }};

/// Takes the smooth copy where it differs by less than the noise does; edges keep their pixels and are sharpened.
template <class V>
struct NoiseReduction {
    static constexpr bool keepsAlpha = true;
    explicit NoiseReduction(const Inputs<V>& in)
        : level(in.scalar("inputNoiseLevel"))
        , sharpness(in.scalar("inputSharpness"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& smooth) const
    {
        const auto apart = [&](const V& c, const V& s) { return abs(c - s); };
        const V most = max(max(apart(p.r, smooth.r), apart(p.g, smooth.g)), apart(p.b, smooth.b));
        const V edge = saturate(V(most / max(level, 1e-6f) - 1.0f)); // noise up to the level, edge from its double on
        const V gain = edge * (1.0f + sharpness);
        const auto mixed = [&](const V& c, const V& s) { return mulAdd(gain, c - s, s); };
        return {mixed(p.r, smooth.r), mixed(p.g, smooth.g), mixed(p.b, smooth.b), p.a};
    }
    V level, sharpness;
};

/// Five by five weights of a Gaussian (its width was measured), edge pixels repeated.
CIImage smoothed(const CIImage& source)
{
    constexpr double kSigma = 1.31; // px
    std::array<double, 25> weights;
    double sum = 0;
    for (int i = 0; i < 25; ++i)
        sum += weights[std::size_t(i)] =
            std::exp(-((i % 5 - 2) * (i % 5 - 2) + (i / 5 - 2) * (i / 5 - 2)) / (2 * kSigma * kSigma));
    for (double& w : weights)
        w /= sum;
    return convolved(source.clampedToExtent(), {weights, 5, 5, 0, true}).cropped(source.extent());
}

const RecipeFilter noiseReduction{
    {.name = "CINoiseReduction",
        .displayName = "Noise Reduction",
        .category = kCICategoryBlur,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            scalar("inputNoiseLevel", "Noise Level",
                {.standard = 0.02, .min = 0, .sliderMin = 0, .sliderMax = 0.1, .identity = 0}),
            scalar("inputSharpness", "Sharpness",
                {.standard = 0.4, .min = 0, .sliderMin = 0, .sliderMax = 2, .identity = 0})}},
    [](const Values& in) {
        const CIImage source = in.image();
        return pointwise<NoiseReduction>(in, {source, smoothed(source)}, source.extent());
    }};

} // namespace
} // namespace ci
