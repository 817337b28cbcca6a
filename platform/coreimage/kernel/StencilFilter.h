// Filters that read the few pixels around the one they make.
//
// template <class V> struct Example {
//     explicit Example(const Inputs<V>& in);
//     static constexpr int reach = 1;                  // px read to each side
//     template <class Near>
//     Pixel<V> operator()(const Near& near) const;     // near(dx, dy) is the neighbor dx to the right, dy up
// };
#pragma once

#include "platform/coreimage/graph/Planes.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

#include <array>

namespace ci {

/// Where neighbors at whole pixels lie among the cells of a render.
class NeighborOffsets {
public:
    static constexpr int kFarthest = 4; // px
    explicit NeighborOffsets(const Grid& grid)
    {
        for (int d = -kFarthest; d <= kFarthest; ++d) {
            const double cells = d * std::min(grid.scale, 256.0), whole = std::floor(cells);
            m_cell[index(d)] = int(whole);
            m_part[index(d)] = float(cells - whole);
            m_exact = m_exact && cells == whole;
        }
    }
    int cell(int d) const { return m_cell[index(d)]; }
    float part(int d) const { return m_part[index(d)]; }
    /// True when every neighbor has a cell of its own.
    bool isExact() const { return m_exact; }
    /// Cells read to a side for neighbors `reach` pixels away.
    static int margin(int reach, const Grid& grid) { return int(std::ceil(reach * std::min(grid.scale, 256.0))); }

private:
    static std::size_t index(int d) { return std::size_t(d + kFarthest); }
    std::array<int, 2 * kFarthest + 1> m_cell{};
    std::array<float, 2 * kFarthest + 1> m_part{};
    bool m_exact = true;
};

/// The pixels around a batch of neighboring cells. Between cells they are mixed linearly.
template <class V, bool exact>
class Neighbors {
public:
    Neighbors(const Planes& in, const NeighborOffsets& offsets, int x, int y)
        : m_offsets(offsets)
        , m_stride(std::ptrdiff_t(in.stride))
        , m_at(in.row(y, x))
    {
    }
    Pixel<V> operator()(int dx, int dy) const
    {
        return {read(m_at.r, dx, dy), read(m_at.g, dx, dy), read(m_at.b, dx, dy), read(m_at.a, dx, dy)};
    }

private:
    V read(const float* plane, int dx, int dy) const
    {
        const float* const p = plane + m_offsets.cell(dy) * m_stride + m_offsets.cell(dx);
        if constexpr (exact)
            return loadRow<V>(p);
        const std::ptrdiff_t up = m_offsets.part(dy) > 0 ? m_stride : 0, right = m_offsets.part(dx) > 0 ? 1 : 0;
        const V across(m_offsets.part(dx)), along(m_offsets.part(dy));
        return mix(mix(loadRow<V>(p), loadRow<V>(p + right), across),
            mix(loadRow<V>(p + up), loadRow<V>(p + up + right), across), along);
    }
    const NeighborOffsets& m_offsets;
    std::ptrdiff_t m_stride;
    Row m_at;
};

namespace detail {

template <template <class> class K>
class StencilPass : public BlockPass<StencilPass<K>> {
public:
    explicit StencilPass(const Values& values)
        : m_values(values)
    {
    }
    PassKernel::Margin margin(const Grid& grid) const override
    {
        const int cells = NeighborOffsets::margin(K<float>::reach, grid);
        return {cells, cells};
    }
    template <class V>
    void work(const Grid& grid, const Planes& in, const Planes& out, Scratch&) const
    {
        const NeighborOffsets offsets(grid);
        offsets.isExact() ? rows<V, true>(grid, in, out, offsets) : rows<V, false>(grid, in, out, offsets);
    }

private:
    template <class V, bool exact>
    void rows(const Grid& grid, const Planes& in, const Planes& out, const NeighborOffsets& offsets) const
    {
        static_assert(K<V>::reach <= NeighborOffsets::kFarthest);
        const K<V> kernel(Inputs<V>(m_values, grid.step()));
        for (int y = out.area.y0; y < out.area.y1; ++y) {
            const MutableRow to = out.row(y);
            for (int i = 0; i < out.area.width(); i += kLanes<V>)
                storePixel(to, i, bounded(kernel(Neighbors<V, exact>(in, offsets, out.area.x0 + i, y))));
        }
    }
    Values m_values;
};

} // namespace detail

/// The image that a stencil kernel makes of another.
template <template <class> class K>
CIImage stencil(const Values& values, const CIImage& source, const CIRect& extent, bool keepsOpaque = false)
{
    return CIImage(passNode(source.node(), std::make_shared<detail::StencilPass<K>>(values), extent, keepsOpaque));
}

/// A stencil that sees the edge pixels repeated beyond the image's edge, and keeps its extent.
template <template <class> class K>
CIImage stencilWithin(const Values& values, const CIImage& source, bool keepsOpaque = false)
{
    return stencil<K>(values, source.clampedToExtent(), CIRect::infinite(), keepsOpaque).cropped(source.extent());
}

} // namespace ci
