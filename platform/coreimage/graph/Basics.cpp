#include "platform/coreimage/graph/Basics.h"

#include "platform/coreimage/graph/Frame.h"

#include <algorithm>

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
    Opened open(const Render&, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        if (accepts != Form::Rows)
            return {};
        return {.rows = std::make_unique<ConstantReader>(m_color, area.width(), scratch)};
    }

private:
    Pixel<float> m_color;
};

class FramedCodes : public CodeReader {
public:
    FramedCodes(std::unique_ptr<CodeReader> source, const Frame& frame, int width, Scratch& scratch)
        : CodeReader(source->form())
        , m_frame(frame)
        , m_zeros(pixels(scratch, width))
        , m_out(pixels(scratch, width))
        , m_source(std::move(source))
    {
        std::fill_n(m_zeros, width, 0);
    }
    const std::uint8_t* row(int y) override
    {
        const std::optional<int> line = m_frame.rowFor(y);
        if (line)
            m_frame.spread(reinterpret_cast<const std::uint32_t*>(m_source->row(*line)), m_out);
        return reinterpret_cast<const std::uint8_t*>(line ? m_out : m_zeros);
    }

private:
    static std::uint32_t* pixels(Scratch& scratch, int width)
    {
        return static_cast<std::uint32_t*>(scratch.bytes(std::size_t(width) * sizeof(std::uint32_t)));
    }
    Frame m_frame;
    std::uint32_t *m_zeros, *m_out;
    std::unique_ptr<CodeReader> m_source;
};

/// The part of an image that lies inside a rectangle, alone or with its edges repeated.
class FrameNode : public WrapperNode {
public:
    FrameNode(NodePtr source, const CIRect& inside, bool repeats)
        : WrapperNode(source, repeats ? CIRect::infinite() : inside, source->isOpaque())
        , m_inside(inside)
        , m_repeats(repeats)
    {
    }
    CIRect repeats() const override { return m_inside; }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        const GridRect inside = render.grid.cellsIn(m_inside);
        const bool asRows = accepts == Form::Rows;
        if (inside.isEmpty() && asRows) // too small to have a cell of its own on this grid
            return {.rows = std::make_unique<ConstantReader>(Pixel<float>{0, 0, 0, 0}, area.width(), scratch)};
        if (inside.isEmpty() || accepts == Form::Copy)
            return {};
        const Frame frame(inside, area, m_repeats);
        if (frame.isWhole())
            return m_source->open(render, area, accepts, scratch);
        if (asRows)
            return {.rows = framedRows(frame, area, scratch,
                        [&](const GridRect& read) { return m_source->rows(render, read, scratch); })};
        Opened source = accepts == Form::Codes ? m_source->open(render, frame.read(), accepts, scratch) : Opened();
        if (source.codes)
            source.codes = std::make_unique<FramedCodes>(std::move(source.codes), frame, area.width(), scratch);
        return source;
    }

private:
    CIRect m_inside;
    bool m_repeats;
};

class ShiftNode : public WrapperNode {
public:
    ShiftNode(NodePtr source, double dx, double dy)
        : WrapperNode(source, source->extent().translated(dx, dy), source->isOpaque())
        , m_dx(dx)
        , m_dy(dy)
    {
    }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        // A copy would be counted as the source's grid counts.
        return accepts == Form::Copy ? Opened() : WrapperNode::open(render, area, accepts, scratch);
    }

protected:
    Grid sourceGrid(const Grid& grid) const override
    {
        return {grid.scale, grid.phaseX - m_dx * grid.scale, grid.phaseY - m_dy * grid.scale};
    }

private:
    double m_dx, m_dy;
};

} // namespace

NodePtr constantNode(const Pixel<float>& color) { return std::make_shared<ConstantNode>(color); }

NodePtr cropNode(NodePtr source, const CIRect& rect)
{
    if (rect.contains(source->extent()) && !source->extent().isInfinite())
        return source;
    return std::make_shared<FrameNode>(source, source->extent().intersected(rect), false);
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
    return std::make_shared<FrameNode>(source, source->extent(), true);
}

} // namespace ci
