// Extents, grids, and what pixels become on their way in and out.
#include "platform/coreimage/CIPlugIn.h"
#include "platform/coreimage/Declaration.h"
#include "tests/coreimage/Pictures.h"

#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <thread>

using namespace pictures;

namespace {

double linear(double coded) { return coded <= 0.04045 ? coded / 12.92 : std::pow((coded + 0.055) / 1.055, 2.4); }

bool sameBytes(const CIBitmap& p, const CIBitmap& q)
{
    if (p.width() != q.width() || p.height() != q.height() || p.format() != q.format())
        return false;
    for (int y = 0; y < p.height(); ++y)
        if (std::memcmp(p.row(y), q.row(y), std::size_t(p.width()) * bytesPerPixel(p.format())) != 0)
            return false;
    return true;
}

} // namespace

TEST(Rectangles, InfiniteAndEmptyOnesFollowSetRules)
{
    const CIRect all = CIRect::infinite(), some{2, 3, 10, 20}, none;
    EXPECT_TRUE(all.isInfinite());
    EXPECT_FALSE(some.isInfinite());
    EXPECT_EQ(all.intersected(some), some);
    EXPECT_TRUE(all.united(some).isInfinite());
    EXPECT_EQ(none.united(some), some);
    EXPECT_TRUE(some.intersected({100, 0, 5, 5}).isEmpty());
    EXPECT_EQ((CIRect{0.5, -0.5, 1, 1}.roundedOut()), (CIRect{0, -1, 2, 2}));
    EXPECT_TRUE(CIAffineTransform::scaling(3, 3).mapRect(all).isInfinite());
}

TEST(Transforms, ThenAndInvertedUndoEachOther)
{
    const CIAffineTransform t = CIAffineTransform::rotation(0.4).then({2, 0.5, -1, 3, 7, -9});
    const CIPoint p{3, 4}, back = t.inverted()->map(t.map(p));
    EXPECT_NEAR(back.x, p.x, 1e-12);
    EXPECT_NEAR(back.y, p.y, 1e-12);
    EXPECT_FALSE((CIAffineTransform{1, 2, 2, 4, 0, 0}.inverted()));
    const CIPoint rotatedFirst =
        CIAffineTransform::rotation(M_PI / 2).then(CIAffineTransform::translation(10, 0)).map({1, 0});
    EXPECT_NEAR(rotatedFirst.x, 10, 1e-12);
    EXPECT_NEAR(rotatedFirst.y, 1, 1e-12);
}

TEST(Pixels, EveryCodeComesBackBitForBit)
{
    CIBitmap codes(256, 4, CIFormat::RGBA8, CIAlpha::Straight);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 256; ++x)
            for (int c = 0; c < 4; ++c)
                codes.mutableRow<std::uint8_t>(y)[std::size_t(4 * x + c)] =
                    std::uint8_t(c == 3 ? 255 - 60 * y : (x + 85 * c) % 256);
    const CIImage image = CIImage::fromBitmap(codes);
    for (auto arithmetic : {CIContext::Arithmetic::Batches, CIContext::Arithmetic::Floats})
        EXPECT_TRUE(sameBytes(CIContext(arithmetic).render(image, image.extent()), codes));

    CIBitmap words(4096, 16, CIFormat::RGBA16, CIAlpha::Opaque);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 4096; ++x)
            for (int c = 0; c < 4; ++c)
                words.mutableRow<std::uint16_t>(y)[std::size_t(4 * x + c)] =
                    std::uint16_t(c == 3 ? 65535 : 4096 * y + x);
    const CIImage deep = CIImage::fromBitmap(words);
    EXPECT_TRUE(sameBytes(CIContext().render(deep, deep.extent(), 1, CIFormat::RGBA16, CIAlpha::Opaque), words));
}

