#include "platform/coreimage/graph/Sample.h"

#include <algorithm>
#include <cmath>
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
    : m_copy(node.copy(render))
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
    const auto reader = node.rows(render, area, scratch);
    for (int y = area.y0; y < area.y1; ++y)
        writeViewRow(pixels, area, y, reader->row(y));
    use({area, InterleavedView::strideFor(area), pixels}, render.grid);
}

namespace {

constexpr double kUnsplit = 1e300;
constexpr int kSmallestBlock = 16; // cells a side; below it a far-flung region is taken as it is

class SampleNode : public Node {
public:
    SampleNode(MakeSampleKernel make, std::shared_ptr<const Values> values, std::vector<NodePtr> images,
        const CIRect& extent, bool opaque, double magnification)
        : Node(extent, opaque)
        , m_make(make)
        , m_values(std::move(values))
        , m_images(std::move(images))
        , m_magnification(stepped(magnification))
    {
    }
    void prepare(const Render& render) const override
    {
        for (std::size_t i = 0; i < m_images.size(); ++i)
            m_images[i]->prepare(render.withGrid(imageGrid(i, render.grid)));
    }
    int reach(const Grid& grid) const override
    {
        double most = 0;
        for (std::size_t i = 0; i < m_images.size(); ++i) {
            const Grid cells = imageGrid(i, grid);
            most = std::max(most, m_images[i]->reach(cells) * grid.scale / cells.scale);
        }
        return int(most) + 1;
    }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        if (accepts != Form::Rows)
            return {};
        const Planes out = Planes::allocate(area, scratch);
        const GridRect needed = area.intersected(render.grid.cellsIn(extent()));
        if (!needed.isEmpty())
            fill(*m_make(*m_values, render), render, out, needed, scratch, kUnsplit);
        return {.rows = std::make_unique<PlanesReader>(out, extent(), render, area)};
    }

private:
    /// Rounds to steps, so that a slider's move does not need a newly reduced image each time.
    double stepped(double magnification) const
    {
        const CIRect extent = m_images.empty() ? CIRect() : m_images.back()->extent();
        const double smallest = extent.isInfinite() ? 1 : std::min(extent.width, extent.height);
        constexpr double kFewest = 16; // cells that are left of an image, however small it becomes
        const double least = std::min(1.0, kFewest / std::max(smallest, kFewest));
        return std::clamp(std::exp2(std::ceil(2 * std::log2(magnification) - 0.01) / 2), least, 1e4);
    }
    Grid imageGrid(std::size_t index, const Grid& grid) const
    {
        if (index + 1 < m_images.size())
            return grid;
        // A bitmap has no more detail than its pixels.
        const double scale = std::min(grid.scale * m_magnification, std::max(grid.scale, 1.0));
        return m_magnification == 1 || scale == grid.scale ? grid : Grid{scale};
    }

    /// Blocks whose places lie far apart in the images are split, so that no block reads much more than it writes.
    void fill(SampleKernel& kernel, const Render& render, const Planes& out, const GridRect& block, Scratch& scratch,
        double readBefore) const
    {
        if (render.isCancelled())
            return;
        const ScratchScope scope(scratch);
        std::vector<SampledArea> areas;
        areas.reserve(m_images.size());
        std::vector<GridRect> regions;
        double read = 0;
        for (std::size_t i = 0; i < m_images.size(); ++i) {
            const Render on = render.withGrid(imageGrid(i, render.grid));
            regions.push_back(kernel.region(i, render.grid, on.grid, block, areas.data(), scratch));
            if (i < kernel.guideCount())
                areas.emplace_back(*m_images[i], on, regions[i], scratch);
            else if (!m_images[i]->copy(on)) { // reading a copy anywhere costs nothing
                const GridRect inside = regions[i].intersected(on.grid.cellsIn(m_images[i]->extent()));
                read += double(inside.width()) * inside.height();
            }
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
        for (std::size_t i = areas.size(); i < m_images.size(); ++i)
            areas.emplace_back(*m_images[i], render.withGrid(imageGrid(i, render.grid)), regions[i], scratch);
        kernel.run(areas.data(), render.grid, out, block);
    }

    MakeSampleKernel m_make;
    std::shared_ptr<const Values> m_values;
    std::vector<NodePtr> m_images;
    double m_magnification; // of the last image
};

} // namespace

NodePtr sampleNode(MakeSampleKernel make, std::shared_ptr<const Values> values, std::vector<NodePtr> images,
    const CIRect& extent, bool opaque, double magnification)
{
    return std::make_shared<SampleNode>(make, std::move(values), std::move(images), extent, opaque, magnification);
}

} // namespace ci
