// Tone: what becomes of a component's value.
#include "platform/coreimage/kernel/DisplayValues.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

/// Applies a function to the three color components.
template <class V, class F>
Pixel<V> eachColor(const Pixel<V>& p, F f)
{
    return {f(p.r), f(p.g), f(p.b), p.a};
}

/// Each component to the given power; negative ones keep their sign.
template <class V>
struct GammaAdjust {
    static constexpr bool straight = true, keepsAlpha = true, perComponent = true;
    explicit GammaAdjust(const Inputs<V>& in)
        : power(clamp(in.scalar("inputPower"), -100.0f, 100.0f))
        , isOne(in.values().number("inputPower") == 1)
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        if (isOne)
            return p; // the picture as it was, not as logarithms round it
        return eachColor(p, [&](const V& c) {
            const V size = pow(max(abs(c), 1e-9f), power);
            return select(c < V(0.0f), -size, select(c == V(0.0f) && power > V(0.0f), V(0.0f), size));
        });
    }
    V power;
    bool isOne;
};

const ColorFilter<GammaAdjust> gammaAdjust{{.name = "CIGammaAdjust",
    .displayName = "Gamma Adjust",
    .category = kCICategoryColorAdjustment,
    .usage = Anything,
    .inputs = {image(),
        fitted(
            scalar("inputPower", "Power", {.standard = 1, .sliderMin = 0.25, .sliderMax = 4, .identity = 1}), 0.7)}}};

/// As many values a component as there are levels, evenly spread over what the display shows.
template <class V>
struct ColorPosterize {
    static constexpr bool straight = true, keepsAlpha = true, perComponent = true;
    explicit ColorPosterize(const Inputs<V>& in)
        : steps(max(V(round(in.scalar("inputLevels")) - 1.0f), 1.0f))
        , step(1.0f / steps)
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        return eachColor(
            p, [&](const V& c) { return linearFromDisplay(V(round(V(displayFromLinear(c) * steps)) * step)); });
    }
    V steps, step;
};

const ColorFilter<ColorPosterize> colorPosterize{{.name = "CIColorPosterize",
    .displayName = "Color Posterize",
    .category = kCICategoryColorEffect,
    .usage = Anything,
    .inputs = {image(),
        scalar("inputLevels", "Levels", {.standard = 6, .min = 1, .sliderMin = 2, .sliderMax = 30, .identity = 300})}}};

