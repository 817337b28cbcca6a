// Blend modes and compositing, on single pixels worked out by hand.
#include "tests/coreimage/Colors.h"

using namespace pictures;

namespace {

/// What an opaque or transparent image makes with a background.
Color blended(const std::string& mode, const Color& image, const Color& background)
{
    return result(mode, image, {{"inputBackgroundImage", flat(background)}});
}

/// Two opaque grays.
double grays(const std::string& mode, double s, double b)
{
    return blended("CI" + mode + "BlendMode", {s, s, s, 1}, {b, b, b, 1})[0];
}

const std::vector<std::string> kModes{"Color", "ColorBurn", "ColorDodge", "Darken", "Difference", "Divide", "Exclusion",
    "HardLight", "Hue", "Lighten", "LinearBurn", "LinearDodge", "LinearLight", "Luminosity", "Multiply", "Overlay",
    "PinLight", "Saturation", "Screen", "SoftLight", "Subtract", "VividLight"};

} // namespace

TEST(BlendModes, FollowTheirFormulas)
{
    EXPECT_NEAR(grays("ColorDodge", 0.6, 0.2), 0.5, 1e-6);
    EXPECT_EQ(grays("ColorDodge", 1, 0), 0);
    EXPECT_EQ(grays("ColorDodge", 1, 0.01), 1);
    EXPECT_NEAR(grays("ColorBurn", 0.5, 0.8), 0.6, 1e-6);
    EXPECT_EQ(grays("ColorBurn", 0, 1), 1);
    EXPECT_EQ(grays("ColorBurn", 0, 0.9), 0);
    EXPECT_NEAR(grays("HardLight", 0.25, 0.6), 0.3, 1e-6);
    EXPECT_NEAR(grays("HardLight", 0.75, 0.6), 0.8, 1e-6);
    EXPECT_NEAR(grays("Overlay", 0.6, 0.25), 0.3, 1e-6);
    EXPECT_NEAR(grays("SoftLight", 0.75, 0.36), 0.36 + 0.5 * (0.6 - 0.36), 1e-6);
    EXPECT_NEAR(grays("SoftLight", 0.25, 0.36), 0.36 - 0.5 * 0.36 * 0.64, 1e-6);
    EXPECT_NEAR(grays("LinearLight", 0.7, 0.2), 0.6, 1e-6);
    EXPECT_NEAR(grays("PinLight", 0.2, 0.6), 0.4, 1e-6);
    EXPECT_NEAR(grays("PinLight", 0.9, 0.6), 0.8, 1e-6);
    EXPECT_NEAR(grays("VividLight", 0.25, 0.8), 0.6, 1e-6);
    EXPECT_NEAR(grays("VividLight", 0.8, 0.2), 0.5, 1e-6);
    EXPECT_NEAR(grays("Exclusion", 0.25, 0.5), 0.5, 1e-6);
    EXPECT_NEAR(grays("Subtract", 0.7, 0.2), 0.5, 1e-6);
    EXPECT_NEAR(grays("Divide", 0.2, 0.5), 0.4, 1e-6);
}

TEST(BlendModes, ShowTheOnePictureThatIsThere)
{
    for (const std::string& mode : kModes) {
        SCOPED_TRACE(mode);
        expectColor(blended("CI" + mode + "BlendMode", kThin, {0, 0, 0, 0}), kThin);
        expectColor(blended("CI" + mode + "BlendMode", {0, 0, 0, 0}, kThin), kThin);
    }
}

TEST(BlendModes, WeighTransparencyAsThePaperDoes)
{
    // Half covered: a quarter of each alone, a quarter of the product, and alpha of three quarters.
    const double mixed = 0.25 * 0.8 + 0.25 * 0.4 + 0.25 * 0.32;
    expectColor(blended("CIMultiplyBlendMode", {0.8, 0.8, 0.8, 0.5}, {0.4, 0.4, 0.4, 0.5}),
        {mixed / 0.75, mixed / 0.75, mixed / 0.75, 0.75});
}

TEST(BlendModes, ExchangeWhatTheirNamesSay)
{
    const auto lightness = [](const Color& c) { return 0.3 * c[0] + 0.59 * c[1] + 0.11 * c[2]; };
    const auto saturation = [](const Color& c) { return std::max({c[0], c[1], c[2]}) - std::min({c[0], c[1], c[2]}); };
    const Color image{0.6, 0.3, 0.2, 1}, under{0.3, 0.5, 0.45, 1};
    const Color hue = blended("CIHueBlendMode", image, under), color = blended("CIColorBlendMode", image, under);
    EXPECT_NEAR(lightness(hue), lightness(under), 1e-6);
    EXPECT_NEAR(saturation(hue), saturation(under), 1e-6);
    EXPECT_NEAR(lightness(color), lightness(under), 1e-6);
    EXPECT_NEAR(saturation(color), saturation(image), 1e-6);
    EXPECT_NEAR(lightness(blended("CILuminosityBlendMode", image, under)), lightness(image), 1e-6);
    const Color gray = blended("CISaturationBlendMode", {0.5, 0.5, 0.5, 1}, under);
    EXPECT_NEAR(saturation(gray), 0, 1e-6);
    // A color that can't be that light is drawn towards gray instead of being cut off.
    const Color pale = blended("CIColorBlendMode", {1, 0, 0, 1}, {0.9, 0.9, 0.9, 1});
    EXPECT_NEAR(lightness(pale), 0.9, 1e-6);
    EXPECT_LE(pale[0], 1 + 1e-6);
    EXPECT_NEAR(pale[1], pale[2], 1e-6);
}

TEST(Compositing, KeepsTheSharesOfPorterAndDuff)
{
    const Color over{0.8, 0.8, 0.8, 0.5}, under{0.2, 0.2, 0.2, 0.4};
    const auto of = [&](const std::string& name) { return blended("CI" + name + "Compositing", over, under); };
    expectColor(of("SourceIn"), {0.8, 0.8, 0.8, 0.2});
    expectColor(of("SourceOut"), {0.8, 0.8, 0.8, 0.3});
    expectColor(of("SourceAtop"), {0.5, 0.5, 0.5, 0.4});
    expectColor(of("SourceOver"), {(0.4 + 0.5 * 0.08) / 0.7, (0.4 + 0.5 * 0.08) / 0.7, (0.4 + 0.5 * 0.08) / 0.7, 0.7});
    expectColor(of("Addition"), {0.48 / 0.9, 0.48 / 0.9, 0.48 / 0.9, 0.9});
    expectColor(of("Multiply"), {0.032 / 0.2, 0.032 / 0.2, 0.032 / 0.2, 0.2});
    expectColor(of("Maximum"), over);
    expectColor(of("Minimum"), under);
    EXPECT_EQ(blended("CIAdditionCompositing", {1, 1, 1, 1}, {1, 1, 1, 1})[3], 1);
}
