// Generators and gradients.
#include "platform/coreimage/CITextRenderer.h"
#include "tests/coreimage/Colors.h"

using namespace pictures;

namespace {

CIImage made(const std::string& name, const CIDictionary& inputs = {})
{
    const auto f = CIFilter::filterWithName(name);
    f->setDefaults();
    for (const auto& [key, value] : inputs)
        f->setValueForKey(value, key);
    return f->outputImage();
}

} // namespace

TEST(Random, IsUniformWithoutCorrelationAndRepeats)
{
    const CIImage noise = made("CIRandomGenerator");
    const CIBitmap out = rendered(noise, {0, 0, 257, 257});
    double sum[4] = {}, squares = 0, neighbors = 0;
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x) {
            for (int c = 0; c < 4; ++c)
                sum[c] += double(at(out, x, y, c));
            const double v = double(at(out, x, y, 3)) - 0.5;
            squares += v * v;
            neighbors += v * (double(at(out, x + 1, y, 3)) - 0.5);
        }
    for (const double s : sum)
        EXPECT_NEAR(s / 65536, 0.5, 0.01);
    EXPECT_NEAR(squares / 65536, 1 / 12.0, 0.002);
    EXPECT_LT(std::abs(neighbors / squares), 0.02);
    EXPECT_EQ(difference(rendered(noise, {-256, 512, 9, 9}), rendered(noise, {0, 0, 9, 9})).largest, 0);
}

TEST(DistanceGradient, MeasuresToTheNearestMarkedPixel)
{
    const CIBitmap mask = painted(40, 30, [](double x, double y) {
        const bool isMarked = (x == 5.5 && y == 7.5) || (y == 20.5 && (x == 30.5 || x == 31.5));
        return Color{isMarked ? 1.0 : 0.0, 0, 0, 1};
    });
    for (const double farthest : {20.0, 200.0}) {
        const CIImage distances = made("CIDistanceGradientFromRedMask",
            {{"inputImage", CIImage::fromBitmap(mask)}, {"inputMaximumDistance", farthest}});
        const CIBitmap out = rendered(distances, {-10, -10, 60, 50});
        for (int y = -10; y < 40; ++y)
            for (int x = -10; x < 50; ++x) {
                const double nearest =
                    std::min({std::hypot(x - 5, y - 7), std::hypot(x - 30, y - 20), std::hypot(x - 31, y - 20)});
                ASSERT_NEAR(at(out, x + 10, y + 10, 0), std::min(nearest / farthest, 1.0), 1e-5) << x << ", " << y;
            }
    }
}
