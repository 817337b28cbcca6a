// Distortions that work on the picture's frame: parts stretched or repeated, the picture within itself.
#include "platform/coreimage/kernel/SampleFilter.h"

namespace ci {
namespace {

/// Where nine parts begin and how far their middle ones grow, along one axis.
struct MiddlePart {
    double start, end, grown;
    MiddlePart(double a, double b, double grow)
        : start(std::min(a, b))
        , end(std::max({a, b, start + 1}))
        , grown(std::max(grow, start - end))
    {
    }
};

struct NineParts {
    explicit NineParts(const Values& in)
        : x(in.point("inputBreakpoint0").x, in.point("inputBreakpoint1").x, in.point("inputGrowAmount").x)
        , y(in.point("inputBreakpoint0").y, in.point("inputBreakpoint1").y, in.point("inputGrowAmount").y)
    {
    }
    CIRect extent(const CIRect& source) const
    {
        return source.isInfinite()
            ? source
            : CIRect{source.x, source.y, std::max(0.0, source.width + x.grown), std::max(0.0, source.height + y.grown)};
    }
    MiddlePart x, y;
};

/// Along one axis: parts outside stay as they are, the middle one is stretched.
template <class V>
struct StretchedMiddle {
    explicit StretchedMiddle(const MiddlePart& p)
        : start(float(p.start))
        , end(float(p.end + p.grown))
        , grown(float(p.grown))
        , perGrown(float((p.end - p.start) / std::max(p.end - p.start + p.grown, 1e-3)))
    {
    }
    V operator()(const V& v) const
    {
        return select(v < start, v, select(v < end, mulAdd(v - start, perGrown, start), v - grown));
    }
    V start, end, grown, perGrown;
};

template <class V>
struct NinePartStretched {
    explicit NinePartStretched(const Inputs<V>& in)
        : x(NineParts(in.values()).x)
        , y(NineParts(in.values()).y)
    {
    }
    Point<V> operator()(const Point<V>& here) const { return {x(here.x), y(here.y)}; }
    static CIRect extent(const Values& in) { return NineParts(in).extent(in.image().extent()); }
    StretchedMiddle<V> x, y;
};

std::vector<CIInputAttributes> ninePartInputs()
{
    return {image(), position("inputBreakpoint0", "Breakpoint0", {50, 50}),
        position("inputBreakpoint1", "Breakpoint1", {150, 150}),
        fitted(offset("inputGrowAmount", "Grow Amount", {100, 100}), Meaning::Length)};
}

/// Corners stay, edges grow along themselves, the middle both ways.
const WarpFilter<NinePartStretched> ninePartStretched{{.name = "CINinePartStretched",
    .displayName = "Nine Part Stretched",
    .category = kCICategoryDistortionEffect,
    .usage = Video | HighDynamicRange,
    .inputs = ninePartInputs()}};

/// Along one axis: the middle part repeats, every second time mirrored if so wanted.
template <class V>
struct RepeatedMiddle {
    RepeatedMiddle(const MiddlePart& p, bool mirrored)
        : start(float(p.start))
        , end(float(p.end + p.grown))
        , grown(float(p.grown))
        , length(float(p.end - p.start))
        , turn(mirrored ? 1.0f : 0.0f)
    {
    }
    V operator()(const V& v) const
    {
        const V tiles = (v - start) / length, part = tiles - floor(tiles);
        const V odd = turn * (floor(tiles) - 2.0f * floor(V(0.5f * floor(tiles))));
        return select(v < start, v, select(v < end, mulAdd(mix(part, V(1.0f - part), odd), length, start), v - grown));
    }
    V start, end, grown, length, turn;
};

template <class V>
struct NinePartTiled {
    explicit NinePartTiled(const Inputs<V>& in)
        : x(NineParts(in.values()).x, false)
        , y(NineParts(in.values()).y, in.values().flag("inputFlipYTiles"))
    {
    }
    Point<V> operator()(const Point<V>& here) const { return {x(here.x), y(here.y)}; }
    static CIRect extent(const Values& in) { return NineParts(in).extent(in.image().extent()); }
    RepeatedMiddle<V> x, y;
};

std::vector<CIInputAttributes> ninePartTiledInputs()
{
    std::vector<CIInputAttributes> inputs = ninePartInputs();
    inputs.push_back(
        number("inputFlipYTiles", "Flip Y Tiles", InputKind::Boolean, {.standard = 1, .min = 0, .max = 1}));
    return inputs;
}

const WarpFilter<NinePartTiled> ninePartTiled{{.name = "CINinePartTiled",
    .displayName = "Nine Part Tiled",
    .category = kCICategoryDistortionEffect,
    .usage = Video | HighDynamicRange,
    .inputs = ninePartTiledInputs()}};

/// Along one axis: a length of the source shown in a longer one, its middle stretched less than its ends. On -1 to 1,
/// u becomes k u / (1 + (k - 1) |u|), whose slope is k in the middle and 1 / k at the ends.
struct StretchedAxis {
    double target, from, visible, slope;
    /// `scale` is that of the other axis, which is not stretched.
    StretchedAxis(double target_, double start, double length, double visible_, double scale, double centerStretch)
        : target(target_)
        , from(start + (length - visible_) / 2)
        , visible(visible_)
        , slope(1)
    {
        const double stretch = target / (visible * scale);
        if (stretch > 1)
            slope = stretch / (1 + (stretch - 1) * centerStretch);
    }
};

/// The frame becomes inputSize. Of what does not fit its shape, inputCropAmount is cut off and the rest is stretched.
struct StretchCropFrame {
    explicit StretchCropFrame(const Values& in)
        : x(axis(in, true))
        , y(axis(in, false))
    {
    }
    StretchedAxis x, y;

private:
    static StretchedAxis axis(const Values& in, bool horizontal)
    {
        const CIRect source = in.image().extent();
        const CIPoint size{std::max(in.point("inputSize").x, 1.0), std::max(in.point("inputSize").y, 1.0)};
        const double scaleX = size.x / source.width, scaleY = size.y / source.height, most = std::max(scaleX, scaleY);
        const double crop = in.number("inputCropAmount"), stretch = in.number("inputCenterStretchAmount");
        const double width = source.width + crop * (size.x / most - source.width),
                     height = source.height + crop * (size.y / most - source.height);
        return horizontal ? StretchedAxis(size.x, source.x, source.width, width, size.y / height, stretch)
                          : StretchedAxis(size.y, source.y, source.height, height, size.x / width, stretch);
    }
};

template <class V>
struct StretchCrop {
    explicit StretchCrop(const Inputs<V>& in)
        : x(StretchCropFrame(in.values()).x)
        , y(StretchCropFrame(in.values()).y)
    {
    }
    Point<V> operator()(const Point<V>& here) const { return {x(here.x), y(here.y)}; }

