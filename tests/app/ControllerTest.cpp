#include "WindowFixture.h"

#include "app/catalogue/OutlineView.h"
#include "app/document/PictureOpening.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "platform/foundation/ResourcePaths.h"
#include "ui_MainWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QSlider>

namespace {

TEST_F(WindowTest, StartsWithPictureTitleAndStandardMode)
{
    EXPECT_EQ(Controller::mainController(), &controller);
    EXPECT_EQ(window.windowTitle(), "Lumivex");
    EXPECT_TRUE(controller.getFilePath().isEmpty());
    EXPECT_EQ(controller.filerMode(), Controller::Standard);
    EXPECT_FALSE(controller.getCurrentFilter());
    EXPECT_FALSE(controller.wasChanged());
    EXPECT_EQ(controller.backImage().isNull(), pathForResource("main_img", "jpg").isEmpty());
    EXPECT_TRUE(ui.standardBtn->isChecked());
    EXPECT_TRUE(ui.listView->isVisible());
    EXPECT_FALSE(ui.applyBtn->isEnabled());
}

TEST_F(WindowTest, TitleTellsTheFileName)
{
    controller.setFilePath("/a/b/c.png");
    EXPECT_EQ(window.windowTitle(), "Lumivex::c.png");
    controller.setFilePath({});
    EXPECT_EQ(window.windowTitle(), "Lumivex");
}

TEST_F(WindowTest, SwitchingTheModeLeavesTheWayBackAsTheOnlyStep)
{
    pick("CIGaussianBlur");
    controller.setFilterValueForKey(*controller.getCurrentFilter(), 3.0, "inputRadius");
    ASSERT_TRUE(undo.canUndo());

    ui.threeDBtn->click();
    EXPECT_EQ(controller.filerMode(), Controller::ThreeD);
    EXPECT_FALSE(ui.standardBtn->isChecked());
    EXPECT_EQ(ui.filterTabView->currentIndex(), 1);
    EXPECT_EQ(ui.mainTabView->currentIndex(), 1);
    EXPECT_FALSE(ui.zoomSuperView->isVisible());
    EXPECT_FALSE(ui.applyBtn->isEnabled());

    ui.customBtn->click();
    EXPECT_EQ(controller.filerMode(), Controller::Custom);
    EXPECT_TRUE(ui.zoomSuperView->isVisible());
    EXPECT_EQ(undo.undoActionName(), "Change Mode");
    controller.undo();
    EXPECT_EQ(controller.filerMode(), Controller::ThreeD);
    EXPECT_FALSE(undo.canUndo()) << "the filter's change went with the first switch";
    controller.redo();
    EXPECT_EQ(controller.filerMode(), Controller::Custom);

    action("actionStandard")->trigger();
    EXPECT_EQ(controller.filerMode(), Controller::Standard);
    EXPECT_TRUE(controller.getCurrentFilter()) << "each mode keeps its item";
    EXPECT_TRUE(ui.applyBtn->isEnabled());

    ui.standardBtn->click(); // already on
    EXPECT_TRUE(ui.standardBtn->isChecked());
    EXPECT_EQ(controller.filerMode(), Controller::Standard);
}

/// Counts how often a widget is painted.
class PaintCount : public QObject {
public:
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
};

TEST_F(WindowTest, ALargePhotographIsOnScreenBeforeItIsReadAsAWhole)
{
    const QString path = pictureFile("large.jpg", 3600, 2400);
    PaintCount paints;
    ui.pictureScrollView->imageView()->installEventFilter(&paints);
    openPicture(path);
    EXPECT_GT(paints.count, 0) << "nothing was painted while it was read";
    const CIImage shown = controller.backImage();
    EXPECT_EQ(shown.extent(), (CIRect{0, 0, 3600, 2400}));
    const CIRect corner{3590, 2390, 10, 10};
    const CIBitmap pixels = CIContext().render(shown, corner),
                   inFile = CIContext().render(readPictureFile(path).image, corner);
    for (int y = 0; y < corner.height; ++y)
        EXPECT_TRUE(std::ranges::equal(pixels.row<std::uint8_t>(y), inFile.row<std::uint8_t>(y))) << y;
}

TEST_F(WindowTest, PickingAFilterMakesItWithThePictureInItsImages)
{
    openPicture(pictureFile("a.png", 40, 30));
    pick("CIGaussianBlur");
    const std::shared_ptr<CIFilter> blur = controller.getCurrentFilter();
    ASSERT_TRUE(blur);
    EXPECT_EQ(blur->name(), "CIGaussianBlur");
    EXPECT_TRUE(blur->valueForKey("inputImage").toImage().isSameAs(controller.backImage()));
    EXPECT_TRUE(controller.wasChanged());
    EXPECT_EQ(ui.filterNameField->text(), "Gaussian Blur");
    EXPECT_TRUE(ui.applyBtn->isEnabled());
    EXPECT_FALSE(controller.isControlsPresent());

    const OutlineItem* group = groupOf("CIGaussianBlur");
    ASSERT_TRUE(ui.listView->isItemExpanded(group));
    click(group);
    EXPECT_FALSE(ui.listView->isItemExpanded(group));
    EXPECT_FALSE(controller.getCurrentFilter()) << "a click on a group drops the filter";
    EXPECT_FALSE(ui.filterNameField->isVisible());
    click(group);
    EXPECT_TRUE(ui.listView->isItemExpanded(group));

    pick("CIGaussianBlur");
    controller.escapeEffect();
    EXPECT_FALSE(controller.getCurrentFilter());
    EXPECT_FALSE(ui.listView->selectedItem());
    EXPECT_FALSE(action("actionClearEffect")->isEnabled());
}

TEST_F(WindowTest, NewFiltersStartFromPictureAndView)
{
    openPicture(pictureFile("a.png", 40, 30));
    const auto made = [&](const char* name) {
        controller.addFilterIndex(name, 111);
        return controller.getCurrentFilter();
    };
    EXPECT_TRUE(made("CIGlassDistortion")->valueForKey("inputTexture").toImage().isSameAs(controller.defaultTexture()));
    const CIPoint center = ui.pictureScrollView->imageView()->bounds().center();
    const CIVector wrapped = made("CICircularWrap")->valueForKey("inputCenter").toVector();
    EXPECT_NEAR(wrapped.X(), center.x, 1e-4);
    EXPECT_NEAR(wrapped.Y(), center.y, 1e-4);
    made("CIConstantColorGenerator");
    EXPECT_EQ(controller.coreImageResult(false).extent(), controller.getBgImageExtent());

    EXPECT_FALSE(made("CINoSuchFilter"));
    EXPECT_TRUE(controller.coreImageResult(false).isSameAs(controller.backImage()));
}

TEST_F(WindowTest, AFilterWithoutAnImageItNeedsShowsNothing)
{
    openPicture(pictureFile("a.png", 8, 8));
    controller.addFilterIndex("CISourceOverCompositing", 111);
    EXPECT_FALSE(controller.hasMissingImage());
    EXPECT_TRUE(controller.coreImageResult(false));
    controller.setFilterValueForKey(*controller.getCurrentFilter(), {}, "inputImage");
    EXPECT_TRUE(controller.hasMissingImage());
    EXPECT_FALSE(controller.coreImageResult(false));
    controller.undo();
    EXPECT_TRUE(controller.coreImageResult(false));
    EXPECT_FALSE(controller.filteredImage());
}

TEST_F(WindowTest, TheMenuNamesParameterChangesAlsoOfFormerFilters)
{
    pick("CIGaussianBlur");
    const std::shared_ptr<CIFilter> blur = controller.getCurrentFilter();
    const double first = blur->valueForKey("inputRadius").toDouble();
    controller.setFilterValueForKey(*blur, 20, "inputRadius");
    controller.setActionNameForFilterKey(*blur, "inputRadius");
    EXPECT_EQ(action("actionUndo")->text(), "Undo Change to Gaussian Blur Radius");
    controller.clearAllAndUpdate(); // the filter is no longer shown, its steps stay
    controller.undo();
    EXPECT_EQ(blur->valueForKey("inputRadius").toDouble(), first);
    EXPECT_EQ(action("actionRedo")->text(), "Redo Change to Gaussian Blur Radius");
}

TEST_F(WindowTest, ApplyMakesTheResultThePicture)
{
    openPicture(pictureFile("a.png", 12, 10));
    const CIImage before = controller.backImage();
    controller.addFilterIndex("CIConstantColorGenerator", 111);
    controller.getCurrentFilter()->setValueForKey(CIColor(0, 0, 1, 1), "inputColor");
    perform(&Controller::applyBtn);
    EXPECT_FALSE(controller.getCurrentFilter());
    EXPECT_TRUE(controller.wasChanged());
    const CIImage after = controller.backImage();
    EXPECT_EQ(after.extent(), before.extent());
    const CIBitmap pixel = CIContext().render(after, {5, 5, 1, 1});
    EXPECT_EQ(pixel.row<std::uint8_t>(0)[2], 255);
    EXPECT_EQ(pixel.row<std::uint8_t>(0)[0], 0);

    controller.undo();
    EXPECT_TRUE(controller.backImage().isSameAs(before));
    controller.redo();
    EXPECT_TRUE(controller.backImage().isSameAs(after));

    undo.removeAllActions();
    perform(&Controller::applyBtn); // no filter: the picture itself, and a step all the same
    EXPECT_TRUE(undo.canUndo());
    EXPECT_EQ(controller.backImage().extent(), after.extent());
}

TEST_F(WindowTest, UnreadableFilesLeaveNoPictureButTheirName)
{
    openPicture(pictureFile("a.png", 12, 10));
    EXPECT_TRUE(ui.pictureInfoField->text().startsWith("12 × 10 px")) << ui.pictureInfoField->text().toStdString();
    QFile broken(folder.filePath("broken.png"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("no picture");
    broken.close();
    perform(&Controller::openImgPanelDidEnd, 0, QStringList{broken.fileName()});
    EXPECT_EQ(window.windowTitle(), "Lumivex::a.png") << "a cancelled panel changes nothing";
    perform(&Controller::openImgPanelDidEnd, 1, QStringList{});
    EXPECT_TRUE(controller.backImage());

    for (const QString& path : {broken.fileName(), folder.filePath("none.png"), folder.path()}) {
        perform(&Controller::openImgPanelDidEnd, 1, QStringList{path});
        EXPECT_FALSE(controller.backImage());
        EXPECT_EQ(controller.getBgImageExtent(), CIRect());
        EXPECT_EQ(window.windowTitle(), "Lumivex::" + QFileInfo(path).fileName());
        EXPECT_FALSE(ui.pictureInfoField->text().isEmpty());
        perform(&Controller::applyBtn); // nothing to apply: harmless
        EXPECT_FALSE(controller.coreImageResult(false));
    }
    openPicture(pictureFile("b.png", 3, 2));
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 3, 2}));
}

