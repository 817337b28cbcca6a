// Distortions of a picture that tells where it is looked at.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

struct Look {
    double x, y, fromX, fromY;
};
Fact warped(const char* filter, CIDictionary inputs, const std::vector<Look>& looks)
{
    inputs["inputImage"] = ramp();
    std::vector<Seen> seen;
    for (const Look& l : looks)
        seen.push_back({{l.x, l.y}, rampAt(l.fromX, l.fromY)});
    return {filter, std::move(inputs), std::move(seen)};
}

CIDictionary round(double radius, const char* key = nullptr, double value = 0)
{
    CIDictionary inputs{{"inputCenter", at(51, 51)}, {"inputRadius", radius}};
    if (key)
        inputs[key] = value;
    return inputs;
}

CIDictionary nine(double growX, double growY)
{
    return {{"inputBreakpoint0", at(20, 20)}, {"inputBreakpoint1", at(60, 60)}, {"inputGrowAmount", at(growX, growY)}};
}

Fact droste(CIDictionary inputs, const std::vector<Look>& looks)
{
    inputs["inputInsetPoint0"] = at(40, 40);
    inputs["inputInsetPoint1"] = at(60, 60);
    return warped("CIDroste", std::move(inputs), looks);
}

Fact stretched(double crop, double center, const Look& look)
{
    return warped("CIStretchCrop",
        {{"inputSize", at(200, 100)}, {"inputCropAmount", crop}, {"inputCenterStretchAmount", center}}, {look})
        .answered()
        .reaching({0, 0, 200, 100});
}

// By Snell's law, at 0.6 of a bar of index 1.5: tan(asin 0.6 - asin 0.4) = 0.23624, so 0.8 of that nearer.
constexpr double kRefracted = 0.41101;

} // namespace

