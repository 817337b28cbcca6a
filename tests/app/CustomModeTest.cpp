#include "WindowFixture.h"

#include "app/catalogue/OutlineView.h"
#include "effects2d/customEffImageView.h"
#include "effects2d/GeneratedEffect.h"
#include "platform/coreimage/CIContext.h"
#include "platform/foundation/KeyedArchive.h"
#include "platform/foundation/UserDefaults.h"
#include "tests/support/Input.h"
#include "ui_MainWindow.h"
#include "widgets/ColorWell.h"
#include "widgets/DocPageControl.h"
#include "widgets/GradientButton.h"
#include "widgets/PanelCheckBox.h"
#include "widgets/ValueSlider.h"

#include <QPushButton>
#include <QTest>

namespace {

const QString kList = QStringLiteral("CustomEffectsFavorites");
enum Row { kSimple, kLines, kHilbert, kPatchWork, kFlare, kPlasma, kMorphing, kSketch };

class CustomModeTest : public WindowTest {
protected:
    CustomModeTest()
    {
        openPicture(pictureFile("picture.png", 300, 200));
        QTest::mouseClick(ui.customBtn, Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    ~CustomModeTest() override { UserDefaults::standardUserDefaults().setRecordsForKey({}, kList); }

    void pickRow(int row)
    {
        const QModelIndex index = list().model()->index(row, 0);
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualRect(index).center());
        QCoreApplication::processEvents();
    }
    OutlineView& list() const { return *ui.filterCustomOutlineView; }
    customEffImageView& view() const { return *ui.customEffectsScrollView->imageView(); }
    GeneratedEffect* effect() { return dynamic_cast<GeneratedEffect*>(controller.getCurrentCustomEffect()); }
    template <class Control>
    QList<Control*> controls() const
    {
        return ui.placeCustomCntrlView->findChildren<Control*>();
    }
    onlyTextClosedButton* button(int index) const
    {
        return qobject_cast<onlyTextClosedButton*>(ui.m_pageCustomController->items().value(index));
    }
    static std::uint32_t pixel(const CIImage& image, int x, int y)
    {
        const CIBitmap bitmap = CIContext().render(image, {double(x), double(y), 1, 1});
        return bitmap.row<std::uint32_t>(0)[0];
    }
};

TEST_F(CustomModeTest, AnEffectIsACopyThatGoesWithTheNextChoice)
{
    EXPECT_EQ(list().model()->rowCount(), 8);
    EXPECT_FALSE(action("actionApply")->isEnabled());
    pickRow(kLines);
    ASSERT_TRUE(effect());
    EXPECT_EQ(effect()->className(), "linesEffect");
    EXPECT_EQ(ui.filterNameField->text(), "Lines Effect");
    EXPECT_TRUE(controller.wasChanged());
    EXPECT_TRUE(action("actionApply")->isEnabled());
    const float opacity = effect()->opacity();
    controls<ValueSlider>().first()->moveTo(13);
    EXPECT_EQ(effect()->opacity(), 13);
    controller.undo();
    EXPECT_EQ(effect()->opacity(), opacity);
    EXPECT_EQ(controls<ValueSlider>().first()->value(), opacity);
    controller.redo();

    pickRow(kPlasma);
    EXPECT_EQ(effect()->className(), "plasmaEffect");
    pickRow(kLines);
    EXPECT_EQ(effect()->opacity(), opacity) << "a fresh copy";
    while (undo.canUndo()) // what remains is the switch to this mode
        undo.undo();
    EXPECT_EQ(controller.filerMode(), unsigned(Controller::Standard));
}

TEST_F(CustomModeTest, EscapeAndApplyEndTheEffect)
{
    pickRow(kSimple);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(effect());
    EXPECT_FALSE(list().selectedItem());
    EXPECT_TRUE(controls<QWidget>().isEmpty());
    EXPECT_FALSE(ui.filterNameField->isVisible());

    const CIImage before = controller.backImage();
    pickRow(kSimple);
    const CIImage drawn = controller.getEffectedImage();
    EXPECT_EQ(drawn.extent(), before.extent());
    QTest::mouseClick(ui.applyBtn, Qt::LeftButton);
    waitUntilIdle();
    EXPECT_FALSE(effect());
    for (const auto& [x, y] : {std::pair{3, 4}, {150, 100}, {299, 199}})
        EXPECT_EQ(pixel(controller.backImage(), x, y), pixel(drawn, x, y));
    EXPECT_EQ(undo.undoActionName(), "Apply");
    controller.undo();
    EXPECT_TRUE(controller.backImage().isSameAs(before));
}

TEST_F(CustomModeTest, WithoutAPictureTheCanvasHasItsOwnSize)
{
    controller.setBackgroundImage({});
    EXPECT_LT(view().getZoom(), 1.5f) << "all of it is seen";
    for (int row = kSimple; row <= kMorphing; ++row) {
        pickRow(row);
        EXPECT_EQ(controller.getEffectedImage().extent(), (CIRect{0, 0, 726, 544})) << row;
        EXPECT_NEAR(view().bounds().width, 726, 20) << row; // with room for a scroller
    }
    pickRow(kSketch);
    EXPECT_FALSE(controller.getEffectedImage());
    openPicture(pictureFile("other.png", 120, 90)); // while an effect is shown
    EXPECT_EQ(controller.getEffectedImage().extent(), (CIRect{0, 0, 120, 90}));
    EXPECT_NEAR(view().bounds().width, 120, 5);
}

TEST_F(CustomModeTest, WheelAndSliderZoomItsOwnView)
{
    pickRow(kPlasma);
    controller.zooming().zoomTo(1);
    EXPECT_EQ(view().getZoom(), 1);
    EXPECT_EQ(ui.zoomField->text(), "100 %");
    input::turnWheel(view(), 120);
    EXPECT_FLOAT_EQ(view().getZoom(), 1.05f);
    input::turnWheel(view(), 120);
    EXPECT_FLOAT_EQ(view().getZoom(), 1.26f);
    EXPECT_EQ(ui.zoomField->text(), "126 %");
    const float zoom = view().getZoom();
    QTest::mouseClick(ui.standardBtn, Qt::LeftButton);
    controller.zooming().zoomTo(2);
    QTest::mouseClick(ui.customBtn, Qt::LeftButton);
    EXPECT_EQ(view().getZoom(), zoom) << "each mode has its own";
    EXPECT_EQ(ui.zoomField->text(), "126 %");
}

TEST_F(CustomModeTest, ThePictureFitsTheViewThatIsShownUntilTheUserZooms)
{
    openPicture(pictureFile("large.png", 3000, 2000));
    const auto fits = [&] {
        const CIRect extent = controller.getBgImageExtent();
        const double larger = std::max(extent.width * view().getZoom() / ui.customEffectsScrollView->width(),
            extent.height * view().getZoom() / ui.customEffectsScrollView->height());
        return larger <= 1 && larger > 0.93;
    };
    const float before = view().getZoom();
    window.resize(window.width() + 200, window.height() + 150);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view().getZoom() > before && fits(); })) << view().getZoom();
    perform(&Controller::rotateLeft);
    EXPECT_TRUE(fits()) << "the page of the filters has another size";
    action("actionActualSize")->trigger();
    window.resize(window.width() - 200, window.height() - 150);
    QCoreApplication::processEvents();
    EXPECT_EQ(view().getZoom(), 1);
}

