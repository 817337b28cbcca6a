// Drawings made of a picture's edges.
#include "platform/coreimage/filters/Waves.h"
#include "platform/coreimage/kernel/DisplayValues.h"
#include "platform/coreimage/kernel/StencilFilter.h"
#include "platform/coreimage/passes/Blur.h"

namespace ci {
namespace {

/// How light a pixel looks, in red, green and blue.
template <class V>
struct Lightness {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit Lightness(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const V light = displayFromLinear(luma(p));
        return {light, light, light, p.a};
    }
};

CIImage lightness(const Values& in, const CIImage& source)
{
    return pointwise<Lightness>(in, {source}, source.extent());
}

/// Sobel's steepness of one component, per step of 1.
template <class V, class At>
V steepness(At at)
{
    const V a = at(-1, 1), c = at(1, 1), f = at(-1, -1), h = at(1, -1);
    const V x = 0.25f * (c + h - a - f) + 0.5f * (at(1, 0) - at(-1, 0));
    const V y = 0.25f * (a + c - f - h) + 0.5f * (at(0, 1) - at(0, -1));
    return hypot(x, y);
}

/// Black lines where the lightness is steep, transparent elsewhere.
template <class V>
struct BlackLines {
    static constexpr int reach = 1;
    explicit BlackLines(const Inputs<V>& in)
        : intensity(in.scalar("inputEdgeIntensity"))
        , threshold(in.scalar("inputThreshold"))
        , contrast(in.scalar("inputContrast"))
    {
    }
    template <class Near>
    Pixel<V> operator()(const Near& near) const
    {
        const V steep = intensity * steepness<V>([&](int dx, int dy) { return near(dx, dy).g; });
        const V ink = saturate(V((steep - threshold) * contrast)) * near(0, 0).a;
        return {V(0.0f), V(0.0f), V(0.0f), ink};
    }
    V intensity, threshold, contrast;
};

/// What is less rough than noise becomes smooth; what is left is sharpened.
template <class V>
struct Denoised {
    static constexpr bool keepsAlpha = true;
    explicit Denoised(const Inputs<V>& in)
        : level(in.scalar("inputNRNoiseLevel"))
        , gain(1.0f + in.scalar("inputNRSharpness"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& soft) const
    {
        const V apart = p.g - soft.g, edge = saturate(V(abs(apart) / max(level, 1e-6f)));
        const V light = mulAdd(edge * gain, apart, soft.g);
        return {light, light, light, p.a};
    }
    V level, gain;
};

const RecipeFilter lineOverlay{
    {.name = "CILineOverlay",
        .displayName = "Line Overlay",
        .category = kCICategoryStylize,
        .usage = Video,
        .inputs = {image(),
            scalar("inputNRNoiseLevel", "NR Noise Level",
                {.standard = 0.07, .min = 0, .sliderMin = 0, .sliderMax = 0.1, .identity = 0}),
            scalar("inputNRSharpness", "NR Sharpness",
                {.standard = 0.71, .min = 0, .sliderMin = 0, .sliderMax = 2, .identity = 0}),
            fitted(scalar("inputEdgeIntensity", "Edge Intensity",
                       {.standard = 1, .min = 0, .sliderMin = 0, .sliderMax = 200, .identity = 0}),
                3),
            scalar("inputThreshold", "Threshold",
                {.standard = 0.1, .min = 0, .sliderMin = 0, .sliderMax = 1, .identity = 0}),
            scalar("inputContrast", "Contrast",
                {.standard = 50, .min = 0.25, .sliderMin = 0.25, .sliderMax = 200, .identity = 1})},
        .tolerance = 5e-3f, // contrast makes last bits grow
        .boundToPixelGrid = true},
    [](const Values& in) {
        constexpr double kSigma = 1.3; // px
        const CIImage light = lightness(in, in.image());
        const CIImage calm = pointwise<Denoised>(in, {light, blurredWithin(light, kSigma)}, light.extent());
        return stencilWithin<BlackLines>(in, calm);
    }};

/// White where a spot is lighter than what surrounds it, as if the rest were cut away.
template <class V>
struct Woodcut {
    explicit Woodcut(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& fine, const Pixel<V>& wide) const
    {
        // Even areas take the tone they have: light ones stay white, dark ones black.
        const V ink = saturate(V(0.5f + 14.0f * (fine.g - wide.g) + 3.0f * (wide.g - 0.5f * wide.a)));
        return {ink * fine.a, ink * fine.a, ink * fine.a, fine.a};
    }
};

const RecipeFilter edgeWork{
    {.name = "CIEdgeWork",
        .displayName = "Edge Work",
        .category = kCICategoryStylize,
        .usage = Video,
        .inputs = {image(),
            distance("inputRadius", "Radius", {.standard = 3, .min = 0, .sliderMin = 0, .sliderMax = 20})},
        .tolerance = 2e-3f},
    [](const Values& in) {
        const CIImage light = lightness(in, in.image());
        const double radius = in.number("inputRadius");
        return pointwise<Woodcut>(
            in, {blurredWithin(light, 0.4 * radius), blurredWithin(light, 1.6 * radius)}, light.extent());
    }};

/// Dark outlines around flat, lively colors that are printed as dots.
template <class V>
struct Comic {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit Comic(const Inputs<V>& in)
        : fine(saturate(V((kPeriod / in.step() - 1.5f) * 0.5f)))
    {
        turn[0] = {V(0.9659f), V(0.2588f)}; // 15, 75 and 45 degrees, as printers turn their screens
        turn[1] = {V(0.2588f), V(0.9659f)};
        turn[2] = {V(0.7071f), V(0.7071f)};
    }
    Pixel<V> operator()(const Pixel<V>& smooth, const Pixel<V>& light, const Point<V>& here) const
    {
        const Pixel<V> shown = displayFromLinear(smooth);
        const V gray = luma(shown);
        const V ink = 1.0f - light.g;
        const auto printed = [&](const V& c, const Point<V>& direction) {
            const V lively = saturate(mulAdd(V(1.35f), c - gray, gray));
            const V u = (here.x * direction.x + here.y * direction.y) * (1 / kPeriod);
            const V v = (here.y * direction.x - here.x * direction.y) * (1 / kPeriod);
            const V screen = 0.5f + 0.25f * (cosineOfTurns(u) + cosineOfTurns(v));
            const V dots = saturate(V((lively - screen) * 2.5f + 0.5f));
            return linearFromDisplay(saturate(mix(lively, dots, V(0.45f * fine)))) * ink;
        };
        return {printed(shown.r, turn[0]), printed(shown.g, turn[1]), printed(shown.b, turn[2]), smooth.a};
    }
    static constexpr float kPeriod = 6; // px
    V fine; // the dots fade where the render can't show them
    Point<V> turn[3];
};

/// Ink from 0 to 1 where the lightness is steep.
template <class V>
struct Outline {
    static constexpr int reach = 1;
    explicit Outline(const Inputs<V>&) { }
    template <class Near>
    Pixel<V> operator()(const Near& near) const
    {
        const V steep = steepness<V>([&](int dx, int dy) { return near(dx, dy).g; });
        const V ink = saturate(V((steep - 0.07f) * 12.0f));
        return {ink, ink, ink, V(1.0f)};
    }
};

const RecipeFilter comicEffect{{.name = "CIComicEffect",
                                   .displayName = "Comic Effect",
                                   .category = kCICategoryStylize,
                                   .usage = Video,
                                   .inputs = {image()},
                                   .tolerance = 1e-3f,
                                   .boundToPixelGrid = true},
    [](const Values& in) {
        constexpr double kFlat = 2, kLine = 1.2; // px
        const CIImage source = in.image();
        const CIImage lines = stencilWithin<Outline>(in, blurredWithin(lightness(in, source), kLine));
        return pointwise<Comic>(in, {blurredWithin(source, kFlat), lines}, source.extent());
    }};

} // namespace
} // namespace ci
