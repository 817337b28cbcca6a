#include "platform/coreimage/graph/BitmapNode.h"

#include "platform/coreimage/graph/Frame.h"

#include <algorithm>
#include <tbb/task_arena.h>

namespace ci {

namespace {

/// For each cell of an axis: the first texel it covers and the shares of the texels from there on.
class AreaWeights {
public:
    static constexpr int kMost = 6;

    /// For `count` cells from `first` on, over `texels` texels. `edge(cell)` is the texel coordinate of a cell's lower
    /// side.
    template <class Edge>
    AreaWeights(Scratch& scratch, int first, int count, int texels, Edge edge)
        : m_starts(static_cast<int*>(scratch.bytes(std::size_t(count) * sizeof(int))))
        , m_weights(scratch.floats(std::size_t(count) * kMost))
    {
        for (int i = 0; i < count; ++i) {
            double from = std::clamp(edge(first + i), 0.0, double(texels)),
                   to = std::clamp(edge(first + i + 1), 0.0, double(texels));
            if (from > to)
                std::swap(from, to);
            const int start = std::clamp(int(std::floor(from)), 0, texels - 1);
            float* w = m_weights + i * kMost;
            double sum = 0;
            for (int k = 0; k < kMost; ++k) {
                const double share = std::min(to, start + k + 1.0) - std::max(from, double(start + k));
                w[k] = float(std::max(share, 0.0));
                sum += double(w[k]);
            }
            if (sum <= 0)
                w[0] = 1, sum = 1; // beyond the bitmap: nobody looks
            for (int k = 0; k < kMost; ++k)
                w[k] = float(w[k] / sum);
            m_starts[i] = start;
            m_low = i ? std::min(m_low, start) : start;
            m_high = std::max(m_high, std::min(start + taps(i), texels));
        }
    }
    int start(int i) const { return m_starts[i]; }
    const float* weights(int i) const { return m_weights + i * kMost; }
    int taps(int i) const
    {
        int n = kMost;
        while (n > 1 && weights(i)[n - 1] == 0)
            --n;
        return n;
    }
    int low() const { return m_low; }
    int high() const { return m_high; }

private:
    int* m_starts;
    float* m_weights;
    int m_low = 0, m_high = 0;
};

/// Means over the cells' areas.
class AreaReader : public RowReader {
public:
    AreaReader(const CIBitmap& bitmap, std::shared_ptr<const std::vector<Level>> levels, int level,
        const CIRect& extent, const Render& render, const GridRect& area, Scratch& scratch)
        : m_levels(std::move(levels))
        , m_rows(bitmap, *m_levels, level, render.floats)
        , m_clip(extent, render, area)
        , m_area(area)
        , m_zeros(zeroRow(scratch, area.width()))
        , m_columns(scratch, area.x0, area.width(), m_rows.width(),
              [&](int x) { return (x + render.grid.phaseX) / render.grid.scale / (1 << level); })
        , m_lines(scratch, area.y0, area.height(), m_rows.height(),
              [&](int y) { return (bitmap.height() - (y + render.grid.phaseY) / render.grid.scale) / (1 << level); })
        , m_span(m_columns.high() - m_columns.low())
        , m_texels(allocateRow(scratch, m_span))
        , m_pixels(scratch.floats(4 * std::size_t(m_span)))
        , m_sums(scratch.floats(4 * std::size_t(m_span + AreaWeights::kMost)))
        , m_means(scratch.floats(4 * std::size_t(area.width())))
        , m_out(allocateRow(scratch, area.width()))
    {
    }

