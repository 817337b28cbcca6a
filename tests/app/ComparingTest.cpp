// Before and after, without the program's window.
#include "app/window/Comparing.h"

#include "app/document/Document.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"

#include <gtest/gtest.h>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

class ComparingTest : public testing::Test {
protected:
    ComparingTest()
    {
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* part : std::initializer_list<QWidget*>{&field, &button, &scroller})
            layout->addWidget(part);
        splitItem.setCheckable(true);
        openedItem.setCheckable(true);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        comparing.update(true);
    }
    bool showsOriginal() const { return view.showsOriginal() && button.isDown(); }

    QWidget window;
    QLineEdit& field = *new QLineEdit;
    QToolButton& button = *new QToolButton;
    PictureScrollView& scroller = *new PictureScrollView;
    MyImageView& view = *scroller.imageView();
    QAction splitItem, openedItem;
    bool isEdited = true;
    Document document{nullptr};
    Comparing comparing{
        {window, button, splitItem, openedItem, view}, document, {[this] { return isEdited; }, [] { return true; }}};
};

TEST_F(ComparingTest, LastsAsLongAsKeyOrButtonIsHeld)
{
    for (QWidget* focused : std::initializer_list<QWidget*>{&field, &button, &view}) {
        QTest::keyPress(focused, Qt::Key_F7);
        EXPECT_TRUE(showsOriginal());
        QTest::keyRelease(focused, Qt::Key_F7);
        EXPECT_FALSE(view.showsOriginal() || button.isDown());
    }
    QTest::mousePress(&button, Qt::LeftButton);
    EXPECT_TRUE(showsOriginal());
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_FALSE(view.showsOriginal());
}

TEST_F(ComparingTest, EndsWithTheFilterAndTheWindow)
{
    QTest::keyPress(&field, Qt::Key_F7);
    isEdited = false;
    comparing.update(true);
    EXPECT_FALSE(view.showsOriginal() || button.isDown() || button.isEnabled());
    QTest::keyPress(&field, Qt::Key_F7);
    EXPECT_FALSE(view.showsOriginal()) << "nothing to compare with";
    isEdited = true;
    comparing.update(false);
    EXPECT_FALSE(button.isEnabled()) << "a picture is on its way";

    comparing.update(true);
    QApplication::setActiveWindow(&window);
    QTest::keyPress(&field, Qt::Key_F7);
    EXPECT_TRUE(showsOriginal());
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    EXPECT_FALSE(view.showsOriginal()) << "the release goes to the other window";
}

TEST_F(ComparingTest, SplitsWhileThereIsAFilter)
{
    splitItem.setChecked(true);
    comparing.split();
    EXPECT_TRUE(view.isSplit());
    isEdited = false;
    comparing.update(true);
    EXPECT_FALSE(view.isSplit());
    isEdited = true;
    comparing.update(true);
    EXPECT_TRUE(view.isSplit()) << "the item is still checked";
    splitItem.setChecked(false);
    comparing.split();
    EXPECT_FALSE(view.isSplit());
}

TEST_F(ComparingTest, MayBeWithTheFileAsItWasOpened)
{
    const CIImage file = CIImage::fromBitmap(CIBitmap(40, 20));
    document.becomeFile("/a.png", file, "Open");
    document.setPicture(CIImage::fromBitmap(CIBitmap(80, 80)));
    EXPECT_TRUE(comparing.comparedImage().isSameAs(document.picture()));
    isEdited = false;
    EXPECT_FALSE(comparing.isPossible());
    openedItem.setChecked(true);
    comparing.compareOpened();
    EXPECT_TRUE(comparing.isPossible()) << "also without a filter";
    EXPECT_EQ(comparing.comparedImage().extent(), (CIRect{0, 20, 80, 40})) << "in the picture's place";
    document.forgetOpened();
    EXPECT_FALSE(comparing.isPossible());
}

} // namespace
