#include "app/commands/Commands.h"
#include "controls/picture/HistogramView.h"

#include "WindowFixture.h"

#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <numeric>

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

    /// The level of red that the counted pixels have; -1 when they differ.
    int red()
    {
        EXPECT_TRUE(ui.pictureScrollView->imageView()->waitForFrame());
        QTest::qWait(120);
        const Histogram& counts = histogram.histogram();
        const auto peak = std::max_element(counts.red.begin(), counts.red.end());
        return counts.pixels > 0 && *peak == counts.pixels ? int(peak - counts.red.begin()) : -1;
    }

    HistogramView& histogram = *ui.histogramView;
};

TEST_F(HistogramTest, FollowsWhatIsShown)
{
    EXPECT_EQ(red(), 200);
    EXPECT_FALSE(histogram.accessibleName().isEmpty());
    const QString description = histogram.accessibleDescription();
    pick("CIColorInvert");
    EXPECT_EQ(red(), kInvertedRed);
    EXPECT_NE(histogram.accessibleDescription(), description);
    QTest::keyPress(&window, Qt::Key_F7);
    EXPECT_EQ(red(), 200) << "without the filter";
    QTest::keyRelease(&window, Qt::Key_F7);
    EXPECT_EQ(red(), kInvertedRed);
    controller.escapeEffect();
    controller.setBackgroundImage({});
    EXPECT_EQ(red(), -1);
    EXPECT_EQ(histogram.histogram().pixels, 0u);
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
    EXPECT_EQ(red(), kInvertedRed) << "up to date at once";
}

TEST_F(HistogramTest, CostsAFrameNothing)
{
    const QImage frame = filled(1400, 900, QColor(90, 120, 150));
    const auto fastest = [](const auto& work) {
        qint64 best = std::numeric_limits<qint64>::max();
        for (int i = 0; i < 20; ++i) {
            QElapsedTimer timer;
            timer.start();
            work();
            best = std::min(best, timer.nsecsElapsed());
        }
        return double(best) / 1e6; // ms
    };
    const double counting = fastest([&] { histogramOf(frame); });
    const double drawing = fastest([&] { histogram.repaint(); });
    RecordProperty("counting", std::to_string(counting));
    RecordProperty("drawing", std::to_string(drawing));
    std::printf("counting %.2f ms, drawing %.2f ms\n", counting, drawing);
    EXPECT_LT(counting + drawing, 8) << "milliseconds, with room for a slow build";
}

} // namespace
