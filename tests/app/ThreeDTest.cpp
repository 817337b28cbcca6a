#include "WindowFixture.h"

#include "app/catalogue/OutlineView.h"
#include "app/catalogue/Thumbnail.h"
#include "effects2d/EffectControl.h"
#include "effects3d/MyOGLView.h"
#include "effects3d/ObjectEffect.h"
#include "effects3d/ThreeDStage.h"
#include "platform/foundation/KeyedArchive.h"
#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"
#include "widgets/DocPageControl.h"
#include "widgets/PanelPopUp.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QTest>

namespace {

struct ThreeDTest : WindowTest {
    MyOGLView& view = *ui.openGLStage->openGLView();

    ThreeDTest()
    {
        action("action3D")->trigger();
        QCoreApplication::processEvents();
    }
    /// Clicks a row of the list.
    void choose(int row)
    {
        OutlineView& list = *ui.filter3DOutlineView;
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(row, 0)).center());
    }
    ObjectEffect* object() { return dynamic_cast<ObjectEffect*>(controller.getCurrent3DEffect()); }
    void drag(QPoint by)
    {
        const QPoint start = view.rect().center();
        QTest::mousePress(&view, Qt::LeftButton, {}, start);
        QTest::mouseMove(&view, start + by);
        QTest::mouseRelease(&view, Qt::LeftButton, {}, start + by);
    }
    QList<EffectControl*> rows() const { return ui.place3DCntrlView->findChildren<EffectControl*>(); }
};

TEST_F(ThreeDTest, AChosenEffectIsACopyWithAPanelOfItsOwn)
{
    EXPECT_FALSE(controller.getCurrent3DEffect());
    EXPECT_FALSE(ui.applyBtn->isEnabled());
    EXPECT_TRUE(view.isVisible());
    choose(1);
    ASSERT_TRUE(object());
    EXPECT_EQ(rows().size(), 3);
    EXPECT_EQ(ui.filterNameField->text(), "3D Objects");
    EXPECT_TRUE(ui.applyBtn->isEnabled());
    EXPECT_TRUE(controller.wasChanged());
    drag({60, 0});
    EXPECT_EQ(object()->objectRotation()[0], 60);
    choose(0);
    EXPECT_EQ(controller.getCurrent3DEffect()->className(), "EvalEffect");
    EXPECT_EQ(rows().size(), 7);
    choose(1);
    EXPECT_EQ(object()->objectRotation()[0], 0) << "the prototype stays as it was";
}

TEST_F(ThreeDTest, UndoStepsOfAnEffectGoWithIt)
{
    choose(1);
    drag({60, 0});
    drag({0, 30});
    ui.threeDBtn->click();
    EXPECT_TRUE(ui.threeDBtn->isChecked());
    EXPECT_EQ(action("actionUndo")->text(), "Undo Rotate") << "the mode that is on is no change";
    action("actionUndo")->trigger();
    EXPECT_EQ(object()->objectRotation()[1], 0);
    EXPECT_EQ(object()->objectRotation()[0], 60);
    const UndoManager& steps = undo;
    choose(0);
    EXPECT_NE(steps.undoActionName(), "Rotate");
    EXPECT_FALSE(steps.canRedo());
    drag({10, 10});
    action("actionStandard")->trigger();
    EXPECT_NE(steps.undoActionName(), "Rotate");
    action("actionUndo")->trigger();
    EXPECT_EQ(controller.filerMode(), unsigned(Controller::ThreeD));
    EXPECT_TRUE(controller.getCurrent3DEffect()) << "survives the modes";
}

TEST_F(ThreeDTest, ApplyMakesTheViewThePictureAndUndoBringsTheOldOneBack)
{
    openPicture(pictureFile("plain.png", 300, 200));
    const CIImage before = controller.backImage();
    EXPECT_NEAR(double(view.width()) / view.height(), 1.5, 0.01) << "the sheet has the picture's proportions";
    choose(1);
    ui.applyBtn->click();
    const CIImage applied = controller.backImage();
    EXPECT_EQ(applied.extent(), (CIRect{0, 0, double(view.width()), double(view.height())}));
    const CIBitmap pixels = CIContext().render(applied, applied.extent());
    const auto middle = pixels.row<std::uint8_t>(pixels.height() / 2);
    EXPECT_EQ(middle[std::size_t(pixels.width() / 2) * 4], 200) << "the picture on a ball";
    EXPECT_EQ(pixels.row<std::uint8_t>(0)[3], 0) << "nothing around it";
    EXPECT_FALSE(controller.getCurrent3DEffect());
    EXPECT_TRUE(controller.wasChanged());
    undo.undo();
    EXPECT_TRUE(controller.backImage().isSameAs(before));
}

