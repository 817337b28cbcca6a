// The graph behind CIImage, and how its rows are pulled through it.
#pragma once

#include "platform/coreimage/CIContext.h"
#include "platform/coreimage/CIGeometry.h"
#include "platform/coreimage/graph/Scratch.h"

#include <cmath>
#include <memory>
#include <optional>

namespace ci {

class GridCopy;

/// Whole grid cells: columns x0 to x1 - 1, rows y0 to y1 - 1, y up.
struct GridRect {
    int x0 = 0, y0 = 0, x1 = 0, y1 = 0;
    int width() const { return x1 - x0; }
    int height() const { return y1 - y0; }
    bool isEmpty() const { return x1 <= x0 || y1 <= y0; }
    GridRect grown(int dx, int dy) const { return {x0 - dx, y0 - dy, x1 + dx, y1 + dy}; }
    GridRect intersected(const GridRect&) const;
    bool operator==(const GridRect&) const = default;
};

/// Division that rounds down, also for cells left of zero.
inline int floorDiv(int a, int b) { return a >= 0 ? a / b : -((b - 1 - a) / b); }

/// The lattice a render is computed on. The center of cell (i, j) lies at picture position
/// ((i + 0.5 + phaseX) / scale, (j + 0.5 + phaseY) / scale).
struct Grid {
    double scale = 1, phaseX = 0, phaseY = 0;

    float xAt(int column) const { return float((column + 0.5 + phaseX) / scale); }
    float yAt(int row) const { return float((row + 0.5 + phaseY) / scale); }
    float step() const { return float(1 / scale); } // picture pixels
    /// The cells whose centers lie in the rectangle.
    GridRect cellsIn(const CIRect&) const;
    /// The cells that touch the rectangle.
    GridRect cellsTouching(const CIRect&) const;
    bool operator==(const Grid&) const = default;
};

/// What all readers of one render share.
struct Render {
    Grid grid;
    bool floats = false; // one number at a time instead of batches
    const CIRenderControl* control = nullptr;
    double cells = 0; // how many are wanted in all

    bool isCancelled() const { return control && control->isCancelled(); }
    Render withGrid(const Grid& g) const
    {
        Render copy = *this;
        copy.grid = g;
        return copy;
    }
};

/// One row of premultiplied linear pixels as four planes; whole batches past the end may be read.
struct Row {
    const float* r;
    const float* g;
    const float* b;
    const float* a;
};
struct MutableRow {
    float* r;
    float* g;
    float* b;
    float* a;
    operator Row() const { return {r, g, b, a}; }
};

/// Delivers the rows of one area of one node. A row stays valid until the next is asked for; transparent black
/// outside the node's extent.
class RowReader {
public:
    virtual ~RowReader() = default;
    virtual Row row(int y) = 0; // rows may be asked for in any order, upwards is quickest
};

/// What four bytes of a pixel mean.
struct CodeForm {
    CIFormat format = CIFormat::RGBA8;
    CIColorSpace space = CIColorSpace::SRGB;
    bool operator==(const CodeForm&) const = default;
};

/// Delivers codes as a `RowReader` delivers floats: four bytes a pixel, each pixel opaque or 0.
class CodeReader {
public:
    explicit CodeReader(CodeForm form)
        : m_form(form)
    {
    }
    virtual ~CodeReader() = default;
    CodeForm form() const { return m_form; }
    virtual const std::uint8_t* row(int y) = 0;

private:
    CodeForm m_form;
};

/// An opaque 8-bit bitmap, and what becomes of its codes, each component on its own.
struct CodeTable {
    const CIBitmap* bitmap = nullptr; // the node's
    int left = 0, top = 0; // the cell of its left column, and the one above its top row
    alignas(64) float planes[4][256] = {}; // linear components for each code
    MutableRow row() { return {planes[0], planes[1], planes[2], planes[3]}; }
};

/// What a node can be opened as.
enum class Form {
    Rows, // floats: every node has these
    Codes, // 8-bit codes
    Table, // a bitmap that covers the area, seen through a table
    Copy, // the whole image on this grid, where it lies in memory; the area does not matter
};

/// The one that was asked for, or nothing.
struct Opened {
    std::unique_ptr<RowReader> rows = {};
    std::unique_ptr<CodeReader> codes = {};
    std::unique_ptr<CodeTable> table = {};
    std::shared_ptr<const GridCopy> copy = {};
};

class Node {
public:
    virtual ~Node() = default;

    const CIRect& extent() const { return m_extent; }
    /// True when alpha is 1 in the whole extent.
    bool isOpaque() const { return m_opaque; }
    /// Beyond this rectangle the image is transparent, or repeats what lies nearest in it; perhaps infinite.
    virtual CIRect repeats() const { return m_extent; }
    /// Called once before the tiles of a render, on one thread: the place to build what all tiles share.
    virtual void prepare(const Render&) const { }
    /// The cells of `area` in the form that the caller accepts, or nothing where the image can't be had in it. Buffers
    /// come from `scratch` and live until it is rewound. Whether there are codes does not depend on the area, and an
    /// empty one costs no work.
    virtual Opened open(const Render&, const GridRect& area, Form accepts, Scratch& scratch) const = 0;
    std::unique_ptr<RowReader> rows(const Render& render, const GridRect& area, Scratch& scratch) const
    {
        return open(render, area, Form::Rows, scratch).rows;
    }
    std::shared_ptr<const GridCopy> copy(const Render& render) const
    {
        return open(render, {}, Form::Copy, Scratch::ofThread()).copy;
    }
    /// Nothing where the node can't be opened as codes.
    std::optional<CodeForm> codeForm(const Render&) const;
    /// How far, in cells, the graph below reads beyond what is asked of it: decides the size of tiles. 0 for nodes
    /// that work row by row, at least 1 for those that buffer their whole area.
    virtual int reach(const Grid&) const { return 0; }

protected:
    Node(const CIRect& extent, bool opaque)
        : m_extent(extent)
        , m_opaque(opaque)
    {
    }

private:
    CIRect m_extent;
    bool m_opaque;
};

using NodePtr = std::shared_ptr<const Node>;

MutableRow allocateRow(Scratch&, int width);
/// A row of zeros.
Row zeroRow(Scratch&, int width);

/// The part of a reader's row that lies in the node's extent; what lies outside becomes transparent.
class ExtentClip {
public:
    ExtentClip(const CIRect& extent, const Render& render, const GridRect& area);
    bool hasRow(int y) const { return y >= m_inside.y0 && y < m_inside.y1 && m_inside.x0 < m_inside.x1; }
    void clearOutside(const MutableRow& row) const;
    const GridRect& inside() const { return m_inside; }

private:
    GridRect m_area, m_inside;
};

} // namespace ci
