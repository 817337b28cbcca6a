// The nodes every graph is built from: colors, crops, shifts, clamps.
#pragma once

#include "platform/coreimage/graph/Node.h"
#include "platform/coreimage/kernel/Pixel.h"

namespace ci {

/// One premultiplied linear color everywhere.
NodePtr constantNode(const Pixel<float>&);
NodePtr cropNode(NodePtr, const CIRect&);
/// Moved by (dx, dy) picture pixels; exact on every grid, nothing is resampled.
NodePtr shiftNode(NodePtr, double dx, double dy);
/// The edge pixels repeated without end.
NodePtr clampNode(NodePtr);

/// A node that works on another. It hands everything on; what differs is overridden.
class WrapperNode : public Node {
public:
    void prepare(const Render& render) const override { m_source->prepare(onSource(render)); }
    int reach(const Grid& grid) const override { return m_source->reach(sourceGrid(grid)); }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        return m_source->open(onSource(render), area, accepts, scratch);
    }

protected:
    WrapperNode(NodePtr source, const CIRect& extent, bool opaque)
        : Node(extent, opaque)
        , m_source(std::move(source))
    {
    }
    /// The cells that the source is read in.
    virtual Grid sourceGrid(const Grid& grid) const { return grid; }
    Render onSource(const Render& render) const { return render.withGrid(sourceGrid(render.grid)); }
    NodePtr m_source;
};

} // namespace ci
