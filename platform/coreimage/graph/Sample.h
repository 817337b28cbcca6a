// Nodes that read images at other places than their own: warps and general kernels.
#pragma once

#include "platform/coreimage/graph/Planes.h"
#include "platform/coreimage/kernel/Sampler.h"
#include "platform/coreimage/Values.h"

namespace ci {

/// A kernel made ready for one render.
class SampleKernel {
public:
    virtual ~SampleKernel() = default;
    /// The cells of image `index`, on its grid, that the block needs. Called for every image before `run`; what is
    /// worked out here may be kept in `scratch` until then. `guides` are those of the images before.
    virtual GridRect region(std::size_t index, const Grid&, const Grid& imageGrid, const GridRect& block,
        const SampledArea* guides, Scratch& scratch) = 0;
    /// How many of the first images are read before the regions of the others are asked for.
    virtual std::size_t guideCount() const { return 0; }
    virtual void run(const SampledArea* images, const Grid&, const Planes& out, const GridRect& block) = 0;
};

using MakeSampleKernel = std::unique_ptr<SampleKernel> (*)(const Values&, const Render&);

/// `magnification`: how many cells of the result one pixel of the last image fills along each axis, roughly. That image
/// is read on a coarser or finer grid accordingly: what shrinks does not alias, what grows stays sharp on reduced
/// grids.
NodePtr sampleNode(MakeSampleKernel, std::shared_ptr<const Values>, std::vector<NodePtr> images, const CIRect& extent,
    bool opaque = false, double magnification = 1);

} // namespace ci