/// 1 where a component reaches the threshold, else 0.
template <class V>
struct ColorThreshold {
    static constexpr bool straight = true, opaque = true;
    explicit ColorThreshold(const Inputs<V>& in)
        : threshold(in.scalar("inputThreshold"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const auto above = [&](const V& c) { return select(c >= threshold, V(1.0f), V(0.0f)); };
        return {above(p.r), above(p.g), above(p.b), V(1.0f)};
    }
    V threshold;
};

const ColorFilter<ColorThreshold> colorThreshold{{.name = "CIColorThreshold",
    .displayName = "Color Threshold",
    .category = kCICategoryColorAdjustment,
    .usage = AnyVideo,
    .inputs = {image(), scalar("inputThreshold", "Threshold", {.standard = 0.5, .sliderMin = 0, .sliderMax = 1})}}};

/// Linear values turned to sRGB codes, which are then taken for light.
template <class V>
struct LinearToSRGBToneCurve {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit LinearToSRGBToneCurve(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        return eachColor(p, [](const V& c) { return srgbFromLinear(c); });
    }
};

const ColorFilter<LinearToSRGBToneCurve> linearToSRGBToneCurve{{.name = "CILinearToSRGBToneCurve",
    .displayName = "Linear to sRGB Tone Curve",
    .category = kCICategoryColorAdjustment,
    .usage = Anything,
    .inputs = {image()}}};

template <class V>
struct SRGBToneCurveToLinear {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit SRGBToneCurveToLinear(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        return eachColor(p, [](const V& c) { return linearFromSRGB(c); });
    }
};

const ColorFilter<SRGBToneCurveToLinear> sRGBToneCurveToLinear{{.name = "CISRGBToneCurveToLinear",
    .displayName = "sRGB Tone Curve to Linear",
    .category = kCICategoryColorAdjustment,
    .usage = Anything,
    .inputs = {image()}}};

/// Keeps each component between two bounds.
template <class V>
struct ColorClamp {
    static constexpr bool straight = true;
    explicit ColorClamp(const Inputs<V>& in)
        : least(in.row("inputMinComponents"))
        , most(in.row("inputMaxComponents"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        return {clamp(p.r, least.r, most.r), clamp(p.g, least.g, most.g), clamp(p.b, least.b, most.b),
            saturate(clamp(p.a, least.a, most.a))};
    }
    Pixel<V> least, most;
};

const ColorFilter<ColorClamp> colorClamp{{.name = "CIColorClamp",
    .displayName = "Color Clamp",
    .category = kCICategoryColorAdjustment,
    .usage = AnyVideo,
    .inputs = {image(),
        fitted(vector("inputMinComponents", "Min Components", CIVector{0, 0, 0, 0}), CIVector{0.1, 0.1, 0.1, 0}),
        fitted(vector("inputMaxComponents", "Max Components", CIVector{1, 1, 1, 1}), CIVector{0.6, 0.6, 0.6, 1})}}};

/// A cubic of each component: the four coefficients belong to 1, c, c squared and c cubed.
template <class V>
struct ColorPolynomial {
    static constexpr bool straight = true;
    explicit ColorPolynomial(const Inputs<V>& in)
        : red(in.row("inputRedCoefficients"))
        , green(in.row("inputGreenCoefficients"))
        , blue(in.row("inputBlueCoefficients"))
        , alpha(in.row("inputAlphaCoefficients"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const auto cubic = [](const V& c, const Pixel<V>& k) {
            return mulAdd(mulAdd(mulAdd(k.a, c, k.b), c, k.g), c, k.r);
        };
        return {cubic(p.r, red), cubic(p.g, green), cubic(p.b, blue), saturate(cubic(p.a, alpha))};
    }
    Pixel<V> red, green, blue, alpha;
};

CIInputAttributes coefficients(std::string key, std::string displayName)
{
    const CIVector identity{0, 1, 0, 0};
    return meant(Role::Polynomial, vector(std::move(key), std::move(displayName), identity, identity));
}

const ColorFilter<ColorPolynomial> colorPolynomial{{.name = "CIColorPolynomial",
    .displayName = "Color Polynomial",
    .category = kCICategoryColorAdjustment,
    .usage = Anything,
    .inputs = {image(), fitted(coefficients("inputRedCoefficients", "Red Coefficients"), CIVector{0, 1.5, -0.5, 0}),
        coefficients("inputGreenCoefficients", "Green Coefficients"),
        fitted(coefficients("inputBlueCoefficients", "Blue Coefficients"), CIVector{0, 0.7, 0.3, 0}),
        coefficients("inputAlphaCoefficients", "Alpha Coefficients")}}};

/// Each component is a quadratic of all three: coefficients of r, g, b, r², g², b², rg, gb, br and 1.
template <class V>
struct ColorCrossPolynomial {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit ColorCrossPolynomial(const Inputs<V>& in)
    {
        const char* const keys[3] = {"inputRedCoefficients", "inputGreenCoefficients", "inputBlueCoefficients"};
        for (int c = 0; c < 3; ++c) {
            const CIVector k = in.values().vector(keys[c]);
            for (std::size_t i = 0; i < 10; ++i)
                weights[c][i] = V(float(k.valueAtIndex(i)));
        }
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const V terms[9] = {p.r, p.g, p.b, p.r * p.r, p.g * p.g, p.b * p.b, p.r * p.g, p.g * p.b, p.b * p.r};
        const auto sum = [&](const V* w) {
            V s = w[9];
            for (int i = 0; i < 9; ++i)
                s = mulAdd(w[i], terms[i], s);
            return s;
        };
        return {sum(weights[0]), sum(weights[1]), sum(weights[2]), p.a};
    }
    V weights[3][10];
};

const ColorFilter<ColorCrossPolynomial> colorCrossPolynomial{{.name = "CIColorCrossPolynomial",
    .displayName = "Color Cross Polynomial",
    .category = kCICategoryColorEffect,
    .usage = Anything,
    .inputs = {image(),
        fitted(vector("inputRedCoefficients", "Red Coefficients", CIVector{1, 0, 0, 0, 0, 0, 0, 0, 0, 0},
                   CIVector{1, 0, 0, 0, 0, 0, 0, 0, 0, 0}),
            CIVector{1, 0, 0, 0, 0, 0, 0.6, 0, 0, 0}),
        vector("inputGreenCoefficients", "Green Coefficients", CIVector{0, 1, 0, 0, 0, 0, 0, 0, 0, 0},
            CIVector{0, 1, 0, 0, 0, 0, 0, 0, 0, 0}),
        fitted(vector("inputBlueCoefficients", "Blue Coefficients", CIVector{0, 0, 1, 0, 0, 0, 0, 0, 0, 0},
                   CIVector{0, 0, 1, 0, 0, 0, 0, 0, 0, 0}),
            CIVector{0, 0, 0.6, 0, 0, 0.2, 0, 0, 0, 0.02})}}};

} // namespace
} // namespace ci
