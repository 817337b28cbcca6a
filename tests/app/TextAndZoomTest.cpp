#include "app/CommandLine.h"
#include "app/document/UndoNames.h"
#include "app/window/ZoomScale.h"
#include "platform/coreimage/CIFilter.h"
#include "platform/quartz/TextRenderer.h"

#include <gtest/gtest.h>

#include <array>

namespace {

TEST(UndoNames, SplitKeysBeforeEveryCapitalAndDigit)
{
    const std::pair<const char*, const char*> words[] = {
        {"Radius", "Radius"},
        {"ShadingImage", "Shading Image"},
        {"Color0", "Color 0"},
        {"EV", "E V"},
        {"Point12", "Point 1 2"},
        {"radius", "radius"},
        {"", ""},
        {"X", "X"},
        {"0", "0"},
        {"aB", "a B"},
        {"ÉtéÀ", "Été À"},
        {"A B", "A  B"},
    };
    for (const auto& [key, expected] : words)
        EXPECT_EQ(unInterCap1(QString::fromUtf8(key)), QString::fromUtf8(expected)) << key;
}

TEST(ZoomScale, IsTwoStraightPiecesThatMeetAtActualSize)
{
    for (const auto& [position, zoom] :
        {std::pair{0.0f, 0.1f}, {2.5f, 0.55f}, {5.0f, 1.0f}, {7.5f, 5.5f}, {10.0f, 10.0f}}) {
        EXPECT_FLOAT_EQ(zoomOfSliderPosition(position), zoom);
        EXPECT_NEAR(sliderPositionOfZoom(zoom), position, 1e-6f);
    }
    EXPECT_FLOAT_EQ(zoomThatFits(200, 100, 100, 100), 0.5f);
    EXPECT_FLOAT_EQ(zoomThatFits(10, 50, 100, 100), 2.0f) << "a small picture is enlarged";
    EXPECT_FLOAT_EQ(zoomThatFits(0, 50, 0, 100), 2.0f) << "the height decides where the width is no number";
}

TEST(CommandLine, TellsAQuestionFromAPictureOfThatName)
{
    const auto asks = [](auto... arguments) {
        const std::array<const char*, sizeof...(arguments) + 1> argv{"lumivex", arguments...};
        return wantsOnlyText(int(argv.size()), argv.data());
    };
    EXPECT_TRUE(asks("--version"));
    EXPECT_TRUE(asks("a.png", "-h"));
    EXPECT_FALSE(asks("--", "--help"));
    EXPECT_FALSE(asks());
    EXPECT_TRUE(asks("--bogus")) << "a mistake is told without a display";
    EXPECT_FALSE(asks("-platform", "offscreen", "-style", "Fusion", "--display", ":1", "a.png")) << "Qt's own";

    EXPECT_TRUE(startRequest({"lumivex"})->pictures.isEmpty());
    EXPECT_EQ(startRequest({"lumivex", "a b.png", "c.png"})->pictures, (QStringList{"a b.png", "c.png"}));
    EXPECT_EQ(startRequest({"lumivex", "--", "--help"})->pictures, QStringList("--help"));
    EXPECT_TRUE(startRequest({"lumivex", "--new-window", "a.png"})->newWindow);
    EXPECT_FALSE(startRequest({"lumivex", "a.png"})->newWindow);
    EXPECT_FALSE(startRequest({"lumivex", "--wrong"}));
}

double inkOf(const CIBitmap& bitmap)
{
    double ink = 0;
    for (int y = 0; y < bitmap.height(); ++y)
        for (std::size_t x = 3; x < std::size_t(bitmap.width()) * 4; x += 4)
            ink += bitmap.row<std::uint8_t>(y)[x] / 255.0;
    return ink;
}

TEST(TextRenderer, PaintsRunsAtTheirSizesWithRoomAround)
{
    const TextRenderer renderer;
    const CIBitmap plain = renderer.render({{{.text = "Alpine", .fontName = "DejaVu Sans", .fontSize = 20}}, 1, 0});
    ASSERT_FALSE(plain.isNull());
    EXPECT_GT(plain.width(), 3 * plain.height() / 2);
    EXPECT_NEAR(plain.height(), 24, 6);
    EXPECT_GT(inkOf(plain), 50);
    const CIBitmap twice = renderer.render({{{.text = "Alpine", .fontName = "DejaVu Sans", .fontSize = 20}}, 2, 5});
    EXPECT_NEAR(twice.width(), 2 * plain.width() + 10, 3);
    EXPECT_NEAR(inkOf(twice) / inkOf(plain), 4, 0.5);
    const CIBitmap lines = renderer.render({{{.text = "a\nb\nc", .fontName = "DejaVu Sans", .fontSize = 20}}, 1, 0});
    EXPECT_GT(lines.height(), 2.5 * plain.height());
    EXPECT_TRUE(renderer.render({{}, 1, 10}).isNull());
    EXPECT_TRUE(
        renderer.render({{{.text = std::string(5000, 'W'), .fontName = "DejaVu Sans", .fontSize = 4000}}, 60, 0})
            .isNull())
        << "too large";
}

} // namespace
