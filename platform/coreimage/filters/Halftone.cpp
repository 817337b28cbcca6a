// Halftone screens: light and shade as the share of an area that is inked. They work in linear light, where the mean of
// black and white is what the eye sees from afar, so a screened picture keeps its brightness.
#include "platform/coreimage/filters/Waves.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

/// The period of a screen, and how soft its edges are.
template <class V>
struct Screen {
    explicit Screen(const Inputs<V>& in)
        : perPeriod(1.0f / max(abs(in.scalar("inputWidth")), 1.0f))
        , cell(in.step() * perPeriod)
        , softness(1.0f - saturate(in.scalar("inputSharpness")))
    {
    }
    V perPeriod, cell, softness; // per px, periods, half periods
};

/// Lines that let `tone` through, as the exact mean over a cell or over the softness that is asked for. Lines finer
/// than a cell become plain gray by themselves.
template <class V>
V lines(const Screen<V>& screen, const V& tone, const V& turns)
{
    const V width = max(screen.cell, 0.5f * screen.softness);
    const auto lightUpTo = [&](const V& t) {
        const V whole = floor(t);
        return mulAdd(whole, tone, clamp(V(t - whole - 0.5f * (1.0f - tone)), 0.0f, tone));
    };
    return saturate(V((lightUpTo(turns + 0.5f * width) - lightUpTo(turns - 0.5f * width)) / width));
}

inline float anyLane(float v) { return v; }
inline float anyLane(const Batch& v) { return v.get(0); }

/// Round dots on a turned square lattice: white ones on black below half light, black ones on white above.
template <class V>
struct Dots {
    Dots(const Inputs<V>& in, const V& angle)
        : axis{cos(angle), sin(angle)}
    {
        const Screen<V> screen(in);
        axis = axis * screen.perPeriod;
        fine = anyLane(screen.cell) > 1 / 6.1f;
        const V part = fine ? V(0.5f * screen.cell) : screen.cell;
        // Dots that even parts of a cell can't show fade into the gray that they average to.
        visible = saturate(V(0.5f / part - 1.0f));
        softness = screen.softness;
        subcell = part;
        blunt = 2.5f * part * part; // no dot is finer than a part
        offset = 0.25f * in.step();
    }
    V operator()(const V& tone, const Point<V>& from) const
    {
        // The level below which the share `tone` of all heights lies; an odd polynomial within 1.2 %.
        const V t = 2.0f * tone - 1.0f, t2 = t * t;
        const V level = t * polynomial(t2, -0.231325f, 0.679021f, 0.552304f);
        // How steeply heights cross the level: less around small dots than halfway.
        const V slope = min(V(kTwoPi * sqrt(max(V(1.0f - abs(level) + blunt), 0.0f))), 4.44f);
        const V perEdge = 1.0f / max(softness, V(subcell * slope));
        const auto light = [&](const V& x, const V& y) {
            const V u = axis.x * x + axis.y * y, v = axis.x * y - axis.y * x;
            const V height = 0.5f * (cosineOfTurns(u) + cosineOfTurns(v));
            return saturate(V((level - height) * perEdge + 0.5f));
        };
        if (!fine) // depends on the inputs alone
            return mix(tone, light(from.x, from.y), visible);
        const V left = from.x - offset, right = from.x + offset, low = from.y - offset, high = from.y + offset;
        const V mean = 0.25f * (light(left, low) + light(right, low) + light(left, high) + light(right, high));
        return mix(tone, mean, visible);
    }

    Point<V> axis; // periods per px
    V visible, softness, subcell, blunt, offset;
    bool fine; // few cells to a period: four parts of each are looked at
};

template <class V>
Pixel<V> gray(const V& light, const V& alpha)
{
    return {light, light, light, alpha};
}

