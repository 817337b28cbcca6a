// Tiles: the plane covered with parts of the picture.
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
        return warp<AffineTile>(in, CIImage(clampNode(sharedNode(source.node()))), CIRect::infinite());
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

} // namespace
} // namespace ci
