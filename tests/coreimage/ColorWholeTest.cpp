// Color filters that measure: white points, Lab, palettes, whole pictures.
#include "tests/coreimage/Colors.h"

using namespace pictures;

namespace {

CIImage strip(const std::vector<Color>& colors)
{
    CIBitmap bitmap(int(colors.size()), 1, CIFormat::RGBAf, CIAlpha::Straight, CIColorSpace::LinearSRGB);
    for (std::size_t i = 0; i < 4 * colors.size(); ++i)
        bitmap.mutableRow<float>(0)[i] = float(colors[i / 4][i % 4]);
    return CIImage::fromBitmap(bitmap);
}

/// Left half `dark`, right half `light`, with a ramp of `spread` across each.
CIImage halves(double dark, double light, double spread)
{
    CIBitmap bitmap(64, 32, CIFormat::RGBAf, CIAlpha::Opaque, CIColorSpace::LinearSRGB);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 64; ++x)
            for (int c = 0; c < 4; ++c)
                bitmap.mutableRow<float>(y)[std::size_t(4 * x + c)] =
                    c == 3 ? 1 : float(linear((x < 32 ? dark : light) + spread * (y / 31.0 - 0.5)));
    return CIImage::fromBitmap(bitmap);
}

const Color kGray{0.4, 0.4, 0.4, 1};

} // namespace

TEST(TemperatureAndTint, AdaptsOneWhiteToAnother)
{
    const auto adapted = [](double fromT, double fromTint, double toT, double toTint, const Color& c) {
        return result("CITemperatureAndTint", c,
            {{"inputNeutral", CIVector{fromT, fromTint}}, {"inputTargetNeutral", CIVector{toT, toTint}}});
    };
    const Color warm = adapted(9000, 0, 6500, 0, kGray), magenta = adapted(6500, 40, 6500, 0, kGray);
    EXPECT_GT(warm[0], 1.1 * warm[2]); // what was lit by a blue sky becomes yellower
    EXPECT_NEAR(luma(warm), 0.4, 0.02);
    EXPECT_GT(magenta[0], 1.05 * magenta[1]);
    EXPECT_GT(magenta[2], 1.05 * magenta[1]);
    expectColor(adapted(6500, 0, 3200, 20, adapted(3200, 20, 6500, 0, kSome)), kSome, 1e-4);
    // The light of the first white becomes the second: black bodies by Planck's law, on the sRGB axes, give for
    // 6500 K against 4000 K these ratios of red to blue.
    const Color cooled = adapted(4000, 0, 6504, 0, kGray);
    EXPECT_NEAR(cooled[2] / cooled[0], 2.77, 0.25);
}

TEST(Vibrance, HelpsPaleColorsAndSparesSkin)
{
    const auto gain = [](const Color& c) {
        const Color out = result("CIVibrance", c, {{"inputAmount", 1}});
        return (*std::max_element(out.begin(), out.end() - 1) - *std::min_element(out.begin(), out.end() - 1))
            / (*std::max_element(c.begin(), c.end() - 1) - *std::min_element(c.begin(), c.end() - 1));
    };
    const double pale = gain({0.3, 0.35, 0.4, 1}), vivid = gain({0.02, 0.1, 0.6, 1}), skin = gain({0.4, 0.345, 0.3, 1});
    EXPECT_NEAR(pale, 1 + std::sqrt(0.75), 1e-4);
    EXPECT_LT(vivid, 1.2);
    EXPECT_NEAR(skin, 1 + 0.3 * std::sqrt(0.75), 0.01);
    expectColor(result("CIVibrance", kGray, {{"inputAmount", -1}}), kGray);
    EXPECT_LT(result("CIVibrance", {0.3, 0.35, 0.4, 1}, {{"inputAmount", -1}})[2], 0.37);
}

TEST(ToneMapHeadroom, KeepsDarkAndBringsTheBrightestToTheTarget)
{
    const CIDictionary range{{"inputSourceHeadroom", 8}, {"inputTargetHeadroom", 2}};
    expectColor(result("CIToneMapHeadroom", {0.9, 0.5, 0.1, 1}, range), {0.9, 0.5, 0.1, 1});
    expectColor(result("CIToneMapHeadroom", {8, 4, 0, 1}, range), {2, 1, 0, 1});
    expectColor(result("CIToneMapHeadroom", {16, 4, 0, 1}, range), {2, 0.5, 0, 1});
    EXPECT_NEAR(result("CIToneMapHeadroom", {1.01, 0, 0, 1}, range)[0], 1.01, 2e-4); // no kink at the knee
    expectColor(result("CIToneMapHeadroom", {8, 4, 0, 1}, {{"inputSourceHeadroom", 2}, {"inputTargetHeadroom", 4}}),
        {8, 4, 0, 1});
    expectColor(result("CIDepthToDisparity", {4, 0, -0.5, 1}), {0.25, 0, -2, 1});
}

