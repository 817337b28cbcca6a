// Areas of which a part is read: what crops, clamps and all that has an edge is made with.
#pragma once

#include "platform/coreimage/graph/Node.h"

#include <algorithm>

namespace ci {

/// How the rows of an area are made of the cells inside a rectangle: what lies beyond is transparent, or repeats what
/// is nearest.
class Frame {
public:
    Frame(const GridRect& inside, const GridRect& area, bool repeats)
        : m_area(area)
        , m_read(repeats ? nearest(area, inside) : area.intersected(inside))
        , m_repeats(repeats)
    {
    }
    /// The part of the inside that is needed.
    const GridRect& read() const { return m_read; }
    bool isWhole() const { return m_area.isEmpty() || m_read == m_area; }
    /// The source of a row; nothing where it is transparent.
    std::optional<int> rowFor(int y) const
    {
        const int row = std::clamp(y, m_read.y0, std::max(m_read.y0, m_read.y1 - 1));
        return !m_read.isEmpty() && (m_repeats || row == y) ? std::optional(row) : std::nullopt;
    }
    /// True when rows can stay as they are.
    bool keepsRows() const { return m_read.width() == m_area.width(); }
    /// A row of `read` into a row of the area.
    template <class T>
    void spread(const T* from, T* to) const
    {
        const int width = m_area.width();
        const int before = std::clamp(m_read.x0 - m_area.x0, 0, width);
        const int copied = std::clamp(std::min(m_read.x1, m_area.x1) - m_area.x0 - before, 0, width - before);
        std::fill_n(to, before, m_repeats ? from[0] : T());
        std::copy_n(from + std::max(0, m_area.x0 + before - m_read.x0), copied, to + before);
        std::fill_n(to + before + copied, width - before - copied, m_repeats ? from[m_read.width() - 1] : T());
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

    GridRect m_area, m_read;
    bool m_repeats;
};

class FramedRows : public RowReader {
public:
    /// `source` was opened for what the frame reads; null when that is nothing.
    FramedRows(std::unique_ptr<RowReader> source, const Frame& frame, int width, Scratch& scratch)
        : m_frame(frame)
        , m_source(std::move(source))
        , m_zeros(zeroRow(scratch, width))
        , m_out(frame.keepsRows() ? MutableRow{} : allocateRow(scratch, width))
    {
    }
    Row row(int y) override
    {
        const std::optional<int> line = m_frame.rowFor(y);
        if (!line)
            return m_zeros;
        const Row from = m_source->row(*line);
        if (m_frame.keepsRows())
            return from;
        m_frame.spread(from.r, m_out.r);
        m_frame.spread(from.g, m_out.g);
        m_frame.spread(from.b, m_out.b);
        m_frame.spread(from.a, m_out.a);
        return m_out;
    }

private:
    Frame m_frame;
    std::unique_ptr<RowReader> m_source;
    Row m_zeros;
    MutableRow m_out;
};

/// The rows of `area`; `open` answers a reader for a part of the inside.
template <class Open>
std::unique_ptr<RowReader> framedRows(const Frame& frame, const GridRect& area, Scratch& scratch, const Open& open)
{
    if (frame.isWhole())
        return open(area);
    return std::make_unique<FramedRows>(
        frame.read().isEmpty() ? nullptr : open(frame.read()), frame, area.width(), scratch);
}

} // namespace ci
