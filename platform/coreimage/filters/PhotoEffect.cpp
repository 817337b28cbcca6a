// Looks: ready-made treatments of a photograph, by curves drawn for them here.
#include "platform/coreimage/filters/Spline.h"
#include "platform/coreimage/kernel/DisplayValues.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/kernel/Table.h"

namespace ci {
namespace {

using Points = std::vector<CIPoint>;

/// Saturation, then a curve for each component, all in display values.
template <class V>
struct Look {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit Look(const Inputs<V>& in)
        : saturation(in.scalar("saturation"))
        , red(tableOf(in.values(), "red"), in.values().flag("inputExtrapolate"))
        , green(tableOf(in.values(), "green"), in.values().flag("inputExtrapolate"))
        , blue(tableOf(in.values(), "blue"), in.values().flag("inputExtrapolate"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const Pixel<V> shown = displayFromLinear(p);
        const V gray = luma(shown);
        const auto vivid = [&](const V& c) { return mix(gray, c, saturation); };
        return {red(vivid(shown.r)), green(vivid(shown.g)), blue(vivid(shown.b)), p.a};
    }
    V saturation;
    Curve<V> red, green, blue;
};

/// The color that three curves have for the pixel's lightness.
template <class V>
struct GradientMap {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit GradientMap(const Inputs<V>& in)
        : red(tableOf(in.values(), "red"), in.values().flag("inputExtrapolate"))
        , green(tableOf(in.values(), "green"), in.values().flag("inputExtrapolate"))
        , blue(tableOf(in.values(), "blue"), in.values().flag("inputExtrapolate"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const V lightness = displayFromLinear(luma(p));
        return {red(lightness), green(lightness), blue(lightness), p.a};
    }
    Curve<V> red, green, blue;
};

struct Curves {
    Points red, green, blue;
};

Values withTables(const Values& in, const Curves& curves)
{
    const auto table = [](const Points& points) { return tableData(linearTable(Spline(points))); };
    return in.with("red", table(curves.red)).with("green", table(curves.green)).with("blue", table(curves.blue));
}

Declaration photoEffect(const std::string& look)
{
    return {.name = "CIPhotoEffect" + look,
        .displayName = "Photo Effect " + look,
        .category = kCICategoryColorEffect,
        .usage = Anything | XMPSerializable,
        .inputs = {image(), number("inputExtrapolate", "Extrapolate", InputKind::Boolean, {.standard = 0})}};
}

RecipeFilter inColor(const std::string& look, double saturation, Curves curves)
{
    return RecipeFilter(photoEffect(look), [=](const Values& in) {
        const CIImage source = in.image();
        return pointwise<Look>(withTables(in, curves).with("saturation", saturation), {source}, source.extent());
    });
}

std::function<CIImage(const Values&)> gradientMap(Curves curves)
{
    return [=](const Values& in) {
        const CIImage source = in.image();
        return pointwise<GradientMap>(withTables(in, curves), {source}, source.extent());
    };
}

RecipeFilter inGray(const std::string& look, const Points& tones)
{
    return RecipeFilter(photoEffect(look), gradientMap({tones, tones, tones}));
}

/// Slide film: strong colors, deep shadows, clear lights.
const RecipeFilter chrome = inColor("Chrome", 1.25,
    {{{0, 0}, {0.25, 0.21}, {0.5, 0.53}, {0.75, 0.81}, {1, 1}},
        {{0, 0}, {0.25, 0.22}, {0.5, 0.53}, {0.75, 0.8}, {1, 1}},
        {{0, 0.02}, {0.25, 0.23}, {0.5, 0.52}, {0.75, 0.77}, {1, 0.97}}});
/// An old print: pale colors, black turned gray, white no longer white.
const RecipeFilter fade = inColor("Fade", 0.72,
    {{{0, 0.09}, {0.25, 0.29}, {0.5, 0.53}, {0.75, 0.75}, {1, 0.95}},
        {{0, 0.09}, {0.25, 0.28}, {0.5, 0.52}, {0.75, 0.74}, {1, 0.94}},
        {{0, 0.11}, {0.25, 0.3}, {0.5, 0.51}, {0.75, 0.72}, {1, 0.91}}});
/// A print from an instant camera: shadows towards blue, lights towards cream, everything a little soft.
const RecipeFilter instant = inColor("Instant", 0.88,
    {{{0, 0.05}, {0.25, 0.26}, {0.5, 0.57}, {0.75, 0.84}, {1, 0.99}},
        {{0, 0.07}, {0.25, 0.28}, {0.5, 0.55}, {0.75, 0.8}, {1, 0.96}},
        {{0, 0.15}, {0.25, 0.33}, {0.5, 0.52}, {0.75, 0.7}, {1, 0.84}}});
/// Cross-processed film: cool, with blue shadows and greenish lights.
const RecipeFilter process = inColor("Process", 1.05,
    {{{0, 0}, {0.25, 0.18}, {0.5, 0.46}, {0.75, 0.75}, {1, 0.97}},
        {{0, 0.02}, {0.25, 0.25}, {0.5, 0.54}, {0.75, 0.81}, {1, 1}},
        {{0, 0.12}, {0.25, 0.35}, {0.5, 0.56}, {0.75, 0.75}, {1, 0.92}}});
/// Warm: red lifted, blue lowered, blacks a little open.
const RecipeFilter transfer = inColor("Transfer", 0.95,
    {{{0, 0.05}, {0.25, 0.32}, {0.5, 0.6}, {0.75, 0.84}, {1, 1}},
        {{0, 0.04}, {0.25, 0.26}, {0.5, 0.53}, {0.75, 0.78}, {1, 0.97}},
        {{0, 0.06}, {0.25, 0.24}, {0.5, 0.46}, {0.75, 0.67}, {1, 0.86}}});

/// Black and white with soft contrast, strong contrast, and the picture's own.
const RecipeFilter mono = inGray("Mono", {{0, 0.05}, {0.25, 0.28}, {0.5, 0.51}, {0.75, 0.74}, {1, 0.96}});
const RecipeFilter noir = inGray("Noir", {{0, 0}, {0.2, 0.06}, {0.5, 0.47}, {0.75, 0.85}, {0.92, 1}, {1, 1}});
const RecipeFilter tonal = inGray("Tonal", {{0, 0}, {1, 1}});

/// Dark is cold and blue, light is hot: violet, red, orange, yellow, white.
const RecipeFilter thermal{{.name = "CIThermal",
                               .displayName = "Thermal",
                               .category = kCICategoryColorEffect,
                               .usage = AnyVideo,
                               .inputs = {image()}},
    gradientMap({{{0, 0}, {0.2, 0.1}, {0.4, 0.55}, {0.6, 0.93}, {0.8, 1}, {1, 1}},
        {{0, 0}, {0.2, 0.02}, {0.4, 0.05}, {0.6, 0.3}, {0.8, 0.75}, {1, 1}},
        {{0, 0.25}, {0.2, 0.6}, {0.4, 0.6}, {0.6, 0.15}, {0.8, 0.1}, {1, 0.85}}})};

/// A negative on blue film: dark parts shine.
const RecipeFilter xRay{{.name = "CIXRay",
                            .displayName = "X-Ray",
                            .category = kCICategoryColorEffect,
                            .usage = AnyVideo,
                            .inputs = {image()}},
    gradientMap({{{0, 0.92}, {0.3, 0.58}, {0.6, 0.22}, {1, 0.01}}, {{0, 0.97}, {0.3, 0.7}, {0.6, 0.34}, {1, 0.03}},
        {{0, 1}, {0.3, 0.82}, {0.6, 0.48}, {1, 0.08}}})};

} // namespace
} // namespace ci
