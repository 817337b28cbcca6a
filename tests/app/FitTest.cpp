// Values that fit the picture, in the real window.
#include "WindowFixture.h"

#include "app/catalogue/FilterGrid.h"
#include "app/catalogue/OutlineView.h"
#include "app/commands/Commands.h"
#include "controls/picture/MyImageView.h"
#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"
#include "widgets/ValueSlider.h"

#include <QTest>

#include <cmath>

namespace {

constexpr int kPatience = 30'000; // ms, for a busy machine

class FitTest : public WindowTest {
protected:
    FitTest()
    {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    ~FitTest() override
    {
        for (const char* key : {"StartFiltersFitted", "KeepPictureSize", "FilterThumbnails", "FilterColumns"})
            UserDefaults::standardUserDefaults().removeObjectForKey(QLatin1String(key));
    }
    double value(const char* key) { return controller.getCurrentFilter()->valueForKey(key).toDouble(); }
    bool isNoticeShown() const { return ui.fitNotice->isVisible(); }
    bool waitForNotice() const
    {
        return QTest::qWaitFor([this] { return isNoticeShown(); }, kPatience);
    }
    static void press(QAbstractButton& button) { QTest::mouseClick(&button, Qt::LeftButton); }
    ValueSlider& slider(const char* accessibleName) const
    {
        for (auto* found : ui.placeCntrlView->findChildren<ValueSlider*>())
            if (found->accessibleName() == QLatin1String(accessibleName))
                return *found;
        throw std::runtime_error(accessibleName);
    }
    static bool isFittedStart()
    {
        return UserDefaults::standardUserDefaults().objectForKey(QStringLiteral("StartFiltersFitted")).toBool();
    }
};

TEST_F(FitTest, AsksOnceHowFiltersStartAndTellsWhereStandardValuesShowNothing)
{
    EXPECT_FALSE(ui.fitRow->isVisible()) << "there is no filter";
    openPicture(pictureFile("small.png", 400, 300));
    pick("CIVignette");
    EXPECT_TRUE(ui.fitRow->isVisible());
    EXPECT_TRUE(waitForNotice()) << "a vignette of no intensity changes nothing";
    EXPECT_EQ(ui.fitNoticeOtherBtn->text(), "Always Fit");

    openPicture(pictureFile("large.png", 1200, 900));
    pick("CIGaussianBlur");
    ASSERT_TRUE(isNoticeShown()) << "the first time on a large picture";
    EXPECT_EQ(ui.fitNoticeOtherBtn->text(), "Standard Values");
    EXPECT_EQ(value("inputRadius"), 10) << "as stated, until the user has answered";
    press(*ui.fitNoticeOtherBtn);
    EXPECT_FALSE(isNoticeShown());
    EXPECT_FALSE(action("actionStartFitted")->isChecked());

    pick("CIVignette");
    EXPECT_EQ(value("inputIntensity"), 0);
    ASSERT_TRUE(waitForNotice());
    EXPECT_EQ(ui.fitNoticeField->text(), "Standard values suit a small picture.");
    press(*ui.fitNoticeBtn);
    EXPECT_EQ(value("inputIntensity"), 1);
    EXPECT_FALSE(isNoticeShown());
    EXPECT_EQ(undo.undoMenuItemTitle(), "Undo Fit to Picture");
    controller.undo();
    EXPECT_EQ(value("inputIntensity"), 0) << "one step back";
    EXPECT_FALSE(isFittedStart());

    pick("CIVignetteEffect");
    pick("CIVignette");
    ASSERT_TRUE(waitForNotice());
    press(*ui.fitNoticeOtherBtn);
    EXPECT_EQ(value("inputIntensity"), 1);
    EXPECT_TRUE(isFittedStart());
    pick("CITwirlDistortion");
    EXPECT_EQ(controller.getCurrentFilter()->valueForKey("inputCenter"), CIValue(CIVector{600, 450}));
    EXPECT_FALSE(isNoticeShown());
    QTest::keyClick(&window, Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(value("inputRadius"), 900) << "all inputs go back to what the filter starts with";
    pick("CIColorInvert");
    EXPECT_FALSE(ui.fitRow->isVisible()) << "nothing to fit";
}

TEST_F(FitTest, FitsByKeyAndMakesRoomOnTheSlider)
{
    openPicture(pictureFile("large.png", 1200, 900));
    pick("CITwirlDistortion");
    press(*ui.fitNoticeOtherBtn);
    EXPECT_EQ(slider("Radius").maximum(), 500);
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(value("inputRadius"), 900);
    EXPECT_EQ(slider("Radius").maximum(), 1500) << "what 500 is on 300 pixels";
    EXPECT_EQ(slider("Radius").value(), 900);
    controller.undo();
    EXPECT_EQ(value("inputRadius"), 300);

    press(*ui.fitInputsBtn);
    EXPECT_EQ(value("inputRadius"), 900);
    EXPECT_EQ(controller.getCurrentFilter()->valueForKey("inputCenter"), CIValue(CIVector{600, 450}));
}

TEST_F(FitTest, KeepsThePicturesSizeIfSoWanted)
{
    openPicture(pictureFile("plain.png", 500, 400));
    pick("CIGaussianBlur");
    ASSERT_TRUE(ui.keepSizeBox->isVisible());
    EXPECT_FALSE(ui.keepSizeBox->isChecked());
    const CIRect grown = controller.coreImageResult(false).extent();
    EXPECT_GT(grown.width, 500);
    EXPECT_EQ(ui.pictureInfoField->text(),
        QString("500 × 400 px · sRGB 8-bit · result: %1 × %2 px").arg(grown.width).arg(grown.height));

    press(*ui.keepSizeBox);
    EXPECT_EQ(ui.pictureInfoField->text(), "500 × 400 px · sRGB 8-bit");
    perform(&Controller::applyBtn);
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 500, 400}));
    const CIBitmap corner = CIContext().render(controller.backImage(), {0, 0, 1, 1});
    EXPECT_EQ(int(corner.row<std::uint8_t>(0)[3]), 255) << "the edges aren't transparent";
    EXPECT_NEAR(int(corner.row<std::uint8_t>(0)[0]), 200, 1) << "nor mixed with what is beyond them";

