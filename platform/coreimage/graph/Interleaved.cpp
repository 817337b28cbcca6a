#include "platform/coreimage/graph/Interleaved.h"

#include "platform/coreimage/graph/Basics.h"
#include "platform/coreimage/graph/Frame.h"
#include "platform/coreimage/graph/Once.h"

#include <algorithm>
#include <atomic>
#include <tbb/parallel_for.h>

namespace ci {

namespace {

bool isWhole(double v) { return std::abs(v - std::round(v)) < 1e-9; }

// Where a register holds 16 floats, two rounds of permutations turn 16 pixels.
#ifdef __AVX512F__
#    define LUMIVEX_WIDE_TURNS
using Wide = float __attribute__((vector_size(64)));

Wide loadWide(const float* p)
{
    Wide w;
    __builtin_memcpy(&w, p, sizeof w);
    return w;
}

void interleaveWide(const float* red, const float* green, const float* blue, const float* alpha, float* p)
{
    const Wide r = loadWide(red), g = loadWide(green), b = loadWide(blue), a = loadWide(alpha);
    const auto low = [](const Wide& u, const Wide& v) {
        return __builtin_shufflevector(u, v, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23);
    };
    const auto high = [](const Wide& u, const Wide& v) {
        return __builtin_shufflevector(u, v, 8, 24, 9, 25, 10, 26, 11, 27, 12, 28, 13, 29, 14, 30, 15, 31);
    };
    const auto lowPairs = [](const Wide& u, const Wide& v) {
        return __builtin_shufflevector(u, v, 0, 1, 16, 17, 2, 3, 18, 19, 4, 5, 20, 21, 6, 7, 22, 23);
    };
    const auto highPairs = [](const Wide& u, const Wide& v) {
        return __builtin_shufflevector(u, v, 8, 9, 24, 25, 10, 11, 26, 27, 12, 13, 28, 29, 14, 15, 30, 31);
    };
    const Wide rg0 = low(r, g), rg1 = high(r, g), ba0 = low(b, a), ba1 = high(b, a);
    const Wide out[4] = {lowPairs(rg0, ba0), highPairs(rg0, ba0), lowPairs(rg1, ba1), highPairs(rg1, ba1)};
    __builtin_memcpy(p, out, sizeof out);
}

void deinterleaveWide(const float* p, float* red, float* green, float* blue, float* alpha)
{
    const Wide q0 = loadWide(p), q1 = loadWide(p + 16), q2 = loadWide(p + 32), q3 = loadWide(p + 48);
    const auto rg = [](const Wide& u, const Wide& v) {
        return __builtin_shufflevector(u, v, 0, 4, 8, 12, 16, 20, 24, 28, 1, 5, 9, 13, 17, 21, 25, 29);
    };
    const auto ba = [](const Wide& u, const Wide& v) {
        return __builtin_shufflevector(u, v, 2, 6, 10, 14, 18, 22, 26, 30, 3, 7, 11, 15, 19, 23, 27, 31);
    };
    const auto store = [](const Wide& w, float* to) { __builtin_memcpy(to, &w, sizeof w); };
    const auto first = [](const Wide& u, const Wide& v) {
        return __builtin_shufflevector(u, v, 0, 1, 2, 3, 4, 5, 6, 7, 16, 17, 18, 19, 20, 21, 22, 23);
    };
    const auto second = [](const Wide& u, const Wide& v) {
        return __builtin_shufflevector(u, v, 8, 9, 10, 11, 12, 13, 14, 15, 24, 25, 26, 27, 28, 29, 30, 31);
    };
    const Wide rg0 = rg(q0, q1), rg1 = rg(q2, q3), ba0 = ba(q0, q1), ba1 = ba(q2, q3);
    store(first(rg0, rg1), red);
    store(second(rg0, rg1), green);
    store(first(ba0, ba1), blue);
    store(second(ba0, ba1), alpha);
}
#endif

} // namespace

void interleave(const Row& row, int count, float* p)
{
    int x = 0;
#ifdef LUMIVEX_WIDE_TURNS
    for (; x + 16 <= count; x += 16, p += 64)
        interleaveWide(row.r + x, row.g + x, row.b + x, row.a + x, p);
#endif
    for (; x + 4 <= count; x += 4, p += 16) {
        const Quad r = loadQuad(row.r + x), g = loadQuad(row.g + x), b = loadQuad(row.b + x), a = loadQuad(row.a + x);
        const Quad rg0 = __builtin_shufflevector(r, g, 0, 4, 1, 5), rg1 = __builtin_shufflevector(r, g, 2, 6, 3, 7);
        const Quad ba0 = __builtin_shufflevector(b, a, 0, 4, 1, 5), ba1 = __builtin_shufflevector(b, a, 2, 6, 3, 7);
        const Quad out[4] = {__builtin_shufflevector(rg0, ba0, 0, 1, 4, 5),
            __builtin_shufflevector(rg0, ba0, 2, 3, 6, 7), __builtin_shufflevector(rg1, ba1, 0, 1, 4, 5),
            __builtin_shufflevector(rg1, ba1, 2, 3, 6, 7)};
        __builtin_memcpy(p, out, sizeof out);
    }
    for (; x < count; ++x, p += 4)
        p[0] = row.r[x], p[1] = row.g[x], p[2] = row.b[x], p[3] = row.a[x];
}

void deinterleave(const float* p, int count, const MutableRow& row)
{
    int x = 0;
#ifdef LUMIVEX_WIDE_TURNS
    for (; x + 16 <= count; x += 16, p += 64)
        deinterleaveWide(p, row.r + x, row.g + x, row.b + x, row.a + x);
#endif
    for (; x + 4 <= count; x += 4, p += 16) {
        const Quad q0 = loadQuad(p), q1 = loadQuad(p + 4), q2 = loadQuad(p + 8), q3 = loadQuad(p + 12);
        const Quad rg0 = __builtin_shufflevector(q0, q1, 0, 4, 1, 5), rg1 = __builtin_shufflevector(q2, q3, 0, 4, 1, 5);
        const Quad ba0 = __builtin_shufflevector(q0, q1, 2, 6, 3, 7), ba1 = __builtin_shufflevector(q2, q3, 2, 6, 3, 7);
        const Quad r = __builtin_shufflevector(rg0, rg1, 0, 1, 4, 5), g = __builtin_shufflevector(rg0, rg1, 2, 3, 6, 7);
        const Quad b = __builtin_shufflevector(ba0, ba1, 0, 1, 4, 5), a = __builtin_shufflevector(ba0, ba1, 2, 3, 6, 7);
        __builtin_memcpy(row.r + x, &r, sizeof r);
        __builtin_memcpy(row.g + x, &g, sizeof g);
        __builtin_memcpy(row.b + x, &b, sizeof b);
        __builtin_memcpy(row.a + x, &a, sizeof a);
    }
    for (; x < count; ++x, p += 4)
        row.r[x] = p[0], row.g[x] = p[1], row.b[x] = p[2], row.a[x] = p[3];
}

void writeViewRow(float* memory, const GridRect& area, int y, const Row& row)
{
    const std::size_t stride = std::size_t(InterleavedView::strideFor(area));
    float* p = memory + std::size_t(y - area.y0) * stride;
    interleave(row, area.width(), p);
    std::copy_n(p + stride - 8, 4, p + stride - 4);
    if (y == area.y1 - 1)
        std::copy_n(p, stride, p + stride);
}

std::shared_ptr<const GridCopy> GridCopy::make(const Node& node, const Render& render, double mostCells)
{
    auto copy = std::make_shared<GridCopy>();
    copy->m_grid = render.grid;
    copy->m_area = render.grid.cellsIn(node.extent());
    GridRect& area = copy->m_area;
    if (area.isEmpty() || double(area.width()) * area.height() > mostCells)
        return nullptr;
    area = area.grown(1, 1);
    copy->m_pixels.reset(new float[InterleavedView::floatsFor(area)]); // not zeroed: every row is written below
    const int band = std::max(64, 2 * node.reach(render.grid));
    tbb::parallel_for(0, (area.height() + band - 1) / band, [&](int index) {
        Scratch& scratch = Scratch::ofThread();
        const ScratchScope scope(scratch);
        const TileMemory memory;
        GridRect rows = area;
        rows.y0 += index * band;
        rows.y1 = std::min(rows.y0 + band, area.y1);
        const auto reader = node.rows(render, rows, scratch);
        for (int y = rows.y0; y < rows.y1; ++y)
            writeViewRow(copy->m_pixels.get(), area, y, reader->row(y));
    });
    return render.isCancelled() ? nullptr : copy;
}

bool GridCopy::fits(const Grid& grid) const
{
    return grid.scale == m_grid.scale && isWhole(grid.phaseX - m_grid.phaseX) && isWhole(grid.phaseY - m_grid.phaseY);
}

InterleavedView GridCopy::viewOn(const Grid& grid) const
{
    const int dx = int(std::lround(m_grid.phaseX - grid.phaseX)), dy = int(std::lround(m_grid.phaseY - grid.phaseY));
    const GridRect area{m_area.x0 + dx, m_area.y0 + dy, m_area.x1 + dx, m_area.y1 + dy};
    return {area, InterleavedView::strideFor(area), m_pixels.get()};
}

namespace {

class CopyReader : public RowReader {
public:
    CopyReader(std::shared_ptr<const GridCopy> copy, const Grid& grid, const GridRect& area, Scratch& scratch)
        : m_copy(std::move(copy))
        , m_view(m_copy->viewOn(grid))
        , m_area(area)
        , m_out(allocateRow(scratch, area.width()))
    {
    }
    Row row(int y) override
    {
        deinterleave(m_view.at(m_area.x0, y), m_area.width(), m_out);
        return m_out;
    }

private:
    std::shared_ptr<const GridCopy> m_copy;
    InterleavedView m_view;
    GridRect m_area;
    MutableRow m_out;
};

class SharedNode : public WrapperNode {
public:
    SharedNode(NodePtr source, double mostCells)
        : WrapperNode(source, source->extent(), source->isOpaque())
        , m_mostCells(mostCells)
    {
    }
    void prepare(const Render& render) const override
    {
        Render whole = render;
        const GridRect all = render.grid.cellsIn(extent());
        whole.cells = double(all.width()) * all.height();
        m_source->prepare(whole);
        if (const auto copy = m_copy.load(); copy && copy->fits(render.grid))
            return;
        m_copy.store(GridCopy::make(*m_source, whole, m_mostCells));
    }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        if (accepts == Form::Copy)
            return {.copy = copyOn(render)};
        if (accepts != Form::Rows)
            return {};
        auto copy = copyOn(render);
        return {.rows = copy ? readCopy(std::move(copy), extent(), render, area, scratch)
                             : m_source->rows(render, area, scratch)};
    }
    int reach(const Grid& grid) const override { return copyOn({grid}) ? 0 : m_source->reach(grid); }

private:
    std::shared_ptr<const GridCopy> copyOn(const Render& render) const
    {
        auto copy = m_copy.load();
        return copy && copy->fits(render.grid) ? copy : m_source->copy(render);
    }
    double m_mostCells;
    mutable std::atomic<std::shared_ptr<const GridCopy>> m_copy; // of the last render's grid
};

} // namespace

std::unique_ptr<RowReader> readCopy(std::shared_ptr<const GridCopy> copy, const CIRect& extent, const Render& render,
    const GridRect& area, Scratch& scratch)
{
    return framedRows(Frame(render.grid.cellsIn(extent), area, false), area, scratch, [&](const GridRect& inside) {
        return std::make_unique<CopyReader>(std::move(copy), render.grid, inside, scratch);
    });
}

NodePtr sharedNode(NodePtr source, double mostCells)
{
    if (source->extent().isInfinite() || source->extent().isEmpty())
        return source;
    return std::make_shared<SharedNode>(std::move(source), mostCells);
}

NodePtr sharedTileNode(NodePtr source)
{
    constexpr double kRim = 64; // px, more than a cell on any but the coarsest grids
    const CIRect extent = source->extent();
    if (extent.isInfinite() || extent.isEmpty())
        return source;
    return sharedNode(cropNode(clampNode(std::move(source)), extent.grown(kRim)));
}

} // namespace ci
