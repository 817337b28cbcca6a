// What keys and mouse do wherever the keyboard is.
#include "WindowFixture.h"

#include "app/catalogue/OutlineView.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "ui_MainWindow.h"
#include "widgets/ValueSlider.h"

#include <QApplication>
#include <QTest>

#include <array>
#include <cmath>

namespace {

class KeysTest : public WindowTest {
protected:
    KeysTest()
    {
        QApplication::setActiveWindow(&window);
        openPicture(pictureFile("plain.png", 800, 600));
    }

    MyImageView& view = *ui.pictureScrollView->imageView();

    /// How far the picture follows a drag by (30, 20) in the view, in points.
    QPointF dragged()
    {
        const QPointF before = view.toWidget({0, 0});
        const QPoint from = view.rect().center();
        QTest::mousePress(&view, Qt::LeftButton, {}, from);
        QTest::mouseMove(&view, from + QPoint(30, 20));
        QTest::mouseRelease(&view, Qt::LeftButton, {}, from + QPoint(30, 20));
        return view.toWidget({0, 0}) - before;
    }
};

TEST_F(KeysTest, SpaceMovesThePictureWhereverTheKeyboardIs)
{
    pick("CIBumpDistortion");
    controller.zooming().zoomTo(4);
    QCoreApplication::processEvents();
    const auto center = [&] { return controller.getCurrentFilter()->valueForKey("inputCenter"); };
    auto* slider = ui.placeCntrlView->findChild<ValueSlider*>();
    ASSERT_TRUE(slider);
    const std::array<QWidget*, 4> places{ui.listView, slider, ui.zoomSlider, &view};
    for (QWidget* focused : places) {
        SCOPED_TRACE(focused->metaObject()->className());
        focused->setFocus();
        const CIValue before = center();
        QTest::keyPress(focused, Qt::Key_Space);
        EXPECT_EQ(view.cursor().shape(), Qt::OpenHandCursor);
        const QPointF moved = dragged();
        EXPECT_NEAR(std::hypot(moved.x() - 30, moved.y() - 20), 0, 1);
        EXPECT_TRUE(center() == before) << "the point stays";
        QTest::keyRelease(window.focusWidget(), Qt::Key_Space);
        EXPECT_NE(view.cursor().shape(), Qt::OpenHandCursor);
        EXPECT_EQ(dragged(), QPointF());
    }
}

TEST_F(KeysTest, SpaceIsTextInFieldsAndPressesButtons)
{
    controller.zooming().zoomTo(4);
    for (QWidget* focused : std::array<QWidget*, 2>{ui.searchField, ui.fitBtn}) {
        focused->setFocus();
        QTest::keyPress(focused, Qt::Key_Space);
        EXPECT_NE(view.cursor().shape(), Qt::OpenHandCursor) << focused->objectName().toStdString();
        QTest::keyRelease(focused, Qt::Key_Space);
    }
    EXPECT_EQ(ui.searchField->text(), " ");
    EXPECT_LT(view.getZoom(), 3) << "the button was pressed";
    ui.searchField->clear();

    ui.listView->setFocus();
    QTest::keyClicks(ui.listView, "gaussian g");
    ASSERT_TRUE(ui.listView->selectedItem());
    EXPECT_EQ(controller.getCurrentFilter()->name(), "CIGaussianGradient") << "a space among letters looks for a row";
}

TEST_F(KeysTest, SpaceEndsWithTheWindow)
{
    controller.zooming().zoomTo(4);
    ui.listView->setFocus();
    QTest::keyPress(ui.listView, Qt::Key_Space);
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    EXPECT_EQ(dragged(), QPointF());
}

TEST_F(KeysTest, ZoomKeys)
{
    const float fitting = view.getZoom();
    for (QWidget* focused : std::array<QWidget*, 3>{ui.searchField, ui.listView, &view}) {
        focused->setFocus();
        QTest::keyClick(focused, Qt::Key_1, Qt::ControlModifier);
        EXPECT_EQ(view.getZoom(), 1);
        QTest::keyClick(focused, Qt::Key_Plus, Qt::ControlModifier);
        EXPECT_NEAR(view.getZoom(), 1.05f, 1e-3);
        QTest::keyClick(focused, Qt::Key_Minus, Qt::ControlModifier);
        QTest::keyClick(focused, Qt::Key_Equal, Qt::ControlModifier);
        QTest::keyClick(focused, Qt::Key_Minus, Qt::ControlModifier);
        EXPECT_NEAR(view.getZoom(), 1, 1e-3);
        QTest::keyClick(focused, Qt::Key_0, Qt::ControlModifier);
        EXPECT_EQ(view.getZoom(), fitting);
    }
    QTest::keyClick(&window, Qt::Key_2, Qt::AltModifier);
    EXPECT_TRUE(action("action3D")->isChecked());
    QTest::mouseDClick(ui.zoomField, Qt::LeftButton);
    EXPECT_EQ(view.getZoom(), fitting) << "nothing to zoom here";
    QTest::keyClick(&window, Qt::Key_1, Qt::AltModifier);
    EXPECT_TRUE(action("actionStandard")->isChecked());
}

TEST_F(KeysTest, TheCatalogueIsSearchedByKeysAlone)
{
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_F, Qt::ControlModifier);
    ASSERT_EQ(window.focusWidget(), ui.searchField);
    QTest::keyClicks(ui.searchField, "motion blur");
    QTest::keyClick(ui.searchField, Qt::Key_Down);
    EXPECT_EQ(window.focusWidget(), ui.listView);
    EXPECT_FALSE(controller.getCurrentFilter()) << "only looking";
    QTest::keyClick(ui.listView, Qt::Key_Escape);
    EXPECT_EQ(window.focusWidget(), ui.searchField);
    EXPECT_EQ(ui.searchField->text(), "motion blur");
    QTest::keyClick(ui.searchField, Qt::Key_Down);
    QTest::keyClick(ui.listView, Qt::Key_Return);
    ASSERT_TRUE(controller.getCurrentFilter());
    EXPECT_EQ(controller.getCurrentFilter()->name(), "CIMotionBlur");

    QTest::keyClick(ui.listView, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(ui.searchField, "gaussian"); // over the old text
    EXPECT_EQ(ui.searchField->text(), "gaussian");
    QTest::keyClick(ui.searchField, Qt::Key_Down);
    QTest::keyClick(ui.listView, Qt::Key_Up);
    ASSERT_TRUE(controller.getCurrentFilter()) << "walking over a group drops nothing";
    EXPECT_EQ(controller.getCurrentFilter()->name(), "CIMotionBlur");
    QTest::keyClick(ui.listView, Qt::Key_Down);
    EXPECT_EQ(controller.getCurrentFilter()->name(), "CIGaussianBlur");
    QTest::keyClick(ui.listView, Qt::Key_Down);
    EXPECT_EQ(controller.getCurrentFilter()->name(), "CIGaussianGradient");
    QTest::keyClick(ui.listView, Qt::Key_Return);
    QTest::keyClick(ui.listView, Qt::Key_Escape);
    EXPECT_FALSE(controller.getCurrentFilter()) << "once it is chosen, Escape is the filter's again";
}

} // namespace
