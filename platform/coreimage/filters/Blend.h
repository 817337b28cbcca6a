// Blend modes: how an image and the background under it become one where both are.
#pragma once

#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {

/// Compositing by the rules of PDF and of the W3C's "Compositing and Blending": where only one picture is, that one;
/// where both are, `mixed`, a color not multiplied by alpha.
template <class V>
Pixel<V> blended(const Pixel<V>& p, const Pixel<V>& under, const Pixel<V>& mixed)
{
    const V alone = 1.0f - under.a, free = 1.0f - p.a, both = p.a * under.a;
    const auto channel = [&](const V& s, const V& b, const V& m) {
        return mulAdd(s, alone, mulAdd(b, free, both * m));
    };
    return {channel(p.r, under.r, mixed.r), channel(p.g, under.g, mixed.g), channel(p.b, under.b, mixed.b),
        mulAdd(under.a, free, p.a)};
}

/// A mode that treats each channel alone: `Mode::channel(s, b)` from the image's and the background's straight values.
template <class Mode, class V>
struct SeparableBlend {
    explicit SeparableBlend(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& under) const
    {
        const Pixel<V> s = unpremultiplied(p), b = unpremultiplied(under);
        const Pixel<V> mixed{Mode::channel(s.r, b.r), Mode::channel(s.g, b.g), Mode::channel(s.b, b.b), V(1.0f)};
        return blended(p, under, mixed);
    }
};

/// A mode that needs all channels at once: `Mode::color(s, b)`, with values from 0 to 1.
template <class Mode, class V>
struct WholeColorBlend {
    explicit WholeColorBlend(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& under) const
    {
        const auto limited = [](const Pixel<V>& c) {
            const Pixel<V> s = unpremultiplied(c);
            return Pixel<V>{saturate(s.r), saturate(s.g), saturate(s.b), s.a};
        };
        return blended(p, under, Mode::color(limited(p), limited(under)));
    }
};

/// The inputs that all blends and compositing operations have.
inline Declaration compositing(std::string name, std::string displayName, unsigned usage)
{
    return {.name = std::move(name),
        .displayName = std::move(displayName),
        .category = kCICategoryCompositeOperation,
        .usage = usage,
        .inputs = {image(), image("inputBackgroundImage", "Background Image")}};
}

/// Declares a blend mode: "CI" + name + "BlendMode".
template <template <class> class K>
struct BlendModeFilter : BlendFilter<K> {
    BlendModeFilter(const std::string& name, const std::string& displayName)
        : BlendFilter<K>(compositing("CI" + name + "BlendMode", displayName + " Blend Mode", AnyVideo))
    {
    }
};

} // namespace ci
