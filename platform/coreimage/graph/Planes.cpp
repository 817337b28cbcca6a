#include "platform/coreimage/graph/Planes.h"

#include "platform/coreimage/graph/Basics.h"
#include "platform/coreimage/kernel/Batch.h"

#include <algorithm>

namespace ci {

Planes Planes::allocate(const GridRect& area, Scratch& scratch)
{
    Planes p;
    p.area = area;
    // An odd number of cache lines: rows that are a power of two apart would share a few sets of the cache.
    const std::size_t lines = (std::size_t(area.width()) + 2 * kRowPadding - 1) / kRowPadding;
    p.stride = (lines | 1) * kRowPadding;
    const std::size_t size = p.stride * std::size_t(std::max(area.height(), 1)) + kRowPadding;
    float* memory = scratch.floats(4 * size);
    for (std::size_t c = 0; c < 4; ++c)
        p.plane[c] = memory + c * size;
    return p;
}

void Planes::fill(RowReader& reader) const
{
    for (int y = area.y0; y < area.y1; ++y) {
        const Row from = reader.row(y);
        const MutableRow to = row(y);
        std::copy_n(from.r, area.width(), to.r);
        std::copy_n(from.g, area.width(), to.g);
        std::copy_n(from.b, area.width(), to.b);
        std::copy_n(from.a, area.width(), to.a);
    }
}

PlanesReader::PlanesReader(const Planes& planes, const CIRect& extent, const Render& render, const GridRect& area)
    : m_planes(planes)
    , m_x(area.x0)
{
    const ExtentClip clip(extent, render, area);
    for (int y = area.y0; y < area.y1; ++y) {
        const MutableRow row = planes.row(y, area.x0);
        if (clip.hasRow(y)) {
            clip.clearOutside(row);
            continue;
        }
        for (float* plane : {row.r, row.g, row.b, row.a})
            std::fill_n(plane, area.width(), 0.0f);
    }
}

namespace {

class PassNode : public WrapperNode {
public:
    PassNode(NodePtr source, std::shared_ptr<const PassKernel> kernel, const CIRect& extent, bool keepsOpaque)
        : WrapperNode(source, extent, keepsOpaque && source->isOpaque() && source->extent().isInfinite())
        , m_kernel(std::move(kernel))
    {
    }
    void prepare(const Render& render) const override { m_source->prepare(halved(render)); }
    int reach(const Grid& grid) const override
    {
        const auto [x, y] = m_kernel->margin(grid);
        return std::max({1, x, y}) + m_source->reach(grid);
    }
    std::unique_ptr<RowReader> open(const Render& render, const GridRect& area, Scratch& scratch) const override
    {
        const Planes out = Planes::allocate(area, scratch);
        {
            const ScratchScope scope(scratch);
            const auto [x, y] = m_kernel->margin(render.grid);
            const int cell = 1 << m_kernel->halvings(render.grid);
            const GridRect wide = area.grown(x, y);
            const GridRect read{
                floorDiv(wide.x0, cell), floorDiv(wide.y0, cell), -floorDiv(-wide.x1, cell), -floorDiv(-wide.y1, cell)};
            const auto in = m_source->open(halved(render), read, scratch);
            if (!render.isCancelled())
                m_kernel->run(render, *in, read, out, scratch);
        }
        return std::make_unique<PlanesReader>(out, extent(), render, area);
    }

private:
    Render halved(const Render& render) const
    {
        const double cell = 1 << m_kernel->halvings(render.grid);
        return render.withGrid({render.grid.scale / cell, render.grid.phaseX / cell, render.grid.phaseY / cell});
    }
    std::shared_ptr<const PassKernel> m_kernel;
};

} // namespace

NodePtr passNode(NodePtr source, std::shared_ptr<const PassKernel> kernel, const CIRect& extent, bool keepsOpaque)
{
    return std::make_shared<PassNode>(std::move(source), std::move(kernel), extent, keepsOpaque);
}

} // namespace ci
