#include "platform/coreimage/graph/Affine.h"

#include "platform/coreimage/kernel/SampleFilter.h"

namespace ci {

namespace {

const Declaration& inverseDeclaration()
{
    static const Declaration d{.name = "inverse", .displayName = {}, .category = {}, .inputs = {transform("inverse")}};
    return d;
}

template <class V>
struct AffineWarp {
    explicit AffineWarp(const Inputs<V>& in)
    {
        const CIAffineTransform t = in.values().transform("inverse");
        a = V(float(t.a)), b = V(float(t.b)), c = V(float(t.c)), d = V(float(t.d)), tx = V(float(t.tx)),
        ty = V(float(t.ty));
    }
    Point<V> operator()(const Point<V>& p) const { return {a * p.x + c * p.y + tx, b * p.x + d * p.y + ty}; }
    V a, b, c, d, tx, ty;
};

template <class V>
struct Over {
    explicit Over(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& under) const { return p + under * V(V(1.0f) - p.a); }
};

const Declaration& nothingDeclared()
{
    static const Declaration d;
    return d;
}

} // namespace

CIImage affine(const CIImage& image, const CIAffineTransform& t)
{
    const auto inverse = t.inverted();
    if (!inverse)
        return {};
    const Values values(inverseDeclaration(), {{"inverse", *inverse}});
    const double magnification = std::max(std::hypot(t.a, t.b), std::hypot(t.c, t.d));
    return warp<AffineWarp>(values, image, t.mapRect(image.extent()), magnification);
}

CIImage sourceOver(const CIImage& image, const CIImage& background)
{
    return pointwise<Over>(
        Values(nothingDeclared(), {}), {image, background}, image.extent().united(background.extent()));
}

} // namespace ci
