#include "platform/coreimage/graph/Transfer.h"

#include "platform/coreimage/graph/Profiled.h"
#include "platform/coreimage/kernel/DisplayValues.h"

#include <cstring>
#include <type_traits>

namespace ci {

namespace {

using Words = xsimd::batch<std::int32_t>;
static_assert(Words::size == Batch::size);

// The float twins of loading and storing 32-bit pixels.
template <class V>
using WordsOf = std::conditional_t<std::is_same_v<V, float>, std::int32_t, Words>;

inline float toFloat(std::int32_t w) { return float(w); }
inline Batch toFloat(const Words& w) { return xsimd::to_float(w); }
inline std::int32_t toWords(float v) { return std::int32_t(v); }
inline Words toWords(const Batch& v) { return xsimd::to_int(v); }

template <class V>
WordsOf<V> loadWords(const std::byte* p)
{
    if constexpr (std::is_same_v<V, float>) {
        std::int32_t w;
        std::memcpy(&w, p, 4);
        return w;
    } else {
        return Words::load_unaligned(reinterpret_cast<const std::int32_t*>(p));
    }
}

template <class V>
void storeWords(std::byte* p, const WordsOf<V>& w)
{
    if constexpr (std::is_same_v<V, float>)
        std::memcpy(p, &w, 4);
    else
        w.store_unaligned(reinterpret_cast<std::int32_t*>(p));
}

template <class V>
Pixel<V> loadRow(const Row& row, int i)
{
    return {ci::loadRow<V>(row.r + i), ci::loadRow<V>(row.g + i), ci::loadRow<V>(row.b + i), ci::loadRow<V>(row.a + i)};
}
template <class V>
void storeRow(const MutableRow& row, int i, const Pixel<V>& p)
{
    ci::storeRow(row.r + i, p.r);
    ci::storeRow(row.g + i, p.g);
    ci::storeRow(row.b + i, p.b);
    ci::storeRow(row.a + i, p.a);
}

// --- reading

// What follows is inlined by force: pixels of vectors would go from function to function through memory.
template <class V, CIFormat F>
[[gnu::always_inline]] inline Pixel<V> load8(const std::byte* p)
{
    const auto w = loadWords<V>(p);
    const V low = toFloat(w & 255) * (1 / 255.0f), high = toFloat((w >> 16) & 255) * (1 / 255.0f);
    const V green = toFloat((w >> 8) & 255) * (1 / 255.0f), a = toFloat((w >> 24) & 255) * (1 / 255.0f);
    return F == CIFormat::RGBA8 ? Pixel<V>{low, green, high, a} : Pixel<V>{high, green, low, a};
}

template <class V, class T, int stride>
Pixel<V> loadSpread(const T* p, float scale)
{
    if constexpr (std::is_same_v<V, float>) {
        return {float(p[0]) * scale, float(p[1]) * scale, float(p[2]) * scale, float(p[3]) * scale};
    } else {
        alignas(64) float lanes[4][kLanes<V>];
        for (int i = 0; i < kLanes<V>; ++i)
            for (int c = 0; c < 4; ++c)
                lanes[c][i] = float(p[i * stride + c]);
        const V s(scale);
        return {V::load_aligned(lanes[0]) * s, V::load_aligned(lanes[1]) * s, V::load_aligned(lanes[2]) * s,
            V::load_aligned(lanes[3]) * s};
    }
}

template <class V, CIFormat F>
[[gnu::always_inline]] inline Pixel<V> loadCoded(const std::byte* p)
{
    if constexpr (F == CIFormat::RGBA16)
        return loadSpread<V, std::uint16_t, 4>(reinterpret_cast<const std::uint16_t*>(p), 1 / 65535.0f);
    else if constexpr (F == CIFormat::RGBAf)
        return loadSpread<V, float, 4>(reinterpret_cast<const float*>(p), 1.0f);
    else
        return load8<V, F>(p);
}

// Keeps to the range of half precision: what hostile files call infinite stays a number, also when squared.
template <class V>
V finite(const V& v)
{
    return select(v == v, clamp(v, -65504.0f, 65504.0f), V(0.0f));
}

template <class V, CIFormat F, CIAlpha A, CIColorSpace S>
[[gnu::always_inline]] inline Pixel<V> decodePixel(const std::byte* bytes)
{
    Pixel<V> p = loadCoded<V, F>(bytes);
    if constexpr (F == CIFormat::RGBAf)
        p = {finite(p.r), finite(p.g), finite(p.b), saturate(finite(p.a))};
    if constexpr (A == CIAlpha::Premultiplied && S == CIColorSpace::SRGB) {
        if (!any(p.a > V(0.0f))) // as many pixels of overlays are
            return {V(0.0f), V(0.0f), V(0.0f), V(0.0f)};
        if (any(p.a < V(1.0f)))
            p = unpremultiplied(p); // the curve applies to the color itself
    }
    if constexpr (S == CIColorSpace::SRGB) {
        if constexpr (F == CIFormat::RGBA8 || F == CIFormat::BGRA8)
            p = {decodeCode(p.r), decodeCode(p.g), decodeCode(p.b), p.a};
        else
            p = {linearFromSRGB(p.r), linearFromSRGB(p.g), linearFromSRGB(p.b), p.a};
    }
    if constexpr (A == CIAlpha::Opaque)
        p.a = V(1.0f);
    else if constexpr (A == CIAlpha::Straight || S == CIColorSpace::SRGB)
        p = premultiplied(p);
    return p;
}

template <class V, CIFormat F, CIAlpha A, CIColorSpace S>
void decodeRow(const CIProfiledSpace*, const std::byte* pixels, int count, const MutableRow& row)
{
    constexpr int lanes = kLanes<V>;
    const std::size_t size = bytesPerPixel(F);
    int i = 0;
    for (; i + lanes <= count; i += lanes)
        storeRow(row, i, decodePixel<V, F, A, S>(pixels + std::size_t(i) * size));
    if (i < count) { // the last few pixels, which may be the last of the memory
        alignas(64) std::byte rest[16 * lanes] = {};
        std::memcpy(rest, pixels + std::size_t(i) * size, std::size_t(count - i) * size);
        storeRow(row, i, decodePixel<V, F, A, S>(rest));
    }
}

// --- writing

// 1 / sqrt to a part in ten thousand: square roots proper would take half the time of all encoding.
inline Batch roughInverseRoot(const Batch& v)
{
#ifdef __AVX512F__
    return _mm512_rsqrt14_ps(v);
#else
    const Batch r = xsimd::rsqrt(v); // twelve bits, and one step of Newton's
    return r * mulAdd(Batch(-0.5f) * v * r, r, Batch(1.5f));
#endif
}

inline float encodeForByte(float v) { return encodeLinear(v); }
[[gnu::always_inline]] inline Batch encodeForByte(const Batch& v)
{
    const Batch root = v * roughInverseRoot(v), fourth = root * roughInverseRoot(root); // no number for 0
    return select(v <= Batch(0.0031308f), v * 12.92f, encodeFourthRoot(fourth));
}

template <class V, CIFormat F>
[[gnu::always_inline]] inline void storeCoded(std::byte* bytes, const Pixel<V>& p)
{
    if constexpr (F == CIFormat::RGBA8 || F == CIFormat::BGRA8) {
        const auto code = [](const V& v) { return toWords(mulAdd(v, V(255.0f), V(0.5f))); };
        const auto low = code(F == CIFormat::RGBA8 ? p.r : p.b), high = code(F == CIFormat::RGBA8 ? p.b : p.r);
        storeWords<V>(bytes, low | (code(p.g) << 8) | (high << 16) | (code(p.a) << 24));
    } else {
        constexpr int lanes = kLanes<V>;
        alignas(64) float planes[4][lanes];
        ci::storeRow(planes[0], p.r);
        ci::storeRow(planes[1], p.g);
        ci::storeRow(planes[2], p.b);
        ci::storeRow(planes[3], p.a);
        for (int i = 0; i < lanes; ++i)
            for (int c = 0; c < 4; ++c)
                if constexpr (F == CIFormat::RGBA16)
                    reinterpret_cast<std::uint16_t*>(bytes)[4 * i + c] = std::uint16_t(planes[c][i] * 65535 + 0.5f);
                else
                    reinterpret_cast<float*>(bytes)[4 * i + c] = planes[c][i];
    }
}

template <class V, CIFormat F, CIAlpha A, CIColorSpace S, bool opaque>
[[gnu::always_inline]] inline void encodePixel(std::byte* bytes, Pixel<V> p)
{
    constexpr bool clipped = F != CIFormat::RGBAf, coded = S == CIColorSpace::SRGB;
    if constexpr (opaque)
        p.a = V(1.0f);
    else if constexpr (clipped)
        p.a = saturate(p.a);
    if constexpr (!opaque && (coded || clipped || A == CIAlpha::Straight))
        p = unpremultiplied(p);
    if constexpr (clipped)
        p = {saturate(p.r), saturate(p.g), saturate(p.b), p.a};
    if constexpr (coded) {
        if constexpr (F == CIFormat::RGBA8 || F == CIFormat::BGRA8)
            p = {encodeForByte(p.r), encodeForByte(p.g), encodeForByte(p.b), p.a};
        else
            p = {srgbFromLinear(p.r), srgbFromLinear(p.g), srgbFromLinear(p.b), p.a};
    }
    if constexpr (!opaque && A == CIAlpha::Premultiplied && (coded || clipped))
        p = premultiplied(p);
    storeCoded<V, F>(bytes, p);
}

template <class V, CIFormat F, CIAlpha A, CIColorSpace S, bool opaque>
void encodeRow(const CIProfiledSpace*, const Row& row, int count, std::byte* pixels)
{
    constexpr int lanes = kLanes<V>;
    const std::size_t size = bytesPerPixel(F);
    int i = 0;
    for (; i + lanes <= count; i += lanes)
        if (opaque || !any(ci::loadRow<V>(row.a + i) != V(1.0f))) // mostly so, and dividing takes long
            encodePixel<V, F, A, S, true>(pixels + std::size_t(i) * size, loadRow<V>(row, i));
        else
            encodePixel<V, F, A, S, false>(pixels + std::size_t(i) * size, loadRow<V>(row, i));
    if (i < count) {
        alignas(64) std::byte rest[16 * lanes];
        encodePixel<V, F, A, S, opaque>(rest, loadRow<V>(row, i));
        std::memcpy(pixels + std::size_t(i) * size, rest, std::size_t(count - i) * size);
    }
}

// --- choosing one of them

template <auto value>
using Constant = std::integral_constant<decltype(value), value>;

template <class F>
auto withFormat(CIFormat format, F f)
{
    switch (format) {
    case CIFormat::BGRA8:
        return f(Constant<CIFormat::BGRA8>());
    case CIFormat::RGBA16:
        return f(Constant<CIFormat::RGBA16>());
    case CIFormat::RGBAf:
        return f(Constant<CIFormat::RGBAf>());
    default:
        return f(Constant<CIFormat::RGBA8>());
    }
}
template <class F>
auto withAlpha(CIAlpha alpha, F f)
{
    switch (alpha) {
    case CIAlpha::Opaque:
        return f(Constant<CIAlpha::Opaque>());
    case CIAlpha::Premultiplied:
        return f(Constant<CIAlpha::Premultiplied>());
    default:
        return f(Constant<CIAlpha::Straight>());
    }
}
template <class F>
auto withSpace(CIColorSpace space, F f)
{
    return space == CIColorSpace::SRGB ? f(Constant<CIColorSpace::SRGB>()) : f(Constant<CIColorSpace::LinearSRGB>());
}
/// Calls `f<format, alpha, space>()`.
template <class F>
auto withCoding(CIFormat format, CIAlpha alpha, CIColorSpace space, F f)
{
    return withFormat(format, [&](auto a) {
        return withAlpha(alpha, [&](auto b) {
            return withSpace(space, [&](auto c) {
                return f.template operator()<decltype(a)::value, decltype(b)::value, decltype(c)::value>();
            });
        });
    });
}

} // namespace

RowDecoder::RowDecoder(CIFormat format, CIAlpha alpha, CIColorSpace space, bool floats)
    : m_space(profiledSpace(space))
{
    if (m_space && format != CIFormat::RGBAf) {
        m_decode = profiledDecoder(format, alpha);
        return;
    }
    m_decode = withCoding(format, alpha, space, [&]<CIFormat F, CIAlpha A, CIColorSpace S>() {
        return withLanes(floats, []<class V>() { return &decodeRow<V, F, A, S>; });
    });
}

RowEncoder::RowEncoder(CIFormat format, CIAlpha alpha, CIColorSpace space, bool opaque, bool floats)
    : m_space(profiledSpace(space))
{
    if (m_space && format != CIFormat::RGBAf) {
        m_encode = profiledEncoder(format, alpha);
        return;
    }
    m_encode = withCoding(format, alpha, space, [&]<CIFormat F, CIAlpha A, CIColorSpace S>() {
        return withLanes(floats, [opaque]<class V>() {
            return opaque || A == CIAlpha::Opaque ? &encodeRow<V, F, A, S, true> : &encodeRow<V, F, A, S, false>;
        });
    });
}

} // namespace ci
