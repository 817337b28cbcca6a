// Distortions: the picture seen through glass, and displaced by another picture.
#include "platform/coreimage/kernel/DisplayValues.h"
#include "platform/coreimage/kernel/SampleFilter.h"

namespace ci {
namespace {

/// Where a ray meets the ground that falls straight down on a round bar of glass of radius 1, at `t` from its middle
/// line (-1 to 1), by Snell's law. Index 1 changes nothing.
template <class V>
V refracted(const V& t, const V& index)
{
    const V inside = clamp(V(t / max(index, V(1e-3f))), -1.0f, 1.0f); // sine of the angle in the glass
    const V height = sqrt(max(V(1.0f - t * t), 0.0f)), slant = sqrt(max(V(1.0f - inside * inside), 0.0f));
    const V bend = (t * slant - inside * height) / max(V(height * slant + t * inside), 1e-2f);
    return t - height * bend;
}

/// A round bar with round ends between two points.
template <class V>
struct GlassLozenge {
    explicit GlassLozenge(const Inputs<V>& in)
        : start(in.point("inputPoint0"))
        , along(in.point("inputPoint1") - start)
        , perLength2(1.0f / max(dot(along, along), V(1e-6f)))
        , radius(max(in.scalar("inputRadius"), 1e-3f))
        , index(in.scalar("inputRefraction"))
    {
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> middle = start + along * saturate(V(dot(here - start, along) * perLength2));
        const Point<V> d = here - middle;
        const V t = clamp(V(length(d) / radius), 1e-4f, 1.0f);
        return middle + d * V(refracted(t, index) / t);
    }
    Point<V> start, along;
    V perLength2, radius, index;
};

const WarpFilter<GlassLozenge> glassLozenge{{.name = "CIGlassLozenge",
    .displayName = "Glass Lozenge",
    .category = kCICategoryDistortionEffect,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), fitted(position("inputPoint0", "Point 0", {150, 150}), CIVector{90, 150}),
        fitted(position("inputPoint1", "Point 1", {350, 150}), CIVector{210, 150}),
        fitted(distance("inputRadius", "Radius",
                   {.standard = 100, .min = 0, .sliderMin = 0, .sliderMax = 1000, .identity = 100}),
            60),
        scalar("inputRefraction", "Refraction",
            {.standard = 1.7, .min = 0, .sliderMin = 0, .sliderMax = 5, .identity = 1})},
    .tolerance = 1e-3f}}; // steep at the rim