    pick("CIAffineTransform");
    EXPECT_FALSE(ui.keepSizeBox->isVisible()) << "its purpose is another size";
    pick("CIBoxBlur");
    EXPECT_TRUE(ui.keepSizeBox->isChecked()) << "remembered";
    EXPECT_EQ(controller.coreImageResult(false).extent(), controller.getBgImageExtent());
}

TEST_F(FitTest, ShowsFiltersInColumns)
{
    openPicture(pictureFile("plain.png", 1200, 900));
    EXPECT_TRUE(action("actionThumbnails")->isChecked()) << "from the start";
    ASSERT_TRUE(ui.listView->isVisible());
    press(*ui.filterColumnsBtn);
    ASSERT_TRUE(ui.filterGrid->isVisible());
    EXPECT_FALSE(ui.listView->isVisible());
    QCoreApplication::processEvents();
    const QAbstractItemModel& rows = *ui.filterGrid->model();
    const auto place = [&](const char* name) {
        return ui.filterGrid->visualRect(
            rows.match(rows.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0));
    };
    EXPECT_EQ(place("Affine Transform").top(), place("Crop").top());
    EXPECT_LT(place("Affine Transform").top(), place("Straighten").top()) << "three beside each other";
    EXPECT_EQ(place("Geometry").left(), place("Affine Transform").left());

    QTest::mouseClick(ui.filterGrid->viewport(), Qt::LeftButton, {}, place("Crop").center());
    ASSERT_TRUE(controller.getCurrentFilter());
    EXPECT_EQ(controller.getCurrentFilter()->name(), "CICrop");
    QTest::keyClick(ui.filterGrid, Qt::Key_Left);
    EXPECT_EQ(controller.getCurrentFilter()->name(), "CIBicubicScaleTransform");
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(controller.getCurrentFilter());
    EXPECT_FALSE(ui.filterGrid->selectionModel()->hasSelection());

    ui.searchField->setText("sepia");
    EXPECT_EQ(rows.rowCount(), 2) << "a group and a filter";
    QTest::keyClick(ui.searchField, Qt::Key_Return);
    EXPECT_EQ(controller.getCurrentFilter()->name(), "CISepiaTone");
    EXPECT_EQ(ui.filterGrid->currentIndex().data().toString(), "Sepia Tone");
    const auto spot = [&] {
        const QImage image = ui.filterGrid->viewport()->grab().toImage();
        return image.pixelColor((place("Sepia Tone").topLeft() + QPoint(40, 30)) * image.devicePixelRatio());
    };
    const QColor empty = spot();
    EXPECT_TRUE(QTest::qWaitFor([&] { return spot() != empty; }, kPatience)) << "its picture comes by and by";

    action("actionThumbnails")->trigger();
    EXPECT_TRUE(ui.listView->isVisible()) << "without pictures there are no columns";
}

} // namespace
