// Gradients: colors from the place alone. They blend premultiplied colors in linear light.
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

/// How far a place is on the way from point 0 (0) to point 1 (1).
template <class V>
struct Along {
    explicit Along(const Inputs<V>& in)
        : start(in.point("inputPoint0"))
    {
        const Point<V> d = in.point("inputPoint1") - start;
        direction = d * V(1.0f / max(dot(d, d), 1e-6f));
    }
    V operator()(const Point<V>& here) const { return saturate(dot(here - start, direction)); }
    Point<V> start, direction;
};

/// From the first color at and before point 0 to the second at and beyond point 1.
template <class V>
struct LinearGradient {
    explicit LinearGradient(const Inputs<V>& in)
        : along(in)
        , color0(in.color("inputColor0"))
        , color1(in.color("inputColor1"))
    {
    }
    Pixel<V> operator()(const Point<V>& here) const { return mix(color0, color1, along(here)); }
    Along<V> along;
    Pixel<V> color0, color1;
};

/// The same, slow at both ends.
template <class V>
struct SmoothLinearGradient : LinearGradient<V> {
    using LinearGradient<V>::LinearGradient;
    Pixel<V> operator()(const Point<V>& here) const
    {
        return mix(this->color0, this->color1, smoothstep(V(0.0f), V(1.0f), this->along(here)));
    }
};

// Editors show the picture through gradients at first.
const CIColor kHalfWhite(1, 1, 1, 0.5), kHalfBlack(0, 0, 0, 0.5);

Declaration linear(std::string name, std::string displayName, CIValue automatic0 = {}, CIValue automatic1 = {})
{
    return {.name = std::move(name),
        .displayName = std::move(displayName),
        .category = kCICategoryGradient,
        .usage = Video | HighDynamicRange,
        .inputs = {position("inputPoint0", "Point 0", {0, 0}),
            fitted(position("inputPoint1", "Point 1", {200, 200}), CIVector{300, 300}),
            automatic(color("inputColor0", "Color 1", CIColor{1, 1, 1, 1}), std::move(automatic0)),
            automatic(color("inputColor1", "Color 2", CIColor{0, 0, 0, 1}), std::move(automatic1))}};
}

const GeneratorFilter<LinearGradient> linearGradient{
    linear("CILinearGradient", "Linear Gradient", kHalfWhite, kHalfBlack)};
const GeneratorFilter<SmoothLinearGradient> smoothLinearGradient{
    linear("CISmoothLinearGradient", "Smooth Linear Gradient")};

/// From the first color within radius 1 to the second beyond radius 2; the other way round when radius 1 is larger.
template <class V>
struct RadialGradient {
    explicit RadialGradient(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , radius0(in.scalar("inputRadius0"))
        , color0(in.color("inputColor0"))
        , color1(in.color("inputColor1"))
    {
        const V width = in.scalar("inputRadius1") - radius0;
        // Equal radii make an edge as soft as a cell.
        perWidth = 1.0f / select(width < V(0.0f), min(width, V(-in.step())), max(width, in.step()));
    }
    Pixel<V> operator()(const Point<V>& here) const
    {
        return mix(color0, color1, saturate(V((length(here - center) - radius0) * perWidth)));
    }
    Point<V> center;
    V radius0, perWidth;
    Pixel<V> color0, color1;
};

const GeneratorFilter<RadialGradient> radialGradient{{.name = "CIRadialGradient",
    .displayName = "Radial Gradient",
    .category = kCICategoryGradient,
    .usage = Video | HighDynamicRange,
    .inputs = {center(),
        distance("inputRadius0", "Radius 1", {.standard = 5, .min = 0, .sliderMin = 0, .sliderMax = 800}),
        distance("inputRadius1", "Radius 2", {.standard = 100, .min = 0, .sliderMin = 0, .sliderMax = 800}),
        automatic(color("inputColor0", "Color 1", CIColor{1, 1, 1, 1}), kHalfWhite),
        automatic(color("inputColor1", "Color 2", CIColor{0, 0, 0, 1}), kHalfBlack)}}};

/// A bell of three standard deviations' width, lowered so that it ends at the radius.
template <class V>
struct GaussianGradient {
    static constexpr float kEnd = 0.0111089965f; // exp(-4.5), the bell at its rim
    explicit GaussianGradient(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , perRadius(1.0f / max(in.scalar("inputRadius"), 1e-3f))
        , color0(in.color("inputColor0"))
        , color1(in.color("inputColor1"))
    {
    }
    Pixel<V> operator()(const Point<V>& here) const
    {
        const Point<V> d = (here - center) * perRadius;
        const V bell = exp(V(-4.5f * min(dot(d, d), 1.0f)));
        return mix(color1, color0, saturate(V((bell - kEnd) * (1 / (1 - kEnd)))));
    }
    Point<V> center;
    V perRadius;
    Pixel<V> color0, color1;
};

const GeneratorFilter<GaussianGradient> gaussianGradient{{.name = "CIGaussianGradient",
    .displayName = "Gaussian Gradient",
    .category = kCICategoryGradient,
    .usage = Video | HighDynamicRange,
    .inputs = {center(), automatic(color("inputColor0", "Color 1", CIColor{1, 1, 1, 1}), kHalfWhite),
        automatic(color("inputColor1", "Color 2", CIColor{0, 0, 0, 0}), kHalfBlack),
        distance("inputRadius", "Radius", {.standard = 300, .min = 0, .sliderMin = 0, .sliderMax = 800})}}};

} // namespace
} // namespace ci
