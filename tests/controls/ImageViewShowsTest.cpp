// What is seen: layout, pixels, marks.
#include "tests/controls/ImageViewFixture.h"

#include "platform/foundation/Look.h"

namespace {

/// The number of device pixels that aren't the picture pixel that lies under them, or the surround outside of it.
int wrongPixels(const QImage& image, const MyImageView& view, CIRect extent, int block = 1)
{
    const double ratio = view.devicePixelRatioF();
    int wrong = 0;
    for (int j = 0; j < image.height(); ++j)
        for (int i = 0; i < image.width(); ++i) {
            const CIPoint p = view.toPicture(QPointF(i + 0.5, j + 0.5) / ratio);
            const QColor expected = extent.contains(p)
                ? patternColor(int(std::floor(p.x)) / block, int(std::floor(p.y)) / block)
                : (view.palette().window().color().lightness() < 128 ? Look::dark() : Look::light()).surround;
            wrong += difference(image.pixelColor(i, j), expected) > 2;
        }
    return wrong;
}

} // namespace

TEST_F(ImageViewTest, CentersASmallPicture)
{
    open(pattern(200, 100));
    EXPECT_EQ(view.bounds(), (CIRect{-100, -100, 400, 300}));
    EXPECT_EQ(view.toWidget({0, 0}), QPointF(100, 200));
    EXPECT_EQ(view.toPicture({100, 100}), (CIPoint{0, 100}));
    window.resize(500, 300);
    EXPECT_EQ(view.toWidget({0, 0}), QPointF(150, 200)) << "and does so in a larger window";
}

TEST_F(ImageViewTest, KeepsTheCenterWhenZoomedOrResized)
{
    open(pattern(1000, 800));
    window.setScrollPosition({350, 250});
    const auto center = [&] { return view.visibleRect().center(); };
    view.setZoom(2.5);
    EXPECT_NEAR(center().x, 550, 1e-6);
    EXPECT_NEAR(center().y, 400, 1e-6);
    window.resize(380, 200);
    EXPECT_NEAR(center().x, 550, 1e-6);
    view.setZoom(1.5);
    EXPECT_NEAR(center().x, 550, 1e-6);
    EXPECT_NEAR(center().y, 400, 1e-6);
}

TEST_F(ImageViewTest, ShowsPicturePixelsUnblended)
{
    for (const float zoom : {1.0f, 2.0f, 3.0f, 7.0f}) {
        SCOPED_TRACE(zoom);
        open(pattern(151, 99), zoom);
        EXPECT_EQ(wrongPixels(shown(), view, {0, 0, 151, 99}), 0) << "margins of half a pixel";
    }
}

TEST_F(ImageViewTest, AlignsPixelsAtEveryScrollPosition)
{
    open(pattern(700, 600));
    for (const CIPoint position : {CIPoint{10.4, 20.7}, CIPoint{0.5, 299.25}, CIPoint{300, 300}}) {
        SCOPED_TRACE(position.x);
        window.setScrollPosition(position);
        EXPECT_EQ(wrongPixels(shown(), view, {0, 0, 700, 600}), 0);
    }
}

TEST_F(ImageViewTest, ShowsHalfSizeAtTheResolutionOfTheScreen)
{
    // Blocks of 2 pixels: the mean of each is its color, where blocks meet grid steps.
    open(pattern(600, 400, 2), 0.5f);
    EXPECT_EQ(wrongPixels(shown(), view, {0, 0, 600, 400}, 2), 0);
}

TEST_F(ImageViewTest, ShowsAllOfABigPictureReduced)
{
    const CIImage grey = CIImage::fromColor(CIColor(0.5, 0.25, 0.75)).cropped({0, 0, 30000, 20000});
    open(grey, 0.1f);
    window.setScrollPosition({1300, 850});
    const QImage image = shown();
    EXPECT_LE(difference(colorAt(image, {1, 1}), QColor(128, 64, 191)), 1);
    EXPECT_LE(difference(colorAt(image, {399, 299}), QColor(128, 64, 191)), 1);
}

