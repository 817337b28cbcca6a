// Tiles of the plane's symmetry groups: a part of the picture beside the center, repeated by turns and reflections.
#include "platform/coreimage/kernel/SampleFilter.h"

namespace ci {
namespace {

/// Places counted in tile widths from the center, turned back by inputAngle.
template <class V>
struct Pattern {
    explicit Pattern(const Inputs<V>& in, const char* centerKey = "inputCenter", const char* angleKey = "inputAngle",
        const char* widthKey = "inputWidth")
        : center(in.point(centerKey))
        , width(max(in.scalar(widthKey), 1.0f)) // below a pixel it is noise
    {
        const V angle = in.scalar(angleKey);
        c = cos(angle), s = sin(angle);
    }
    Point<V> inward(const Point<V>& here) const
    {
        const Point<V> d = here - center;
        return {(c * d.x + s * d.y) / width, (c * d.y - s * d.x) / width};
    }
    Point<V> outward(const Point<V>& p) const
    {
        return center + Point<V>{c * p.x - s * p.y, s * p.x + c * p.y} * width;
    }
    Point<V> center;
    V width, c, s;
};

/// 0 to 1 and back, again and again; 0 to 1 stay as they are.
template <class V>
V mirrored(const V& v)
{
    return abs(V(wrap(V(v + 1.0f), V(2.0f)) - 1.0f));
}

/// Reflects what lies on the negative side of a line through the origin with this normal.
template <class V>
Point<V> reflected(const Point<V>& p, float normalX, float normalY)
{
    const V beyond = min(V(p.x * normalX + p.y * normalY), 0.0f);
    return {p.x - 2.0f * normalX * beyond, p.y - 2.0f * normalY * beyond};
}

constexpr float kSin60 = 0.866025404f;

/// Relative to the middle of its hexagon, of side 1, with corners above and below the middle.
template <class V>
Point<V> inHexagon(const Point<V>& p)
{
    const auto local = [&p](float x, float y) {
        return Point<V>{wrap(V(p.x + (x + kSin60)), V(2 * kSin60)) - kSin60, wrap(V(p.y + (y + 1.5f)), V(3.0f)) - 1.5f};
    };
    const Point<V> even = local(0, 0), odd = local(kSin60, 1.5f);
    return select(dot(even, even) < dot(odd, odd), even, odd);
}

/// A parallelogram with sides of one width.
template <class V>
struct Skewed : Pattern<V> {
    explicit Skewed(const Inputs<V>& in)
        : Pattern<V>(in)
    {
        const float acute = float(in.values().number("inputAcuteAngle"));
        const float rise = std::sin(acute);
        sine = V(std::copysign(std::max(std::abs(rise), 0.01f), rise)); // flatter ones would be lines
        cosine = V(std::cos(acute));
    }
    Point<V> sides(const Point<V>& here) const
    {
        const Point<V> p = this->inward(here);
        const V up = p.y / sine;
        return {p.x - up * cosine, up};
    }
    Point<V> place(const Point<V>& sides) const
    {
        return this->outward({mulAdd(sides.y, cosine, sides.x), sides.y * sine});
    }
    static CIRect domain(const Values& in)
    {
        const double acute = in.number("inputAcuteAngle"), x = std::cos(acute), y = std::sin(acute);
        return {std::min(0.0, x), std::min(0.0, y), 1 + std::abs(x), std::max(std::abs(y), 0.01)};
    }
    V sine, cosine;
};

template <class V>
struct FourfoldTranslated : Skewed<V> {
    using Skewed<V>::Skewed;
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> p = this->sides(here);
        return this->place({fract(p.x), fract(p.y)});
    }
};

template <class V>
struct FourfoldReflected : Skewed<V> {
    using Skewed<V>::Skewed;
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> p = this->sides(here);
        return this->place({mirrored(p.x), mirrored(p.y)});
    }
};

/// Within the square from the center to the upper right.
template <class V>
struct SquarePattern : Pattern<V> {
    using Pattern<V>::Pattern;
    static CIRect domain(const Values&) { return {0, 0, 1, 1}; }
};

/// Quarter turns about the center and the middles between.
template <class V>
struct FourfoldRotated : SquarePattern<V> {
    using SquarePattern<V>::SquarePattern;
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> p = this->inward(here);
        Point<V> q{wrap(V(p.x + 1.0f), V(2.0f)) - 1.0f, wrap(V(p.y + 1.0f), V(2.0f)) - 1.0f};
        q = select(q.y < V(0.0f), Point<V>{-q.x, -q.y}, q);
        return this->outward(select(q.x < V(0.0f), Point<V>{q.y, -q.x}, q));
    }
};

