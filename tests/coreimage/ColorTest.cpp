// Color filters: values worked out by hand, on single pixels.
#include "tests/coreimage/Colors.h"

using namespace pictures;

TEST(Color, AmountsThatChangeNothingKeepEveryBit)
{
    const struct {
        const char* name;
        CIDictionary inputs;
    } cases[] = {{"CIColorMatrix", {}}, {"CIHueAdjust", {}}, {"CIGammaAdjust", {}}, {"CIWhitePointAdjust", {}},
        {"CISepiaTone", {{"inputIntensity", 0}}}, {"CIColorMonochrome", {{"inputIntensity", 0}}},
        {"CIVignette", {{"inputIntensity", 0}}}, {"CIVignetteEffect", {{"inputIntensity", 0}}},
        {"CIColorPolynomial", {}}, {"CIColorCrossPolynomial", {}}, {"CIColorClamp", {}}};
    for (const bool opaque : {true, false}) {
        const CIBitmap source = opaque ? smooth(37, 9) : noise(37, 9);
        const CIImage image = CIImage::fromBitmap(source);
        for (const auto& [name, inputs] : cases) {
            const auto f = filter(name, image);
            for (const auto& [key, value] : inputs)
                f->setValueForKey(value, key);
            const double apart =
                difference(rendered(f->outputImage(), image.extent()), rendered(image, image.extent())).largest;
            EXPECT_LE(apart, opaque ? 0 : 1e-6) << name; // dividing by alpha and multiplying again rounds
        }
    }
}

TEST(ColorMatrix, WeighsAndAddsStraightColors)
{
    const CIDictionary swapped{{"inputRVector", CIVector{0, 1, 0, 0}}, {"inputGVector", CIVector{2, 0, 0, 0.5}},
        {"inputAVector", CIVector{0, 0, 0, 0.5}}, {"inputBiasVector", CIVector{0.25, 0, -0.125, 0.125}}};
    expectColor(result("CIColorMatrix", kThin, swapped), {0.5, 1.25, -0.025, 0.375});
    expectColor(result("CIColorMatrix", kSome, {{"inputAVector", CIVector{0, 0, 0, 8}}}), kSome); // alpha ends at 1
}

TEST(HueAdjust, TurnsRedToGreenAndKeepsGray)
{
    expectColor(result("CIHueAdjust", kThin, {{"inputAngle", 2 * M_PI / 3}}), {0.1, 0.5, 0.25, 0.5});
    expectColor(result("CIHueAdjust", kThin, {{"inputAngle", -2 * M_PI / 3}}), {0.25, 0.1, 0.5, 0.5});
    expectColor(result("CIHueAdjust", {0.3, 0.3, 0.3, 1}, {{"inputAngle", 1.234}}), {0.3, 0.3, 0.3, 1});
    const Color once = result("CIHueAdjust", kSome, {{"inputAngle", 0.7}});
    expectColor(result("CIHueAdjust", once, {{"inputAngle", -0.7}}), kSome);
}

TEST(Tints, KeepLuminanceOrFollowTheirColor)
{
    const Color brown = result("CISepiaTone", kSome);
    EXPECT_NEAR(luma(brown), luma(kSome), 2e-3);
    EXPECT_GT(brown[0], brown[1]);
    EXPECT_GT(brown[1], brown[2]);
    const double light = luma(kThin);
    const Color half =
        result("CIColorMonochrome", kThin, {{"inputColor", CIColor(1, 0.5, 0, 1)}, {"inputIntensity", 0.5}});
    expectColor(half, {(0.5 + light) / 2, (0.25 + light * linear(0.5)) / 2, 0.05, 0.5});
    expectColor(
        result("CIWhitePointAdjust", kThin, {{"inputColor", CIColor(0.5, 1, 0)}}), {0.5 * linear(0.5), 0.25, 0, 0.5});
    const CIDictionary ramp{{"inputColor0", CIColor(0, 0, 1, 0.5)}, {"inputColor1", CIColor(1, 1, 0, 1)}};
    expectColor(result("CIFalseColor", {0, 0, 0, 1}, ramp), {0, 0, 1, 0.5});
    expectColor(result("CIFalseColor", {1, 1, 1, 0.5}, ramp), {1, 1, 0, 0.5});
    expectColor(result("CIFalseColor", {0.5, 0.5, 0.5, 1}, ramp), {0.5 / 0.75, 0.5 / 0.75, 0.25 / 0.75, 0.75});
}

