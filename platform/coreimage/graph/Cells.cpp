#include "platform/coreimage/graph/Cells.h"

#include "platform/coreimage/graph/Basics.h"

#include <algorithm>

namespace ci {

namespace {

/// Reads the image on a grid whose steps are the squares, and repeats each of its cells.
class CellsReader : public RowReader {
public:
    CellsReader(const Node& source, const Render& render, const Grid& squares, const GridRect& area, Scratch& scratch)
        : m_grid(render.grid)
        , m_squares(squares)
        , m_width(area.width())
        , m_out(allocateRow(scratch, area.width()))
    {
        m_columns = static_cast<int*>(scratch.bytes(std::size_t(m_width) * sizeof(int)));
        const auto column = [&](int x) { return square(double(x) + 0.5 + m_grid.phaseX, squares.phaseX); };
        const int left = column(area.x0);
        for (int x = 0; x < m_width; ++x)
            m_columns[x] = column(area.x0 + x) - left;
        m_source = source.rows(render.withGrid(squares),
            {left, line(area.y0), left + m_columns[m_width - 1] + 1, line(area.y1 - 1) + 1}, scratch);
        m_line = line(area.y0) - 1;
    }
    Row row(int y) override
    {
        if (line(y) != m_line) {
            m_line = line(y);
            const Row source = m_source->row(m_line);
            for (int x = 0; x < m_width; ++x) {
                const int from = m_columns[x];
                m_out.r[x] = source.r[from], m_out.g[x] = source.g[from];
                m_out.b[x] = source.b[from], m_out.a[x] = source.a[from];
            }
        }
        return m_out;
    }

private:
    /// The square that a place, in cells of the render, lies in.
    int square(double place, double phase) const
    {
        return int(std::floor(place / m_grid.scale * m_squares.scale - phase + 1e-9));
    }
    int line(int y) const { return square(double(y) + 0.5 + m_grid.phaseY, m_squares.phaseY); }

    Grid m_grid, m_squares;
    int m_width, m_line;
    MutableRow m_out;
    int* m_columns;
    std::unique_ptr<RowReader> m_source;
};

class CellsNode : public WrapperNode {
public:
    CellsNode(NodePtr source, CIPoint origin, double size)
        : WrapperNode(source, source->extent(), source->isOpaque() && source->extent().isInfinite())
    {
        m_squares.scale = 1 / size;
        m_squares.phaseX = origin.x / size;
        m_squares.phaseY = origin.y / size;
    }
    int reach(const Grid& grid) const override { return m_source->reach(grid); }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        if (accepts != Form::Rows)
            return {};
        return {.rows = std::make_unique<CellsReader>(*m_source, render, m_squares, area, scratch)};
    }

protected:
    Grid sourceGrid(const Grid&) const override { return m_squares; }

private:
    Grid m_squares;
};

} // namespace

CIImage cells(const CIImage& image, CIPoint origin, double size)
{
    if (image.isNull() || size <= 1)
        return image;
    return CIImage(std::make_shared<CellsNode>(image.node(), origin, size));
}

} // namespace ci
