// Slider, field and canvas, without the window around them.
#include "app/window/Zooming.h"
#include "widgets/CanvasScrollView.h"
#include "widgets/ZoomedCanvas.h"

#include <gtest/gtest.h>
#include <QLabel>
#include <QSlider>
#include <QTest>

namespace {

class Canvas : public ZoomedCanvas {
public:
    using ZoomedCanvas::ZoomedCanvas;
    CIPoint size{400, 200};

protected:
    CIPoint pictureSize() const override { return size; }
    void zoomedByWheel(float) override { }
    void pinched(double) override { }
};

class ZoomingTest : public testing::Test {
protected:
    ZoomingTest()
    {
        scroller.setCanvas(&canvas);
        scroller.resize(200, 200);
        scroller.show();
        field.show();
    }

    CanvasScrollView scroller;
    Canvas& canvas = *new Canvas(&scroller); // which the scroll view keeps
    QSlider slider;
    QLabel field;
    QSizeF picture{400, 200};
    bool isSeen = true;
    Zooming zooming{slider, field, scroller, {{canvas, {50, 50}}},
        {[this] { return isSeen ? &canvas : nullptr; }, [this] { return picture; }}};
};

TEST_F(ZoomingTest, TheSliderTheFieldAndTheCanvasAgree)
{
    slider.setValue(slider.maximum() / 2);
    EXPECT_EQ(canvas.getZoom(), 1);
    EXPECT_EQ(field.text(), "100 %");
    zooming.zoomBy(1);
    EXPECT_NEAR(canvas.getZoom(), 2, 1e-3);
    EXPECT_EQ(field.text(), "200 %");
    zooming.zoomBy(-50 - double(canvas.getZoom()));
    EXPECT_NEAR(canvas.getZoom(), 2, 1e-3) << "the sentinel";
    zooming.step(-1);
    EXPECT_NEAR(canvas.getZoom(), 1.6, 1e-3);
    zooming.zoomTo(40);
    EXPECT_EQ(slider.value(), slider.maximum());
    EXPECT_EQ(canvas.getZoom(), 10);
    zooming.setZoom(0.1f);
    EXPECT_EQ(slider.value(), 0);
    EXPECT_EQ(canvas.getZoom(), 10) << "the slider alone";
}

TEST_F(ZoomingTest, FitsThePictureOrWhatIsThereWithoutOne)
{
    const auto fitted = [&] {
        zooming.fit();
        return canvas.getZoom();
    };
    const float wide = fitted();
    EXPECT_LT(wide, 0.5f);
    EXPECT_GT(wide, 0.4f) << "room for a scroll bar";
    picture = {200, 400};
    EXPECT_EQ(fitted(), wide) << "the area is a square";
    picture = {};
    EXPECT_NEAR(fitted(), wide * 8, 1e-4);
}

TEST_F(ZoomingTest, ADoubleClickGoesToActualSizeAndBack)
{
    zooming.fit();
    const float fitting = canvas.getZoom();
    QTest::mouseDClick(&field, Qt::LeftButton);
    EXPECT_EQ(canvas.getZoom(), 1);
    QTest::mouseDClick(&field, Qt::LeftButton);
    EXPECT_EQ(canvas.getZoom(), fitting);
    isSeen = false;
    QTest::mouseDClick(&field, Qt::LeftButton);
    zooming.step(1);
    zooming.zoomBy(1);
    EXPECT_EQ(canvas.getZoom(), fitting) << "what isn't seen stays as it is";
    EXPECT_FALSE(zooming.isPossible());
}

TEST_F(ZoomingTest, AFittedPictureStaysSoUntilTheUserZooms)
{
    zooming.fit();
    const float fitting = canvas.getZoom();
    scroller.resize(400, 400);
    EXPECT_TRUE(QTest::qWaitFor([&] { return canvas.getZoom() > 1.9f * fitting; }));
    zooming.takeZoom(0.7f); // the wheel has turned on the canvas
    canvas.setZoom(0.7f);
    scroller.resize(200, 200);
    QCoreApplication::processEvents();
    EXPECT_FLOAT_EQ(canvas.getZoom(), 0.7f);
}

TEST_F(ZoomingTest, OnlyFittingGoesBelowTheSlider)
{
    canvas.size = {40000, 200};
    picture = {40000, 200};
    zooming.fit();
    const float fitting = canvas.getZoom();
    EXPECT_LT(fitting, 0.01f);
    EXPECT_GT(fitting, 0.004f);
    EXPECT_EQ(slider.value(), 0);
    zooming.layOut();
    zooming.step(-1);
    zooming.zoomBy(-0.1);
    EXPECT_EQ(canvas.getZoom(), fitting) << "nothing makes it larger by the way";
    zooming.zoomTo(0.001f);
    EXPECT_FLOAT_EQ(canvas.getZoom(), 0.1f);
}

} // namespace
