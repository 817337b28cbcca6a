// Canny's edge detector: smooth, find slopes, thin them to ridges, keep strong ridges and the weak ones that go on from
// them (J. Canny, A computational approach to edge detection, 1986).
#include "platform/coreimage/kernel/DisplayValues.h"
#include "platform/coreimage/kernel/StencilFilter.h"
#include "platform/coreimage/passes/Blur.h"

namespace ci {
namespace {

/// One component to look at: luminance, or how light it looks.
template <class V>
struct Gray {
    static constexpr bool opaque = true;
    explicit Gray(const Inputs<V>& in)
        : perceptual(in.values().flag("inputPerceptual"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const V light = luma(p), gray = perceptual ? displayFromLinear(light) : light;
        return {gray, gray, gray, V(1.0f)};
    }
    bool perceptual;
};

/// The slope in red and green, its steepness in blue.
template <class V>
struct Slope {
    static constexpr int reach = 1;
    explicit Slope(const Inputs<V>&) { }
    template <class Near>
    Pixel<V> operator()(const Near& near) const
    {
        const auto at = [&](int dx, int dy) { return near(dx, dy).g; };
        const V a = at(-1, 1), c = at(1, 1), f = at(-1, -1), h = at(1, -1);
        const V x = 0.25f * (c + h - a - f) + 0.5f * (at(1, 0) - at(-1, 0));
        const V y = 0.25f * (a + c - f - h) + 0.5f * (at(0, 1) - at(0, -1));
        return {x, y, hypot(x, y), V(1.0f)};
    }
};

/// Ridges only: red where they are strong, green where they are weak or strong.
template <class V>
struct Ridge {
    static constexpr int reach = 1;
    explicit Ridge(const Inputs<V>& in)
        : high(in.scalar("inputThresholdHigh"))
        , low(min(in.scalar("inputThresholdLow"), high))
    {
    }
    template <class Near>
    Pixel<V> operator()(const Near& near) const
    {
        const Pixel<V> p = near(0, 0);
        const auto steep = [&](int dx, int dy) { return near(dx, dy).b; };
        const V x = abs(p.r), y = abs(p.g);
        const auto level = y < x * 0.41421f, upright = x<y * 0.41421f, rising = p.r * p.g> V(0.0f);
        // The two neighbors up and down the slope; of equal ones the first wins.
        const V before =
            select(level, steep(-1, 0), select(upright, steep(0, -1), select(rising, steep(-1, -1), steep(-1, 1))));
        const V after =
            select(level, steep(1, 0), select(upright, steep(0, 1), select(rising, steep(1, 1), steep(1, -1))));
        const V ridge = select(p.b > before, select(p.b >= after, p.b, V(0.0f)), V(0.0f));
        const V one(1.0f), none(0.0f);
        return {select(ridge >= high, select(ridge > none, one, none), none),
            select(ridge >= low, select(ridge > none, one, none), none), none, one};
    }
    V high, low;
};

/// Weak ridges beside strong ones become strong.
template <class V>
struct Continue {
    static constexpr int reach = 1;
    explicit Continue(const Inputs<V>&) { }
    template <class Near>
    Pixel<V> operator()(const Near& near) const
    {
        V strong(0.0f);
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx)
                strong = max(strong, near(dx, dy).r);
        const Pixel<V> p = near(0, 0);
        return {min(strong, p.g), p.g, p.b, p.a};
    }
};

/// Strong ridges white, all else black.
template <class V>
struct Strong {
    static constexpr bool opaque = true;
    explicit Strong(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p) const { return {p.r, p.r, p.r, V(1.0f)}; }
};

const RecipeFilter cannyEdgeDetector{
    {.name = "CICannyEdgeDetector",
        .displayName = "Canny Edge Detector",
        .category = kCICategoryStylize,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), fitted(scalar("inputGaussianSigma", "Gaussian Sigma", {.standard = 1.6, .min = 0}), 3),
            number("inputPerceptual", "Perceptual", InputKind::Boolean, {.standard = 0}),
            fitted(scalar("inputThresholdHigh", "Threshold High", {.standard = 0.05, .min = 0}), 0.01),
            fitted(scalar("inputThresholdLow", "Threshold Low", {.standard = 0.02, .min = 0}), 0.005),
            integer("inputHysteresisPasses", "Hysteresis Passes", {.standard = 1, .min = 0, .max = 20})},
        .tolerance = 5e-3f, // a ridge is all or nothing
        .boundToPixelGrid = true},
    [](const Values& in) {
        const CIImage source = in.image();
        const CIImage gray = pointwise<Gray>(in, {source}, source.extent()).clampedToExtent();
        const CIImage slopes =
            stencil<Slope>(in, gaussianBlur(gray, in.number("inputGaussianSigma")), CIRect::infinite());
        CIImage ridges = stencil<Ridge>(in, slopes, CIRect::infinite());
        for (int pass = 0; pass < int(in.number("inputHysteresisPasses")); ++pass)
            ridges = stencil<Continue>(in, ridges, CIRect::infinite());
        return pointwise<Strong>(in, {ridges}, source.extent());
    }};

} // namespace
} // namespace ci