TEST_F(CustomModeTest, FavouritesBringEffectsBackAcrossRuns)
{
    for (int row = kSimple; row <= kSketch; ++row) {
        pickRow(row);
        if (row == kHilbert)
            controls<ValueSlider>().first()->moveTo(33);
        QTest::mouseClick(ui.addFavouriteBtn, Qt::LeftButton);
        waitUntilIdle();
    }
    ASSERT_EQ(ui.m_pageCustomController->pageCount(), 8);
    controller.saveFavorites();
    controller.readFavorites();
    ASSERT_EQ(ui.m_pageCustomController->pageCount(), 8);
    EXPECT_EQ(button(kHilbert)->toolTip(), "Hilbert Lines Effect Generator");
    QTest::mouseClick(button(kHilbert), Qt::LeftButton);
    ASSERT_TRUE(effect());
    EXPECT_EQ(effect()->className(), "hilbertLinesEffect");
    EXPECT_EQ(effect()->opacity(), 33);
    EXPECT_TRUE(button(kHilbert)->isChecked());
    EXPECT_FALSE(list().selectedItem());
    EXPECT_FALSE(controls<ValueSlider>().isEmpty());
    effect()->seOpacity(50);
    QTest::mouseClick(button(kPlasma), Qt::LeftButton);
    EXPECT_FALSE(button(kHilbert)->isChecked());
    QTest::mouseClick(button(kHilbert), Qt::LeftButton);
    EXPECT_EQ(effect()->opacity(), 33) << "a copy is edited, not the favourite";
    QTest::mouseClick(button(kHilbert), Qt::LeftButton);
    EXPECT_FALSE(effect());
    pickRow(kFlare);
    QTest::mouseClick(button(kSimple), Qt::LeftButton);
    pickRow(kFlare);
    EXPECT_FALSE(button(kSimple)->isChecked());
    QTest::mouseClick(button(kSimple), Qt::LeftButton);
    QTest::keyClick(button(kSimple), Qt::Key_Delete);
    EXPECT_FALSE(effect());
    EXPECT_EQ(ui.m_pageCustomController->pageCount(), 7);
}

