#include "platform/coreimage/graph/Pointwise.h"

#include <algorithm>
#include <array>
#include <utility>

namespace ci {

namespace {

constexpr std::size_t kMostImages = 6;

class PointwiseReader : public RowReader {
public:
    PointwiseReader(std::unique_ptr<RowKernel> kernel, std::vector<std::unique_ptr<RowReader>> sources,
        const CIRect& extent, const Render& render, const GridRect& area, Scratch& scratch)
        : m_kernel(std::move(kernel))
        , m_sources(std::move(sources))
        , m_clip(extent, render, area)
        , m_grid(render.grid)
        , m_area(area)
        , m_zeros(zeroRow(scratch, area.width()))
        , m_out(allocateRow(scratch, area.width()))
    {
    }
    Row row(int y) override
    {
        if (!m_clip.hasRow(y))
            return m_zeros;
        std::array<Row, kMostImages> rows;
        for (std::size_t i = 0; i < m_sources.size(); ++i)
            rows[i] = m_sources[i]->row(y);
        m_kernel->run(rows.data(), m_out, m_grid, m_area.x0, y, m_area.width());
        m_clip.clearOutside(m_out);
        return m_out;
    }

private:
    std::unique_ptr<RowKernel> m_kernel;
    std::vector<std::unique_ptr<RowReader>> m_sources;
    ExtentClip m_clip;
    Grid m_grid;
    GridRect m_area;
    Row m_zeros;
    MutableRow m_out;
};

bool allOpaqueOver(const std::vector<NodePtr>& images, const CIRect& extent)
{
    return std::ranges::all_of(images, [&](const NodePtr& i) { return i->isOpaque() && i->extent().contains(extent); });
}

class PointwiseNode : public Node {
public:
    PointwiseNode(const PointwiseKernel& kernel, std::shared_ptr<const Values> values, std::vector<NodePtr> images,
        const CIRect& extent)
        : Node(extent,
            kernel.opaque || (kernel.keepsAlpha && images[0]->isOpaque() && images[0]->extent().contains(extent)))
        , m_kernel(kernel)
        , m_values(std::move(values))
        , m_images(std::move(images))
        , m_opaqueImages(allOpaqueOver(m_images, extent))
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
        return most;
    }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        if (accepts == Form::Table && m_kernel.perComponent && m_kernel.keepsAlpha && m_images.size() == 1)
            return changedTable(m_images[0]->open(render, area, accepts, scratch), render);
        if (accepts != Form::Rows)
            return {};
        std::vector<std::unique_ptr<RowReader>> sources;
        for (const NodePtr& image : m_images)
            sources.push_back(image->rows(render, area, scratch));
        auto kernel = m_kernel.make(*m_values, render, m_opaqueImages);
        return {.rows = std::make_unique<PointwiseReader>(
                    std::move(kernel), std::move(sources), extent(), render, area, scratch)};
    }

private:
    Opened changedTable(Opened source, const Render& render) const
    {
        if (source.table) {
            const Row in = source.table->row();
            m_kernel.make(*m_values, render, true)->run(&in, source.table->row(), render.grid, 0, 0, 256);
        }
        return source;
    }
    PointwiseKernel m_kernel;
    std::shared_ptr<const Values> m_values;
    std::vector<NodePtr> m_images;
    bool m_opaqueImages; // wherever the kernel runs, all images have alpha 1
};

} // namespace

NodePtr pointwiseNode(const PointwiseKernel& kernel, std::shared_ptr<const Values> values, std::vector<NodePtr> images,
    const CIRect& extent)
{
    return std::make_shared<PointwiseNode>(kernel, std::move(values), std::move(images), extent);
}

} // namespace ci
