// Warps and tiles: where single points of the picture go.
#include "platform/coreimage/graph/Projection.h"
#include "tests/coreimage/Pictures.h"

#include <gtest/gtest.h>

using namespace pictures;

namespace {

/// Red holds the column, green the row, counted from 0.5: what a warp reads tells where it looked.
CIBitmap places(int width, int height)
{
    CIBitmap bitmap(width, height, CIFormat::RGBAf, CIAlpha::Opaque, CIColorSpace::LinearSRGB);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const auto row = bitmap.mutableRow<float>(height - 1 - y);
            row[std::size_t(4 * x)] = float(x) + 0.5f;
            row[std::size_t(4 * x + 1)] = float(y) + 0.5f;
            row[std::size_t(4 * x + 2)] = 0;
            row[std::size_t(4 * x + 3)] = 1;
        }
    return bitmap;
}

std::shared_ptr<CIFilter> onPlaces(const std::string& name, int width, int height, const CIDictionary& values)
{
    auto made = filter(name, CIImage::fromBitmap(places(width, height)));
    for (const auto& [key, value] : values)
        made->setValueForKey(value, key);
    return made;
}

/// What the filter shows in pixel (x, y).
struct Seen {
    float x, y, alpha;
};
Seen seen(const CIFilter& filter, int x, int y)
{
    const CIBitmap pixel = rendered(filter.outputImage(), {double(x), double(y), 1, 1});
    return {at(pixel, 0, 0, 0), at(pixel, 0, 0, 1), at(pixel, 0, 0, 3)};
}
void expectSeen(const CIFilter& filter, int x, int y, CIPoint place, double within = 0.01)
{
    const Seen s = seen(filter, x, y);
    EXPECT_NEAR(s.alpha, 1, 1e-4f) << x << ", " << y;
    EXPECT_NEAR(double(s.x), place.x, within) << x << ", " << y;
    EXPECT_NEAR(double(s.y), place.y, within) << x << ", " << y;
}

} // namespace

TEST(Warp, PerspectiveTakesCornersToThePoints)
{
    const ci::Quadrilateral from = ci::Quadrilateral::of({0, 0, 60, 40});
    const ci::Quadrilateral to{{10, 5}, {70, 10}, {55, 50}, {20, 45}};
    const auto map = ci::Projection::between(from, to);
    ASSERT_TRUE(map);
    const CIPoint corner = map->map({60, 40}), back = map->inverted()->map({20, 45});
    EXPECT_NEAR(corner.x, 55, 1e-9);
    EXPECT_NEAR(corner.y, 50, 1e-9);
    EXPECT_NEAR(back.x, 0, 1e-9);
    EXPECT_NEAR(back.y, 40, 1e-9);
    EXPECT_FALSE(ci::Projection::between(from, {{0, 0}, {10, 10}, {20, 20}, {0, 30}})) << "three corners on a line";

    // Lines stay straight: the diagonals cross where the picture's middle goes.
    const CIPoint middle = map->map({30, 20});
    const auto onLine = [&](CIPoint a, CIPoint b) {
        return (b.x - a.x) * (middle.y - a.y) - (b.y - a.y) * (middle.x - a.x);
    };
    EXPECT_NEAR(onLine(to.bottomLeft, to.topRight), 0, 1e-9);
    EXPECT_NEAR(onLine(to.bottomRight, to.topLeft), 0, 1e-9);

    const auto filter = onPlaces("CIPerspectiveTransform", 60, 40,
        {{"inputBottomLeft", CIVector{10, 5}}, {"inputBottomRight", CIVector{70, 10}},
            {"inputTopRight", CIVector{55, 50}}, {"inputTopLeft", CIVector{20, 45}}});
    EXPECT_EQ(filter->outputImage().extent(), (CIRect{10, 5, 60, 45}));
    expectSeen(*filter, 40, 25, map->inverted()->map({40.5, 25.5}));
    EXPECT_EQ(seen(*filter, 11, 40).alpha, 0);
}

TEST(Warp, NothingIsSeenBeyondTheHorizon)
{
    const ci::Projection map{{1, 0, 0, 0, 1, 0, 0, 0.02, 1}}; // rows below y = -50 would come back from above
    const CIImage image = CIImage::fromBitmap(places(40, 200)).transformed(CIAffineTransform::translation(0, -100));
    EXPECT_LT(map.mapRect(image.extent()).height, 1000);
    const CIBitmap out = rendered(ci::projected(image, map, CIRect::infinite()), {0, 60, 40, 300});
    for (int y = 0; y < 300; ++y)
        EXPECT_EQ(at(out, 20, y, 3), 0);
}

TEST(Tile, AffineTileRepeatsWithoutSeams)
{
    const auto tile = onPlaces("CIAffineTile", 10, 8, {{"inputTransform", CIAffineTransform::translation(3, 0)}});
    for (int x = -25; x < 25; x += 7)
        expectSeen(*tile, x, -3, {double(((x - 3) % 10 + 10) % 10) + 0.5, 5.5});
    tile->setValueForKey(CIAffineTransform::scaling(2, 2), "inputTransform");
    expectSeen(*tile, 4, 4, {2.25, 2.25});
    expectSeen(*tile, 24, -12, {2.25, 2.25});
}

TEST(Warp, StraightenFillsTheFrame)
{
    for (const double angle : {0.1, -0.7, M_PI / 2}) {
        const auto filter = onPlaces("CIStraightenFilter", 90, 60, {{"inputAngle", angle}});
        const CIBitmap out = rendered(filter->outputImage(), {0, 0, 90, 60});
        for (const auto& [x, y] : {std::pair{0, 0}, {89, 0}, {0, 59}, {89, 59}}) {
            EXPECT_NEAR(at(out, x, y, 3), 1, 1e-5f);
            EXPECT_GT(at(out, x, y, 0), -0.01f);
        }
        expectSeen(*filter, 45, 30,
            [&] { // half a pixel from the middle, turned back and reduced
                const double c = std::cos(angle), s = std::sin(angle);
                const double scale = std::max(std::abs(c) + std::abs(s) / 1.5, std::abs(c) + std::abs(s) * 1.5);
                return CIPoint{45 + 0.5 * (c + s) / scale, 30 + 0.5 * (c - s) / scale};
            }());
    }
}

TEST(Warp, ShrinkingDoesNotAlias)
{
    CIBitmap stripes(256, 256, CIFormat::RGBAf, CIAlpha::Opaque, CIColorSpace::LinearSRGB);
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x)
            for (int c = 0; c < 4; ++c)
                stripes.mutableRow<float>(y)[std::size_t(4 * x + c)] = c == 3 ? 1 : float(x % 2);
    const CIImage small = CIImage::fromBitmap(stripes).transformed(CIAffineTransform::scaling(0.124, 0.124));
    const CIBitmap out = rendered(small, {4, 4, 20, 20});
    for (int x = 0; x < 20; ++x)
        EXPECT_NEAR(at(out, x, 10, 0), 0.5f, 0.06f);
}