TEST_F(ImageViewTest, ShowsNothingWithoutAResult)
{
    open(pattern(400, 300));
    const QColor before = colorAt(shown(), {200, 150});
    master.nothingToShow = true;
    view.setNeedsDisplay();
    const QColor after = colorAt(shown(), {200, 150});
    EXPECT_GT(difference(before, after), 2);
    EXPECT_EQ(difference(after, colorAt(shown(), {3, 3})), 0);

    master.nothingToShow = false;
    view.setNeedsDisplay();
    EXPECT_EQ(difference(before, colorAt(shown(), {200, 150})), 0);
    master.shown = master.picture.cropped({500, 500, 9, 9}); // a crop dragged off the picture
    view.setNeedsDisplay();
    EXPECT_EQ(difference(after, colorAt(shown(), {200, 150})), 0);
    EXPECT_TRUE(view.shownFrame().isNull());
}

TEST_F(ImageViewTest, AsksForThePictureOnlyAfterAChange)
{
    open(pattern(100, 100));
    shown();
    const int asked = master.asked;
    shown();
    QCoreApplication::processEvents();
    EXPECT_EQ(master.asked, asked);
    view.setNeedsDisplay();
    view.setNeedsDisplay();
    shown();
    EXPECT_EQ(master.asked, asked + 1);
}

TEST_F(ImageViewTest, DrawsAWhiteMarkWithABlackShadow)
{
    master.shown = CIImage::fromColor(CIColor(0.5, 0.5, 0.5)).cropped({0, 0, 200, 200});
    open(pattern(200, 200));
    edit("CICrop");
    master.filter->setValueForKey(CIVector{50.3, 60.8, 100, 80}, "inputRectangle");
    QColor picture = colorAt(shown(), view.toWidget({60.5, 60.5}));
    input::enter(view, at(150.5, 140.5)); // another corner gets the glow
    const QImage image = shown();
    const auto seen = [&](double dx, double dy) { return colorAt(image, view.toWidget({50.5 + dx, 60.5 + dy})); };
    EXPECT_EQ(seen(-7, 0), QColor(Qt::white)) << "arms reach 8 to each side";
    EXPECT_EQ(seen(7, 0), QColor(Qt::white));
    EXPECT_EQ(seen(0, 7), QColor(Qt::white));
    EXPECT_EQ(seen(0, -7), QColor(Qt::white));
    EXPECT_EQ(seen(7, -1), QColor(Qt::black)) << "the shadow lies to the right and below";
    EXPECT_EQ(seen(1, -7), QColor(Qt::black));
    EXPECT_EQ(difference(seen(-10, 0), picture), 0);
    EXPECT_EQ(difference(seen(0, 10), picture), 0);
    EXPECT_EQ(difference(seen(6, 6), picture), 0);
    EXPECT_EQ(difference(seen(3, 2), picture), 0) << "the circle is open";
    input::leave(view);
    EXPECT_EQ(difference(colorAt(shown(), view.toWidget({50.5, 60.5})), picture), 0) << "no mouse, no marks";
}

TEST_F(ImageViewTest, MarksKeepTheirSizeOnScreen)
{
    master.shown = CIImage::fromColor(CIColor(0.5, 0.5, 0.5)).cropped({0, 0, 80, 80});
    edit("CICrop");
    master.filter->setValueForKey(CIVector{20, 20, 40, 40}, "inputRectangle");
    for (const float zoom : {0.5f, 3.0f}) {
        open(pattern(80, 80), zoom);
        input::enter(view, at(60, 60));
        const QImage image = shown();
        const QPointF mark = view.toWidget({20.5, 20.5});
        EXPECT_EQ(colorAt(image, mark + QPointF(-7, 0)), QColor(Qt::white)) << zoom;
        EXPECT_NE(colorAt(image, mark + QPointF(-9.5, 0)), QColor(Qt::white)) << zoom;
    }
}

TEST_F(ImageViewTest, HidesPointsBehindAModalWindow)
{
    open(CIImage::fromColor(CIColor(0.5, 0.5, 0.5)).cropped({0, 0, 200, 200}));
    edit("CIBumpDistortion");
    master.filter->setValueForKey(CIVector{100, 100}, "inputCenter");
    input::enter(view, at(10, 10));
    const auto marked = [&] { return colorAt(shown(), view.toWidget({107.5, 100.5})) == QColor(Qt::white); };
    EXPECT_TRUE(marked());
    QDialog sheet(&window);
    sheet.setWindowModality(Qt::WindowModal);
    sheet.show();
    EXPECT_FALSE(marked());
}
