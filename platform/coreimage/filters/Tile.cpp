// Tiles: the plane covered with parts of the picture.
#include "platform/coreimage/graph/Projection.h"
#include "platform/coreimage/kernel/SampleFilter.h"

namespace ci {
namespace {

template <class V>
struct AffineTile {
    explicit AffineTile(const Inputs<V>& in)
    {
        const CIAffineTransform t = in.values().transform("inputTransform").inverted().value_or(CIAffineTransform());
        a = V(float(t.a)), b = V(float(t.b)), c = V(float(t.c)), d = V(float(t.d));
        tx = V(float(t.tx)), ty = V(float(t.ty));
        const CIRect tile = in.values().image().extent();
        left = V(float(tile.left())), bottom = V(float(tile.bottom()));
        width = V(float(tile.width)), height = V(float(tile.height));
    }
    Point<V> operator()(const Point<V>& p) const
    {
        const V x = mulAdd(a, p.x, mulAdd(c, p.y, tx)), y = mulAdd(b, p.x, mulAdd(d, p.y, ty));
        return {left + wrap(V(x - left), width), bottom + wrap(V(y - bottom), height)};
    }
    V a, b, c, d, tx, ty, left, bottom, width, height;
};

/// The picture is repeated without end, then transformed.
const RecipeFilter affineTile{{.name = "CIAffineTile",
                                  .displayName = "Affine Tile",
                                  .category = kCICategoryTileEffect,
                                  .usage = Video | HighDynamicRange,
                                  .inputs = {image(), transform()}},
    [](const Values& in) {
        const CIImage source = in.image();
        if (source.extent().isInfinite() || source.extent().isEmpty())
            return source.transformed(in.transform("inputTransform"));
        if (!in.transform("inputTransform").inverted())
            return CIImage();
        const CIAffineTransform t = in.transform("inputTransform");
        const double magnification = std::max(std::hypot(t.a, t.b), std::hypot(t.c, t.d));
        return warp<AffineTile>(in, CIImage(sharedTileNode(source.node())), CIRect::infinite(), magnification);
    }};

/// Angles around the center are folded, mirrored each time, into one sector of half a turn over inputCount.
template <class V>
struct Kaleidoscope {
    explicit Kaleidoscope(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , angle(in.scalar("inputAngle"))
        , sector(kPi / max(round(in.scalar("inputCount")), 1.0f)) // a part of a sector would not close
    {
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> d = here - center;
        const V turned = atan2(d.y, d.x) - angle;
        const V folded = abs(wrap(V(turned + sector), V(2.0f * sector)) - sector) + angle;
        const V r = length(d);
        return {mulAdd(r, cos(folded), center.x), mulAdd(r, sin(folded), center.y)};
    }
    /// The square that reaches to the picture's farthest corner.
    static CIRect extent(const Values& in)
    {
        const CIRect source = in.image().extent();
        if (source.isInfinite())
            return source;
        const CIPoint c = in.point("inputCenter");
        const double dx = std::max(std::abs(source.left() - c.x), std::abs(source.right() - c.x));
        const double dy = std::max(std::abs(source.bottom() - c.y), std::abs(source.top() - c.y));
        const double reach = std::ceil(std::hypot(dx, dy));
        return CIRect{c.x - reach, c.y - reach, 2 * reach, 2 * reach}.roundedOut();
    }
    Point<V> center;
    V angle, sector;
};

const WarpFilter<Kaleidoscope> kaleidoscope{{.name = "CIKaleidoscope",
    .displayName = "Kaleidoscope",
    .category = kCICategoryTileEffect,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), scalar("inputCount", "Count", {.standard = 6, .min = 1, .sliderMin = 1, .sliderMax = 64}),
        center(),
        angle("inputAngle", "Angle", {.standard = 0, .sliderMin = -M_PI, .sliderMax = M_PI, .identity = 0})}}};

/// Each square of inputWidth shows the picture around its middle, reduced by inputScale and turned.
template <class V>
struct OpTile {
    explicit OpTile(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , width(max(in.scalar("inputWidth"), 1.0f))
    {
        const V angle = in.scalar("inputAngle"), scale = in.scalar("inputScale");
        c = scale * cos(angle), s = scale * sin(angle);
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> d = here - center;
        const Point<V> middle{floor(V(d.x / width + 0.5f)) * width, floor(V(d.y / width + 0.5f)) * width};
        const Point<V> q = d - middle;
        return center + middle + Point<V>{c * q.x - s * q.y, s * q.x + c * q.y};
    }
    static CIRect extent(const Values&) { return CIRect::infinite(); }
    Point<V> center;
    V width, c, s;
};

const RecipeFilter opTile{
    {.name = "CIOpTile",
        .displayName = "Op Tile",
        .category = kCICategoryTileEffect,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), center(),
            scalar(
                "inputScale", "Scale", {.standard = 2.8, .min = 0, .sliderMin = 0.1, .sliderMax = 10, .identity = 1}),
            angle("inputAngle", "Angle", {.standard = 0, .sliderMin = -M_PI, .sliderMax = M_PI, .identity = 0}),
            distance(
                "inputWidth", "Width", {.standard = 65, .min = 0, .sliderMin = 1, .sliderMax = 1000, .identity = 65})},
        .tolerance = 2e-3f}, // last bits of places beside a seam
    [](const Values& in) {
        return warp<OpTile>(in, in.image(), CIRect::infinite(), 1 / std::max(in.number("inputScale"), 1e-2));
    }};

/// The picture repeated without end on a plane, of which one tile lies between the four points.
const RecipeFilter perspectiveTile{
    {.name = "CIPerspectiveTile",
        .displayName = "Perspective Tile",
        .category = kCICategoryTileEffect,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), fitted(position("inputTopLeft", "Top Left", {118, 484}), CIVector{90, 200}),
            fitted(position("inputTopRight", "Top Right", {646, 507}), CIVector{210, 200}),
            fitted(position("inputBottomRight", "Bottom Right", {548, 140}), CIVector{240, 100}),
            fitted(position("inputBottomLeft", "Bottom Left", {155, 153}), CIVector{60, 100})},
        .tolerance = 5e-3f}, // last bits of places beside a seam, far away
    [](const Values& in) {
        const CIImage source = in.image();
        if (source.extent().isInfinite() || source.extent().isEmpty())
            return source;
        const auto map = Projection::between(Quadrilateral::of(source.extent()),
            {in.point("inputBottomLeft"), in.point("inputBottomRight"), in.point("inputTopRight"),
                in.point("inputTopLeft")});
        return map ? projectedTiles(source, *map) : CIImage();
    }};

/// The pixels at the rectangle's edges repeated without end.
const RecipeFilter clampFilter{
    {.name = "CIClamp",
        .displayName = "Clamp",
        .category = kCICategoryTileEffect,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), fitted(rectangle("inputExtent", "Extent", {0, 0, 640, 80}), CIVector{75, 75, 150, 150})}},
    [](const Values& in) { return in.image().cropped(in.rect("inputExtent")).clampedToExtent(); }};

/// Transformed, and the edge pixels repeated without end.
const RecipeFilter affineClamp{{.name = "CIAffineClamp",
                                   .displayName = "Affine Clamp",
                                   .category = kCICategoryTileEffect,
                                   .usage = Video | HighDynamicRange,
                                   .inputs = {image(), transform()}},
    [](const Values& in) { return in.image().clampedToExtent().transformed(in.transform("inputTransform")); }};

} // namespace
} // namespace ci
