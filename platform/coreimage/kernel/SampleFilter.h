// Filters that read images elsewhere than at the pixel they make.
//
// A warp answers one question:
// template <class V> struct Example {
//     explicit Example(const Inputs<V>& in);
//     Point<V> operator()(const Point<V>& here) const;   // where in the source to look
//     static CIRect extent(const Values&);                // default: that of the source
// };
//
// A guided warp asks another image first; it reads that around its own place, or where `guideRegion` says:
// template <class V> struct Example {
//     explicit Example(const Inputs<V>& in);
//     Point<V> operator()(const Sampler<V>& guide, const Point<V>& here) const;
//     static CIRect guideRegion(const Values&, const CIRect& wanted);
// };
//
// A general kernel gets one sampler for each image and says what it reads of each:
// template <class V> struct Example {
//     explicit Example(const Inputs<V>& in);
//     Pixel<V> operator()(const Sampler<V>& image, const Point<V>& here) const;  // or two or three samplers
//     static CIRect regionOfInterest(const Values&, std::size_t image, const CIRect& wanted);
// };
#pragma once

#include "platform/coreimage/graph/Basics.h"
#include "platform/coreimage/graph/Sample.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {

namespace detail {

/// Runs a row of `block` in batches; `each(i, here)` gets the index in the row and the place.
template <class V, class Each>
void forEachPlace(const Grid& grid, const GridRect& block, int y, Each each)
{
    const V top(grid.yAt(y)), across = V(grid.xAt(block.x0)) + laneIndex<V>() * V(grid.step());
    const V stride(grid.step() * float(kLanes<V>));
    for (int i = 0; i < block.width(); i += kLanes<V>)
        each(i, Point<V>{mulAdd(V(float(i / kLanes<V>)), stride, across), top});
}

/// Stores a batch that may stick out of the row's end.
template <class V>
void storePart(const MutableRow& row, int i, int count, const Pixel<V>& p)
{
    if (i + kLanes<V> <= count) {
        storePixel(row, i, p);
        return;
    }
    alignas(64) float planes[4][kLanes<V>];
    storePixel({planes[0], planes[1], planes[2], planes[3]}, 0, p);
    const auto rest = std::size_t(std::clamp(count - i, 0, kLanes<V>));
    std::copy_n(planes[0], rest, row.r + i);
    std::copy_n(planes[1], rest, row.g + i);
    std::copy_n(planes[2], rest, row.b + i);
    std::copy_n(planes[3], rest, row.a + i);
}

/// The picture rectangle of a block of cells.
inline CIRect rectOf(const Grid& grid, const GridRect& block)
{
    const double step = 1 / grid.scale;
    return {
        (block.x0 + grid.phaseX) * step, (block.y0 + grid.phaseY) * step, block.width() * step, block.height() * step};
}

template <template <class> class K, class V>
class WarpKernelOf : public SampleKernel {
public:
    WarpKernelOf(const Values& values, const Grid& grid)
        : m_values(values)
        , m_kernel(Inputs<V>(values, grid.step()))
    {
    }
    std::size_t guideCount() const override { return kGuides; }

    GridRect region(std::size_t index, const Grid& grid, const Grid& imageGrid, const GridRect& block,
        const SampledArea* guides, Scratch& scratch) override
    {
        if (index < kGuides)
            return guideRegion(grid, block);
        m_step = imageGrid.step();
        m_stride = std::size_t(block.width() + kRowPadding);
        m_x = scratch.floats(m_stride * std::size_t(block.height()));
        m_y = scratch.floats(m_stride * std::size_t(block.height()));
        const V scale(float(imageGrid.scale));
        V left(kFar), right(-kFar), bottom(kFar), top(-kFar);
        for (int y = block.y0; y < block.y1; ++y) {
            float* const x = m_x + std::size_t(y - block.y0) * m_stride;
            float* const up = m_y + std::size_t(y - block.y0) * m_stride;
            forEachPlace<V>(grid, block, y, [&](int i, const Point<V>& here) {
                // Places in cells; NaN and what is out of this world become a far one, transparent in the end.
                const Point<V> there = place(guides, here);
                const V cx = clamp(V(there.x * scale), -kFar, kFar), cy = clamp(V(there.y * scale), -kFar, kFar);
                storeRow(x + i, cx);
                storeRow(up + i, cy);
                left = min(cx, left), right = max(cx, right);
                bottom = min(cy, bottom), top = max(cy, top);
            });
        }
        const auto cell = [](double v) { return int(std::floor(v)); };
        return {cell(lowest(left) - imageGrid.phaseX - 0.5), cell(lowest(bottom) - imageGrid.phaseY - 0.5),
            cell(-lowest(V(-right)) - imageGrid.phaseX - 0.5) + 2, cell(-lowest(V(-top)) - imageGrid.phaseY - 0.5) + 2};
    }

    void run(const SampledArea* images, const Grid&, const Planes& out, const GridRect& block) override
    {
        const V step(m_step);
        for (int y = block.y0; y < block.y1; ++y) {
            const std::size_t start = std::size_t(y - block.y0) * m_stride;
            const MutableRow row = out.row(y, block.x0);
            for (int i = 0; i < block.width(); i += kLanes<V>) {
                const std::size_t at = start + std::size_t(i);
                const Point<V> there{loadRow<V>(m_x + at) * step, loadRow<V>(m_y + at) * step};
                storePart(row, i, block.width(), images[kGuides].linear(there));
            }
        }
    }

private:
    static constexpr float kFar = 1e8f;
    static constexpr bool kGuided = std::invocable<const K<V>&, Sampler<V>, Point<V>>;
    static constexpr std::size_t kGuides = kGuided ? 1 : 0;

