// Transitions on the way from gray 0.2, or a picture that tells places, to gray 0.6.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

const Color kFrom = gray(0.2), kTo = gray(0.6);

Fact between(const char* filter, const CIImage& image, double time, CIDictionary inputs, std::vector<Seen> seen)
{
    inputs.insert({{"inputImage", image}, {"inputTargetImage", flat(kTo, 100, 100)}, {"inputTime", time}});
    const auto made = CIFilter::filterWithName(filter);
    if (made->attributesForKey("inputExtent"))
        inputs.insert({"inputExtent", CIVector{0, 0, 100, 100}});
    return {filter, std::move(inputs), std::move(seen), 2e-3};
}
Fact grays(const char* filter, double time, CIDictionary inputs, const std::vector<Seen>& seen)
{
    return between(filter, flat(kFrom, 100, 100), time, std::move(inputs), seen);
}

CIDictionary roll(CIDictionary more = {})
{
    more.insert({"inputRadius", 10});
    return more;
}
CIDictionary wave(double scale, CIDictionary more = {})
{
    more.insert({{"inputCenter", at(50, 50)}, {"inputWidth", 40}, {"inputScale", scale}});
    return more;
}
CIDictionary holes(double angle, double compression = 100)
{
    return {
        {"inputCenter", at(51.5, 51.5)}, {"inputRadius", 40}, {"inputAngle", angle}, {"inputCompression", compression}};
}
CIDictionary flash(CIPoint center)
{
    return {{"inputCenter", CIVector(center)}, {"inputExtent", CIVector{0, 0, 30, 40}},
        {"inputColor", CIColor(1, 0.5, 0)}, {"inputStriationStrength", 0}, {"inputFadeThreshold", 0.8}};
}

} // namespace

