// Tone: what becomes of a component's value; thresholds, vignettes, dither.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

const CIDictionary kSteep{
    {"inputPoint1", CIVector{0.25, 0.05}}, {"inputPoint2", CIVector{0.5, 0.05}}, {"inputPoint3", CIVector{0.75, 0.95}}};

Fact curve(double code, double becomes, bool extrapolated = false)
{
    CIDictionary inputs = kSteep;
    inputs["inputExtrapolate"] = extrapolated;
    return of("CIToneCurve", coded(code, 0.25, 0, 0.5), inputs, straight(becomes, light(0.05), 0, 0.5));
}

/// Gray paper 300 px wide with a single spot of ink.
CIImage page(double paper, double ink)
{
    return painted(300, 200, [=](double x, double y) { return gray(x == 150.5 && y == 100.5 ? ink : paper); });
}

Fact document(double amount, double ink, double becomes)
{
    return Fact{"CIDocumentEnhancer", {{"inputImage", page(0.4, ink)}, {"inputAmount", amount}},
        {{{150.5, 100.5}, gray(becomes)}, {{50, 50}, gray(std::min(0.4 + 0.6 * amount, 1.0))}}, 3e-3}
        .atFullSize();
}

Fact vignette(double intensity, double radius, double becomes)
{
    return {"CIVignette",
        {{"inputImage", flat(gray(0.5), 60, 80)}, {"inputIntensity", intensity}, {"inputRadius", radius}},
        {{{51, 68}, gray(becomes)}, {{9, 12}, gray(becomes)}}};
}

Fact dithered(double x, double y, double noise)
{
    const double shown = 0.5 + (noise - 0.5) * 0.2;
    return Fact{"CIDither", {{"inputImage", flat(coded(0.5, 0.5, 0.5))}, {"inputIntensity", 0.2}},
        {{{x, y}, coded(shown, shown, shown)}}, 1e-4}
        .inPlace()
        .atFullSize();
}

} // namespace

