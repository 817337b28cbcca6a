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

/// What a node's base needs when it works on another.
class WrapperNode : public Node {
public:
    void prepare(const Render& render) const override { m_source->prepare(render); }
    int reach(const Grid& grid) const override { return m_source->reach(grid); }

protected:
    WrapperNode(NodePtr source, const CIRect& extent, bool opaque)
        : Node(extent, opaque)
        , m_source(std::move(source))
    {
    }
    NodePtr m_source;
};

} // namespace ci
