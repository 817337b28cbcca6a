// Blurs along parallel lines, or along rays. The image is first read along the lines: one value for each line and each
// step along the axis that the lines follow most. Sums run along that axis, so that the mean over any window is a
// difference of two sums, whatever its length. Then each pixel takes the mean at its place between two lines.
#include "platform/coreimage/passes/LineBlur.h"

#include "platform/coreimage/graph/Basics.h"
#include "platform/coreimage/graph/Interleaved.h"
#include "platform/coreimage/graph/Planes.h"
#include "platform/coreimage/passes/Lines.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace ci {

namespace {

using namespace lines;

/// Which way the main axis runs, and where the origin lies in cells.
struct Frame {
    bool upright; // u is y
    double originU, originV;
};

/// Reads lines, sums along them and writes one block of interleaved pixels.
template <class V>
class LineBlurrer {
public:
    LineBlurrer(const Node& source, const Render& render, const Frame& frame, const Lines& lines, Scratch& scratch)
        : m_source(source)
        , m_render(render)
        , m_frame(frame)
        , m_lines(lines)
        , m_scratch(scratch)
        , m_floats(std::size_t(4 * lines.count))
        , m_stride(m_floats + 2 * kRowPadding)
    {
    }

    /// `out` has rows of `stride` floats, its first pixel is the block's lower left one.
    void blur(const GridRect& block, float* out, std::ptrdiff_t stride)
    {
        const bool upright = m_frame.upright;
        const int from = upright ? block.y0 : block.x0, to = upright ? block.y1 : block.x1;
        const ScratchScope scope(m_scratch);
        chooseSteps(from, to);
        m_sums = m_scratch.floats(m_stride * std::size_t(m_steps + 2));
        std::fill_n(m_sums, 2 * m_stride, 0.0f);
        for (int step = 0; step < m_steps; step += kChunk)
            readChunk(step, std::min(step + kChunk, m_steps));
        float* const means = m_scratch.floats(m_stride);
        for (int i = from; i < to; ++i) {
            const double u = i + 0.5 - m_frame.originU;
            meansAt(u, means);
            const std::ptrdiff_t alongStep = upright ? stride : 4, acrossStep = upright ? 4 : stride;
            write(u, means, upright ? block.x0 : block.y0, upright ? block.x1 : block.y1, out + (i - from) * alongStep,
                acrossStep);
        }
    }

private:
    static constexpr int kChunk = 64; // steps read at a time, as a block of the image of their own
    static constexpr int kMostSteps = 20000; // to each side of the block

    /// The steps that the block's windows reach and the image has.
    void chooseSteps(int from, int to)
    {
        const Span read = windowOver(from, to);
        const GridRect known = m_render.grid.cellsIn(m_source.extent());
        const int low = std::max(m_frame.upright ? known.y0 : known.x0, from - kMostSteps) - 1;
        const int high = std::min(m_frame.upright ? known.y1 : known.x1, to + kMostSteps) + 1;
        m_first = int(std::clamp(std::floor(read.low + m_frame.originU) - 1, double(low), double(high)));
        m_steps = int(std::clamp(std::ceil(read.high + m_frame.originU) + 1, double(m_first), double(high))) - m_first;
    }

    Span windowOver(int from, int to) const
    {
        Span all{1e9, -1e9};
        for (int i = from; i < to; ++i) {
            const Window window = m_lines.windowAt(i + 0.5 - m_frame.originU);
            for (int k = 0; k < window.count; ++k)
                all = all.united({window.boxes[std::size_t(k)].from, window.boxes[std::size_t(k)].to});
        }
        return all;
    }

    Span acrossAt(double u) const
    {
        const double a = m_lines.start(u), b = a + m_lines.spread(u) * (m_lines.count - 1);
        return {std::min(a, b), std::max(a, b)};
    }

    /// Adds the steps `from` to `to` - 1 to the running sums.
    void readChunk(int from, int to)
    {
        const ScratchScope scope(m_scratch);
        const auto along = [&](int step) { return m_first + step + 0.5 - m_frame.originU; };
        const Span across = acrossAt(along(from)).united(acrossAt(along(to - 1)));
        const int low = int(std::floor(across.low + m_frame.originV)) - 1;
        const int high = int(std::ceil(across.high + m_frame.originV)) + 1;
        const GridRect wanted = m_frame.upright ? GridRect{low, m_first + from, high, m_first + to}
                                                : GridRect{m_first + from, low, m_first + to, high};
        const InterleavedView view = viewOf(wanted);
        for (int step = from; step < to; ++step)
            addStep(view, step, along(step));
    }

    InterleavedView viewOf(const GridRect& wanted)
    {
        m_copy = m_source.copy(m_render);
        if (m_copy)
            return m_copy->viewOn(m_render.grid);
        const GridRect known = m_render.grid.cellsIn(m_source.extent()).grown(1, 1);
        GridRect area = wanted.intersected(known);
        if (area.isEmpty()) // one transparent pixel beside the image
            area = {known.x0, known.y0, known.x0 + 1, known.y0 + 1};
        float* const pixels = m_scratch.floats(InterleavedView::floatsFor(area));
        const ScratchScope scope(m_scratch);
        const auto reader = m_source.rows(m_render, area, m_scratch);
        for (int y = area.y0; y < area.y1; ++y)
            writeViewRow(pixels, area, y, reader->row(y));
        return {area, InterleavedView::strideFor(area), pixels};
    }

