// Gradients over a whole area: the color wheel, and the distance from a mask.
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/passes/Distance.h"

namespace ci {
namespace {

/// All hues around the wheel, from gray in its middle to full saturation at inputRadius. The rim is inputSoftness
/// pixels soft; dither, in steps of 8-bit pictures, hides their bands.
template <class V>
struct HueSaturationValue {
    explicit HueSaturationValue(const Inputs<V>& in)
        : radius(in.scalar("inputRadius"))
        , value(in.scalar("inputValue"))
        , perEdge(1.0f / max(in.scalar("inputSoftness"), in.step()))
        , dither(in.scalar("inputDither") * (1 / 255.0f))
        , coded(in.values().value("inputColorSpace").toString().find("Linear") == std::string::npos)
    {
    }
    Pixel<V> operator()(const Point<V>& here) const
    {
        const Point<V> from{here.x - radius, here.y - radius};
        const V away = length(from), saturation = min(V(away / max(radius, 1e-3f)), 1.0f);
        const V sixths = atan2(from.y, from.x) * (3 / kPi);
        const V noise = (grain(here) - 0.5f) * dither;
        const auto channel = [&](float hue) {
            const V apart = abs(V(wrap(V(sixths - hue + 3.0f), V(6.0f)) - 3.0f)); // sixths of the circle
            const V pure = saturate(V(2.0f - apart));
            const V code = value * mix(V(1.0f), pure, saturation) + noise;
            return coded ? linearFromSRGB(code) : code;
        };
        return Pixel<V>{channel(0), channel(2), channel(4), V(1.0f)} * saturate(V((radius - away) * perEdge + 0.5f));
    }
    /// Jorge Jimenez's interleaved gradient noise: even steps in every neighborhood.
    static V grain(const Point<V>& here)
    {
        return fract(V(52.9829189f * fract(V(0.06711056f * here.x + 0.00583715f * here.y))));
    }
    static CIRect extent(const Values& in)
    {
        const double side = 2 * in.number("inputRadius");
        return CIRect{0, 0, side, side}.roundedOut();
    }
    V radius, value, perEdge, dither;
    bool coded;
};

const GeneratorFilter<HueSaturationValue> hueSaturationValueGradient{{.name = "CIHueSaturationValueGradient",
    .displayName = "Hue/Saturation/Value Gradient",
    .category = kCICategoryGradient,
    .usage = Video,
    .inputs = {scalar("inputValue", "Value", {.standard = 1, .min = 0, .sliderMin = 0, .sliderMax = 1}),
        fitted(distance("inputRadius", "Radius", {.standard = 300, .min = 0, .sliderMin = 0, .sliderMax = 800}), 120),
        scalar("inputSoftness", "Softness", {.standard = 1, .min = 0, .sliderMin = 0, .sliderMax = 1}),
        scalar("inputDither", "Dither", {.standard = 1, .min = 0, .sliderMin = 0, .sliderMax = 3}),
        object("inputColorSpace", "Color Space", InputKind::Object, "sRGB")},
    .tolerance = 1e-3f}}; // the dither may jump by a step

const RecipeFilter distanceGradientFromRedMask{
    {.name = "CIDistanceGradientFromRedMask",
        .displayName = "Distance Gradient From Red Mask",
        .category = kCICategoryGradient,
        .usage = Video,
        .inputs = {image(),
            distance("inputMaximumDistance", "Maximum Distance", {.standard = 10, .min = 0, .max = 1000})}},
    [](const Values& in) { return distanceToRed(in.image(), in.number("inputMaximumDistance")); }};

} // namespace
} // namespace ci