    Row row(int y) override
    {
        if (!m_clip.hasRow(y))
            return m_zeros;
        const int line = y - m_area.y0, start = m_lines.start(line);
        std::fill_n(m_sums, 4 * m_span, 0.0f);
        for (int k = 0; k < m_lines.taps(line); ++k)
            m_rows.add(start + k, m_columns.low(), m_span, m_lines.weights(line)[k], m_sums, m_texels, m_pixels);
        for (int x = 0; x < m_area.width(); ++x) {
            const float* const p = m_sums + 4 * std::ptrdiff_t(m_columns.start(x) - m_columns.low());
            const float* const weights = m_columns.weights(x);
            const int taps = m_columns.taps(x);
            Quad mean = weights[0] * loadQuad(p);
            for (int k = 1; k < taps; ++k)
                mean += weights[k] * loadQuad(p + 4 * k);
            __builtin_memcpy(m_means + 4 * std::ptrdiff_t(x), &mean, sizeof mean);
        }
        deinterleave(m_means, m_area.width(), m_out);
        m_clip.clearOutside(m_out);
        return m_out;
    }

private:
    std::shared_ptr<const std::vector<Level>> m_levels;
    LevelRows m_rows;
    ExtentClip m_clip;
    GridRect m_area;
    Row m_zeros;
    AreaWeights m_columns, m_lines;
    int m_span;
    MutableRow m_texels;
    float *m_pixels, *m_sums, *m_means; // four floats a pixel
    MutableRow m_out;
};

std::shared_ptr<const std::vector<Level>> none()
{
    static const auto levels = std::make_shared<const std::vector<Level>>();
    return levels;
}

/// The cells of the bitmap, on a grid at full size with whole phases.
GridRect wholeCells(const CIBitmap& bitmap, const Grid& grid)
{
    const int left = -int(std::lround(grid.phaseX)), bottom = -int(std::lround(grid.phaseY));
    return {left, bottom, left + bitmap.width(), bottom + bitmap.height()};
}

/// Rows as they are stored. `cells` are those of the bitmap; the area lies inside them.
class DirectReader : public RowReader {
public:
    DirectReader(const CIBitmap& bitmap, const GridRect& cells, bool floats, const GridRect& area, Scratch& scratch)
        : m_source(bitmap, *none(), 0, floats)
        , m_cells(cells)
        , m_area(area)
        , m_out(allocateRow(scratch, area.width()))
    {
    }
    Row row(int y) override
    {
        m_source.read(m_cells.y1 - 1 - y, m_area.x0 - m_cells.x0, m_area.width(), m_out);
        return m_out;
    }

private:
    LevelRows m_source;
    GridRect m_cells, m_area;
    MutableRow m_out;
};

/// The bitmap's own bytes, with alpha set: opaque bitmaps may hold anything there. `cells` are those of the bitmap.
class BitmapCodes : public CodeReader {
public:
    BitmapCodes(const CIBitmap& bitmap, const GridRect& cells, const GridRect& area, Scratch& scratch)
        : CodeReader({bitmap.format(), bitmap.colorSpace()})
        , m_bitmap(bitmap)
        , m_cells(cells)
        , m_area(area)
        , m_inside(area.intersected(cells))
        , m_row(static_cast<std::uint32_t*>(scratch.bytes(std::size_t(area.width()) * sizeof(std::uint32_t))))
    {
    }
    const std::uint8_t* row(int y) override
    {
        if (y < m_inside.y0 || y >= m_inside.y1 || m_inside.isEmpty()) {
            std::fill_n(m_row, m_area.width(), 0);
        } else {
            const auto pixels =
                m_bitmap.row<std::uint32_t>(m_cells.y1 - 1 - y).subspan(std::size_t(m_inside.x0 - m_cells.x0));
            std::uint32_t* const to = m_row + (m_inside.x0 - m_area.x0);
            std::fill(m_row, to, 0);
            for (int x = 0; x < m_inside.width(); ++x)
                to[x] = pixels[std::size_t(x)] | 0xff000000u;
            std::fill(to + m_inside.width(), m_row + m_area.width(), 0);
        }
        return reinterpret_cast<const std::uint8_t*>(m_row);
    }

private:
    CIBitmap m_bitmap;
    GridRect m_cells, m_area, m_inside;
    std::uint32_t* m_row;
};

constexpr std::size_t kKept = 3; // grids: the view, its coarser first frame, a thumbnail
constexpr double kMostCopied = 6e6; // cells; a larger grid is reduced tile by tile

bool isWhole(double v) { return std::abs(v - std::round(v)) < 1e-9; }

} // namespace

BitmapNode::BitmapNode(const CIBitmap& bitmap)
    : Node({0, 0, double(bitmap.width()), double(bitmap.height())}, bitmap.alpha() == CIAlpha::Opaque)
    , m_bitmap(bitmap)
{
}

std::shared_ptr<const std::vector<Level>> BitmapNode::levels() const
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_levels)
            return m_levels;
    }
    std::shared_ptr<const std::vector<Level>> levels;
    // Isolated, so that a thread that waits here takes up no tile that would want the same levels.
    tbb::this_task_arena::isolate([&] { levels = std::make_shared<const std::vector<Level>>(halvedCopies(m_bitmap)); });
    const std::lock_guard lock(m_mutex);
    if (!m_levels)
        m_levels = std::move(levels);
    return m_levels;
}

