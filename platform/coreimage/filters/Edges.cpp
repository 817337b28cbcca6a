// Edges and gradients, from the pixels next to each other.
#include "platform/coreimage/kernel/StencilFilter.h"

namespace ci {
namespace {

/// Applies `f` to each color of two pixels; alpha is that of the first.
template <class V, class F>
Pixel<V> forColors(const Pixel<V>& p, const Pixel<V>& q, F f)
{
    return {f(p.r, q.r), f(p.g, q.g), f(p.b, q.b), p.a};
}

/// What Sobel's weights 1 2 1 answer, so that a step of 1 gives 1.
template <class V>
struct Slopes {
    Pixel<V> x, y;
};
template <class V, class Near>
Slopes<V> sobel(const Near& near)
{
    const Pixel<V> a = near(-1, 1), b = near(0, 1), c = near(1, 1), d = near(-1, 0), e = near(1, 0), f = near(-1, -1),
                   g = near(0, -1), h = near(1, -1);
    const V quarter(0.25f), half(0.5f);
    return {(c + h - a - f) * quarter + (e - d) * half, (a + c - f - h) * quarter + (b - g) * half};
}

/// The steepness of each color, in that color.
template <class V>
struct Edges {
    static constexpr int reach = 1;
    explicit Edges(const Inputs<V>& in)
        : intensity(in.scalar("inputIntensity"))
    {
    }
    template <class Near>
    Pixel<V> operator()(const Near& near) const
    {
        const Slopes<V> s = sobel<V>(near);
        Pixel<V> steep = forColors(s.x, s.y, [&](const V& x, const V& y) { return intensity * hypot(x, y); });
        steep.a = near(0, 0).a;
        return steep;
    }
    V intensity;
};

const RecipeFilter edges{{.name = "CIEdges",
                             .displayName = "Edges",
                             .category = kCICategoryStylize,
                             .usage = Video | HighDynamicRange,
                             .inputs = {image(),
                                 scalar("inputIntensity", "Intensity",
                                     {.standard = 1, .min = 0, .sliderMin = 0, .sliderMax = 10, .identity = 0})}},
    [](const Values& in) { return stencilWithin<Edges>(in, in.image(), true); }};

/// Of the color with the steepest slope: the slope to the right in red, upwards in green; alpha 1.
template <class V>
Pixel<V> steepest(const Slopes<V>& s)
{
    const auto steepness = [](const V& x, const V& y) { return mulAdd(x, x, y * y); };
    const V r = steepness(s.x.r, s.y.r), g = steepness(s.x.g, s.y.g), b = steepness(s.x.b, s.y.b);
    const auto greenest = g > r, bluest = b > max(r, g);
    return {select(bluest, s.x.b, select(greenest, s.x.g, s.x.r)),
        select(bluest, s.y.b, select(greenest, s.y.g, s.y.r)), V(0.0f), V(1.0f)};
}

template <class V>
struct SobelGradients {
    static constexpr int reach = 1;
    explicit SobelGradients(const Inputs<V>&) { }
    template <class Near>
    Pixel<V> operator()(const Near& near) const
    {
        return steepest(sobel<V>(near));
    }
};

const RecipeFilter sobelGradients{{.name = "CISobelGradients",
                                      .displayName = "Sobel Gradients",
                                      .category = kCICategoryStylize,
                                      .usage = Video | HighDynamicRange,
                                      .inputs = {image()}},
    [](const Values& in) { return stencilWithin<SobelGradients>(in, in.image()); }};

/// The same with the wider, odd weights of a Gabor function.
template <class V>
struct GaborGradients {
    static constexpr int reach = 2;
    explicit GaborGradients(const Inputs<V>&) { }
    template <class Near>
    Pixel<V> operator()(const Near& near) const
    {
        const auto along = [&](auto at) {
            return (at(1, 0) - at(-1, 0)) * V(0.543f) + (at(1, 1) + at(1, -1) - at(-1, 1) - at(-1, -1)) * V(0.177f)
                + (at(2, 0) - at(-2, 0)) * V(0.045f) + (at(2, 1) + at(2, -1) - at(-2, 1) - at(-2, -1)) * V(0.018f)
                + (at(1, 2) + at(1, -2) - at(-1, 2) - at(-1, -2)) * V(0.0095f);
        };
        return steepest(Slopes<V>{
            along([&](int dx, int dy) { return near(dx, dy); }), along([&](int dy, int dx) { return near(dx, dy); })});
    }
};

const RecipeFilter gaborGradients{{.name = "CIGaborGradients",
                                      .displayName = "Gabor Gradients",
                                      .category = kCICategoryStylize,
                                      .usage = Video | HighDynamicRange,
                                      .inputs = {image()}},
    [](const Values& in) { return stencilWithin<GaborGradients>(in, in.image()); }};

} // namespace
} // namespace ci