    /// Reads the lines at one step, linearly between the two cells across, on top of the sums before.
    void addStep(const InterleavedView& view, int step, double u)
    {
        const bool upright = m_frame.upright;
        const int fixed = m_first + step;
        const float* const before = m_sums + std::size_t(step) * m_stride;
        float* const sums = m_sums + std::size_t(step + 1) * m_stride;
        const int low = upright ? view.area.x0 : view.area.y0,
                  last = (upright ? view.area.width() : view.area.height()) - 1;
        const bool outside =
            upright ? fixed < view.area.y0 || fixed >= view.area.y1 : fixed < view.area.x0 || fixed >= view.area.x1;
        if (outside) {
            std::copy_n(before, m_floats, sums);
            return;
        }
        const float* const base = upright ? view.at(view.area.x0, fixed) : view.at(fixed, view.area.y0);
        const std::ptrdiff_t stride = upright ? 4 : view.stride;
        const float start = float(m_lines.start(u) + m_frame.originV - 0.5 - low), spread = float(m_lines.spread(u));
        const float farthest = float(last);
        for (int j = 0; j < m_lines.count; ++j) {
            const float v = std::clamp(start + float(j) * spread, 0.0f, farthest);
            const int cell = int(v);
            const float* const p = base + cell * stride;
            const Quad near = loadQuad(p);
            const Quad value = near + (v - float(cell)) * (loadQuad(p + stride) - near);
            const Quad sum = loadQuad(before + 4 * j) + value;
            __builtin_memcpy(sums + 4 * j, &sum, sizeof sum);
        }
    }

    /// A row of sums and how often it counts in a mean.
    struct Share {
        const float* row;
        float weight;
    };
    using Shares = std::array<Share, 4 * kMostBoxes>;

    /// Adds the sum up to place `u`, which lies between two steps.
    void addSumTo(double u, double weight, Shares& shares, std::size_t& count) const
    {
        const double place = std::clamp(u + m_frame.originU - m_first, 0.0, std::max(0.0, m_steps - 1e-6));
        const double step = std::floor(place), part = place - step;
        const float* const row = m_sums + std::size_t(step) * m_stride;
        shares[count++] = {row, float(weight * (1 - part))};
        if (part > 0)
            shares[count++] = {row + m_stride, float(weight * part)};
    }

    void meansAt(double u, float* means) const
    {
        const Window window = m_lines.windowAt(u);
        Shares shares;
        std::size_t count = 0;
        for (int k = 0; k < window.count; ++k) {
            const Box& box = window.boxes[std::size_t(k)];
            addSumTo(box.to, box.weight, shares, count);
            addSumTo(box.from, -box.weight, shares, count);
        }
        constexpr std::size_t kLane = kLanes<V>;
        for (std::size_t i = 0; i < m_floats; i += 2 * kLane) {
            V first(0.0f), second(0.0f);
            for (std::size_t k = 0; k < count; ++k) {
                const V weight(shares[k].weight);
                first = mulAdd(weight, loadRow<V>(shares[k].row + i), first);
                second = mulAdd(weight, loadRow<V>(shares[k].row + i + kLane), second);
            }
            storeRow(means + i, first);
            storeRow(means + i + kLane, second);
        }
    }

    /// Writes the pixels across at `u` that belong to the bundle, linearly between two lines.
    void write(double u, const float* means, int from, int to, float* out, std::ptrdiff_t step) const
    {
        double spread = m_lines.spread(u);
        if (std::abs(spread) < 1e-9)
            spread = 1e-9;
        const Span covered = m_lines.covered(u);
        const int first = std::max(from, int(std::ceil(covered.low + m_frame.originV - 0.5)));
        const int last = std::min(to - 1, int(std::floor(covered.high + m_frame.originV - 0.5)));
        const float start = float((0.5 - m_frame.originV - m_lines.start(u)) / spread), perCell = float(1 / spread);
        const float farthest = float(m_lines.count - 2) + 0.999f;
        for (int i = first; i <= last; ++i) {
            const float line = std::clamp(start + float(i) * perCell, 0.0f, farthest);
            const int j = int(line);
            const Quad near = loadQuad(means + 4 * j);
            const Quad value = near + (line - float(j)) * (loadQuad(means + 4 * j + 4) - near);
            __builtin_memcpy(out + (i - from) * step, &value, sizeof value);
        }
    }

