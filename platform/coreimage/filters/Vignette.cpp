// Pictures darkened towards their rim.
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

/// Falls off as light does through a simple lens: with the fourth power of the cosine, where the radius is the
/// distance, in half diagonals, at which rays come in at 45 degrees. Negative intensities brighten.
template <class V>
struct Vignette {
    static constexpr bool keepsAlpha = true;
    explicit Vignette(const Inputs<V>& in)
        : intensity(in.scalar("inputIntensity"))
    {
        const CIRect picture = in.values().image().extent();
        const CIPoint middle = picture.center();
        center = {V(float(middle.x)), V(float(middle.y))};
        const double diagonal = std::hypot(picture.width, picture.height) / 2;
        const double reach = std::max(diagonal * in.values().number("inputRadius"), 1.0);
        perReach2 = V(float(1 / (reach * reach)));
    }
    Pixel<V> operator()(const Pixel<V>& p, const Point<V>& here) const
    {
        const Point<V> d = here - center;
        const V cosine2 = 1.0f / mulAdd(dot(d, d), perReach2, V(1.0f));
        const V gain = 1.0f - intensity * (1.0f - cosine2 * cosine2);
        return {p.r * gain, p.g * gain, p.b * gain, p.a};
    }
    V intensity, perReach2;
    Point<V> center;
};

const RecipeFilter vignette{
    {.name = "CIVignette",
        .displayName = "Vignette",
        .category = kCICategoryColorEffect,
        .usage = Video | HighDynamicRange | Interlaced,
        .inputs = {image(),
            fitted(scalar("inputIntensity", "Intensity",
                       {.standard = 0, .min = -1, .max = 1, .sliderMin = -1, .sliderMax = 1, .identity = 0}),
                1),
            scalar("inputRadius", "Radius", {.standard = 1, .min = 0, .max = 2, .sliderMin = 0, .sliderMax = 2})}},
    [](const Values& in) {
        const CIImage source = in.image();
        return source.extent().isInfinite() ? source : pointwise<Vignette>(in, {source}, source.extent());
    }};

/// Darkens what lies outside a circle; the falloff is the part of the radius, on both sides of the circle, over which
/// the change is spread.
template <class V>
struct VignetteEffect {
    static constexpr bool keepsAlpha = true;
    explicit VignetteEffect(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , intensity(in.scalar("inputIntensity"))
    {
        const V radius = in.scalar("inputRadius");
        const V half = max(V(radius * in.scalar("inputFalloff")), V(0.5f * max(in.step(), 1.0f)));
        inner = radius - half;
        outer = radius + half;
    }
    Pixel<V> operator()(const Pixel<V>& p, const Point<V>& here) const
    {
        const V gain = 1.0f - intensity * smoothstep(inner, outer, length(here - center));
        return {p.r * gain, p.g * gain, p.b * gain, p.a};
    }
    Point<V> center;
    V intensity, inner, outer;
};

const ColorFilter<VignetteEffect> vignetteEffect{{.name = "CIVignetteEffect",
    .displayName = "Vignette Effect",
    .category = kCICategoryColorEffect,
    .usage = Video | HighDynamicRange | Interlaced,
    .inputs = {image(), center(),
        distance("inputRadius", "Radius", {.standard = 150, .min = 0, .sliderMin = 0, .sliderMax = 2000}),
        scalar("inputIntensity", "Intensity",
            {.standard = 1, .min = -1, .max = 1, .sliderMin = -1, .sliderMax = 1, .identity = 0}),
        scalar("inputFalloff", "Falloff", {.standard = 0.5, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1})}}};

} // namespace
} // namespace ci
