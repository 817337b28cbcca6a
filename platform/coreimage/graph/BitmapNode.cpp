#include "platform/coreimage/graph/BitmapNode.h"

#include "platform/coreimage/graph/Codes.h"

#include "platform/coreimage/kernel/Batch.h"

#include <algorithm>
#include <cstring>
#include <tbb/parallel_for.h>
#include <tbb/task_arena.h>

namespace ci {

void Level::allocate(int w, int h, bool wide)
{
    width = w;
    height = h;
    const std::size_t count = std::size_t(w) * std::size_t(h) * 4;
    if (wide)
        floats.resize(count);
    else
        words.resize(count);
}

void Level::readRow(int y, int from, int count, const MutableRow& row) const
{
    const std::size_t start = (std::size_t(y) * std::size_t(width) + std::size_t(from)) * 4;
    const auto spread = [&](const auto* p, float scale) {
        for (int i = 0; i < count; ++i) {
            row.r[i] = float(p[4 * i]) * scale;
            row.g[i] = float(p[4 * i + 1]) * scale;
            row.b[i] = float(p[4 * i + 2]) * scale;
            row.a[i] = float(p[4 * i + 3]) * scale;
        }
    };
    if (isWide())
        spread(floats.data() + start, 1.0f);
    else
        spread(words.data() + start, 1 / 65535.0f);
}

void Level::addRow(int y, int from, int count, float weight, float* sums) const
{
    const std::size_t start = (std::size_t(y) * std::size_t(width) + std::size_t(from)) * 4;
    const auto add = [&](const auto* p, float share) {
        for (int i = 0; i < 4 * count; ++i)
            sums[i] += share * float(p[i]);
    };
    if (isWide())
        add(floats.data() + start, weight);
    else
        add(words.data() + start, weight / 65535.0f);
}

void Level::writeRow(int y, int from, int count, const Row& row)
{
    const std::size_t start = (std::size_t(y) * std::size_t(width) + std::size_t(from)) * 4;
    const float* planes[4] = {row.r, row.g, row.b, row.a};
    if (isWide()) {
        for (int i = 0; i < count; ++i)
            for (std::size_t c = 0; c < 4; ++c)
                floats[start + std::size_t(4 * i) + c] = planes[c][i];
        return;
    }
    std::uint16_t* p = words.data() + start;
    for (int i = 0; i < count; ++i)
        for (int c = 0; c < 4; ++c)
            p[4 * i + c] = std::uint16_t(std::clamp(planes[c][i], 0.0f, 1.0f) * 65535.0f + 0.5f);
}

namespace {

/// Rows of one level of a bitmap, counted from the top; level 0 is the bitmap itself.
class LevelRows {
public:
    LevelRows(const CIBitmap& bitmap, const std::vector<Level>& levels, int level, bool floats)
        : m_bitmap(bitmap)
        , m_level(level > 0 ? &levels[std::size_t(level - 1)] : nullptr)
        , m_decoder(bitmap.format(), bitmap.alpha(), bitmap.colorSpace(), floats)
    {
    }
    int width() const { return m_level ? m_level->width : m_bitmap.width(); }
    int height() const { return m_level ? m_level->height : m_bitmap.height(); }
    void read(int y, int from, int count, const MutableRow& row) const
    {
        if (m_level)
            m_level->readRow(y, from, count, row);
        else
            m_decoder.decode(m_bitmap.row(y) + std::size_t(from) * bytesPerPixel(m_bitmap.format()), count, row);
    }
    /// Adds a row times `weight` to `sums`, four floats a texel. `spare` has room for the row.
    void add(int y, int from, int count, float weight, float* sums, const MutableRow& spare, float* pixels) const
    {
        if (m_level) {
            m_level->addRow(y, from, count, weight, sums);
            return;
        }
        read(y, from, count, spare);
        interleave(spare, count, pixels);
        for (int i = 0; i < 4 * count; ++i)
            sums[i] += weight * pixels[i];
    }

private:
    const CIBitmap& m_bitmap;
    const Level* m_level;
    RowDecoder m_decoder;
};

Level halved(const LevelRows& source, bool wide)
{
    Level half;
    half.allocate((source.width() + 1) / 2, (source.height() + 1) / 2, wide);
    tbb::parallel_for(tbb::blocked_range<int>(0, half.height, 16), [&](const tbb::blocked_range<int>& rows) {
        Scratch& scratch = Scratch::ofThread();
        const ScratchScope scope(scratch);
        const MutableRow upper = allocateRow(scratch, source.width() + 1),
                         lower = allocateRow(scratch, source.width() + 1);
        for (int y = rows.begin(); y < rows.end(); ++y) {
            const int count = source.width();
            source.read(2 * y, 0, count, upper);
            source.read(std::min(2 * y + 1, source.height() - 1), 0, count, lower);
            float* const above[4] = {upper.r, upper.g, upper.b, upper.a};
            const float* const below[4] = {lower.r, lower.g, lower.b, lower.a};
            for (int c = 0; c < 4; ++c) {
                float* p = above[c];
                for (int x = 0; x < count; ++x)
                    p[x] += below[c][x];
                p[count] = p[count - 1]; // an odd last column stands for two
                for (int x = 0; x < half.width; ++x)
                    p[x] = 0.25f * (p[2 * x] + p[2 * x + 1]);
            }
            half.writeRow(y, 0, half.width, upper);
        }
    });
    return half;
}

/// For each cell of an axis: the first texel it covers and the shares of the texels from there on.
class AreaWeights {
public:
    static constexpr int kMost = 6;

