// Small pictures enlarged along the edges of a larger one.
#include "platform/coreimage/graph/Once.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/passes/Blur.h"
#include "platform/coreimage/passes/Resample.h"

namespace ci {
namespace {

template <class V>
struct Grey {
    explicit Grey(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p) const { return {luma(p), luma(p), luma(p), p.a}; }
};

template <class V>
Pixel<V> times(const Pixel<V>& p, const Pixel<V>& q)
{
    return {p.r * q.r, p.g * q.g, p.b * q.b, p.a * q.a};
}

template <class V>
struct Product {
    explicit Product(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& q) const { return times(p, q); }
};

/// By how much the picture rises where the guide rises by one: covariance over variance. Of the means of guide,
/// picture, their product and the guide's square.
template <class V>
struct Slope {
    explicit Slope(const Inputs<V>& in)
        : epsilon(max(in.scalar("epsilon"), 1e-7f))
    {
    }
    Pixel<V> operator()(const Pixel<V>& g, const Pixel<V>& p, const Pixel<V>& gp, const Pixel<V>& gg) const
    {
        const auto slope = [this](const V& guide, const V& picture, const V& product, const V& square) {
            return (product - guide * picture) / (max(V(square - guide * guide), 0.0f) + epsilon);
        };
        return {slope(g.r, p.r, gp.r, gg.r), slope(g.g, p.g, gp.g, gg.g), slope(g.b, p.b, gp.b, gg.b),
            slope(g.a, p.a, gp.a, gg.a)};
    }
    V epsilon;
};

template <class V>
struct Offset {
    explicit Offset(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& slope, const Pixel<V>& g, const Pixel<V>& p) const
    {
        return p - times(slope, g);
    }
};

template <class V>
struct Line {
    explicit Line(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& guide, const Pixel<V>& slope, const Pixel<V>& offset) const
    {
        const Pixel<V> p = times(slope, guide) + offset;
        return {p.r, p.g, p.b, saturate(p.a)};
    }
};

CIImage once(const CIImage& image) { return CIImage(onceNode(image.node())); }

/// Around each pixel of the small picture, the line that makes it out of the guide at its size; these lines, enlarged,
/// are then applied to the guide. K. He, J. Sun, X. Tang: Guided Image Filtering, 2010; K. He, J. Sun: Fast Guided
/// Filter, 2015.
CIImage guidedEnlarged(const Values& inputs, const CIImage& small, const CIImage& guide, double epsilon,
    const std::function<CIImage(const CIImage&)>& mean)
{
    const CIRect from = small.extent(), to = guide.extent();
    if (from.isInfinite() || from.isEmpty() || to.isInfinite() || to.isEmpty())
        return small;
    const Values in = inputs.with("epsilon", epsilon);
    const CIImage reduced =
        resampled(guide, std::max(1, int(std::lround(from.width))), std::max(1, int(std::lround(from.height))))
            .transformed(CIAffineTransform::translation(from.x, from.y));
    const CIImage g = once(reduced), meanGuide = once(mean(g)), meanSmall = once(mean(small));
    const CIImage meanProduct = mean(pointwise<Product>(in, {g, small}, from)),
                  meanSquare = mean(pointwise<Product>(in, {g, g}, from));
    const CIImage slope = once(pointwise<Slope>(in, {meanGuide, meanSmall, meanProduct, meanSquare}, from));
    const CIImage offset = pointwise<Offset>(in, {slope, meanGuide, meanSmall}, from);
    const auto enlarge = CIAffineTransform::translation(-from.x, -from.y)
                             .then(CIAffineTransform::scaling(to.width / from.width, to.height / from.height))
                             .then(CIAffineTransform::translation(to.x, to.y));
    return pointwise<Line>(in, {guide, mean(slope).transformed(enlarge), mean(offset).transformed(enlarge)}, to);
}

const RecipeFilter guidedFilter{
    {.name = "CIGuidedFilter",
        .displayName = "Guided Filter",
        .category = kCICategoryGeometryAdjustment,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), fitted(image("inputGuideImage", "A larger image to use as a guide."), Meaning::SamePicture),
            fitted(
                scalar("inputRadius", "Radius", {.standard = 1, .sliderMin = 1, .sliderMax = 10}), 3, Meaning::Length),
            fitted(
                scalar("inputEpsilon", "Epsilon", {.standard = 0.0001, .sliderMin = 1e-09, .sliderMax = 0.1}), 0.02)},
        .tolerance = 2e-2f}, // differences of nearly equal means, divided by a small variance
    [](const Values& in) {
        const double width = 2 * std::clamp(std::round(in.number("inputRadius")), 0.0, 1e3) + 1;
        return guidedEnlarged(in, in.image(), in.image("inputGuideImage"), in.number("inputEpsilon"),
            [width](const CIImage& image) { return boxBlur(image.clampedToExtent(), width, width); });
    }};

const RecipeFilter edgePreserveUpsampleFilter{
    {.name = "CIEdgePreserveUpsampleFilter",
        .displayName = "Edge Preserve Upsample Filter",
        .category = kCICategoryGeometryAdjustment,
        .usage = Anything,
        .inputs = {image(), fitted(image("inputSmallImage", "Small Image"), Meaning::SmallPicture),
            scalar("inputSpatialSigma", "Spatial Sigma",
                {.standard = 3, .min = 0, .max = 5, .sliderMin = 0, .sliderMax = 5}),
            scalar("inputLumaSigma", "Luma Sigma",
                {.standard = 0.15, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1})},
        .tolerance = 2e-2f}, // as above
    [](const Values& in) {
        const CIImage guide = pointwise<Grey>(in, {in.image()}, in.image().extent());
        const double sigma = in.number("inputLumaSigma"), spatial = in.number("inputSpatialSigma");
        return guidedEnlarged(in, in.image("inputSmallImage"), guide, sigma * sigma,
            [spatial](const CIImage& image) { return gaussianBlur(image.clampedToExtent(), spatial); });
    }};

} // namespace
} // namespace ci
