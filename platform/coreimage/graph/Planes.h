// A block of pixels as four planes: what passes read and write.
#pragma once

#include "platform/coreimage/graph/Codes.h"
#include "platform/coreimage/graph/Node.h"
#include "platform/coreimage/kernel/Batch.h"

#include <algorithm>

namespace ci {

/// Premultiplied linear pixels of `area`; rows are `stride` floats apart and padded to whole batches.
struct Planes {
    GridRect area;
    std::size_t stride = 0;
    float* plane[4] = {};

    static Planes allocate(const GridRect& area, Scratch&);
    float* line(int c, int y) const { return plane[c] + std::size_t(y - area.y0) * stride; }
    float* at(int c, int x, int y) const { return line(c, y) + (x - area.x0); }
    /// The row from column `x` on.
    MutableRow row(int y, int x) const { return {at(0, x, y), at(1, x, y), at(2, x, y), at(3, x, y)}; }
    MutableRow row(int y) const { return row(y, area.x0); }
    Sheet<float> sheet(int c) const { return {area, stride, 1, plane[c]}; }
    /// Fills the area from a reader that was opened for it.
    void fill(RowReader&) const;
};

/// True when every value of the plane is 1, as the alpha of most pictures is.
bool isOne(const Planes& p, int c);
/// True when the planes `c` and `d` are the same, as the colors of gray pictures are.
bool areEqual(const Planes& p, int c, int d);

/// Works `each(c)` out for the planes that need it; where all that is read is opaque, alpha is 1 without work, and
/// where it is gray, one color is enough. `each` may change what it reads.
template <class Each>
void forEachPlane(const Planes& in, const Planes& out, Each each)
{
    const bool opaque = isOne(in, 3);
    const bool same[] = {false, areEqual(in, 1, 0), areEqual(in, 2, 0)};
    for (int c = 0; c < 3; ++c) {
        if (!same[c])
            each(c);
        for (int y = out.area.y0; same[c] && y < out.area.y1; ++y)
            std::copy_n(out.line(0, y), out.area.width(), out.line(c, y));
    }
    if (!opaque)
        each(3);
    for (int y = out.area.y0; opaque && y < out.area.y1; ++y)
        std::fill_n(out.line(3, y), out.area.width(), 1.0f);
}

/// Hands out the rows of a finished block.
class PlanesReader : public RowReader {
public:
    PlanesReader(const Planes& planes, const CIRect& extent, const Render& render, const GridRect& area);
    Row row(int y) override { return m_planes.row(y, m_x); }

private:
    Planes m_planes;
    int m_x;
};

/// A sequence over whole blocks: separable blurs, morphology, medians. Lengths are picture pixels; `run` turns them
/// into cells by the grid's scale.
class PassKernel {
public:
    virtual ~PassKernel() = default;
    /// How many cells around a block are read on each side.
    struct Margin {
        int x = 0, y = 0;
    };
    virtual Margin margin(const Grid&) const = 0;
    /// How many times the image is halved before it is read: `in` and `area` then count in cells of 2^n cells, that
    /// are means. For reaches so wide that reading every cell around each block would be a waste.
    virtual int halvings(const Grid&) const { return 0; }
    /// `in` reads `area`, which covers `out` with the margin (in cells of the render) around it.
    virtual void run(const Render&, RowReader& in, const GridRect& area, const Planes& out, Scratch&) const = 0;
    /// True when every value of the result is one of those read, chosen by their order: codes will do then.
    virtual bool onlyChooses() const { return false; }
    /// Does with codes what `run` does at full size.
    virtual void runOnCodes(CodeReader&, const GridRect&, const Sheet<std::uint8_t>&, Scratch&) const { }
};

/// A pass that reads its block as a whole. It has `work<V>(grid, in, out, scratch)`.
template <class Pass>
class BlockPass : public PassKernel {
public:
    void run(const Render& render, RowReader& reader, const GridRect& area, const Planes& out,
        Scratch& scratch) const override
    {
        const Planes in = Planes::allocate(area, scratch);
        in.fill(reader);
        withLanes(render.floats,
            [&]<class V>() { static_cast<const Pass&>(*this).template work<V>(render.grid, in, out, scratch); });
    }
};

/// `keepsOpaque`: where all that is read is opaque, so is the result.
NodePtr passNode(NodePtr, std::shared_ptr<const PassKernel>, const CIRect& extent, bool keepsOpaque = false);

} // namespace ci
