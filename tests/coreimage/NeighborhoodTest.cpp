// Filters that look at the pixels around: slow twins, identities and values worked out by hand.
#include "tests/coreimage/Neighborhood.h"

using namespace pictures;

TEST(Morphology, EqualsASearchThroughTheNeighborhood)
{
    const CIBitmap source = noise(53, 37);
    const auto search = [&](int x, int y, int c, bool greatest, int across, int along, double radius) {
        float best = outsideZero(source, x, y, c);
        for (int dy = -along; dy <= along; ++dy)
            for (int dx = -across; dx <= across; ++dx)
                if (radius <= 0 || dx * dx + dy * dy <= radius * radius) {
                    const float v = outsideZero(source, x + dx, y + dy, c);
                    best = greatest ? std::max(best, v) : std::min(best, v);
                }
        return double(best);
    };
    for (const double radius : {1.0, 2.0, 3.7, 11.0, 40.0}) {
        const int reach = int(radius);
        expectEach(result("CIMorphologyMaximum", source, {{"inputRadius", radius}}), 0,
            [&](int x, int y, int c) { return search(x, y, c, true, reach, reach, radius); });
        expectEach(result("CIMorphologyMinimum", source, {{"inputRadius", radius}}), 0,
            [&](int x, int y, int c) { return search(x, y, c, false, reach, reach, radius); });
    }
    for (const auto& [width, height] : {std::pair{1, 9}, {3, 1}, {5, 7}, {41, 16}}) {
        const CIDictionary sides{{"inputWidth", width}, {"inputHeight", height}};
        const int across = width / 2, along = height / 2;
        expectEach(result("CIMorphologyRectangleMaximum", source, sides), 0,
            [&](int x, int y, int c) { return search(x, y, c, true, across, along, 0); });
        expectEach(result("CIMorphologyRectangleMinimum", source, sides), 0,
            [&](int x, int y, int c) { return search(x, y, c, false, across, along, 0); });
    }
    EXPECT_EQ(made("CIMorphologyMaximum", source, {{"inputRadius", 2.5}}).extent(), (CIRect{-2, -2, 57, 41}));
}

TEST(Median, IsTheFifthOfNine)
{
    const CIBitmap source = noise(35, 21);
    expectEach(result("CIMedianFilter", source, {}), 0, [&](int x, int y, int c) {
        std::vector<float> nine;
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx)
                nine.push_back(at(source, std::clamp(x + dx, 0, 34), std::clamp(y + dy, 0, 20), c));
        std::ranges::sort(nine);
        return double(nine[4]);
    });
}

/// 8-bit pictures are not converted for these filters; the float twin converts them.
TEST(Rank, OfCodesIsTheRankOfTheirLight)
{
    CIBitmap source = noise8(700, 180);
    for (int y = 0; y < source.height(); ++y)
        for (std::size_t x = 3; x < source.row<std::uint8_t>(y).size(); x += 4)
            source.mutableRow<std::uint8_t>(y)[x] = std::uint8_t(x); // nobody's business in an opaque bitmap
    const CIImage picture = CIImage::fromBitmap(source);
    const CIImage moved = picture.transformed(CIAffineTransform::translation(-11, 7)).cropped({3, 20, 600, 111});
    const auto ranked = [](const char* name, const CIImage& image, const CIDictionary& inputs) {
        const auto f = filter(name, image);
        for (const auto& [key, value] : inputs)
            f->setValueForKey(value, key);
        return f->outputImage();
    };
    const std::vector<CIImage> images = {ranked("CIMedianFilter", picture, {}), ranked("CIMedianFilter", moved, {}),
        ranked("CIMorphologyMaximum", moved, {{"inputRadius", 6.3}}),
        ranked("CIMorphologyMinimum", moved.clampedToExtent(), {{"inputRadius", 2}}).cropped({-20, 0, 700, 160}),
        ranked("CIMorphologyRectangleMaximum", moved, {{"inputWidth", 7}, {"inputHeight", 20}}),
        ranked("CIMorphologyRectangleMinimum", ranked("CIMedianFilter", moved, {}), {{"inputWidth", 3}}),
        ranked("CIColorInvert", ranked("CIMorphologyRectangleMaximum", moved, {}), {})};
    const CIContext quick, slow(CIContext::Arithmetic::Floats);
    for (std::size_t i = 0; i < images.size(); ++i) {
        const int apart = i + 1 < images.size() ? 0 : 1; // the last one calculates
        const auto isAlike = [apart](int a, int b) { return std::abs(a - b) <= apart; };
        for (const CIRect& part : {images[i].extent(), CIRect{60, 33, 301, 57}})
            for (const CIFormat format : {CIFormat::RGBA8, CIFormat::BGRA8}) {
                const CIBitmap out = quick.render(images[i], part, 1, format, CIAlpha::Premultiplied);
                const CIBitmap twin = slow.render(images[i], part, 1, format, CIAlpha::Premultiplied);
                ASSERT_EQ(out.height(), int(part.height));
                for (int y = 0; y < out.height(); ++y)
                    ASSERT_TRUE(std::ranges::equal(out.row<std::uint8_t>(y), twin.row<std::uint8_t>(y), isAlike))
                        << "image " << i << ", row " << y;
            }
    }
}

