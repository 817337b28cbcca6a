// Transitions that bend the pictures: an accordion, a ripple.
#include "platform/coreimage/filters/Transition.h"
#include "platform/coreimage/kernel/SampleFilter.h"

namespace ci {
namespace {

/// From the top: what both pictures have as it stands, the folds, and the bottom strip as it stands. The folds hold
/// the rows that one picture has more than the other, and open as time passes; both pictures are stretched to them.
struct Accordion {
    explicit Accordion(const Values& in)
        : source(bounded(in.image().extent()))
        , target(bounded(in.image("inputTargetImage").extent()))
    {
        const double time = in.number("inputTime"), least = std::min(source.height, target.height);
        bottom = std::min(in.number("inputBottomHeight"), least);
        upper = least - bottom;
        height = (1 - time) * source.height + time * target.height;
        floor = target.y + std::ceil(height) - height; // the top lies on whole pixels
        folds = height - upper - bottom;
        panels = 2 * std::floor(std::clamp(in.number("inputNumberOfFolds"), 1.0, 50.0));
        // A panel of the longer picture leans back until it looks as high as it does; seen from a diagonal's distance.
        const double panel = (std::max(source.height, target.height) - least) / panels, shown = folds / panels;
        const double depth = std::sqrt(std::max(0.0, panel * panel - shown * shown));
        const double away = std::hypot(target.width, target.height);
        farther = away > 0 ? away / (away + depth) : 1;
        shade = in.number("inputFoldShadowAmount") * (1 - time);
    }
    CIRect extent() const
    {
        const double width = std::max(source.width, target.width);
        return CIRect{target.center().x - width / 2, floor, width, height}.roundedOut();
    }
    /// The row of a picture that is seen at `y`.
    double row(double y, const CIRect& picture) const
    {
        const double up = y - floor;
        if (up < bottom)
            return picture.bottom() + up;
        if (up < bottom + folds)
            return picture.bottom() + bottom + (up - bottom) / folds * (picture.height - upper - bottom);
        return picture.top() - (height - up);
    }

    CIRect source, target;
    double bottom, upper, height, floor, folds; // px
    double panels, farther, shade;
};

template <class V>
struct AccordionFold {
    explicit AccordionFold(const Inputs<V>& in)
        : AccordionFold(Accordion(in.values()), in)
    {
    }
    Pixel<V> operator()(const Sampler<V>& source, const Sampler<V>& target, const Point<V>& here) const
    {
        const V up = here.y - floor;
        const V turn = clamp(V((bottom + folds - up) * perPanel), 0.0f, panels); // panels below the upper zone
        const V part = turn - ci::floor(turn), half = 0.5f * turn;
        const V odd = 2.0f * (half - ci::floor(half)); // 0 … 2: there and back
        const V lean = 1.0f - abs(V(odd - 1.0f));
        const auto inFolds = (up >= bottom) && (up < bottom + folds);
        const V scale = select(inFolds, mix(V(1.0f), farther, lean), V(1.0f));
        const V x = middle + (here.x - middle) / scale;
        const V light = select(inFolds, 1.0f - shade * (1.0f - part), V(1.0f));
        const auto row = [&](const V& low, const V& high, const V& stretched) {
            const V folded = max(V(low + bottom + (up - bottom) * stretched), V(low + bottom + 0.5f));
            return select(up < bottom, low + up, select(up < bottom + folds, folded, high - (height - up)));
        };
        const Pixel<V> p = source({x + sourceShift, row(sourceLow, sourceHigh, sourceStretch)});
        const Pixel<V> q = target({x, row(targetLow, targetHigh, targetStretch)});
        const Pixel<V> mean = mix(p, q, time);
        return {mean.r * light, mean.g * light, mean.b * light, mean.a};
    }
    static CIRect regionOfInterest(const Values& in, std::size_t image, const CIRect& wanted)
    {
        const Accordion fold(in);
        const CIRect picture = image == 0 ? fold.source : fold.target;
        const double shift = image == 0 ? fold.source.center().x - fold.target.center().x : 0;
        const double middle = fold.target.center().x;
        const auto outer = [&](double x) { return middle + (x - middle) / fold.farther; };
        return CIRect::fromCorners(
            {std::min(wanted.left(), outer(wanted.left())) + shift, fold.row(wanted.bottom(), picture)},
            {std::max(wanted.right(), outer(wanted.right())) + shift, fold.row(wanted.top(), picture)})
            .grown(1);
    }

private:
    AccordionFold(const Accordion& fold, const Inputs<V>& in)
        : time(in.scalar("inputTime"))
        , floor(float(fold.floor))
        , bottom(float(fold.bottom))
        , folds(float(fold.folds))
        , height(float(fold.height))
        , panels(float(fold.panels))
        , perPanel(float(fold.panels / std::max(fold.folds, 1e-3)))
        , farther(float(fold.farther))
        , shade(float(fold.shade))
        , middle(float(fold.target.center().x))
        , sourceShift(float(fold.source.center().x - fold.target.center().x))
        , sourceLow(float(fold.source.bottom()))
        , sourceHigh(float(fold.source.top()))
        , sourceStretch(stretch(fold, fold.source))
        , targetLow(float(fold.target.bottom()))
        , targetHigh(float(fold.target.top()))
        , targetStretch(stretch(fold, fold.target))
    {
    }
    static V stretch(const Accordion& fold, const CIRect& picture)
    {
        return V(float((picture.height - fold.upper - fold.bottom) / std::max(fold.folds, 1e-3)));
    }
    V time, floor, bottom, folds, height, panels, perPanel, farther, shade, middle;
    V sourceShift, sourceLow, sourceHigh, sourceStretch, targetLow, targetHigh, targetStretch;
};

const RecipeFilter accordionFoldTransition{
    {.name = "CIAccordionFoldTransition",
        .displayName = "Accordion Fold Transition",
        .category = kCICategoryTransition,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), targetImage(), distance("inputBottomHeight", "Bottom Height", {.standard = 0, .min = 0}),
            scalar("inputNumberOfFolds", "Number of Folds",
                {.standard = 3, .min = 1, .max = 50, .sliderMin = 1, .sliderMax = 10}),
            scalar("inputFoldShadowAmount", "Fold Shadow Amount",
                {.standard = 0.1, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1}),
            transitionTime()}},
    [](const Values& in) {
        return general<AccordionFold>(in, {in.image(), in.image("inputTargetImage")}, Accordion(in).extent());
    }};

