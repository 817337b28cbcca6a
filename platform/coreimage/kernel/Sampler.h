// Reading images at places between pixels.
#pragma once

#include "platform/coreimage/graph/Interleaved.h"
#include "platform/coreimage/kernel/Pixel.h"

namespace ci {

/// One area of an image as interleaved pixels, with a transparent rim around the image's extent.
class SampledArea {
public:
    /// The cells `wanted` of `node`, or as many of them as lie in its extent grown by one. An image that lies in
    /// memory on the render's grid is used where it is.
    SampledArea(const Node& node, const Render& render, const GridRect& wanted, Scratch& scratch);

    /// The pixel at a picture position, linear between the four nearest centers. Beyond the area its nearest pixel,
    /// which is transparent beyond the extent.
    template <class V>
    Pixel<V> linear(const Point<V>& at) const;
    /// The pixel whose cell the position lies in.
    template <class V>
    Pixel<V> nearest(const Point<V>& at) const;

private:
    void use(const InterleavedView&, const Grid&);
    void storeStarts(std::int32_t* starts, float column, float line) const
    {
        *starts = int(line) * m_stride + int(column) * 4;
    }
    void storeStarts(std::int32_t* starts, const Batch& column, const Batch& line) const
    {
        const auto start = xsimd::to_int(line) * m_stride + (xsimd::to_int(column) << 2);
        start.store_aligned(starts);
    }

    std::shared_ptr<const GridCopy> m_copy;
    float m_scale, m_left, m_bottom; // area coordinates = picture position * scale - side
    float m_lastX, m_lastY; // of the last pixel; one more column and row repeat it
    int m_stride; // floats from one row to the next
    const float* m_pixels; // row 0 is the lowest
};

/// What general kernels read images with. Positions are picture pixels.
template <class V>
class Sampler {
public:
    explicit Sampler(const SampledArea& area)
        : m_area(&area)
    {
    }
    Pixel<V> operator()(const Point<V>& at) const { return m_area->linear(at); }
    Pixel<V> nearest(const Point<V>& at) const { return m_area->nearest(at); }

private:
    const SampledArea* m_area;
};

/// Two neighboring pixels.
using TwoQuads = float __attribute__((vector_size(32)));

inline TwoQuads loadTwoQuads(const float* p)
{
    TwoQuads q;
    __builtin_memcpy(&q, p, sizeof q);
    return q;
}

// a b + c, in one instruction where there is one.
inline Quad mulAdd(float a, const Quad& b, const Quad& c)
{
#ifdef __FMA__
    return _mm_fmadd_ps(_mm_set1_ps(a), b, c);
#else
    return a * b + c;
#endif
}
inline TwoQuads mulAdd(float a, const TwoQuads& b, const TwoQuads& c)
{
#ifdef __FMA__
    return _mm256_fmadd_ps(_mm256_set1_ps(a), b, c);
#else
    return a * b + c;
#endif
}

/// Pixels of the lanes, from interleaved to planes.
template <class V>
[[gnu::always_inline]] inline Pixel<V> gathered(const Quad* quads)
{
    if constexpr (std::is_same_v<V, float>) {
        return {quads[0][0], quads[0][1], quads[0][2], quads[0][3]};
    } else {
        alignas(64) float planes[4][kLanes<V>];
        for (int i = 0; i < kLanes<V>; i += 4) {
            const Quad a = __builtin_shufflevector(quads[i], quads[i + 1], 0, 4, 1, 5);
            const Quad b = __builtin_shufflevector(quads[i + 2], quads[i + 3], 0, 4, 1, 5);
            const Quad c = __builtin_shufflevector(quads[i], quads[i + 1], 2, 6, 3, 7);
            const Quad d = __builtin_shufflevector(quads[i + 2], quads[i + 3], 2, 6, 3, 7);
            const Quad r = __builtin_shufflevector(a, b, 0, 1, 4, 5), g = __builtin_shufflevector(a, b, 2, 3, 6, 7);
            const Quad bl = __builtin_shufflevector(c, d, 0, 1, 4, 5), al = __builtin_shufflevector(c, d, 2, 3, 6, 7);
            __builtin_memcpy(planes[0] + i, &r, 16);
            __builtin_memcpy(planes[1] + i, &g, 16);
            __builtin_memcpy(planes[2] + i, &bl, 16);
            __builtin_memcpy(planes[3] + i, &al, 16);
        }
        return {V::load_aligned(planes[0]), V::load_aligned(planes[1]), V::load_aligned(planes[2]),
            V::load_aligned(planes[3])};
    }
}

template <class V>
Pixel<V> SampledArea::linear(const Point<V>& at) const
{
    constexpr int lanes = kLanes<V>;
    // NaN takes the last bound of each clamp and so stays inside.
    const V x = clamp(V(at.x * m_scale - m_left), 0.0f, m_lastX),
            y = clamp(V(at.y * m_scale - m_bottom), 0.0f, m_lastY);
    const V column = floor(x), line = floor(y);
    alignas(64) float fx[lanes], fy[lanes];
    alignas(64) std::int32_t starts[lanes];
    storeRow(fx, x - column);
    storeRow(fy, y - line);
    storeStarts(starts, column, line);
    Quad quads[lanes];
    for (int i = 0; i < lanes; ++i) {
        const float* p = m_pixels + starts[i];
        // Both neighbors of a row at once: they lie side by side.
        const TwoQuads lower = loadTwoQuads(p), upper = loadTwoQuads(p + m_stride);
        const TwoQuads between = mulAdd(fy[i], upper - lower, lower);
        const Quad left = __builtin_shufflevector(between, between, 0, 1, 2, 3);
        const Quad right = __builtin_shufflevector(between, between, 4, 5, 6, 7);
        quads[i] = mulAdd(fx[i], right - left, left);
    }
    return gathered<V>(quads);
}

template <class V>
Pixel<V> SampledArea::nearest(const Point<V>& at) const
{
    constexpr int lanes = kLanes<V>;
    alignas(64) float columns[lanes], lines[lanes];
    storeRow(columns, floor(clamp(V(at.x * m_scale - m_left + 0.5f), 0.0f, m_lastX + 0.5f)));
    storeRow(lines, floor(clamp(V(at.y * m_scale - m_bottom + 0.5f), 0.0f, m_lastY + 0.5f)));
    Quad quads[lanes];
    for (int i = 0; i < lanes; ++i)
        quads[i] = loadQuad(m_pixels + int(lines[i]) * m_stride + int(columns[i]) * 4);
    return gathered<V>(quads);
}

} // namespace ci
