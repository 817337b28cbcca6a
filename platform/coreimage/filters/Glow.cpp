// Light that spreads: bloom, and its dark twin.
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/passes/Blur.h"

namespace ci {
namespace {

Declaration glow(std::string name, std::string displayName)
{
    return {.name = std::move(name),
        .displayName = std::move(displayName),
        .category = kCICategoryStylize,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            distance(
                "inputRadius", "Radius", {.standard = 10, .min = 0, .sliderMin = 0, .sliderMax = 100, .identity = 0}),
            scalar("inputIntensity", "Intensity",
                {.standard = 0.5, .min = 0, .sliderMin = 0, .sliderMax = 1, .identity = 0})}};
}

template <template <class> class K>
CIImage withBlurred(const Values& in)
{
    const CIImage source = in.image(), soft = gaussianBlur(source, in.number("inputRadius"));
    return pointwise<K>(in, {source, soft}, soft.extent());
}

/// The blurred light screened over the picture, beyond its edges too.
template <class V>
struct Bloom {
    explicit Bloom(const Inputs<V>& in)
        : intensity(in.scalar("inputIntensity"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& soft) const
    {
        const auto screened = [&](const V& c, const V& s) {
            return mulAdd(V(intensity * s), V(1.0f - saturate(c)), c);
        };
        return {screened(p.r, soft.r), screened(p.g, soft.g), screened(p.b, soft.b), screened(p.a, soft.a)};
    }
    V intensity;
};

const RecipeFilter bloom{glow("CIBloom", "Bloom"), [](const Values& in) { return withBlurred<Bloom>(in); }};

/// Highlights sink to what lies around them.
template <class V>
struct Gloom {
    explicit Gloom(const Inputs<V>& in)
        : intensity(in.scalar("inputIntensity"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& soft) const
    {
        const auto sunk = [&](const V& c, const V& s) { return mulAdd(intensity, V(min(c, s) - c), c); };
        return {sunk(p.r, soft.r), sunk(p.g, soft.g), sunk(p.b, soft.b), mix(p.a, soft.a, saturate(intensity))};
    }
    V intensity;
};

const RecipeFilter gloom{glow("CIGloom", "Gloom"), [](const Values& in) { return withBlurred<Gloom>(in); }};

} // namespace
} // namespace ci
