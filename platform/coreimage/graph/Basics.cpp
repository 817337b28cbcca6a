#include "platform/coreimage/graph/Basics.h"

#include "platform/coreimage/graph/Codes.h"

#include <algorithm>
#include <cstring>

namespace ci {

namespace {

class ConstantReader : public RowReader {
public:
    ConstantReader(const Pixel<float>& color, int width, Scratch& scratch)
        : m_row(allocateRow(scratch, width))
    {
        const std::size_t padded = std::size_t(width + kRowPadding - 1) / kRowPadding * kRowPadding;
        std::fill_n(m_row.r, padded, color.r);
        std::fill_n(m_row.g, padded, color.g);
        std::fill_n(m_row.b, padded, color.b);
        std::fill_n(m_row.a, padded, color.a);
    }
    Row row(int) override { return m_row; }

private:
    MutableRow m_row;
};

class ConstantNode : public Node {
public:
    explicit ConstantNode(const Pixel<float>& color)
        : Node(CIRect::infinite(), color.a >= 1)
        , m_color(color)
    {
    }
    std::unique_ptr<RowReader> open(const Render&, const GridRect& area, Scratch& scratch) const override
    {
        return std::make_unique<ConstantReader>(m_color, area.width(), scratch);
    }

private:
    Pixel<float> m_color;
};

void copyRow(const Row& from, const MutableRow& to, int width)
{
    std::copy_n(from.r, width, to.r);
    std::copy_n(from.g, width, to.g);
    std::copy_n(from.b, width, to.b);
    std::copy_n(from.a, width, to.a);
}

/// Reads no more of the source than what lies inside.
class CropReader : public RowReader {
public:
    CropReader(const Node& source, const CIRect& extent, const Render& render, const GridRect& area, Scratch& scratch)
        : m_clip(extent, render, area)
        , m_before(m_clip.inside().x0 - area.x0)
        , m_whole(m_clip.inside().width() == area.width())
        , m_zeros(zeroRow(scratch, area.width()))
        , m_out(m_whole ? MutableRow{} : allocateRow(scratch, area.width()))
    {
        if (!m_clip.inside().isEmpty())
            m_source = source.open(render, m_clip.inside(), scratch);
    }
    Row row(int y) override
    {
        if (!m_clip.hasRow(y))
            return m_zeros;
        const Row source = m_source->row(y);
        if (m_whole)
            return source;
        copyRow(source, {m_out.r + m_before, m_out.g + m_before, m_out.b + m_before, m_out.a + m_before},
            m_clip.inside().width());
        m_clip.clearOutside(m_out);
        return m_out;
    }

private:
    ExtentClip m_clip;
    int m_before;
    bool m_whole;
    Row m_zeros;
    MutableRow m_out;
    std::unique_ptr<RowReader> m_source;
};

/// As above.
class CropCodes : public CodeReader {
public:
    CropCodes(const Node& source, const CIRect& extent, const Render& render, const GridRect& area, Scratch& scratch)
        : m_inside(area.intersected(render.grid.cellsIn(extent)))
        , m_before(std::size_t(m_inside.x0 - area.x0) * 4)
        , m_isWhole(m_inside.width() == area.width())
        , m_row(static_cast<std::uint8_t*>(scratch.bytes(std::size_t(area.width()) * 4)))
        , m_zeros(static_cast<std::uint8_t*>(scratch.bytes(std::size_t(area.width()) * 4)))
    {
        std::memset(m_row, 0, std::size_t(area.width()) * 4);
        std::memset(m_zeros, 0, std::size_t(area.width()) * 4);
        if (!m_inside.isEmpty())
            m_source = source.openCodes(render, m_inside, scratch);
    }
    const std::uint8_t* row(int y) override
    {
        if (!m_source || y < m_inside.y0 || y >= m_inside.y1)
            return m_zeros;
        const std::uint8_t* const source = m_source->row(y);
        if (m_isWhole)
            return source;
        std::memcpy(m_row + m_before, source, std::size_t(m_inside.width()) * 4);
        return m_row;
    }

private:
    GridRect m_inside;
    std::size_t m_before;
    bool m_isWhole;
    std::uint8_t *m_row, *m_zeros;
    std::unique_ptr<CodeReader> m_source;
};

class CropNode : public WrapperNode {
public:
    bool codeTables(const Render& render, CodeTables& tables) const override
    {
        return m_source->codeTables(render, tables);
    }
    bool hasCodes(const Render& render, CodeForm& form) const override { return m_source->hasCodes(render, form); }
    CropNode(NodePtr source, const CIRect& rect)
        : WrapperNode(source, source->extent().intersected(rect), source->isOpaque())
    {
    }
    std::unique_ptr<RowReader> open(const Render& render, const GridRect& area, Scratch& scratch) const override
    {
        return std::make_unique<CropReader>(*m_source, extent(), render, area, scratch);
    }
    std::unique_ptr<CodeReader> openCodes(const Render& render, const GridRect& area, Scratch& scratch) const override
    {
        return std::make_unique<CropCodes>(*m_source, extent(), render, area, scratch);
    }
};

class ShiftNode : public WrapperNode {
public:
    ShiftNode(NodePtr source, double dx, double dy)
        : WrapperNode(source, source->extent().translated(dx, dy), source->isOpaque())
        , m_dx(dx)
        , m_dy(dy)
    {
    }
    void prepare(const Render& render) const override { m_source->prepare(shifted(render)); }
    int reach(const Grid& grid) const override { return m_source->reach(grid); }
    std::unique_ptr<RowReader> open(const Render& render, const GridRect& area, Scratch& scratch) const override
    {
        return m_source->open(shifted(render), area, scratch);
    }
    bool hasCodes(const Render& render, CodeForm& form) const override
    {
        return m_source->hasCodes(shifted(render), form);
    }
    std::unique_ptr<CodeReader> openCodes(const Render& render, const GridRect& area, Scratch& scratch) const override
    {
        return m_source->openCodes(shifted(render), area, scratch);
    }
    bool codeTables(const Render& render, CodeTables& tables) const override
    {
        return m_source->codeTables(shifted(render), tables);
    }
    std::shared_ptr<const GridCopy> copyFor(const Grid& grid) const override
    {
        return m_source->copyFor(shifted(grid));
    }

private:
    Grid shifted(Grid grid) const
    {
        grid.phaseX -= m_dx * grid.scale;
        grid.phaseY -= m_dy * grid.scale;
        return grid;
    }
    Render shifted(const Render& render) const { return render.withGrid(shifted(render.grid)); }
    double m_dx, m_dy;
};

/// What of the inside is repeated to fill an area: the nearest row, and its end pixels.
class Repetition {
public:
    Repetition(const GridRect& inside, const GridRect& area)
        : m_inside(inside)
        , m_area(area)
        , m_read(nearest(area, inside))
    {
    }
    /// The part of the inside that is needed.
    const GridRect& read() const { return m_read; }
    int rowFor(int y) const { return std::clamp(y, m_inside.y0, m_inside.y1 - 1); }
    /// A row of `read` into a row of the area.
    template <class T>
    void spread(const T* from, T* to) const
    {
        const int width = m_area.width();
        const int before = std::clamp(m_read.x0 - m_area.x0, 0, width);
        const int copied = std::clamp(std::min(m_read.x1, m_area.x1) - m_area.x0 - before, 0, width - before);
        std::fill_n(to, before, from[0]);
        std::copy_n(from + std::max(0, m_area.x0 + before - m_read.x0), copied, to + before);
        std::fill_n(to + before + copied, width - before - copied, from[m_read.width() - 1]);
    }

private:
    static GridRect nearest(const GridRect& area, const GridRect& inside)
    {
        const auto nearestSpan = [](int& from, int& to, int low, int high) {
            from = std::clamp(from, low, high - 1);
            to = std::clamp(to, from + 1, high);
        };
        GridRect r = area;
        nearestSpan(r.x0, r.x1, inside.x0, inside.x1);
        nearestSpan(r.y0, r.y1, inside.y0, inside.y1);
        return r;
    }

