// Transitions that turn a page: it rolls off the target over a cylinder that travels along the angle.
#include "platform/coreimage/filters/Transition.h"
#include "platform/coreimage/kernel/SampleFilter.h"
#include "platform/coreimage/passes/Blur.h"

namespace ci {
namespace {

/// Where the page leaves the ground. It lies flat beyond that line, runs up the near side of the cylinder and back over
/// its top, and then lies upside down on itself. Seen from above, the cylinder starts one radius before the line.
struct Roll {
    explicit Roll(const Values& in)
        : angle(in.number("inputAngle"))
        , radius(std::max(in.number("inputRadius"), 0.01))
    {
        CIRect extent = in.rect("inputExtent");
        if (extent.isEmpty())
            extent = in.image().extent();
        const Span span(bounded(extent), angle);
        line = span.low + in.number("inputTime") * (span.length() + radius);
        left = std::clamp((span.high + radius - line) / radius, 0.0, 1.0);
    }
    /// Where a corner of the page has gone to.
    CIPoint turned(CIPoint page) const
    {
        const double c = std::cos(angle), s = std::sin(angle);
        const double rolled = line - (page.x * c + page.y * s); // px of page off the ground before this point
        if (rolled <= 0)
            return page;
        const double ahead =
            rolled < M_PI * radius ? rolled - radius * std::sin(rolled / radius) : 2 * rolled - M_PI * radius;
        return {page.x + ahead * c, page.y + ahead * s};
    }
    /// A page's place before and after. It moves the farther the more of it has rolled off, so the corners bound it.
    CIRect extentOf(const CIRect& page) const
    {
        if (page.isInfinite())
            return page;
        CIRect all = page;
        for (const CIPoint corner : {CIPoint{page.left(), page.bottom()}, CIPoint{page.right(), page.bottom()},
                 CIPoint{page.left(), page.top()}, CIPoint{page.right(), page.top()}}) {
            const CIPoint p = turned(corner);
            all = all.united(CIRect::fromCorners({p.x - 0.5, p.y - 0.5}, {p.x + 0.5, p.y + 0.5}));
        }
        return all.roundedOut();
    }
    double angle, radius, line; // px
    double left; // 1 until the line leaves the extent, 0 when the roll has left it too
};

/// The roll as kernels see it: places along the angle, counted from the line.
template <class V>
struct OnRoll {
    explicit OnRoll(const Inputs<V>& in)
        : direction{cos(in.scalar("inputAngle")), sin(in.scalar("inputAngle"))}
    {
        const Roll roll(in.values());
        line = V(float(roll.line)), radius = V(float(roll.radius));
    }
    V before(const Point<V>& here) const { return line - dot(here, direction); }
    /// The angle up to which the lower half of the cylinder carries what lies `before` the line.
    V lowerAngle(const V& before) const { return asin(clamp(V(before / radius), 0.0f, 1.0f)); }
    Point<V> moved(const Point<V>& here, const V& along) const { return here + direction * along; }
    Point<V> direction;
    V line, radius; // px
};

/// What of the page still shows its front: flat ground, and the inside of the curl.
template <class V>
struct PageFront : OnRoll<V> {
    using OnRoll<V>::OnRoll;
    Point<V> operator()(const Point<V>& here) const
    {
        const V before = this->before(here);
        const V rolled = this->radius * this->lowerAngle(before);
        return this->moved(here, select(before > V(0.0f), before - rolled, V(0.0f)));
    }
};

/// What shows its back: the outside of the curl and the turned sheet.
template <class V>
struct PageBack : OnRoll<V> {
    using OnRoll<V>::OnRoll;
    Point<V> operator()(const Point<V>& here) const
    {
        const V before = this->before(here);
        const V onTop = kPi * this->radius - before;
        const V onCurl = this->radius * (kPi - this->lowerAngle(before));
        return this->moved(here, before - select(before > V(0.0f), onCurl, onTop));
    }
};

/// The shading image as light from all sides: its middle lights what lies flat, its rim what stands upright.
template <class V>
struct PageLight : OnRoll<V> {
    explicit PageLight(const Inputs<V>& in)
        : OnRoll<V>(in)
    {
        const CIRect light = in.values().image("inputShadingImage").extent();
        middle = {V(float(light.center().x)), V(float(light.center().y))};
        reach = {V(float(std::max(light.width / 2 - 1, 0.0))), V(float(std::max(light.height / 2 - 1, 0.0)))};
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const V lean = -clamp(V(this->before(here) / this->radius), 0.0f, 1.0f);
        return {middle.x + this->direction.x * lean * reach.x, middle.y + this->direction.y * lean * reach.y};
    }
    Point<V> middle, reach;
};

/// 1 where the roll is or has not been yet, 0 where it has passed.
template <class V>
struct NotPassed : OnRoll<V> {
    explicit NotPassed(const Inputs<V>& in)
        : OnRoll<V>(in)
        , cell(in.step())
    {
    }
    V operator()(const Point<V>& here) const { return saturate(V((this->radius - this->before(here)) / cell + 0.5f)); }
    V cell;
};

template <class V>
struct Kept {
    explicit Kept(const Inputs<V>& in)
        : notPassed(in)
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Point<V>& here) const { return p * notPassed(here); }
    NotPassed<V> notPassed;
};

/// The back of the page with the light on it.
template <class V>
struct LitBack {
    explicit LitBack(const Inputs<V>& in)
        : notPassed(in)
    {
    }
    Pixel<V> operator()(const Pixel<V>& back, const Pixel<V>& light, const Point<V>& here) const
    {
        const Pixel<V> lit = back * V(1.0f - light.a) + light * back.a;
        return lit * notPassed(here);
    }
    NotPassed<V> notPassed;
};

/// The back of the page as it looks without a shading image: the curl darkens towards where it stands upright, with a
/// gloss before its top.
template <class V>
struct PlainBack {
    explicit PlainBack(const Inputs<V>& in)
        : notPassed(in)
    {
    }
    Pixel<V> operator()(const Pixel<V>& back, const Point<V>& here) const
    {
        const V upright = clamp(V(notPassed.before(here) / notPassed.radius), 0.0f, 1.0f);
        const V fromGloss = (upright - 0.35f) * 4.0f;
        const V light = 1.0f - 0.6f * upright * upright;
        const V gloss = 0.25f * max(V(1.0f - fromGloss * fromGloss), 0.0f) * back.a;
        const Pixel<V> lit{
            mulAdd(back.r, light, gloss), mulAdd(back.g, light, gloss), mulAdd(back.b, light, gloss), back.a};
        return lit * notPassed(here);
    }
    NotPassed<V> notPassed;
};

/// Black, as dense as the sheet above it.
template <class V>
struct Shadow {
    explicit Shadow(const Inputs<V>& in)
        : amount(in.scalar("inputShadowAmount") * float(Roll(in.values()).left))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const { return {V(0.0f), V(0.0f), V(0.0f), p.a * amount}; }
    V amount;
};

CIImage front(const Values& in, const Roll& roll)
{
    const CIImage page = in.image();
    const CIRect extent = roll.extentOf(page.extent());
    return pointwise<Kept>(in, {warp<PageFront>(in, page, extent)}, extent);
}

/// The sheet from its back; without a picture for that it is thin enough to show the front's.
CIImage back(const Values& in, const Roll& roll)
{
    const CIImage given = in.image("inputBacksideImage"), page = given ? given : in.image();
    const CIRect extent = roll.extentOf(page.extent());
    const CIImage turned = warp<PageBack>(in, page, extent);
    const CIInputAttributes* shading = in.declaration().input("inputShadingImage");
    const CIImage light = shading ? in.image("inputShadingImage") : CIImage();
    if (!light || light.extent().isInfinite() || light.extent().isEmpty())
        return pointwise<PlainBack>(in, {turned}, extent);
    const CIImage lit = warp<PageLight>(in, CIImage(sharedNode(light.node())), CIRect::infinite());
    return pointwise<LitBack>(in, {turned, lit}, extent);
}

CIInputAttributes turnAngle()
{
    return angle("inputAngle", "Angle", {.standard = 0, .sliderMin = -M_PI, .sliderMax = M_PI, .identity = 0});
}
CIInputAttributes rollRadius()
{
    return distance("inputRadius", "Radius", {.standard = 100, .min = 0.01, .sliderMin = 0.01, .sliderMax = 400});
}

const RecipeFilter pageCurlTransition{
    {.name = "CIPageCurlTransition",
        .displayName = "Page Curl",
        .category = kCICategoryTransition,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), targetImage(), image("inputBacksideImage", "Backside Image"),
            automatic(image("inputShadingImage", "Shading Image"), Automatic::AlphaEMap), transitionExtent(),
            transitionTime(), automatic(turnAngle(), -0.7853982f), rollRadius()},
        .optional = {"inputBacksideImage", "inputShadingImage"},
        .tolerance = 2e-3f}, // the arc is steep where the page stands upright
    [](const Values& in) {
        const Roll roll(in);
        return back(in, roll).compositedOver(front(in, roll)).compositedOver(in.image("inputTargetImage"));
    }};

