// Gaussian blur at a cost that does not grow with the radius: the image is halved until the standard deviation is a
// few cells, blurred there with a sampled Gaussian, and doubled back with the smooth weights 1/4, 3/4.
#include "platform/coreimage/graph/Interleaved.h"
#include "platform/coreimage/graph/Planes.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/passes/Blur.h"

#include <array>
#include <cmath>
#include <vector>

namespace ci {

namespace {

constexpr double kFewCells = 2.5; // below it halving once more would show
constexpr double kWidest = 2000; // px; beyond it a picture hardly changes any more
constexpr double kReach = 3.0; // standard deviations beyond which weights are left out

int halvingsFor(double sigma)
{
    int n = 0;
    while (sigma / (2 << n) >= kFewCells)
        ++n;
    return n;
}

/// One half of the symmetric weights; [0] is the middle.
std::vector<float> gaussianWeights(double sigma)
{
    const int radius = std::max(1, int(std::ceil(kReach * sigma)));
    std::vector<float> weights(std::size_t(radius) + 1);
    double sum = 0;
    for (int k = 0; k <= radius; ++k) {
        const double w = std::exp(-0.5 * k * k / (sigma * sigma));
        weights[std::size_t(k)] = float(w);
        sum += k ? 2 * w : w;
    }
    for (float& w : weights)
        w = float(w / sum);
    return weights;
}

/// Sums over pairs of floats `step` apart, to both sides of `p`; `batches` of them side by side.
template <class V, int batches>
void symmetricSums(const float* p, std::ptrdiff_t step, const std::vector<float>& weights, float* to)
{
    V sum[batches];
#pragma GCC unroll 4 // else the sums live in memory
    for (int i = 0; i < batches; ++i)
        sum[i] = loadRow<V>(p + i * kLanes<V>) * V(weights[0]);
    for (std::size_t k = 1; k < weights.size(); ++k) {
        const float *const before = p - std::ptrdiff_t(k) * step, *const after = p + std::ptrdiff_t(k) * step;
        const V weight(weights[k]);
#pragma GCC unroll 4
        for (int i = 0; i < batches; ++i)
            sum[i] = mulAdd(loadRow<V>(before + i * kLanes<V>) + loadRow<V>(after + i * kLanes<V>), weight, sum[i]);
    }
#pragma GCC unroll 4
    for (int i = 0; i < batches; ++i)
        storeRow(to + i * kLanes<V>, sum[i]);
}

template <class V>
void symmetricSumsOfLine(const float* p, std::ptrdiff_t step, const std::vector<float>& weights, float* to, int count)
{
    constexpr int kBatches = 4, kStride = kBatches * kLanes<V>;
    int x = 0;
    for (; x + kStride <= count; x += kStride)
        symmetricSums<V, kBatches>(p + x, step, weights, to + x);
    for (; x < count; x += kLanes<V>)
        symmetricSums<V, 1>(p + x, step, weights, to + x);
}

/// Blurs `in` into `out`, which lies inside it by the radius on every side.
template <class V>
void convolve(const Planes& in, const Planes& out, int c, const std::vector<float>& weights, Scratch& scratch)
{
    const ScratchScope scope(scratch);
    const int width = in.area.width();
    float* const line = scratch.floats(std::size_t(width + 2 * kRowPadding));
    const int before = out.area.x0 - in.area.x0;
    for (int y = out.area.y0; y < out.area.y1; ++y) {
        symmetricSumsOfLine<V>(in.line(c, y), std::ptrdiff_t(in.stride), weights, line, width);
        symmetricSumsOfLine<V>(line + before, 1, weights, out.line(c, y), out.area.width());
    }
}

/// The half-size cells that doubling to `area` reads.
GridRect halfNeeded(const GridRect& area)
{
    return {floorDiv(area.x0 - 1, 2), floorDiv(area.y0 - 1, 2), floorDiv(area.x1, 2) + 1, floorDiv(area.y1, 2) + 1};
}

void storeZipped(float* to, float a, float b)
{
    to[0] = a;
    to[1] = b;
}
void storeZipped(float* to, const Batch& a, const Batch& b)
{
    alignas(64) float first[kLanes<Batch>], second[kLanes<Batch>];
    a.store_aligned(first);
    b.store_aligned(second);
    for (int i = 0; i < kLanes<Batch>; i += 4) {
        const Quad p = loadQuad(first + i), q = loadQuad(second + i);
        const Quad pairs[2] = {__builtin_shufflevector(p, q, 0, 4, 1, 5), __builtin_shufflevector(p, q, 2, 6, 3, 7)};
        __builtin_memcpy(to + 2 * i, pairs, sizeof pairs);
    }
}

/// Doubles one line: cell 2i is 3/4 of i and 1/4 of i - 1, cell 2i + 1 is 3/4 of i and 1/4 of i + 1.
template <class V>
void doubleLine(const float* half, int halfLeft, float* to, int left, int width, float* pairs)
{
    const int first = floorDiv(left, 2), count = floorDiv(left + width - 1, 2) - first + 1;
    const float* const middle = half + (first - halfLeft);
    for (int i = 0; i < count; i += kLanes<V>) {
        const V own = V(0.75f) * loadRow<V>(middle + i);
        const V lower = mulAdd(V(0.25f), loadRow<V>(middle + i - 1), own);
        const V upper = mulAdd(V(0.25f), loadRow<V>(middle + i + 1), own);
        storeZipped(pairs + 2 * i, lower, upper);
    }
    std::copy_n(pairs + (left - 2 * first), width, to);
}

template <class V>
void doubled(const Planes& half, const Planes& out, int c, Scratch& scratch)
{
    const ScratchScope scope(scratch);
    const int halfWidth = half.area.width(), width = out.area.width();
    float* const line = scratch.floats(std::size_t(halfWidth + 4 * kRowPadding)) + kRowPadding;
    float* const pairs = scratch.floats(std::size_t(2 * halfWidth + 8 * kRowPadding));
    for (int y = out.area.y0; y < out.area.y1; ++y) {
        const int j = floorDiv(y, 2), other = y - 2 * j ? j + 1 : j - 1;
        const float *near = half.line(c, j), *far = half.line(c, other);
        for (int x = 0; x < halfWidth; x += kLanes<V>)
            storeRow(line + x, mulAdd(V(0.75f), loadRow<V>(near + x), V(0.25f) * loadRow<V>(far + x)));
        doubleLine<V>(line, half.area.x0, out.line(c, y), out.area.x0, width, pairs);
    }
}

class GaussianPass : public BlockPass<GaussianPass> {
public:
    explicit GaussianPass(double sigma)
        : m_sigma(sigma)
    {
    }

