#include "WindowFixture.h"

#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "controls/picture/SplitDivider.h"
#include "ui_MainWindow.h"

#include <QAccessible>
#include <QTest>

namespace {

const QColor kPictureColor(200, 100, 50); // of pictureFile

class SplitViewTest : public WindowTest {
protected:
    SplitViewTest()
    {
        openPicture(pictureFile("plain.png", 120, 80));
        pick("CIColorInvert");
        action("actionSplitView")->trigger();
        QCoreApplication::processEvents();
    }

    /// What is seen halfway between the line and an edge of the picture, which fills the width.
    QColor shownBeside(bool left)
    {
        EXPECT_TRUE(view.waitForFrame());
        const QImage seen = view.grab().toImage();
        const int x = left ? divider.lineX() / 2 : (divider.lineX() + view.width()) / 2;
        return seen.pixelColor(QPoint(x, view.height() / 2) * view.devicePixelRatioF());
    }
    QColor before() { return shownBeside(true); }
    QColor after() { return shownBeside(false); }

    QPoint grip() const { return {divider.width() / 2, divider.mask().boundingRect().center().y()}; }

    void drag(QWidget& widget, QPoint from, QPoint by)
    {
        QTest::mousePress(&widget, Qt::LeftButton, {}, from);
        const QPoint to = widget.mapTo(&view, from) + by;
        QTest::mouseMove(&widget, widget.mapFrom(&view, to));
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, widget.mapFrom(&view, to));
    }

    MyImageView& view = *ui.pictureScrollView->imageView();
    SplitDivider& divider = *view.findChild<SplitDivider*>();
};

TEST_F(SplitViewTest, ShowsThePictureOnTheLeftAndTheResultOnTheRight)
{
    EXPECT_TRUE(ui.splitBtn->isChecked());
    EXPECT_TRUE(divider.isVisible());
    EXPECT_EQ(before(), kPictureColor);
    const QColor inverted = after();
    EXPECT_NE(inverted, kPictureColor);

    pick("CIColorPosterize");
    EXPECT_TRUE(divider.isVisible()) << "it stays when the filter changes";
    EXPECT_EQ(before(), kPictureColor);
    EXPECT_NE(after(), inverted);

    QTest::keyPress(&window, Qt::Key_F7);
    EXPECT_EQ(after(), kPictureColor) << "the whole picture without the filter";
    QTest::keyRelease(&window, Qt::Key_F7);

    QTest::mouseClick(ui.splitBtn, Qt::LeftButton);
    EXPECT_FALSE(divider.isVisible());
    EXPECT_NE(before(), kPictureColor);
}

TEST_F(SplitViewTest, TheDividerMovesByMouse)
{
    divider.setPlace(0.25);
    drag(divider, grip(), QPoint(view.width() / 4, 10));
    EXPECT_NEAR(divider.place(), 0.5, 0.01);
    EXPECT_EQ(before(), kPictureColor);
    EXPECT_NE(after(), kPictureColor);
    drag(divider, grip() + QPoint(9, 0), QPoint(1, 0));
    EXPECT_NEAR(divider.place() * view.width(), view.width() / 2 + 1, 1.5) << "it doesn't jump to the mouse";
    drag(divider, grip(), QPoint(3 * view.width(), 0));
    EXPECT_EQ(divider.place(), 1);
    EXPECT_EQ(before(), kPictureColor);

    divider.setPlace(0.5);
    window.resize(window.size() - QSize(100, 60));
    QCoreApplication::processEvents();
    EXPECT_NEAR(divider.lineX(), view.width() / 2, 1) << "it keeps its place in the view";
    EXPECT_EQ(divider.height(), view.height());
    EXPECT_EQ(divider.cursor().shape(), Qt::SplitHCursor);
}

TEST_F(SplitViewTest, TheDividerMovesByKeys)
{
    divider.setPlace(0.5);
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_NEAR(divider.place(), 0.51, 1e-9);
    QTest::keyClick(&view, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_NEAR(divider.place(), 0.41, 1e-9);

    QTest::keyClick(&view, Qt::Key_Tab); // no points on the way
    EXPECT_EQ(window.focusWidget(), &divider);
    QTest::keyClick(&divider, Qt::Key_Left);
    EXPECT_NEAR(divider.place(), 0.40, 1e-9);
    QTest::keyClick(&divider, Qt::Key_Home);
    EXPECT_EQ(divider.place(), 0);
    QTest::keyClick(&divider, Qt::Key_End);
    EXPECT_EQ(divider.place(), 1);

    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&divider);
    ASSERT_TRUE(face && face->valueInterface());
    EXPECT_EQ(face->role(), QAccessible::Slider);
    face->valueInterface()->setCurrentValue(0.3);
    EXPECT_EQ(divider.place(), 0.3);
    EXPECT_EQ(face->text(QAccessible::Value), "30 %");
}

TEST_F(SplitViewTest, PointsAreGrabbedAsEverButTheGripIsTheDividers)
{
    const QPoint onLine(divider.width() / 2, 20);
    EXPECT_TRUE(divider.mask().contains(onLine)) << "no points to be in the way of";
    pick("CIBumpDistortion");
    EXPECT_FALSE(divider.mask().contains(onLine));
    EXPECT_TRUE(divider.mask().contains(grip()));

    const auto center = [&] { return controller.getCurrentFilter()->valueForKey("inputCenter"); };
    const CIValue first = center();
    drag(divider, grip(), QPoint(30, 0));
    EXPECT_TRUE(center() == first);
    const double place = divider.place();
    drag(view, view.rect().center() + QPoint(50, 0), QPoint(20, 10));
    EXPECT_FALSE(center() == first);
    EXPECT_EQ(divider.place(), place);

    QTest::keyClick(&view, Qt::Key_Tab);
    const CIValue second = center();
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_FALSE(center() == second) << "arrow keys alone are the point's";
    EXPECT_EQ(divider.place(), place);
}

TEST_F(SplitViewTest, IsThereOnlyInStandardModeWithAFilter)
{
    divider.setFocus();
    action("actionClearEffect")->trigger();
    EXPECT_FALSE(divider.isVisible());
    EXPECT_EQ(window.focusWidget(), &view);
    EXPECT_FALSE(ui.splitBtn->isEnabled());
    pick("CIColorInvert");
    EXPECT_TRUE(divider.isVisible()) << "and comes back with one";
    action("actionCustom")->trigger();
    EXPECT_FALSE(view.isSplit());
    EXPECT_FALSE(action("actionSplitView")->isEnabled());
    action("actionStandard")->trigger();
    EXPECT_TRUE(view.isSplit());
}

} // namespace
