// Compositing: Porter and Duff's operations, and arithmetic on premultiplied pixels.
#include "platform/coreimage/filters/Blend.h"

namespace ci {
namespace {

CIRect imageExtent(const Values& in) { return in.image().extent(); }
CIRect backgroundExtent(const Values& in) { return in.image("inputBackgroundImage").extent(); }
CIRect commonExtent(const Values& in) { return imageExtent(in).intersected(backgroundExtent(in)); }

const RecipeFilter sourceOverCompositing{compositing("CISourceOverCompositing", "Source Over", Anything),
    [](const Values& in) { return in.image().compositedOver(in.image("inputBackgroundImage")); }};

/// The image where the background is.
template <class V>
struct SourceIn {
    explicit SourceIn(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& under) const { return p * under.a; }
    static CIRect extent(const Values& in) { return commonExtent(in); }
};

/// The image where the background is not.
template <class V>
struct SourceOut {
    explicit SourceOut(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& under) const { return p * V(1.0f - under.a); }
    static CIRect extent(const Values& in) { return imageExtent(in); }
};

/// The image over the background, but only where the background is.
template <class V>
struct SourceAtop {
    explicit SourceAtop(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& under) const
    {
        const Pixel<V> sum = p * under.a + under * V(1.0f - p.a);
        return {sum.r, sum.g, sum.b, under.a};
    }
    static CIRect extent(const Values& in) { return backgroundExtent(in); }
};

/// Light on light; alpha can't exceed 1.
template <class V>
struct Addition {
    explicit Addition(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& under) const
    {
        const Pixel<V> sum = p + under;
        return {sum.r, sum.g, sum.b, min(sum.a, 1.0f)};
    }
};

template <class V>
struct MultiplyAll {
    explicit MultiplyAll(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& under) const
    {
        return {p.r * under.r, p.g * under.g, p.b * under.b, p.a * under.a};
    }
    static CIRect extent(const Values& in) { return commonExtent(in); }
};

template <class V>
struct Maximum {
    explicit Maximum(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& under) const
    {
        return {max(p.r, under.r), max(p.g, under.g), max(p.b, under.b), max(p.a, under.a)};
    }
};

template <class V>
struct Minimum {
    explicit Minimum(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& under) const
    {
        return {min(p.r, under.r), min(p.g, under.g), min(p.b, under.b), min(p.a, under.a)};
    }
    static CIRect extent(const Values& in) { return commonExtent(in); }
};

const BlendFilter<SourceIn> sourceIn{compositing("CISourceInCompositing", "Source In", Anything)};
const BlendFilter<SourceOut> sourceOut{compositing("CISourceOutCompositing", "Source Out", Anything)};
const BlendFilter<SourceAtop> sourceAtop{compositing("CISourceAtopCompositing", "Source Atop", Anything)};
const BlendFilter<Addition> addition{compositing("CIAdditionCompositing", "Addition", Anything)};
const BlendFilter<MultiplyAll> multiply{compositing("CIMultiplyCompositing", "Multiply", Anything)};
const BlendFilter<Maximum> maximum{compositing("CIMaximumCompositing", "Maximum", Anything)};
const BlendFilter<Minimum> minimum{compositing("CIMinimumCompositing", "Minimum", Anything)};

} // namespace
} // namespace ci
