// Patches of the Voronoi diagram of a lattice whose points may be scattered. A pixel's nearest point is one of the nine
// around its lattice cell; these are the same for all pixels of a cell. Colors are read from the image on a coarse
// grid.
#include "platform/coreimage/passes/Mosaic.h"

#include "platform/coreimage/graph/Basics.h"
#include "platform/coreimage/graph/Planes.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace ci {

namespace {

/// A patch: its middle in picture pixels, and its color.
struct Patch {
    float x, y;
    Pixel<float> color;
};

/// 0 to 1 from a place in the lattice, the same on every machine.
float scattered(int i, int j, std::uint32_t salt)
{
    std::uint32_t h = std::uint32_t(i) * 0x9E3779B1u ^ std::uint32_t(j) * 0x85EBCA77u ^ salt * 0xC2B2AE3Du;
    h = (h ^ (h >> 15)) * 0x2C1B3C6Du;
    h = (h ^ (h >> 12)) * 0x297A2D39u;
    return float((h ^ (h >> 15)) >> 8) * (1.0f / 16777216.0f);
}

/// Cells half as large as a patch, or those of the render if they are larger.
Grid coarseGrid(const Mosaic& m, const Grid& grid)
{
    Grid coarse;
    coarse.scale = std::min(grid.scale, 2 / std::min(m.across, m.along));
    return coarse;
}

/// The patches around one block.
class Patches {
public:
    Patches(const Mosaic& m, const Node& source, const Render& render, const CIRect& block, Scratch& scratch)
        : m_mosaic(m)
    {
        m_rows = {rowOf(block.bottom()) - 1, rowOf(block.top()) + 2};
        m_columns = {int(std::floor((block.left() - m.origin.x) / m.across)) - 3,
            int(std::floor((block.right() - m.origin.x) / m.across)) + 3};
        m_patches = static_cast<Patch*>(scratch.bytes(
            std::size_t(m_rows[1] - m_rows[0]) * std::size_t(m_columns[1] - m_columns[0]) * sizeof(Patch)));
        for (int j = m_rows[0]; j < m_rows[1]; ++j)
            for (int i = m_columns[0]; i < m_columns[1]; ++i) {
                Patch& p = at(i, j);
                p.x = float(left(i, j) + m.across * (0.5 + 2 * m.scatter * double(scattered(i, j, 1) - 0.5f)));
                p.y = float(m.origin.y + m.along * (j + 0.5 + 2 * m.scatter * double(scattered(i, j, 2) - 0.5f)));
            }
        readColors(source, render, scratch);
    }

    int rowOf(double y) const { return int(std::floor((y - m_mosaic.origin.y) / m_mosaic.along)); }
    int columnOf(double x, int j) const { return int(std::floor((x - left(0, j)) / m_mosaic.across)); }
    /// The left side of a cell of the lattice.
    double left(int i, int j) const { return m_mosaic.origin.x + m_mosaic.across * i + (j & 1 ? m_mosaic.oddRows : 0); }
    Patch& at(int i, int j) const
    {
        return m_patches[(j - m_rows[0]) * (m_columns[1] - m_columns[0]) + i - m_columns[0]];
    }

private:
    /// From coarse cells, linearly.
    void readColors(const Node& source, const Render& render, Scratch& scratch)
    {
        const ScratchScope scope(scratch);
        const Grid coarse = coarseGrid(m_mosaic, render.grid);
        const double scale = coarse.scale;
        const Patch &first = at(m_columns[0], m_rows[0]), &last = at(m_columns[1] - 1, m_rows[1] - 1);
        const double slack = 2 * std::max(m_mosaic.across, m_mosaic.along);
        const GridRect area = coarse
                                  .cellsTouching(CIRect::fromCorners({double(first.x) - slack, double(first.y) - slack},
                                      {double(last.x) + slack, double(last.y) + slack}))
                                  .grown(1, 1);
        const Planes pixels = Planes::allocate(area, scratch);
        pixels.fill(*source.rows(render.withGrid(coarse), area, scratch));
        for (Patch* p = m_patches; p != &last + 1; ++p) {
            const double x = double(p->x) * scale - 0.5, y = double(p->y) * scale - 0.5;
            const int column = int(std::floor(x)), line = int(std::floor(y));
            const auto fx = float(x - column), fy = float(y - line);
            const MutableRow low = pixels.row(line, column), high = pixels.row(line + 1, column);
            p->color = mix(mix(loadPixel<float>(low, 0), loadPixel<float>(low, 1), fx),
                mix(loadPixel<float>(high, 0), loadPixel<float>(high, 1), fx), fy);
        }
    }