    const Node& m_source;
    const Render& m_render;
    Frame m_frame;
    const Lines& m_lines;
    Scratch& m_scratch;
    std::size_t m_floats, m_stride; // of all lines at one step
    int m_first = 0, m_steps = 0;
    float* m_sums = nullptr; // up to the lower side of each step
    std::shared_ptr<const GridCopy> m_copy;
};

/// Calls `use` with each bundle of lines that a block is blurred along.
using UseLines = std::function<void(const Frame&, const Lines&)>;
using Bundles = std::function<void(const Grid&, const GridRect& block, const UseLines& use)>;

class LineBlurNode : public WrapperNode {
public:
    LineBlurNode(const NodePtr& source, const CIRect& extent, double reach, Bundles bundles)
        : WrapperNode(source, extent, source->isOpaque() && source->extent().isInfinite())
        , m_reach(reach)
        , m_bundles(std::move(bundles))
    {
    }
    int reach(const Grid& grid) const override
    {
        constexpr int kLeast = 64; // cells: makes tiles of 256
        // Blocks must be large against the corners that slanting lines waste.
        return std::max(kLeast, int(std::ceil(m_reach * grid.scale)) + 1) + m_source->reach(grid);
    }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        if (accepts != Form::Rows)
            return {};
        const Planes out = Planes::allocate(area, scratch);
        const GridRect block = area.intersected(render.grid.cellsIn(extent()));
        if (!block.isEmpty() && !render.isCancelled()) {
            const ScratchScope scope(scratch);
            const std::ptrdiff_t stride = 4 * block.width();
            float* const pixels = scratch.floats(std::size_t(stride) * std::size_t(block.height()));
            m_bundles(render.grid, block, [&](const Frame& frame, const Lines& lines) {
                withLanes(render.floats, [&]<class V>() {
                    LineBlurrer<V>(*m_source, render, frame, lines, scratch).blur(block, pixels, stride);
                });
            });
            for (int y = block.y0; y < block.y1; ++y)
                deinterleave(pixels + (y - block.y0) * stride, block.width(), out.row(y, block.x0));
        }
        return {.rows = std::make_unique<PlanesReader>(out, extent(), render, area)};
    }

private:
    double m_reach; // px
    Bundles m_bundles;
};

Bundles parallels(double dx, double dy, double sigma)
{
    return [=](const Grid& grid, const GridRect& block, const UseLines& use) {
        const bool upright = std::abs(dy) > std::abs(dx);
        const double slope = upright ? dx / dy : dy / dx;
        const double cells = sigma * grid.scale * std::max(std::abs(dx), std::abs(dy));
        // The lines pass through the picture's origin: tiles must agree on where they run.
        const Frame frame{upright, upright ? -grid.phaseY : -grid.phaseX, upright ? -grid.phaseX : -grid.phaseY};
        const Span x{block.x0 + grid.phaseX, block.x1 + grid.phaseX};
        const Span y{block.y0 + grid.phaseY, block.y1 + grid.phaseY};
        use(frame, ParallelLines(slope, cells, upright ? y : x, upright ? x : y));
    };
}

Bundles rays(CIPoint center, double farthestOut)
{
    return [=](const Grid& grid, const GridRect& block, const UseLines& use) {
        const CIPoint origin{center.x * grid.scale - grid.phaseX, center.y * grid.scale - grid.phaseY};
        const Span x{block.x0 - origin.x, block.x1 - origin.x}, y{block.y0 - origin.y, block.y1 - origin.y};
        // Rays that rise less than the diagonals are followed along x, the others along y.
        const auto nearest = [](const Span& s) { return s.low > 0 ? s.low : s.high < 0 ? -s.high : 0.0; };
        const auto farthest = [](const Span& s) { return std::max(std::abs(s.low), std::abs(s.high)); };
        if (nearest(y) <= farthest(x))
            use({false, origin.x, origin.y}, Rays(farthestOut, x, y, true));
        if (nearest(x) <= farthest(y))
            use({true, origin.y, origin.x}, Rays(farthestOut, y, x, false));
    };
}

} // namespace

CIImage blurAlong(const CIImage& image, double angle, double sigma)
{
    constexpr double kWidest = 500; // px
    sigma = std::min(sigma, kWidest);
    if (image.isNull() || sigma < 0.05)
        return image;
    const double dx = std::cos(angle), dy = std::sin(angle);
    const auto grow = [sigma](double part) { return std::ceil(6 * sigma * std::abs(part) - 1e-6); };
    return CIImage(std::make_shared<LineBlurNode>(
        image.node(), image.extent().grown(grow(dx), grow(dy)), 3 * sigma, parallels(dx, dy, sigma)));
}

CIImage blurToward(const CIImage& image, CIPoint center, double farthest)
{
    if (image.isNull() || std::abs(farthest - 1) < 1e-3)
        return image;
    const CIRect& e = image.extent();
    CIRect extent = e;
    if (!e.isInfinite()) {
        const double grow = 1 / farthest;
        extent = e.united(CIRect{center.x + (e.x - center.x) * grow, center.y + (e.y - center.y) * grow, e.width * grow,
                              e.height * grow})
                     .roundedOut();
    }
    return CIImage(std::make_shared<LineBlurNode>(image.node(), extent, 0, rays(center, farthest)));
}

} // namespace ci
