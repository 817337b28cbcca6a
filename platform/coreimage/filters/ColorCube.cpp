// Colors looked up in tables that come with the filter.
#include "platform/coreimage/kernel/DisplayValues.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/kernel/Table.h"

namespace ci {
namespace {

/// Whether a table is meant for display values; without a color space it is, as most are made so.
bool isForDisplay(const Values& in) { return in.value("inputColorSpace").toString() != "linearSRGB"; }

int sideOf(const Values& in) { return int(in.number("inputCubeDimension")); }

/// True when the data hold a whole cube of premultiplied float pixels.
bool hasCube(const Values& in, std::string_view key)
{
    const auto side = std::size_t(sideOf(in));
    return tableOf(in, key).size() >= 4 * side * side * side;
}

/// The cube that changes nothing, the smallest there is.
CIData identityCube()
{
    std::vector<float> pixels;
    for (int i = 0; i < 8; ++i)
        pixels.insert(pixels.end(), {float(i & 1), float(i >> 1 & 1), float(i >> 2), 1});
    return tableData(pixels);
}

/// Pale and warm, as of a print that hung in the sun.
CIData fadedCube()
{
    std::vector<float> pixels;
    for (int i = 0; i < 8; ++i)
        pixels.insert(pixels.end(),
            {0.1f + 0.9f * float(i & 1), 0.06f + 0.88f * float(i >> 1 & 1), 0.16f + 0.62f * float(i >> 2), 1});
    return tableData(pixels);
}

template <class V>
Cube<V> cubeOf(const Values& in, std::string_view key)
{
    return Cube<V>(tableOf(in, key), sideOf(in), in.flag("inputExtrapolate"));
}

template <class V>
struct ColorCube {
    explicit ColorCube(const Inputs<V>& in)
        : cube(cubeOf<V>(in.values(), "inputCubeData"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const { return cube(unpremultiplied(p)) * p.a; }
    Cube<V> cube;
};

/// The color space that tables are made for: into it, and with the premultiplied color that was found back to light.
struct TableSpace {
    explicit TableSpace(const Values& in)
        : display(isForDisplay(in))
    {
    }
    template <class V>
    Pixel<V> into(const Pixel<V>& p) const
    {
        return display ? displayFromLinear(unpremultiplied(p)) : unpremultiplied(p);
    }
    template <class V>
    Pixel<V> back(const Pixel<V>& found) const
    {
        return display ? premultiplied(linearFromDisplay(unpremultiplied(found))) : found;
    }
    bool display;
};

template <class V>
struct ColorCubeWithColorSpace {
    explicit ColorCubeWithColorSpace(const Inputs<V>& in)
        : space(in.values())
        , cube(cubeOf<V>(in.values(), "inputCubeData"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const { return space.back(cube(space.into(p))) * p.a; }
    TableSpace space;
    Cube<V> cube;
};

/// The first cube where the mask is black, the second where it is white; mixed in the cubes' color space.
template <class V>
struct ColorCubesMixedWithMask {
    explicit ColorCubesMixedWithMask(const Inputs<V>& in)
        : space(in.values())
        , dark(cubeOf<V>(in.values(), "inputCube0Data"))
        , light(cubeOf<V>(in.values(), "inputCube1Data"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& mask) const
    {
        const Pixel<V> at = space.into(p);
        return space.back(mix(dark(at), light(at), saturate(luma(mask)))) * p.a;
    }
    TableSpace space;
    Cube<V> dark, light;
};

template <template <class> class K>
CIImage lookedUp(const Values& in, const std::vector<CIImage>& images, std::initializer_list<const char*> cubes)
{
    for (const char* key : cubes)
        if (!hasCube(in, key))
            return images[0];
    return pointwise<K>(in, images, images[0].extent());
}

CIInputAttributes cubeDimension()
{
    return count("inputCubeDimension", "Cube Dimension", {.standard = 2, .min = 2, .max = 128, .identity = 2});
}
CIInputAttributes cubeData(std::string key, std::string displayName)
{
    CIInputAttributes input = object(std::move(key), std::move(displayName), InputKind::Data, identityCube());
    input.identity = input.defaultValue;
    return meant(Role::Cube, fitted(std::move(input), fadedCube()));
}
CIInputAttributes extrapolate()
{
    return number("inputExtrapolate", "Extrapolate", InputKind::Boolean, {.standard = 0});
}
CIInputAttributes colorSpace() { return object("inputColorSpace", "Color Space", InputKind::Object); }

const RecipeFilter colorCube{
    {.name = "CIColorCube",
        .displayName = "Color Cube",
        .category = kCICategoryColorEffect,
        .usage = Anything,
        .inputs = {image(), cubeDimension(), cubeData("inputCubeData", "Cube Data"), extrapolate()}},
    [](const Values& in) { return lookedUp<ColorCube>(in, {in.image()}, {"inputCubeData"}); }};

const RecipeFilter colorCubeWithColorSpace{
    {.name = "CIColorCubeWithColorSpace",
        .displayName = "Color Cube with ColorSpace",
        .category = kCICategoryColorEffect,
        .usage = Anything,
        .inputs = {image(), cubeDimension(), cubeData("inputCubeData", "Cube Data"), extrapolate(), colorSpace()}},
    [](const Values& in) { return lookedUp<ColorCubeWithColorSpace>(in, {in.image()}, {"inputCubeData"}); }};

const RecipeFilter colorCubesMixedWithMask{
    {.name = "CIColorCubesMixedWithMask",
        .displayName = "Color Cubes Mixed With Mask",
        .category = kCICategoryColorEffect,
        .usage = Anything,
        .inputs = {image(), fitted(image("inputMaskImage", "Mask Image"), Meaning::SpotMask), cubeDimension(),
            cubeData("inputCube0Data", "Cube 0 Data"),
            fitted(cubeData("inputCube1Data", "Cube 1 Data"), identityCube()), colorSpace(), extrapolate()}},
    [](const Values& in) {
        return lookedUp<ColorCubesMixedWithMask>(
            in, {in.image(), in.image("inputMaskImage")}, {"inputCube0Data", "inputCube1Data"});
    }};

/// Three curves: triples of floats at even distances over the domain.
template <class V>
struct ColorCurves {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit ColorCurves(const Inputs<V>& in)
        : red(tableOf(in.values(), "red"))
        , green(tableOf(in.values(), "green"))
        , blue(tableOf(in.values(), "blue"))
        , display(isForDisplay(in.values()))
    {
        const CIVector domain = in.values().vector("inputCurvesDomain");
        start = V(float(domain.X()));
        perSpan = V(1 / std::max(float(domain.Y() - domain.X()), 1e-6f));
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const Pixel<V> q = display ? displayFromLinear(p) : p;
        const auto at = [&](const V& c) { return V((c - start) * perSpan); };
        const Pixel<V> mapped{red(at(q.r)), green(at(q.g)), blue(at(q.b)), p.a};
        return display ? linearFromDisplay(mapped) : mapped;
    }
    Curve<V> red, green, blue;
    bool display;
    V start, perSpan;
};

const RecipeFilter colorCurves{
    {.name = "CIColorCurves",
        .displayName = "Color Curves",
        .category = kCICategoryColorEffect,
        .usage = AnyVideo,
        .inputs = {image(),
            meant(Role::ToneTable,
                fitted(object("inputCurvesData", "Curves Data", InputKind::Data,
                           tableData(std::vector<float>{0, 0, 0, 0.5f, 0.5f, 0.5f, 1, 1, 1})),
                    tableData(std::vector<float>{0.06f, 0, 0.12f, 0.56f, 0.5f, 0.46f, 1, 0.97f, 0.88f}))),
            vector("inputCurvesDomain", "Curves Domain", CIVector{0, 1}), colorSpace()}},
    [](const Values& in) {
        const CIImage source = in.image();
        const auto triples = tableOf(in, "inputCurvesData");
        if (triples.size() < 6)
            return source;
        std::vector<float> curves[3];
        for (std::size_t i = 0; i + 2 < triples.size(); i += 3)
            for (std::size_t c = 0; c < 3; ++c)
                curves[c].push_back(triples[i + c]);
        const Values ready =
            in.with("red", tableData(curves[0])).with("green", tableData(curves[1])).with("blue", tableData(curves[2]));
        return pointwise<ColorCurves>(ready, {source}, source.extent());
    }};

} // namespace
} // namespace ci
