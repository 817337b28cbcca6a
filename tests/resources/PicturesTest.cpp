#include <gtest/gtest.h>

#include <vips/vips8>

#include <array>
#include <cmath>
#include <filesystem>
#include <numbers>

namespace {

using vips::VImage;

class Pictures : public testing::Test {
protected:
    static void SetUpTestSuite() { ASSERT_EQ(VIPS_INIT("PicturesTest"), 0); }

    static std::string path(const std::string& name) { return std::string(LUMIVEX_PICTURES) + "/" + name; }
    static VImage read(const std::string& name) { return VImage::new_from_file(path(name).c_str()); }

    static void expectShape(const VImage& image, int width, int height, int bands)
    {
        EXPECT_EQ(image.width(), width);
        EXPECT_EQ(image.height(), height);
        EXPECT_EQ(image.bands(), bands);
    }
    static double largestStep(const VImage& a, const VImage& b)
    {
        return (a.cast(VIPS_FORMAT_DOUBLE) - b.cast(VIPS_FORMAT_DOUBLE)).abs().max();
    }
    static double linear(double stored) // IEC 61966-2-1
    {
        return stored <= 0.04045 ? stored / 12.92 : std::pow((stored + 0.055) / 1.055, 2.4);
    }
    /// Share of the picture's samples below `threshold` in linear light.
    static double shareBelow(const VImage& grey16, double threshold)
    {
        double lower = 0, upper = 65535;
        while (upper - lower > 0.5)
            (linear((lower + upper) / 2 / 65535) < threshold ? lower : upper) = (lower + upper) / 2;
        return (grey16 < lower).avg() / 255;
    }
};

} // namespace

TEST_F(Pictures, SmoothTextureTilesAndPushesToAllSidesAlike)
{
    const VImage texture = read("smoothtexture.tiff");
    expectShape(texture, 512, 512, 1);
    const double inside = largestStep(texture.crop(0, 0, 511, 512), texture.crop(1, 0, 511, 512));
    EXPECT_LT(inside, 65535 * 0.03);
    EXPECT_LE(largestStep(texture.crop(0, 0, 1, 512), texture.crop(511, 0, 1, 512)), inside * 1.2);
    EXPECT_LE(largestStep(texture.crop(0, 0, 512, 1), texture.crop(0, 511, 512, 1)), inside * 1.2);

    double light = 0;
    for (int y = 0; y < 512; y += 8)
        for (int x = 0; x < 512; x += 8)
            light += linear(texture.getpoint(x, y)[0] / 65535) / (64 * 64);
    EXPECT_NEAR(light, 0.5, 0.01);
}

TEST_F(Pictures, LightBallIsARoundBallFromEdgeToEdge)
{
    const VImage ball = read("lightball.tiff");
    expectShape(ball, 512, 512, 3);
    const std::vector<double> surround = ball.getpoint(0, 0);
    int edgesSeen = 0;
    for (int degrees = 0; degrees < 360; degrees += 5) {
        SCOPED_TRACE(degrees);
        const double c = std::cos(degrees * std::numbers::pi / 180), s = std::sin(degrees * std::numbers::pi / 180);
        edgesSeen += ball.getpoint(int(256 + 253 * c), int(256 + 253 * s)) != surround;
        const int x = int(256 + 258 * c), y = int(256 + 258 * s);
        if (x >= 0 && x < 512 && y >= 0 && y < 512) {
            EXPECT_EQ(ball.getpoint(x, y), surround);
        }
    }
    EXPECT_GE(edgesSeen, 68) << "of 72; the shading may cross the surround's grey here and there";
    EXPECT_GT(ball.max(), 240) << "no gloss";
    EXPECT_GT(ball.getpoint(170, 140)[1], ball.getpoint(340, 400)[1] + 60) << "light comes from the upper left";
}

TEST_F(Pictures, RestrictedShineIsMostlyClearWithASoftHighlight)
{
    const VImage shine = read("restrictedshine.tiff");
    expectShape(shine, 256, 256, 4);
    const VImage alpha = shine.extract_band(3);
    EXPECT_LT(alpha.percent(60), 40);
    EXPECT_GT(alpha.max(), 200);
    EXPECT_LT(largestStep(alpha.crop(0, 0, 255, 256), alpha.crop(1, 0, 255, 256)), 10);
    EXPECT_LT(largestStep(alpha.crop(0, 0, 256, 255), alpha.crop(0, 1, 256, 255)), 10);
}

TEST_F(Pictures, ColorMapRisesFromDarkToBright)
{
    const VImage map = read("colormap.tiff");
    expectShape(map, 256, 16, 3);
    double before = -1;
    for (int x = 0; x < 256; ++x) {
        const std::vector<double> color = map.getpoint(x, 8);
        EXPECT_EQ(map.getpoint(x, 0), color);
        const double luma =
            0.2126 * linear(color[0] / 255) + 0.7152 * linear(color[1] / 255) + 0.0722 * linear(color[2] / 255);
        EXPECT_GE(luma, before) << x;
        before = luma;
    }
    EXPECT_GT(before, 0.85);
}

TEST_F(Pictures, MaskRevealsEvenlyOverTheWholeRange)
{
    const VImage mask = read("mask.tiff");
    expectShape(mask, 1000, 750, 1);
    EXPECT_EQ(mask.min(), 0);
    EXPECT_EQ(mask.max(), 65535);
    for (const double time : {0.1, 0.25, 0.5, 0.75, 0.9})
        EXPECT_NEAR(shareBelow(mask, time), time, 0.01);
}

TEST_F(Pictures, MarkerIsSixteenSquareClearAtItsCorners)
{
    const VImage marker = read("16x16c.tif");
    expectShape(marker, 16, 16, 4);
    EXPECT_EQ(marker.getpoint(0, 0)[3], 0);
    EXPECT_EQ(marker.getpoint(7, 7)[3], 255);
    EXPECT_EQ(largestStep(marker, marker.rot180()), 0) << "its middle is the point";
}

TEST_F(Pictures, StartPictureIsLargeEnoughAndCheapToShip)
{
    const VImage picture = read("main_img.jpg");
    expectShape(picture, 2000, 1500, 3);
    EXPECT_LT(std::filesystem::file_size(path("main_img.jpg")), 1'500'000u);
    for (int band = 0; band < 3; ++band) {
        EXPECT_LT(picture.extract_band(band).percent(2), 64) << "no shadows";
        EXPECT_GT(picture.extract_band(band).percent(98), 140) << "no lights";
    }
}
