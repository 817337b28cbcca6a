// Blend modes that exchange hue, saturation or luminosity, as PDF and the W3C define them.
#include "platform/coreimage/filters/Blend.h"

namespace ci {
namespace {

/// The weights those definitions use for lightness.
template <class V>
V lightness(const Pixel<V>& c)
{
    return mulAdd(V(0.3f), c.r, mulAdd(V(0.59f), c.g, 0.11f * c.b));
}

template <class V>
V least(const Pixel<V>& c)
{
    return min(c.r, min(c.g, c.b));
}

template <class V>
V most(const Pixel<V>& c)
{
    return max(c.r, max(c.g, c.b));
}

template <class V>
V saturation(const Pixel<V>& c)
{
    return most(c) - least(c);
}

/// The color at another lightness; what would leave 0 to 1 is drawn towards gray.
template <class V>
Pixel<V> withLightness(const Pixel<V>& c, const V& wanted)
{
    const V gray = lightness(c);
    const V below = gray - least(c), above = most(c) - gray; // how far the channels reach
    const V keep = min(V(1.0f), min(V(wanted / max(below, 1e-6f)), V((1.0f - wanted) / max(above, 1e-6f))));
    const auto channel = [&](const V& v) { return mulAdd(v - gray, keep, wanted); };
    return {channel(c.r), channel(c.g), channel(c.b), V(1.0f)};
}

/// The color's hue at another saturation; gray has none and becomes black.
template <class V>
Pixel<V> withSaturation(const Pixel<V>& c, const V& wanted)
{
    const V low = least(c), has = saturation(c);
    const V gain = select(has > V(1e-6f), wanted / max(has, 1e-6f), V(0.0f));
    return {(c.r - low) * gain, (c.g - low) * gain, (c.b - low) * gain, V(1.0f)};
}

#define CI_WHOLE_COLOR(Kernel)                                                                                         \
    template <class V>                                                                                                 \
    struct Kernel : WholeColorBlend<Kernel<V>, V> {                                                                    \
        using WholeColorBlend<Kernel<V>, V>::WholeColorBlend;                                                          \
        static Pixel<V> color(const Pixel<V>& s, const Pixel<V>& b);                                                   \
    };                                                                                                                 \
    template <class V>                                                                                                 \
    Pixel<V> Kernel<V>::color(const Pixel<V>& s, const Pixel<V>& b)

CI_WHOLE_COLOR(Hue) { return withLightness(withSaturation(s, saturation(b)), lightness(b)); }
CI_WHOLE_COLOR(Saturation) { return withLightness(withSaturation(b, saturation(s)), lightness(b)); }
CI_WHOLE_COLOR(Color) { return withLightness(s, lightness(b)); }
CI_WHOLE_COLOR(Luminosity) { return withLightness(b, lightness(s)); }

const BlendModeFilter<Hue> hueMode("Hue", "Hue");
const BlendModeFilter<Saturation> saturationMode("Saturation", "Saturation");
const BlendModeFilter<Color> colorMode("Color", "Color");
const BlendModeFilter<Luminosity> luminosityMode("Luminosity", "Luminosity");

} // namespace
} // namespace ci
