// Filters that weigh a pixel against a wide neighborhood: focus, heights, highlights and shadows, what strikes the eye.
#include "platform/coreimage/filters/Lab.h"
#include "platform/coreimage/graph/Measured.h"
#include "platform/coreimage/kernel/DisplayValues.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/passes/Blur.h"

namespace ci {
namespace {

/// The shorter side of a picture; images without end count as a screen.
double shorterSide(const CIImage& source)
{
    const CIRect& e = source.extent();
    return e.isInfinite() ? 800 : std::min(e.width, e.height);
}

/// Rich, sharpened colors along the line through two points; away from it first the light blur, then the strong one.
template <class V>
struct TiltedFocus {
    static constexpr bool keepsAlpha = true;
    explicit TiltedFocus(const Inputs<V>& in)
        : intensity(in.scalar("inputUnsharpMaskIntensity"))
        , saturation(in.scalar("inputSaturation"))
        , origin(in.point("inputPoint0"))
        , perReach(1.0f / in.scalar("reach"))
    {
        const CIPoint a = in.values().point("inputPoint0"), b = in.values().point("inputPoint1");
        const double length = std::hypot(b.x - a.x, b.y - a.y);
        across = length > 1e-6 ? Point<V>{V(float((a.y - b.y) / length)), V(float((b.x - a.x) / length))}
                               : Point<V>{V(0.0f), V(1.0f)};
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& soft, const Pixel<V>& light, const Pixel<V>& strong,
        const Point<V>& here) const
    {
        const Pixel<V> sharp = p + (p - soft) * intensity;
        const V far = abs(dot(here - origin, across)) * perReach;
        const Pixel<V> first = mix(sharp, light, smoothstep(V(0.3f), V(0.65f), far));
        const Pixel<V> blurred = mix(first, strong, smoothstep(V(0.5f), V(1.0f), far));
        const V gray = luma(blurred);
        const auto rich = [&](const V& c) { return max(mix(gray, c, saturation), 0.0f); };
        return {rich(blurred.r), rich(blurred.g), rich(blurred.b), p.a};
    }
    V intensity, saturation;
    Point<V> origin, across;
    V perReach;
};

const RecipeFilter depthOfField{
    {.name = "CIDepthOfField",
        .displayName = "Depth of Field",
        .category = kCICategoryStylize,
        .usage = Video,
        .inputs = {image(), fitted(position("inputPoint0", "Point 0", {0, 300}), CIVector{0, 120}),
            fitted(position("inputPoint1", "Point 1", {300, 300}), CIVector{300, 120}),
            scalar("inputSaturation", "Saturation", {.standard = 1.5, .min = 0, .sliderMin = 0, .sliderMax = 10}),
            fitted(scalar("inputUnsharpMaskRadius", "Unsharp Mask Radius",
                       {.standard = 2.5, .min = 0, .sliderMin = 0, .sliderMax = 10}),
                Meaning::Length),
            scalar("inputUnsharpMaskIntensity", "Unsharp Mask Intensity",
                {.standard = 0.5, .min = 0, .sliderMin = 0, .sliderMax = 10}),
            fitted(scalar("inputRadius", "Radius", {.standard = 6, .min = 0, .sliderMin = 0, .sliderMax = 30}),
                Meaning::Length)}},
    [](const Values& in) {
        const CIImage source = in.image();
        const double radius = in.number("inputRadius");
        return pointwise<TiltedFocus>(in.with("reach", std::max(1.0, 0.45 * shorterSide(source))),
            {source, blurredWithin(source, in.number("inputUnsharpMaskRadius")), blurredWithin(source, radius / 2),
                blurredWithin(source, radius)},
            source.extent());
    }};

/// Light as height: rises from 0 at the rim of a white shape to 1 at inputRadius inside.
template <class V>
struct Height {
    static constexpr bool opaque = true;
    explicit Height(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& mask, const Pixel<V>& soft) const
    {
        const V inside = saturate(V(2.0f * luma(soft) - 1.0f));
        const V height = saturate(luma(mask)) * inside;
        return {height, height, height, V(1.0f)};
    }
};

const RecipeFilter heightFieldFromMask{
    {.name = "CIHeightFieldFromMask",
        .displayName = "Height Field From Mask",
        .category = kCICategoryStylize,
        .usage = Video,
        .inputs = {image(),
            distance("inputRadius", "Radius",
                {.standard = 10, .min = 0, .sliderMin = 0, .sliderMax = 300, .identity = 10})}},
    [](const Values& in) {
        constexpr double kPerRadius = 0.5; // two standard deviations inside, a Gaussian is nearly 1
        const CIImage source = in.image();
        return pointwise<Height>(
            in, {source, blurredWithin(source, kPerRadius * in.number("inputRadius"))}, source.extent());
    }};

/// Lifts shadows and lowers highlights by a gain that follows the lightness around each pixel.
template <class V>
struct HighlightShadow {
    static constexpr bool keepsAlpha = true;
    explicit HighlightShadow(const Inputs<V>& in)
        : shadow(in.scalar("inputShadowAmount"))
        , highlight(1.0f - in.scalar("inputHighlightAmount"))
    {
        const V strength = select(shadow > V(0.0f), V(2.0f), V(1.2f)); // stops
        shadow = shadow * strength;
        highlight = highlight * -1.5f;
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& around) const
    {
        const V light = displayFromLinear(saturate(luma(unpremultiplied(around))));
        const V dark = 1.0f - smoothstep(V(0.0f), V(0.6f), light), bright = smoothstep(V(0.4f), V(1.0f), light);
        const V gain = exp2(V(shadow * dark + highlight * bright));
        return {p.r * gain, p.g * gain, p.b * gain, p.a};
    }
    V shadow, highlight; // stops
};

const RecipeFilter highlightShadowAdjust{
    {.name = "CIHighlightShadowAdjust",
        .displayName = "Highlight and Shadow Adjust",
        .category = kCICategoryStylize,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            scalar("inputRadius", "Radius", {.standard = 0, .min = 0, .sliderMin = 0, .sliderMax = 10, .identity = 0}),
            fitted(scalar("inputShadowAmount", "Shadow Amount",
                       {.standard = 0, .min = -1, .max = 1, .sliderMin = -1, .sliderMax = 1, .identity = 0}),
                0.7),
            fitted(scalar("inputHighlightAmount", "Highlight Amount",
                       {.standard = 1, .min = 0, .max = 1, .sliderMin = 0.3, .sliderMax = 1, .identity = 1}),
                0.5)}},
    [](const Values& in) {
        const CIImage source = in.image();
        return pointwise<HighlightShadow>(
            in, {source, blurredWithin(source, in.number("inputRadius"))}, source.extent());
    }};

/// How far a color around a place is from the mean color of the picture (R. Achanta et al., Frequency-tuned salient
/// region detection, 2009), the more the nearer to the picture's middle.
template <class V>
struct Saliency {
    static constexpr bool opaque = true;
    explicit Saliency(const Inputs<V>& in)
    {
        const CIRect e = in.values().image().extent();
        middle = {V(float(e.center().x)), V(float(e.center().y))};
        perSide = {V(float(2 / e.width)), V(float(2 / e.height))};
        const CIVector lab = in.values().vector("meanLab");
        mean = {V(float(lab.X())), V(float(lab.Y())), V(float(lab.Z())), V(1.0f)};
    }
    Pixel<V> operator()(const Pixel<V>& near, const Point<V>& here) const
    {
        const Pixel<V> d = labFromLinear(near) - mean;
        const V apart = sqrt(mulAdd(d.r, d.r, mulAdd(d.g, d.g, d.b * d.b)));
        const V x = (here.x - middle.x) * perSide.x, y = (here.y - middle.y) * perSide.y;
        const V central = 1.0f / (1.0f + 0.7f * mulAdd(x, x, y * y));
        const V striking = saturate(V(apart * (1 / 70.0f))) * central;
        return {striking, striking, striking, V(1.0f)};
    }
    Point<V> middle, perSide;
    Pixel<V> mean;
};

CIVector meanLab(const InterleavedView& pixels)
{
    double l = 0, a = 0, b = 0, count = 1e-9;
    for (int y = pixels.area.y0; y < pixels.area.y1; ++y)
        for (int x = pixels.area.x0; x < pixels.area.x1; ++x) {
            const float* const p = pixels.at(x, y);
            const Pixel<float> lab = labFromLinear(Pixel<float>{p[0], p[1], p[2], p[3]});
            l += double(lab.r * p[3]), a += double(lab.g * p[3]), b += double(lab.b * p[3]), count += double(p[3]);
        }
    return {l / count, a / count, b / count};
}

const RecipeFilter saliencyMapFilter{{.name = "CISaliencyMapFilter",
                                         .displayName = "Saliency Map Filter",
                                         .category = kCICategoryStylize,
                                         .usage = Video,
                                         .inputs = {image()},
                                         .tolerance = 1e-3f},
    [](const Values& in) {
        constexpr double kMostCells = 1 << 14;
        const CIImage source = in.image();
        return measured(source, kMostCells, source.extent(), [=](const InterleavedView& pixels, const Grid&) {
            return pointwise<Saliency>(in.with("meanLab", meanLab(pixels)),
                {blurredWithin(source, shorterSide(source) / 50)}, source.extent());
        });
    }};

} // namespace
} // namespace ci
