// Balance: white, saturation and range brought to where they are wanted.
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/WhitePoint.h"

#include <array>

namespace ci {
namespace {

using Vector3 = std::array<double, 3>;
using Matrix3 = std::array<Vector3, 3>; // rows

constexpr Matrix3 kXYZFromRGB{
    {{0.412391, 0.357584, 0.180481}, {0.212639, 0.715169, 0.072192}, {0.019331, 0.119195, 0.950532}}}; // IEC 61966-2-1
constexpr Matrix3 kBradford{{{0.8951, 0.2664, -0.1614}, {-0.7502, 1.7135, 0.0367}, {0.0389, -0.0685, 1.0296}}};

Vector3 operator*(const Matrix3& m, const Vector3& v)
{
    Vector3 result{};
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t k = 0; k < 3; ++k)
            result[i] += m[i][k] * v[k];
    return result;
}

Matrix3 operator*(const Matrix3& m, const Matrix3& n)
{
    Matrix3 result{};
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j)
            for (std::size_t k = 0; k < 3; ++k)
                result[i][j] += m[i][k] * n[k][j];
    return result;
}

Matrix3 inverse(const Matrix3& m)
{
    Matrix3 result;
    double determinant = 0;
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j) {
            const auto at = [&](std::size_t r, std::size_t c) { return m[(j + r) % 3][(i + c) % 3]; };
            result[i][j] = at(1, 1) * at(2, 2) - at(1, 2) * at(2, 1); // cyclic, so the signs are right
        }
    for (std::size_t k = 0; k < 3; ++k)
        determinant += m[0][k] * result[k][0];
    for (Vector3& row : result)
        for (double& v : row)
            v /= determinant;
    return result;
}

/// The place of a black body on the CIE 1960 diagram, by Krystek's approximation (1985).
CIPoint blackBody(double kelvin)
{
    const double t = kelvin;
    return {(0.860117757 + 1.54118254e-4 * t + 1.28641212e-7 * t * t) / (1 + 8.42420235e-4 * t + 7.08145163e-7 * t * t),
        (0.317398726 + 4.22806245e-5 * t + 4.20481691e-8 * t * t) / (1 - 2.89741816e-5 * t + 1.61456053e-7 * t * t)};
}

/// XYZ, of luminance 1, of a white given as temperature (kelvin) and tint: 3000ths of the distance from the black
/// body's line, across it, on the CIE 1960 diagram; positive is green.
Vector3 whiteOf(CIPoint neutral)
{
    const double kelvin = std::clamp(neutral.x, 1000.0, 40000.0);
    const CIPoint here = blackBody(kelvin), beside = blackBody(kelvin * 1.001);
    const double along = std::hypot(beside.x - here.x, beside.y - here.y);
    const double off = std::clamp(neutral.y, -150.0, 150.0) / 3000 / along;
    const double u = here.x + (beside.y - here.y) * off, v = std::max(here.y - (beside.x - here.x) * off, 0.05);
    return {3 * u / (2 * v), 1, (4 - u - 10 * v) / (2 * v)};
}

/// Temperature and tint of a white: the inverse of `whiteOf`.
CIPoint neutralOf(const Vector3& white)
{
    const double sum = white[0] + 15 * white[1] + 3 * white[2];
    const double u = 4 * white[0] / sum, v = 6 * white[1] / sum;
    // How far the color lies along the black body's line from a temperature; it falls as that rises.
    const auto beyond = [&](double kelvin) {
        const CIPoint here = blackBody(kelvin), beside = blackBody(kelvin * 1.001);
        return (u - here.x) * (beside.x - here.x) + (v - here.y) * (beside.y - here.y);
    };
    double low = 1000, high = 40000;
    for (int i = 0; i < 60; ++i) {
        const double middle = std::sqrt(low * high);
        (beyond(middle) > 0 ? low : high) = middle;
    }
    const CIPoint here = blackBody(low), beside = blackBody(low * 1.001);
    const double x = beside.x - here.x, y = beside.y - here.y;
    const double off = ((u - here.x) * y - (v - here.y) * x) / std::hypot(x, y);
    return {low, std::clamp(3000 * off, -150.0, 150.0)};
}

/// Adapts what looked white under one light to another, by Bradford's cone responses.
Matrix3 adaptation(const Vector3& from, const Vector3& to)
{
    const Vector3 source = kBradford * from, target = kBradford * to;
    Matrix3 scale{};
    for (std::size_t i = 0; i < 3; ++i)
        scale[i][i] = std::max(target[i], 1e-3) / std::max(source[i], 1e-3);
    return inverse(kBradford) * scale * kBradford;
}

template <class V>
struct TemperatureAndTint {
    static constexpr bool keepsAlpha = true;
    explicit TemperatureAndTint(const Inputs<V>& in)
    {
        const Vector3 from = whiteOf(in.values().point("inputNeutral"));
        const Vector3 to = whiteOf(in.values().point("inputTargetNeutral"));
        const Matrix3 m = inverse(kXYZFromRGB) * adaptation(from, to) * kXYZFromRGB;
        for (std::size_t i = 0; i < 3; ++i)
            for (std::size_t k = 0; k < 3; ++k)
                weight[i][k] = V(float(m[i][k]));
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const auto sum = [&](const V* w) { return mulAdd(w[0], p.r, mulAdd(w[1], p.g, w[2] * p.b)); };
        return {sum(weight[0]), sum(weight[1]), sum(weight[2]), p.a};
    }
    V weight[3][3];
};

