// Distortions: the picture seen through a warp.
#include "platform/coreimage/kernel/SampleFilter.h"

namespace ci {
namespace {

/// A bump (or a dent, for negative scales) of inputRadius around the center.
template <class V>
struct BumpDistortion {
    explicit BumpDistortion(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , perRadius2(1.0f / max(V(in.scalar("inputRadius") * in.scalar("inputRadius")), 1e-6f))
        , scale(in.scalar("inputScale"))
    {
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> d = here - center;
        const V inside = max(V(1.0f - dot(d, d) * perRadius2), 0.0f);
        return center + d * V(1.0f - scale * inside * inside);
    }
    Point<V> center;
    V perRadius2, scale;
};

const WarpFilter<BumpDistortion> bumpDistortion{{.name = "CIBumpDistortion",
    .displayName = "Bump Distortion",
    .category = kCICategoryDistortionEffect,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), center(),
        distance("inputRadius", "Radius", {.standard = 300, .min = 0, .sliderMin = 0, .sliderMax = 600}),
        scalar("inputScale", "Scale", {.standard = 0.5, .sliderMin = -1, .sliderMax = 1, .identity = 0})}}};

/// Turns the picture about the center, by inputAngle there and less and less up to inputRadius.
template <class V>
struct TwirlDistortion {
    explicit TwirlDistortion(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , perRadius(1.0f / max(in.scalar("inputRadius"), 1e-3f))
        , angle(in.scalar("inputAngle"))
    {
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> d = here - center;
        const V left = max(V(1.0f - length(d) * perRadius), 0.0f);
        return center + rotated(d, V(-angle * left * left));
    }
    Point<V> center;
    V perRadius, angle;
};

const WarpFilter<TwirlDistortion> twirlDistortion{{.name = "CITwirlDistortion",
    .displayName = "Twirl Distortion",
    .category = kCICategoryDistortionEffect,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), center(),
        distance(
            "inputRadius", "Radius", {.standard = 300, .min = 0, .sliderMin = 0, .sliderMax = 500, .identity = 300}),
        angle(
            "inputAngle", "Angle", {.standard = M_PI, .sliderMin = -4 * M_PI, .sliderMax = 4 * M_PI, .identity = 0})}}};

/// Draws the picture within inputRadius towards the center: distances, as parts of the radius, are raised to a power.
template <class V>
struct PinchDistortion {
    explicit PinchDistortion(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , perRadius2(1.0f / max(V(in.scalar("inputRadius") * in.scalar("inputRadius")), 1e-6f))
    {
        const V scale = in.scalar("inputScale");
        power = -0.5f * scale / (1.0f + scale);
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> d = here - center;
        const V part = clamp(V(dot(d, d) * perRadius2), 1e-12f, 1.0f);
        return center + d * exp2(V(power * log2(part)));
    }
    Point<V> center;
    V perRadius2, power;
};

const WarpFilter<PinchDistortion> pinchDistortion{{.name = "CIPinchDistortion",
    .displayName = "Pinch Distortion",
    .category = kCICategoryDistortionEffect,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), center(),
        distance(
            "inputRadius", "Radius", {.standard = 300, .min = 0, .sliderMin = 0, .sliderMax = 1000, .identity = 0}),
        scalar("inputScale", "Scale", {.standard = 0.5, .min = 0, .sliderMin = 0, .sliderMax = 2, .identity = 0})}}};

