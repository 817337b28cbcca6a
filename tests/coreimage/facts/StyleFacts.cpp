// Stylizing: glow, drawings, patches, light and focus.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

Fact ofImage(
    const char* filter, const CIImage& image, CIDictionary inputs, std::vector<Seen> seen, double tolerance = 2e-3)
{
    inputs["inputImage"] = image;
    return {filter, std::move(inputs), std::move(seen), tolerance};
}

CIImage codedHalves(double left, double right) { return halves(coded(left, left, left), coded(right, right, right)); }

Fact lit(double shadow, double highlight, double code, double gain)
{
    return of("CIHighlightShadowAdjust", coded(code, code, code, 0.5),
        {{"inputShadowAmount", shadow}, {"inputHighlightAmount", highlight}}, gray(gain * light(code), 0.5));
}

/// The first range takes what lies within 0.2 of middle gray.
CIDictionary spots(double second = 0)
{
    return {{"inputCenterColor1", CIColor(0.5, 0.5, 0.5)}, {"inputReplacementColor1", CIColor(0.2, 0.4, 0.6)},
        {"inputCloseness1", 0.2}, {"inputContrast1", 0}, {"inputCenterColor2", CIColor(0.5, 0.5, 0.5)},
        {"inputReplacementColor2", CIColor(0.9, 0.5, 0.1)}, {"inputCloseness2", second}, {"inputContrast2", 0},
        {"inputCloseness3", 0}};
}

CIDictionary lamp(double concentration)
{
    return {{"inputLightPosition", CIVector{51, 51, 30}}, {"inputLightPointsAt", CIVector{51, 51, 0}},
        {"inputConcentration", concentration}, {"inputColor", CIColor(1, 0.5, 0)}};
}

Fact patches(const char* filter, CIDictionary inputs, const std::vector<Seen>& seen)
{
    inputs["inputCenter"] = at(0, 0);
    return ofImage(filter, ramp(), std::move(inputs), seen);
}

CIDictionary focus(double saturation = 1)
{
    return {{"inputPoint0", at(0, 51)}, {"inputPoint1", at(100, 51)}, {"inputSaturation", saturation},
        {"inputUnsharpMaskRadius", 10}, {"inputUnsharpMaskIntensity", 0.5}, {"inputRadius", 10}};
}

} // namespace

