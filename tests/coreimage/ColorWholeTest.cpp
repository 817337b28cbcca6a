// Color filters that measure: white points, Lab, palettes, whole pictures.
#include "tests/coreimage/Colors.h"

using namespace pictures;

namespace {

/// Left half `dark`, right half `light`, with a ramp of `spread` across each.
CIImage halves(double dark, double light, double spread)
{
    return CIImage::fromBitmap(painted(64, 32,
        [=](double x, double y) { return gray(linear((x < 32 ? dark : light) + spread * ((y - 0.5) / 31 - 0.5))); }));
}

} // namespace

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
    const CIImage image = CIImage::fromBitmap(painted(300, 200, [](double x, double) {
        const double paper = 0.25 + 0.5 * x / 300;
        return gray(std::fmod(x, 30) < 2 ? 0.1 * paper : paper);
    }));
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
