// Light on surfaces that pictures describe.
#include "platform/coreimage/kernel/SampleFilter.h"
#include "platform/coreimage/kernel/StencilFilter.h"

namespace ci {
namespace {

/// The slopes of the picture's light, taken for heights: downhill to the right in red, downhill upwards in green.
template <class V>
struct Downhill {
    static constexpr int reach = 1;
    explicit Downhill(const Inputs<V>& in)
        : half(0.5f * in.scalar("inputScale"))
    {
    }
    template <class Near>
    Pixel<V> operator()(const Near& near) const
    {
        const auto height = [&](int dx, int dy) { return luma(near(dx, dy)); };
        return {half * (height(-1, 0) - height(1, 0)), half * (height(0, -1) - height(0, 1)), V(0.0f), near(0, 0).a};
    }
    V half;
};

/// Each slope's light from the shading image, which shows a lit ball: level ground takes its middle, steep slopes its
/// rim.
template <class V>
struct ShadedMaterial {
    explicit ShadedMaterial(const Inputs<V>& in)
    {
        const CIRect ball = in.values().image("inputShadingImage").extent();
        middle = {V(float(ball.center().x)), V(float(ball.center().y))};
        across = V(float(std::max(0.0, ball.width / 2 - 1))), along = V(float(std::max(0.0, ball.height / 2 - 1)));
    }
    Pixel<V> operator()(const Sampler<V>& slopes, const Sampler<V>& ball, const Point<V>& here) const
    {
        const Pixel<V> s = slopes.nearest(here);
        const V flat = 1.0f / sqrt(V(1.0f + mulAdd(s.r, s.r, s.g * s.g)));
        return ball({mulAdd(V(s.r * flat), across, middle.x), mulAdd(V(s.g * flat), along, middle.y)}) * s.a;
    }
    static CIRect regionOfInterest(const Values& in, std::size_t image, const CIRect& wanted)
    {
        return image == 0 ? wanted : in.image("inputShadingImage").extent();
    }
    V across, along;
    Point<V> middle;
};

const RecipeFilter shadedMaterial{
    {.name = "CIShadedMaterial",
        .displayName = "Shaded Material",
        .category = kCICategoryStylize,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), automatic(image("inputShadingImage", "Shading Image"), Automatic::ShadingEMap),
            distance("inputScale", "Scale", {.standard = 10, .min = 0, .sliderMin = 0.5, .sliderMax = 200})},
        .tolerance = 1e-3f},
    [](const Values& in) {
        const CIImage source = in.image(), ball = in.image("inputShadingImage");
        if (ball.extent().isInfinite() || ball.extent().isEmpty())
            return source;
        return general<ShadedMaterial>(
            in, {stencilWithin<Downhill>(in, source), CIImage(sharedNode(ball.node()))}, source.extent());
    }};

} // namespace
} // namespace ci