Facts tones()
{
    const CIVector rising{0.1, 0.2, 0.3, 0.4};
    return {
        of("CIGammaAdjust", kThin, {{"inputPower", 2}}, straight(0.25, 0.0625, 0.01, 0.5)),
        of("CIGammaAdjust", {-0.5, 0, 4, 1}, {{"inputPower", 0.5}}, {-std::sqrt(0.5), 0, 2, 1}),
        of("CIGammaAdjust", straight(0, 1, 0.0625), {{"inputPower", 0.25}}, straight(0, 1, 0.5)),
        of("CIColorPosterize", coded(0.3, 0.6, 0.9, 0.5), {{"inputLevels", 4}}, coded(1 / 3.0, 2 / 3.0, 1, 0.5)),
        of("CIColorPosterize", straight(0.2, 0.9, 0), {{"inputLevels", 1}}, straight(0, 1, 0)),
        of("CIColorThreshold", straight(0.5, 0.49, 0.51, 0.25), {}, straight(1, 0, 1)),
        of("CILinearToSRGBToneCurve", straight(0.5, 0.25, 0.001, 0.5), {}, straight(0.735357, 0.537099, 0.01292, 0.5)),
        of("CISRGBToneCurveToLinear", straight(0.5, 0.25, 0.02, 0.5), {}, straight(0.214041, 0.050876, 0.001548, 0.5)),
        of("CIColorClamp", straight(-1, 0.5, 2),
            {{"inputMinComponents", CIVector{0, 0.6, 0, 0}}, {"inputMaxComponents", CIVector{1, 1, 1.5, 0.5}}},
            straight(0, 0.6, 1.5, 0.5)),
        of("CIColorClamp", straight(0.7, 0.9, -1, 0.2),
            {{"inputMinComponents", CIVector{0, 0, 0.1, 0.4}}, {"inputMaxComponents", CIVector{0.6, 0.8, 1, 1}}},
            straight(0.6, 0.8, 0.1, 0.4)),
        of("CIColorPolynomial", kThin,
            {{"inputRedCoefficients", CIVector{1, -1, 2, 4}}, {"inputGreenCoefficients", rising},
                {"inputBlueCoefficients", CIVector{0, 0.5, 0.25, 1}},
                {"inputAlphaCoefficients", CIVector{0.1, 0.5, 0.2, 0.4}}},
            straight(1.5, 0.175, 0.0535, 0.45)),
        of("CIColorCrossPolynomial", straight(0.5, 0.25, 2),
            {{"inputRedCoefficients", CIVector{10, 9, 8, 7, 6, 5, 4, 3, 2, 1}},
                {"inputGreenCoefficients", CIVector{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
                {"inputBlueCoefficients", CIVector{0, 0, 1, 0, 0, 0, 0, 0, 1, 0.5}}},
            straight(50.375, 56.1875, 3.5)),

        // Through its points, level between two of one height; halfway up to the next by Hermite's cubic, whose slopes
        // are 0 and the harmonic mean of 3.6 and 0.2.
        curve(0.25, light(0.05)),
        curve(0.375, light(0.05)),
        curve(0.75, light(0.95)),
        curve(0.625, light(0.488158)),
        curve(1.3, 1),
        curve(1.3, 1 + 0.3 * 0.2 * 2.4 / 1.055, true)
            .within(2e-3), // its last slope, where light is 2.4 / 1.055 steeper

        Fact{"CIColorThresholdOtsu", {{"inputImage", halves(coded(0.2, 0.2, 0.2), coded(0.3, 0.3, 0.3))}},
            {{{21, 31}, kBlack}, {{81, 31}, kWhite}}},
        Fact{"CIColorThresholdOtsu", {{"inputImage", halves(gray(light(200 / 255.0)), gray(light(201 / 255.0)))}},
            {{{21, 31}, kBlack}, {{81, 31}, kWhite}}},
        Fact{"CIColorThresholdOtsu", {{"inputImage", halves(coded(0.2, 0.2, 0.2, 0.5), coded(0.8, 0.27, 0.7))}},
            {{{21, 31}, kBlack}, {{81, 31}, straight(1, 0, 1)}}}, // halfway between the codes 0.2 and about 0.46
        // Paper becomes white. Ink of half its light is halfway between 0.15, black, and 0.85, white.
        document(1, 0.2, 0.5),
        document(2, 0.2, 1 / 3.0), // beyond 1 what lies between is darkened
        document(0.5, 0.2, 0.35),
        document(1, 0.04, 0),
        // The fourth power of the cosine: 35 px from the middle the tangent is 0.7, or 1 for a radius of 0.7.
        vignette(1, 1, 0.225215),
        vignette(1, 0.7, 0.125),
        vignette(-0.5, 0.7, 0.6875),
        // Half dark on the circle itself; at half the radius nothing changes yet.
        Fact{"CIVignetteEffect",
            {{"inputImage", flat(gray(0.5), 100, 100)}, {"inputCenter", at(51, 51)}, {"inputRadius", 20},
                {"inputFalloff", 0.5}},
            {{{71, 51}, gray(0.25)}, {{51, 66}, gray(0.421875)}, {{43, 51}, gray(0.5)}, {{51, 87}, kBlack}}}
            .within(4e-3),
        Fact{"CIVignetteEffect",
            {{"inputImage", flat(gray(0.5), 100, 100)}, {"inputCenter", at(51, 51)}, {"inputRadius", 20},
                {"inputIntensity", -1}, {"inputFalloff", 0.2}},
            {{{51, 87}, gray(1)}, {{63, 51}, gray(0.5)}, {{51, 71}, gray(0.75)}}}
            .within(4e-3),
        // By the hash: two rounds of multiplying and folding.
        dithered(0.5, 0.5, 0),
        dithered(1.5, 0.5, 0.410876),
        dithered(7.5, 5.5, 0.838852),
    };
}

} // namespace facts
