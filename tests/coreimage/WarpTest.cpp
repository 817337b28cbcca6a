// Warps and tiles: where single points of the picture go.
#include "platform/coreimage/graph/Projection.h"
#include "tests/coreimage/Pictures.h"

#include <gtest/gtest.h>

using namespace pictures;

TEST(Warp, NothingIsSeenBeyondTheHorizon)
{
    const ci::Projection map{{1, 0, 0, 0, 1, 0, 0, 0.02, 1}}; // rows below y = -50 would come back from above
    const CIImage image = CIImage::fromBitmap(smooth(40, 200)).transformed(CIAffineTransform::translation(0, -100));
    EXPECT_LT(map.mapRect(image.extent()).height, 1000);
    const CIBitmap out = rendered(ci::projected(image, map, CIRect::infinite()), {0, 60, 40, 300});
    for (int y = 0; y < 300; ++y)
        EXPECT_EQ(at(out, 20, y, 3), 0);
}

TEST(Warp, StraightenFillsTheFrame)
{
    for (const double angle : {0.1, -0.7, M_PI / 2}) {
        const auto f = filter("CIStraightenFilter", CIImage::fromBitmap(smooth(90, 60)));
        f->setValueForKey(angle, "inputAngle");
        const CIBitmap out = rendered(f->outputImage(), {0, 0, 90, 60});
        for (const auto& [x, y] : {std::pair{0, 0}, {89, 0}, {0, 59}, {89, 59}})
            EXPECT_NEAR(at(out, x, y, 3), 1, 1e-5f) << angle;
    }
}

TEST(Warp, ShrinkingDoesNotAlias)
{
    const CIBitmap stripes = painted(256, 256, [](double x, double) { return gray(std::fmod(x, 2) > 1 ? 1 : 0); });
    const CIImage small = CIImage::fromBitmap(stripes).transformed(CIAffineTransform::scaling(0.124, 0.124));
    const CIBitmap out = rendered(small, {4, 4, 20, 20});
    for (int x = 0; x < 20; ++x)
        EXPECT_NEAR(at(out, x, 10, 0), 0.5f, 0.06f);
}
