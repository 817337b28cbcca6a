#include "WindowFixture.h"

#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QTest>

namespace {

const QColor kPictureColor(200, 100, 50); // of pictureFile

class CompareTest : public WindowTest {
protected:
    CompareTest()
    {
        openPicture(pictureFile("plain.png", 120, 80));
        pick("CIColorInvert");
    }

    /// What is seen in the middle of the picture.
    QColor shown()
    {
        EXPECT_TRUE(view.waitForFrame());
        return view.grab().toImage().pixelColor(view.rect().center() * view.devicePixelRatioF());
    }

    MyImageView& view = *ui.pictureScrollView->imageView();
};

TEST_F(CompareTest, ShowsThePictureAndChangesNothing)
{
    const QColor inverted = shown();
    ASSERT_NE(inverted, kPictureColor);
    const bool couldUndo = undo.canUndo();
    const QString title = window.windowTitle();
    const std::shared_ptr<CIFilter> filter = controller.getCurrentFilter();
    ui.searchField->setFocus();
    QTest::keyPress(ui.searchField, Qt::Key_F7);
    EXPECT_EQ(shown(), kPictureColor);
    QTest::keyRelease(ui.searchField, Qt::Key_F7);
    EXPECT_EQ(shown(), inverted);
    EXPECT_EQ(undo.canUndo(), couldUndo);
    EXPECT_EQ(window.windowTitle(), title);
    EXPECT_EQ(controller.getCurrentFilter(), filter);

    QTest::keyPress(&window, Qt::Key_F7);
    action("action3D")->trigger();
    EXPECT_FALSE(view.showsOriginal() || ui.compareBtn->isEnabled()) << "the other modes have nothing to compare";
}

TEST_F(CompareTest, LastsAsLongAsTheButtonIsHeldAndTheWindowIsUsed)
{
    QTest::mousePress(ui.compareBtn, Qt::LeftButton);
    EXPECT_TRUE(view.showsOriginal());
    QTest::mouseRelease(ui.compareBtn, Qt::LeftButton);
    EXPECT_FALSE(view.showsOriginal());
    QApplication::setActiveWindow(&window);
    QTest::keyPress(&window, Qt::Key_F7);
    EXPECT_TRUE(view.showsOriginal() && ui.compareBtn->isDown());
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    EXPECT_FALSE(view.showsOriginal() || ui.compareBtn->isDown()) << "the release goes to the other window";
}

TEST_F(CompareTest, TheFileAsItWasOpenedCanBeTheOtherSide)
{
    const QColor inverted = shown();
    perform(&Controller::applyBtn);
    perform(&Controller::rotateLeft);
    EXPECT_FALSE(ui.compareBtn->isEnabled()) << "without a filter there is nothing before";
    QAction& opened = *action("actionCompareOpened");
    opened.trigger();
    ASSERT_TRUE(ui.compareBtn->isEnabled());
    EXPECT_EQ(shown(), inverted);
    QTest::keyPress(&window, Qt::Key_F7);
    EXPECT_EQ(shown(), kPictureColor) << "two steps back, and turned";
    const QImage frame = view.shownFrame();
    EXPECT_EQ(frame.width(), 80);
    EXPECT_NEAR(frame.height(), 53.3, 1) << "it keeps its proportions";
    QTest::keyRelease(&window, Qt::Key_F7);
    EXPECT_EQ(shown(), inverted);

    openPicture(pictureFile("other.png", 60, 40));
    perform(&Controller::undo);
    QTest::keyPress(&window, Qt::Key_F7);
    EXPECT_EQ(shown(), kPictureColor) << "the file of the document that has come back";
    QTest::keyRelease(&window, Qt::Key_F7);
    opened.trigger();
    EXPECT_FALSE(ui.compareBtn->isEnabled());
}

TEST_F(CompareTest, WhatHappensMeanwhileIsSeenAfterwards)
{
    QTest::keyPress(&window, Qt::Key_F7);
    EXPECT_EQ(shown(), kPictureColor);
    pick("CIColorPosterize");
    EXPECT_EQ(shown(), kPictureColor) << "another filter doesn't end it";
    openPicture(pictureFile("larger.png", 300, 200));
    EXPECT_EQ(controller.getBgImageExtent().width, 300);
    EXPECT_EQ(shown(), kPictureColor);
    pick("CIColorInvert");
    QTest::keyRelease(&window, Qt::Key_F7);
    EXPECT_NE(shown(), kPictureColor);
}

TEST_F(CompareTest, PointsThatAreNotSeenAreNotGrabbed)
{
    pick("CIBumpDistortion");
    QTest::keyPress(&window, Qt::Key_F7);
    const auto center = [&] { return controller.getCurrentFilter()->valueForKey("inputCenter"); };
    const CIValue before = center();
    QTest::mousePress(&view, Qt::LeftButton, {}, view.rect().center());
    QTest::mouseMove(&view, view.rect().center() + QPoint(20, 10));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, view.rect().center() + QPoint(20, 10));
    EXPECT_TRUE(center() == before);
    QTest::keyRelease(&window, Qt::Key_F7);
}

} // namespace
