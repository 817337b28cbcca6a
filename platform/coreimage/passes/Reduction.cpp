#include "platform/coreimage/passes/Reduction.h"

#include "platform/coreimage/graph/Basics.h"

#include <mutex>

namespace ci {

namespace {

/// Shows the small image at any scale: every cell the pixel that its center lies in.
class ReducedReader : public RowReader {
public:
    ReducedReader(std::shared_ptr<const Reduced> image, const Render& render, const GridRect& area, Scratch& scratch)
        : m_image(std::move(image))
        , m_grid(render.grid)
        , m_area(area)
        , m_zeros(zeroRow(scratch, area.width()))
        , m_out(allocateRow(scratch, area.width()))
    {
    }
    Row row(int y) override
    {
        const int line = pixel(y, m_grid.phaseY);
        if (!m_image || line < 0 || line >= m_image->height)
            return m_zeros;
        for (int x = 0; x < m_area.width(); ++x) {
            const int column = pixel(m_area.x0 + x, m_grid.phaseX);
            const bool inside = column >= 0 && column < m_image->width;
            const std::size_t index =
                std::size_t(line) * std::size_t(m_image->width) + std::size_t(inside ? column : 0);
            const float* const p = m_image->pixels.data() + 4 * index;
            const float here = inside ? 1.0f : 0.0f;
            m_out.r[x] = p[0] * here, m_out.g[x] = p[1] * here, m_out.b[x] = p[2] * here, m_out.a[x] = p[3] * here;
        }
        return m_out;
    }

private:
    int pixel(int cell, double phase) const
    {
        return int(std::floor(std::clamp((cell + 0.5 + phase) / m_grid.scale, -1e8, 1e8)));
    }
    std::shared_ptr<const Reduced> m_image;
    Grid m_grid;
    GridRect m_area;
    Row m_zeros;
    MutableRow m_out;
};

class ReductionNode : public WrapperNode {
public:
    ReductionNode(NodePtr source, const CIRect& area, int width, int height,
        std::function<Reduced(const ReductionArea&)> reduce, const ReductionLimits& limits)
        : WrapperNode(std::move(source), {0, 0, double(width), double(height)}, false)
        , m_area(area)
        , m_reduce(std::move(reduce))
        , m_limits(limits)
    {
    }
    void prepare(const Render& render) const override
    {
        const Render own = onSource(render);
        if (find(own))
            return;
        const GridRect cells = own.grid.cellsIn(m_area);
        if (cells.isEmpty())
            return;
        m_source->prepare(own);
        auto made = std::make_shared<const Reduced>(m_reduce({*m_source, own, cells}));
        if (render.isCancelled())
            return;
        for (const float v : made->pixels)
            if (!std::isfinite(v))
                return;
        const std::lock_guard lock(m_mutex);
        if (m_made.size() == kMostKept)
            m_made.erase(m_made.begin());
        m_made.push_back({own.grid.scale, own.floats, std::move(made)});
    }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        if (accepts != Form::Rows)
            return {};
        return {.rows = std::make_unique<ReducedReader>(find(onSource(render)), render, area, scratch)};
    }
    int reach(const Grid&) const override { return 0; }

private:
    static constexpr std::size_t kMostKept = 4; // a view, its coarse frames, an export
    struct Made {
        double scale;
        bool floats;
        std::shared_ptr<const Reduced> image;
    };
    Grid sourceGrid(const Grid& grid) const override
    {
        const double pixels = m_area.width * m_area.height;
        const double least = std::sqrt(m_limits.leastCells / pixels), most = std::sqrt(m_limits.mostCells / pixels);
        return {std::min({std::max(grid.scale, least), most, 1.0})};
    }
    std::shared_ptr<const Reduced> find(const Render& own) const
    {
        const std::lock_guard lock(m_mutex);
        for (const Made& made : m_made)
            if (made.scale == own.grid.scale && made.floats == own.floats)
                return made.image;
        return nullptr;
    }

    CIRect m_area;
    std::function<Reduced(const ReductionArea&)> m_reduce;
    ReductionLimits m_limits;
    mutable std::mutex m_mutex; // guards what follows
    mutable std::vector<Made> m_made;
};

} // namespace

CIImage reduced(const CIImage& image, const CIRect& area, int width, int height,
    std::function<Reduced(const ReductionArea&)> reduce, const ReductionLimits& limits)
{
    CIRect inside = area.intersected(image.extent());
    if (inside.isInfinite()) // of an endless image no more than anyone could see
        inside = inside.intersected({-16384, -16384, 32768, 32768});
    return CIImage(std::make_shared<ReductionNode>(image.node(), inside, width, height, std::move(reduce), limits));
}

} // namespace ci
