// Light on surfaces that pictures describe.
#include "platform/coreimage/kernel/SampleFilter.h"

namespace ci {
namespace {

/// Takes the picture's lightness for heights, and each slope's light from the shading image, which shows a lit ball:
/// level ground takes its middle, steep slopes its rim.
template <class V>
struct ShadedMaterial {
    explicit ShadedMaterial(const Inputs<V>& in)
        : scale(in.scalar("inputScale"))
        , apart(max(in.step(), 1.0f))
    {
        const CIRect ball = in.values().image("inputShadingImage").extent();
        middle = {V(float(ball.center().x)), V(float(ball.center().y))};
        across = V(float(std::max(0.0, ball.width / 2 - 1))), along = V(float(std::max(0.0, ball.height / 2 - 1)));
    }
    Pixel<V> operator()(const Sampler<V>& image, const Sampler<V>& ball, const Point<V>& here) const
    {
        const auto height = [&](const V& dx, const V& dy) { return luma(image({here.x + dx, here.y + dy})); };
        const V none(0.0f), steep = scale / (2.0f * apart);
        const V dx = steep * (height(-apart, none) - height(apart, none));
        const V dy = steep * (height(none, -apart) - height(none, apart));
        const V flat = 1.0f / sqrt(V(1.0f + mulAdd(dx, dx, dy * dy)));
        return ball({mulAdd(V(dx * flat), across, middle.x), mulAdd(V(dy * flat), along, middle.y)}) * image(here).a;
    }
    static CIRect regionOfInterest(const Values& in, std::size_t image, const CIRect& wanted)
    {
        return image == 0 ? wanted.grown(std::max(1.0, farthest(wanted))) : in.image("inputShadingImage").extent();
    }
    /// A step is a pixel or a cell of the render; that is no wider than what is wanted.
    static double farthest(const CIRect& wanted) { return std::min(wanted.width, wanted.height) + 1; }
    V scale, apart, across, along;
    Point<V> middle;
};

const RecipeFilter shadedMaterial{
    {.name = "CIShadedMaterial",
        .displayName = "Shaded Material",
        .category = kCICategoryStylize,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), image("inputShadingImage", "Shading Image"),
            distance("inputScale", "Scale", {.standard = 10, .min = 0, .sliderMin = 0.5, .sliderMax = 200})},
        .tolerance = 1e-3f},
    [](const Values& in) {
        const CIImage source = in.image(), ball = in.image("inputShadingImage");
        if (ball.extent().isInfinite() || ball.extent().isEmpty())
            return source;
        return general<ShadedMaterial>(
            in, {source.clampedToExtent(), CIImage(sharedNode(ball.node()))}, source.extent());
    }};

} // namespace
} // namespace ci
