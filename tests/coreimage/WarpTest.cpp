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

TEST(Warp, TwirlTurnsCounterclockwiseByAFallingAngle)
{
    const auto twirl = onPlaces("CITwirlDistortion", 101, 101,
        {{"inputCenter", CIVector{50.5, 50.5}}, {"inputRadius", 40}, {"inputAngle", 2 * M_PI}});
    // Half way out a quarter of a full turn is left: what is right of the center comes above it.
    expectSeen(*twirl, 50, 70, {70.5, 50.5});
    expectSeen(*twirl, 50, 91, {50.5, 91.5});
    expectSeen(*twirl, 3, 8, {3.5, 8.5});
}

TEST(Warp, PinchLooksFartherOutWithinItsRadius)
{
    const auto pinch = onPlaces(
        "CIPinchDistortion", 101, 101, {{"inputCenter", CIVector{50.5, 50.5}}, {"inputRadius", 40}, {"inputScale", 1}});
    expectSeen(*pinch, 60, 50, {70.5, 50.5}); // a quarter out shows what is half way out
    expectSeen(*pinch, 50, 50, {50.5, 50.5});
    expectSeen(*pinch, 95, 50, {95.5, 50.5});
}

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

TEST(Tile, KaleidoscopeMirrorsSectors)
{
    const auto kaleidoscope =
        onPlaces("CIKaleidoscope", 80, 80, {{"inputCenter", CIVector{40, 40}}, {"inputCount", 2}});
    for (const auto& [x, y] : {std::pair{60, 50}, {19, 50}, {60, 29}, {19, 29}})
        expectSeen(*kaleidoscope, x, y, {60.5, 50.5});
    EXPECT_EQ(kaleidoscope->outputImage().extent(), (CIRect{-17, -17, 114, 114}));
}

TEST(Warp, ALinearBumpKeepsItsLineAndWhatIsFar)
{
    const auto bump = onPlaces("CIBumpDistortionLinear", 101, 101,
        {{"inputCenter", CIVector{50.5, 50.5}}, {"inputRadius", 40}, {"inputAngle", M_PI / 2}, {"inputScale", 0.5}});
    expectSeen(*bump, 50, 20, {50.5, 20.5});
    expectSeen(*bump, 95, 20, {95.5, 20.5});
    expectSeen(*bump, 70, 20, {50.5 + 20 * (1 - 0.5 * 0.5625), 20.5}); // half way: 1 - 1/4, squared
}

TEST(Warp, AHoleIsEmptyAndItsRimShowsTheCenter)
{
    const auto hole =
        onPlaces("CIHoleDistortion", 201, 201, {{"inputCenter", CIVector{100.5, 100.5}}, {"inputRadius", 40}});
    EXPECT_EQ(seen(*hole, 100, 120).alpha, 0);
    expectSeen(*hole, 180, 100, {100.5 + 60, 100.5}); // r - R^2 / r at 80
    expectSeen(*hole, 142, 100, {100.5 + 42 - 1600 / 42.0, 100.5});
}

TEST(Warp, SplashAndTunnelCarryTheCircleOutwards)
{
    const auto splash =
        onPlaces("CICircleSplashDistortion", 101, 101, {{"inputCenter", CIVector{50.5, 50.5}}, {"inputRadius", 20}});
    expectSeen(*splash, 50, 95, {50.5, 70.5});
    expectSeen(*splash, 55, 50, {55.5, 50.5});
    EXPECT_TRUE(splash->outputImage().extent().isInfinite());
    const auto tunnel = onPlaces("CILightTunnel", 101, 101,
        {{"inputCenter", CIVector{50.5, 50.5}}, {"inputRadius", 20}, {"inputRotation", M_PI / (2 * std::log(2))}});
    expectSeen(*tunnel, 90, 50, {50.5, 30.5}); // twice the radius out: a quarter turn back
    expectSeen(*tunnel, 60, 50, {60.5, 50.5});
}

