#include "platform/coreimage/graph/Sample.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace ci {

void SampledArea::use(const InterleavedView& view, const Grid& grid)
{
    m_scale = float(grid.scale);
    m_left = float(view.area.x0 + 0.5 + grid.phaseX);
    m_bottom = float(view.area.y0 + 0.5 + grid.phaseY);
    m_lastX = float(view.area.width() - 1);
    m_lastY = float(view.area.height() - 1);
    m_stride = view.stride;
    m_pixels = view.pixels;
}

SampledArea::SampledArea(const Node& node, const Render& render, const GridRect& wanted, Scratch& scratch)
    : m_copy(node.copyFor(render.grid))
{
    if (m_copy) {
        use(m_copy->viewOn(render.grid), render.grid);
        return;
    }
    const GridRect known = render.grid.cellsIn(node.extent());
    GridRect area = wanted.grown(1, 1);
    if (known.isEmpty())
        area = {0, 0, 1, 1};
    else
        area = {std::clamp(area.x0, known.x0 - 1, known.x1), std::clamp(area.y0, known.y0 - 1, known.y1),
            std::clamp(area.x1, known.x0, known.x1 + 1), std::clamp(area.y1, known.y0, known.y1 + 1)};
    area.x1 = std::max(area.x1, area.x0 + 1);
    area.y1 = std::max(area.y1, area.y0 + 1);

    float* pixels = scratch.floats(InterleavedView::floatsFor(area));
    const ScratchScope scope(scratch);
    const auto reader = node.open(render, area, scratch);
    for (int y = area.y0; y < area.y1; ++y)
        writeViewRow(pixels, area, y, reader->row(y));
    use({area, InterleavedView::strideFor(area), pixels}, render.grid);
}

namespace {

constexpr double kUnsplit = 1e300;
constexpr int kSmallestBlock = 16; // cells a side; below it a far-flung region is taken as it is

class SampleNode : public Node {
public:
    SampleNode(const SampleKernels& kernels, std::shared_ptr<const Values> values, std::vector<NodePtr> images,
        const CIRect& extent, bool opaque)
        : Node(extent, opaque)
        , m_kernels(kernels)
        , m_values(std::move(values))
        , m_images(std::move(images))
    {
    }
    void prepare(const Render& render) const override
    {
        for (const NodePtr& image : m_images)
            image->prepare(render);
    }
    int reach(const Grid& grid) const override
    {
        int most = 0;
        for (const NodePtr& image : m_images)
            most = std::max(most, image->reach(grid));
        return most + 1;
    }
    std::unique_ptr<RowReader> open(const Render& render, const GridRect& area, Scratch& scratch) const override
    {
        const Planes out = Planes::allocate(area, scratch);
        const GridRect needed = area.intersected(render.grid.cellsIn(extent()));
        if (!needed.isEmpty()) {
            const auto kernel = (render.floats ? m_kernels.floats : m_kernels.batches)(*m_values, render.grid);
            fill(*kernel, render, out, needed, scratch, kUnsplit);
        }
        return std::make_unique<PlanesReader>(out, extent(), render, area);
    }

private:
    /// Blocks whose places lie far apart in the images are split, so that no block reads much more than it writes.
    void fill(SampleKernel& kernel, const Render& render, const Planes& out, const GridRect& block, Scratch& scratch,
        double readBefore) const
    {
        if (render.isCancelled())
            return;
        const ScratchScope scope(scratch);
        std::vector<GridRect> regions;
        double read = 0;
        for (std::size_t i = 0; i < m_images.size(); ++i) {
            const GridRect known = render.grid.cellsIn(m_images[i]->extent());
            regions.push_back(kernel.region(i, render.grid, block, scratch));
            if (m_images[i]->copyFor(render.grid))
                continue; // reading it anywhere costs nothing
            const GridRect inside = regions.back().intersected(known);
            read += double(inside.width()) * inside.height();
        }
        const double written = double(block.width()) * block.height();
        const bool shrinks = read < 0.9 * readBefore; // else splitting only reads the same again
        if (shrinks && read > 16384 + 4 * written * double(std::max<std::size_t>(m_images.size(), 1))
            && std::max(block.width(), block.height()) > kSmallestBlock) {
            GridRect first = block, second = block;
            if (block.width() >= block.height())
                first.x1 = second.x0 =
                    block.x0 + (block.width() / 2 + kSmallestBlock - 1) / kSmallestBlock * kSmallestBlock;
            else
                first.y1 = second.y0 = block.y0 + block.height() / 2;
            fill(kernel, render, out, first, scratch, read);
            if (!second.isEmpty())
                fill(kernel, render, out, second, scratch, read);
            return;
        }
        std::vector<SampledArea> areas;
        areas.reserve(m_images.size());
        for (std::size_t i = 0; i < m_images.size(); ++i)
            areas.emplace_back(*m_images[i], render, regions[i], scratch);
        kernel.run(areas.data(), render.grid, out, block);
    }

    SampleKernels m_kernels;
    std::shared_ptr<const Values> m_values;
    std::vector<NodePtr> m_images;
};

} // namespace

NodePtr sampleNode(const SampleKernels& kernels, std::shared_ptr<const Values> values, std::vector<NodePtr> images,
    const CIRect& extent, bool opaque)
{
    return std::make_shared<SampleNode>(kernels, std::move(values), std::move(images), extent, opaque);
}

} // namespace ci
