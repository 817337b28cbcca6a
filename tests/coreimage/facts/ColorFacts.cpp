// Colors: matrices, tints, balance, Lab.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

const CIDictionary kTempered{{"inputNeutral", at(4000, 0)}, {"inputTargetNeutral", at(6500, 0)}};
const CIDictionary kGreened{{"inputNeutral", at(6500, 40)}, {"inputTargetNeutral", at(6500, 0)}};
// Black bodies by Planck's law, at luminance 0.4, in linear sRGB: of 4000 K, of 6500 K, and that with a Duv of 0.0133.
const Color k4000 = straight(0.5656, 0.3696, 0.2133), k6500 = straight(0.4170, 0.3935, 0.4139),
            kGreenish = straight(0.3484, 0.4201, 0.3530);

CIImage gradient()
{
    return painted(100, 5, [](double x, double y) { return Color{x / 100, y / 5, 0.25, 1}; });
}

} // namespace

Facts colors()
{
    const double half = light(0.5);
    return {
        // Saturation about the luminance 0.29232, brightness, contrast about one half.
        of("CIColorControls", kSome, {{"inputSaturation", 0.5}, {"inputBrightness", 0.1}, {"inputContrast", 2}},
            straight(0.49232, 0.24232, 0.09232)),
        of("CIExposureAdjust", kThin, {{"inputEV", 2}}, straight(2, 1, 0.4, 0.5)),
        of("CITemperatureAndTint", k4000, kTempered, k6500).within(0.006),
        of("CITemperatureAndTint", kGreenish, kGreened, k6500).within(0.006),
        // Least over most is 3/4, whose root 0.866 is how pale it is; 27 degrees of hue are skin.
        of("CIVibrance", straight(0.3, 0.35, 0.4), {{"inputAmount", 1}}, straight(0.26278, 0.35608, 0.44938)),
        of("CIVibrance", straight(0.4, 0.345, 0.3), {{"inputAmount", 1}}, straight(0.41210, 0.34281, 0.28612)),
        of("CIVibrance", straight(0.4, 0.3625, 0.3), {{"inputAmount", 1}}, straight(0.41916, 0.36055, 0.26287)),
        // Straight up to half the target, then a hyperbola that ends where the source does.
        of("CIToneMapHeadroom", straight(0.9, 0.5, 0.1), {{"inputSourceHeadroom", 8}, {"inputTargetHeadroom", 2}},
            straight(0.9, 0.5, 0.1)),
        of("CIToneMapHeadroom", straight(8, 4, 0), {{"inputSourceHeadroom", 8}, {"inputTargetHeadroom", 2}},
            straight(2, 1, 0)),
        of("CIToneMapHeadroom", straight(4.5, 2.25, 0.9), {{"inputSourceHeadroom", 8}, {"inputTargetHeadroom", 2}},
            straight(1.875, 0.9375, 0.375)),
        of("CIDepthToDisparity", straight(4, 0.5, -0.5, 0.5), {}, straight(0.25, 2, -2, 0.5)),
        of("CIDisparityToDepth", straight(4, 0, -0.5, 0.5), {}, straight(0.25, 0, -2, 0.5)),

        of("CIColorMatrix", kThin,
            {{"inputRVector", CIVector{0.1, 0.2, 0.3, 0.4}}, {"inputGVector", CIVector{0.4, 0.3, 0.2, 0.1}},
                {"inputBVector", CIVector{0.2, 0.1, 0.4, 0.3}}, {"inputAVector", CIVector{0.1, 0.3, 0.2, 0.4}},
                {"inputBiasVector", CIVector{0.05, 0.1, 0.15, 0.2}}},
            straight(0.38, 0.445, 0.465, 0.545)),
        of("CIColorMatrix", kSome, {{"inputAVector", CIVector{0, 0, 0, 8}}}, kSome), // alpha ends at 1
        of("CIHueAdjust", kThin, {{"inputAngle", 2 * M_PI / 3}}, straight(0.1, 0.5, 0.25, 0.5)),
        of("CIHueAdjust", kSome, {{"inputAngle", M_PI / 2}}, straight(0.19673, 0.51427, 0.13899)), // Rodrigues
        of("CIWhitePointAdjust", kThin, {{"inputColor", CIColor(0.5, 1, 0.25)}},
            straight(0.5 * half, 0.25, 0.1 * light(0.25), 0.5)),
        of("CISepiaTone", gray(0.5), {{"inputIntensity", 0.5}}, straight(0.605, 0.4825, 0.364)),
        of("CISepiaTone", kThin, {}, straight(0.41509, 0.27186, 0.13330, 0.5)), // 1.42, 0.93, 0.456 of the luminance
        of("CIColorMonochrome", kThin, {{"inputColor", CIColor(1, 0.5, 0)}, {"inputIntensity", 0.5}},
            straight(0.39616, 0.125 + 0.14616 * half, 0.05, 0.5)),
        of("CIFalseColor", gray(0.5), {{"inputColor0", CIColor(0, 0, 1, 0.5)}, {"inputColor1", CIColor(1, 1, 0)}},
            {0.5, 0.5, 0.25, 0.75}),
        of("CIFalseColor", gray(1, 0.5), {{"inputColor0", CIColor(0, 0, 1)}, {"inputColor1", CIColor(1, 0.5, 0)}},
            straight(1, half, 0, 0.5)),
        of("CIMaximumComponent", straight(0.1, 0.5, 0.25, 0.5), {}, gray(0.5, 0.5)),
        of("CIMaximumComponent", straight(0.1, 0.25, 0.5), {}, gray(0.5)),
        of("CIMaximumComponent", kThin, {}, gray(0.5, 0.5)),
        of("CIMinimumComponent", straight(0.1, 0.5, 0.25, 0.5), {}, gray(0.1, 0.5)),
        of("CIMinimumComponent", straight(0.5, 0.1, 0.25), {}, gray(0.1)),
        of("CIMinimumComponent", kThin, {}, gray(0.1, 0.5)),
        of("CIMaskToAlpha", kSome, {}, {0.29232, 0.29232, 0.29232, 0.29232}),
        Fact{"CIColorAbsoluteDifference",
            {{"inputImage", flat(straight(0.2, 0.9, 0.5))}, {"inputImage2", flat(kThin, 60, 60)}},
            {{{11, 11}, straight(0.05, 0.775, 0.45)}}}
            .reaching({0, 0, 40, 40}),
        of("CIColorAbsoluteDifference", kThin, {{"inputImage2", flat(kNothing)}}, {0.25, 0.125, 0.05, 1}),
        of("CIColorInvert", kThin, {}, straight(0.5, 0.75, 0.9, 0.5)),
        // The code 0.4 looks up what lies 0.4 of the way from the first to the last pixel center.
        of("CIColorMap", straight(light(0.4), light(0.4), light(0.4), 0.5), {{"inputGradientImage", gradient()}},
            straight(0.401, 0.5, 0.25, 0.5)),

        // Published values of the sRGB primaries.
        of("CIConvertRGBtoLab", kWhite, {}, {100, 0, 0, 1}).within(0.003),
        of("CIConvertRGBtoLab", straight(1, 0, 0, 0.5), {}, straight(53.24, 80.09, 67.20, 0.5)).within(0.01),
        of("CIConvertRGBtoLab", straight(0, 0, 1), {}, {32.30, 79.19, -107.86, 1}).within(0.02),
        of("CIConvertRGBtoLab", straight(0, 1, 0), {{"inputNormalize", 1}},
            {0.8773, 0.5 - 86.18 / 256, 0.5 + 83.18 / 256, 1}),
        of("CIConvertRGBtoLab", gray(0.005), {}, {4.5165, 0, 0, 1}).within(0.01), // 903.3 Y below 0.008856
        of("CIConvertLabToRGB", {53.24, 80.09, 67.20, 1}, {}, straight(1, 0, 0)).within(4e-4),
        of("CIConvertLabToRGB", {32.30, 79.19, -107.86, 1}, {}, straight(0, 0, 1)).within(4e-4),
        of("CIConvertLabToRGB", {4.5165, 0, 0, 1}, {}, gray(0.005)),
        of("CIConvertLabToRGB", {0.8773, 0.5 - 86.18 / 256, 0.5 + 83.18 / 256, 1}, {{"inputNormalize", 1}},
            straight(0, 1, 0))
            .within(4e-4),
        // CIE 1994: from red to black a chroma of 104.55 weighs 1 / 5.705; from red to blue all three count.
        of("CILabDeltaE", straight(1, 0, 0), {{"inputImage2", flat(kBlack)}}, gray(0.56305)),
        of("CILabDeltaE", straight(1, 0, 0), {{"inputImage2", flat(straight(0, 0, 1, 0.5))}}, gray(0.7058)),
    };
}

} // namespace facts