TEST(Pixels, ConversionsStayWithinHalfAStepOfTheCurve)
{
    CIBitmap ramp(100001, 1, CIFormat::RGBAf, CIAlpha::Opaque, CIColorSpace::LinearSRGB);
    const auto values = ramp.mutableRow<float>(0);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = i % 4 == 3 ? 1.0f : float(i / 4) / 100000.0f;
    const CIBitmap codes = CIContext().render(CIImage::fromBitmap(ramp), {0, 0, 100001, 1});
    double worst = 0;
    for (int i = 0; i <= 100000; ++i) {
        const double v = i / 100000.0,
                     exact = 255 * (v <= 0.0031308 ? 12.92 * v : 1.055 * std::pow(v, 1 / 2.4) - 0.055);
        worst = std::max(worst, std::abs(exact - codes.row<std::uint8_t>(0)[std::size_t(4 * i)]));
    }
    EXPECT_LT(worst, 0.54); // half a step is rounding's own share

    const CIBitmap source = noise8(256, 8);
    const CIBitmap light = rendered(CIImage::fromBitmap(source), {0, 0, 256, 8});
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 256; ++x)
            ASSERT_NEAR(
                at(light, x, 7 - y, 1), linear(source.row<std::uint8_t>(y)[std::size_t(4 * x + 1)] / 255.0), 5e-6);
}

TEST(Images, KeepTheirPlaceUnderShiftsCropsAndClamps)
{
    const CIBitmap source = noise(21, 13);
    const CIImage image = CIImage::fromBitmap(source);
    const CIImage moved = image.transformed(CIAffineTransform::translation(5, -3));
    EXPECT_EQ(moved.extent(), (CIRect{5, -3, 21, 13}));
    EXPECT_EQ(difference(rendered(moved, moved.extent()), rendered(image, image.extent())).largest, 0);

    const CIImage cropped = image.cropped({4, 2, 6, 100});
    EXPECT_EQ(cropped.extent(), (CIRect{4, 2, 6, 11}));
    const CIBitmap around = rendered(cropped, {3, 1, 8, 13});
    EXPECT_EQ(at(around, 0, 5, 3), 0);
    EXPECT_EQ(at(around, 1, 1, 0), at(source, 4, 2, 0));

    const CIImage clamped = image.clampedToExtent();
    EXPECT_TRUE(clamped.extent().isInfinite());
    const CIBitmap far = rendered(clamped, {-40, -30, 100, 80});
    EXPECT_EQ(at(far, 0, 0, 2), at(source, 0, 0, 2));
    EXPECT_EQ(at(far, 99, 79, 2), at(source, 20, 12, 2));
    EXPECT_EQ(at(far, 45, 0, 1), at(source, 5, 0, 1));
}

TEST(Images, QuarterTurnsMoveWholePixels)
{
    const CIBitmap source = noise8(19, 11);
    const CIImage turned = CIImage::fromBitmap(source).transformed({0, 1, -1, 0, 11, 0}); // counterclockwise
    EXPECT_EQ(turned.extent(), (CIRect{0, 0, 11, 19}));
    const CIBitmap out = CIContext().render(turned, turned.extent());
    for (int y = 0; y < 19; ++y)
        for (int x = 0; x < 11; ++x) // what was on the right is on top
            EXPECT_EQ(out.row<std::uint32_t>(y)[std::size_t(x)], source.row<std::uint32_t>(x)[std::size_t(18 - y)]);
}

TEST(Images, ReducedOnesAreTheMeanOfWhatTheyCover)
{
    const CIBitmap source = noise(120, 90);
    const CIImage image = CIImage::fromBitmap(source);
    for (const int n : {2, 3, 5, 10}) {
        const CIBitmap small = rendered(image, image.extent(), 1.0 / n);
        ASSERT_EQ(small.width(), 120 / n);
        double worst = 0;
        for (int y = 0; y < 90 / n; ++y)
            for (int x = 0; x < 120 / n; ++x) {
                double sum = 0;
                for (int k = 0; k < n * n; ++k)
                    sum += double(at(source, x * n + k % n, y * n + k / n, 0));
                worst = std::max(worst, std::abs(sum / (n * n) - double(at(small, x, y, 0))));
            }
        EXPECT_LT(worst, n > 4 && n % 4 ? 0.2 : 1e-4) << n; // beyond that the halved copies' pixels straddle the cells
    }
}

TEST(Pixels, TablesOfCodesGiveWhatTheKernelsGive)
{
    const CIBitmap source = noise8(150, 40);
    const CIImage image = CIImage::fromBitmap(source).cropped({3, 2, 140, 30});
    const auto brighter = filter("CIExposureAdjust", image);
    brighter->setValueForKey(0.7, "inputEV");
    const CIImage chain = filter("CIColorInvert", brighter->outputImage())->outputImage();
    for (const CIFormat format : {CIFormat::RGBA8, CIFormat::BGRA8}) {
        const CIBitmap quick = CIContext().render(chain, {10, 4, 100, 20}, 1, format);
        const CIBitmap plain = CIContext(CIContext::Arithmetic::Floats).render(chain, {10, 4, 100, 20}, 1, format);
        int worst = 0;
        for (int y = 0; y < 20; ++y)
            for (std::size_t i = 0; i < 400; ++i)
                worst = std::max(worst, std::abs(quick.row<std::uint8_t>(y)[i] - plain.row<std::uint8_t>(y)[i]));
        EXPECT_LE(worst, 1);
    }
}

