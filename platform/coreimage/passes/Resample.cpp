// Separable resizing: sums across rows first, then along them.
#include "platform/coreimage/passes/Resample.h"

#include "platform/coreimage/graph/Basics.h"
#include "platform/coreimage/graph/Interleaved.h"
#include "platform/coreimage/kernel/Batch.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace ci {

namespace {

/// The weight of a source pixel by its distance, looked up in a table.
class Window {
public:
    enum class Kind { Sum, Maximum };
    Window(double support, Kind kind, const std::function<double(double)>& weight)
        : m_support(support)
        , m_kind(kind)
        , m_table(std::size_t(support * kPerPixel) + 2)
    {
        for (std::size_t i = 0; i < m_table.size(); ++i)
            m_table[i] = float(weight(double(i) / kPerPixel));
    }
    double support() const { return m_support; }
    bool isMaximum() const { return m_kind == Kind::Maximum; }
    float at(double distance) const
    {
        const double place = std::min(std::abs(distance), m_support) * kPerPixel;
        const auto i = std::size_t(place);
        return m_table[i] + float(place - double(i)) * (m_table[i + 1] - m_table[i]);
    }

private:
    static constexpr double kPerPixel = 2048;
    double m_support;
    Kind m_kind;
    std::vector<float> m_table; // one entry past the support
};

double sinc(double x) { return std::abs(x) < 1e-9 ? 1 : std::sin(M_PI * x) / (M_PI * x); }

const Window& lanczosWindow()
{
    static const Window window(3, Window::Kind::Sum, [](double x) { return x < 3 ? sinc(x) * sinc(x / 3) : 0; });
    return window;
}

const Window& maximumWindow()
{
    static const Window window(0.5, Window::Kind::Maximum, [](double) { return 1; });
    return window;
}

/// D. P. Mitchell, A. N. Netravali: Reconstruction Filters in Computer Graphics, 1988.
double cubicWeight(double x, double b, double c)
{
    if (x < 1)
        return ((12 - 9 * b - 6 * c) * x * x * x + (-18 + 12 * b + 6 * c) * x * x + 6 - 2 * b) / 6;
    if (x < 2)
        return ((-b - 6 * c) * x * x * x + (6 * b + 30 * c) * x * x + (-12 * b - 48 * c) * x + 8 * b + 24 * c) / 6;
    return 0;
}

/// Along one axis: which source cells make each cell of the result, and their shares.
class Shares {
public:
    /// `toSource` maps the index of a cell to a place in the source, where whole numbers are cell centers.
    /// `spread` is the width of one window pixel in source cells.
    template <class ToSource>
    Shares(Scratch& scratch, const Window& window, int first, int count, double spread, ToSource toSource)
        : m_most(int(std::ceil(2 * window.support() * spread)) + 2)
        , m_starts(static_cast<int*>(scratch.bytes(std::size_t(count) * sizeof(int))))
        , m_counts(static_cast<int*>(scratch.bytes(std::size_t(count) * sizeof(int))))
        , m_weights(scratch.floats(std::size_t(count) * std::size_t(m_most)))
    {
        const double reach = window.support() * spread;
        for (int i = 0; i < count; ++i) {
            const double middle = toSource(first + i);
            int start = int(std::ceil(middle - reach - 1e-6)), taps = 0;
            float* const weights = m_weights + std::size_t(i) * std::size_t(m_most);
            float sum = 0;
            for (int k = start; k <= middle + reach - 1e-6 && taps < m_most; ++k)
                sum += weights[taps++] = window.at((k - middle) / spread);
            if (taps == 0 || !(std::abs(sum) > 1e-6f))
                start = int(std::lround(middle)), taps = 1, weights[0] = sum = 1;
            for (int k = 0; k < taps; ++k)
                weights[k] /= sum;
            m_starts[i] = start;
            m_counts[i] = taps;
            m_low = i ? std::min(m_low, start) : start;
            m_high = i ? std::max(m_high, start + taps) : start + taps;
        }
    }
    int start(int i) const { return m_starts[i]; }
    int end(int i) const { return m_starts[i] + m_counts[i]; }
    int taps(int i) const { return m_counts[i]; }
    const float* weights(int i) const { return m_weights + std::size_t(i) * std::size_t(m_most); }
    int low() const { return m_low; }
    int high() const { return m_high; }
    /// The most source cells that a cell of the result is made of.
    int mostTaps(int count) const { return *std::max_element(m_counts, m_counts + count); }

private:
    int m_most;
    int *m_starts, *m_counts;
    float* m_weights;
    int m_low = 0, m_high = 0;
};

struct Axes {
    Shares columns, lines;
};

class ResampleReader : public RowReader {
public:
    ResampleReader(const Node& source, const Render& render, const Grid& sourceGrid, const Window& window,
        const Axes& axes, const GridRect& area, Scratch& scratch)
        : m_floats(render.floats)
        , m_maximum(window.isMaximum())
        , m_planes(source.isOpaque() ? 3 : 4)
        , m_axes(axes)
        , m_area(area)
        , m_width(axes.columns.high() - axes.columns.low())
        , m_kept(axes.lines.mostTaps(area.height()))
        , m_rows(static_cast<MutableRow*>(scratch.bytes(std::size_t(m_kept) * sizeof(MutableRow))))
        , m_taps(static_cast<const float**>(scratch.bytes(std::size_t(m_kept) * sizeof(float*))))
        , m_sums(allocateRow(scratch, m_width))
        , m_quads(scratch.floats(std::size_t(4 * m_width)))
        , m_result(scratch.floats(std::size_t(4 * area.width())))
        , m_out(allocateRow(scratch, area.width()))
    {
        for (int i = 0; i < m_kept; ++i)
            m_rows[i] = allocateRow(scratch, m_width);
        std::fill_n(m_sums.a, m_width, 1.0f);
        m_source = source.rows(render.withGrid(sourceGrid),
            {axes.columns.low(), axes.lines.low(), axes.columns.high(), axes.lines.high()}, scratch);
    }
    Row row(int y) override
    {
        const int line = y - m_area.y0;
        if (line != m_next) // the rows that are kept are of no use here
            m_read = m_axes.lines.start(line);
        for (m_read = std::max(m_read, m_axes.lines.start(line)); m_read < m_axes.lines.end(line); ++m_read)
            keep(m_source->row(m_read));
        m_next = line + 1;
        withLanes(m_floats, [&]<class V>() { m_maximum ? sum<V, true>(line) : sum<V, false>(line); });
        m_maximum ? combine<true>() : combine<false>();
        return m_out;
    }

private:
    MutableRow& kept(int sourceRow) const { return m_rows[sourceRow - floorDiv(sourceRow, m_kept) * m_kept]; }
    void keep(const Row& from) const
    {
        const MutableRow& to = kept(m_read);
        std::copy_n(from.r, m_width, to.r);
        std::copy_n(from.g, m_width, to.g);
        std::copy_n(from.b, m_width, to.b);
        if (m_planes == 4)
            std::copy_n(from.a, m_width, to.a);
    }
    /// What all source rows of a row of the result add to it.
    template <class V, bool maximum>
    void sum(int line) const
    {
        constexpr float* MutableRow::*planes[] = {&MutableRow::r, &MutableRow::g, &MutableRow::b, &MutableRow::a};
        constexpr int lanes = kLanes<V>;
        const int start = m_axes.lines.start(line), taps = m_axes.lines.taps(line);
        const float* const weights = m_axes.lines.weights(line);
        for (int c = 0; c < m_planes; ++c) {
            for (int k = 0; k < taps; ++k)
                m_taps[k] = kept(start + k).*planes[c];
            float* const to = m_sums.*planes[c];
            for (int x = 0; x < m_width; x += 2 * lanes) { // two sums at a time, since one would wait for itself
                V near = loadRow<V>(m_taps[0] + x), far = loadRow<V>(m_taps[0] + x + lanes);
                if constexpr (!maximum)
                    near = near * weights[0], far = far * weights[0];
                for (int k = 1; k < taps; ++k) {
                    const V a = loadRow<V>(m_taps[k] + x), b = loadRow<V>(m_taps[k] + x + lanes);
                    near = maximum ? max(near, a) : mulAdd(V(weights[k]), a, near);
                    far = maximum ? max(far, b) : mulAdd(V(weights[k]), b, far);
                }
                storeRow(to + x, near);
                storeRow(to + x + lanes, far);
            }
        }
    }
    template <bool maximum>
    void combine()
    {
        interleave(m_sums, m_width, m_quads);
        const Shares& columns = m_axes.columns;
        for (int x = 0; x < m_area.width(); ++x) {
            const float* p = m_quads + std::ptrdiff_t(columns.start(x) - columns.low()) * 4;
            const float* weights = columns.weights(x);
            const int taps = columns.taps(x);
            Quad sum = maximum ? loadQuad(p) : weights[0] * loadQuad(p);
            if constexpr (maximum) {
                for (int k = 1; k < taps; ++k)
                    sum = sum > loadQuad(p + 4 * k) ? sum : loadQuad(p + 4 * k);
            } else {
                Quad others = {}; // two sums, since one would wait for itself
                int k = 1;
                for (; k + 1 < taps; k += 2) {
                    sum += weights[k] * loadQuad(p + 4 * k);
                    others += weights[k + 1] * loadQuad(p + 4 * k + 4);
                }
                if (k < taps)
                    sum += weights[k] * loadQuad(p + 4 * k);
                sum += others;
            }
            __builtin_memcpy(m_result + 4 * x, &sum, sizeof sum);
        }
        deinterleave(m_result, m_area.width(), m_out);
    }