TEST_F(WindowTest, ZoomFollowsSliderViewAndPicture)
{
    openPicture(pictureFile("a.png", 400, 200));
    MyImageView& view = *ui.pictureScrollView->imageView();
    EXPECT_GT(view.getZoom(), 0.5f) << "fitted into the window";
    ui.zoomSlider->setValue(ui.zoomSlider->maximum() / 2);
    EXPECT_FLOAT_EQ(view.getZoom(), 1);
    EXPECT_EQ(ui.zoomField->text(), "100 %");
    controller.updateZoommWithDelta(0.5);
    EXPECT_NEAR(view.getZoom(), 1.5f, 1e-3f);
    controller.updateZoommWithDelta(-50 - double(view.getZoom()));
    EXPECT_NEAR(view.getZoom(), 1.5f, 1e-3f) << "the sentinel";
    controller.updateZoommWithDelta(100);
    EXPECT_FLOAT_EQ(view.getZoom(), 10) << "no further than the slider";
    controller.setZoom(0.1f);
    EXPECT_EQ(ui.zoomSlider->value(), 0);
    EXPECT_FLOAT_EQ(view.getZoom(), 10) << "moving the slider alone";
    action("actionFit")->trigger();
    const float fitted = view.getZoom();
    action("actionZoomIn")->trigger();
    EXPECT_GT(view.getZoom(), fitted);
    action("actionActualSize")->trigger();
    EXPECT_FLOAT_EQ(view.getZoom(), 1);
}

TEST_F(WindowTest, PasteTakesAnyPictureAndCanBeUndone)
{
    QApplication::clipboard()->setText("no picture");
    QCoreApplication::processEvents();
    const CIImage before = controller.backImage();
    EXPECT_FALSE(ui.pasteBtn->isEnabled());
    perform(&Controller::paste);
    EXPECT_FALSE(undo.canUndo());

    QImage image(5, 7, QImage::Format_RGB32);
    image.fill(Qt::green);
    QApplication::clipboard()->setImage(image);
    QCoreApplication::processEvents();
    EXPECT_TRUE(ui.pasteBtn->isEnabled());
    perform(&Controller::paste);
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 5, 7}));
    EXPECT_FALSE(controller.wasChanged());
    controller.undo();
    EXPECT_TRUE(controller.backImage().isSameAs(before));
    controller.redo();
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 5, 7}));
}

} // namespace
