// Lens and mask blurs, noise reduction, drawings and lights.
#include "tests/coreimage/Neighborhood.h"

using namespace pictures;

TEST(DiscBlur, IsTheMeanOverTheDisc)
{
    // Small discs cell by cell, large ones on a halved image: both as the mean of finely spaced points.
    for (const auto& [radius, tolerance] : {std::pair{4.0, 2e-3}, {30.0, 8e-3}}) {
        const CIBitmap source = smooth(120, 100);
        const CIBitmap out = result("CIDiscBlur", source, {{"inputRadius", radius}});
        for (const auto& [x, y] : {std::pair{60, 50}, {45, 61}}) {
            double sum = 0, count = 0;
            for (double dy = -radius; dy <= radius; dy += 0.25)
                for (double dx = -radius; dx <= radius; dx += 0.25)
                    if (dx * dx + dy * dy <= radius * radius) {
                        sum += double(at(source, int(x + 0.5 + dx), int(y + 0.5 + dy), 0));
                        ++count;
                    }
            EXPECT_NEAR(at(out, x, y, 0), sum / count, tolerance) << radius;
        }
        EXPECT_NEAR(at(out, 60, 50, 3), 1, 1e-5);
    }
    // A single pixel spread over thousands is not lost.
    const CIBitmap wide = rendered(made("CIDiscBlur", dot(1, 1, 0, 0), {{"inputRadius", 100}}), {-110, -110, 220, 220});
    double light = 0;
    for (int y = 0; y < 220; ++y)
        for (int x = 0; x < 220; ++x)
            light += double(at(wide, x, y, 0));
    EXPECT_NEAR(light, 1, 0.05); // a little falls beyond the extent
    // The outline is round and lies at the radius.
    const CIBitmap spot = result("CIDiscBlur", dot(61, 61, 30, 30), {{"inputRadius", 10}});
    const double level = 1 / (M_PI * 100 + 1);
    EXPECT_NEAR(at(spot, 39, 30, 0), level, 1e-5);
    EXPECT_NEAR(at(spot, 36, 36, 0), level, 1e-5);
    EXPECT_LT(at(spot, 40, 30, 0), 0.7 * level);
    EXPECT_EQ(at(spot, 38, 38, 0), 0);
}

TEST(Canny, FollowsALineForAsManyPixelsAsThereArePasses)
{
    // A ridge that fades below the upper threshold.
    const auto length = [](int passes) {
        const CIBitmap fading =
            painted(60, 30, [](double x, double y) { return gray(y > 15 ? 0.002 * (x - 0.5) : 0); });
        const CIBitmap lines = result("CICannyEdgeDetector", fading,
            {{"inputGaussianSigma", 0}, {"inputThresholdHigh", 0.08}, {"inputThresholdLow", 0.01},
                {"inputHysteresisPasses", passes}});
        float sum = 0;
        for (int x = 0; x < 50; ++x)
            for (int y = 12; y < 18; ++y)
                sum += at(lines, x, y, 0);
        return sum;
    };
    EXPECT_EQ(length(4) - length(0), 4);
}

TEST(SampleNearest, ShowsSquaresWhenEnlarged)
{
    const CIBitmap source = noise8(9, 7);
    const CIImage image = made("CISampleNearest", source, {});
    EXPECT_EQ(
        difference(rendered(image, image.extent()), rendered(CIImage::fromBitmap(source), image.extent())).largest, 0);
    const CIBitmap large = rendered(image, image.extent(), 4);
    for (int x = 0; x < 36; ++x)
        EXPECT_NEAR(at(large, x, 9, 0), at(large, x / 4 * 4, 10, 0), 1e-5) << x;
}