CIInputAttributes white(std::string key, std::string displayName)
{
    const CIVector daylight{6500, 0};
    return meant(Role::White, offset(std::move(key), std::move(displayName), daylight, daylight));
}

const RecipeFilter temperatureAndTint{
    {.name = "CITemperatureAndTint",
        .displayName = "Temperature and Tint",
        .category = kCICategoryColorAdjustment,
        .usage = Anything,
        .inputs = {image(), white("inputNeutral", "Neutral"),
            fitted(white("inputTargetNeutral", "Target Neutral"), CIVector{4500, 0})}},
    [](const Values& in) {
        const CIImage source = in.image();
        return in.point("inputNeutral") == in.point("inputTargetNeutral")
            ? source
            : pointwise<TemperatureAndTint>(in, {source}, source.extent());
    }};

/// Saturates pale colors more than vivid ones, and skin least.
template <class V>
struct Vibrance {
    static constexpr bool keepsAlpha = true;
    explicit Vibrance(const Inputs<V>& in)
        : amount(in.scalar("inputAmount"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const V most = max(max(p.r, p.g), p.b), least = min(min(p.r, p.g), p.b), span = most - least;
        const V pale = sqrt(clamp(V(least / max(most, 1e-4f)), 0.0f, 1.0f)); // 1 for grays, much as the eye grades it
        // Skin lies around 27 degrees of hue: red the most, blue the least, green a little below the middle.
        const V hue = (p.g - least) / max(span, 1e-4f);
        const V skin = select(p.r >= most && p.b <= least, saturate(1.0f - abs(V(hue - 0.45f)) * (1 / 0.35f)), V(0.0f));
        const V gain = 1.0f + amount * pale * (1.0f - 0.7f * skin);
        const V gray = luma(p);
        return {mix(gray, p.r, gain), mix(gray, p.g, gain), mix(gray, p.b, gain), p.a};
    }
    V amount;
};

const ColorFilter<Vibrance> vibrance{{.name = "CIVibrance",
    .displayName = "Vibrance",
    .category = kCICategoryColorAdjustment,
    .usage = Anything,
    .inputs = {image(),
        fitted(scalar("inputAmount", "Amount",
                   {.standard = 0, .min = -1, .max = 1, .sliderMin = -1, .sliderMax = 1, .identity = 0}),
            0.8)}}};

/// Brings light up to the source's headroom under the target's. Unchanged up to a knee at half the target; from there
/// x / (1 + c x), which leaves the knee at slope 1 and reaches the target where the source ends. The brightest
/// component leads, so hues stay.
template <class V>
struct ToneMapHeadroom {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit ToneMapHeadroom(const Inputs<V>& in)
        : source(max(in.scalar("inputSourceHeadroom"), 1.0f))
        , target(in.scalar("inputTargetHeadroom"))
        , knee(0.5f * target)
        , bend((source - target) / ((source - knee) * (target - knee)))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const V most = max(max(p.r, p.g), p.b);
        const V above = clamp(V(most - knee), 0.0f, source - knee);
        const V mapped = knee + above / mulAdd(bend, above, V(1.0f));
        const V gain = select(most > knee, mapped / max(most, knee), V(1.0f));
        return {p.r * gain, p.g * gain, p.b * gain, p.a};
    }
    V source, target, knee, bend;
};

const RecipeFilter toneMapHeadroom{
    {.name = "CIToneMapHeadroom",
        .displayName = "Tone Map Headroom",
        .category = kCICategoryColorAdjustment,
        .usage = Anything,
        .inputs = {image(), fitted(scalar("inputSourceHeadroom", "Source Headroom", {.min = 1, .max = 32}), 4),
            scalar("inputTargetHeadroom", "Target Headroom", {.standard = 1, .min = 1, .max = 32})}},
    [](const Values& in) {
        const CIImage image = in.image();
        return in.number("inputSourceHeadroom") > in.number("inputTargetHeadroom")
            ? pointwise<ToneMapHeadroom>(in, {image}, image.extent())
            : image;
    }};

/// One over each component; what is nothing stays nothing.
template <class V>
struct Reciprocal {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit Reciprocal(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const auto over = [](const V& c) {
            return select(abs(c) > V(1e-5f), 1.0f / select(c == V(0.0f), V(1.0f), c), V(0.0f));
        };
        return {over(p.r), over(p.g), over(p.b), p.a};
    }
};

const ColorFilter<Reciprocal> depthToDisparity{{.name = "CIDepthToDisparity",
    .displayName = "Depth To Disparity",
    .category = kCICategoryColorAdjustment,
    .usage = Video,
    .inputs = {image()}}};

const ColorFilter<Reciprocal> disparityToDepth{{.name = "CIDisparityToDepth",
    .displayName = "Disparity To Depth",
    .category = kCICategoryColorAdjustment,
    .usage = Video,
    .inputs = {image()}}};

} // namespace
} // namespace ci

CIPoint CINeutralForColor(const std::array<double, 3>& color, CIPoint target)
{
    using namespace ci;
    if (std::max({color[0], color[1], color[2]}) <= 0)
        return target;
    // The filter multiplies each cone's response; the wanted factors take the color to grey.
    const Vector3 to = kBradford * whiteOf(target), found = kBradford * (kXYZFromRGB * color);
    const Vector3 grey = kBradford * (kXYZFromRGB * Vector3{1, 1, 1});
    Vector3 from{};
    for (std::size_t i = 0; i < 3; ++i)
        from[i] = std::max(to[i], 1e-3) * std::max(found[i], 1e-6) / grey[i];
    return neutralOf(inverse(kBradford) * from);
}