/// The turned sheet also throws a shadow on what lies below, as soft as its size says in radii.
const RecipeFilter pageCurlWithShadowTransition{
    {.name = "CIPageCurlWithShadowTransition",
        .displayName = "Page Curl With Shadow",
        .category = kCICategoryTransition,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), targetImage(), image("inputBacksideImage", "Backside Image"),
            transitionExtent({0, 0, 0, 0}), transitionTime(), turnAngle(), rollRadius(),
            distance("inputShadowSize", "Shadow Size",
                {.standard = 0.5, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1}),
            distance("inputShadowAmount", "Shadow Amount",
                {.standard = 0.7, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1}),
            rectangle("inputShadowExtent", "Shadow Extent", {0, 0, 0, 0})},
        .optional = {"inputBacksideImage"},
        .tolerance = 2e-3f}, // the arc is steep where the page stands upright
    [](const Values& in) {
        const Roll roll(in);
        const CIImage sheet = back(in, roll), target = in.image("inputTargetImage");
        const CIImage below = front(in, roll).compositedOver(target);
        const CIRect limits = in.rect("inputShadowExtent");
        const CIImage shadow = pointwise<Shadow>(in, {sheet}, sheet.extent());
        const CIImage soft = gaussianBlur(shadow, in.number("inputShadowSize") * roll.radius / 2);
        return sheet.compositedOver(soft.cropped(limits.isEmpty() ? bothExtents(in) : limits)).compositedOver(below);
    }};

} // namespace
} // namespace ci
