#include "widgets/CustomScroller.h"
#include "widgets/GradientButton.h"
#include "widgets/onlyTextClosedButton.h"
#include "widgets/ResourceImage.h"
#include "widgets/ScrollerLayout.h"

#include <gtest/gtest.h>
#include <QScrollArea>
#include <QTest>

namespace {

TEST(OnlyTextClosedButton, ShowsItsThumbnailOnTheCardOfItsState)
{
    onlyTextClosedButton button;
    button.setImages("off_button_50", "on_button_50");
    QImage thumbnail(80, 50, QImage::Format_RGB32);
    thumbnail.fill(Qt::red);
    thumbnail.setDevicePixelRatio(2);
    button.addBackImage(thumbnail);
    button.resize(51, 50);
    const auto grab = [&] { return button.grab().toImage(); };
    const QImage off = grab();
    const double ratio = off.devicePixelRatio();
    const auto at = [&](const QImage& image, double x, double y) {
        return image.pixelColor(int(x * ratio), int(y * ratio));
    };
    for (const QPointF inside : {QPointF(7.5, 17.5), QPointF(46.5, 41.5)})
        EXPECT_EQ(at(off, inside.x(), inside.y()), QColor(Qt::red));
    for (const QPointF outside : {QPointF(6.5, 30), QPointF(47.5, 30), QPointF(20, 16.5), QPointF(20, 42.5)})
        EXPECT_NE(at(off, outside.x(), outside.y()), QColor(Qt::red));

    EXPECT_FALSE(button.isSelected());
    button.setChecked(true);
    EXPECT_TRUE(button.isSelected());
    EXPECT_NE(at(grab(), 5, 30), at(off, 5, 30));
    button.setAllowsMixedState(true);
    EXPECT_FALSE(button.isSelected());
    button.setDown(true);
    EXPECT_TRUE(button.isSelected());
}

TEST(ResourceImages, AreThereAtOneAndTwoPixelsAPoint)
{
    for (const char* name : {"off_button_50", "on_button_50", "off_x", "on_x", "knob_bot", "knob_mid", "knob_top",
             "scrl_bot", "scrl_mid", "srcl_top", "btn_up", "btn_down", "btn_up_on", "btn_down_on", "off_pointer_down",
             "off_pointer_up", "on_pointer_down", "on_pointer_up", "down_slider_part", "middle_slider_part",
             "up_slider_part", "up_round_side", "middle_round_side", "down_round_side"}) {
        const QPixmap plain = resourceImage(name, 1), fine = resourceImage(name, 2);
        ASSERT_FALSE(plain.isNull()) << name;
        EXPECT_EQ(fine.size(), plain.size() * 2) << name;
        EXPECT_EQ(fine.deviceIndependentSize(), plain.deviceIndependentSize()) << name;
    }
}

TEST(GradientButton, ShadesOnceFromTopToBottomOnAnyScreen)
{
    EXPECT_EQ(GradientButton::darkerColorForColor(QColor(255, 51, 10, 77)), QColor(204, 0, 0, 77));
    GradientButton button;
    button.resize(60, 100);
    const QImage shown = button.grab().toImage();
    int before = 255;
    for (double y : {10, 30, 49, 51, 70, 90}) {
        const int lightness = shown.pixelColor((QPointF(8, y) * shown.devicePixelRatio()).toPoint()).lightness();
        EXPECT_LT(lightness, before) << "at " << y;
        before = lightness;
    }
}

class ScrollerTest : public testing::Test {
protected:
    ScrollerTest()
    {
        scroller.resize(12, 224);
        scroller.setRange(0, 300);
        scroller.setPageStep(100);
        scroller.setSingleStep(10);
        scroller.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&scroller));
    }
    void press(CustomScroller::Part part)
    {
        QTest::mouseClick(&scroller, Qt::LeftButton, {}, scroller.rectForPart(part).center().toPoint());
    }
    CustomScroller scroller{Qt::Vertical};
};

TEST_F(ScrollerTest, ArrowsSlotAndKnobScroll)
{
    EXPECT_DOUBLE_EQ(scroller.knobProportion(), 0.25);
    EXPECT_EQ(scroller.rectForPart(CustomScroller::Part::Knob).height(), 50);
    press(CustomScroller::Part::IncrementLine);
    press(CustomScroller::Part::IncrementLine);
    EXPECT_EQ(scroller.value(), 20);
    press(CustomScroller::Part::DecrementLine);
    EXPECT_EQ(scroller.value(), 10);
    press(CustomScroller::Part::IncrementPage);
    EXPECT_EQ(scroller.value(), 110);
    press(CustomScroller::Part::DecrementPage);
    EXPECT_EQ(scroller.value(), 10);

    scroller.setValue(0);
    const QPoint knob = scroller.rectForPart(CustomScroller::Part::Knob).center().toPoint();
    QTest::mousePress(&scroller, Qt::LeftButton, {}, knob);
    QTest::mouseMove(&scroller, knob + QPoint(0, 75)); // half of what the knob can move
    EXPECT_EQ(scroller.value(), 150);
    QTest::mouseMove(&scroller, knob + QPoint(0, 1000));
    QTest::mouseRelease(&scroller, Qt::LeftButton, {}, knob + QPoint(0, 1000));
    EXPECT_EQ(scroller.value(), 300);
    scroller.setFloatValueKnobProportion(0.5f, 0.2f);
    EXPECT_NEAR(scroller.knobProportion(), 0.2, 1e-3);
    EXPECT_EQ(scroller.value(), scroller.maximum() / 2);
}

TEST_F(ScrollerTest, ShowsOnlyItsGroundWhenThereIsNothingToScroll)
{
    const auto colors = [this] {
        const QImage image = scroller.grab().toImage();
        QSet<QRgb> found;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                found.insert(image.pixel(x, y));
        return found.size();
    };
    EXPECT_GT(colors(), 3);
    scroller.setRange(0, 0);
    EXPECT_EQ(colors(), 1);
    EXPECT_EQ(scroller.partAt({6, 100}), CustomScroller::Part::None);
    EXPECT_EQ(CustomScroller::scrollerWidth(), 12);
}

TEST(ScrollerLayout, KnobFollowsProportionAndPosition)
{
    ScrollerLayout parts{.length = 224, .arrow = 12, .minKnob = 20, .proportion = 0.25, .position = 0};
    EXPECT_EQ(parts.slotLength(), 200);
    EXPECT_EQ(parts.knobLength(), 50);
    EXPECT_EQ(parts.knobStart(), 12);
    parts.position = 1;
    EXPECT_EQ(parts.knobStart() + parts.knobLength(), 212);
    for (double position : {0.0, 0.3, 1.0}) {
        parts.position = position;
        EXPECT_NEAR(parts.positionOf(parts.knobStart()), position, 1e-12);
    }
    EXPECT_EQ(parts.positionOf(-50), 0);
    EXPECT_EQ(parts.positionOf(500), 1);
    parts.proportion = 0.001;
    EXPECT_EQ(parts.knobLength(), 20) << "can still be grabbed";
    parts.length = 40;
    EXPECT_EQ(parts.arrowLength(), 0) << "no room for arrows";
    EXPECT_EQ(parts.slotLength(), 40);
}

} // namespace
