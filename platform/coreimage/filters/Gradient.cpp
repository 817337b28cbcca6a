// Gradients: colors from the place alone. They blend premultiplied colors in linear light.
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

/// From the first color at and before point 0 to the second at and beyond point 1.
template <class V>
struct LinearGradient {
    explicit LinearGradient(const Inputs<V>& in)
        : start(in.point("inputPoint0"))
        , color0(in.color("inputColor0"))
        , color1(in.color("inputColor1"))
    {
        const Point<V> d = in.point("inputPoint1") - start;
        along = d * V(1.0f / max(dot(d, d), 1e-6f));
    }
    Pixel<V> operator()(const Point<V>& here) const { return mix(color0, color1, saturate(dot(here - start, along))); }
    Point<V> start, along;
    Pixel<V> color0, color1;
};

const GeneratorFilter<LinearGradient> linearGradient{{.name = "CILinearGradient",
    .displayName = "Linear Gradient",
    .category = kCICategoryGradient,
    .usage = Video | HighDynamicRange,
    .inputs = {position("inputPoint0", "Point 0", {0, 0}), position("inputPoint1", "Point 1", {200, 200}),
        color("inputColor0", "Color 1", CIColor{1, 1, 1, 1}), color("inputColor1", "Color 2", CIColor{0, 0, 0, 1})}}};

} // namespace
} // namespace ci
