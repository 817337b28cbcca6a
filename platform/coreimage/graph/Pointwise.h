// Nodes whose every pixel depends on the pixels at the same place alone: color filters, blends, generators.
#pragma once

#include "platform/coreimage/graph/Node.h"
#include "platform/coreimage/Values.h"

namespace ci {

/// A kernel made ready for one area: works on rows.
class RowKernel {
public:
    virtual ~RowKernel() = default;
    /// `count` cells from column `x` of row `y` on; `in` has one row for each image.
    virtual void run(const Row* in, const MutableRow& out, const Grid& grid, int x, int y, int count) const = 0;
};

/// What a kernel is for the graph: how it is made, and what it promises.
struct PointwiseKernel {
    /// `opaque`: wherever it runs, all images have alpha 1.
    std::unique_ptr<RowKernel> (*make)(const Values&, const Render&, bool opaque);
    bool keepsAlpha = false; // alpha leaves as it came in with the first image
    bool opaque = false; // alpha is 1 whatever comes in
    bool perComponent = false; // each component depends on itself alone, wherever the pixel lies
};

NodePtr pointwiseNode(
    const PointwiseKernel&, std::shared_ptr<const Values>, std::vector<NodePtr> images, const CIRect& extent);

} // namespace ci
