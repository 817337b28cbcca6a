// Blends of two images by a third, or by an amount.
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

Declaration maskBlend(std::string name, std::string displayName)
{
    return {.name = std::move(name),
        .displayName = std::move(displayName),
        .category = kCICategoryStylize,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), image("inputBackgroundImage", "Background Image"),
            fitted(image("inputMaskImage", "Mask Image"), Meaning::SpotMask)},
        .optional = {"inputBackgroundImage"}};
}

/// The image where the mask is 1, the background where it is 0. `Mask` says which of its values counts.
template <class V, class Mask>
struct MaskBlend {
    explicit MaskBlend(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& under, const Pixel<V>& mask) const
    {
        return mix(under, p, saturate(Mask::of(mask)));
    }
    static CIRect extent(const Values& in)
    {
        return in.image().extent().united(in.image("inputBackgroundImage").extent());
    }
};

struct Luminance {
    template <class V>
    static V of(const Pixel<V>& p)
    {
        return luma(p);
    }
};
struct Alpha {
    template <class V>
    static V of(const Pixel<V>& p)
    {
        return p.a;
    }
};
struct Red {
    template <class V>
    static V of(const Pixel<V>& p)
    {
        return p.r;
    }
};
struct Blue {
    template <class V>
    static V of(const Pixel<V>& p)
    {
        return p.b;
    }
};
template <class V>
using ByLuminance = MaskBlend<V, Luminance>;
template <class V>
using ByAlpha = MaskBlend<V, Alpha>;
template <class V>
using ByRed = MaskBlend<V, Red>;
template <class V>
using ByBlue = MaskBlend<V, Blue>;

const BlendFilter<ByLuminance> blendWithMask{maskBlend("CIBlendWithMask", "Blend With Mask")};
const BlendFilter<ByAlpha> blendWithAlphaMask{maskBlend("CIBlendWithAlphaMask", "Blend With Alpha Mask")};
const BlendFilter<ByRed> blendWithRedMask{maskBlend("CIBlendWithRedMask", "Blend With Red Mask")};
const BlendFilter<ByBlue> blendWithBlueMask{maskBlend("CIBlendWithBlueMask", "Blend With Blue Mask")};

/// Nothing but the background at 0, the image at 1.
template <class V>
struct Mix {
    explicit Mix(const Inputs<V>& in)
        : amount(in.scalar("inputAmount"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& under) const { return mix(under, p, amount); }
    V amount;
};

const BlendFilter<Mix> mixFilter{{.name = "CIMix",
    .displayName = "Mix",
    .category = kCICategoryStylize,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), image("inputBackgroundImage", "Background Image"),
        fitted(scalar("inputAmount", "Amount", {.standard = 1, .sliderMin = 0, .sliderMax = 1, .identity = 1}), 0.5)},
    .optional = {"inputBackgroundImage"}}};

} // namespace
} // namespace ci