    const Mosaic& m_mosaic;
    std::array<int, 2> m_rows, m_columns;
    Patch* m_patches;
};

/// Pixels from the nine patches around their cell of the lattice.
template <class V>
class Nearest {
public:
    Nearest(const Patches& patches, int i, int j, const Grid& grid, float dot)
        : m_step(grid.step())
        , m_dot(dot)
    {
        for (int k = 0; k < 9; ++k)
            m_patches[std::size_t(k)] = patches.at(i + k % 3 - 1, j + k / 3 - 1);
    }
    Pixel<V> operator()(const V& x, float y) const
    {
        V best(1e30f);
        Pixel<V> color{best, best, best, best};
        for (const Patch& p : m_patches) {
            const V dx = x - p.x, distance = mulAdd(dx, dx, V((y - p.y) * (y - p.y)));
            const auto nearer = distance < best;
            best = select(nearer, distance, best);
            const Pixel<float>& c = p.color;
            color = select(nearer, Pixel<V>{V(c.r), V(c.g), V(c.b), V(c.a)}, color);
        }
        if (m_dot <= 0)
            return color;
        const V covered = saturate(V((m_dot - sqrt(best)) / m_step + 0.5f)), one(1.0f);
        return mix(Pixel<V>{one, one, one, one}, color, covered);
    }

private:
    std::array<Patch, 9> m_patches;
    float m_step, m_dot; // px
};

class MosaicNode : public WrapperNode {
public:
    MosaicNode(NodePtr source, const Mosaic& m)
        : WrapperNode(source, source->extent(), source->isOpaque() && source->extent().isInfinite())
        , m_mosaic(m)
    {
    }
    int reach(const Grid& grid) const override { return 1 + int(std::min(500.0, 2 * m_mosaic.across * grid.scale)); }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        if (accepts != Form::Rows)
            return {};
        if (isTooFine(render.grid))
            return m_source->open(render, area, accepts, scratch);
        const Planes out = Planes::allocate(area, scratch);
        const GridRect block = area.intersected(render.grid.cellsIn(extent()));
        if (!block.isEmpty()) {
            const ScratchScope scope(scratch);
            const double step = 1 / render.grid.scale;
            const CIRect places{(block.x0 + render.grid.phaseX) * step, (block.y0 + render.grid.phaseY) * step,
                block.width() * step, block.height() * step};
            const Patches patches(m_mosaic, *m_source, render, places, scratch);
            withLanes(render.floats, [&]<class V>() {
                for (int y = block.y0; y < block.y1 && !render.isCancelled(); ++y)
                    fillRow<V>(patches, render.grid, out, block, y);
            });
        }
        return {.rows = std::make_unique<PlanesReader>(out, extent(), render, area)};
    }

protected:
    Grid sourceGrid(const Grid& grid) const override { return isTooFine(grid) ? grid : coarseGrid(m_mosaic, grid); }

private:
    /// Patches of about a cell look like the image they are made of.
    bool isTooFine(const Grid& grid) const { return std::min(m_mosaic.across, m_mosaic.along) * grid.scale < 1.5; }

    template <class V>
    void fillRow(const Patches& patches, const Grid& grid, const Planes& out, const GridRect& block, int y) const
    {
        const MutableRow row = out.row(y, block.x0);
        const double top = (y + 0.5 + grid.phaseY) / grid.scale, step = 1 / grid.scale;
        const int j = patches.rowOf(top);
        for (int x = block.x0; x < block.x1;) {
            const double place = (x + 0.5 + grid.phaseX) * step;
            const int i = patches.columnOf(place, j);
            // The run ends with this cell of the lattice; what a batch writes beyond it is written again.
            const double left = (patches.left(i + 1, j) * grid.scale) - 0.5 - grid.phaseX;
            const int end = std::clamp(int(std::ceil(left)), x + 1, block.x1);
            const Nearest<V> nearest(patches, i, j, grid, float(m_mosaic.dot));
            for (; x < end; x += kLanes<V>)
                storePixel(row, x - block.x0, nearest(V(grid.xAt(x)) + laneIndex<V>() * V(float(step)), float(top)));
            x = end;
        }
    }

    Mosaic m_mosaic;
};

} // namespace

CIImage mosaic(const CIImage& image, const Mosaic& m)
{
    if (image.isNull() || m.across < 1 || m.along < 1)
        return image;
    return CIImage(std::make_shared<MosaicNode>(image.node(), m));
}

} // namespace ci