/// A ring of glass; inputRadius is its outer one.
template <class V>
struct TorusLens {
    explicit TorusLens(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , index(in.scalar("inputRefraction"))
    {
        const V radius = in.scalar("inputRadius");
        tube = max(V(0.5f * min(in.scalar("inputWidth"), radius)), 1e-3f);
        middle = radius - tube;
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> d = here - center;
        const V r = max(length(d), V(1e-4f));
        const V t = (r - middle) / tube;
        const V moved = middle + tube * refracted(clamp(t, -1.0f, 1.0f), index);
        return center + d * select(abs(t) < V(1.0f), V(moved / r), V(1.0f));
    }
    Point<V> center;
    V index, tube, middle;
};

const WarpFilter<TorusLens> torusLensDistortion{{.name = "CITorusLensDistortion",
    .displayName = "Torus Lens Distortion",
    .category = kCICategoryDistortionEffect,
    .usage = Video | HighDynamicRange,
    .inputs = {image(), center(),
        fitted(distance("inputRadius", "Radius",
                   {.standard = 160, .min = 0, .sliderMin = 0, .sliderMax = 500, .identity = 0}),
            110),
        fitted(distance(
                   "inputWidth", "Width", {.standard = 80, .min = 0, .sliderMin = 0, .sliderMax = 200, .identity = 0}),
            45),
        scalar("inputRefraction", "Refraction",
            {.standard = 1.7, .min = 0, .sliderMin = 0, .sliderMax = 5, .identity = 1})},
    .tolerance = 1e-3f}}; // steep at the rim

/// The texture, repeated around the center.
template <class V>
struct Repeated {
    explicit Repeated(const Inputs<V>& in)
    {
        const CIRect tile = in.values().image("inputTexture").extent();
        left = V(float(tile.left())), bottom = V(float(tile.bottom()));
        width = V(float(tile.width)), height = V(float(tile.height));
        rim = 0.5f * in.step();
    }
    Point<V> place(const V& x, const V& y) const
    {
        // Within the outermost pixel centers: beyond them lies the transparent rim.
        return {left + clamp(wrap(x, width), rim, width - 2.0f * rim),
            bottom + clamp(wrap(y, height), rim, height - 2.0f * rim)};
    }
    V left, bottom, width, height, rim;
};

/// How steeply the texture rises to the right (red) and upwards (green), per picture pixel.
template <class V>
struct TextureSlope {
    explicit TextureSlope(const Inputs<V>& in)
        : tile(in)
        , apart(max(in.step(), 1.0f))
    {
    }
    Pixel<V> operator()(const Sampler<V>& texture, const Point<V>& here) const
    {
        const V x = here.x - tile.left, y = here.y - tile.bottom;
        const auto height = [&](const V& dx, const V& dy) { return luma(texture(tile.place(x + dx, y + dy))); };
        const V none(0.0f);
        return {(height(apart, none) - height(-apart, none)) / apart,
            (height(none, apart) - height(none, -apart)) / apart, none, V(1.0f)};
    }
    static CIRect regionOfInterest(const Values& in, std::size_t, const CIRect&)
    {
        return in.image("inputTexture").extent();
    }
    Repeated<V> tile;
    V apart;
};

/// Bends light by the slope.
template <class V>
struct GlassDistortion {
    explicit GlassDistortion(const Inputs<V>& in)
        : origin(in.point("inputCenter"))
        , scale(in.scalar("inputScale"))
        , tile(in)
    {
    }
    Point<V> operator()(const Sampler<V>& slope, const Point<V>& here) const
    {
        const Pixel<V> rise = slope(tile.place(here.x - origin.x, here.y - origin.y));
        return {here.x + clamp(V(scale * rise.r), -kFarthest, kFarthest),
            here.y + clamp(V(scale * rise.g), -kFarthest, kFarthest)};
    }
    static CIRect guideRegion(const Values& in, const CIRect&) { return in.image("inputTexture").extent(); }
    static constexpr float kFarthest = 200; // px; steeper texture does not bend more
    Point<V> origin;
    V scale;
    Repeated<V> tile;
};

const RecipeFilter glassDistortion{
    {.name = "CIGlassDistortion",
        .displayName = "Glass Distortion",
        .category = kCICategoryDistortionEffect,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), automatic(image("inputTexture", "Texture"), Automatic::Texture), center(),
            distance("inputScale", "Scale",
                {.standard = 200, .min = 0, .sliderMin = 0.01, .sliderMax = 500, .identity = 0})},
        .tolerance = 2e-2f}, // a last bit at the texture's seam moves the place by a pixel's fraction
    [](const Values& in) {
        const CIImage source = in.image(), texture = in.image("inputTexture");
        if (texture.extent().isInfinite() || texture.extent().isEmpty())
            return source;
        const CIImage shared(sharedNode(texture.node()));
        const CIImage slope(sharedNode(general<TextureSlope>(in, {shared}, texture.extent()).node()));
        return guidedWarp<GlassDistortion>(in, slope, source, source.extent());
    }};

/// Moves each pixel by what the display values of the other picture differ from middle grey: red to the side, green
/// upwards. A grey picture moves along the diagonal; where there is none, nothing moves.
template <class V>
struct Displacement {
    explicit Displacement(const Inputs<V>& in)
        : scale(in.scalar("inputScale"))
    {
    }
    Point<V> operator()(const Sampler<V>& map, const Point<V>& here) const
    {
        const Pixel<V> p = unpremultiplied(map(here));
        const V amount = scale * saturate(p.a);
        return {here.x + amount * (saturate(displayFromLinear(p.r)) - 0.5f),
            here.y + amount * (saturate(displayFromLinear(p.g)) - 0.5f)};
    }
    V scale;
};

const RecipeFilter displacementDistortion{
    {.name = "CIDisplacementDistortion",
        .displayName = "Displacement Distortion",
        .category = kCICategoryDistortionEffect,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), fitted(image("inputDisplacementImage", "Displacement Image"), Meaning::SamePicture),
            distance(
                "inputScale", "Scale", {.standard = 50, .min = 0, .sliderMin = 0, .sliderMax = 200, .identity = 0})},
        .tolerance = 1e-3f}, // last bits of the map times the scale
    [](const Values& in) {
        const CIImage source = in.image();
        return guidedWarp<Displacement>(in, in.image("inputDisplacementImage"), source, source.extent());
    }};

} // namespace
} // namespace ci