TEST(Warp, GlassOfIndexOneChangesNothing)
{
    for (const char* name : {"CIGlassLozenge", "CITorusLensDistortion"}) {
        const CIImage source = CIImage::fromBitmap(places(400, 300));
        const auto glass = onPlaces(name, 400, 300, {{"inputRefraction", 1}});
        EXPECT_LT(
            difference(rendered(glass->outputImage(), {0, 0, 400, 300}), rendered(source, {0, 0, 400, 300})).largest,
            1e-3)
            << name;
    }
    // Straight down at 0.6 of the radius: sines 0.6 and 0.4 in glass of 1.5, height 0.8.
    const auto lozenge = onPlaces("CIGlassLozenge", 400, 300,
        {{"inputPoint0", CIVector{100, 150.5}}, {"inputPoint1", CIVector{300, 150.5}}, {"inputRadius", 100},
            {"inputRefraction", 1.5}});
    const double bend = std::tan(std::asin(0.6) - std::asin(0.4));
    expectSeen(*lozenge, 200, 210, {200.5, 150.5 + 100 * (0.6 - 0.8 * bend)});
}

TEST(Warp, DisplacementMovesByRedAndGreen)
{
    auto displaced = onPlaces("CIDisplacementDistortion", 100, 80, {{"inputScale", 40}});
    displaced->setValueForKey(CIImage::fromColor(CIColor(0.75, 0.5, 0)), "inputDisplacementImage");
    expectSeen(*displaced, 30, 30, {40.5, 30.5});
    displaced->setValueForKey(CIImage::fromColor(CIColor(0, 1, 0, 0)), "inputDisplacementImage");
    expectSeen(*displaced, 30, 30, {30.5, 30.5});
}

TEST(Warp, GlassBendsByTheSlopeOfARepeatedTexture)
{
    auto glass = onPlaces("CIGlassDistortion", 100, 80, {{"inputScale", 100}, {"inputCenter", CIVector{4, 3}}});
    CIBitmap ramp(8, 6, CIFormat::RGBAf, CIAlpha::Opaque, CIColorSpace::LinearSRGB);
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 8; ++x)
            for (int c = 0; c < 4; ++c)
                ramp.mutableRow<float>(y)[std::size_t(4 * x + c)] = c == 3 ? 1 : 0.02f * float(x);
    glass->setValueForKey(CIImage::fromBitmap(ramp), "inputTexture");
    expectSeen(*glass, 47, 30, {47.5 + 4, 30.5}); // 0.02 per pixel, over two pixels, times 100
    const CIImage image = glass->outputImage();
    expectSeen(*glass, 4 + 8 * 5 + 3, 50, {47.5 + 4, 50.5});
    EXPECT_EQ(image.extent(), (CIRect{0, 0, 100, 80}));
}

TEST(Warp, NinePartsKeepTheirCorners)
{
    for (const char* name : {"CINinePartStretched", "CINinePartTiled"}) {
        SCOPED_TRACE(name);
        const auto nine = onPlaces(name, 60, 40,
            {{"inputBreakpoint0", CIVector{20, 10}}, {"inputBreakpoint1", CIVector{40, 30}},
                {"inputGrowAmount", CIVector{40, 20}}});
        EXPECT_EQ(nine->outputImage().extent(), (CIRect{0, 0, 100, 60}));
        expectSeen(*nine, 5, 5, {5.5, 5.5});
        expectSeen(*nine, 95, 55, {55.5, 35.5});
    }
    const auto stretched = onPlaces("CINinePartStretched", 60, 40,
        {{"inputBreakpoint0", CIVector{20, 10}}, {"inputBreakpoint1", CIVector{40, 30}},
            {"inputGrowAmount", CIVector{40, 20}}});
    expectSeen(*stretched, 50, 30, {20 + 30.5 / 3, 20.25});
    const auto tiled = onPlaces("CINinePartTiled", 60, 40,
        {{"inputBreakpoint0", CIVector{20, 10}}, {"inputBreakpoint1", CIVector{40, 30}},
            {"inputGrowAmount", CIVector{40, 20}}});
    expectSeen(*tiled, 45, 15, {25.5, 15.5});
    expectSeen(*tiled, 45, 35, {25.5, 24.5}); // the second tile up is mirrored
}

