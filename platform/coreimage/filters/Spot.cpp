// Spot colors and spotlights.
#include "platform/coreimage/kernel/DisplayValues.h"
#include "platform/coreimage/kernel/SampleFilter.h"

namespace ci {
namespace {

/// Replaces three ranges of colors. A color belongs to a range when its display values lie within the closeness of the
/// range's center; the contrast makes the border hard. Lightness within a range stays.
template <class V>
struct SpotColor {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit SpotColor(const Inputs<V>& in)
    {
        for (int i = 0; i < 3; ++i) {
            const std::string n = std::to_string(i + 1);
            Spot& s = spots[i];
            s.center = displayFromLinear(in.straightColor("inputCenterColor" + n));
            s.replacement = displayFromLinear(in.straightColor("inputReplacementColor" + n));
            s.closeness = max(in.scalar("inputCloseness" + n), 1e-4f);
            s.hardness = 1.0f / (s.closeness * max(V(1.0f - in.scalar("inputContrast" + n)), 0.01f));
        }
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const Pixel<V> shown = displayFromLinear(p);
        Pixel<V> result = shown;
        V left(1.0f); // what nearer ranges have not taken
        for (const Spot& s : spots) {
            const Pixel<V> d = shown - s.center;
            const V apart = sqrt(mulAdd(d.r, d.r, mulAdd(d.g, d.g, d.b * d.b)));
            const V share = left * saturate(V((s.closeness - apart) * s.hardness));
            const V lighter = luma(d);
            const auto replaced = [&](const V& c, const V& with) { return mulAdd(share, with + lighter - c, c); };
            result = {replaced(result.r, s.replacement.r), replaced(result.g, s.replacement.g),
                replaced(result.b, s.replacement.b), p.a};
            left = left - share;
        }
        const auto light = [](const V& c) { return linearFromDisplay(V(max(c, 0.0f))); };
        return {light(result.r), light(result.g), light(result.b), p.a};
    }
    struct Spot {
        Pixel<V> center, replacement;
        V closeness, hardness;
    } spots[3];
};

const ColorFilter<SpotColor> spotColor{{.name = "CISpotColor",
    .displayName = "Spot Color",
    .category = kCICategoryStylize,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), color("inputCenterColor1", "Center Color 1", CIColor{0.0784, 0.0627, 0.0706, 1}),
        color("inputReplacementColor1", "Replacement Color 1", CIColor{0.4392, 0.1922, 0.1961, 1}),
        scalar("inputCloseness1", "Closeness 1", {.standard = 0.22, .min = 0, .sliderMin = 0, .sliderMax = 0.5}),
        scalar("inputContrast1", "Contrast 1", {.standard = 0.98, .min = 0, .sliderMin = 0, .sliderMax = 1}),
        color("inputCenterColor2", "Center Color 2", CIColor{0.5255, 0.3059, 0.3451, 1}),
        color("inputReplacementColor2", "Replacement Color 2", CIColor{0.9137, 0.5608, 0.5059, 1}),
        scalar("inputCloseness2", "Closeness 2", {.standard = 0.15, .min = 0, .sliderMin = 0, .sliderMax = 0.5}),
        scalar("inputContrast2", "Contrast 2", {.standard = 0.98, .min = 0, .sliderMin = 0, .sliderMax = 1}),
        color("inputCenterColor3", "Center Color 3", CIColor{0.9216, 0.4549, 0.3333, 1}),
        color("inputReplacementColor3", "Replacement Color 3", CIColor{0.9098, 0.7529, 0.6078, 1}),
        scalar("inputCloseness3", "Closeness 3", {.standard = 0.5, .min = 0, .sliderMin = 0, .sliderMax = 0.5}),
        scalar("inputContrast3", "Contrast 3", {.standard = 0.99, .min = 0, .sliderMin = 0, .sliderMax = 1})},
    .tolerance = 5e-4f}};

struct Point3 {
    double x, y, z;
};
Point3 point3(const CIVector& v) { return {v.X(), v.Y(), v.Z()}; }

/// Light from a lamp above the picture, brightest where it points at. The power of the cosine that spots have; the
/// concentration is its inverse, so that large ones flood the picture.
template <class V>
struct SpotLight {
    static constexpr bool keepsAlpha = true;
    explicit SpotLight(const Inputs<V>& in)
        : brightness(in.scalar("inputBrightness"))
        , power(1.0f / max(in.scalar("inputConcentration"), 1e-3f))
        , light(in.straightColor("inputColor"))
    {
        const Point3 from = point3(in.values().vector("inputLightPosition"));
        const Point3 to = point3(in.values().vector("inputLightPointsAt"));
        const double dx = to.x - from.x, dy = to.y - from.y, dz = to.z - from.z;
        const double length = std::max(1e-6, std::sqrt(dx * dx + dy * dy + dz * dz));
        x = V(float(from.x)), y = V(float(from.y)), z = V(float(from.z));
        aimX = V(float(dx / length)), aimY = V(float(dy / length)), aimZ = V(float(dz / length));
    }
    Pixel<V> operator()(const Pixel<V>& p, const Point<V>& here) const
    {
        const V dx = here.x - x, dy = here.y - y;
        const V away = sqrt(max(mulAdd(dx, dx, mulAdd(dy, dy, z * z)), 1e-6f));
        const V cosine = (dx * aimX + dy * aimY - z * aimZ) / away;
        const V lit = brightness * pow(clamp(cosine, 1e-6f, 1.0f), power);
        return {p.r * (lit * light.r), p.g * (lit * light.g), p.b * (lit * light.b), p.a};
    }
    V brightness, power;
    Pixel<V> light;
    V x, y, z, aimX, aimY, aimZ;
};

const ColorFilter<SpotLight> spotLight{{.name = "CISpotLight",
    .displayName = "Spot Light",
    .category = kCICategoryStylize,
    .usage = Video | HighDynamicRange,
    .inputs = {image(),
        fitted(position3("inputLightPosition", "Light Position", {400, 600, 150}), CIVector{90, 260, 150}),
        fitted(position3("inputLightPointsAt", "Light Points At", {200, 200, 0}), CIVector{150, 140, 0}),
        fitted(distance("inputBrightness", "Brightness",
                   {.standard = 3, .min = 0, .sliderMin = 0, .sliderMax = 10, .identity = 1}),
            Meaning::Amount),
        scalar("inputConcentration", "Concentration",
            {.standard = 0.1, .min = 0.001, .sliderMin = 0.001, .sliderMax = 1.5, .identity = 20}),
        color("inputColor", "Color", CIColor{1, 1, 1, 1}, InputKind::OpaqueColor)},
    .tolerance = 1e-3f}}; // high powers make last bits grow

/// Where the picture is enlarged its pixels become squares; at full size nothing changes.
template <class V>
struct SampleNearest {
    explicit SampleNearest(const Inputs<V>&) { }
    Point<V> operator()(const Point<V>& here) const { return {floor(here.x) + 0.5f, floor(here.y) + 0.5f}; }
};

const WarpFilter<SampleNearest> sampleNearest{{.name = "CISampleNearest",
    .displayName = "Sample Nearest",
    .category = kCICategoryStylize,
    .usage = Video | HighDynamicRange,
    .inputs = {image()}}};

} // namespace
} // namespace ci
