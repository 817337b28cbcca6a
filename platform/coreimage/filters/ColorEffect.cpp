// Color effects.
#include "platform/coreimage/kernel/DisplayValues.h"
#include "platform/coreimage/kernel/SampleFilter.h"

namespace ci {
namespace {

template <class V>
struct ColorInvert {
    static constexpr bool keepsAlpha = true, perComponent = true;
    explicit ColorInvert(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p) const { return {p.a - p.r, p.a - p.g, p.a - p.b, p.a}; }
};

const ColorFilter<ColorInvert> colorInvert{{.name = "CIColorInvert",
    .displayName = "Color Invert",
    .category = kCICategoryColorEffect,
    .usage = Anything,
    .inputs = {image()}}};

/// Looks up each pixel's lightness, as the eye grades it, along the middle row of the gradient image.
template <class V>
struct ColorMap {
    explicit ColorMap(const Inputs<V>& in)
    {
        const CIRect ramp = in.values().image("inputGradientImage").extent();
        left = V(float(ramp.left() + 0.5));
        span = V(float(ramp.width - 1));
        middle = V(float(ramp.center().y));
    }
    Pixel<V> operator()(const Sampler<V>& image, const Sampler<V>& ramp, const Point<V>& here) const
    {
        const Pixel<V> p = image(here);
        const V lightness = saturate(displayFromLinear(luma(unpremultiplied(p))));
        return ramp(Point<V>{mulAdd(lightness, span, left), middle}) * p.a;
    }
    static CIRect regionOfInterest(const Values& in, std::size_t image, const CIRect& wanted)
    {
        if (image == 0)
            return wanted;
        const CIRect ramp = in.image("inputGradientImage").extent();
        return {ramp.x, ramp.center().y - 1, ramp.width, 2};
    }
    V left, span, middle; // px of the gradient image
};

CIInputAttributes gradientImage()
{
    return {"inputGradientImage", "Gradient Image", InputKind::Gradient, {}, {}, {}, {}, {}, {}, {}, Automatic::Ramp};
}

const RecipeFilter colorMap{{.name = "CIColorMap",
                                .displayName = "Color Map",
                                .category = kCICategoryColorEffect,
                                .usage = AnyVideo,
                                .inputs = {image(), gradientImage()}},
    [](const Values& in) {
        const CIImage source = in.image(), ramp = in.image("inputGradientImage");
        if (ramp.extent().isInfinite())
            return source;
        return general<ColorMap>(in, {source, ramp}, source.extent());
    }};

} // namespace
} // namespace ci