/// Rows run on, and every second one is mirrored and half a width ahead.
template <class V>
struct GlideReflected : SquarePattern<V> {
    using SquarePattern<V>::SquarePattern;
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> p = this->inward(here);
        const V line = floor(p.y), odd = line - 2.0f * floor(V(0.5f * line));
        return this->outward({fract(V(mulAdd(odd, V(0.5f), p.x))), mirrored(p.y)});
    }
};

template <class V>
struct EightfoldReflected : SquarePattern<V> {
    using SquarePattern<V>::SquarePattern;
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> p = this->inward(here);
        const V x = mirrored(p.x), y = mirrored(p.y);
        return this->outward({max(x, y), min(x, y)});
    }
};

/// Within a hexagon's quarter to the upper right.
template <class V>
struct HexagonPattern : Pattern<V> {
    using Pattern<V>::Pattern;
    static CIRect domain(const Values&) { return {0, 0, kSin60, 1}; }
};

/// Mirrors through the hexagons' corners leave a triangle of equal sides.
template <class V>
Point<V> inTriangle(const Point<V>& p)
{
    Point<V> q = inHexagon(p);
    q.x = abs(q.x);
    q = reflected(q, -0.5f, kSin60);
    q.x = abs(q.x);
    return q;
}

template <class V>
struct SixfoldReflected : HexagonPattern<V> {
    using HexagonPattern<V>::HexagonPattern;
    Point<V> operator()(const Point<V>& here) const { return this->outward(inTriangle(this->inward(here))); }
};

template <class V>
struct SixfoldRotated : HexagonPattern<V> {
    using HexagonPattern<V>::HexagonPattern;
    Point<V> operator()(const Point<V>& here) const
    {
        Point<V> p = inHexagon(this->inward(here));
        p = select(p.y < V(0.0f), Point<V>{-p.x, -p.y}, p);
        for (int i = 0; i < 2; ++i) // by sixths of a turn while beyond the first
            p = select(p.y > 2 * kSin60 * p.x, Point<V>{0.5f * p.x + kSin60 * p.y, 0.5f * p.y - kSin60 * p.x}, p);
        return this->outward(p);
    }
};

template <class V>
struct TwelvefoldReflected : HexagonPattern<V> {
    using HexagonPattern<V>::HexagonPattern;
    Point<V> operator()(const Point<V>& here) const
    {
        Point<V> p = inHexagon(this->inward(here));
        p = reflected(Point<V>{abs(p.x), abs(p.y)}, kSin60, -0.5f);
        return this->outward(reflected(p, 0.5f, -kSin60));
    }
};

/// Triangles that point up, and between them the same turned by half.
template <class V>
struct TriangleTile : Pattern<V> {
    using Pattern<V>::Pattern;
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> p = this->inward(here);
        const V up = p.y / kSin60, side = p.x - 0.5f * up;
        V u = fract(side), v = fract(up);
        const auto down = u + v > V(1.0f);
        u = select(down, V(1.0f - u), u), v = select(down, V(1.0f - v), v);
        return this->outward({mulAdd(v, V(0.5f), u), v * kSin60});
    }
    static CIRect domain(const Values&) { return {0, 0, 1, kSin60}; }
};

/// The part of the picture that all tiles are copies of, read once.
CIImage tilePart(const CIImage& source, const CIRect& domain, CIPoint center, double width, double angle)
{
    const double size = std::max(width, 1.0);
    const CIRect part = CIAffineTransform::scaling(size, size)
                            .then(CIAffineTransform::rotation(angle))
                            .then(CIAffineTransform::translation(center.x, center.y))
                            .mapRect(domain);
    constexpr double kRim = 64; // px; a cell beyond the part is read with it, also where cells are large
    return CIImage(sharedNode(source.cropped(part.grown(kRim)).node()));
}

template <template <class> class K>
CIImage symmetric(const Values& in)
{
    const CIImage part = tilePart(
        in.image(), K<float>::domain(in), in.point("inputCenter"), in.number("inputWidth"), in.number("inputAngle"));
    return warp<K>(in, part, CIRect::infinite());
}

template <template <class> class K>
struct SymmetryFilter : RecipeFilter {
    SymmetryFilter(std::string name, std::string displayName, std::vector<CIInputAttributes> inputs)
        : RecipeFilter({.name = std::move(name),
                           .displayName = std::move(displayName),
                           .category = kCICategoryTileEffect,
                           .usage = Video | HighDynamicRange,
                           .inputs = std::move(inputs),
                           .tolerance = 2e-3f}, // last bits of places beside a seam
            &symmetric<K>)
    {
    }
};

CIInputAttributes turn()
{
    return angle("inputAngle", "Angle", {.standard = 0, .sliderMin = -M_PI, .sliderMax = M_PI, .identity = 0});
}
CIInputAttributes tileWidth(std::optional<double> identity = 100)
{
    return distance(
        "inputWidth", "Width", {.standard = 100, .min = 0, .sliderMin = 1, .sliderMax = 200, .identity = identity});
}
CIInputAttributes acuteAngle()
{
    return angle("inputAcuteAngle", "Acute Angle",
        {.standard = M_PI / 2, .sliderMin = -M_PI, .sliderMax = M_PI, .identity = M_PI / 2});
}

