#include "platform/quartz/Context.h"

#include <gtest/gtest.h>

namespace {

using quartz::Context;
using quartz::Drawing;
using quartz::Part;

constexpr QRgb kRed = 0xffff0000, kGreen = 0xff00ff00, kNothing = 0;

struct DrawingTest : testing::Test {
    Drawing drawing{QSizeF(20, 10)};
    Context context{drawing};

    QImage shown() const { return drawing.rendered(Part::whole(drawing.size())); }
    /// The pixel of a canvas unit, counted from the lower left corner.
    QRgb at(int x, int y) const { return shown().pixel(x, 9 - y); }
    void red() { context.setRGBFillColor(1, 0, 0, 1), context.setRGBStrokeColor(1, 0, 0, 1); }
    void green() { context.setRGBFillColor(0, 1, 0, 1), context.setRGBStrokeColor(0, 1, 0, 1); }
};

TEST_F(DrawingTest, CountsFromTheLowerLeftCornerAndStandardisesRectangles)
{
    red();
    context.fillRect({2, 1, 3, 2});
    green();
    context.fillRect({12, 9, -2, -3}); // columns 10 and 11, rows 6 to 8
    EXPECT_EQ(at(2, 1), kRed);
    EXPECT_EQ(at(4, 2), kRed);
    EXPECT_EQ(at(4, 3), kNothing);
    EXPECT_EQ(at(10, 6), kGreen);
    EXPECT_EQ(at(11, 8), kGreen);
    EXPECT_EQ(at(12, 8), kNothing);
    EXPECT_EQ(at(10, 5), kNothing);
}

TEST_F(DrawingTest, CoversEdgePixelsByTheirArea)
{
    red();
    context.fillRect({1.5, 1, 1, 0.25}); // half of column 1 and of column 2, a quarter of row 1
    EXPECT_NEAR(qAlpha(at(1, 1)), 32, 2);
    EXPECT_NEAR(qAlpha(at(2, 1)), 32, 2);
    context.setLineWidth(3);
    context.strokeLine({4, 5}, {8, 5}); // butt ends
    EXPECT_EQ(at(4, 5), kRed);
    EXPECT_NEAR(qAlpha(at(5, 6)), 128, 2);
    EXPECT_EQ(at(3, 5), kNothing);
    EXPECT_EQ(at(8, 5), kNothing);
}

TEST_F(DrawingTest, FillsByWindingNumber)
{
    red();
    for (const double inset : {0.0, 2.0}) {
        context.moveToPoint({1 + inset, 1 + inset});
        context.addLineToPoint({9 - inset, 1 + inset});
        context.addLineToPoint({9 - inset, 9 - inset});
        context.addLineToPoint({1 + inset, 9 - inset});
        context.closePath();
    }
    context.fillPath();
    EXPECT_EQ(at(1, 1), kRed);
    EXPECT_EQ(at(5, 5), kRed);
}

TEST_F(DrawingTest, StrokesFramesAndMitersCorners)
{
    red();
    context.setLineWidth(2);
    context.strokeRect({8, 8, -6, -6}); // over both sides of the edge
    EXPECT_EQ(at(1, 1), kRed);
    EXPECT_EQ(at(8, 8), kRed);
    EXPECT_EQ(at(3, 3), kNothing);
    context.frameRect({12, 2, 5, 5}); // within the edge
    EXPECT_EQ(at(12, 2), kRed);
    EXPECT_EQ(at(16, 6), kRed);
    EXPECT_EQ(at(11, 2), kNothing);
    EXPECT_EQ(at(13, 3), kNothing);
}

TEST_F(DrawingTest, LinesGivenAsPathsAreLines)
{
    context.setRGBStrokeColor(1, 0, 0, 0.5);
    context.setLineWidth(2);
    context.moveToPoint({2, 5});
    context.addLineToPoint({8, 5});
    context.closePath(); // the way back isn't painted twice
    context.strokePath();
    ASSERT_EQ(drawing.figures().size(), 1u);
    EXPECT_EQ(drawing.figures()[0].kind, quartz::Figure::Kind::StrokeLine);
    EXPECT_NEAR(qAlpha(at(4, 5)), 128, 1);
    EXPECT_EQ(at(8, 5), kNothing);
}

TEST_F(DrawingTest, TransformsAddUpUntilTheyAreRestored)
{
    red();
    context.saveGState();
    context.translate(10, 5);
    context.concatenate(QTransform().rotate(90));
    context.fillRect({0, 0, 3, 1}); // up from (10, 5), one unit to the left
    context.restoreGState();
    context.restoreGState(); // one too many
    context.fillRect({0, 0, 1, 1});
    EXPECT_EQ(at(9, 5), kRed);
    EXPECT_EQ(at(9, 7), kRed);
    EXPECT_EQ(at(10, 5), kNothing);
    EXPECT_EQ(at(0, 0), kRed);
}

TEST_F(DrawingTest, CirclesAndEllipsesFillTheirRectangle)
{
    red();
    context.addCircle({5, 5}, 4);
    context.closePath();
    context.fillPath();
    EXPECT_EQ(at(5, 5), kRed);
    EXPECT_GT(qAlpha(at(1, 5)), 128);
    EXPECT_EQ(at(1, 1), kNothing);
    context.addEllipseInRect({12, 4, 6, 2}, QTransform::fromTranslate(0, 3));
    context.fillPath();
    EXPECT_GT(qAlpha(at(15, 7)), 200);
    EXPECT_EQ(at(15, 4), kNothing);
}

TEST_F(DrawingTest, ImagesKeepTheirFirstRowOnTopAndReachTheEdges)
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.setPixel(0, 0, kRed), image.setPixel(1, 0, kRed);
    image.setPixel(0, 1, kGreen), image.setPixel(1, 1, kGreen);
    context.drawImage({QPointF(0, 0), drawing.size()}, image);
    EXPECT_EQ(at(0, 9), kRed);
    EXPECT_EQ(at(19, 9), kRed);
    EXPECT_EQ(at(0, 0), kGreen);
    EXPECT_EQ(at(19, 0), kGreen);
}