    Point<V> place([[maybe_unused]] const SampledArea* guides, const Point<V>& here) const
    {
        if constexpr (kGuided)
            return m_kernel(Sampler<V>(guides[0]), here);
        else
            return m_kernel(here);
    }
    GridRect guideRegion(const Grid& grid, const GridRect& block) const
    {
        if constexpr (requires { K<V>::guideRegion(m_values, CIRect()); })
            return grid.cellsTouching(K<V>::guideRegion(m_values, rectOf(grid, block)));
        else
            return block;
    }
    static double lowest(float v) { return double(v); }
    static double lowest(const Batch& v)
    {
        alignas(64) float lanes[kLanes<Batch>];
        v.store_aligned(lanes);
        return double(*std::min_element(lanes, lanes + kLanes<Batch>));
    }

    const Values& m_values;
    K<V> m_kernel;
    float m_step = 1; // of the image's grid
    std::size_t m_stride = 0;
    float *m_x = nullptr, *m_y = nullptr; // places of the block, in cells
};

template <template <class> class K, class V>
class GeneralKernelOf : public SampleKernel {
public:
    GeneralKernelOf(const Values& values, const Grid& grid)
        : m_values(values)
        , m_kernel(Inputs<V>(values, grid.step()))
    {
    }

    GridRect region(std::size_t index, const Grid& grid, const Grid& imageGrid, const GridRect& block,
        const SampledArea*, Scratch&) override
    {
        return imageGrid.cellsTouching(K<V>::regionOfInterest(m_values, index, rectOf(grid, block)));
    }
    void run(const SampledArea* images, const Grid& grid, const Planes& out, const GridRect& block) override
    {
        for (int y = block.y0; y < block.y1; ++y) {
            const MutableRow row = out.row(y, block.x0);
            forEachPlace<V>(grid, block, y,
                [&](int i, const Point<V>& here) { storePart(row, i, block.width(), bounded(pixelAt(images, here))); });
        }
    }

private:
    using S = Sampler<V>;
    Pixel<V> pixelAt(const SampledArea* images, const Point<V>& here) const
    {
        if constexpr (std::invocable<const K<V>&, S, Point<V>>)
            return m_kernel(S(images[0]), here);
        else if constexpr (std::invocable<const K<V>&, S, S, Point<V>>)
            return m_kernel(S(images[0]), S(images[1]), here);
        else
            return m_kernel(S(images[0]), S(images[1]), S(images[2]), here);
    }
    const Values& m_values;
    K<V> m_kernel;
};

template <template <template <class> class, class> class Runner, template <class> class K>
std::unique_ptr<SampleKernel> makeSampleKernel(const Values& values, const Render& render)
{
    return withLanes(render.floats, [&]<class V>() -> std::unique_ptr<SampleKernel> {
        return std::make_unique<Runner<K, V>>(values, render.grid);
    });
}

template <template <class> class K>
CIRect extentOf(const Values& values, const CIImage& source)
{
    if constexpr (requires { K<float>::extent(values); })
        return K<float>::extent(values);
    else
        return source.extent();
}

inline std::vector<NodePtr> nodesOf(const std::vector<CIImage>& images)
{
    std::vector<NodePtr> nodes;
    for (const CIImage& image : images)
        nodes.push_back(image ? image.node() : constantNode({0, 0, 0, 0}));
    return nodes;
}

} // namespace detail

/// The image that a warp makes of another. `magnification`: see sampleNode.
template <template <class> class K>
CIImage warp(const Values& values, const CIImage& source, const CIRect& extent, double magnification = 1)
{
    const bool opaque = source.extent().isInfinite() && source.node()->isOpaque();
    return CIImage(sampleNode(&detail::makeSampleKernel<detail::WarpKernelOf, K>, std::make_shared<Values>(values),
        {source.node()}, extent, opaque, magnification));
}

/// The image that a guided warp makes of `source`.
template <template <class> class K>
CIImage guidedWarp(const Values& values, const CIImage& guide, const CIImage& source, const CIRect& extent)
{
    return CIImage(sampleNode(&detail::makeSampleKernel<detail::WarpKernelOf, K>, std::make_shared<Values>(values),
        detail::nodesOf({guide, source}), extent));
}

/// The image that a general kernel makes of others.
template <template <class> class K>
CIImage general(const Values& values, const std::vector<CIImage>& images, const CIRect& extent)
{
    return CIImage(sampleNode(&detail::makeSampleKernel<detail::GeneralKernelOf, K>, std::make_shared<Values>(values),
        detail::nodesOf(images), extent));
}

template <template <class> class K>
struct WarpFilter : RecipeFilter {
    explicit WarpFilter(Declaration d)
        : RecipeFilter(std::move(d), [](const Values& in) {
            const CIImage source = in.image();
            return warp<K>(in, source, detail::extentOf<K>(in, source));
        })
    {
    }
};

} // namespace ci
