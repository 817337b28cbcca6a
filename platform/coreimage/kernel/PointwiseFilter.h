// Filters whose kernel takes the pixels at one place, the place itself, or both.
//
// template <class V> struct Example {
//     explicit Example(const Inputs<V>& in);
//     Pixel<V> operator()(const Pixel<V>& p) const;  // or (p, q), … for two to four images;
//                                                    // (Point<V>) for none; a last Point<V> gives the place
//     static constexpr bool straight = true;         // wants and gives colors not multiplied by alpha
//     static constexpr bool keepsAlpha = true;       // promises not to touch alpha
//     static constexpr bool opaque = true;           // promises alpha 1
//     static constexpr bool perComponent = true;     // promises that each component depends on itself alone
//     static CIRect extent(const Values&);           // default: that of the images united, or infinite without any
// };
#pragma once

#include "platform/coreimage/graph/Pointwise.h"

#include <concepts>
#include <type_traits>

namespace ci {

/// Keeps NaN and infinities from spreading: NaN becomes black, the rest the range of a half-precision number.
template <class V>
V bounded(const V& v)
{
    return clamp(select(v == v, v, V(0.0f)), -65504.0f, 65504.0f);
}
template <class V>
Pixel<V> bounded(const Pixel<V>& p)
{
    return {bounded(p.r), bounded(p.g), bounded(p.b), bounded(p.a)};
}

template <class V>
Pixel<V> loadPixel(const Row& row, int i)
{
    return {loadRow<V>(row.r + i), loadRow<V>(row.g + i), loadRow<V>(row.b + i), loadRow<V>(row.a + i)};
}
template <class V>
void storePixel(const MutableRow& row, int i, const Pixel<V>& p)
{
    storeRow(row.r + i, p.r);
    storeRow(row.g + i, p.g);
    storeRow(row.b + i, p.b);
    storeRow(row.a + i, p.a);
}

namespace detail {

template <class K>
constexpr bool isStraight = requires
{
    requires K::straight;
};
template <class K>
constexpr bool keepsAlpha = requires
{
    requires K::keepsAlpha;
};
template <class K>
constexpr bool isOpaque = requires
{
    requires K::opaque;
};

template <class K>
constexpr bool isPerComponent = requires
{
    requires K::perComponent;
};

template <class K, class V, class... Pixels>
Pixel<V> call(const K& kernel, const Point<V>& here, const Pixels&... pixels)
{
    if constexpr (std::invocable<const K&, const Pixels&..., const Point<V>&>)
        return kernel(pixels..., here);
    else
        return kernel(pixels...);
}

template <class K, class V>
constexpr int imageCount()
{
    using P = Pixel<V>;
    using At = Point<V>;
    if constexpr (std::invocable<const K&, P> || std::invocable<const K&, P, At>)
        return 1;
    else if constexpr (std::invocable<const K&, P, P> || std::invocable<const K&, P, P, At>)
        return 2;
    else if constexpr (std::invocable<const K&, P, P, P> || std::invocable<const K&, P, P, P, At>)
        return 3;
    else if constexpr (std::invocable<const K&, P, P, P, P> || std::invocable<const K&, P, P, P, P, At>)
        return 4;
    else
        return 0;
}

template <template <class> class K, class V>
class RowKernelOf : public RowKernel {
public:
    RowKernelOf(const Values& values, const Grid& grid, bool opaque)
        : m_kernel(Inputs<V>(values, grid.step()))
        , m_opaque(opaque)
    {
    }
    void run(const Row* in, const MutableRow& out, const Grid& grid, int x, int y, int count) const override
    {
        const V top(grid.yAt(y)), step(grid.step());
        V across = V(grid.xAt(x)) + laneIndex<V>() * step;
        const V stride(grid.step() * float(kLanes<V>));
        for (int i = 0; i < count; i += kLanes<V>) {
            // From the row's start each time: a running sum would drift on wide rows.
            const Point<V> here{mulAdd(V(float(i / kLanes<V>)), stride, across), top};
            storePixel(out, i, bounded(pixelAt(in, i, here)));
        }
    }

private:
    using Kernel = K<V>;
    Pixel<V> take(const Row& row, int i) const
    {
        const Pixel<V> p = loadPixel<V>(row, i);
        return isStraight<Kernel> && !m_opaque ? unpremultiplied(p) : p;
    }
    Pixel<V> pixelAt(const Row* in, int i, const Point<V>& here) const
    {
        constexpr int images = imageCount<Kernel, V>();
        Pixel<V> result;
        if constexpr (images == 0)
            result = m_kernel(here);
        else if constexpr (images == 1)
            result = call<Kernel, V>(m_kernel, here, take(in[0], i));
        else if constexpr (images == 2)
            result = call<Kernel, V>(m_kernel, here, take(in[0], i), take(in[1], i));
        else if constexpr (images == 3)
            result = call<Kernel, V>(m_kernel, here, take(in[0], i), take(in[1], i), take(in[2], i));
        else
            result = call<Kernel, V>(m_kernel, here, take(in[0], i), take(in[1], i), take(in[2], i), take(in[3], i));
        if constexpr (isStraight<Kernel>)
            return m_opaque && keepsAlpha<Kernel> ? result : premultiplied(result);
        else
            return result;
    }
    Kernel m_kernel;
    bool m_opaque;
};

template <template <class> class K>
std::unique_ptr<RowKernel> makeRowKernel(const Values& values, const Render& render, bool opaque)
{
    return withLanes(render.floats, [&]<class V>() -> std::unique_ptr<RowKernel> {
        return std::make_unique<RowKernelOf<K, V>>(values, render.grid, opaque);
    });
}

} // namespace detail

template <template <class> class K>
PointwiseKernel pointwiseKernel()
{
    using F = K<float>;
    return {&detail::makeRowKernel<K>, detail::keepsAlpha<F>, detail::isOpaque<F>, detail::isPerComponent<F>};
}

/// The image a pointwise kernel makes of others; a null one counts as transparent.
template <template <class> class K>
CIImage pointwise(const Values& values, const std::vector<CIImage>& images, const CIRect& extent)
{
    std::vector<NodePtr> nodes;
    for (const CIImage& image : images)
        nodes.push_back(image ? image.node() : CIImage::fromColor(CIColor(0, 0, 0, 0)).node());
    return CIImage(pointwiseNode(pointwiseKernel<K>(), std::make_shared<Values>(values), std::move(nodes), extent));
}

template <template <class> class K>
CIImage pointwiseImage(const Values& values)
{
    std::vector<CIImage> images = values.images();
    images.resize(detail::imageCount<K<float>, float>());
    CIRect extent = images.empty() ? CIRect::infinite() : CIRect();
    for (const CIImage& image : images)
        extent = extent.united(image.extent());
    if constexpr (requires { K<float>::extent(values); })
        extent = K<float>::extent(values);
    return pointwise<K>(values, images, extent);
}

/// Declares a filter of a pointwise kernel; its images are the filter's image inputs in order.
template <template <class> class K>
struct PointwiseFilter : FilterRegistration {
    explicit PointwiseFilter(Declaration d)
        : FilterRegistration(with(std::move(d)))
    {
    }

private:
    static Declaration with(Declaration d)
    {
        d.output = &pointwiseImage<K>;
        return d;
    }
};

// The same thing under the names that say what it is for.
template <template <class> class K>
using ColorFilter = PointwiseFilter<K>;
template <template <class> class K>
using BlendFilter = PointwiseFilter<K>;
template <template <class> class K>
using GeneratorFilter = PointwiseFilter<K>;

/// Declares a filter made of other images' operations.
struct RecipeFilter : FilterRegistration {
    RecipeFilter(Declaration d, std::function<CIImage(const Values&)> recipe)
        : FilterRegistration(with(std::move(d), std::move(recipe)))
    {
    }

private:
    static Declaration with(Declaration d, std::function<CIImage(const Values&)> recipe)
    {
        d.output = std::move(recipe);
        return d;
    }
};

} // namespace ci
