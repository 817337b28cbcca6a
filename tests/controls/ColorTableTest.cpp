// Tables of colors: the text of .cube files, damaged ones too, and cubes made of rules.
#include "controls/editors/ColorTable.h"
#include "controls/editors/ColorLooks.h"
#include "controls/editors/FloatData.h"
#include "platform/coreimage/CIContext.h"
#include "platform/coreimage/CIFilter.h"
#include "platform/coreimage/WhitePoint.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <optional>

namespace {

using Reason = ColorTableFault::Reason;

constexpr const char* kCorners = "0 0 0\n1 0 0\n0 1 0\n1 1 0\n0 0 1\n1 0 1\n0 1 1\n1 1 1\n";

std::optional<ColorTableFault> faultOf(const std::string& text)
{
    try {
        parsedColorTable(text);
    } catch (const ColorTableFault& fault) {
        return fault;
    }
    return {};
}

void expectColor(const ColorTriple& color, const ColorTriple& wanted)
{
    for (std::size_t c = 0; c < 3; ++c)
        EXPECT_NEAR(color[c], wanted[c], 1e-6) << c;
}

/// The float pixel that a filter makes of an opaque color of linear light.
std::array<double, 3> filtered(CIFilter& filter, const std::array<float, 3>& light)
{
    CIBitmap pixel(1, 1, CIFormat::RGBAf, CIAlpha::Straight, CIColorSpace::LinearSRGB);
    const auto to = pixel.mutableRow<float>(0);
    std::copy(light.begin(), light.end(), to.begin());
    to[3] = 1;
    filter.setValueForKey(CIImage::fromBitmap(pixel), "inputImage");
    CIBitmap result(1, 1, CIFormat::RGBAf, CIAlpha::Straight, CIColorSpace::LinearSRGB);
    EXPECT_TRUE(CIContext().renderInto(result, 0, 1, filter.outputImage()));
    const auto row = result.row<float>(0);
    return {double(row[0]), double(row[1]), double(row[2])};
}

TEST(ColorTableTest, ReadsCubesAndLinesWithTheirDomains)
{
    const ColorTable cube =
        parsedColorTable("\xEF\xBB\xBF# made by hand\r\nTITLE \"Two words\"\r\n\r\nLUT_3D_SIZE 2\r\n"
                         "DOMAIN_MIN 0 0 0\r\nDOMAIN_MAX 2 1 1\r\n"
            + std::string(kCorners) + "\n# the end");
    EXPECT_EQ(cube.title, "Two words");
    expectColor(cube({1, 0.25, 0.75}), {0.5, 0.25, 0.75});
    expectColor(cube({9, -1, 0}), {1, 0, 0}); // beyond the ends

    const ColorTable line =
        parsedColorTable("LUT_1D_SIZE 3\nLUT_1D_INPUT_RANGE 0.0 1.0\n0 0.5 +1\n.25 .5 5e-1\n1 .5 0");
    EXPECT_FALSE(line.isCube);
    expectColor(line({0.25, 0.9, 0.75}), {0.125, 0.5, 0.25});
}

TEST(ColorTableTest, TellsWhatIsWrongAndWhere)
{
    const std::string size = "LUT_3D_SIZE 2\n", corners = kCorners;
    const struct {
        std::string text;
        Reason reason;
        std::size_t line;
    } broken[] = {
        {"", Reason::NoSize, 0},
        {"TITLE \"x\"\n", Reason::NoSize, 0},
        {corners, Reason::NoSize, 1},
        {std::string("\x89PNG\r\n\x1a\n\0\0", 10), Reason::NoSize, 1},
        {"<html>", Reason::NoSize, 1},
        {size + "LUT_1D_SIZE 2\n", Reason::TwoSizes, 2},
        {"LUT_3D_SIZE 1\n", Reason::BadSize, 1},
        {"LUT_3D_SIZE 257\n", Reason::BadSize, 1},
        {"LUT_3D_SIZE 99999999999999999999\n", Reason::BadSize, 1},
        {"LUT_3D_SIZE -2\n", Reason::BadSize, 1},
        {"LUT_3D_SIZE 2.5\n", Reason::BadSize, 1},
        {"LUT_3D_SIZE\n", Reason::BadSize, 1},
        {size + "DOMAIN_MIN 0 0\n", Reason::BadDomain, 2},
        {size + "DOMAIN_MIN 0 1 0\n" + corners, Reason::BadDomain, 0},
        {"TITLE Plain\n", Reason::BadTitle, 1},
        {"TITLE \"\n", Reason::BadTitle, 1},
        {size + "LUT_IN_VIDEO_RANGE\n" + corners, Reason::UnknownWord, 2},
        {size + "0 0\n", Reason::BadNumbers, 2},
        {size + "0 0 0 0\n", Reason::BadNumbers, 2},
        {size + "0 0 1e999\n", Reason::BadNumbers, 2},
        {size + "0 0 0,5\n", Reason::BadNumbers, 2},
        {size + "nan 0 0\n", Reason::BadNumbers, 2},
        {size + "0 nan 0\n", Reason::BadNumbers, 2},
        {size + "0 0 0\nTITLE \"x\"\n", Reason::LateWord, 3},
        {size + corners.substr(0, corners.size() - 6), Reason::TooFew, 0},
        {size + corners + "1 1 1\n", Reason::TooMany, 10},
    };
    for (const auto& [text, reason, line] : broken) {
        SCOPED_TRACE(text);
        const std::optional<ColorTableFault> fault = faultOf(text);
        ASSERT_TRUE(fault);
        EXPECT_EQ(int(fault->reason), int(reason));
        EXPECT_EQ(fault->line, line);
    }
    EXPECT_FALSE(faultOf(size + corners));
}

TEST(ColorTableTest, CubesOfOtherSidesSayTheSame)
{
    const ColorRule rule = [](const ColorTriple& c) { return ColorTriple{1 - c[0], c[1] / 2, c[2]}; };
    const std::vector<float> small = sampledCube(3, false, rule);
    ASSERT_EQ(small.size(), 27u * 4);
    EXPECT_EQ((std::vector<float>(small.begin() + 4, small.begin() + 8)), (std::vector<float>{0.5f, 0, 0, 1}))
        << "red changes fastest";
    EXPECT_EQ(resampledCube(small, 3, 5), sampledCube(5, false, rule));
}

TEST(ColorTableTest, LooksAreTheSameOverDisplayValuesAndOverLight)
{
    for (const ColorLook& look : colorLooks()) {
        SCOPED_TRACE(look.name);
        const std::array<float, 3> light{0.3f, 0.2f, 0.1f};
        std::array<double, 3> results[2];
        for (const bool inLight : {false, true}) {
            const auto filter = CIFilter::filterWithName(inLight ? "CIColorCube" : "CIColorCubeWithColorSpace");
            filter->setDefaults();
            const std::size_t side = inLight ? 48 : 17;
            filter->setValueForKey(double(side), "inputCubeDimension");
            filter->setValueForKey(dataOf(sampledCube(side, inLight, look.rule)), "inputCubeData");
            results[inLight] = filtered(*filter, light);
        }
        for (std::size_t c = 0; c < 3; ++c)
            EXPECT_NEAR(results[0][c], results[1][c], 0.01);
        const bool changes = std::abs(results[0][0] - 0.3) + std::abs(results[0][2] - 0.1) > 0.02;
        EXPECT_EQ(changes, &look != &colorLooks().front());
    }
}

TEST(WhitePointTest, TheFoundWhiteMakesTheColorGrey)
{
    const auto filter = CIFilter::filterWithName("CITemperatureAndTint");
    filter->setDefaults();
    const CIPoint daylight{6500, 0};
    for (const std::array<float, 3> light : {std::array{0.5f, 0.4f, 0.2f}, {0.2f, 0.3f, 0.4f}, {0.4f, 0.38f, 0.42f}}) {
        const CIPoint neutral = CINeutralForColor({light[0], light[1], light[2]}, daylight);
        filter->setValueForKey(CIVector(neutral), "inputNeutral");
        const std::array<double, 3> grey = filtered(*filter, light);
        EXPECT_NEAR(grey[0], grey[1], 0.004);
        EXPECT_NEAR(grey[2], grey[1], 0.004);
    }
    EXPECT_EQ(CINeutralForColor({0, 0, 0}, daylight), daylight) << "black has no color";
}

} // namespace