TEST(Warp, StretchCropFillsTheSizeAndKeepsTheCenterUnstretched)
{
    auto crop = onPlaces("CIStretchCrop", 200, 100,
        {{"inputSize", CIVector{400, 100}}, {"inputCropAmount", 1}, {"inputCenterStretchAmount", 0}});
    EXPECT_EQ(crop->outputImage().extent(), (CIRect{0, 0, 400, 100}));
    expectSeen(*crop, 200, 50, {100.25, 50.25});
    expectSeen(*crop, 100, 20, {50.25, 25 + 10.25}); // twice as large, the upper and lower quarter are cut off
    crop->setValueForKey(0, "inputCropAmount");
    expectSeen(*crop, 205, 20, {100 + 5.5 / (1 + 5.5 / 200), 20.5});
    EXPECT_NEAR(seen(*crop, 399, 20).x, 199.5, 0.01);
}

TEST(Warp, DrosteShowsTheWholeInItsInset)
{
    // Without strands: plain copies, the inset a fifth of the frame.
    const auto droste = onPlaces("CIDroste", 500, 500,
        {{"inputInsetPoint0", CIVector{200, 200}}, {"inputInsetPoint1", CIVector{300, 300}}, {"inputStrands", 0}});
    expectSeen(*droste, 120, 400, {120.5, 400.5});
    expectSeen(*droste, 224, 280, {250 + 5 * -25.5, 250 + 5 * 30.5});
    expectSeen(*droste, 252, 246, {250 + 25 * 2.5, 250 - 25 * 3.5});
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

TEST(Warp, CorrectionUndoesPerspective)
{
    const CIDictionary corners{{"inputBottomLeft", CIVector{20, 10}}, {"inputBottomRight", CIVector{220, 10}},
        {"inputTopRight", CIVector{180, 110}}, {"inputTopLeft", CIVector{60, 110}}};
    auto there = onPlaces("CIPerspectiveTransform", 200, 100, corners);
    auto back = filter("CIPerspectiveCorrection", there->outputImage());
    for (const auto& [key, value] : corners)
        back->setValueForKey(value, key);
    const CIRect extent = back->outputImage().extent();
    EXPECT_EQ(extent.width, 200);
    EXPECT_NEAR(extent.height, std::hypot(40, 100), 1e-9);
    const Seen s = seen(*back, 100, 53);
    EXPECT_NEAR(s.x, 100.5, 0.05);
    EXPECT_NEAR(double(s.y), 53.5 * 100 / extent.height, 0.3);
}

TEST(Warp, KeystoneMakesTheSidesUpright)
{
    const CIDictionary leaning{{"inputBottomLeft", CIVector{40, 20}}, {"inputBottomRight", CIVector{260, 20}},
        {"inputTopRight", CIVector{220, 180}}, {"inputTopLeft", CIVector{80, 180}}};
    auto keystone = onPlaces("CIKeystoneCorrectionVertical", 300, 200, leaning);
    const CIImage out = keystone->outputImage();
    // The places seen along one column of the result lie on the leaning side through (40, 20) and (80, 180).
    int column = 0;
    const CIBitmap pixels = rendered(out, out.extent());
    const auto onSide = [&](int x, int y) {
        return double(at(pixels, x, y, 0)) - (40 + (double(at(pixels, x, y, 1)) - 20) / 4);
    };
    const int low = pixels.height() / 4, high = 3 * pixels.height() / 4;
    while (column < pixels.width() && (at(pixels, column, low, 3) < 1 || onSide(column, low) < 0))
        ++column;
    ASSERT_LT(column, pixels.width());
    EXPECT_NEAR(onSide(column, high), onSide(column, low), 1.5);
    EXPECT_EQ(filter("CIKeystoneCorrectionCombined", CIImage::fromBitmap(places(9, 9)))->outputImage().extent(),
        (CIRect{0, 0, 9, 9}))
        << "without points nothing is corrected";
}

TEST(Tile, SymmetriesHoldAndTheFirstTileStays)
{
    struct Case {
        const char* name;
        CIPoint from, to; // pixels that show the same
    };
    const double w = 40, hex = w * std::sqrt(3);
    const auto about = [](CIPoint p, double degrees) {
        const CIPoint t = CIAffineTransform::rotation(degrees * M_PI / 180).map(p);
        return t;
    };
    const CIPoint p{13.5, 6.5};
    for (const Case& c :
        {Case{"CIFourfoldTranslatedTile", p, {p.x - w, p.y + 2 * w}},
            Case{"CIFourfoldReflectedTile", p, {-p.x, p.y + 2 * w}}, Case{"CIParallelogramTile", p, {p.x, -p.y}},
            Case{"CIFourfoldRotatedTile", p, about(p, 90)}, Case{"CIFourfoldRotatedTile", p, about(p, 270)},
            Case{"CIFourfoldRotatedTile", p, {2 * w - p.x, -p.y}}, Case{"CIGlideReflectedTile", p, {p.x - w / 2, -p.y}},
            Case{"CIEightfoldReflectedTile", p, {p.y, p.x}}, Case{"CIEightfoldReflectedTile", p, {2 * w - p.x, p.y}},
            Case{"CISixfoldReflectedTile", {13.5, 19.5}, {-13.5, 19.5}},
            Case{"CISixfoldReflectedTile", {13.5, 19.5}, about({13.5, 19.5}, 120)},
            Case{"CISixfoldReflectedTile", {13.5, 19.5}, {13.5 + hex, 19.5}},
            Case{"CISixfoldRotatedTile", p, about(p, 60)}, Case{"CISixfoldRotatedTile", p, about(p, 180)},
            Case{"CITwelvefoldReflectedTile", p, {-p.x, p.y}}, Case{"CITwelvefoldReflectedTile", p, about(p, 60)},
            Case{"CITwelvefoldReflectedTile", p, {hex - p.x, -p.y}}, Case{"CITriangleTile", p, {w - p.x, -p.y}},
            Case{"CITriangleTile", p, {p.x + 2 * w, p.y}}}) {
        SCOPED_TRACE(c.name);
        const auto tile = onPlaces(c.name, 200, 200, {{"inputCenter", CIVector{100, 100}}, {"inputWidth", w}});
        expectSeen(*tile, int(100 + c.from.x), int(100 + c.from.y), {100 + c.from.x, 100 + c.from.y});
        // The other place is no pixel center: compare with what lies around it.
        const CIPoint to{100 + c.to.x - 0.5, 100 + c.to.y - 0.5};
        const int x = int(std::floor(to.x)), y = int(std::floor(to.y));
        const double fx = to.x - x, fy = to.y - y;
        double sum[2] = {};
        for (int i = 0; i < 4; ++i) {
            const Seen s = seen(*tile, x + i % 2, y + i / 2);
            const double share = (i % 2 ? fx : 1 - fx) * (i / 2 ? fy : 1 - fy);
            sum[0] += share * double(s.x), sum[1] += share * double(s.y);
        }
        EXPECT_NEAR(sum[0], 100 + c.from.x, 0.02);
        EXPECT_NEAR(sum[1], 100 + c.from.y, 0.02);
        EXPECT_TRUE(tile->outputImage().extent().isInfinite());
    }
}

TEST(Tile, OpTileReducesAroundEachMiddle)
{
    const auto tile = onPlaces(
        "CIOpTile", 300, 300, {{"inputCenter", CIVector{150.5, 150.5}}, {"inputWidth", 20}, {"inputScale", 3}});
    expectSeen(*tile, 150, 150, {150.5, 150.5}, 0.05);
    expectSeen(*tile, 174, 150, {170.5 + 3 * 4, 150.5}, 0.05);
}

TEST(Tile, TriangleKaleidoscopeFadesOutwards)
{
    const auto tile = onPlaces("CITriangleKaleidoscope", 300, 300,
        {{"inputPoint", CIVector{150, 150}}, {"inputSize", 60}, {"inputRotation", 0}, {"inputDecay", 0.5}});
    expectSeen(*tile, 152, 148, {152.5, 148.5});
    const double radius = 60 / std::sqrt(3);
    const Seen near = seen(*tile, 150, int(150 + 2 * radius)), far = seen(*tile, 150, int(150 + 5 * radius));
    EXPECT_GT(near.x, 2 * far.x);
    EXPECT_EQ(far.alpha, 1);
}

TEST(Tile, ClampsRepeatTheEdges)
{
    const auto clamp = onPlaces("CIClamp", 60, 50, {{"inputExtent", CIVector{10, 20, 30, 10}}});
    expectSeen(*clamp, 70, -5, {39.5, 20.5});
    expectSeen(*clamp, 15, 25, {15.5, 25.5});
    const auto affine = onPlaces("CIAffineClamp", 60, 50, {{"inputTransform", CIAffineTransform::translation(100, 0)}});
    expectSeen(*affine, 20, 70, {0.5, 49.5});
    expectSeen(*affine, 110, 10, {10.5, 10.5});
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
