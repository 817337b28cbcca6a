#include "platform/coreimage/graph/Halved.h"

#include "platform/coreimage/graph/Frame.h"

#include <algorithm>
#include <tbb/parallel_for.h>

namespace ci {

GridRect halvedArea(const GridRect& area, int times)
{
    const int cell = 1 << times;
    return {floorDiv(area.x0, cell), floorDiv(area.y0, cell), -floorDiv(-area.x1, cell), -floorDiv(-area.y1, cell)};
}

GridRect fineArea(const GridRect& coarse, int times)
{
    const int cell = 1 << times;
    return {coarse.x0 * cell, coarse.y0 * cell, coarse.x1 * cell, coarse.y1 * cell};
}

HalvingReader::HalvingReader(RowReader& source, const GridRect& area, int times, Scratch& scratch)
    : m_source(source)
    , m_area(area)
    , m_times(times)
    , m_sum(allocateRow(scratch, area.width() << times))
{
}

Row HalvingReader::row(int y)
{
    const int cell = 1 << m_times;
    float* const sums[4] = {m_sum.r, m_sum.g, m_sum.b, m_sum.a};
    for (int k = 0; k < cell; ++k) {
        const Row row = m_source.row(y * cell + k);
        const float* const from[4] = {row.r, row.g, row.b, row.a};
        for (int c = 0; c < 4; ++c)
            for (int x = 0; x < m_area.width() * cell; ++x)
                sums[c][x] = k ? sums[c][x] + from[c][x] : from[c][x];
    }
    for (float* const sum : sums) {
        for (int width = m_area.width() * cell / 2; width >= m_area.width(); width /= 2)
            for (int x = 0; x < width; ++x)
                sum[x] = sum[2 * x] + sum[2 * x + 1];
        for (int x = 0; x < m_area.width(); ++x)
            sum[x] *= 1.0f / (float(cell) * float(cell));
    }
    return m_sum;
}

namespace {

constexpr int kBlock = 512; // fine cells

} // namespace

std::shared_ptr<const HalvedCopy> HalvedCopy::make(const Node& source, const Render& render, int times)
{
    auto copy = std::make_shared<HalvedCopy>();
    copy->m_grid = render.grid;
    copy->m_times = times;
    // The cell more on each side lies outside the image as a whole.
    const GridRect area = halvedArea(render.grid.cellsIn(source.repeats()), times).grown(1, 1);
    Planes& means = copy->m_means;
    means.area = area;
    means.stride = std::size_t(area.width());
    const std::size_t size = means.stride * std::size_t(area.height());
    copy->m_memory.reset(new float[4 * size]); // not zeroed: every row is written below
    for (std::size_t c = 0; c < 4; ++c)
        means.plane[c] = copy->m_memory.get() + c * size;

    const int width = std::max(kBlock >> times, 1),
              height = std::max((source.reach(render.grid) ? kBlock : 64) >> times, 1);
    const int columns = (area.width() + width - 1) / width, rows = (area.height() + height - 1) / height;
    tbb::parallel_for(0, columns * rows, [&](int index) {
        if (render.isCancelled())
            return;
        Scratch& scratch = Scratch::ofThread();
        const ScratchScope scope(scratch);
        const int x = area.x0 + index % columns * width, y = area.y0 + index / columns * height;
        const GridRect block{x, y, std::min(x + width, area.x1), std::min(y + height, area.y1)};
        const auto fine = source.rows(render, fineArea(block, times), scratch);
        HalvingReader reader(*fine, block, times, scratch);
        for (int line = block.y0; line < block.y1; ++line) {
            const Row row = reader.row(line);
            const MutableRow to = means.row(line, block.x0);
            std::copy_n(row.r, block.width(), to.r);
            std::copy_n(row.g, block.width(), to.g);
            std::copy_n(row.b, block.width(), to.b);
            std::copy_n(row.a, block.width(), to.a);
        }
    });
    return render.isCancelled() ? nullptr : copy;
}

bool HalvedCopy::fits(const Grid& grid, int times) const { return m_grid == grid && m_times == times; }

std::unique_ptr<RowReader> HalvedCopy::open(const Render& render, const GridRect& area, Scratch& scratch) const
{
    return framedRows(Frame(m_means.area, area, true), area, scratch, [&](const GridRect& inside) {
        return std::make_unique<PlanesReader>(m_means, CIRect::infinite(), render, inside);
    });
}

} // namespace ci