TEST(Lab, AgreesWithPublishedColorsAndComesBack)
{
    expectColor(result("CIConvertRGBtoLab", {1, 1, 1, 1}), {100, 0, 0, 1}, 2e-3);
    expectColor(result("CIConvertRGBtoLab", {1, 0, 0, 1}), {53.24, 80.09, 67.20, 1}, 0.02);
    expectColor(result("CIConvertRGBtoLab", {0, 0, 1, 1}), {32.30, 79.19, -107.86, 1}, 0.02);
    expectColor(result("CIConvertRGBtoLab", {1, 1, 1, 0.5}, {{"inputNormalize", 1}}), {1, 0.5, 0.5, 0.5});
    for (const double normal : {0, 1})
        for (const Color& c : {kThin, Color{0.001, 0.9, 0.0001, 1}}) {
            const CIDictionary inputs{{"inputNormalize", normal}};
            expectColor(result("CIConvertLabToRGB", result("CIConvertRGBtoLab", c, inputs), inputs), c, 2e-5);
        }
    const auto apart = [](const Color& p, const Color& q) {
        return 100 * result("CILabDeltaE", p, {{"inputImage2", flat(q)}})[0];
    };
    EXPECT_NEAR(apart({1, 1, 1, 1}, {0, 0, 0, 1}), 100, 0.01);
    EXPECT_NEAR(apart(kSome, kSome), 0, 1e-3);
    // From (53.24, 80.09, 67.20) to black: chroma 104.55 weighs 1 / 5.705.
    EXPECT_NEAR(apart({1, 0, 0, 1}, {0, 0, 0, 1}), std::hypot(53.24, 104.55 / 5.705), 0.05);
}

TEST(Palettize, TakesTheNearestEntry)
{
    const std::vector<Color> colors{{0, 0, 0, 1}, {1, 0, 0, 1}, {1, 1, 1, 1}, {0.1, 0.2, 0.7, 1}};
    CIDictionary inputs{{"inputPaletteImage", strip(colors)}};
    expectColor(result("CIPalettize", {0.05, 0.05, 0.3, 0.5}, inputs), {0, 0, 0, 0.5});
    expectColor(result("CIPalettize", {0.9, 0.2, 0.1, 1}, inputs), colors[1]);
    inputs["inputPerceptual"] = 1; // to the eye that is rather blue than black
    expectColor(result("CIPalettize", {0.05, 0.05, 0.3, 0.5}, inputs), {0.1, 0.2, 0.7, 0.5});
}

TEST(PaletteCentroid, IsTheMiddleOfEachColorsPixels)
{
    const auto f = filter("CIPaletteCentroid", halves(0.1, 0.9, 0));
    f->setValueForKey(strip({{1, 1, 1, 1}, {0, 0, 0, 1}, {1, 0, 0, 1}}), "inputPaletteImage");
    const CIImage places = f->outputImage();
    EXPECT_EQ(places.extent(), (CIRect{0, 0, 3, 1}));
    const CIBitmap out = rendered(places, places.extent());
    EXPECT_FLOAT_EQ(at(out, 0, 0, 0), 48);
    EXPECT_FLOAT_EQ(at(out, 0, 0, 1), 16);
    EXPECT_FLOAT_EQ(at(out, 1, 0, 0), 16);
    EXPECT_EQ(at(out, 2, 0, 0), 0); // no pixel is red
}

TEST(WholePictures, AreThresholdedBetweenTheirTwoTones)
{
    for (const double light : {0.3, 0.6, 0.95}) {
        const CIImage otsu = filter("CIColorThresholdOtsu", halves(0.1, light, 0.15))->outputImage();
        for (const double scale : {1.0, 0.5}) {
            const CIBitmap out = rendered(otsu, {0, 0, 64, 32}, scale);
            for (int y = 0; y < out.height(); ++y)
                for (int x = 0; x < out.width(); ++x)
                    ASSERT_EQ(at(out, x, y, 1), x < out.width() / 2 ? 0 : 1) << light << ": " << x << ", " << y;
        }
    }
}

TEST(DocumentEnhancer, WhitensPaperInShadow)
{
    CIBitmap page(300, 200, CIFormat::RGBAf, CIAlpha::Opaque, CIColorSpace::LinearSRGB);
    for (int y = 0; y < 200; ++y)
        for (int x = 0; x < 300; ++x)
            for (int c = 0; c < 4; ++c) {
                const double paper = 0.25 + 0.5 * x / 300.0;
                const bool ink = x % 30 < 2;
                page.mutableRow<float>(y)[std::size_t(4 * x + c)] = c == 3 ? 1 : float(ink ? 0.1 * paper : paper);
            }
    const CIImage image = CIImage::fromBitmap(page);
    const auto f = filter("CIDocumentEnhancer", image);
    const CIBitmap out = rendered(f->outputImage(), image.extent());
    for (const int x : {45, 135, 255}) {
        EXPECT_GT(at(out, x, 100, 0), 0.9f) << x;
        EXPECT_LT(at(out, x / 30 * 30 + 1, 100, 0), 0.05f) << x;
    }
    f->setValueForKey(0, "inputAmount");
    EXPECT_TRUE(f->outputImage().isSameAs(image));
}

TEST(Dither, ScattersEvenlyAndAlikeForAllComponents)
{
    const CIImage gray = flat({linear(0.5), linear(0.5), linear(0.5), 1}, 256, 128);
    const auto f = filter("CIDither", gray);
    f->setValueForKey(0.2, "inputIntensity");
    const CIBitmap out = rendered(f->outputImage(), gray.extent());
    double sum = 0, squares = 0, neighbors = 0;
    for (int y = 0; y < 128; ++y)
        for (int x = 0; x < 256; ++x) {
            const double v = coded(at(out, x, y, 0)) - 0.5, next = coded(at(out, (x + 1) % 256, y, 0)) - 0.5;
            ASSERT_LE(std::abs(v), 0.1001);
            ASSERT_EQ(at(out, x, y, 0), at(out, x, y, 2));
            sum += v, squares += v * v, neighbors += v * next;
        }
    const double count = 256 * 128;
    EXPECT_NEAR(sum / count, 0, 0.001);
    EXPECT_NEAR(squares / count, 0.04 / 12, 0.0001); // uniform
    EXPECT_NEAR(neighbors / squares, 0, 0.03);
}
