// Reductions, against sums over the pixels.
#include "tests/coreimage/Colors.h"

using namespace pictures;

namespace {

const CIRect kArea{5, 3, 40, 30}; // of a picture of 67 by 43

struct Reductions : testing::Test {
    CIBitmap picture = noise(67, 43), pixels = rendered(CIImage::fromBitmap(picture), kArea);
    CIBitmap of(const std::string& name, const CIDictionary& inputs = {})
    {
        const auto f = filter(name, CIImage::fromBitmap(picture));
        if (f->attributesForKey("inputExtent"))
            f->setValueForKey(CIVector(kArea), "inputExtent");
        for (const auto& [key, value] : inputs)
            f->setValueForKey(value, key);
        const CIImage out = f->outputImage();
        return rendered(out, out.extent());
    }
};

} // namespace

TEST_F(Reductions, FindMeansAndExtremes)
{
    for (int c = 0; c < 4; ++c) {
        double sum = 0;
        float least = 1e9f, most = -1e9f;
        for (int y = 0; y < 30; ++y)
            for (int x = 0; x < 40; ++x) {
                const float v = at(pixels, x, y, c);
                sum += double(v);
                least = std::min(least, v), most = std::max(most, v);
            }
        EXPECT_NEAR(at(of("CIAreaAverage"), 0, 0, c), sum / 1200, 1e-5);
        EXPECT_EQ(at(of("CIAreaMinimum"), 0, 0, c), least);
        EXPECT_EQ(at(of("CIAreaMaximum"), 0, 0, c), most);
        EXPECT_EQ(at(of("CIAreaMinMax"), 0, 0, c), least);
        EXPECT_EQ(at(of("CIAreaMinMax"), 1, 0, c), most);
        double column = 0, row = 0;
        for (int y = 0; y < 30; ++y)
            column += double(at(pixels, 11, y, c)) / 30;
        for (int x = 0; x < 40; ++x)
            row += double(at(pixels, x, 17, c)) / 40;
        EXPECT_NEAR(at(of("CIColumnAverage"), 11, 0, c), column, 1e-5);
        EXPECT_NEAR(at(of("CIRowAverage"), 0, 17, c), row, 1e-5);
    }
    EXPECT_EQ(at(of("CIAreaMaximumAlpha"), 0, 0, 3), 1);
    EXPECT_EQ(at(of("CIAreaMinimumAlpha"), 0, 0, 3), 0);
}

TEST_F(Reductions, CountEveryPixelInOneBin)
{
    for (const std::string name : {"CIAreaHistogram", "CIAreaLogarithmicHistogram"}) {
        const CIBitmap bins = of(name, {{"inputCount", 20}, {"inputScale", 2}});
        ASSERT_EQ(bins.width(), 20);
        for (int c = 0; c < 4; ++c) {
            double all = 0;
            for (int x = 0; x < 20; ++x)
                all += double(at(bins, x, 0, c));
            EXPECT_NEAR(all, 2, 1e-4) << name;
        }
    }
    int half = 0;
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x)
            half += at(pixels, x, y, 3) >= 0.5f && at(pixels, x, y, 3) < 0.75f;
    EXPECT_NEAR(at(of("CIAreaHistogram", {{"inputCount", 4}}), 2, 0, 3), half / 1200.0, 1e-6);
    double weight = 0, whole = 0;
    const CIBitmap weighted = of("CIAreaAlphaWeightedHistogram");
    for (int x = 0; x < weighted.width(); ++x)
        weight += double(at(weighted, x, 0, 1));
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x)
            whole += double(at(pixels, x, y, 3)) / 1200;
    EXPECT_NEAR(weight, whole, 1e-4);
}

TEST_F(Reductions, GatherColorsIntoAPalette)
{
    const Color kinds[3] = {{0.8, 0.1, 0.1, 1}, {0.1, 0.7, 0.2, 1}, {0.05, 0.1, 0.6, 1}};
    for (int y = 0; y < 43; ++y)
        for (std::size_t x = 0; x < 67; ++x)
            for (std::size_t c = 0; c < 4; ++c)
                picture.mutableRow<float>(y)[4 * x + c] = float(kinds[(x / 3) % 3][c]);
    for (const bool perceptual : {false, true}) {
        const CIBitmap palette =
            of("CIKMeans", {{"inputCount", 3}, {"inputMeans", CIValue()}, {"inputPerceptual", perceptual}});
        ASSERT_EQ(palette.width(), 3);
        for (const Color& kind : kinds) {
            double nearest = 9;
            for (int x = 0; x < 3; ++x) {
                double away = 0;
                for (int c = 0; c < 4; ++c)
                    away = std::max(away, std::abs(double(at(palette, x, 0, c)) - kind[std::size_t(c)]));
                nearest = std::min(nearest, away);
            }
            EXPECT_LT(nearest, 1e-3);
        }
    }
}