std::shared_ptr<const GridCopy> BitmapNode::copyFor(const Grid& grid) const
{
    if (grid.scale >= 1)
        return nullptr;
    const std::lock_guard lock(m_mutex);
    for (const auto& copy : m_copies)
        if (copy->fits(grid))
            return copy;
    return nullptr;
}

void BitmapNode::prepare(const Render& render) const
{
    if (render.grid.scale >= 1 || copyFor(render.grid))
        return;
    levels();
    if (!isAskedAgain(render.grid))
        return;
    auto copy = GridCopy::make(*this, render, kMostCopied);
    if (!copy)
        return;
    const std::lock_guard lock(m_mutex);
    m_copies.push_back(std::move(copy));
    if (m_copies.size() > kKept)
        m_copies.erase(m_copies.begin());
}

/// While a scale is dragged every frame has a grid of its own, and no use for a copy of the whole.
bool BitmapNode::isAskedAgain(const Grid& grid) const
{
    const std::lock_guard lock(m_mutex);
    const bool again = std::ranges::find(m_asked, grid) != m_asked.end();
    if (!again) {
        m_asked.push_back(grid);
        if (m_asked.size() > kKept)
            m_asked.erase(m_asked.begin());
    }
    return again;
}

/// The codes as they are. `cells` are those of the bitmap.
std::unique_ptr<CodeTable> BitmapNode::tableOf(const GridRect& cells) const
{
    CIBitmap codes(256, 1, m_bitmap.format(), CIAlpha::Opaque, m_bitmap.colorSpace());
    const auto row = codes.mutableRow<std::uint8_t>(0);
    for (std::size_t i = 0; i < row.size(); ++i)
        row[i] = std::uint8_t(i / 4);
    auto table = std::make_unique<CodeTable>();
    RowDecoder(codes.format(), codes.alpha(), codes.colorSpace(), false).decode(codes.row(0), 256, table->row());
    table->bitmap = &m_bitmap;
    table->left = cells.x0;
    table->top = cells.y1;
    return table;
}

Opened BitmapNode::open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const
{
    const Grid& grid = render.grid;
    const bool isDirect = grid.scale == 1 && isWhole(grid.phaseX) && isWhole(grid.phaseY);
    const GridRect cells = wholeCells(m_bitmap, grid);
    // Codes of other spaces mix: what becomes of one component depends on the others.
    const bool hasCodes = isDirect && !profiledSpace(m_bitmap.colorSpace()) && bytesPerPixel(m_bitmap.format()) == 4
        && m_bitmap.alpha() == CIAlpha::Opaque;
    switch (accepts) {
    case Form::Copy:
        return {.copy = copyFor(grid)};
    case Form::Codes:
        return {.codes = hasCodes ? std::make_unique<BitmapCodes>(m_bitmap, cells, area, scratch) : nullptr};
    case Form::Table:
        return {.table = hasCodes && area.intersected(cells) == area ? tableOf(cells) : nullptr};
    case Form::Rows:
        break;
    }
    if (isDirect)
        return {.rows = framedRows(Frame(cells, area, false), area, scratch, [&](const GridRect& inside) {
            return std::make_unique<DirectReader>(m_bitmap, cells, render.floats, inside, scratch);
        })};
    if (auto copy = copyFor(grid))
        return {.rows = readCopy(std::move(copy), extent(), render, area, scratch)};
    // A cell is the mean of two texels a side at least, unless the bitmap itself has fewer.
    auto all = grid.scale < 0.5 ? levels() : none();
    const int level = std::min(int(all->size()), std::max(0, int(std::floor(std::log2(1 / grid.scale))) - 1));
    return {.rows = std::make_unique<AreaReader>(m_bitmap, all, level, extent(), render, area, scratch)};
}

} // namespace ci
