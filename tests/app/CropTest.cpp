// Cutting the picture: the filter's corners, and the windows of the Image menu.
#include "WindowFixture.h"

#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

namespace {

class CropTest : public WindowTest {
protected:
    MyImageView& view = *ui.pictureScrollView->imageView();

    CIRect rectangle() { return controller.getCurrentFilter()->valueForKey("inputRectangle").toVector().rect(); }
    void moveTo(CIPoint to)
    {
        const QPointF place = view.toWidget(to);
        QMouseEvent move(QEvent::MouseMove, place, view.mapToGlobal(place), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&view, &move);
    }
    void drag(CIPoint from, const std::vector<CIPoint>& way)
    {
        QTest::mousePress(&view, Qt::LeftButton, {}, view.toWidget(from).toPoint());
        for (CIPoint to : way)
            moveTo(to);
        QTest::mouseRelease(&view, Qt::LeftButton, {}, view.toWidget(way.back()).toPoint());
    }
};

TEST_F(CropTest, TheFiltersCornersStartAtThePicturesEdges)
{
    openPicture(pictureFile("a.png", 200, 100));
    pick("CICrop");
    EXPECT_EQ(rectangle(), (CIRect{0, 0, 200, 100}));
    EXPECT_EQ(controller.coreImageResult(false).extent(), (CIRect{0, 0, 200, 100})) << "nothing is cut off yet";
    drag({2, 2}, {{20, 10}, {40, 30}});
    const CIRect dragged = rectangle();
    EXPECT_NEAR(dragged.x, 40, 1e-6);
    EXPECT_NEAR(dragged.y, 30, 1e-6);
    EXPECT_NEAR(dragged.right(), 200, 1e-6) << "the opposite corner stays";
    EXPECT_EQ(controller.coreImageResult(false).extent(), dragged);
}

TEST_F(CropTest, ADragOfACornerIsOneUndoStep)
{
    openPicture(pictureFile("a.png", 200, 100));
    pick("CICrop");
    const qsizetype before = undo.undoActionNames().size();
    drag({2, 2}, {{5, 5}, {10, 10}, {15, 12}, {40, 30}});
    EXPECT_EQ(undo.undoActionNames().size(), before + 1);
    EXPECT_EQ(undo.undoActionName(), "Change to Crop Rectangle");
    undo.undo();
    EXPECT_EQ(rectangle(), (CIRect{0, 0, 200, 100}));
    undo.redo();
    EXPECT_NEAR(rectangle().x, 40, 1e-6);
    drag({40, 30}, {{40, 30}});
    QTest::mouseClick(&view, Qt::LeftButton, {}, view.toWidget({40, 30}).toPoint());
    EXPECT_LE(undo.undoActionNames().size(), before + 2) << "a mere click is no step";
}

TEST_F(CropTest, AHeldArrowKeyIsOneUndoStep)
{
    openPicture(pictureFile("a.png", 200, 100));
    pick("CICrop");
    const qsizetype before = undo.undoActionNames().size();
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Tab);
    for (int i = 0; i < 5; ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Left, {}, {}, i > 0);
        QApplication::sendEvent(&view, &press);
    }
    QTest::keyRelease(&view, Qt::Key_Left);
    EXPECT_EQ(rectangle(), (CIRect{0, 0, 195, 100}));
    EXPECT_EQ(undo.undoActionNames().size(), before + 1);
}

TEST_F(CropTest, FileNamesWithTheMarksSignShowAsTheyAre)
{
    openPicture(pictureFile("a[*]b.png", 20, 10));
    EXPECT_EQ(window.windowTitle().count("[*][*]"), 1) << "which the platform shows as [*]";
    pick("CICrop");
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_TRUE(window.windowTitle().endsWith("b.png[*]"));
}

} // namespace
