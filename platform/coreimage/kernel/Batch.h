// The two value types that kernels are written for, and the arithmetic they share.
//
// A kernel is a template over V: `float` is the reference, `Batch` a register full of neighboring pixels. It never
// branches on pixel values; `select` picks a lane's result.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <xsimd/xsimd.hpp>

namespace ci {

using Batch = xsimd::batch<float>;
using CodeBatch = xsimd::batch<std::uint8_t>; // 8-bit codes; knows only min and max

template <class V>
inline constexpr int kLanes = 1;
template <>
inline constexpr int kLanes<Batch> = int(Batch::size);
template <>
inline constexpr int kLanes<CodeBatch> = int(CodeBatch::size);

/// Calls `f<V>()` with one of the two: the only place that chooses.
template <class F>
auto withLanes(bool floats, const F& f)
{
    return floats ? f.template operator()<float>() : f.template operator()<Batch>();
}

/// Rows are padded to this many floats, enough for every instruction set.
inline constexpr int kRowPadding = 16;
inline constexpr float kPi = 3.14159265358979f;
inline constexpr float kTwoPi = 2 * kPi;

template <class V, class T>
V loadRow(const T* p)
{
    if constexpr (std::is_same_v<V, float>)
        return *p;
    else
        return V::load_unaligned(p);
}

inline void storeRow(float* p, float v) { *p = v; }
inline void storeRow(float* p, const Batch& v) { v.store_unaligned(p); }
inline void storeRow(std::uint8_t* p, const CodeBatch& v) { v.store_unaligned(p); }

/// 0, 1, 2 … in the lanes.
template <class V>
V laneIndex()
{
    if constexpr (std::is_same_v<V, float>) {
        return 0;
    } else {
        alignas(64) float lanes[kLanes<V>];
        for (int i = 0; i < kLanes<V>; ++i)
            lanes[i] = float(i);
        return V::load_aligned(lanes);
    }
}

// The comparisons of NaN follow the processor: min and max answer their second argument.
inline float min(float a, float b) { return a < b ? a : b; }
inline float max(float a, float b) { return a > b ? a : b; }
inline Batch min(const Batch& a, const Batch& b) { return xsimd::min(a, b); }
inline Batch max(const Batch& a, const Batch& b) { return xsimd::max(a, b); }
inline CodeBatch min(const CodeBatch& a, const CodeBatch& b) { return xsimd::min(a, b); }
inline CodeBatch max(const CodeBatch& a, const CodeBatch& b) { return xsimd::max(a, b); }

inline float select(bool which, float yes, float no) { return which ? yes : no; }
inline Batch select(const Batch::batch_bool_type& which, const Batch& yes, const Batch& no)
{
    return xsimd::select(which, yes, no);
}

#define CI_UNARY(name)                                                                                                 \
    inline float name(float v) { return std::name(v); }                                                                \
    inline Batch name(const Batch& v) { return xsimd::name(v); }
CI_UNARY(abs)
CI_UNARY(floor)
CI_UNARY(ceil)
CI_UNARY(sqrt)
CI_UNARY(sin)
CI_UNARY(cos)
CI_UNARY(tan)
CI_UNARY(asin)
CI_UNARY(acos)
CI_UNARY(exp)
CI_UNARY(exp2)
CI_UNARY(log)
CI_UNARY(log2)
#undef CI_UNARY

inline float round(float v) { return std::nearbyint(v); } // halves to even, as the vector units do
inline Batch round(const Batch& v) { return xsimd::nearbyint(v); }
inline float atan2(float y, float x) { return std::atan2(y, x); }
inline Batch atan2(const Batch& y, const Batch& x) { return xsimd::atan2(y, x); }
inline float pow(float x, float y) { return std::pow(x, y); }
inline Batch pow(const Batch& x, const Batch& y) { return xsimd::pow(x, y); }

/// a b + c, in one instruction where there is one.
inline float mulAdd(float a, float b, float c) { return a * b + c; }
inline Batch mulAdd(const Batch& a, const Batch& b, const Batch& c) { return xsimd::fma(a, b, c); }

/// Mixed arguments: numbers beside vectors.
template <class V>
concept Lanes = std::is_same_v<V, Batch>;
// A table is read in rows.
// clang-format off
template <Lanes V> V min(const V& a, float b) { return min(a, V(b)); }
template <Lanes V> V min(float a, const V& b) { return min(V(a), b); }
template <Lanes V> V max(const V& a, float b) { return max(a, V(b)); }
template <Lanes V> V max(float a, const V& b) { return max(V(a), b); }
template <Lanes V> V pow(const V& a, float b) { return pow(a, V(b)); }
template <Lanes V> V atan2(float y, const V& x) { return atan2(V(y), x); }
// clang-format on
inline Batch select(const Batch::batch_bool_type& which, const Batch& yes, float no)
{
    return select(which, yes, Batch(no));
}
inline Batch select(const Batch::batch_bool_type& which, float yes, const Batch& no)
{
    return select(which, Batch(yes), no);
}
inline Batch select(const Batch::batch_bool_type& which, float yes, float no)
{
    return select(which, Batch(yes), Batch(no));
}

template <class V, class A, class B>
V clamp(const V& v, const A& low, const B& high)
{
    return min(max(v, V(low)), V(high));
}
template <class V>
V saturate(const V& v)
{
    return clamp(v, 0.0f, 1.0f);
}
/// a where t is 0, b where it is 1.
template <class V>
V mix(const V& a, const V& b, const V& t)
{
    return mulAdd(t, b - a, a);
}
template <class V>
V fract(const V& v)
{
    return v - floor(v);
}
/// 0 below `low`, 1 above `high`, a smooth step between.
template <class V>
V smoothstep(const V& low, const V& high, const V& v)
{
    const V t = saturate(V((v - low) / (high - low)));
    return t * t * (3.0f - 2.0f * t);
}
template <class V>
V hypot(const V& x, const V& y)
{
    return sqrt(mulAdd(x, x, y * y));
}
/// The remainder of v / m, never negative for positive m.
template <class V>
V wrap(const V& v, const V& m)
{
    return v - m * floor(v / m);
}

/// Runs through a polynomial by Horner's rule, highest power first.
template <class V, class... Rest>
V polynomial(const V& x, float first, Rest... rest)
{
    V sum(first);
    ((sum = mulAdd(sum, x, V(rest))), ...);
    return sum;
}

} // namespace ci
