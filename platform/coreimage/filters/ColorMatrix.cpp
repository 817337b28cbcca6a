// Color adjustments and effects that are linear in the color: matrices, mixes and tints.
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

/// Each component becomes the weighted sum of all four, plus a bias.
template <class V>
struct ColorMatrix {
    static constexpr bool straight = true;
    explicit ColorMatrix(const Inputs<V>& in)
        : red(in.row("inputRVector"))
        , green(in.row("inputGVector"))
        , blue(in.row("inputBVector"))
        , alpha(in.row("inputAVector"))
        , bias(in.row("inputBiasVector"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const auto sum = [&](const Pixel<V>& w, const V& start) {
            return mulAdd(p.r, w.r, mulAdd(p.g, w.g, mulAdd(p.b, w.b, mulAdd(p.a, w.a, start))));
        };
        return {sum(red, bias.r), sum(green, bias.g), sum(blue, bias.b), saturate(sum(alpha, bias.a))};
    }
    Pixel<V> red, green, blue, alpha, bias;
};

const ColorFilter<ColorMatrix> colorMatrix{{.name = "CIColorMatrix",
    .displayName = "Color Matrix",
    .category = kCICategoryColorAdjustment,
    .usage = Anything,
    .inputs = {image(),
        fitted(vector("inputRVector", "Red Vector", CIVector{1, 0, 0, 0}, CIVector{1, 0, 0, 0}),
            CIVector{1.05, 0.2, 0, 0}),
        vector("inputGVector", "Green Vector", CIVector{0, 1, 0, 0}, CIVector{0, 1, 0, 0}),
        fitted(vector("inputBVector", "Blue Vector", CIVector{0, 0, 1, 0}, CIVector{0, 0, 1, 0}),
            CIVector{0, 0.1, 0.7, 0}),
        vector("inputAVector", "Alpha Vector", CIVector{0, 0, 0, 1}, CIVector{0, 0, 0, 1}),
        vector("inputBiasVector", "Bias Vector", CIVector{0, 0, 0, 0}, CIVector{0, 0, 0, 0})}}};

/// Turns the color cube about its diagonal of grays; a third of a turn makes red green and green blue.
template <class V>
struct HueAdjust {
    static constexpr bool keepsAlpha = true;
    explicit HueAdjust(const Inputs<V>& in)
    {
        // Rodrigues' rotation about (1, 1, 1).
        const double angle = in.values().number("inputAngle");
        const double even = (1 - std::cos(angle)) / 3, odd = std::sin(angle) / std::sqrt(3.0);
        same = V(float(std::cos(angle) + even));
        next = V(float(even - odd));
        last = V(float(even + odd));
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const auto turned = [&](const V& c, const V& after, const V& before) {
            return mulAdd(same, c, mulAdd(next, after, last * before));
        };
        return {turned(p.r, p.g, p.b), turned(p.g, p.b, p.r), turned(p.b, p.r, p.g), p.a};
    }
    V same, next, last;
};

const ColorFilter<HueAdjust> hueAdjust{{.name = "CIHueAdjust",
    .displayName = "Hue Adjust",
    .category = kCICategoryColorAdjustment,
    .usage = Anything,
    .inputs = {image(),
        fitted(angle("inputAngle", "Angle", {.standard = 0, .sliderMin = -M_PI, .sliderMax = M_PI, .identity = 0}),
            1.0)}}};

/// Makes white the color, and all between accordingly.
template <class V>
struct WhitePointAdjust {
    static constexpr bool keepsAlpha = true;
    explicit WhitePointAdjust(const Inputs<V>& in)
        : white(in.straightColor("inputColor"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const { return {p.r * white.r, p.g * white.g, p.b * white.b, p.a}; }
    Pixel<V> white;
};

CIInputAttributes whiteColor()
{
    CIInputAttributes input = fitted(color("inputColor", "Color", CIColor{1, 1, 1, 1}), CIColor{1, 0.85, 0.65, 1});
    input.identity = input.defaultValue;
    return input;
}

const ColorFilter<WhitePointAdjust> whitePointAdjust{{.name = "CIWhitePointAdjust",
    .displayName = "White Point Adjust",
    .category = kCICategoryColorAdjustment,
    .usage = Anything,
    .inputs = {image(), whiteColor()}}};

/// Shades of the tint in place of the picture's colors, as far as the intensity says.
template <class V>
Pixel<V> tinted(const Pixel<V>& p, const Pixel<V>& tint, const V& intensity)
{
    const V light = luma(p);
    return {mix(p.r, light * tint.r, intensity), mix(p.g, light * tint.g, intensity),
        mix(p.b, light * tint.b, intensity), p.a};
}

/// The brown of old prints: by eye, between the usual sepia matrix for display values and the pigment itself, with the
/// luminance of the picture.
template <class V>
struct SepiaTone {
    static constexpr bool keepsAlpha = true;
    explicit SepiaTone(const Inputs<V>& in)
        : intensity(in.scalar("inputIntensity"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        return tinted(p, Pixel<V>{V(1.42f), V(0.93f), V(0.456f), V(1.0f)}, intensity);
    }
    V intensity;
};

const ColorFilter<SepiaTone> sepiaTone{{.name = "CISepiaTone",
    .displayName = "Sepia Tone",
    .category = kCICategoryColorEffect,
    .usage = Anything | XMPSerializable,
    .inputs = {image(),
        scalar(
            "inputIntensity", "Intensity", {.standard = 1, .min = 0, .sliderMin = 0, .sliderMax = 1, .identity = 0})}}};

template <class V>
struct ColorMonochrome {
    static constexpr bool keepsAlpha = true;
    explicit ColorMonochrome(const Inputs<V>& in)
        : tint(in.straightColor("inputColor"))
        , intensity(in.scalar("inputIntensity"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const { return tinted(p, tint, intensity); }
    Pixel<V> tint;
    V intensity;
};

const ColorFilter<ColorMonochrome> colorMonochrome{{.name = "CIColorMonochrome",
    .displayName = "Color Monochrome",
    .category = kCICategoryColorEffect,
    .usage = Anything,
    .inputs = {image(), color("inputColor", "Color", CIColor{0.6, 0.45, 0.3, 1}, InputKind::OpaqueColor),
        scalar(
            "inputIntensity", "Intensity", {.standard = 1, .min = 0, .sliderMin = 0, .sliderMax = 1, .identity = 0})}}};

/// Black becomes the first color, white the second; luminance decides between them.
template <class V>
struct FalseColor {
    explicit FalseColor(const Inputs<V>& in)
        : dark(in.color("inputColor0"))
        , way(in.color("inputColor1") - dark)
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const V light = luma(p); // of the premultiplied color: all else is multiplied by alpha here
        const auto at = [&](const V& from, const V& step) { return mulAdd(light, step, p.a * from); };
        return {at(dark.r, way.r), at(dark.g, way.g), at(dark.b, way.b), clamp(at(dark.a, way.a), 0.0f, p.a)};
    }
    Pixel<V> dark, way;
};

const ColorFilter<FalseColor> falseColor{{.name = "CIFalseColor",
    .displayName = "False Color",
    .category = kCICategoryColorEffect,
    .usage = Anything,
    .inputs = {image(), color("inputColor0", "Color 1", CIColor{0.3, 0, 0, 1}),
        color("inputColor1", "Color 2", CIColor{1, 0.9, 0.8, 1})}}};

template <class V>
struct MaximumComponent {
    static constexpr bool keepsAlpha = true;
    explicit MaximumComponent(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const V most = max(max(p.r, p.g), p.b);
        return {most, most, most, p.a};
    }
};

const ColorFilter<MaximumComponent> maximumComponent{{.name = "CIMaximumComponent",
    .displayName = "Maximum Component",
    .category = kCICategoryColorEffect,
    .usage = Anything,
    .inputs = {image()}}};

template <class V>
struct MinimumComponent {
    static constexpr bool keepsAlpha = true;
    explicit MinimumComponent(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const V least = min(min(p.r, p.g), p.b);
        return {least, least, least, p.a};
    }
};

const ColorFilter<MinimumComponent> minimumComponent{{.name = "CIMinimumComponent",
    .displayName = "Minimum Component",
    .category = kCICategoryColorEffect,
    .usage = Anything,
    .inputs = {image()}}};

/// White where the picture is light and clear where it is dark.
template <class V>
struct MaskToAlpha {
    explicit MaskToAlpha(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const V light = saturate(luma(p));
        return {light, light, light, light};
    }
};

const ColorFilter<MaskToAlpha> maskToAlpha{{.name = "CIMaskToAlpha",
    .displayName = "Mask to Alpha",
    .category = kCICategoryColorEffect,
    .usage = AnyVideo,
    .inputs = {image()}}};

/// How far the two pictures are apart, component by component, where the first is.
template <class V>
struct ColorAbsoluteDifference {
    static constexpr bool opaque = true;
    explicit ColorAbsoluteDifference(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& q) const
    {
        return {abs(V(p.r - q.r)), abs(V(p.g - q.g)), abs(V(p.b - q.b)), V(1.0f)};
    }
    static CIRect extent(const Values& in) { return in.image().extent(); }
};

const ColorFilter<ColorAbsoluteDifference> colorAbsoluteDifference{{.name = "CIColorAbsoluteDifference",
    .displayName = "Color Absolute Difference",
    .category = kCICategoryColorAdjustment,
    .usage = Anything,
    .inputs = {image(), image("inputImage2", "Image2")}}};

} // namespace
} // namespace ci
