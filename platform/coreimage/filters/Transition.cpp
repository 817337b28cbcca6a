// Transitions from an image to a target image as time runs from 0 to 1.
#include "platform/coreimage/filters/Transition.h"
#include "platform/coreimage/passes/Blur.h"

namespace ci {
namespace {

/// How much of the image is still there: where the mask is lighter than the time. Alpha holds the answer.
template <class V>
struct Remaining {
    static constexpr float kSoft = 0.02f; // of the mask's range, the width of the edge
    explicit Remaining(const Inputs<V>& in)
        : time(in.scalar("inputTime"))
    {
    }
    V of(const Pixel<V>& mask) const
    {
        // Widened, so that the first and the last moment show one picture alone.
        const V at = mulAdd(time, V(1.0f + kSoft), V(-0.5f * kSoft));
        return saturate(V((luma(mask) - at) * (1 / kSoft) + 0.5f));
    }
    Pixel<V> operator()(const Pixel<V>& mask) const { return {V(0.0f), V(0.0f), V(0.0f), of(mask)}; }
    V time;
};

template <class V>
struct Disintegrate {
    explicit Disintegrate(const Inputs<V>& in)
        : remaining(in)
        , density(in.scalar("inputShadowDensity"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& target, const Pixel<V>& mask, const Pixel<V>& shadow) const
    {
        const V light = 1.0f - density * shadow.a;
        const Pixel<V> shaded{target.r * light, target.g * light, target.b * light, target.a};
        return mix(shaded, p, remaining.of(mask));
    }
    Remaining<V> remaining;
    V density;
};

/// What remains casts a soft shadow (half its radius is the standard deviation) on the target.
const RecipeFilter disintegrateWithMaskTransition{
    {.name = "CIDisintegrateWithMaskTransition",
        .displayName = "Disintegrate With Mask",
        .category = kCICategoryTransition,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), targetImage(), automatic(image("inputMaskImage", "Mask Image"), Automatic::Mask),
            time("inputTime", "Time",
                {.standard = 0, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1, .identity = 0}),
            distance("inputShadowRadius", "Shadow Radius", {.standard = 8, .min = 0, .sliderMin = 0, .sliderMax = 50}),
            scalar("inputShadowDensity", "Shadow Density",
                {.standard = 0.65, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1, .identity = 0}),
            offset("inputShadowOffset", "Shadow Offset", {0, -10}, CIVector{0, 0})},
        .tolerance = 5e-3f}, // the mask's last bits times the steepness of the edge
    [](const Values& in) {
        const CIImage source = in.image(), target = in.image("inputTargetImage"), mask = in.image("inputMaskImage");
        const CIPoint offset = in.point("inputShadowOffset");
        const CIImage there = pointwise<Remaining>(in, {mask}, mask.extent());
        const CIImage shadow = gaussianBlur(there, in.number("inputShadowRadius") / 2)
                                   .transformed(CIAffineTransform::translation(offset.x, offset.y));
        return pointwise<Disintegrate>(in, {source, target, mask, shadow}, source.extent().united(target.extent()));
    }};

} // namespace
} // namespace ci
