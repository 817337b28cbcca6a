#include "WindowFixture.h"

#include "app/catalogue/OutlineView.h"
#include "app/document/PictureOpening.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "ui_MainWindow.h"

#include <QEvent>

namespace {

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

} // namespace
