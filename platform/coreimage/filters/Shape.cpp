// Rectangles with round corners or soft edges, and line drawings.
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

CIRect shapeExtent(const Values& in)
{
    const CIRect r = in.rect("inputExtent");
    return CIRect::fromCorners({r.left(), r.bottom()}, {r.right(), r.top()});
}

/// One through which the picture is seen, where the shape covers much of it.
CIInputAttributes shapeColor()
{
    return fitted(color("inputColor", "Color", CIColor{1, 1, 1, 1}), CIColor{1, 1, 1, 0.5});
}

/// The distance to the outline, negative inside.
template <class V>
struct RoundedOutline {
    explicit RoundedOutline(const Inputs<V>& in)
    {
        const CIRect r = shapeExtent(in.values());
        const double corner = std::min({in.values().number("inputRadius"), r.width / 2, r.height / 2});
        center = {V(float(r.center().x)), V(float(r.center().y))};
        straight = {V(float(r.width / 2 - corner)), V(float(r.height / 2 - corner))};
        radius = V(float(corner));
    }
    V operator()(const Point<V>& here) const
    {
        const Point<V> d = here - center;
        const V x = abs(d.x) - straight.x, y = abs(d.y) - straight.y;
        return hypot(max(x, 0.0f), max(y, 0.0f)) + min(max(x, y), 0.0f) - radius;
    }
    Point<V> center, straight; // half the sides without the corners
    V radius;
};

/// How much of a cell lies inside an outline at a signed distance: an edge two thirds of a cell wide, and a sixth of a
/// pixel more.
template <class V>
V covered(const V& outside, const V& cell)
{
    return saturate(V(0.5f + 1.5f * (1 / 6.0f - outside) / cell));
}

template <class V>
struct RoundedRectangle {
    explicit RoundedRectangle(const Inputs<V>& in)
        : outline(in)
        , color(in.color("inputColor"))
        , cell(in.step())
    {
    }
    Pixel<V> operator()(const Point<V>& here) const { return color * covered(outline(here), cell); }
    static CIRect extent(const Values& in) { return shapeExtent(in); }
    RoundedOutline<V> outline;
    Pixel<V> color;
    V cell;
};

const GeneratorFilter<RoundedRectangle> roundedRectangleGenerator{{.name = "CIRoundedRectangleGenerator",
    .displayName = "Rounded Rectangle Generator",
    .category = kCICategoryGenerator,
    .usage = HighDynamicRange,
    .inputs = {fitted(rectangle("inputExtent", "Extent", {0, 0, 100, 100}), CIVector{60, 60, 180, 180}),
        distance("inputRadius", "Radius", {.standard = 10, .min = 0, .sliderMin = 0, .sliderMax = 100}),
        shapeColor()}}};

/// A line of inputWidth along the outline, half of it on each side.
template <class V>
struct RoundedRectangleStroke {
    explicit RoundedRectangleStroke(const Inputs<V>& in)
        : outline(in)
        , color(in.color("inputColor"))
        , half(0.5f * in.scalar("inputWidth"))
        , cell(in.step())
    {
    }
    Pixel<V> operator()(const Point<V>& here) const
    {
        const V d = outline(here);
        return color * max(V(covered(V(d - half), cell) - covered(V(d + half), cell)), 0.0f);
    }
    static CIRect extent(const Values& in)
    {
        const CIRect r = shapeExtent(in);
        return r.isEmpty() ? r : r.grown(in.number("inputWidth") / 2).roundedOut();
    }
    RoundedOutline<V> outline;
    Pixel<V> color;
    V half, cell;
};

const GeneratorFilter<RoundedRectangleStroke> roundedRectangleStrokeGenerator{
    {.name = "CIRoundedRectangleStrokeGenerator",
        .displayName = "Rounded Rectangle Stroke Generator",
        .category = kCICategoryGenerator,
        .usage = HighDynamicRange,
        .inputs = {fitted(rectangle("inputExtent", "Extent", {0, 0, 100, 100}), CIVector{60, 60, 180, 180}),
            distance("inputRadius", "Radius", {.standard = 10, .min = 0}), shapeColor(),
            distance("inputWidth", "Width", {.standard = 10, .min = 0})}}};

inline float errorFunction(float v) { return std::erf(v); }
inline Batch errorFunction(const Batch& v) { return xsimd::erf(v); }

/// A rectangle under a Gaussian blur: the product of what is left of it along both axes.
template <class V>
struct BlurredRectangle {
    explicit BlurredRectangle(const Inputs<V>& in)
        : color(in.color("inputColor"))
        , perSigma(float(M_SQRT1_2) / max(in.scalar("inputSigma"), 0.15f * in.step()))
    {
        const CIRect r = shapeExtent(in.values());
        low = {V(float(r.left())), V(float(r.bottom()))};
        high = {V(float(r.right())), V(float(r.top()))};
    }
    Pixel<V> operator()(const Point<V>& here) const
    {
        const auto inside = [&](const V& at, const V& from, const V& to) {
            return 0.5f * (errorFunction(V((at - from) * perSigma)) - errorFunction(V((at - to) * perSigma)));
        };
        return color * V(inside(here.x, low.x, high.x) * inside(here.y, low.y, high.y));
    }
    static CIRect extent(const Values& in)
    {
        const CIRect r = shapeExtent(in);
        return r.isEmpty() ? r : r.grown(std::ceil(3 * in.number("inputSigma"))).roundedOut();
    }
    Pixel<V> color;
    V perSigma;
    Point<V> low, high;
};

const GeneratorFilter<BlurredRectangle> blurredRectangleGenerator{{.name = "CIBlurredRectangleGenerator",
    .displayName = "Blurred Rectangle Generator",
    .category = kCICategoryGenerator,
    .usage = HighDynamicRange,
    .inputs = {fitted(rectangle("inputExtent", "Extent", {0, 0, 100, 100}), CIVector{60, 60, 180, 180}),
        distance("inputSigma", "Sigma", {.standard = 10, .min = 0}), shapeColor()}}};

} // namespace
} // namespace ci