Facts distortions()
{
    const CIImage tilt = CIImage::fromColor(CIColor(0.75, 0.25, 0));
    return {
        // The middle is twice as large, half the radius out 1 - 0.5 (3/4)² is left, outside nothing changes.
        warped("CIBumpDistortion", round(40, "inputScale", 0.5),
            {{53, 51, 52.005, 51}, {71, 51, 65.375, 51}, {51, 31, 51, 36.625}, {95, 51, 95, 51}}),
        warped("CIBumpDistortionLinear", round(40, "inputScale", 0.5), {{31, 71, 31, 65.375}, {31, 95, 31, 95}}),
        warped("CIBumpDistortionLinear",
            {{"inputCenter", at(50, 50)}, {"inputRadius", 40}, {"inputScale", 0.5}, {"inputAngle", M_PI / 6}},
            {{48.660, 72.321, 51.473, 67.449}}), // 20 px across, 10 along
        // Half way out a quarter of the turn is left: what is right of the center comes above it.
        warped("CITwirlDistortion", round(40, "inputAngle", 2 * M_PI),
            {{51, 71, 71, 51}, {51, 61, 47.173, 41.761}, {3, 9, 3, 9}})
            .within(5e-3),
        // A vortex turns by 1/44 of its angle half way out, by 3/32 at a quarter.
        warped("CIVortexDistortion", round(40, "inputAngle", 22 * M_PI / 3),
            {{51, 71, 61, 68.321}, {51, 61, 59.315, 45.444}, {51, 95, 51, 95}})
            .within(5e-3),
        // With the root of the distance a quarter out shows what lies half way out.
        warped("CIPinchDistortion", round(40, "inputScale", 1), {{61, 51, 71, 51}, {95, 51, 95, 51}}),
        warped("CIPinchDistortion", round(40, "inputScale", 0.5), {{56, 51, 61, 51}}).within(2e-3),
        // Clockwise from the angle, the lower edge on the circle.
        warped("CICircularWrap", round(20), {{51, 91, 75, 20}, {11, 51, 50, 20}}).reaching({-69, -69, 240, 240}),
        warped("CICircularWrap", round(20, "inputAngle", M_PI), {{51, 91, 25, 20}, {51, 111, 25, 40}}),
        // Around a cylinder: r - R² / r.
        warped("CIHoleDistortion", round(20), {{91, 51, 81, 51}, {51, 76, 51, 60}}).within(2e-3),
        Fact{"CIHoleDistortion", {{"inputImage", ramp()}, {"inputCenter", at(51, 51)}, {"inputRadius", 20}},
            {{{51, 67}, kNothing}}},
        warped("CICircleSplashDistortion", round(20), {{51, 95, 51, 71}, {5, 51, 31, 51}, {55, 51, 55, 51}}),
        // Twice the radius out, a quarter turn back.
        warped(
            "CILightTunnel", round(20, "inputRotation", M_PI / (2 * std::log(2))), {{91, 51, 51, 31}, {61, 51, 61, 51}})
            .within(3e-3),
        warped("CIGlassLozenge",
            {{"inputPoint0", at(21, 51)}, {"inputPoint1", at(77, 51)}, {"inputRadius", 30}, {"inputRefraction", 1.5}},
            {{51, 69, 51, 51 + 30 * kRefracted}, {3, 51, 21 - 30 * kRefracted, 51}, {95, 51, 77 + 30 * kRefracted, 51},
                {51, 85, 51, 85}})
            .within(2e-3),
        warped("CITorusLensDistortion",
            {{"inputCenter", at(51, 51)}, {"inputRadius", 40}, {"inputWidth", 20}, {"inputRefraction", 1.5}},
            {{87, 51, 81 + 10 * kRefracted, 51}, {75, 51, 81 - 10 * kRefracted, 51}, {61, 51, 61, 51}})
            .within(5e-3),
        // A texture that rises by 0.002126 to the right and 0.007152 upwards, over two pixels, times the scale.
        warped("CIGlassDistortion", {{"inputTexture", ramp()}, {"inputCenter", at(0, 0)}, {"inputScale", 200}},
            {{41, 31, 41.850, 33.861}}),
        warped("CIGlassDistortion", // 30 px before the center the texture is at 70: far from its seam as well
            {{"inputTexture", ramp()}, {"inputCenter", at(71, 61)}, {"inputScale", 200}}, {{41, 31, 41.850, 33.861}}),
        warped("CIGlassDistortion", // close to the texture's end
            {{"inputTexture", ramp()}, {"inputCenter", at(71, 33)}, {"inputScale", 200}}, {{41, 31, 41.850, 33.861}})
            .within(5e-3)
            .atFullSize(),
        // A quarter more than middle gray is a quarter of the scale, as far as the map is opaque.
        warped("CIDisplacementDistortion", {{"inputDisplacementImage", tilt}, {"inputScale", 40}}, {{41, 31, 51, 21}}),
        warped("CIDisplacementDistortion",
            {{"inputDisplacementImage", CIImage::fromColor(CIColor(0.75, 0.25, 0, 0.5))}, {"inputScale", 40}},
            {{41, 31, 46, 26}}),
        warped("CINinePartStretched", nine(40, 20), {{11, 13, 11, 13}, {51, 51, 35.5, 40.667}, {131, 111, 91, 91}})
            .reaching({0, 0, 140, 120}),
        warped("CINinePartTiled", nine(40, 20), {{11, 13, 11, 13}, {71, 71, 31, 49}, {131, 111, 91, 91}})
            .reaching({0, 0, 140, 120}),
        warped("CINinePartTiled",
            [] {
                CIDictionary inputs = nine(40, 20);
                inputs["inputFlipYTiles"] = false;
                return inputs;
            }(),
            {{71, 71, 31, 31}}),
        stretched(1, 0, {141, 31, 70.5, 40.5}), // cut off
        stretched(0, 0, {141, 31, 79.078, 31}), // k u / (1 + (k - 1) |u|) with k = 2 at u = 0.41
        stretched(0, 0.5, {141, 31, 74.047, 31}), // the middle stretched as well: k = 4/3
        stretched(0.5, 1, {141, 31, 70.5, 12.5 + 31 * 0.75}), // half cut off, all stretched alike
        // Plain copies, the inset a fifth of the frame.
        droste({{"inputStrands", 0}}, {{25, 81, 25, 81}, {45, 57, 25, 85}, {49, 51, 25, 75}}).within(4e-3),
        // By the logarithms of complex numbers.
        droste({}, {{91, 51, 90.487, 45.317}, {31, 71, 42.465, 63.758}}).within(4e-3),
        droste({{"inputPeriodicity", 2}, {"inputRotation", 0.5}}, {{31, 71, 67.068, 28.264}, {71, 59, 51.475, 79.237}})
            .within(0.01),
        droste({{"inputStrands", 2}, {"inputRotation", 0.3}, {"inputZoom", 1.5}}, {{21, 35, 35.604, 47.473}})
            .within(4e-3),
    };
}

} // namespace facts