/// A ring wave that runs from the center to beyond the extent's farthest corner and leaves the target behind. It bends
/// the pictures by up to inputScale, and the shading image lights its slopes: its middle what lies flat, its
/// sides what leans that way.
template <class V>
struct Ripple {
    explicit Ripple(const Inputs<V>& in)
        : center(in.point("inputCenter"))
        , width(max(in.scalar("inputWidth"), 1.0f))
        , scale(in.scalar("inputScale"))
    {
        const Values& values = in.values();
        const CIRect extent = bounded(values.rect("inputExtent"));
        const CIPoint c = values.point("inputCenter");
        const double farthest = std::hypot(std::max(std::abs(extent.left() - c.x), std::abs(extent.right() - c.x)),
            std::max(std::abs(extent.bottom() - c.y), std::abs(extent.top() - c.y)));
        const double wide = std::max(values.number("inputWidth"), 1.0);
        front = V(float(std::min(farthest, 1e6) + wide) * float(values.number("inputTime")));
        const CIRect light = values.image("inputShadingImage").extent();
        lit = light.isEmpty() || light.isInfinite() ? V(0.0f) : V(1.0f);
        lightCenter = {V(float(light.center().x)), V(float(light.center().y))};
        lightReach = {V(float(light.width / 2)), V(float(light.height / 2))};
        lean = clamp(V(scale / width * kPi), -1.0f, 1.0f);
    }
    Pixel<V> operator()(
        const Sampler<V>& source, const Sampler<V>& target, const Sampler<V>& shading, const Point<V>& here) const
    {
        const Point<V> d = here - center;
        const V away = length(d);
        const Point<V> outwards = d * V(1.0f / max(away, 1e-3f));
        const V passed = saturate(V((front - away) / width)); // 0 the wave is to come, 1 it is over
        const V slope = sin(V(kTwoPi * passed)), crest = 0.5f - 0.5f * cos(V(kTwoPi * passed));
        const Point<V> there = here + outwards * V(scale * slope);
        const Pixel<V> p = mix(source(there), target(there), smoothstep(V(0.0f), V(1.0f), passed));
        const Point<V> leaning = outwards * V(lean * slope);
        const Pixel<V> light =
            shading({lightCenter.x + leaning.x * lightReach.x, lightCenter.y + leaning.y * lightReach.y})
            * V(lit * crest * p.a);
        return p * V(1.0f - light.a) + light;
    }
    static CIRect regionOfInterest(const Values& in, std::size_t image, const CIRect& wanted)
    {
        if (image == 2 && !in.image("inputShadingImage").extent().isInfinite())
            return in.image("inputShadingImage").extent();
        return wanted.grown(std::abs(in.number("inputScale")) + 1);
    }
    Point<V> center, lightCenter, lightReach;
    V width, scale, front, lit, lean;
};

const RecipeFilter rippleTransition{
    {.name = "CIRippleTransition",
        .displayName = "Ripple",
        .category = kCICategoryTransition,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), targetImage(), automatic(image("inputShadingImage", "Shading Image"), Automatic::AlphaEMap),
            center(), transitionExtent(), transitionTime(),
            distance("inputWidth", "Width", {.standard = 100, .min = 1, .sliderMin = 10, .sliderMax = 300}),
            scalar(
                "inputScale", "Scale", {.standard = 50, .min = -50, .sliderMin = -50, .sliderMax = 50, .identity = 0})},
        .optional = {"inputShadingImage"}},
    [](const Values& in) {
        const CIImage shading = in.image("inputShadingImage");
        const CIImage light =
            shading && !shading.extent().isInfinite() ? CIImage(sharedNode(shading.node())) : CIImage();
        return general<Ripple>(in, {in.image(), in.image("inputTargetImage"), light}, bothExtents(in));
    }};

} // namespace
} // namespace ci