TEST(Tone, RaisesToPowersAndCountsLevels)
{
    expectColor(result("CIGammaAdjust", kThin, {{"inputPower", 2}}), {0.25, 0.0625, 0.01, 0.5});
    expectColor(result("CIGammaAdjust", {-0.5, 0, 4, 1}, {{"inputPower", 0.5}}), {-std::sqrt(0.5), 0, 2, 1});
    const double third = linear(1 / 3.0), twoThirds = linear(2 / 3.0);
    expectColor(result("CIColorPosterize", {linear(0.3), linear(0.6), linear(0.9), 0.5}, {{"inputLevels", 4}}),
        {third, twoThirds, 1, 0.5}, 1e-4);
    expectColor(result("CIColorPosterize", {0.2, 0.9, 0, 1}, {{"inputLevels", 1}}), {0, 1, 0, 1});
    expectColor(result("CIColorThreshold", {0.5, 0.49, 0.51, 0.25}), {1, 0, 1, 1});
    expectColor(result("CILinearToSRGBToneCurve", kThin), {coded(0.5), coded(0.25), coded(0.1), 0.5});
    expectColor(result("CISRGBToneCurveToLinear", kThin), {linear(0.5), linear(0.25), linear(0.1), 0.5});
    expectColor(result("CIColorClamp", {-1, 0.5, 2, 1},
                    {{"inputMinComponents", CIVector{0, 0.6, 0, 0}}, {"inputMaxComponents", CIVector{1, 1, 1.5, 0.5}}}),
        {0, 0.6, 1.5, 0.5});
    expectColor(
        result("CIColorPolynomial", {0.5, 2, 0.1, 1},
            {{"inputRedCoefficients", CIVector{1, -1, 2, 4}}, {"inputAlphaCoefficients", CIVector{0, 0, 0.25, 0}}}),
        {1.5, 2, 0.1, 0.25});
    expectColor(result("CIColorCrossPolynomial", {0.5, 0.25, 2, 1},
                    {{"inputGreenCoefficients", CIVector{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}}}),
        {0.5, 0.5 + 0.5 + 6 + 1 + 5 / 16.0 + 24 + 7 / 8.0 + 4 + 9 + 10, 2, 1});
}

TEST(Components, AreComparedAndMeasured)
{
    expectColor(result("CIMaximumComponent", kThin), {0.5, 0.5, 0.5, 0.5});
    expectColor(result("CIMinimumComponent", kThin), {0.1, 0.1, 0.1, 0.5});
    const Color mask = result("CIMaskToAlpha", kSome);
    expectColor(mask, {1, 1, 1, luma(kSome)});
    expectColor(
        result("CIColorAbsoluteDifference", {0.2, 0.9, 0.5, 1}, {{"inputImage2", flat(kSome)}}), {0.3, 0.65, 0.4, 1});
}

TEST(Vignettes, LeaveTheMiddleAndDarkenTheRim)
{
    const CIImage gray = flat({0.5, 0.5, 0.5, 1}, 61, 81);
    const auto vignette = filter("CIVignette", gray);
    vignette->setValueForKey(1, "inputIntensity");
    const CIBitmap out = rendered(vignette->outputImage(), gray.extent());
    EXPECT_FLOAT_EQ(at(out, 30, 40, 0), 0.5f);
    EXPECT_NEAR(at(out, 60, 80, 0), 0.5 / std::pow(1 + 2500 / (30.5 * 30.5 + 40.5 * 40.5), 2), 1e-5); // 50 px from it
    EXPECT_FLOAT_EQ(at(out, 0, 80, 1), at(out, 60, 0, 1));

    const auto spot = filter("CIVignetteEffect", gray);
    for (const auto& [key, value] : CIDictionary{{"inputCenter", CIVector{30.5, 40.5}}, {"inputRadius", 20}})
        spot->setValueForKey(value, key);
    const CIBitmap around = rendered(spot->outputImage(), gray.extent());
    EXPECT_EQ(at(around, 40, 40, 0), 0.5f); // within half the radius nothing changes
    EXPECT_NEAR(at(around, 50, 40, 0), 0.25, 1e-5); // half way on the circle itself
    EXPECT_EQ(at(around, 30, 71, 0), 0.0f); // beyond one and a half
    spot->setValueForKey(-1, "inputIntensity");
    EXPECT_FLOAT_EQ(at(rendered(spot->outputImage(), gray.extent()), 30, 71, 0), 1.0f);
}