    GridRect m_inside, m_area, m_read;
};

class ClampReader : public RowReader {
public:
    ClampReader(const Node& source, const Repetition& repetition, const Render& render, int width, Scratch& scratch)
        : m_repetition(repetition)
        , m_out(allocateRow(scratch, width))
        , m_source(source.open(render, repetition.read(), scratch))
    {
    }
    Row row(int y) override
    {
        const Row source = m_source->row(m_repetition.rowFor(y));
        m_repetition.spread(source.r, m_out.r);
        m_repetition.spread(source.g, m_out.g);
        m_repetition.spread(source.b, m_out.b);
        m_repetition.spread(source.a, m_out.a);
        return m_out;
    }

private:
    Repetition m_repetition;
    MutableRow m_out;
    std::unique_ptr<RowReader> m_source;
};

class ClampCodes : public CodeReader {
public:
    ClampCodes(const Node& source, const Repetition& repetition, const Render& render, int width, Scratch& scratch)
        : m_repetition(repetition)
        , m_out(static_cast<std::uint32_t*>(scratch.bytes(std::size_t(width) * sizeof(std::uint32_t))))
        , m_source(source.openCodes(render, repetition.read(), scratch))
    {
    }
    const std::uint8_t* row(int y) override
    {
        m_repetition.spread(reinterpret_cast<const std::uint32_t*>(m_source->row(m_repetition.rowFor(y))), m_out);
        return reinterpret_cast<const std::uint8_t*>(m_out);
    }

private:
    Repetition m_repetition;
    std::uint32_t* m_out;
    std::unique_ptr<CodeReader> m_source;
};

class ClampNode : public WrapperNode {
public:
    explicit ClampNode(NodePtr source)
        : WrapperNode(source, CIRect::infinite(), source->isOpaque())
    {
    }
    CIRect repeats() const override { return m_source->extent(); }
    std::unique_ptr<RowReader> open(const Render& render, const GridRect& area, Scratch& scratch) const override
    {
        const GridRect inside = render.grid.cellsIn(m_source->extent());
        if (inside.isEmpty()) // too small to have a cell of its own on this grid
            return std::make_unique<ConstantReader>(Pixel<float>{0, 0, 0, 0}, area.width(), scratch);
        return std::make_unique<ClampReader>(*m_source, Repetition(inside, area), render, area.width(), scratch);
    }
    bool hasCodes(const Render& render, CodeForm& form) const override
    {
        return m_source->hasCodes(render, form) && !render.grid.cellsIn(m_source->extent()).isEmpty();
    }
    std::unique_ptr<CodeReader> openCodes(const Render& render, const GridRect& area, Scratch& scratch) const override
    {
        const Repetition repetition(render.grid.cellsIn(m_source->extent()), area);
        return std::make_unique<ClampCodes>(*m_source, repetition, render, area.width(), scratch);
    }
};

} // namespace

NodePtr constantNode(const Pixel<float>& color) { return std::make_shared<ConstantNode>(color); }

NodePtr cropNode(NodePtr source, const CIRect& rect)
{
    if (rect.contains(source->extent()) && !source->extent().isInfinite())
        return source;
    return std::make_shared<CropNode>(std::move(source), rect);
}

NodePtr shiftNode(NodePtr source, double dx, double dy)
{
    if (dx == 0 && dy == 0)
        return source;
    return std::make_shared<ShiftNode>(std::move(source), dx, dy);
}

NodePtr clampNode(NodePtr source)
{
    if (source->extent().isInfinite() || source->extent().isEmpty())
        return source;
    return std::make_shared<ClampNode>(std::move(source));
}

} // namespace ci
