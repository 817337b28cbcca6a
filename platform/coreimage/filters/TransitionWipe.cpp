// Transitions that pass over the picture: dissolve, swipe, copy machine, bars, holes.
#include "platform/coreimage/filters/Transition.h"
#include "platform/coreimage/kernel/SampleFilter.h"

namespace ci {
namespace {

template <class V>
struct Dissolve {
    explicit Dissolve(const Inputs<V>& in)
        : time(in.scalar("inputTime"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& target) const { return mix(p, target, time); }
    V time;
};

const BlendFilter<Dissolve> dissolveTransition{{.name = "CIDissolveTransition",
    .displayName = "Dissolve",
    .category = kCICategoryTransition,
    .usage = Anything,
    .inputs = {image(), targetImage(), transitionTime()}}};

/// A soft edge of inputWidth that crosses the extent along the angle: 1 before it, 0 behind it.
template <class V>
struct Edge {
    explicit Edge(const Inputs<V>& in)
        : width(max(in.scalar("inputWidth"), 0.1f))
        , direction{cos(in.scalar("inputAngle")), sin(in.scalar("inputAngle"))}
    {
        const Values& values = in.values();
        const Span span(bounded(values.rect("inputExtent")), values.number("inputAngle"));
        const double wide = std::max(values.number("inputWidth"), 0.1);
        start = V(float(span.low - wide + values.number("inputTime") * (span.length() + wide)));
    }
    V operator()(const Point<V>& here) const { return saturate(V((dot(here, direction) - start) / width)); }
    V width, start; // px
    Point<V> direction;
};

/// The edge carries a band of color, strongest in its middle.
template <class V>
struct Swipe {
    explicit Swipe(const Inputs<V>& in)
        : edge(in)
        , color(in.color("inputColor"))
        , opacity(in.scalar("inputOpacity"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& target, const Point<V>& here) const
    {
        const V ahead = edge(here);
        return mix(mix(target, p, ahead), color, V(opacity * (1.0f - abs(V(2.0f * ahead - 1.0f)))));
    }
    Edge<V> edge;
    Pixel<V> color;
    V opacity;
};

const BlendFilter<Swipe> swipeTransition{{.name = "CISwipeTransition",
    .displayName = "Swipe",
    .category = kCICategoryTransition,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), targetImage(), transitionExtent(),
        color("inputColor", "Color", CIColor{1, 1, 1, 1}, InputKind::OpaqueColor), transitionTime(),
        angle("inputAngle", "Angle", {.standard = 0, .sliderMin = -M_PI, .sliderMax = M_PI, .identity = 0}),
        distance("inputWidth", "Width", {.standard = 300, .min = 0.1, .sliderMin = 0.1, .sliderMax = 800}),
        scalar("inputOpacity", "Opacity", {.standard = 0, .min = 0, .sliderMin = 0, .sliderMax = 1, .identity = 0})}}};

/// A tube of light passes over the picture and leaves the target behind. Within its width the target shows already,
/// under light that grows towards the picture (measured, as far as a third of the width): that of the color, and what
/// the picture throws back of it.
template <class V>
struct CopyMachine {
    explicit CopyMachine(const Inputs<V>& in)
        : width(max(in.scalar("inputWidth"), 0.1f))
        , cell(in.step())
        , strength(2.7f * in.scalar("inputOpacity"))
        , direction{cos(in.scalar("inputAngle")), sin(in.scalar("inputAngle"))}
    {
        const Values& values = in.values();
        const CIColor c = values.color("inputColor"); // its codes count as light
        color = {V(float(c.red())), V(float(c.green())), V(float(c.blue())), V(1.0f)};
        const Span span(bounded(values.rect("inputExtent")), values.number("inputAngle"));
        const double wide = std::max(values.number("inputWidth"), 0.1), time = values.number("inputTime");
        // In the first tenth of the time it comes in.
        start = V(float(span.low + time * (span.length() + wide / 2) - wide * std::max(1 - 10 * time, 0.0)));
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& target, const Point<V>& here) const
    {
        const V across = dot(here, direction) - start, part = saturate(V(across / width));
        const V light = strength * part * sqrt(part);
        const auto lit = [&](const V& t, const V& c, const V& thrown) { return mulAdd(light, c + 0.84f * thrown, t); };
        const Pixel<V> bright{lit(target.r, color.r, p.r), lit(target.g, color.g, p.g), lit(target.b, color.b, p.b),
            min(V(target.a + light), 1.0f)};
        return mix(bright, p, saturate(V((across - width) / cell + 0.5f)));
    }
    V width, cell, strength, start; // px
    Point<V> direction;
    Pixel<V> color;
};

const BlendFilter<CopyMachine> copyMachineTransition{{.name = "CICopyMachineTransition",
    .displayName = "Copy Machine",
    .category = kCICategoryTransition,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), targetImage(), transitionExtent(),
        color("inputColor", "Color", CIColor{0.6, 1, 0.8, 1}, InputKind::OpaqueColor), transitionTime(),
        angle("inputAngle", "Angle", {.standard = 0, .min = 0, .sliderMin = 0, .sliderMax = 2 * M_PI, .identity = 0}),
        distance(
            "inputWidth", "Width", {.standard = 200, .min = 0.1, .sliderMin = 0.1, .sliderMax = 500, .identity = 200}),
        scalar(
            "inputOpacity", "Opacity", {.standard = 1.3, .min = 0, .sliderMin = 0, .sliderMax = 3, .identity = 1.3})}}};

