// Lights: halo, star, sun, and the flash between two pictures.
#include "platform/coreimage/filters/Striations.h"
#include "platform/coreimage/filters/Transition.h"

namespace ci {
namespace {

/// A striped ring as around a lamp behind frosted glass. Below an overlap of 1 its colors part: blue lies inside, red
/// outside. The profile is a sine squared, half as strong as the color at its best.
template <class V>
struct LenticularHalo {
    explicit LenticularHalo(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , color(in.color("inputColor"))
        , radius(in.scalar("inputHaloRadius"))
        , striations(in.scalar("inputStriationStrength"), in.scalar("inputStriationContrast"), in.scalar("inputTime"))
    {
        const V apart = 1.0f - saturate(in.scalar("inputHaloOverlap"));
        const V width = max(in.scalar("inputHaloWidth"), 1e-3f);
        perWidth = (1.0f + 2.0f * apart) / width;
        shift = apart;
    }
    Pixel<V> operator()(const Point<V>& here) const
    {
        const Point<V> from = here - center;
        const V across = (length(from) - radius) * perWidth, rays = 0.49f * striations(from);
        const auto ring = [&](float place) {
            const V wave = sin(V(kPi * saturate(V(across - place * shift))));
            return saturate(V(rays * wave * wave));
        };
        const V red = ring(2), green = ring(1), blue = ring(0);
        return {color.r * red, color.g * green, color.b * blue, color.a * max(red, max(green, blue))};
    }
    static CIRect extent(const Values& in)
    {
        const double outer = in.number("inputHaloRadius") + in.number("inputHaloWidth");
        const CIPoint c = in.point("inputCenter");
        return CIRect{c.x - outer, c.y - outer, 2 * outer, 2 * outer}.roundedOut();
    }
    Point<V> center;
    Pixel<V> color;
    V radius, perWidth, shift;
    Striations<V> striations;
};

CIInputAttributes striationStrength(std::optional<double> identity = {})
{
    return scalar("inputStriationStrength", "Striation Strength",
        {.standard = 0.5, .min = 0, .sliderMin = 0, .sliderMax = 3, .identity = identity});
}
CIInputAttributes striationContrast(double standard, std::optional<double> identity = {})
{
    return scalar("inputStriationContrast", "Striation Contrast",
        {.standard = standard, .min = 0, .sliderMin = 0, .sliderMax = 5, .identity = identity});
}
/// Moves the rays.
CIInputAttributes striationTime()
{
    return scalar(
        "inputTime", "Time", {.standard = 0, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1, .identity = 0});
}
CIInputAttributes striationRadius(std::optional<double> identity = {})
{
    return scalar("inputMaxStriationRadius", "Maximum Striation Radius",
        {.standard = 2.58, .min = 0, .sliderMin = 0, .sliderMax = 10, .identity = identity});
}

const GeneratorFilter<LenticularHalo> lenticularHaloGenerator{{.name = "CILenticularHaloGenerator",
    .displayName = "Lenticular Halo",
    .category = kCICategoryGenerator,
    .usage = Video | HighDynamicRange,
    .inputs = {center(), color("inputColor", "Color", CIColor{1, 0.9, 0.8, 1}),
        distance("inputHaloRadius", "Halo Radius", {.standard = 70, .min = 0, .sliderMin = 0, .sliderMax = 1000}),
        distance("inputHaloWidth", "Halo Width", {.standard = 87, .min = 0, .sliderMin = 0, .sliderMax = 300}),
        scalar("inputHaloOverlap", "Halo Overlap", {.standard = 0.77, .min = 0, .sliderMin = 0, .sliderMax = 1}),
        striationStrength(), striationContrast(1), striationTime()}}};

/// A glow that falls with the square of the distance, in the color, and a white cross. The cross runs out over a length
/// set by its scale; opacity and epsilon are powers of ten: how bright it is, and how small a distance from its arms
/// still counts, which decides how long they stay white.
template <class V>
struct StarShine {
    explicit StarShine(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , axis{cos(in.scalar("inputCrossAngle")), sin(in.scalar("inputCrossAngle"))}
        , color(in.straightColor("inputColor"))
        , radius2(in.scalar("inputRadius") * in.scalar("inputRadius"))
        , perLength(1.0f / max(V(0.24f * in.scalar("inputCrossScale") * in.scalar("inputRadius")), 1e-3f))
        , strength(2.65f * tenTo(in.scalar("inputCrossOpacity")))
        , epsilon(tenTo(in.scalar("inputEpsilon")))
        , cell2(0.09f * in.step() * in.step())
    {
        const V width = max(in.scalar("inputCrossWidth"), 1e-3f);
        perWidth2 = 0.02f / (width * width);
    }
    Pixel<V> operator()(const Point<V>& here) const
    {
        const Point<V> from = here - center;
        const V away2 = dot(from, from);
        const V glow = min(V(radius2 / max(away2, 1e-3f)), 1e4f);
        const V u = dot(from, axis), v = axis.x * from.y - axis.y * from.x;
        const V beside = min(V(u * u), V(v * v)) + cell2; // a line can't be finer than a cell
        const V cross = min(V(strength * exp(V(-sqrt(away2) * perLength)) / mulAdd(beside, perWidth2, epsilon)), 1e4f);
        const auto channel = [&](const V& c) { return min(V(glow * c + cross), 1.0f); };
        return Pixel<V>{channel(color.r), channel(color.g), channel(color.b), min(V(glow + cross), 1.0f)} * color.a;
    }
    static V tenTo(const V& power) { return exp2(V(clamp(power, -12.0f, 6.0f) * 3.321928f)); }
    Point<V> center, axis;
    Pixel<V> color;
    V radius2, perLength, strength, epsilon, cell2, perWidth2;
};

const GeneratorFilter<StarShine> starShineGenerator{{.name = "CIStarShineGenerator",
    .displayName = "Star Shine",
    .category = kCICategoryGenerator,
    .usage = Video | HighDynamicRange,
    .inputs = {center(), color("inputColor", "Color", CIColor{1, 0.8, 0.6, 1}),
        distance("inputRadius", "Radius", {.standard = 50, .min = 0, .sliderMin = 0, .sliderMax = 300}),
        scalar("inputCrossScale", "Cross Scale",
            {.standard = 15, .min = 0, .sliderMin = 0, .sliderMax = 100, .identity = 15}),
        angle("inputCrossAngle", "Cross Angle", {.standard = 0.6, .sliderMin = -M_PI, .sliderMax = M_PI}),
        scalar("inputCrossOpacity", "Cross Opacity",
            {.standard = -2, .min = -8, .sliderMin = -8, .sliderMax = 0, .identity = -2}),
        distance("inputCrossWidth", "Cross Width", {.standard = 2.5, .min = 0, .sliderMin = 0.5, .sliderMax = 10}),
        scalar(
            "inputEpsilon", "Epsilon", {.standard = -2, .min = -8, .sliderMin = -8, .sliderMax = 0, .identity = -2})},
    .tolerance = 1e-3f}}; // far out on an arm small distances are divided by each other

/// How bright a sun and its beams are: 1 on the disc, striped rays from there to `reach` radii.
template <class V>
struct Sun {
    Sun(const V& radius, const V& reach, const Striations<V>& rays)
        : perRadius(1.0f / max(radius, 1e-3f))
        , perReach(1.0f / max(V(reach - 1.0f), 1e-2f))
        , striations(rays)
    {
    }
    struct Light {
        V disc, beams;
    };
    Light operator()(const Point<V>& from) const
    {
        const V away = length(from) * perRadius;
        const V left = saturate(V(1.0f - (away - 1.0f) * perReach)); // 1 at the disc, 0 where beams end
        // Rays grow out of the disc: at its rim all directions are alike.
        const V apart = saturate(V(1.0f - left));
        const V rays = mix(V(1.0f), striations(from), saturate(V(4.0f * apart)));
        const V disc = saturate(V(1.5f - away));
        return {disc * disc * (3.0f - 2.0f * disc), saturate(V(left * left * rays))};
    }
    V perRadius, perReach;
    Striations<V> striations;
};

/// A glow that falls with the square of the distance, in the color, and white rays (measured). Both end at
/// inputMaxStriationRadius radii of the sun.
template <class V>
struct Sunbeams {
    explicit Sunbeams(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , color(in.straightColor("inputColor"))
        , radius2(in.scalar("inputSunRadius") * in.scalar("inputSunRadius"))
        , perReach(1.0f / max(V(float(reach(in.values()))), 1e-3f))
        , striations(in.scalar("inputStriationStrength"), in.scalar("inputStriationContrast"), in.scalar("inputTime"))
    {
    }
    static double reach(const Values& in) { return in.number("inputSunRadius") * in.number("inputMaxStriationRadius"); }
    Pixel<V> operator()(const Point<V>& here) const
    {
        const Point<V> from = here - center;
        const V away2 = dot(from, from), left = max(V(1.0f - sqrt(away2) * perReach), 0.0f);
        const V glow = min(V(radius2 / max(away2, 1e-3f)), 1e4f), rays = saturate(V(0.5f * striations(from)));
        const auto channel = [&](const V& c) { return min(V(left * (glow * c + rays)), 1.0f); };
        return Pixel<V>{channel(color.r), channel(color.g), channel(color.b), channel(V(1.0f))} * color.a;
    }
    static CIRect extent(const Values& in)
    {
        const double side = reach(in);
        const CIPoint c = in.point("inputCenter");
        return CIRect{c.x - side, c.y - side, 2 * side, 2 * side}.roundedOut();
    }
    Point<V> center;
    Pixel<V> color;
    V radius2, perReach;
    Striations<V> striations;
};

const GeneratorFilter<Sunbeams> sunbeamsGenerator{{.name = "CISunbeamsGenerator",
    .displayName = "Sunbeams",
    .category = kCICategoryGenerator,
    .usage = Video | HighDynamicRange,
    .inputs = {center(), color("inputColor", "Color", CIColor{1, 0.5, 0, 1}),
        distance("inputSunRadius", "Sun Radius",
            {.standard = 40, .min = 0, .sliderMin = 0, .sliderMax = 800, .identity = 40}),
        striationRadius(2.58), striationStrength(0.5), striationContrast(1.375, 1.375), striationTime()}}};

/// A sun that grows out of the center until it covers the extent, under which the pictures change at the fade threshold
/// of the time. From then on the target shows through a white veil that thins evenly (measured), with rays of the color
/// in it from 500 px outwards.
template <class V>
struct Flash {
    explicit Flash(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , color(in.color("inputColor"))
        , sun(radius(in.values()), in.scalar("inputMaxStriationRadius") + 1.0f,
              {in.scalar("inputStriationStrength"), in.scalar("inputStriationContrast"), in.scalar("inputTime")})
    {
        const double time = in.values().number("inputTime"), threshold = in.values().number("inputFadeThreshold");
        const double before = std::min(time / std::max(threshold, 1e-3), 1.0);
        growing = V(float(before));
        left = V(float(std::min((1 - time) / std::max(1 - threshold, 1e-3), 1.0)));
        changed = V(before < 1 ? 0.0f : 1.0f);
    }
    /// Grows until its disc alone covers the extent.
    static V radius(const Values& in)
    {
        const double time = in.number("inputTime"), threshold = in.number("inputFadeThreshold");
        const CIRect extent = bounded(in.rect("inputExtent"));
        const double diagonal = std::hypot(extent.width, extent.height);
        const double before = std::min(time / std::max(threshold, 1e-3), 1.0);
        return V(float(1.5 * diagonal * before * before));
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& target, const Point<V>& here) const
    {
        const Point<V> from = here - center;
        const auto light = sun(from);
        const V grown = growing * growing * growing;
        const V glow = max(V(max(light.beams, light.disc) * min(V(4.0f * growing), 1.0f)), grown);
        // The disc is too bright for its color: it turns white.
        const V far = saturate(V(length(from) * (1 / kPlain) - 1.0f));
        const V tint =
            mix(V(1.0f - max(light.disc, grown)), V(kTint * far * (1.0f - left) * sun.striations(from)), changed);
        const Pixel<V> white{color.a, color.a, color.a, color.a};
        return mix(mix(p, target, changed), mix(white, color, saturate(tint)), V(min(glow, left)));
    }
    static constexpr float kPlain = 500; // px without rays in the veil
    static constexpr float kTint =
        0.24f; // of the color in the mean ray far out: takes up to 15 % of the usual color's green
    Point<V> center;
    Pixel<V> color;
    Sun<V> sun;
    V growing, left, changed;
};

const BlendFilter<Flash> flashTransition{{.name = "CIFlashTransition",
    .displayName = "Flash",
    .category = kCICategoryTransition,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), targetImage(), center(), transitionExtent(),
        color("inputColor", "Color", CIColor{1, 0.8, 0.6, 1}), transitionTime(), striationRadius(), striationStrength(),
        striationContrast(1.375),
        scalar("inputFadeThreshold", "Fade Threshold",
            {.standard = 0.85, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1})}}};

} // namespace
} // namespace ci