Facts transitions()
{
    const Color under = gray(0.6 * (1 - 0.7 * 0.158655));
    const CIDictionary tube{{"inputWidth", 50}, {"inputOpacity", 0.5}, {"inputColor", CIColor(0.6, 1, 0.8)}};
    const CIDictionary swipe{{"inputWidth", 50}, {"inputOpacity", 0.8}, {"inputColor", CIColor(1, 1, 1)}};
    CIDictionary upSwipe = swipe, upTube = tube;
    upSwipe["inputAngle"] = M_PI / 2, upTube["inputAngle"] = M_PI / 2;
    const auto lit = [](double w) { return straight(0.6 + w * (0.6 + 0.168), 0.6 + w * 1.168, 0.6 + w * 0.968); };
    Color folded = mixed(rampAt(81.8815, 44), kTo, 0.5);
    const CIImage halfRamp = painted(100, 100, [](double x, double y) { return mixed(kNothing, rampAt(x, y), 0.5); });
    for (std::size_t c = 0; c < 3; ++c)
        folded[c] *= 0.92;
    return {
        grays("CIDissolveTransition", 0.3, {}, {{{11, 11}, gray(0.32)}}),
        // The edge covers 25 to 75. A quarter into it: three quarters target, 0.8 of half the color.
        grays("CISwipeTransition", 0.5, swipe,
            {{{37.5, 51}, gray(0.7)}, {{62.5, 51}, gray(0.58)}, {{11, 51}, kTo}, {{91, 51}, kFrom}}),
        grays("CISwipeTransition", 0.5, upSwipe, {{{51, 37.5}, gray(0.7)}}),
        grays("CISwipeTransition", 0.4, swipe, {{{22.5, 51}, gray(0.7)}}),
        // The tube covers 62.5 to 112.5: 2.7 times half the opacity of its part to the power of 3/2.
        grays("CICopyMachineTransition", 0.5, tube,
            {{{75, 51}, lit(1.35 * 0.125)}, {{87.5, 51}, lit(1.35 * 0.353553)}, {{51, 51}, kTo}})
            .within(4e-3),
        grays(
            "CICopyMachineTransition", 0.2, tube, {{{37.5, 51}, lit(1.35 * 0.125)}, {{11, 51}, kTo}, {{81, 51}, kFrom}})
            .within(4e-3),
        grays("CICopyMachineTransition", 0.2, upTube, {{{51, 37.5}, lit(1.35 * 0.125)}}).within(4e-3),
        grays("CICopyMachineTransition", 0, tube, {{{3, 51}, kFrom}}),
        // Two bars, of which the second starts two later and needs ten for its 100 px: half of these twelve, squared.
        between("CIBarsSwipeTransition", ramp(), 0.5, {{"inputAngle", 0}, {"inputWidth", 50}, {"inputBarOffset", 2}},
            {{{21, 41}, rampAt(21, 77)}, {{71, 41}, rampAt(71, 57)}, {{21, 81}, kTo}}),
        between("CIBarsSwipeTransition", ramp(), 0.5,
            {{"inputAngle", M_PI / 2}, {"inputWidth", 50}, {"inputBarOffset", 2}},
            {{{61, 21}, rampAt(25, 21)}, {{61, 71}, rampAt(45, 71)}}),
        // Holes on a lattice of 40 px: in their middles all is changed, between them nothing; twisted by 45 degrees per
        // 20 px.
        grays("CIModTransition", 0.5, holes(0),
            {{{51.5, 51.5}, kTo}, {{71.5, 71.5}, kFrom}, {{61.5, 61.5}, gray(0.4)}, {{91.5, 51.5}, kTo}})
            .atFullSize(),
        grays("CIModTransition", 0.4, holes(0), {{{59.5, 59.5}, gray(0.2 + 0.4 * 0.747012)}}).atFullSize(),
        grays("CIModTransition", 0.5, holes(M_PI / 4, 20), {{{71.5, 51.5}, kFrom}, {{59.5, 73.5}, kFrom}}).atFullSize(),
        // The veil is white and thins evenly; its rays take away of what is not the color, far from the center.
        grays("CIFlashTransition", 0.9, flash({21, 21}), {{{31, 31}, gray(0.6 * 0.5 + 0.5)}}),
        grays("CIFlashTransition", 0.9, flash({-1100, 21}), {{{21, 21}, straight(0.8, 0.752842, 0.74)}}),
        // Before, a sun of 18.75 px: a white disc, beams of the color to 3.58 radii.
        grays("CIFlashTransition", 0.4, flash({21, 21}),
            {{{21, 21}, kWhite}, {{44.4375, 21}, straight(0.852472, 0.311612, 0.164318)}})
            .within(0.015),
        // A quarter of the wave has passed 34 px from the center: the picture is bent by all of the scale.
        grays("CIRippleTransition", 0.4, wave(0), {{{84.284, 50}, gray(0.2625)}, {{51, 51}, kTo}, {{97, 97}, kFrom}}),
        between("CIRippleTransition", ramp(), 0.4, wave(3, {{"inputTargetImage", ramp()}}),
            {{{84.284, 50}, rampAt(87.284, 50)}}),
        // Half as high a light from 12 px beside the middle of a half transparent shading.
        between("CIRippleTransition", ramp(), 0.4,
            wave(3, {{"inputTargetImage", ramp()}, {"inputShadingImage", halfRamp}}),
            {{{84.284, 50}, {0.80908, 0.5, 0.25, 1}}}),
        // The line lies at 66: paper up to one radius before it, then upside down on the flat.
        between("CIPageCurlTransition", ramp(), 0.6, roll(), {{{80, 51}, rampAt(20.584, 51)}, {{51, 51}, kTo}})
            .reaching({0, -1, 102, 102}), // to 100.584, and half a pixel on
        // 0.55 of the way up the curl it is 0.6 of the square of that darker, and 0.09 of gloss lies on it.
        between("CIPageCurlTransition", ramp(), 0.6, roll(),
            {{{60.5, 51}, {0.8185 * 0.40408 + 0.09, 0.8185 * 0.51 + 0.09, 0.8185 * 0.25 + 0.09, 1}}})
            .atFullSize(),
        // The shading image is light from all sides: 0.55 of its half width from the middle.
        between("CIPageCurlTransition", ramp(), 0.6, roll({{"inputShadingImage", ramp()}}),
            {{{60.5, 51}, rampAt(50 - 0.55 * 49, 50)}})
            .atFullSize(),
        between(
            "CIPageCurlTransition", ramp(), 0.1, roll(), {{{31, 51}, rampAt(31, 51)}, {{9, 51}, rampAt(8.986, 51)}}),
        // The sheet's shadow is soft by half the radius.
        between("CIPageCurlWithShadowTransition", ramp(), 0.6, roll({{"inputShadowSize", 1}}),
            {{{51, 51}, under}, {{80, 51}, rampAt(20.584, 51)}, {{21, 51}, kTo}})
            .within(5e-3),
        // 20 px as they stand below, 40 above, between them 40 px in 20, of which 8 are above: the second panel of
        // four.
        between("CIAccordionFoldTransition", ramp(), 0.5,
            {{"inputTargetImage", flat(kTo, 100, 60)}, {"inputBottomHeight", 20}, {"inputNumberOfFolds", 2},
                {"inputFoldShadowAmount", 0.4}},
            {{{81, 11}, mixed(rampAt(81, 11), kTo, 0.5)}, {{81, 71}, mixed(rampAt(81, 91), kTo, 0.5)},
                {{81, 32}, folded}})
            .reaching({0, 0, 100, 80}),
        // Where the mask is lighter than the time, with an edge of 0.02; what is left throws a Gaussian shadow.
        grays("CIDisintegrateWithMaskTransition", 0.5,
            {{"inputMaskImage", flat(gray(0.505), 100, 100)}, {"inputShadowDensity", 0}}, {{{51, 51}, gray(0.3)}}),
        grays("CIDisintegrateWithMaskTransition", 0.5,
            {{"inputMaskImage", halves(kBlack, kWhite)}, {"inputShadowRadius", 20}, {"inputShadowOffset", at(0, 0)}},
            {{{40, 51}, gray(0.6 * 0.896874)}, {{60, 51}, kFrom}}),
        grays("CIDisintegrateWithMaskTransition", 0.5,
            {{"inputMaskImage", halves(kBlack, kWhite)}, {"inputShadowRadius", 20}, {"inputShadowOffset", at(-10, 0)}},
            {{{30, 51}, gray(0.6 * 0.896874)}}),
    };
}

} // namespace facts
