#include "platform/coreimage/passes/Convolution.h"

#include "platform/coreimage/graph/Planes.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

#include <algorithm>
#include <map>
#include <vector>

namespace ci {

namespace {

/// A weight and where it is read, in cells.
struct Tap {
    int x, y;
    float weight;
};

class ConvolutionPass : public BlockPass<ConvolutionPass> {
public:
    explicit ConvolutionPass(const Weights& w)
        : m_values(w.values.begin(), w.values.end())
        , m_columns(w.columns)
        , m_rows(w.rows)
        , m_bias(float(w.bias))
        , m_keepsAlpha(w.keepsAlpha)
    {
        m_values.resize(std::size_t(m_columns) * std::size_t(m_rows));
    }
    Margin margin(const Grid& grid) const override
    {
        return {int(std::ceil(m_columns / 2 * scaleOf(grid))), int(std::ceil(m_rows / 2 * scaleOf(grid)))};
    }
    template <class V>
    void work(const Grid& grid, const Planes& in, const Planes& out, Scratch&) const
    {
        constexpr int kBatches = 4, kStride = kBatches * kLanes<V>;
        const std::vector<Tap> taps = tapsOn(grid);
        for (int y = out.area.y0; y < out.area.y1; ++y)
            for (int c = 0; c < 4; ++c) {
                const float* const middle = in.at(c, out.area.x0, y);
                float* const to = out.line(c, y);
                if (c == 3 && m_keepsAlpha) {
                    std::copy_n(middle, out.area.width(), to);
                    continue;
                }
                const int width = out.area.width();
                int x = 0;
                for (; x + kStride <= width; x += kStride)
                    sumsOf<V, kBatches>(middle + x, std::ptrdiff_t(in.stride), taps, to + x);
                for (; x < width; x += kLanes<V>)
                    sumsOf<V, 1>(middle + x, std::ptrdiff_t(in.stride), taps, to + x);
                if (m_bias != 0)
                    addBias<V>(m_keepsAlpha ? in.at(3, out.area.x0, y) : nullptr, to, width);
            }
    }

private:
    static double scaleOf(const Grid& grid) { return std::min(grid.scale, 256.0); }

    /// The weights of whole pixels, shared out linearly among the cells around them.
    std::vector<Tap> tapsOn(const Grid& grid) const
    {
        std::map<std::pair<int, int>, double> cells;
        for (int row = 0; row < m_rows; ++row)
            for (int column = 0; column < m_columns; ++column) {
                const double weight = m_values[std::size_t(row * m_columns + column)];
                const double x = (column - m_columns / 2) * scaleOf(grid), y = (m_rows / 2 - row) * scaleOf(grid);
                const int left = int(std::floor(x)), low = int(std::floor(y));
                for (int k = 0; k < 4; ++k) {
                    const int dx = k % 2, dy = k / 2;
                    const double share = (dx ? x - left : left + 1 - x) * (dy ? y - low : low + 1 - y);
                    if (weight * share != 0)
                        cells[{low + dy, left + dx}] += weight * share;
                }
            }
        std::vector<Tap> taps;
        for (const auto& [at, weight] : cells)
            taps.push_back({at.second, at.first, float(weight)});
        return taps;
    }

    template <class V, int batches>
    static void sumsOf(const float* middle, std::ptrdiff_t stride, const std::vector<Tap>& taps, float* to)
    {
        V sum[batches];
#pragma GCC unroll 4
        for (int i = 0; i < batches; ++i)
            sum[i] = V(0.0f);
        for (const Tap& tap : taps) {
            const float* const p = middle + tap.y * stride + tap.x;
#pragma GCC unroll 4 // else the sums live in memory
            for (int i = 0; i < batches; ++i)
                sum[i] = mulAdd(V(tap.weight), loadRow<V>(p + i * kLanes<V>), sum[i]);
        }
#pragma GCC unroll 4
        for (int i = 0; i < batches; ++i)
            storeRow(to + i * kLanes<V>, bounded(sum[i]));
    }

    template <class V>
    void addBias(const float* alpha, float* to, int count) const
    {
        for (int x = 0; x < count; x += kLanes<V>) {
            const V share = alpha ? loadRow<V>(alpha + x) : V(1.0f);
            storeRow(to + x, bounded(mulAdd(V(m_bias), share, loadRow<V>(to + x))));
        }
    }

    std::vector<double> m_values;
    int m_columns, m_rows;
    float m_bias;
    bool m_keepsAlpha;
};

} // namespace

CIImage convolved(const CIImage& image, const Weights& weights)
{
    if (image.isNull())
        return image;
    CIRect extent = image.extent();
    if (!weights.keepsAlpha)
        extent = weights.bias != 0 ? CIRect::infinite() : extent.grown(weights.columns / 2, weights.rows / 2);
    return CIImage(passNode(image.node(), std::make_shared<ConvolutionPass>(weights), extent, weights.keepsAlpha));
}

} // namespace ci
