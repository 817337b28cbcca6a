#include "platform/coreimage/passes/Rotation.h"

#include "platform/coreimage/kernel/SampleFilter.h"

namespace ci {

namespace {

constexpr double kReach = 2; // pixels to each side

const Declaration& motionDeclaration()
{
    static const Declaration d{.name = "turned", .displayName = {}, .category = {}, .inputs = {transform("inverse")}};
    return d;
}

/// The shares of four neighbors, the second of which lies `t` before the place.
template <class V>
struct CubicShares {
    explicit CubicShares(const V& t)
        : at{polynomial(t, -0.5f, 1.0f, -0.5f, 0.0f), polynomial(t, 1.5f, -2.5f, 0.0f, 1.0f),
            polynomial(t, -1.5f, 2.0f, 0.5f, 0.0f), polynomial(t, 0.5f, -0.5f, 0.0f, 0.0f)}
    {
    }
    V at[4];
};

template <class V>
struct CubicTurn {
    explicit CubicTurn(const Inputs<V>& in)
        : step(in.step())
    {
        const CIAffineTransform t = in.values().transform("inverse");
        a = V(float(t.a)), b = V(float(t.b)), c = V(float(t.c)), d = V(float(t.d)), tx = V(float(t.tx)),
        ty = V(float(t.ty));
    }
    Pixel<V> operator()(const Sampler<V>& image, const Point<V>& here) const
    {
        // In cells from the center of the lower left one.
        const V x = (a * here.x + c * here.y + tx) / step - 0.5f, y = (b * here.x + d * here.y + ty) / step - 0.5f;
        const V column = floor(x), line = floor(y);
        const CubicShares<V> across(x - column), up(y - line);
        Pixel<V> sum{V(0.0f), V(0.0f), V(0.0f), V(0.0f)};
        for (int j = 0; j < 4; ++j) {
            const V cellY = (line + float(j - 1) + 0.5f) * step;
            for (int i = 0; i < 4; ++i) {
                const Point<V> cell{(column + float(i - 1) + 0.5f) * step, cellY};
                sum = sum + image.nearest(cell) * V(across.at[i] * up.at[j]);
            }
        }
        // The shares' sum misses 1 by a rounding, and what is opaque stays it.
        sum.a = select(abs(sum.a - 1.0f) < V(1e-5f), V(1.0f), saturate(sum.a));
        return sum;
    }
    static CIRect regionOfInterest(const Values& values, std::size_t, const CIRect& wanted)
    {
        return values.transform("inverse").mapRect(wanted).grown(kReach);
    }
    V step, a, b, c, d, tx, ty;
};

} // namespace

CIImage turned(const CIImage& image, const CIAffineTransform& motion)
{
    const auto inverse = motion.inverted();
    if (!inverse || !image)
        return {};
    const Values values(motionDeclaration(), {{"inverse", *inverse}});
    return general<CubicTurn>(values, {image}, motion.mapRect(image.extent()).grown(kReach));
}

} // namespace ci