    bool m_floats, m_maximum;
    int m_planes; // that are summed: alpha of an opaque image is 1
    Axes m_axes;
    GridRect m_area;
    int m_width, m_kept; // of a source row; how many of them
    MutableRow* m_rows; // the last ones that were read, each at its number modulo how many are kept
    const float** m_taps;
    MutableRow m_sums;
    int m_next = -1, m_read = 0; // the row that may go on with those kept; the next source row
    float *m_quads, *m_result;
    MutableRow m_out;
    std::unique_ptr<RowReader> m_source;
};

/// Works on an image without edges.
class ResampleNode : public WrapperNode {
public:
    ResampleNode(NodePtr source, double sx, double sy, const Window& window)
        : WrapperNode(source, CIRect::infinite(), source->isOpaque())
        , m_sx(sx)
        , m_sy(sy)
        , m_window(window)
    {
    }
    int reach(const Grid& grid) const override { return 48 + WrapperNode::reach(grid); }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        if (accepts != Form::Rows)
            return {};
        const Grid& grid = render.grid;
        if (isDirect(grid))
            return WrapperNode::open(render, area, accepts, scratch);
        const Grid from = sourceGrid(grid);
        const auto shares = [&](int first, int count, double scale, double phase, double sourcePhase) {
            // A finer grid than that of the result's pixels keeps their windows.
            const double spread = std::max(1.0, from.scale / (std::min(grid.scale, 1.0) * scale));
            return Shares(
                scratch, m_window, first, count, spread, [=, cells = from.scale / (grid.scale * scale)](int i) {
                    return (i + 0.5 + phase) * cells - 0.5 - sourcePhase;
                });
        };
        const Axes axes{shares(area.x0, area.width(), m_sx, grid.phaseX, from.phaseX),
            shares(area.y0, area.height(), m_sy, grid.phaseY, from.phaseY)};
        return {.rows = std::make_unique<ResampleReader>(*m_source, render, from, m_window, axes, area, scratch)};
    }

private:
    /// On a reduced grid the source comes at the size it is shown in, already antialiased.
    bool isDirect(const Grid& grid) const
    {
        return !m_window.isMaximum() && grid.scale < 1 && m_sx == m_sy && grid.scale * m_sx <= 1;
    }
    Grid sourceGrid(const Grid& grid) const override
    {
        if (isDirect(grid))
            return {grid.scale * m_sx, grid.phaseX, grid.phaseY};
        const double most = m_window.isMaximum() ? std::max({m_sx, m_sy, 1.0}) : std::max(m_sx, m_sy);
        return {grid.scale < 1 ? std::min(1.0, grid.scale * most) : 1.0};
    }
    double m_sx, m_sy;
    Window m_window;
};

