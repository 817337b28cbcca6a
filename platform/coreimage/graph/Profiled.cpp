#include "platform/coreimage/graph/Profiled.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace ci {

namespace {

constexpr float kFull = 65535;

/// The codes of one pixel as if they had 16 bits.
template <class T>
float codeOf(T stored)
{
    return float(stored) * (kFull / float(std::numeric_limits<T>::max()));
}

template <class T, int red, CIAlpha A>
void decodeRow(const CIProfiledSpace* space, const std::byte* bytes, int count, const MutableRow& row)
{
    const T* p = reinterpret_cast<const T*>(bytes);
    const float* const light = space->profile().light.data();
    constexpr int blue = 2 - red;
    constexpr std::size_t step = std::numeric_limits<T>::max() == 255 ? 257 : 1;
    for (int i = 0; i < count; ++i, p += 4) {
        if constexpr (A == CIAlpha::Premultiplied) { // the curve applies to the color itself
            const float alpha = p[3] ? 1 / float(p[3]) : 0;
            const auto colorOf = [&](T c) {
                return light[std::size_t(std::min(float(c) * alpha, 1.0f) * kFull + 0.5f)];
            };
            row.r[i] = colorOf(p[red]);
            row.g[i] = colorOf(p[1]);
            row.b[i] = colorOf(p[blue]);
        } else {
            row.r[i] = light[p[red] * step];
            row.g[i] = light[p[1] * step];
            row.b[i] = light[p[blue] * step];
        }
        row.a[i] = A == CIAlpha::Opaque ? 1 : codeOf(p[3]) / kFull;
    }
    const auto m = space->profile().toLinearSRGB;
    for (int i = 0; i < count; ++i) {
        const float r = row.r[i], g = row.g[i], b = row.b[i], a = row.a[i];
        row.r[i] = (m[0] * r + m[1] * g + m[2] * b) * a;
        row.g[i] = (m[3] * r + m[4] * g + m[5] * b) * a;
        row.b[i] = (m[6] * r + m[7] * g + m[8] * b) * a;
    }
}

template <class T, int red, CIAlpha A>
void encodeRow(const CIProfiledSpace* space, const Row& row, int count, std::byte* bytes)
{
    T* p = reinterpret_cast<T*>(bytes);
    const auto m = space->fromLinearSRGB();
    constexpr int blue = 2 - red;
    constexpr auto full = float(std::numeric_limits<T>::max());
    for (int i = 0; i < count; ++i, p += 4) {
        const float a = A == CIAlpha::Opaque ? 1 : std::clamp(row.a[i], 0.0f, 1.0f);
        const float share = row.a[i] > 0 ? 1 / row.a[i] : 0;
        const float r = row.r[i] * share, g = row.g[i] * share, b = row.b[i] * share;
        const float rounding = 2e-7f * (std::abs(r) + std::abs(g) + std::abs(b)); // which is no light of a third color
        const auto stored = [&](std::size_t line) {
            const float light = m[line] * r + m[line + 1] * g + m[line + 2] * b;
            const float code = space->codeOf(light > rounding ? light : 0) * (full / kFull);
            return T((A == CIAlpha::Premultiplied ? code * a : code) + 0.5f);
        };
        p[red] = stored(0);
        p[1] = stored(3);
        p[blue] = stored(6);
        p[3] = T(a * full + 0.5f);
    }
}

template <class F>
auto withStorage(CIFormat format, CIAlpha alpha, F f)
{
    const auto withAlpha = [&]<class T, int red>() {
        return alpha == CIAlpha::Opaque       ? f.template operator()<T, red, CIAlpha::Opaque>()
            : alpha == CIAlpha::Premultiplied ? f.template operator()<T, red, CIAlpha::Premultiplied>()
                                              : f.template operator()<T, red, CIAlpha::Straight>();
    };
    return format == CIFormat::RGBA16 ? withAlpha.template operator()<std::uint16_t, 0>()
        : format == CIFormat::BGRA8   ? withAlpha.template operator()<std::uint8_t, 2>()
                                      : withAlpha.template operator()<std::uint8_t, 0>();
}

} // namespace

void (*profiledDecoder(CIFormat format, CIAlpha alpha))(
    const CIProfiledSpace*, const std::byte*, int, const MutableRow&)
{
    return withStorage(format, alpha, []<class T, int red, CIAlpha A>() { return &decodeRow<T, red, A>; });
}

void (*profiledEncoder(CIFormat format, CIAlpha alpha))(const CIProfiledSpace*, const Row&, int, std::byte*)
{
    return withStorage(format, alpha, []<class T, int red, CIAlpha A>() { return &encodeRow<T, red, A>; });
}

} // namespace ci