TEST(Convolution, WeighsNeighborsAsAPageIsRead)
{
    const CIBitmap source = dot(9, 9, 4, 4);
    const CIBitmap out = result("CIConvolutionRGB3X3", source,
        {{"inputWeights", CIVector{0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9}}, {"inputBias", 0.25}});
    EXPECT_NEAR(at(out, 5, 3, 0), 0.35, 1e-6); // sees the dot at its upper left
    EXPECT_NEAR(at(out, 3, 4, 1), 0.85, 1e-6); // at its right
    EXPECT_NEAR(at(out, 4, 5, 2), 1.05, 1e-6); // below
    EXPECT_NEAR(at(out, 2, 4, 0), 0.25, 1e-6);
    EXPECT_EQ(at(out, 3, 3, 3), 1);
    const CIBitmap wide =
        result("CIConvolution9Horizontal", source, {{"inputWeights", CIVector{1, 0, 0, 0, 0, 0, 0, 0, 2}}});
    EXPECT_NEAR(at(wide, 8, 4, 0), 1, 1e-6);
    EXPECT_NEAR(at(wide, 0, 4, 0), 2, 1e-6);
    EXPECT_TRUE(made("CIConvolution5X5", source, {{"inputBias", 0.1}}).extent().isInfinite());
    const CIBitmap same = noise(31, 7);
    EXPECT_EQ(difference(result("CIConvolution7X7", same, {}), same).largest, 0);
}

TEST(Edges, MeasureTheSlopeOfARamp)
{
    CIBitmap ramp(40, 30, CIFormat::RGBAf, CIAlpha::Opaque, CIColorSpace::LinearSRGB);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x) {
            const float height = 0.01f * float(x) + 0.02f * float(29 - y);
            const float pixel[4] = {0.5f * height, height, 0.25f, 1};
            std::copy_n(pixel, 4, ramp.mutableRow<float>(y).data() + 4 * x);
        }
    // A step of 1 answers 1, so a slope answers twice its rise in a pixel; also where a pixel is half a cell.
    for (const double scale : {1.0, 0.5}) {
        const CIBitmap slopes = rendered(made("CISobelGradients", ramp, {}), {10, 10, 20, 10}, scale);
        EXPECT_NEAR(at(slopes, 3, 3, 0), 0.02, 1e-5) << scale;
        EXPECT_NEAR(at(slopes, 3, 3, 1), 0.04, 1e-5) << scale;
        EXPECT_EQ(at(slopes, 3, 3, 2), 0);
    }
    const CIBitmap edges = result("CIEdges", ramp, {{"inputIntensity", 10}});
    EXPECT_NEAR(at(edges, 20, 15, 1), 10 * std::hypot(0.02, 0.04), 1e-4);
    EXPECT_EQ(at(edges, 20, 15, 2), 0);
    EXPECT_NEAR(at(edges, 0, 15, 1), 10 * std::hypot(0.01, 0.04), 1e-4); // the edge pixel goes on outside
}

