// Tables that kernels look values up in. A recipe works a table out once and hands it to its kernel with
// `Values::with`; all tiles read the same memory.
#pragma once

#include "platform/coreimage/kernel/Sampler.h"
#include "platform/coreimage/Values.h"

#include <array>
#include <span>

namespace ci {

inline CIData tableData(std::span<const float> numbers)
{
    const auto bytes = std::as_bytes(numbers);
    return {bytes.begin(), bytes.end()};
}

/// The floats of a data value.
inline std::span<const float> tableOf(const Values& values, std::string_view key)
{
    const CIData& data = values.value(key).toData();
    return {reinterpret_cast<const float*>(data.data()), data.size() / sizeof(float)};
}

/// table[index], index a whole number.
inline float gather(const float* table, float index) { return table[int(index)]; }
inline Batch gather(const float* table, const Batch& index) { return Batch::gather(table, xsimd::to_int(index)); }

/// A curve through values at even distances, at least two, with straight lines between.
template <class V>
class Curve {
public:
    /// `extrapolate`: beyond its ends the curve goes on straight; otherwise it stays at the last value.
    explicit Curve(std::span<const float> values, bool extrapolate = false)
        : m_values(values.data())
        , m_steps(float(values.size() - 1))
        , m_extrapolate(extrapolate)
    {
    }
    /// `at` runs from 0 at the first value to 1 at the last.
    V operator()(const V& at) const
    {
        const V place = at * m_steps;
        const V left = clamp(floor(place), 0.0f, V(m_steps - 1.0f));
        const V part = m_extrapolate ? V(place - left) : saturate(V(place - left));
        return mix(gather(m_values, left), gather(m_values + 1, left), part);
    }

private:
    const float* m_values;
    V m_steps;
    bool m_extrapolate;
};

/// A color for each color: a cube of `side` to the third pixels, red changing fastest.
template <class V>
class Cube {
public:
    Cube(std::span<const float> pixels, int side, bool extrapolate)
        : m_pixels(pixels.data())
        , m_steps(float(side - 1))
        , m_green(float(4 * side))
        , m_blue(float(4 * side * side))
        , m_extrapolate(extrapolate)
    {
    }
    /// Linear in the tetrahedron of four entries around the color, whose edges run along the axes and the gray
    /// diagonal. Alpha is not looked at.
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const auto [red, r] = split(p.r);
        const auto [green, g] = split(p.g);
        const auto [blue, b] = split(p.b);
        const V all = V(4.0f) + m_green + m_blue;
        const V most = max(max(r, g), b), least = min(min(r, g), b);
        const V middle = max(min(r, g), min(max(r, g), b));
        const V first = select(r >= max(g, b), V(4.0f), select(g >= b, m_green, m_blue));
        const V last = select(b <= min(r, g), m_blue, select(g <= r, m_green, V(4.0f)));
        const V base = mulAdd(red, V(4.0f), mulAdd(green, m_green, blue * m_blue)); // below 2^24: exact
        return along({base, first, all - last, all}, {most, middle, least});
    }

private:
    struct Place {
        V cell, part;
    };
    Place split(const V& v) const
    {
        const V place = v * m_steps;
        const V cell = clamp(floor(place), 0.0f, V(m_steps - 1.0f));
        return {cell, m_extrapolate ? V(place - cell) : saturate(V(place - cell))};
    }
    /// From the first corner to the one across, by two others: `corner` is where they lie after the first.
    Pixel<V> along(const std::array<V, 4>& corner, const std::array<V, 3>& weight) const
    {
        constexpr int lanes = kLanes<V>;
        alignas(64) float at[4][lanes], part[3][lanes];
        for (std::size_t i = 0; i < 4; ++i)
            storeRow(at[i], corner[i]);
        for (std::size_t i = 0; i < 3; ++i)
            storeRow(part[i], weight[i]);
        Quad quads[lanes];
        for (int i = 0; i < lanes; ++i) {
            const float* const base = m_pixels + int(at[0][i]);
            const Quad a = loadQuad(base), b = loadQuad(base + int(at[1][i])), c = loadQuad(base + int(at[2][i])),
                       d = loadQuad(base + int(at[3][i]));
            quads[i] = a + part[0][i] * (b - a) + part[1][i] * (c - b) + part[2][i] * (d - c);
        }
        return gathered<V>(quads);
    }

    const float* m_pixels;
    V m_steps, m_green, m_blue; // the last two: floats from one entry to the next along these axes
    bool m_extrapolate;
};

} // namespace ci
