// Between light and what displays are given, quicker than by powers.
#pragma once

#include "platform/coreimage/kernel/Pixel.h"

namespace ci {

// Chebyshev interpolations of the two curves of IEC 61966-2-1 between 0 and 1; the first takes the code, the second
// the fourth root of the linear value, on which the curve is nearly straight.

/// Within 3.1e-6 of the curve.
template <class V>
V decodeCode(const V& c)
{
    const V curve = polynomial(c, 0.0506566446f, -0.235176109f, 0.481966718f, -0.616709141f, 0.785992942f, 0.498081157f,
        0.034307856f, 0.000880719448f);
    return select(c <= V(0.04045f), c * (1 / 12.92f), curve);
}

/// The curved part of the code, from the fourth root.
template <class V>
V encodeFourthRoot(const V& root)
{
    return polynomial(root, -0.0627589915f, 0.272752244f, -0.557555649f, 1.244214f, 0.164974f, -0.0616297056f);
}

/// Within 1.2e-5 of the curve.
template <class V>
V encodeLinear(const V& v)
{
    return select(v <= V(0.0031308f), v * 12.92f, encodeFourthRoot(V(sqrt(sqrt(v)))));
}

inline bool any(bool b) { return b; }
inline bool any(const Batch::batch_bool_type& b) { return xsimd::any(b); }

/// The sRGB code of a linear value of any size and sign; see `encodeLinear`.
template <class V>
V displayFromLinear(const V& linear)
{
    const V v = abs(linear);
    V coded = encodeLinear(min(v, V(1.0f)));
    if (any(v > V(1.0f))) // rare, and worth asking: powers take most of the time
        coded = select(v > V(1.0f), srgbFromLinear(v), coded);
    return select(linear < V(0.0f), -coded, coded);
}
/// The linear value of an sRGB code of any size and sign; see `decodeCode`.
template <class V>
V linearFromDisplay(const V& coded)
{
    const V v = abs(coded);
    V linear = decodeCode(min(v, V(1.0f)));
    if (any(v > V(1.0f)))
        linear = select(v > V(1.0f), linearFromSRGB(v), linear);
    return select(coded < V(0.0f), -linear, linear);
}

template <class V>
Pixel<V> displayFromLinear(const Pixel<V>& p)
{
    return {displayFromLinear(p.r), displayFromLinear(p.g), displayFromLinear(p.b), p.a};
}
template <class V>
Pixel<V> linearFromDisplay(const Pixel<V>& p)
{
    return {linearFromDisplay(p.r), linearFromDisplay(p.g), linearFromDisplay(p.b), p.a};
}

} // namespace ci