    int halvings(const Grid& grid) const override { return halvingsFor(m_sigma * grid.scale); }
    Margin margin(const Grid& grid) const override
    {
        const double sigma = m_sigma * grid.scale;
        const int cell = 1 << halvingsFor(sigma);
        const int reach = (int(std::ceil(kReach * sigma / cell)) + 4) * cell;
        return {reach, reach};
    }

    template <class V>
    void work(const Grid& grid, const Planes& in, const Planes& out, Scratch& scratch) const
    {
        const double sigma = m_sigma * grid.scale;
        const int times = halvingsFor(sigma), cell = 1 << times;
        // What halving and doubling add to the variance: (n² - 1) / 12 and (n² - 1) / 4 cells².
        const double rest = sigma * sigma - (double(cell) * cell - 1) / 3;
        const std::vector<float> weights = gaussianWeights(std::sqrt(std::max(rest, 1e-4)) / cell);
        std::vector<Planes> sizes{out};
        for (int i = 0; i < times; ++i)
            sizes.push_back(Planes::allocate(halfNeeded(sizes.back().area), scratch));
        forEachPlane(in, out, [&](int c) {
            convolve<V>(in, sizes.back(), c, weights, scratch);
            for (auto i = std::size_t(times); i > 0; --i)
                doubled<V>(sizes[i], sizes[i - 1], c, scratch);
        });
    }

private:
    double m_sigma;
};

} // namespace

CIImage gaussianBlur(const CIImage& image, double sigma)
{
    constexpr double kNothing = 0.05; // px; the weights of the neighbors would be zero
    if (image.isNull() || sigma < kNothing)
        return image;
    sigma = std::min(sigma, kWidest);
    const CIRect extent = image.extent().grown(std::ceil(kReach * sigma) + 1);
    return CIImage(passNode(image.node(), std::make_shared<GaussianPass>(sigma), extent, true));
}

CIImage blurredWithin(const CIImage& image, double sigma)
{
    return gaussianBlur(image.clampedToExtent(), sigma).cropped(image.extent());
}

} // namespace ci
