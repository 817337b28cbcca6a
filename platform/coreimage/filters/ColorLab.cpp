// Lab as pictures, and color differences in it.
#include "platform/coreimage/filters/Lab.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

/// L from 0 to 100, a and b from -128 to 128; or all of them brought to 0 to 1.
template <class V>
struct ConvertRGBtoLab {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit ConvertRGBtoLab(const Inputs<V>& in)
        : normalize(in.values().flag("inputNormalize"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const Pixel<V> lab = labFromLinear(p);
        return normalize
            ? Pixel<V>{lab.r * 0.01f, mulAdd(lab.g, V(1 / 256.0f), V(0.5f)), mulAdd(lab.b, V(1 / 256.0f), V(0.5f)), p.a}
            : lab;
    }
    bool normalize;
};

template <class V>
struct ConvertLabToRGB {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit ConvertLabToRGB(const Inputs<V>& in)
        : normalize(in.values().flag("inputNormalize"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        return linearFromLab(normalize ? Pixel<V>{p.r * 100.0f, (p.g - 0.5f) * 256.0f, (p.b - 0.5f) * 256.0f, p.a} : p);
    }
    bool normalize;
};

/// Only normalized colors can be shown.
CIInputAttributes normalize()
{
    return fitted(number("inputNormalize", "Normalize", InputKind::Boolean, {.standard = 0}), true);
}

const ColorFilter<ConvertRGBtoLab> convertRGBtoLab{{.name = "CIConvertRGBtoLab",
    .displayName = "Convert RGB to Lab",
    .category = kCICategoryColorEffect,
    .usage = Anything,
    .inputs = {image(), normalize()},
    .tolerance = 2e-3f}}; // values up to 100, of powers

const ColorFilter<ConvertLabToRGB> convertLabToRGB{{.name = "CIConvertLabToRGB",
    .displayName = "Convert Lab to RGB",
    .category = kCICategoryColorEffect,
    .usage = Anything,
    .inputs = {image(), normalize()}}};

/// The difference of two pictures' colors by CIE 1994 (graphic arts), a hundredth of its value as light.
template <class V>
struct LabDeltaE {
    explicit LabDeltaE(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& q) const
    {
        const Pixel<V> one = labFromLinear(unpremultiplied(p)), two = labFromLinear(unpremultiplied(q));
        const V chroma = hypot(one.g, one.b), dChroma = chroma - hypot(two.g, two.b);
        const V dL = one.r - two.r, da = one.g - two.g, db = one.b - two.b;
        const V dHue2 = max(V(da * da + db * db - dChroma * dChroma), 0.0f);
        const V c = dChroma / mulAdd(V(0.045f), chroma, V(1.0f));
        const V hueScale = mulAdd(V(0.015f), chroma, V(1.0f));
        const V apart = sqrt(dL * dL + c * c + dHue2 / (hueScale * hueScale));
        const V shown = clamp(V(apart * 0.01f), 0.0f, 2.0f), alpha = max(p.a, q.a);
        return {shown * alpha, shown * alpha, shown * alpha, alpha};
    }
};

const ColorFilter<LabDeltaE> labDeltaE{{.name = "CILabDeltaE",
    .displayName = "Lab ∆E",
    .category = kCICategoryColorEffect,
    .usage = AnyVideo,
    .inputs = {image(), image("inputImage2", "Image2")}}};

} // namespace
} // namespace ci
