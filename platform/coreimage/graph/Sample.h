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
    /// The cells of image `index` that the block needs. Called for every image before `run`; what is worked out here
    /// may be kept in `scratch` until then.
    virtual GridRect region(std::size_t index, const Grid&, const GridRect& block, Scratch& scratch) = 0;
    virtual void run(const SampledArea* images, const Grid&, const Planes& out, const GridRect& block) = 0;
};

using MakeSampleKernel = std::unique_ptr<SampleKernel> (*)(const Values&, const Grid&);
struct SampleKernels {
    MakeSampleKernel batches, floats;
};

NodePtr sampleNode(const SampleKernels&, std::shared_ptr<const Values>, std::vector<NodePtr> images,
    const CIRect& extent, bool opaque = false);

} // namespace ci