TEST_F(CustomModeTest, UndoOfAFavouriteAsksTheOtherFamilyWhichKeepsItsOwn)
{
    action("action3D")->trigger();
    OutlineView& other = *ui.filter3DOutlineView;
    QTest::mouseClick(other.viewport(), Qt::LeftButton, {}, other.visualRect(other.model()->index(0, 0)).center());
    BaseEffect* inSpace = controller.getCurrent3DEffect();
    ASSERT_TRUE(inSpace);
    action("actionCustom")->trigger();
    for (int row : {int(kSimple), int(kPlasma)}) {
        pickRow(row);
        perform(&Controller::addFavoritesCustom);
    }
    controller.escapeEffect();
    controller.filterChangedCustom(button(0));
    controller.undo();
    EXPECT_FALSE(effect()) << "none was there before: cleared";
    EXPECT_FALSE(button(0)->isChecked());
    controller.filterChangedCustom(button(0));
    controller.filterChangedCustom(button(1));
    controller.undo();
    EXPECT_EQ(effect()->className(), "plasmaEffect") << "the 3D list doesn't know the former button";
    EXPECT_TRUE(button(1)->isChecked());
    controller.filterChangedCustom(button(0));
    pickRow(kSimple);
    controller.undo();
    EXPECT_TRUE(list().selectedItem());
    EXPECT_TRUE(other.selectedItem());
    EXPECT_EQ(controller.getCurrent3DEffect(), inSpace);
}

TEST_F(CustomModeTest, AFavouriteOfAnUnknownEffectIsKeptButBringsNothing)
{
    pickRow(kPlasma);
    perform(&Controller::addFavoritesCustom);
    controller.saveFavoritesCustom();
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    StoredRecords records = defaults.recordsForKey(kList).value();
    records[0]["classObj"] = KeyedArchive::archivedData(CIDictionary{{"class", "newerEffect"}, {"depth", 3}});
    defaults.setRecordsForKey(records, kList);
    controller.readFavoritesCustom();
    controller.escapeEffect();
    QTest::mouseClick(button(0), Qt::LeftButton);
    EXPECT_FALSE(effect());
    EXPECT_FALSE(button(0)->isChecked());
    controller.saveFavoritesCustom();
    const CIValue stored = KeyedArchive::unarchivedValue(defaults.recordsForKey(kList)->at(0).at("classObj").bytes());
    EXPECT_EQ(stored.toDictionary().at("depth"), CIValue(3));
}

TEST_F(CustomModeTest, AColorIsSeenThatIsChosenWhereThereWasNone)
{
    pickRow(kFlare);
    ColorWell* well = nullptr;
    for (ColorWell* each : controls<ColorWell>())
        if (each->color().alpha() == 0)
            well = each;
    ASSERT_TRUE(well);
    well->openPanel();
    well->panel()->setCurrentColor(QColor(255, 0, 51, 0)); // as a click into the field of colors does
    EXPECT_TRUE(QTest::qWaitFor([&] { return well->panel()->currentColor().alpha() == 255; }));
    well->panel()->setCurrentColor(QColor(255, 0, 51, 0)); // as typing the alpha does
    QCoreApplication::processEvents();
    EXPECT_EQ(well->panel()->currentColor().alpha(), 0) << "who wants none gets none";
    well->panel()->setCurrentColor(QColor(255, 0, 51, 128));
    well->panel()->accept();
    EXPECT_EQ(well->color().alpha(), 128);
}

} // namespace
