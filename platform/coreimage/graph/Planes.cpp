#include "platform/coreimage/graph/Planes.h"

#include "platform/coreimage/graph/Basics.h"
#include "platform/coreimage/graph/Halved.h"

#include <algorithm>
#include <atomic>
#include <cstring>

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

bool isOne(const Planes& p, int c)
{
    for (int y = p.area.y0; y < p.area.y1; ++y) {
        const float* const line = p.line(c, y);
        int others = 0;
        for (int x = 0; x < p.area.width(); ++x)
            others += line[x] != 1;
        if (others)
            return false;
    }
    return true;
}

bool areEqual(const Planes& p, int c, int d)
{
    for (int y = p.area.y0; y < p.area.y1; ++y)
        if (std::memcmp(p.line(c, y), p.line(d, y), std::size_t(p.area.width()) * sizeof(float)) != 0)
            return false;
    return true;
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
    void prepare(const Render& render) const override
    {
        m_source->prepare(render);
        const int times = m_kernel->halvings(render.grid);
        if (const auto copy = m_halved.load(); copy && copy->fits(render.grid, times))
            return;
        m_halved.store(sharingPays(render, times) ? HalvedCopy::make(*m_source, render, times) : nullptr);
    }
    int reach(const Grid& grid) const override
    {
        const auto [x, y] = m_kernel->margin(grid);
        return std::max({1, x, y}) + m_source->reach(grid);
    }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        const bool asRows = accepts == Form::Rows;
        if (!asRows && accepts != Form::Codes)
            return {};
        const auto codes = m_kernel->onlyChooses() && !render.floats ? m_source->codeForm(render) : std::nullopt;
        if (codes && asRows)
            return {.rows = decodeCodes(chosenCodes(render, area, scratch), *codes, extent(), render, scratch)};
        if (codes)
            return {.codes = readCodes(chosenCodes(render, area, scratch), *codes, extent(), render)};
        if (asRows)
            return {.rows = std::make_unique<PlanesReader>(worked(render, area, scratch), extent(), render, area)};
        return {};
    }

private:
    Planes worked(const Render& render, const GridRect& area, Scratch& scratch) const
    {
        const Planes out = Planes::allocate(area, scratch);
        const ScratchScope scope(scratch);
        const auto [x, y] = m_kernel->margin(render.grid);
        const int times = m_kernel->halvings(render.grid);
        const GridRect read = halvedArea(area.grown(x, y), times);
        const auto copy = m_halved.load();
        if (copy && copy->fits(render.grid, times)) {
            m_kernel->run(render, *copy->open(render, read, scratch), read, out, scratch);
        } else if (!render.isCancelled()) {
            const auto in = m_source->rows(render, fineArea(read, times), scratch);
            if (times == 0)
                m_kernel->run(render, *in, read, out, scratch);
            else {
                HalvingReader halved(*in, read, times, scratch);
                m_kernel->run(render, halved, read, out, scratch);
            }
        }
        return out;
    }
    CodeSheet chosenCodes(const Render& render, const GridRect& area, Scratch& scratch) const
    {
        const CodeSheet out = allocateCodes(area, scratch);
        if (area.isEmpty())
            return out;
        const ScratchScope scope(scratch);
        const auto [x, y] = m_kernel->margin(render.grid);
        const GridRect read = area.grown(x, y);
        m_kernel->runOnCodes(*m_source->open(render, read, Form::Codes, scratch).codes, read, out, scratch);
        return out;
    }
    /// True when halving the whole image once reads less than halving around each tile, and needs little memory.
    bool sharingPays(const Render& render, int times) const
    {
        constexpr double kTile = 512;
        const CIRect rect = m_source->repeats();
        if (times < 2 || rect.isInfinite() || rect.isEmpty())
            return false;
        const GridRect all = render.grid.cellsIn(rect);
        const auto [x, y] = m_kernel->margin(render.grid);
        const double byTiles = render.cells * (1 + 2 * x / kTile) * (1 + 2 * y / kTile);
        return double(all.width()) * all.height() < byTiles;
    }
    std::shared_ptr<const PassKernel> m_kernel;
    mutable std::atomic<std::shared_ptr<const HalvedCopy>> m_halved; // of the last render's grid
};

} // namespace

NodePtr passNode(NodePtr source, std::shared_ptr<const PassKernel> kernel, const CIRect& extent, bool keepsOpaque)
{
    return std::make_shared<PassNode>(std::move(source), std::move(kernel), extent, keepsOpaque);
}

} // namespace ci