Facts styles()
{
    const CIImage edge = halves(gray(0.2), gray(0.6));
    const double half = light(0.5);
    return {
        // 10 px beyond the edge a blur of 10 px has 0.536538, before it 0.263462.
        ofImage("CIBloom", edge, {{"inputIntensity", 0.5}}, {{{60, 51}, gray(0.707308)}}), // screened over the rest
        ofImage("CIGloom", edge, {{"inputIntensity", 0.5}}, {{{60, 51}, gray(0.568269)}, {{40, 51}, gray(0.2)}}),
        // Woodcut: what is lighter than its surroundings; even areas by their tone.
        of("CIEdgeWork", coded(0.6, 0.6, 0.6), {}, gray(0.8)).within(2e-3),
        ofImage("CIEdgeWork", codedHalves(0.49, 0.51), {{"inputRadius", 10}}, {{{53, 51}, gray(0.560181)}}, 3e-3),
        ofImage("CILineOverlay", codedHalves(0.4, 0.6),
            {{"inputContrast", 5}, {"inputNRNoiseLevel", 0}, {"inputNRSharpness", 0}},
            {{{49.5, 51}, {0, 0, 0, 0.5}}, {{47.5, 51}, kNothing}}, 4e-3)
            .atFullSize(),
        // Half the step is 0.07 from its mean: smoothed to 0.7 of that and sharpened by 1.71.
        ofImage("CILineOverlay", codedHalves(0.4, 0.6), {{"inputContrast", 5}, {"inputNRNoiseLevel", 0.1}},
            {{{49.5, 51}, {0, 0, 0, 0.49376}}}, 0.02)
            .atFullSize(),
        ofImage("CILineOverlay", codedHalves(0.4, 0.6), {{"inputContrast", 20}, {"inputNRNoiseLevel", 0.5}},
            {{{49.5, 51}, {0, 0, 0, 0.5075}}}, 0.04)
            .atFullSize(),
        // Dots of 6 px at 15, 75 and 45 degrees, 0.45 of the print; a line where it is steep.
        ofImage("CIComicEffect", flat(gray(half)), {},
            {{{2.5, 7.5}, {0.080527, 0.109454, 0.337580, 1}}, {{3.5, 3.5}, {0.484419, 0.484419, 0.061465, 1}}}, 3e-3)
            .inPlace()
            .atFullSize(),
        ofImage(
            "CIComicEffect", flat(coded(0.6, 0.4, 0.5)), {}, {{{3.5, 1.5}, {0.467476, 0.393684, 0.498965, 1}}}, 3e-3)
            .inPlace()
            .atFullSize(),
        ofImage("CIComicEffect", halves(kBlack, kWhite), {}, {{{50.5, 51.5}, kBlack}, {{51.5, 51.5}, kBlack}})
            .atFullSize(),

        // Each place has the color of the nearest point of a scattered lattice.
        patches("CICrystallize", {},
            {{{51, 51}, rampAt(57.243, 57.612)}, {{31, 71}, rampAt(36.968, 65.720)},
                {{71, 33}, rampAt(64.999, 36.676)}})
            .within(4e-3),
        // Dots of 0.62 of the lattice on white.
        patches("CIPointillize", {},
            {{{51, 51}, rampAt(54.829, 55.075)}, {{29, 25}, rampAt(34.469, 34.388)}, {{27, 75}, rampAt(34.645, 67.147)},
                {{25, 21}, kWhite}})
            .within(5e-3)
            .atFullSize(),
        ofImage("CIHexagonalPixellate", ramp(), {{"inputCenter", at(51, 51)}, {"inputScale", 20}},
            {{{55, 53}, rampAt(51, 51)}, {{65, 51}, rampAt(71, 51)}, {{59, 65}, rampAt(61, 68.321)}}),
        ofImage("CIPixellate", ramp(), {{"inputCenter", at(51, 51)}, {"inputScale", 20}},
            {{{55, 69}, rampAt(61, 61)}, {{49, 53}, rampAt(41, 61)}}),
        ofImage("CISampleNearest", ramp(), {}, {{{41.5, 31.5}, rampAt(41.5, 31.5)}}).atFullSize(),

        // On the line sharpened; halfway from 0.3 to 0.65 of the reach half blurred by 5, and so on to 10.
        ofImage("CIDepthOfField", edge, focus(),
            {{{60, 51}, gray(0.631731)}, {{60, 72.375}, gray(0.611316)}, {{60, 84.75}, gray(0.563719)},
                {{60, 97}, gray(0.536538)}}),
        ofImage("CIDepthOfField", edge, focus(0.5), {{{40, 51}, gray(0.168269)}, {{40, 3}, gray(0.263462)}}),
        of("CIDepthOfField", kThin, focus(2), straight(0.70768, 0.20768, 0, 0.5)),
        ofImage("CIHeightFieldFromMask", halves(kBlack, kWhite), {}, {{{55, 51}, gray(0.682689)}, {{45, 51}, kBlack}},
            0.017),
        lit(1, 1, 0.3, 2), // two stops times a half
        lit(-1, 1, 0.3, 0.659754),
        lit(0, 0, 0.7, 0.594604), // 1.5 stops times a half
        lit(0, 0.5, 0.7, 0.771105),
        lit(0.5, 1, 0.65, 1),
        lit(0, 0, 0.35, 1),
        // Around a place 2 px beyond the edge the light is 0.0724, halfway from the code 0 to 0.6.
        ofImage("CIHighlightShadowAdjust", halves(gray(0.02), gray(0.1)),
            {{"inputRadius", 5}, {"inputShadowAmount", 1}}, {{{52, 51}, gray(0.2011)}}),
        // L 0 and 100 are 50 from their mean, of 70; a quarter out the middle's weight is 1 / (1 + 0.7 / 4).
        ofImage("CISaliencyMapFilter", halves(kBlack, kWhite), {},
            {{{75, 50}, gray(0.607903)}, {{75, 75}, gray(0.714286 / 1.35)}}, 5e-3),
        // Downhill by 0.2126 and 0.7152 of the color's slope, on a ball of 49 px.
        ofImage("CIShadedMaterial", ramp(), {{"inputShadingImage", ramp()}, {"inputScale", 100}},
            {{{41, 31}, rampAt(41.650, 21.912)}}),
        of("CISpotColor", coded(0.5, 0.5, 0.5, 0.5), spots(), coded(0.2, 0.4, 0.6, 0.5)).within(1e-3),
        of("CISpotColor", coded(0.75, 0.5, 0.5), spots(), coded(0.75, 0.5, 0.5)).within(1e-3),
        // 0.0866 away 0.567 of it is replaced, 0.05 lighter; of the rest the next range takes 0.567 again.
        of("CISpotColor", coded(0.55, 0.55, 0.55), spots(), coded(0.3799, 0.4933, 0.6067)).within(1e-3),
        of("CISpotColor", coded(0.55, 0.55, 0.55), spots(0.2), coded(0.5199, 0.5072, 0.4946)).within(1e-3),
        // The cosine 40 px beside a lamp 30 px above is 0.6.
        ofImage("CISpotLight", flat(gray(0.2, 0.5), 100, 100), lamp(1),
            {{{51, 51}, straight(0.6, 0.6 * half, 0, 0.5)}, {{91, 51}, straight(0.36, 0.36 * half, 0, 0.5)}}),
        ofImage("CISpotLight", flat(straight(0.2, 0.1, 0.3), 100, 100), lamp(1),
            {{{51, 51}, straight(0.6, 0.3 * half, 0)}}),
        ofImage("CISpotLight", flat(gray(0.2), 100, 100), lamp(0.5), {{{51, 11}, straight(0.216, 0.216 * half, 0)}}),
    };
}

} // namespace facts