const SymmetryFilter<FourfoldTranslated> fourfoldTranslatedTile{
    "CIFourfoldTranslatedTile", "Fourfold Translated Tile", {image(), center(), turn(), tileWidth(), acuteAngle()}};
const SymmetryFilter<FourfoldReflected> fourfoldReflectedTile{
    "CIFourfoldReflectedTile", "Fourfold Reflected Tile", {image(), center(), turn(), tileWidth(), acuteAngle()}};
const SymmetryFilter<FourfoldReflected> parallelogramTile{
    "CIParallelogramTile", "Parallelogram Tile", {image(), center(), turn(), acuteAngle(), tileWidth()}};
const SymmetryFilter<FourfoldRotated> fourfoldRotatedTile{
    "CIFourfoldRotatedTile", "Fourfold Rotated Tile", {image(), center(), turn(), tileWidth()}};
const SymmetryFilter<GlideReflected> glideReflectedTile{
    "CIGlideReflectedTile", "Glide Reflected Tile", {image(), center(), turn(), tileWidth()}};
const SymmetryFilter<EightfoldReflected> eightfoldReflectedTile{
    "CIEightfoldReflectedTile", "Eightfold Reflected Tile", {image(), center(), turn(), tileWidth()}};
const SymmetryFilter<SixfoldReflected> sixfoldReflectedTile{
    "CISixfoldReflectedTile", "Sixfold Reflected Tile", {image(), center(), turn(), tileWidth()}};
const SymmetryFilter<SixfoldRotated> sixfoldRotatedTile{
    "CISixfoldRotatedTile", "Sixfold Rotated Tile", {image(), center(), turn(), tileWidth()}};
const SymmetryFilter<TwelvefoldReflected> twelvefoldReflectedTile{
    "CITwelvefoldReflectedTile", "Twelvefold Reflected Tile", {image(), center(), turn(), tileWidth()}};
const SymmetryFilter<TriangleTile> triangleTile{
    "CITriangleTile", "Triangle Tile", {image(), center(), turn(), tileWidth(std::nullopt)}};

/// The triangle of inputSize around inputPoint, mirrored at its sides without end.
template <class V>
struct TriangleKaleidoscope {
    explicit TriangleKaleidoscope(const Inputs<V>& in)
        : pattern(in, "inputPoint", "inputRotation", "inputSize")
    {
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> middle{V(kMiddleX), V(kMiddleY)};
        return pattern.outward(inTriangle(pattern.inward(here) + middle) - middle);
    }
    static constexpr float kMiddleX = kSin60 / 3, kMiddleY = 0.5f; // of the triangle that `inTriangle` leaves
    Pattern<V> pattern;
};

/// From the middle triangle on, inputDecay is what is left of the light at each further corner's distance.
template <class V>
struct Decay {
    static constexpr bool keepsAlpha = true;
    explicit Decay(const Inputs<V>& in)
        : middle(in.point("inputPoint"))
        , perRadius(2 * kSin60 / max(in.scalar("inputSize"), 1.0f))
        , rate(log2(max(in.scalar("inputDecay"), 1e-6f)))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Point<V>& here) const
    {
        const V light = exp2(clamp(V(rate * max(V(length(here - middle) * perRadius - 1.0f), 0.0f)), -100.0f, 20.0f));
        return {p.r * light, p.g * light, p.b * light, p.a};
    }
    Point<V> middle;
    V perRadius, rate;
};

const RecipeFilter triangleKaleidoscope{
    {.name = "CITriangleKaleidoscope",
        .displayName = "Triangle Kaleidoscope",
        .category = kCICategoryTileEffect,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), position("inputPoint", "Point", {150, 150}),
            fitted(scalar("inputSize", "Size", {.standard = 700, .sliderMin = 0, .sliderMax = 1000}), 120,
                Meaning::Length),
            angle("inputRotation", "Rotation", {.standard = 5.924285296593801, .sliderMin = 0, .sliderMax = 2 * M_PI}),
            scalar("inputDecay", "Decay", {.standard = 0.85, .sliderMin = 0, .sliderMax = 1})},
        .tolerance = 2e-3f}, // as the other tiles
    [](const Values& in) {
        using K = TriangleKaleidoscope<float>;
        const CIRect domain{-K::kMiddleX, -K::kMiddleY, kSin60, 1};
        const CIImage part =
            tilePart(in.image(), domain, in.point("inputPoint"), in.number("inputSize"), in.number("inputRotation"));
        const CIImage tiles = warp<TriangleKaleidoscope>(in, part, CIRect::infinite());
        return pointwise<Decay>(in, {tiles}, CIRect::infinite());
    }};

} // namespace
} // namespace ci