TEST(Filters, UnknownNamesKeysAndMissingImagesAreHarmless)
{
    EXPECT_FALSE(CIFilter::filterWithName("CINoSuchFilter"));
    EXPECT_EQ(CIFilter::localizedNameForFilterName("CINoSuchFilter"), "CINoSuchFilter");
    const auto f = CIFilter::filterWithName("CIGaussianBlur");
    f->setValueForKey(3, "inputNoSuchKey");
    EXPECT_TRUE(f->valueForKey("inputNoSuchKey").isNothing());
    EXPECT_TRUE(f->outputImage().isNull());
    EXPECT_TRUE(CIContext().render(CIImage(), {0, 0, 5, 5}).isNull());
    EXPECT_TRUE(CIContext().render(CIImage::fromColor({1, 0, 0}), CIRect::infinite()).isNull());
}

TEST(GaussianBlur, SpreadsAPointByItsStandardDeviation)
{
    CIBitmap point(1, 1, CIFormat::RGBAf, CIAlpha::Premultiplied, CIColorSpace::LinearSRGB);
    std::ranges::fill(point.mutableRow<float>(0), 1.0f);
    for (const double sigma : {0.8, 2.0, 7.0, 23.0, 100.0}) {
        const auto f = filter("CIGaussianBlur", CIImage::fromBitmap(point));
        f->setValueForKey(sigma, "inputRadius");
        const int half = int(std::ceil(4 * sigma)) + 2;
        const CIBitmap out = rendered(f->outputImage(), {double(-half), double(-half), 2.0 * half + 1, 2.0 * half + 1});
        double sum = 0, squares = 0;
        for (int y = -half; y <= half; ++y)
            for (int x = -half; x <= half; ++x) {
                const double v = double(at(out, x + half, y + half, 3));
                sum += v;
                squares += v * x * x;
            }
        EXPECT_NEAR(sum, 1, 6e-3) << sigma; // the extent ends at three sigma
        EXPECT_NEAR(std::sqrt(squares / sum), sigma, 0.025 * sigma) << sigma;
    }
}

TEST(Context, ARenderCanBeCancelledAtOnce)
{
    const CIImage image = CIImage::fromBitmap(noise8(3000, 2000));
    const auto f = filter("CIGaussianBlur", image);
    f->setValueForKey(100, "inputRadius");
    CIRenderControl control;
    std::thread impatient([&] {
        while (control.progress() <= 0)
            std::this_thread::yield();
        control.cancel();
    });
    const CIBitmap out =
        CIContext().render(f->outputImage(), {0, 0, 3000, 2000}, 1, CIFormat::RGBA8, CIAlpha::Straight, &control);
    impatient.join();
    EXPECT_TRUE(out.isNull());
    EXPECT_LT(control.progress(), 1);
}

TEST(PlugIns, BrokenOnesAreSkippedAndNamed)
{
    const auto folder = std::filesystem::temp_directory_path() / "lumivex-broken-plug-ins";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "broken.so") << "not a library";
    const auto skipped = CIPlugIn::loadPlugIns(folder);
    ASSERT_EQ(skipped.size(), 1u);
    EXPECT_NE(skipped[0].find("broken.so"), std::string::npos);
    std::filesystem::remove_all(folder);
    EXPECT_TRUE(CIPlugIn::loadPlugIns(folder).empty());

    EXPECT_TRUE(CIPlugIn::loadPlugIns(EXAMPLE_PLUG_IN_DIR).empty());
    const auto f = CIFilter::filterWithName("ExampleHalveFilter");
    ASSERT_TRUE(f);
    f->setDefaults();
    f->setValueForKey(CIImage::fromColor({1, 1, 1}), "inputImage");
    EXPECT_NEAR(at(rendered(f->outputImage(), {0, 0, 1, 1}), 0, 0, 0), 0.5, 1e-6);
}
