// Generators and gradients: what stands at a place of a picture made from nothing.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

const CIColor kRed(1, 0, 0), kBlue(0, 0, 1);
const Color kRedLight = straight(1, 0, 0), kBlueLight = straight(0, 0, 1);

CIDictionary pattern(double sharpness = 1)
{
    return {{"inputCenter", at(51, 51)}, {"inputWidth", 20}, {"inputSharpness", sharpness}, {"inputColor0", kRed},
        {"inputColor1", kBlue}};
}
CIDictionary rectangle(double radius, CIDictionary more = {})
{
    more.insert(
        {{"inputExtent", CIVector{10, 10, 60, 40}}, {"inputRadius", radius}, {"inputColor", CIColor(1, 0, 0, 0.5)}});
    return more;
}
Color reddish(double share) { return {0.5 * share, 0, 0, 0.5 * share}; }

Fact wheel(CIDictionary inputs, const std::vector<Seen>& seen)
{
    inputs.insert({{"inputRadius", 50}, {"inputDither", 0}});
    return Fact{"CIHueSaturationValueGradient", std::move(inputs), seen}.inPlace();
}

} // namespace

Facts generators()
{
    const double half = light(0.5);
    return {
        {"CIConstantColorGenerator", {{"inputColor", CIColor(0.5, 1, 0, 0.5)}},
            {{{11, 11}, straight(half, 1, 0, 0.5)}}},
        {"CILinearGradient",
            {{"inputPoint0", at(0, 0)}, {"inputPoint1", at(60, 80)}, {"inputColor0", kRed}, {"inputColor1", kBlue}},
            {{{15, 20}, straight(0.75, 0, 0.25)}, {{39, 2}, straight(0.75, 0, 0.25)}, {{-20, -20}, kRedLight},
                {{90, 90}, kBlueLight}}},
        {"CISmoothLinearGradient",
            {{"inputPoint0", at(0, 0)}, {"inputPoint1", at(100, 0)}, {"inputColor0", kRed}, {"inputColor1", kBlue}},
            {{{25, 21}, straight(0.84375, 0, 0.15625)}, {{50, 3}, straight(0.5, 0, 0.5)}, {{111, 3}, kBlueLight}}},
        {"CIRadialGradient",
            {{"inputCenter", at(51, 51)}, {"inputRadius0", 10}, {"inputRadius1", 50}, {"inputColor0", kRed},
                {"inputColor1", kBlue}},
            {{{71, 51}, straight(0.75, 0, 0.25)}, {{51, 11}, straight(0.25, 0, 0.75)}, {{53, 51}, kRedLight},
                {{111, 51}, kBlueLight}}},
        {"CIRadialGradient",
            {{"inputCenter", at(51, 51)}, {"inputRadius0", 50}, {"inputRadius1", 10}, {"inputColor0", kRed},
                {"inputColor1", kBlue}},
            {{{71, 51}, straight(0.25, 0, 0.75)}, {{111, 51}, kRedLight}}},
        // Three standard deviations, lowered by what is left at the rim: exp(-4.5 / 4) half way out.
        {"CIGaussianGradient", {{"inputCenter", at(51, 51)}, {"inputRadius", 40}, {"inputColor0", kRed}},
            {{{71, 51}, {0.317066, 0, 0, 0.317066}}, {{51, 51}, {0.9985, 0, 0, 0.9985}}, {{91, 61}, kNothing}}, 2e-3},
        // Hues around the wheel, saturation outwards; both in codes.
        wheel({},
            {{{75, 50}, straight(1, half, half)}, {{37.5, 71.651}, straight(half, 1, half)},
                {{37.5, 28.349}, straight(half, half, 1)}, {{62.5, 71.651}, straight(1, 1, half)},
                {{50, 75}, coded(0.75, 1, 0.5)}})
            .within(0.02),
        wheel({{"inputValue", 0.5}, {"inputSoftness", 20}},
            {{{75, 50}, coded(0.5, 0.25, 0.25)}, {{95, 50}, coded(0.5, 0.05, 0.05, 0.75)}})
            .within(5e-3)
            .reaching({0, 0, 100, 100}),
        wheel({{"inputColorSpace", "genericLinear"}}, {{{75, 50}, straight(1, 0.5, 0.5)}}).within(0.012),
        Fact{"CIHueSaturationValueGradient",
            {{"inputRadius", 50}, {"inputDither", 30}}, // by Jimenez's formula 0.38132 - 0.5 of it
            {{{70.5, 50.5}, coded(0.98604, 0.58547, 0.57592)}}}
            .inPlace()
            .atFullSize(),
        Fact{"CIDistanceGradientFromRedMask", {{"inputImage", dotOn(kBlack, kRedLight)}, {"inputMaximumDistance", 10}},
            {{{10.5, 10.5}, kBlack}, {{13.5, 14.5}, straight(0.5, 0, 0)}, {{4.5, 2.5}, straight(1, 0, 0)},
                {{13.5, 10.5}, straight(0.3, 0, 0)}}}
            .atFullSize(),
        Fact{"CIDistanceGradientFromRedMask", {{"inputImage", dotOn(kBlack, straight(0.4, 1, 1))}},
            {{{10.5, 10.5}, straight(1, 0, 0)}}}
            .atFullSize(),
        Fact{"CIDistanceGradientFromRedMask", {{"inputImage", halves(kBlack, kWhite)}, {"inputMaximumDistance", 80}},
            {{{21, 51}, straight(29.5 / 80, 0, 0)}}}
            .within(0.01),

        // The first color up to the right of the center.
        {"CICheckerboardGenerator", pattern(),
            {{{55, 55}, kRedLight}, {{77, 55}, kBlueLight}, {{55, 45}, kBlueLight}, {{45, 45}, kRedLight},
                {{95, 55}, kRedLight}}},
        {"CICheckerboardGenerator", pattern(0.5), {{{53, 61}, straight(0.7, 0, 0.3)}}}, // 2 of 5 px into the edge
        // Stripes begin with the second color.
        {"CIStripesGenerator", pattern(),
            {{{55, 55}, kBlueLight}, {{77, 5}, kRedLight}, {{45, 45}, kRedLight}, {{95, 5}, kBlueLight}}},
        {"CIStripesGenerator", pattern(0.5), {{{53, 61}, straight(0.3, 0, 0.7)}, {{61, 61}, kBlueLight}}},
        // Alpha is 0.75 - 1.5 times the distance to the outline.
        Fact{"CIRoundedRectangleGenerator", rectangle(10),
            {{{40.5, 30.5}, reddish(1)}, {{69.5, 30.5}, reddish(1)}, {{67.5, 46.5}, reddish(0.75 + 1.5 * 0.0753)},
                {{68.5, 45.5}, reddish(0.75 - 1.5 * 0.1242)}, {{69.5, 49.5}, kNothing}}}
            .reaching({10, 10, 60, 40})
            .atFullSize(),
        Fact{"CIRoundedRectangleGenerator", rectangle(100), {{{40.5, 49.5}, reddish(1)}, {{11.5, 19.5}, kNothing}}}
            .atFullSize(), // a stadium
        Fact{"CIRoundedRectangleStrokeGenerator", rectangle(10, {{"inputWidth", 8}}),
            {{{69, 31}, reddish(1)}, {{71, 31}, reddish(1)}, {{61, 31}, kNothing}, {{67, 47}, reddish(1)},
                {{40, 50}, reddish(1)}, {{79, 31}, kNothing}, {{66, 31}, reddish(0.5)}}}
            .reaching({6, 6, 68, 48})
            .atFullSize(),
        Fact{"CIBlurredRectangleGenerator",
            {{"inputExtent", CIVector{20, 20, 100, 100}}, {"inputSigma", 10}, {"inputColor", CIColor(1, 0, 0, 0.5)}},
            {{{30, 70}, reddish(0.841345)}, {{70, 110}, reddish(0.841345)}, {{30, 15}, reddish(0.841345 * 0.308538)}}}
            .reaching({-10, -10, 160, 160}),
        // Four hashes of the pixel's number, again after 256 px.
        Fact{"CIRandomGenerator", {},
            {{{0.5, 0.5}, {0.573398, 0.854308, 0.743420, 0.475248}},
                {{3.5, 7.5}, {0.770480, 0.794613, 0.804211, 0.322979}},
                {{256.5, 0.5}, {0.573398, 0.854308, 0.743420, 0.475248}}}}
            .atFullSize()
            .inPlace(),
        Fact{"CIMeshGenerator",
            {{"inputMesh", CIArray{CIVector{30, 11, 61, 11}, CIArray{10, 11, 40, 51}, CIVector{1, 2}}},
                {"inputWidth", 4}, {"inputColor", kRed}},
            {{{31, 11}, kRedLight}, {{31, 13}, straight(1, 0, 0, 0.5)}, {{31, 15}, kNothing}, {{25, 31}, kRedLight},
                {{19, 35}, kNothing}, {{22, 11}, kNothing}}}
            .inPlace(),
    };
}

} // namespace facts