TEST_F(ThreeDTest, CopiesWhatTheViewShows)
{
    openPicture(pictureFile("plain.png", 300, 200));
    choose(1);
    perform(&Controller::copy);
    const QImage copied = QGuiApplication::clipboard()->image();
    ASSERT_EQ(copied.size(), view.ogl_shot().size());
    EXPECT_EQ(copied.pixelColor(copied.rect().center()), QColor(200, 100, 50));
    EXPECT_EQ(copied.pixelColor(2, 2).alpha(), 0);
    controller.escapeEffect();
    perform(&Controller::copy);
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(300, 200)) << "the plain picture without an effect";
}

TEST_F(ThreeDTest, PanelsOfTheModesStayApart)
{
    choose(1);
    action("actionStandard")->trigger();
    EXPECT_FALSE(ui.place3DCntrlView->isVisible());
    pick("CIGaussianBlur");
    EXPECT_EQ(ui.filterNameField->text(), "Gaussian Blur");
    action("action3D")->trigger();
    EXPECT_EQ(ui.filterNameField->text(), "3D Objects");
    EXPECT_FALSE(ui.placeCntrlView->isVisible());
    EXPECT_EQ(rows().size(), 3);
    action("actionStandard")->trigger();
    EXPECT_EQ(ui.filterNameField->text(), "Gaussian Blur");
    controller.filterChanged3D(nullptr);
    EXPECT_FALSE(controller.getCurrentFilter()) << "a favourite asked from another mode clears that one";
    EXPECT_TRUE(object());
}

TEST_F(ThreeDTest, EscapeInAnOpenPopUpClosesThePopUp)
{
    choose(1);
    auto* popUp = ui.place3DCntrlView->findChild<PanelPopUp*>();
    ASSERT_TRUE(popUp);
    popUp->setFocus();
    popUp->showPopup();
    ASSERT_TRUE(popUp->view()->isVisible());
    QTest::keyClick(popUp->view(), Qt::Key_Escape);
    EXPECT_FALSE(popUp->view()->isVisible());
    EXPECT_TRUE(controller.getCurrent3DEffect()) << "Escape was the pop-up's";
    EXPECT_EQ(window.focusWidget(), popUp);
    QTest::keyClick(popUp, Qt::Key_Escape);
    EXPECT_FALSE(controller.getCurrent3DEffect());
}

struct ThreeDFavouritesTest : ThreeDTest {
    ~ThreeDFavouritesTest() override { UserDefaults::standardUserDefaults().setRecordsForKey({}, kList); }

    onlyTextClosedButton* button(int index) const
    {
        return qobject_cast<onlyTextClosedButton*>(ui.m_page3DController->items().value(index));
    }
    static void press(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }

    static inline const QString kList = QStringLiteral("3DEffectsFavorites");
};

TEST_F(ThreeDFavouritesTest, BringTheEffectBackAlsoFromTheDefaults)
{
    EXPECT_FALSE(ui.addFavouriteBtn->isEnabled());
    choose(1);
    rows().first()->setValue(ObjectEffect::Disk);
    emit rows().first()->changed();
    drag({-21, 33});
    const CIDictionary settings = object()->save();
    press(ui.addFavouriteBtn);
    ASSERT_TRUE(button(0));
    EXPECT_EQ(button(0)->toolTip(), "3D Objects Texuture");
    EXPECT_EQ(button(0)->getBackImage().deviceIndependentSize(), QSizeF(40, 25));
    drag({10, 10});
    press(button(0));
    ASSERT_TRUE(object());
    EXPECT_EQ(object()->save(), settings);
    EXPECT_FALSE(ui.filter3DOutlineView->selectedItem());
    drag({10, 10});
    choose(0);
    EXPECT_FALSE(button(0)->isChecked()) << "the list takes over";

    controller.saveFavorites();
    controller.readFavorites();
    ASSERT_TRUE(button(0));
    press(button(0));
    ASSERT_TRUE(object());
    EXPECT_EQ(object()->save(), settings) << "turning a copy leaves the favourite alone";
    EXPECT_EQ(rows().size(), 3);
    press(button(0));
    EXPECT_FALSE(controller.getCurrent3DEffect());
    press(button(0));
    controller.removeFavorites3D(button(0));
    EXPECT_FALSE(controller.getCurrent3DEffect());
    EXPECT_FALSE(button(0));
}

TEST_F(ThreeDFavouritesTest, AChosenOneLetsTheStripStepTowardsTheFirst)
{
    choose(1);
    const DocPageControl& strip = *ui.m_page3DController;
    while (strip.visibleOrigin() < 100 && strip.pageCount() < 30) {
        press(ui.addFavouriteBtn);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !strip.isMoving(); }));
    }
    const int first = strip.currentPage();
    press(button(first)); // the leftmost that is seen: it still is after the step
    EXPECT_EQ(strip.currentPage(), first - 1);
    onlyTextClosedButton* last = button(int(strip.items().size()) - 1);
    controller.filterChanged3D(last);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !strip.isMoving(); }));
    EXPECT_GE(last->x(), strip.visibleOrigin());
    EXPECT_LE(last->x() + last->width(), strip.visibleOrigin() + strip.visibleWidth()) << "it stays visible";
}

} // namespace
