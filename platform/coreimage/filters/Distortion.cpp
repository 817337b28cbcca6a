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

/// The same along one direction: a fold that starts from a line through the center at inputAngle.
template <class V>
struct BumpDistortionLinear {
    explicit BumpDistortionLinear(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , perRadius2(1.0f / max(V(in.scalar("inputRadius") * in.scalar("inputRadius")), 1e-6f))
        , scale(in.scalar("inputScale"))
    {
        const V angle = in.scalar("inputAngle");
        across = {-sin(angle), cos(angle)};
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const V d = dot(here - center, across);
        const V inside = max(V(1.0f - d * d * perRadius2), 0.0f);
        return here - across * V(d * scale * inside * inside);
    }
    Point<V> center, across;
    V perRadius2, scale;
};

const WarpFilter<BumpDistortionLinear> bumpDistortionLinear{{.name = "CIBumpDistortionLinear",
    .displayName = "Bump Distortion Linear",
    .category = kCICategoryDistortionEffect,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), center(),
        distance("inputRadius", "Radius", {.standard = 300, .min = 0, .sliderMin = 0, .sliderMax = 600, .identity = 0}),
        angle("inputAngle", "Angle", {.standard = 0, .sliderMin = 0, .sliderMax = 2 * M_PI, .identity = 0}),
        scalar("inputScale", "Scale", {.standard = 0.5, .min = -1, .sliderMin = 0, .sliderMax = 1, .identity = 1})}}};

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

/// Turns like a whirlpool, where speed falls with the distance from its eye, and ends at inputRadius.
template <class V>
struct VortexDistortion {
    explicit VortexDistortion(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , perRadius(1.0f / max(in.scalar("inputRadius"), 1e-3f))
        , angle(in.scalar("inputAngle"))
    {
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> d = here - center;
        const V left = max(V(1.0f - length(d) * perRadius), 0.0f);
        return center + rotated(d, V(-angle * left * left / (21.0f - 20.0f * left)));
    }
    Point<V> center;
    V perRadius, angle;
};

const WarpFilter<VortexDistortion> vortexDistortion{{.name = "CIVortexDistortion",
    .displayName = "Vortex Distortion",
    .category = kCICategoryDistortionEffect,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), center(),
        distance("inputRadius", "Radius", {.standard = 300, .min = 0, .sliderMin = 0, .sliderMax = 800, .identity = 0}),
        angle("inputAngle", "Angle",
            {.standard = 18 * M_PI, .sliderMin = -30 * M_PI, .sliderMax = 30 * M_PI, .identity = 0})},
    .tolerance = 1e-3f}}; // last bits of the angle, many turns in

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
        .inputs = {image(), automatic(center(), Automatic::ViewCenter),
            distance("inputRadius", "Radius", {.standard = 150, .min = 0, .sliderMin = 0, .sliderMax = 600}),
            angle("inputAngle", "Angle", {.standard = 0, .sliderMin = -M_PI, .sliderMax = M_PI, .identity = 0})}},
    [](const Values& in) {
        const CIImage source = in.image();
        return source.extent().isInfinite() ? source : warp<CircularWrap>(in, source, CircularWrap<float>::extent(in));
    }};

/// What was at the center is pushed to the rim of the hole, as a stream flows around a cylinder.
template <class V>
struct AroundHole {
    explicit AroundHole(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , radius2(in.scalar("inputRadius") * in.scalar("inputRadius"))
    {
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> d = here - center;
        return center + d * max(V(1.0f - radius2 / max(dot(d, d), V(1e-6f))), 0.0f);
    }
    Point<V> center;
    V radius2;
};

/// Transparent within the radius, with a rim of one cell.
template <class V>
struct Hole {
    explicit Hole(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , radius(in.scalar("inputRadius"))
        , perStep(1.0f / in.step())
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Point<V>& here) const
    {
        return p * saturate(V(mulAdd(length(here - center) - radius, perStep, V(0.5f))));
    }
    Point<V> center;
    V radius, perStep;
};

const RecipeFilter holeDistortion{
    {.name = "CIHoleDistortion",
        .displayName = "Hole Distortion",
        .category = kCICategoryDistortionEffect,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), center(),
            distance("inputRadius", "Radius",
                {.standard = 150, .min = 0.01, .sliderMin = 0.01, .sliderMax = 1000, .identity = 0.1})}},
    [](const Values& in) {
        const CIImage source = in.image();
        return pointwise<Hole>(in, {warp<AroundHole>(in, source, source.extent())}, source.extent());
    }};

/// The colors on a circle run outwards from it.
template <class V>
struct CircleSplash {
    explicit CircleSplash(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , radius(in.scalar("inputRadius"))
    {
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> d = here - center;
        return center + d * min(V(radius / max(length(d), V(1e-3f))), 1.0f);
    }
    static CIRect extent(const Values&) { return CIRect::infinite(); }
    Point<V> center;
    V radius;
};

const WarpFilter<CircleSplash> circleSplashDistortion{{.name = "CICircleSplashDistortion",
    .displayName = "Circle Splash Distortion",
    .category = kCICategoryDistortionEffect,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), center(),
        distance("inputRadius", "Radius", {.standard = 150, .min = 0, .sliderMin = 0, .sliderMax = 1000})}}};

/// The same, and the streaks wind around the circle in logarithmic spirals.
template <class V>
struct LightTunnel {
    explicit LightTunnel(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , rotation(in.scalar("inputRotation"))
        , radius(max(in.scalar("inputRadius"), 1e-2f))
    {
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> d = here - center;
        const V out = max(V(length(d) / radius), 1.0f);
        return center + rotated(d, V(-rotation * log(out))) * V(1.0f / out);
    }
    static CIRect extent(const Values&) { return CIRect::infinite(); }
    Point<V> center;
    V rotation, radius;
};

const WarpFilter<LightTunnel> lightTunnel{{.name = "CILightTunnel",
    .displayName = "Light Tunnel Distortion",
    .category = kCICategoryDistortionEffect,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), center(),
        fitted(
            angle("inputRotation", "Rotation", {.standard = 0, .sliderMin = 0, .sliderMax = M_PI / 2, .identity = 0}),
            0.7),
        distance("inputRadius", "Radius", {.standard = 100, .sliderMin = 1, .sliderMax = 500, .identity = 0})}}};

} // namespace
} // namespace ci