    /// Cells from `first` on, `count` of them; `size` cells per texel length; `texels` in all. `edge(cell)` is the
    /// texel coordinate of a cell's lower side.
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

/// Rows as they are stored, shifted by whole cells.
class DirectReader : public RowReader {
public:
    /// Cell (x, y) is column x - left of the source and row top - 1 - y, counted from its top.
    DirectReader(const LevelRows& source, int left, int top, const CIRect& extent, const Render& render,
        const GridRect& area, Scratch& scratch)
        : m_source(source)
        , m_clip(extent, render, area)
        , m_left(left)
        , m_top(top)
        , m_before(m_clip.inside().x0 - area.x0)
        , m_zeros(zeroRow(scratch, area.width()))
        , m_out(allocateRow(scratch, area.width()))
    {
    }
    Row row(int y) override
    {
        if (!m_clip.hasRow(y))
            return m_zeros;
        const GridRect& inside = m_clip.inside();
        m_source.read(m_top - 1 - y, inside.x0 - m_left, inside.width(),
            {m_out.r + m_before, m_out.g + m_before, m_out.b + m_before, m_out.a + m_before});
        m_clip.clearOutside(m_out);
        return m_out;
    }

private:
    LevelRows m_source;
    ExtentClip m_clip;
    int m_left, m_top, m_before;
    Row m_zeros;
    MutableRow m_out;
};

/// The bitmap's own bytes, with alpha set: opaque bitmaps may hold anything there.
class BitmapCodes : public CodeReader {
public:
    BitmapCodes(const CIBitmap& bitmap, int left, int top, const GridRect& area, Scratch& scratch)
        : m_bitmap(bitmap)
        , m_area(area)
        , m_inside(area.intersected({left, top - bitmap.height(), left + bitmap.width(), top}))
        , m_left(left)
        , m_top(top)
        , m_row(static_cast<std::uint32_t*>(scratch.bytes(std::size_t(area.width()) * sizeof(std::uint32_t))))
    {
    }
    const std::uint8_t* row(int y) override
    {
        if (y < m_inside.y0 || y >= m_inside.y1 || m_inside.isEmpty()) {
            std::fill_n(m_row, m_area.width(), 0);
        } else {
            const auto pixels = m_bitmap.row<std::uint32_t>(m_top - 1 - y).subspan(std::size_t(m_inside.x0 - m_left));
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
    GridRect m_area, m_inside;
    int m_left, m_top;
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
    auto levels = std::make_shared<std::vector<Level>>();
    const bool wide = m_bitmap.format() == CIFormat::RGBAf;
    // Isolated, so that a thread that waits here takes up no tile that would want the same levels.
    tbb::this_task_arena::isolate([&] {
        int width = m_bitmap.width(), height = m_bitmap.height();
        for (int level = 0; std::max(width, height) > 32; ++level) {
            Level half = halved(LevelRows(m_bitmap, *levels, level, false), wide);
            width = half.width;
            height = half.height;
            levels->push_back(std::move(half));
        }
    });
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

bool BitmapNode::hasCodes(const Render& render, CodeForm& form) const
{
    const Grid& grid = render.grid;
    form = {m_bitmap.format(), m_bitmap.colorSpace()};
    return grid.scale == 1 && isWhole(grid.phaseX) && isWhole(grid.phaseY) && bytesPerPixel(m_bitmap.format()) == 4
        && m_bitmap.alpha() == CIAlpha::Opaque;
}

std::unique_ptr<CodeReader> BitmapNode::openCodes(const Render& render, const GridRect& area, Scratch& scratch) const
{
    return std::make_unique<BitmapCodes>(m_bitmap, -int(std::lround(render.grid.phaseX)),
        m_bitmap.height() - int(std::lround(render.grid.phaseY)), area, scratch);
}

bool BitmapNode::codeTables(const Render& render, CodeTables& tables) const
{
    const Grid& grid = render.grid;
    CodeForm form;
    if (!hasCodes(render, form))
        return false;
    CIBitmap codes(256, 1, m_bitmap.format(), CIAlpha::Opaque, m_bitmap.colorSpace());
    const auto row = codes.mutableRow<std::uint8_t>(0);
    for (std::size_t i = 0; i < row.size(); ++i)
        row[i] = std::uint8_t(i / 4);
    RowDecoder(codes.format(), codes.alpha(), codes.colorSpace(), render.floats)
        .decode(codes.row(0), 256, tables.row());
    tables.bitmap = &m_bitmap;
    tables.left = -int(std::lround(grid.phaseX));
    tables.top = m_bitmap.height() - int(std::lround(grid.phaseY));
    return true;
}

std::unique_ptr<RowReader> BitmapNode::open(const Render& render, const GridRect& area, Scratch& scratch) const
{
    static const auto none = std::make_shared<const std::vector<Level>>();
    const Grid& grid = render.grid;
    if (grid.scale == 1 && isWhole(grid.phaseX) && isWhole(grid.phaseY))
        return std::make_unique<DirectReader>(LevelRows(m_bitmap, *none, 0, render.floats),
            -int(std::lround(grid.phaseX)), m_bitmap.height() - int(std::lround(grid.phaseY)), extent(), render, area,
            scratch);
    if (auto copy = copyFor(grid))
        return readCopy(std::move(copy), extent(), render, area, scratch);
    // Two texels a cell at least, unless the bitmap itself has fewer.
    auto all = grid.scale < 0.5 ? levels() : none;
    const int level = std::min(int(all->size()), std::max(0, int(std::floor(std::log2(1 / grid.scale))) - 1));
    return std::make_unique<AreaReader>(m_bitmap, all, level, extent(), render, area, scratch);
}

} // namespace ci
