// Resizing: sums of shares, the rim, and what a plain double loop makes of a window.
#include "platform/coreimage/passes/Resample.h"
#include "platform/coreimage/passes/Rotation.h"
#include "tests/coreimage/Pictures.h"

#include <gtest/gtest.h>

using namespace pictures;

namespace {

double lanczos(double x)
{
    const auto sinc = [](double v) { return v == 0 ? 1 : std::sin(M_PI * v) / (M_PI * v); };
    return std::abs(x) < 3 ? sinc(x) * sinc(x / 3) : 0;
}

/// One pixel of the bitmap resized by `factor`, summed up over the whole window at once.
double slowLanczos(const CIBitmap& source, double factor, int column, int row, int c)
{
    const double spread = std::max(1.0, 1 / factor), x = (column + 0.5) / factor, y = (row + 0.5) / factor;
    double sum = 0, weights = 0;
    for (int j = int(y - 3 * spread) - 2; j < y + 3 * spread + 2; ++j)
        for (int i = int(x - 3 * spread) - 2; i < x + 3 * spread + 2; ++i) {
            const double weight = lanczos((i + 0.5 - x) / spread) * lanczos((j + 0.5 - y) / spread);
            weights += weight;
            sum += weight
                * double(at(source, std::clamp(i, 0, source.width() - 1), std::clamp(j, 0, source.height() - 1), c));
        }
    return sum / weights;
}

} // namespace

TEST(Resample, AgreesWithThePlainDoubleSum)
{
    const CIBitmap source = noise(37, 23);
    for (const double factor : {0.31, 0.5, 1.7, 6.0}) {
        SCOPED_TRACE(factor);
        const CIImage image = ci::lanczosScaled(CIImage::fromBitmap(source), factor, factor);
        const CIBitmap out = rendered(image, {0, 0, std::floor(37 * factor), std::floor(23 * factor)});
        for (int y = 0; y < out.height(); y += 3)
            for (int x = 0; x < out.width(); x += 2)
                for (int c = 0; c < 4; ++c)
                    ASSERT_NEAR(double(at(out, x, y, c)), slowLanczos(source, factor, x, y, c), 2e-5) << x << ", " << y;
    }
}

TEST(Resample, GivesTheSizeThatWasAskedFor)
{
    const CIImage image = CIImage::fromBitmap(noise8(33, 21)).transformed(CIAffineTransform::translation(-7, 90));
    for (const auto& [width, height] : {std::pair{66, 11}, {1, 1}, {20, 20}, {33, 21}}) {
        const CIImage out = ci::resampled(image, width, height);
        EXPECT_EQ(out.extent(), (CIRect{0, 0, double(width), double(height)}));
        const CIBitmap pixels = rendered(out, out.extent());
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                EXPECT_NEAR(at(pixels, x, y, 3), 1, 1e-5f) << "the rim of an opaque picture stays opaque";
    }
    EXPECT_TRUE(ci::resampled(image, 0, 5).isNull());
    EXPECT_EQ(
        difference(rendered(ci::resampled(image, 33, 21), {0, 0, 33, 21}), rendered(image, {-7, 90, 33, 21})).largest,
        0);
}

TEST(Resample, RowsMayBeAskedForInAnyTiles)
{
    const CIImage image = ci::lanczosScaled(CIImage::fromBitmap(noise(300, 411)), 1.3, 0.9);
    const CIBitmap whole = rendered(image, {0, 0, 390, 369}), part = rendered(image, {101, 203, 50, 9});
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < 50; ++x)
            ASSERT_NEAR(at(part, x, y, 1), at(whole, 101 + x, 203 + y, 1), 1e-6f);
}

TEST(Turning, LeavesSmoothPicturesAsTheyAreAtTheirNewPlaces)
{
    const CIImage waves = CIImage::fromBitmap(smooth(120, 90));
    const CIRect whole{0, 0, 120, 90};
    EXPECT_LT(difference(rendered(ci::turned(waves, {}), whole), rendered(waves, whole)).largest, 1e-6)
        << "no turn changes nothing";
    for (const double degrees : {3.0, -17.5, 45.0}) {
        SCOPED_TRACE(degrees);
        const auto motion =
            CIAffineTransform::rotation(degrees * M_PI / 180).then(CIAffineTransform::translation(40, 5));
        const CIPoint middle = motion.map({60, 45});
        const CIRect part{std::floor(middle.x) - 20, std::floor(middle.y) - 20, 40, 40};
        const CIBitmap out = rendered(ci::turned(waves, motion), part);
        const CIAffineTransform back = *motion.inverted();
        for (int y = 0; y < 40; ++y)
            for (int x = 0; x < 40; ++x) {
                const CIPoint from = back.map({part.x + x + 0.5, part.y + y + 0.5});
                for (int c = 0; c < 3; ++c) {
                    const double wave =
                        0.5 + 0.4 * std::sin(0.031 * (from.x - 0.5) * (c + 1) + 0.023 * (89.5 - from.y) * (3 - c));
                    ASSERT_NEAR(double(at(out, x, y, c)), wave, 1e-4);
                }
                ASSERT_EQ(at(out, x, y, 3), 1) << "what is opaque stays it";
            }
    }
}
