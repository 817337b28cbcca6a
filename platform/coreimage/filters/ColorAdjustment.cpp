// Color adjustments: pixel in, pixel out.
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

/// Saturation about the luminance, then brightness added, then contrast about the middle.
template <class V>
struct ColorControls {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit ColorControls(const Inputs<V>& in)
        : saturation(in.scalar("inputSaturation"))
        , contrast(in.scalar("inputContrast"))
        , offset((in.scalar("inputBrightness") - 0.5f) * contrast + 0.5f)
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const V gray = luma(p);
        const auto adjusted = [&](const V& c) { return mulAdd(mix(gray, c, saturation), contrast, offset); };
        return {adjusted(p.r), adjusted(p.g), adjusted(p.b), p.a};
    }
    V saturation, contrast, offset;
};

const ColorFilter<ColorControls> colorControls{{.name = "CIColorControls",
    .displayName = "Color Controls",
    .category = kCICategoryColorAdjustment,
    .usage = Anything,
    .inputs = {image(),
        fitted(scalar("inputSaturation", "Saturation",
                   {.standard = 1, .min = 0, .sliderMin = 0, .sliderMax = 2, .identity = 1}),
            1.4),
        scalar("inputBrightness", "Brightness",
            {.standard = 0, .min = -1, .sliderMin = -1, .sliderMax = 1, .identity = 0}),
        fitted(scalar("inputContrast", "Contrast",
                   {.standard = 1, .min = 0, .sliderMin = 0.25, .sliderMax = 4, .identity = 1}),
            1.2)}}};

/// Light times two to the power of EV.
template <class V>
struct ExposureAdjust {
    static constexpr bool keepsAlpha = true, perComponent = true;
    explicit ExposureAdjust(const Inputs<V>& in)
        : gain(exp2(clamp(in.scalar("inputEV"), -40.0f, 40.0f)))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const { return {p.r * gain, p.g * gain, p.b * gain, p.a}; }
    V gain;
};

const ColorFilter<ExposureAdjust> exposureAdjust{{.name = "CIExposureAdjust",
    .displayName = "Exposure Adjust",
    .category = kCICategoryColorAdjustment,
    .usage = Anything | XMPSerializable,
    .inputs = {image(),
        fitted(scalar("inputEV", "EV", {.standard = 0, .sliderMin = -10, .sliderMax = 10, .identity = 0}), 0.8)}}};

} // namespace
} // namespace ci