    struct Axis {
        V perHalf, slope, middle, half;
        explicit Axis(const StretchedAxis& a)
            : perHalf(float(2 / a.target))
            , slope(float(a.slope))
            , middle(float(a.from + a.visible / 2))
            , half(float(a.visible / 2))
        {
        }
        V operator()(const V& v) const
        {
            const V u = mulAdd(v, perHalf, V(-1.0f));
            return mulAdd(slope * u / mulAdd(slope - 1.0f, abs(u), V(1.0f)), half, middle);
        }
    };
    Axis x, y;
};

const RecipeFilter stretchCrop{
    {.name = "CIStretchCrop",
        .displayName = "Stretch Crop",
        .category = kCICategoryDistortionEffect,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), fitted(position("inputSize", "Size", {1280, 720}), CIVector{360, 200}, Meaning::Length),
            scalar("inputCropAmount", "Crop Amount",
                {.standard = 0.25, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1}),
            scalar("inputCenterStretchAmount", "Center Stretch Amount",
                {.standard = 0.25, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1})}},
    [](const Values& in) {
        const CIImage source = in.image();
        if (source.extent().isInfinite() || source.extent().isEmpty())
            return source;
        const StretchCropFrame frame(in);
        return warp<StretchCrop>(in, source.clampedToExtent(), {0, 0, frame.x.target, frame.y.target},
            std::max(frame.x.target / frame.x.visible, frame.y.target / frame.y.visible));
    }};