TEST(Sharpen, WithoutContrastOrAmountKeepsEveryBit)
{
    const CIBitmap source = noise(37, 23);
    for (const char* name : {"CIUnsharpMask", "CISharpenLuminance"}) {
        const char* amount = name == std::string("CIUnsharpMask") ? "inputIntensity" : "inputSharpness";
        EXPECT_EQ(difference(result(name, source, {{amount, 0}}), source).largest, 0) << name;
        EXPECT_EQ(difference(result(name, source, {{"inputRadius", 0}}), source).largest, 0) << name;
    }
    const CIBitmap out = result("CIUnsharpMask", dot(31, 31, 15, 15), {{"inputRadius", 2}, {"inputIntensity", 0.5}});
    EXPECT_NEAR(at(out, 15, 15, 0), 1.5 - 0.5 / (2 * M_PI * 4), 2e-3);
    EXPECT_LT(at(out, 17, 15, 0), -0.01);
}

TEST(MotionBlur, SpreadsADotAlongTheAngle)
{
    const CIBitmap source = dot(41, 41, 20, 20);
    const CIBitmap level = result("CIMotionBlur", source, {{"inputRadius", 5}, {"inputAngle", 0}});
    expectEach(level, 1e-6, [](int x, int y, int c) {
        const double inside =
            std::clamp(std::min(x + 6.0, 46.0 - x), 0.0, 11.0) / 11; // of the window, over the picture
        return c == 3 ? inside : y == 20 && std::abs(x - 20) <= 5 ? 1 / 11.0 : 0;
    });
    const CIBitmap upright = result("CIMotionBlur", source, {{"inputRadius", 5}, {"inputAngle", M_PI / 2}});
    EXPECT_NEAR(at(upright, 20, 24, 0), 1 / 11.0, 1e-6);
    EXPECT_EQ(at(upright, 21, 20, 0), 0);
    const CIBitmap slanted = result("CIMotionBlur", source, {{"inputRadius", 10}, {"inputAngle", 0.4}});
    double sum = 0, x = 0, y = 0, tilt = 0, length = 0;
    for (int j = 0; j < 41; ++j)
        for (int i = 0; i < 41; ++i) {
            const double v = double(at(slanted, i, j, 1));
            sum += v, x += v * (i - 20), y += v * (j - 20), tilt += v * (i - 20) * (j - 20);
            length += v * ((i - 20) * (i - 20) + (j - 20) * (j - 20));
        }
    EXPECT_NEAR(sum, 1, 1e-4); // no light is lost, none moves
    EXPECT_NEAR(x, 0, 1e-3);
    EXPECT_NEAR(y, 0, 1e-3);
    EXPECT_NEAR(tilt, std::sin(0.8) / 2 * 10.5 * 10.5 / 3, 0.5);
    EXPECT_NEAR(length, 10.5 * 10.5 / 3, 1);
}

TEST(ZoomBlur, PicksUpWhatLiesTowardTheCenter)
{
    // Columns of one color each: the blurred value depends on x alone, and can be summed up directly.
    CIBitmap stripes(600, 60, CIFormat::RGBAf, CIAlpha::Opaque, CIColorSpace::LinearSRGB);
    const auto color = [](double x) { return 0.5 + 0.5 * std::sin(x * 0.05); };
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 600; ++x)
            for (std::size_t c = 0; c < 4; ++c)
                stripes.mutableRow<float>(y)[std::size_t(4 * x) + c] = c == 3 ? 1 : float(color(x + 0.5));
    const CIBitmap out = result("CIZoomBlur", stripes, {{"inputAmount", 30}, {"inputCenter", CIVector{50, 30}}});
    for (const int x : {60, 150, 400, 590}) {
        double sum = 0, weights = 0;
        for (double t = -0.9995; t < 1; t += 0.001) {
            const double s = 1 - 5 / 22.0 * (1 - t), weight = std::exp(-0.55 * t * t);
            sum += weight * color(50 + s * (x + 0.5 - 50));
            weights += weight;
        }
        EXPECT_NEAR(at(out, x, 30, 0), sum / weights, 0.01) << x;
    }
    EXPECT_EQ(difference(result("CIZoomBlur", stripes, {{"inputAmount", 0}}), stripes).largest, 0);
}