/// How far the bars have slid: bar n by (progress - offset n) squared, once that is not negative. At the end of the
/// time the last of them has just left.
struct BarMotion {
    explicit BarMotion(const Values& in)
        : low(0)
        , width(std::max(in.number("inputWidth"), 2.0))
        , offset(std::max(in.number("inputBarOffset"), 1.0))
    {
        const CIRect extent = bounded(in.image().extent());
        const double angle = in.number("inputAngle");
        const Span across(extent, angle);
        low = across.low;
        const double c = std::abs(std::cos(angle)), s = std::abs(std::sin(angle));
        // The picture's length along a bar: a trapezoid over the place of the bar.
        const double longest = std::min(extent.height / std::max(c, 1e-9), extent.width / std::max(s, 1e-9));
        const double slope = std::min(extent.width * c, extent.height * s); // px until the full length
        const auto length = [&](double u) {
            const double inside = std::min(u, across.length() - u);
            return slope > 1e-6 ? longest * std::clamp(inside / slope, 0.0, 1.0) : longest;
        };
        const int bars = int(std::min(1e5, std::ceil(across.length() / width - 1e-6))); // rounding makes no bar
        double end = 0;
        for (int n = 0; n < bars; ++n) {
            const double from = n * width, to = std::min(from + width, across.length());
            const double most = std::max(length(from), length(to));
            end = std::max(end, offset * n + std::sqrt(most));
        }
        progress = in.number("inputTime") * end;
    }
    double low, width, offset, progress = 0;
};

template <class V>
struct BarsSwipe {
    explicit BarsSwipe(const Inputs<V>& in)
        : direction{cos(in.scalar("inputAngle")), sin(in.scalar("inputAngle"))}
    {
        const BarMotion motion(in.values());
        low = V(float(motion.low)), perWidth = V(float(1 / motion.width));
        offset = V(float(motion.offset)), progress = V(float(motion.progress));
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const V bar = floor(V((dot(here, direction) - low) * perWidth));
        const V pace = max(V(progress - offset * bar), 0.0f), shift = pace * pace;
        return {here.x - shift * direction.y, here.y + shift * direction.x};
    }
    Point<V> direction;
    V low, perWidth, offset, progress;
};

const RecipeFilter barsSwipeTransition{
    {.name = "CIBarsSwipeTransition",
        .displayName = "Bars Swipe Transition",
        .category = kCICategoryTransition,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), targetImage(),
            angle("inputAngle", "Angle", {.standard = M_PI, .sliderMin = 0, .sliderMax = 2 * M_PI, .identity = 0}),
            distance("inputWidth", "Width", {.standard = 30, .min = 2, .sliderMin = 2, .sliderMax = 300}),
            scalar("inputBarOffset", "Bar Offset", {.standard = 10, .min = 1, .sliderMin = 1, .sliderMax = 100}),
            transitionTime()},
        .tolerance = 2e-3f}, // a shift of a thousand pixels has few digits left behind the point
    [](const Values& in) {
        const CIImage source = in.image();
        return warp<BarsSwipe>(in, source, source.extent()).compositedOver(in.image("inputTargetImage"));
    }};

/// The target shows through holes that grow on a lattice twisted about the center: inputRadius apart, and turned by the
/// angle more for every inputCompression of distance.
template <class V>
struct Mod {
    explicit Mod(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , time(in.scalar("inputTime"))
        , angle(in.scalar("inputAngle"))
        , perRadius(kTwoPi / max(in.scalar("inputRadius"), 1.0f))
        , perCompression(1.0f / max(in.scalar("inputCompression"), 1.0f))
    {
        softness = max(V(in.step() * perRadius), 0.02f);
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& target, const Point<V>& here) const
    {
        const Point<V> d = here - center;
        // The twist ends at some distance: beyond, waves would be finer than pixels.
        const V turn = angle * min(V(length(d) * perCompression), 8.0f);
        const V c = cos(turn), s = sin(turn);
        const V wave = 0.5f * (cos(V((c * d.x + s * d.y) * perRadius)) + cos(V((c * d.y - s * d.x) * perRadius)));
        // From before the first hole to after the last.
        const V level = (2.0f * time - 1.0f) * (1.0f + softness);
        return mix(p, target, saturate(V((wave + level) / softness * 0.5f + 0.5f)));
    }
    Point<V> center;
    V time, angle, perRadius, perCompression, softness;
};

const BlendFilter<Mod> modTransition{{.name = "CIModTransition",
    .displayName = "Mod",
    .category = kCICategoryTransition,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), targetImage(), center(), transitionTime(),
        angle("inputAngle", "Angle", {.standard = 2, .sliderMin = -2 * M_PI, .sliderMax = 2 * M_PI, .identity = 0}),
        distance("inputRadius", "Radius", {.standard = 150, .min = 1, .sliderMin = 1, .sliderMax = 200}),
        distance("inputCompression", "Compression", {.standard = 300, .min = 1, .sliderMin = 100, .sliderMax = 800})},
    .tolerance = 2e-3f}}; // steep edges magnify the last bits of the waves

} // namespace
} // namespace ci