/// A frame of the picture's shape around the inset, and the point about which one is a reduced copy of the other.
struct DrosteFrame {
    explicit DrosteFrame(const Values& in)
    {
        const CIRect outer = in.image().extent();
        const CIRect wanted = CIRect::fromCorners(in.point("inputInsetPoint0"), in.point("inputInsetPoint1"));
        const auto fit = [](double from, double length, double& inFrom, double& inLength) {
            inLength = std::clamp(inLength, std::min(1.0, 0.5 * length), 0.95 * length);
            inFrom = std::clamp(inFrom, from, from + length - inLength);
        };
        inset = wanted;
        fit(outer.x, outer.width, inset.x, inset.width);
        fit(outer.y, outer.height, inset.y, inset.height);
        ratio = std::max(inset.width / outer.width, inset.height / outer.height);
        const auto axis = [this](double from, double length, double inFrom, double inLength, double& frameFrom) {
            const double frameLength = inLength / ratio;
            frameFrom = from + (length - frameLength) * (inFrom - from) / (length - inLength);
            return (inFrom - ratio * frameFrom) / (1 - ratio);
        };
        center.x = axis(outer.x, outer.width, inset.x, inset.width, frame.x);
        center.y = axis(outer.y, outer.height, inset.y, inset.height, frame.y);
        frame.width = inset.width / ratio, frame.height = inset.height / ratio;
    }
    CIRect inset, frame;
    CIPoint center;
    double ratio; // below 1
};

/// The picture within itself without end. In logarithms of complex numbers about the center, one turn and one
/// reduction are steps of a lattice; multiplying by periodicity + i strands (reduction / turn) winds it up. After
/// B. de Smit, H. W. Lenstra: The mathematical structure of Escher's Print Gallery, 2003.
template <class V>
struct Droste {
    explicit Droste(const Inputs<V>& in)
        : periods(in.scalar("inputPeriodicity"))
        , rotation(in.scalar("inputRotation"))
    {
        const DrosteFrame f(in.values());
        const double reduction = -std::log(f.ratio), size = std::hypot(f.frame.width, f.frame.height) / 2;
        center = {V(float(f.center.x)), V(float(f.center.y))};
        step = V(float(reduction));
        strands = in.scalar("inputStrands") * V(float(reduction / (2 * M_PI)));
        logSize = V(float(std::log(size)));
        logZoom = logSize + log(in.scalar("inputZoom"));
        const auto side = [](double length) { return V(float(1 / std::max(length, 1e-3))); };
        perLeft = side(f.center.x - f.frame.left()), perRight = side(f.frame.right() - f.center.x);
        perBottom = side(f.center.y - f.frame.bottom()), perTop = side(f.frame.top() - f.center.y);
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> d = here - center;
        const V out = 0.5f * log(max(dot(d, d), V(1e-6f))) - logZoom, turn = atan2(d.y, d.x) + rotation;
        const V wound = wrap(V(periods * out - strands * turn), step), angle = periods * turn + strands * out;
        const V r = exp(V(wound + logSize));
        const Point<V> z{r * cos(angle), r * sin(angle)};
        // How far out, as a part of the frame: between 1 and the reduction is where the picture shows itself.
        const V part = max(max(z.x * perRight, -z.x * perLeft), max(z.y * perTop, -z.y * perBottom));
        const V level = exp(V(-step * ceil(V(log(max(part, V(1e-6f))) / step))));
        return center + z * level;
    }
    Point<V> center;
    V periods, rotation, step, strands, logSize, logZoom, perLeft, perRight, perBottom, perTop;
};

const RecipeFilter droste{
    {.name = "CIDroste",
        .displayName = "Droste",
        .category = kCICategoryDistortionEffect,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), fitted(position("inputInsetPoint0", "Inset Point 0", {200, 200}), CIVector{100, 100}),
            fitted(position("inputInsetPoint1", "Inset Point 1", {400, 400}), CIVector{200, 200}),
            scalar("inputStrands", "Strands", {.standard = 1, .min = -10, .max = 10, .sliderMin = -2, .sliderMax = 2}),
            scalar("inputPeriodicity", "Periodicity", {.standard = 1, .min = 1, .sliderMin = 1, .sliderMax = 5}),
            angle("inputRotation", "Rotation", {.standard = 0, .sliderMin = 0, .sliderMax = 2 * M_PI}),
            scalar("inputZoom", "Zoom", {.standard = 1, .min = 0.01, .sliderMin = 0.01, .sliderMax = 5})},
        .tolerance = 1e-2f}, // last bits of the logarithms, on either side of a frame
    [](const Values& in) {
        const CIImage source = in.image();
        if (source.extent().isInfinite() || source.extent().isEmpty())
            return source;
        return warp<Droste>(in, CIImage(sharedNode(source.node())), source.extent());
    }};

} // namespace
} // namespace ci