TEST(Mosaic, PatchesAreOfOneColorAndKeepTheMean)
{
    const CIBitmap source = smooth(200, 160);
    const CIBitmap out = result("CICrystallize", source, {{"inputRadius", 20}});
    int edges = 0;
    double sum = 0, whole = 0;
    for (int y = 0; y < 160; ++y)
        for (int x = 1; x < 200; ++x) {
            edges += at(out, x, y, 0) != at(out, x - 1, y, 0);
            sum += double(at(out, x, y, 0)), whole += double(at(source, x, y, 0));
        }
    EXPECT_GT(edges, 160 * 6);
    EXPECT_LT(edges, 160 * 14); // about one for each patch across
    EXPECT_NEAR(sum / whole, 1, 0.02);
    const CIBitmap hexagons =
        result("CIHexagonalPixellate", source, {{"inputScale", 30}, {"inputCenter", CIVector{100, 80}}});
    EXPECT_EQ(at(hexagons, 100, 80, 0), at(hexagons, 113, 80, 0)); // the width across flats is 30
    EXPECT_NE(at(hexagons, 100, 80, 0), at(hexagons, 116, 80, 0));
    EXPECT_EQ(at(hexagons, 100, 80, 0), at(hexagons, 100, 96, 0)); // and the corners lie 17 up and down
    EXPECT_NE(at(hexagons, 100, 80, 0), at(hexagons, 100, 99, 0));
}

TEST(MaskBlend, TakesTheNamedComponentOfTheMask)
{
    const CIImage white = CIImage::fromColor(CIColor(1, 1, 1)), mask = CIImage::fromColor(CIColor(1, 0, 0.5, 1));
    const auto mixed = [&](const char* name) {
        const auto f = filter(name, white);
        f->setValueForKey(CIImage::fromColor(CIColor(0, 0, 0)), "inputBackgroundImage");
        f->setValueForKey(mask, "inputMaskImage");
        return double(at(rendered(f->outputImage(), {0, 0, 1, 1}), 0, 0, 0));
    };
    const double half = 0.21404; // 0.5 in linear light
    EXPECT_NEAR(mixed("CIBlendWithRedMask"), 1, 1e-6);
    EXPECT_NEAR(mixed("CIBlendWithBlueMask"), half, 1e-4);
    EXPECT_NEAR(mixed("CIBlendWithAlphaMask"), 1, 1e-6);
    EXPECT_NEAR(mixed("CIBlendWithMask"), 0.2126 + 0.0722 * half, 1e-4);
}

TEST(Glow, BloomOnlyAddsLightGloomOnlyTakesIt)
{
    const CIBitmap source = smooth(90, 70);
    const CIBitmap bright = result("CIBloom", source, {}), dark = result("CIGloom", source, {});
    expectEach(source, 0, [&](int x, int y, int c) {
        EXPECT_GE(at(bright, x, y, c) + 1e-6f, at(source, x, y, c));
        EXPECT_LE(at(dark, x, y, c), at(source, x, y, c) + 1e-6f);
        return double(at(source, x, y, c));
    });
    EXPECT_EQ(difference(result("CIBloom", source, {{"inputIntensity", 0}}), source).largest, 0);
    EXPECT_EQ(made("CIBloom", source, {}).extent(), (CIRect{-31, -31, 152, 132}));
}