template <class V>
struct DotScreen {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit DotScreen(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , dots(in, in.scalar("inputAngle"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Point<V>& here) const
    {
        return gray(dots(saturate(luma(p)), here - center), p.a);
    }
    Point<V> center;
    Dots<V> dots;
};

template <class V>
struct LineScreen {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit LineScreen(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , axis{cos(in.scalar("inputAngle")), sin(in.scalar("inputAngle"))}
        , screen(in)
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Point<V>& here) const
    {
        return gray(lines(screen, saturate(luma(p)), V(dot(here - center, axis) * screen.perPeriod)), p.a);
    }
    Point<V> center, axis;
    Screen<V> screen;
};

/// Two line screens across each other.
template <class V>
struct HatchedScreen {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit HatchedScreen(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , screen(in)
        , axis{cos(in.scalar("inputAngle")) * screen.perPeriod, sin(in.scalar("inputAngle")) * screen.perPeriod}
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Point<V>& here) const
    {
        const Point<V> from = here - center;
        // Light passes where both screens let it through.
        const V tone = sqrt(saturate(luma(p)));
        const V u = dot(from, axis), v = axis.x * from.y - axis.y * from.x;
        return gray(V(lines(screen, tone, u) * lines(screen, tone, v)), p.a);
    }
    Point<V> center;
    Screen<V> screen;
    Point<V> axis;
};

template <class V>
struct CircularScreen {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit CircularScreen(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , screen(in)
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Point<V>& here) const
    {
        return gray(lines(screen, saturate(luma(p)), V(length(here - center) * screen.perPeriod)), p.a);
    }
    Point<V> center;
    Screen<V> screen;
};

/// Four inks, each on a dot screen at the angle printers give it. Gray component replacement says how much of what the
/// three colored inks have in common is printed in black instead; under color removal, whether that happens in the
/// shadows alone (0) or at all tones alike (1). The tone stays right in every case.
template <class V>
struct CMYKHalftone {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit CMYKHalftone(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , cyan(turned(in, 15))
        , magenta(turned(in, 75))
        , yellow(turned(in, 0))
        , black(turned(in, 45))
        , blackShare(saturate(in.scalar("inputGCR")))
        , removed(saturate(in.scalar("inputUCR")))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Point<V>& here) const
    {
        const V r = saturate(p.r), g = saturate(p.g), b = saturate(p.b);
        const V common = 1.0f - max(r, max(g, b));
        const V k = common * blackShare * mix(common, V(1.0f), removed);
        const V gain = 1.0f / max(V(1.0f - k), 1e-3f); // the colored inks let through what black must not take twice
        const Point<V> from = here - center;
        const V paper = black(V(1.0f - k), from);
        return {cyan(V(r * gain), from) * paper, magenta(V(g * gain), from) * paper, yellow(V(b * gain), from) * paper,
            p.a};
    }
    static Dots<V> turned(const Inputs<V>& in, float degrees)
    {
        return Dots<V>(in, in.scalar("inputAngle") + degrees * (kPi / 180));
    }
    Point<V> center;
    Dots<V> cyan, magenta, yellow, black;
    V blackShare, removed;
};

CIInputAttributes turn()
{
    return angle("inputAngle", "Angle", {.standard = 0, .sliderMin = -M_PI, .sliderMax = M_PI, .identity = 0});
}
CIInputAttributes period()
{
    return distance("inputWidth", "Width", {.standard = 6, .min = 1, .sliderMin = 2, .sliderMax = 50});
}
CIInputAttributes sharpness()
{
    return scalar("inputSharpness", "Sharpness", {.standard = 0.7, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1});
}
Declaration halftone(std::string name, std::string displayName, std::vector<CIInputAttributes> inputs)
{
    return {.name = std::move(name),
        .displayName = std::move(displayName),
        .category = kCICategoryHalftoneEffect,
        .usage = Video,
        .inputs = std::move(inputs),
        .tolerance = 1e-3f}; // edges magnify the last bits of places far from the center
}

const ColorFilter<DotScreen> dotScreen{
    halftone("CIDotScreen", "Dot Screen", {image(), center(), turn(), period(), sharpness()})};
const ColorFilter<LineScreen> lineScreen{
    halftone("CILineScreen", "Line Screen", {image(), center(), turn(), period(), sharpness()})};
const ColorFilter<HatchedScreen> hatchedScreen{
    halftone("CIHatchedScreen", "Hatched Screen", {image(), center(), turn(), period(), sharpness()})};
const ColorFilter<CircularScreen> circularScreen{
    halftone("CICircularScreen", "Circular Screen", {image(), center(), period(), sharpness()})};
const ColorFilter<CMYKHalftone> cmykHalftone{halftone("CICMYKHalftone", "CMYK Halftone",
    {image(), center(),
        distance("inputWidth", "Width", {.standard = 6, .min = -2, .sliderMin = 2, .sliderMax = 100, .identity = 6}),
        turn(),
        fitted(distance("inputSharpness", "Sharpness", {.standard = 0.7, .min = 0, .sliderMin = 0, .sliderMax = 1}),
            Meaning::Amount),
        scalar("inputGCR", "Gray Component Replacement",
            {.standard = 1, .min = 0, .sliderMin = 0, .sliderMax = 1, .identity = 1}),
        scalar("inputUCR", "Under Color Removal",
            {.standard = 0.5, .min = 0, .sliderMin = 0, .sliderMax = 1, .identity = 0.5})})};

} // namespace
} // namespace ci