/// Wraps the picture around a circle: its lower edge lies on the circle of inputRadius, x runs along the arc.
template <class V>
struct CircularWrap {
    explicit CircularWrap(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , radius(max(in.scalar("inputRadius"), 1e-3f))
        , angle(in.scalar("inputAngle"))
    {
        const CIRect source = in.values().image().extent();
        left = V(float(source.left()));
        bottom = V(float(source.bottom()));
        perTurn = V(float(source.width / (2 * M_PI)));
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> d = here - center;
        const V turned = wrap(V(atan2(d.y, d.x) - angle), V(kTwoPi));
        // Clockwise from the angle, so that the picture is not mirrored.
        return {left + (kTwoPi - turned) * perTurn, bottom + length(d) - radius};
    }
    static CIRect extent(const Values& in)
    {
        const double reach = std::max(in.number("inputRadius"), 1e-3) + in.image().extent().height;
        const CIPoint c = in.point("inputCenter");
        return CIRect{c.x - reach, c.y - reach, 2 * reach, 2 * reach}.roundedOut();
    }
    Point<V> center;
    V radius, angle, left, bottom, perTurn;
};

const RecipeFilter circularWrap{
    {.name = "CICircularWrap",
        .displayName = "Circular Wrap Distortion",
        .category = kCICategoryDistortionEffect,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), center(),
            distance("inputRadius", "Radius", {.standard = 150, .min = 0, .sliderMin = 0, .sliderMax = 600}),
            angle("inputAngle", "Angle", {.standard = 0, .sliderMin = -M_PI, .sliderMax = M_PI, .identity = 0})}},
    [](const Values& in) {
        const CIImage source = in.image();
        return source.extent().isInfinite() ? source : warp<CircularWrap>(in, source, CircularWrap<float>::extent(in));
    }};

/// Bends light by the slope of the texture, which is repeated around the center.
template <class V>
struct GlassDistortion {
    explicit GlassDistortion(const Inputs<V>& in)
        : scale(in.scalar("inputScale"))
        , apart(max(in.step(), 1.0f))
    {
    }
    Pixel<V> operator()(const Sampler<V>& image, const Sampler<V>& texture, const Point<V>& here) const
    {
        const auto height = [&](const V& dx, const V& dy) { return luma(texture({here.x + dx, here.y + dy})); };
        const V bend = scale / apart;
        const V dx = clamp(V(bend * (height(apart, V(0.0f)) - height(-apart, V(0.0f)))), -kFarthest, kFarthest);
        const V dy = clamp(V(bend * (height(V(0.0f), apart) - height(V(0.0f), -apart))), -kFarthest, kFarthest);
        return image({here.x + dx, here.y + dy});
    }
    static CIRect regionOfInterest(const Values& in, std::size_t image, const CIRect& wanted)
    {
        return wanted.grown(
            image == 0 ? std::min(double(kFarthest), 2 * in.number("inputScale")) : 2 / std::min(1.0, wanted.width));
    }
    static constexpr float kFarthest = 200; // px; steeper texture does not bend more
    V scale, apart;
};

template <class V>
struct Repeat {
    explicit Repeat(const Inputs<V>& in)
        : origin(in.point("inputCenter"))
    {
        const CIRect tile = in.values().image("inputTexture").extent();
        left = V(float(tile.left())), bottom = V(float(tile.bottom()));
        width = V(float(tile.width)), height = V(float(tile.height));
    }
    Point<V> operator()(const Point<V>& here) const
    {
        return {left + wrap(V(here.x - origin.x), width), bottom + wrap(V(here.y - origin.y), height)};
    }
    Point<V> origin;
    V left, bottom, width, height;
};

const RecipeFilter glassDistortion{
    {.name = "CIGlassDistortion",
        .displayName = "Glass Distortion",
        .category = kCICategoryDistortionEffect,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), image("inputTexture", "Texture"), center(),
            distance("inputScale", "Scale",
                {.standard = 200, .min = 0, .sliderMin = 0.01, .sliderMax = 500, .identity = 0})},
        .tolerance = 2e-2f}, // a last bit at the texture's seam moves the place by a pixel's fraction
    [](const Values& in) {
        const CIImage source = in.image(), texture = in.image("inputTexture");
        if (texture.extent().isInfinite() || texture.extent().isEmpty())
            return source;
        const CIImage tile = CIImage(clampNode(sharedNode(texture.node())));
        const CIImage repeated = warp<Repeat>(in, tile, CIRect::infinite());
        return general<GlassDistortion>(in, {source, repeated}, source.extent());
    }};

} // namespace
} // namespace ci