TEST_F(DrawingTest, SkipsOnlyWhatIsHiddenAltogether)
{
    red();
    context.fillRect({0, 0, 20, 10});
    context.translate(10, 5);
    context.concatenate(QTransform().rotate(45));
    green();
    context.fillRect({-9, -9, 18, 18}); // leaves the corners red
    EXPECT_EQ(at(0, 0), kRed);
    EXPECT_EQ(at(10, 5), kGreen);
    context.fillRect({-20, -20, 40, 40});
    context.setRGBFillColor(1, 0, 0, 0.5);
    context.fillRect({-20, -20, 40, 40});
    EXPECT_NEAR(qGreen(at(0, 0)), 127, 1);
    EXPECT_NEAR(qRed(at(19, 9)), 128, 1);
}

TEST_F(DrawingTest, PartsShowTheSamePixelsAsTheWhole)
{
    red();
    for (int i = 0; i < 10; ++i) {
        context.moveToPoint({i * 2.3, 0.7});
        context.addCurveToPoint({20.0 - i, 3}, {double(i), 8}, {19.5 - i, 9.2});
        i % 2 ? context.strokePath() : context.fillPath();
    }
    for (const double scale : {0.5, 1.0, 3.0}) {
        const QImage whole = drawing.rendered(Part::whole(drawing.size(), scale));
        const int top = whole.height();
        const Part part{scale, int(3 * scale), int(8 * scale), QSize(int(12 * scale), int(6 * scale))};
        const QImage cut = whole.copy(part.left, top - part.top, part.size.width(), part.size.height());
        const QImage own = drawing.rendered(part);
        for (int y = 0; y < cut.height(); ++y)
            for (int x = 0; x < cut.width(); ++x)
                EXPECT_NEAR(qAlpha(own.pixel(x, y)), qAlpha(cut.pixel(x, y)), 2) << scale << ' ' << x << ' ' << y;
    }
}

} // namespace
