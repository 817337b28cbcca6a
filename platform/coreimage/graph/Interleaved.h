// Pixels side by side in memory, four floats each: what sampling reads.
#pragma once

#include "platform/coreimage/graph/Node.h"

#include <memory>

namespace ci {

/// Four floats side by side: one pixel.
using Quad = float __attribute__((vector_size(16)));

inline Quad loadQuad(const float* p)
{
    Quad q;
    __builtin_memcpy(&q, p, sizeof q);
    return q;
}

void interleave(const Row& row, int count, float* pixels);
void deinterleave(const float* pixels, int count, const MutableRow& row);

/// The pixels of `area`, which has a transparent rim around the image; row 0 is the lowest. One more column and one
/// more row repeat the last, so that right and upper neighbors can be read without asking.
struct InterleavedView {
    GridRect area;
    int stride = 0; // floats from one row to the next
    const float* pixels = nullptr;

    static int strideFor(const GridRect& area) { return (area.width() + 1) * 4; }
    static std::size_t floatsFor(const GridRect& area)
    {
        return std::size_t(strideFor(area)) * std::size_t(area.height() + 1);
    }
    const float* at(int x, int y) const
    {
        return pixels + std::ptrdiff_t(y - area.y0) * stride + std::ptrdiff_t(x - area.x0) * 4;
    }
};

/// Writes row `y` of a view's memory, with its extra column, and the extra row after the last.
void writeViewRow(float* memory, const GridRect& area, int y, const Row& row);

/// A whole image rendered onto one grid, that all tiles of a render share.
class GridCopy {
public:
    /// Renders `node` in parallel. Null when that was cancelled, or when it would be larger than
    /// `mostCells`.
    static std::shared_ptr<const GridCopy> make(const Node& node, const Render&, double mostCells);
    /// True when the cells of `grid` are those of the copy, perhaps counted from elsewhere.
    bool fits(const Grid& grid) const;
    /// The pixels, counted as `grid` counts them.
    InterleavedView viewOn(const Grid& grid) const;

private:
    Grid m_grid;
    GridRect m_area;
    std::unique_ptr<float[]> m_pixels;
};

std::unique_ptr<RowReader> readCopy(
    std::shared_ptr<const GridCopy>, const CIRect& extent, const Render&, const GridRect& area, Scratch&);

/// The same image, computed once for each render as a whole. For images that are read far from where they are
/// asked for, again and again; finite ones only. Images of more than `mostCells` are worked out where they are needed.
NodePtr sharedNode(NodePtr, double mostCells = 4e7);
/// The same with the edge pixels repeated a little way out, so that reading at the very edge meets no transparency.
NodePtr sharedTileNode(NodePtr);

} // namespace ci