CIImage scaledBy(const CIImage& image, double sx, double sy, const Window& window)
{
    if (image.isNull() || !(sx > 0 && sy > 0))
        return {};
    if (sx == 1 && sy == 1)
        return image;
    return CIImage(std::make_shared<ResampleNode>(image.clampedToExtent().node(), sx, sy, window))
        .cropped(CIAffineTransform::scaling(sx, sy).mapRect(image.extent()));
}

} // namespace

CIImage lanczosScaled(const CIImage& image, double sx, double sy) { return scaledBy(image, sx, sy, lanczosWindow()); }

CIImage cubicScaled(const CIImage& image, double sx, double sy, double b, double c)
{
    return scaledBy(image, sx, sy, Window(2, Window::Kind::Sum, [=](double x) { return cubicWeight(x, b, c); }));
}

CIImage maximumScaled(const CIImage& image, double sx, double sy) { return scaledBy(image, sx, sy, maximumWindow()); }

CIImage resampled(const CIImage& image, int width, int height)
{
    const CIRect extent = image.extent();
    if (extent.isInfinite())
        return image;
    if (extent.isEmpty() || width < 1 || height < 1)
        return {};
    // The last crop makes the sides whole numbers, which the scaled extent may miss by rounding.
    const CIImage moved = image.transformed(CIAffineTransform::translation(-extent.x, -extent.y));
    return lanczosScaled(moved.clampedToExtent(), width / extent.width, height / extent.height)
        .cropped({0, 0, double(width), double(height)});
}

} // namespace ci
