// Pixels as 8-bit bitmaps store them. Filters that only choose among values (order is the same in codes and in light)
// work on these: nothing is converted, and a register holds four times as many.
#pragma once

#include "platform/coreimage/graph/Node.h"

namespace ci {

/// A block of values: the codes of an area, four a cell, or one plane of floats. Whole batches past the end of a line
/// may be read and written.
template <class T>
struct Sheet {
    GridRect area;
    std::size_t stride = 0;
    int step = 1; // values a cell
    T* first = nullptr;

    T* at(int x, int y) const
    {
        return first + std::ptrdiff_t(y - area.y0) * std::ptrdiff_t(stride) + std::ptrdiff_t(x - area.x0) * step;
    }
    T* line(int y) const { return at(area.x0, y); }
    int length() const { return area.width() * step; } // of a line
};

using CodeSheet = Sheet<std::uint8_t>;

CodeSheet allocateCodes(const GridRect& area, Scratch&);
/// Fills the sheet from a reader that was opened for its area.
void fillCodes(const CodeSheet&, CodeReader&);
/// The rows of a finished sheet; transparent outside the extent.
std::unique_ptr<CodeReader> readCodes(const CodeSheet&, CodeForm, const CIRect& extent, const Render&);
/// The same rows, turned into floats.
std::unique_ptr<RowReader> decodeCodes(const CodeSheet&, CodeForm, const CIRect& extent, const Render&, Scratch&);

} // namespace ci
