// Stripes and checks, without end in all directions.
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

/// Bands of one width that take turns: 1 within a band, -1 within the next, and the mean of both over the width of
/// the edge between. An edge is never narrower than a cell, which keeps it free of steps.
template <class V>
struct Bands {
    explicit Bands(const Inputs<V>& in)
        : width(max(abs(in.scalar("inputWidth")), 1e-3f))
        , perEdge(2.0f / max(V((1.0f - in.scalar("inputSharpness")) * width), in.step()))
    {
    }
    V operator()(const V& across) const
    {
        const V inside = 0.5f * width - abs(V(wrap(V(across + 0.5f * width), V(2.0f * width)) - width));
        return clamp(V(inside * perEdge), -1.0f, 1.0f);
    }
    V width, perEdge; // px, per px
};

template <class V>
struct Checkerboard {
    explicit Checkerboard(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , bands(in)
        , color0(in.color("inputColor0"))
        , color1(in.color("inputColor1"))
    {
    }
    Pixel<V> operator()(const Point<V>& here) const
    {
        const V same = bands(here.x - center.x) * bands(here.y - center.y);
        return mix(color1, color0, V(0.5f + 0.5f * same));
    }
    Point<V> center;
    Bands<V> bands;
    Pixel<V> color0, color1;
};

/// Unlike the checks, they begin with the second color (measured).
template <class V>
struct Stripes {
    explicit Stripes(const Inputs<V>& in)
        : left(in.point("inputCenter").x)
        , bands(in)
        , color0(in.color("inputColor0"))
        , color1(in.color("inputColor1"))
    {
    }
    Pixel<V> operator()(const Point<V>& here) const
    {
        return mix(color0, color1, V(0.5f + 0.5f * bands(here.x - left)));
    }
    V left;
    Bands<V> bands;
    Pixel<V> color0, color1;
};

Declaration pattern(std::string name, std::string displayName)
{
    return {.name = std::move(name),
        .displayName = std::move(displayName),
        .category = kCICategoryGenerator,
        .usage = Video | HighDynamicRange,
        .inputs = {center(), automatic(color("inputColor0", "Color 1", CIColor{1, 1, 1, 1}), CIColor{1, 1, 1, 0.5}),
            automatic(color("inputColor1", "Color 2", CIColor{0, 0, 0, 1}), CIColor{0, 0, 0, 0.5}),
            distance("inputWidth", "Width", {.standard = 80, .sliderMin = 0, .sliderMax = 800}),
            scalar(
                "inputSharpness", "Sharpness", {.standard = 1, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1})}};
}

const GeneratorFilter<Checkerboard> checkerboardGenerator{pattern("CICheckerboardGenerator", "Checkerboard")};
const GeneratorFilter<Stripes> stripesGenerator{pattern("CIStripesGenerator", "Stripes")};

} // namespace
} // namespace ci
