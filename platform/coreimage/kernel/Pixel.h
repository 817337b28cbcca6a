// Pixels, points and colors as kernels see them.
#pragma once

#include "platform/coreimage/kernel/Batch.h"

namespace ci {

/// Linear-light sRGB. Premultiplied unless a kernel says otherwise; may leave 0 to 1.
template <class V>
struct Pixel {
    V r, g, b, a;
};

/// A position or offset in picture pixels, y up.
template <class V>
struct Point {
    V x, y;
};

template <class V>
Pixel<V> operator+(const Pixel<V>& p, const Pixel<V>& q)
{
    return {p.r + q.r, p.g + q.g, p.b + q.b, p.a + q.a};
}
template <class V>
Pixel<V> operator-(const Pixel<V>& p, const Pixel<V>& q)
{
    return {p.r - q.r, p.g - q.g, p.b - q.b, p.a - q.a};
}
template <class V>
Pixel<V> operator*(const Pixel<V>& p, const V& s)
{
    return {p.r * s, p.g * s, p.b * s, p.a * s};
}
template <class V>
Pixel<V> operator*(const V& s, const Pixel<V>& p)
{
    return p * s;
}
template <class V>
Point<V> operator+(const Point<V>& p, const Point<V>& q)
{
    return {p.x + q.x, p.y + q.y};
}
template <class V>
Point<V> operator-(const Point<V>& p, const Point<V>& q)
{
    return {p.x - q.x, p.y - q.y};
}
template <class V>
Point<V> operator*(const Point<V>& p, const V& s)
{
    return {p.x * s, p.y * s};
}
template <class V>
Point<V> operator*(const V& s, const Point<V>& p)
{
    return p * s;
}

template <class V>
V dot(const Point<V>& p, const Point<V>& q)
{
    return mulAdd(p.x, q.x, p.y * q.y);
}
template <class V>
V length(const Point<V>& p)
{
    return sqrt(dot(p, p));
}

/// Turned counterclockwise by an angle in radians.
template <class V>
Point<V> rotated(const Point<V>& p, const V& angle)
{
    const V c = cos(angle), s = sin(angle);
    return {c * p.x - s * p.y, s * p.x + c * p.y};
}

template <class V>
Pixel<V> mix(const Pixel<V>& p, const Pixel<V>& q, const V& t)
{
    return {mix(p.r, q.r, t), mix(p.g, q.g, t), mix(p.b, q.b, t), mix(p.a, q.a, t)};
}

/// `yes` where `which`, else `no`.
template <class Mask, class V>
Pixel<V> select(const Mask& which, const Pixel<V>& yes, const Pixel<V>& no)
{
    return {
        select(which, yes.r, no.r), select(which, yes.g, no.g), select(which, yes.b, no.b), select(which, yes.a, no.a)};
}
template <class Mask, class V>
Point<V> select(const Mask& which, const Point<V>& yes, const Point<V>& no)
{
    return {select(which, yes.x, no.x), select(which, yes.y, no.y)};
}

// Luminance weights of ITU-R BT.709, which sRGB shares.
inline constexpr float kLumaRed = 0.2126f, kLumaGreen = 0.7152f, kLumaBlue = 0.0722f;

template <class V>
V luma(const Pixel<V>& p)
{
    return mulAdd(V(kLumaRed), p.r, mulAdd(V(kLumaGreen), p.g, V(kLumaBlue) * p.b));
}

/// Divides color by alpha; a transparent pixel becomes transparent black.
template <class V>
Pixel<V> unpremultiplied(const Pixel<V>& p)
{
    const V scale = select(p.a > V(1e-6f), V(1.0f) / max(p.a, V(1e-6f)), V(0.0f));
    return {p.r * scale, p.g * scale, p.b * scale, p.a};
}
template <class V>
Pixel<V> premultiplied(const Pixel<V>& p)
{
    return {p.r * p.a, p.g * p.a, p.b * p.a, p.a};
}

/// One component from its sRGB code (0 to 1) to linear light, IEC 61966-2-1. Odd-symmetric below 0, any value above 1.
template <class V>
V linearFromSRGB(const V& coded)
{
    const V v = abs(coded);
    const V curve = pow(max(V((v + 0.055f) * (1 / 1.055f)), V(1e-6f)), V(2.4f));
    const V linear = select(v <= V(0.04045f), v * (1 / 12.92f), curve);
    return select(coded < V(0.0f), -linear, linear);
}
/// One component from linear light to its sRGB code.
template <class V>
V srgbFromLinear(const V& linear)
{
    const V v = abs(linear);
    const V curve = mulAdd(V(1.055f), pow(max(v, V(1e-6f)), V(1 / 2.4f)), V(-0.055f));
    const V coded = select(v <= V(0.0031308f), v * 12.92f, curve);
    return select(linear < V(0.0f), -coded, coded);
}

} // namespace ci
