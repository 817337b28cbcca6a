#include "app/commands/Commands.h"
#include "controls/picture/HistogramView.h"

#include "WindowFixture.h"

#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"

#include <QTest>

#include <algorithm>

namespace {

QImage filled(int width, int height, QColor color)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

TEST(Histogram, CountsEachChannelAndLuma)
{
    QImage image = filled(4, 1, QColor(200, 100, 50));
    image.setPixelColor(1, 0, Qt::white);
    image.setPixelColor(2, 0, Qt::black);
    image.setPixelColor(3, 0, Qt::transparent);
    const Histogram counts = histogramOf(image);
    EXPECT_EQ(counts.pixels, 3u) << "what isn't there has no color";
    EXPECT_EQ(counts.red[200], 1u);
    EXPECT_EQ(counts.green[100], 1u);
    EXPECT_EQ(counts.blue[50], 1u);
    EXPECT_EQ(counts.luma[118], 1u); // 0.2126 * 200 + 0.7152 * 100 + 0.0722 * 50 = 117.7
    EXPECT_EQ(counts.luma[0], 1u);
    EXPECT_EQ(counts.luma[255], 1u);
    EXPECT_NEAR(counts.meanLuma(), (118 + 255) / 255.0 / 3, 1e-9);

    const Histogram half = histogramOf(filled(8, 8, QColor(200, 100, 50, 128)));
    const auto peak = std::max_element(half.red.begin(), half.red.end()) - half.red.begin();
    EXPECT_NEAR(double(peak), 200, 1) << "as if it were opaque";
    EXPECT_EQ(histogramOf(QImage()), Histogram());
}

TEST(Histogram, SamplesLargePicturesEvenly)
{
    QImage image = filled(2048, 1536, Qt::black);
    for (int y = 0; y < image.height(); ++y)
        for (int x = y < image.height() / 4 ? 0 : 9; x < image.width(); x += y < image.height() / 4 ? 1 : 10)
            image.setPixel(x, y, 0xFFFFFFFF); // the upper quarter, and every tenth column below
    const Histogram counts = histogramOf(image, 40000);
    EXPECT_GT(counts.pixels, 30000u);
    EXPECT_LT(counts.pixels, 42000u);
    EXPECT_NEAR(counts.share(255), 0.25 + 0.75 * 0.1, 0.03);
}

constexpr int kInvertedRed = 174; // of 200, in linear light

class HistogramTest : public WindowTest {
protected:
    HistogramTest() { openPicture(pictureFile("plain.png", 120, 80)); }
    ~HistogramTest() override { UserDefaults::standardUserDefaults().removeObjectForKey("HistogramHidden"); }

    /// Whether all counted pixels get that level of red before long.
    bool getsRed(int level)
    {
        const Histogram& counts = histogram.histogram();
        return QTest::qWaitFor([&] { return counts.pixels > 0 && counts.red[std::size_t(level)] == counts.pixels; });
    }

    HistogramView& histogram = *ui.histogramView;
};

TEST_F(HistogramTest, FollowsWhatIsShown)
{
    EXPECT_TRUE(getsRed(200));
    EXPECT_FALSE(histogram.accessibleName().isEmpty());
    const QString description = histogram.accessibleDescription();
    pick("CIColorInvert");
    EXPECT_TRUE(getsRed(kInvertedRed));
    EXPECT_NE(histogram.accessibleDescription(), description);
    QTest::keyPress(&window, Qt::Key_F7);
    EXPECT_TRUE(getsRed(200)) << "without the filter";
    QTest::keyRelease(&window, Qt::Key_F7);
    EXPECT_TRUE(getsRed(kInvertedRed));
    controller.escapeEffect();
    controller.setBackgroundImage({});
    EXPECT_TRUE(QTest::qWaitFor([&] { return histogram.histogram().pixels == 0; }));
}

TEST_F(HistogramTest, CanBeHiddenAndStaysSo)
{
    EXPECT_TRUE(histogram.isVisible());
    action("actionCustom")->trigger();
    EXPECT_FALSE(histogram.isVisible());
    action("actionStandard")->trigger();
    EXPECT_TRUE(histogram.isVisible());
    action("actionHistogram")->trigger();
    EXPECT_FALSE(histogram.isVisible());
    {
        MainWindow second;
        second.show();
        EXPECT_FALSE(second.interface().histogramView->isVisible());
        EXPECT_FALSE(second.commands().action("actionHistogram").isChecked());
    }
    pick("CIColorInvert");
    action("actionHistogram")->trigger();
    EXPECT_TRUE(getsRed(kInvertedRed)) << "up to date at once";
}

} // namespace
