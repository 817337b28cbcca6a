// Tone by curves through points.
#include "platform/coreimage/filters/Spline.h"
#include "platform/coreimage/kernel/DisplayValues.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/kernel/Table.h"

namespace ci {
namespace {

/// A curve for all three components, in display values.
template <class V>
struct ToneCurve {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit ToneCurve(const Inputs<V>& in)
        : curve(tableOf(in.values(), "curve"), in.values().flag("inputExtrapolate"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const Pixel<V> at = displayFromLinear(p);
        return {curve(at.r), curve(at.g), curve(at.b), p.a};
    }
    Curve<V> curve;
};

CIInputAttributes tonePoint(std::string key, std::string displayName, const CIVector& onDiagonal)
{
    return meant(Role::TonePoint, offset(std::move(key), std::move(displayName), onDiagonal, onDiagonal));
}

const RecipeFilter toneCurve{{.name = "CIToneCurve",
                                 .displayName = "Tone Curve",
                                 .category = kCICategoryColorAdjustment,
                                 .usage = Anything,
                                 .inputs = {image(), tonePoint("inputPoint0", "Point 0", {0, 0}),
                                     fitted(tonePoint("inputPoint1", "Point 1", {0.25, 0.25}), CIVector{0.25, 0.15}),
                                     tonePoint("inputPoint2", "Point 2", {0.5, 0.5}),
                                     fitted(tonePoint("inputPoint3", "Point 3", {0.75, 0.75}), CIVector{0.75, 0.87}),
                                     tonePoint("inputPoint4", "Point 4", {1, 1}),
                                     number("inputExtrapolate", "Extrapolate", InputKind::Boolean, {.standard = 0})}},
    [](const Values& in) {
        std::vector<CIPoint> points;
        for (const char* key : {"inputPoint0", "inputPoint1", "inputPoint2", "inputPoint3", "inputPoint4"})
            points.push_back(in.point(key));
        const CIImage source = in.image();
        const auto onDiagonal = [](const CIPoint& p) { return p.x == p.y; };
        if (std::ranges::all_of(points, onDiagonal) && points.front().x <= 0 && points.back().x >= 1)
            return source;
        return pointwise<ToneCurve>(
            in.with("curve", tableData(linearTable(Spline(points)))), {source}, source.extent());
    }};

} // namespace
} // namespace ci
