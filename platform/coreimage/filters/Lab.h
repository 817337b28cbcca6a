// CIE L*a*b* relative to the white of sRGB, D65.
#pragma once

#include "platform/coreimage/kernel/Pixel.h"

namespace ci {

/// L (0 to 100), a and b in r, g and b; alpha as it is.
template <class V>
Pixel<V> labFromLinear(const Pixel<V>& p)
{
    const auto row = [&](float r, float g, float b) { return mulAdd(V(r), p.r, mulAdd(V(g), p.g, V(b) * p.b)); };
    // IEC 61966-2-1, each row divided by the white's component.
    const V x = row(0.4338873f, 0.3762240f, 0.1898886f);
    const V y = row(0.2126390f, 0.7151687f, 0.0721923f);
    const V z = row(0.0177500f, 0.1094476f, 0.8728023f);
    const auto f = [](const V& t) {
        const V root = pow(max(t, 1e-6f), V(1 / 3.0f));
        return select(t > V(0.008856452f), root, mulAdd(t, V(7.787037f), V(16 / 116.0f)));
    };
    const V fx = f(x), fy = f(y), fz = f(z);
    return {mulAdd(fy, V(116.0f), V(-16.0f)), 500.0f * (fx - fy), 200.0f * (fy - fz), p.a};
}

template <class V>
Pixel<V> linearFromLab(const Pixel<V>& lab)
{
    const V fy = (lab.r + 16.0f) * (1 / 116.0f), fx = fy + lab.g * 0.002f, fz = fy - lab.b * 0.005f;
    const auto back = [](const V& f) { return select(f > V(6 / 29.0f), f * f * f, (f - 16 / 116.0f) * 0.12841855f); };
    const V x = back(fx), y = back(fy), z = back(fz);
    const auto row = [&](float r, float g, float b) { return mulAdd(V(r), x, mulAdd(V(g), y, V(b) * z)); };
    return {row(3.0803991f, -1.5373832f, -0.5430159f), row(-0.9212234f, 1.8759675f, 0.0452559f),
        row(0.0528739f, -0.2039770f, 1.1511030f), lab.a};
}

} // namespace ci
