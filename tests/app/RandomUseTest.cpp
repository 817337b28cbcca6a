// What holds in every state of the window, looked at while it is used at random.
#include "WindowFixture.h"

#include "app/catalogue/OutlineView.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "effects3d/MyOGLView.h"
#include "effects3d/ThreeDStage.h"
#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"
#include "widgets/DocPageControl.h"
#include "widgets/GradientButton.h"
#include "widgets/ValueSlider.h"

#include <QTest>

#include <array>
#include <random>

namespace {

/// Of two frames in any component of a pixel; more than there can be for frames of different sizes.
int largestDifference(const QImage& a, const QImage& b)
{
    if (a.size() != b.size())
        return 256;
    int largest = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int i = 0; i < 4 * a.width(); ++i)
            largest = std::max(largest, std::abs(a.constScanLine(y)[i] - b.constScanLine(y)[i]));
    return largest;
}

/// Carries out one thing after the other, always the same ones for a seed.
class RandomUseTest : public WindowTest, public testing::WithParamInterface<unsigned> {
protected:
    using Operation = std::pair<const char*, std::function<void()>>;

    ~RandomUseTest() override
    {
        for (const char* list : {"EffectsFavorites", "3DEffectsFavorites", "CustomEffectsFavorites"})
            UserDefaults::standardUserDefaults().setRecordsForKey({}, list);
    }

    /// No side of it looks like another.
    QString gradientFile(const QString& name, int width, int height)
    {
        QImage image(width, height, QImage::Format_RGB32);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                image.setPixel(x, y, qRgb(255 * x / width, 255 * y / height, 90));
        const QString path = folder.filePath(name);
        EXPECT_TRUE(image.save(path));
        return path;
    }
    int upTo(qsizetype end) { return end > 0 ? int(random() % std::mt19937::result_type(end)) : 0; }
    OutlineView& list() const
    {
        return *std::array{ui.listView, ui.filter3DOutlineView, ui.filterCustomOutlineView}[controller.filerMode()];
    }
    DocPageControl& strip() const
    {
        return *std::array{
            ui.m_pageController, ui.m_page3DController, ui.m_pageCustomController}[controller.filerMode()];
    }
    QWidget& view() const
    {
        return *std::array<QWidget*, 3>{ui.pictureScrollView->viewport(), ui.openGLStage->openGLView(),
            ui.customEffectsScrollView->viewport()}[controller.filerMode()];
    }
    bool hasItem()
    {
        return std::array{controller.getCurrentFilter() != nullptr, controller.getCurrent3DEffect() != nullptr,
            controller.getCurrentCustomEffect() != nullptr}[controller.filerMode()];
    }

    void pickRow()
    {
        const QAbstractItemModel& model = *list().model();
        const QModelIndex group = controller.filerMode() == 0 ? model.index(upTo(model.rowCount()), 0) : QModelIndex();
        list().selectRow(model.index(upTo(model.rowCount(group)), 0, group));
    }
    void dragAcross()
    {
        QWidget& target = view();
        const auto place = [&] { return QPoint(upTo(target.width()), upTo(target.height())); };
        QTest::mousePress(&target, Qt::LeftButton, {}, place());
        if (upTo(5) == 0)
            changeMode(); // with the button held
        QTest::mouseMove(&target, place());
        QTest::mouseRelease(&target, Qt::LeftButton, {}, place());
    }
    void changeMode() { std::array{ui.standardBtn, ui.threeDBtn, ui.customBtn}[std::size_t(upTo(3))]->click(); }
    void moveSlider()
    {
        const QList<ValueSlider*> sliders = window.findChildren<ValueSlider*>();
        if (!sliders.isEmpty())
            QTest::keyClick(sliders[upTo(sliders.size())], std::array{Qt::Key_End, Qt::Key_Home}[std::size_t(upTo(2))]);
    }
    void pressFavourite()
    {
        if (const auto& items = strip().items(); !items.isEmpty())
            items[upTo(items.size())]->click();
    }

    void expectAllFits()
    {
        EXPECT_EQ(ui.applyBtn->isEnabled(), hasItem());
        EXPECT_EQ(action("actionClearEffect")->isEnabled(), hasItem());
        EXPECT_EQ(action("actionUndo")->isEnabled(), undo.canUndo());
        EXPECT_EQ(action("actionRedo")->isEnabled(), undo.canRedo());
        EXPECT_EQ(action("actionCopy")->isEnabled(), bool(controller.backImage()));
        EXPECT_EQ(window.isWindowModified(), controller.document().mayLoseWork());
        const bool hasRows = !ui.placeCntrlView->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).isEmpty();
        EXPECT_EQ(hasRows, controller.getCurrentFilter() != nullptr);
        qsizetype on = 0;
        for (const QAbstractButton* button : strip().items())
            on += button->isChecked();
        EXPECT_LE(on + (list().selectedItem() ? 1 : 0), 1) << "a row or a favourite is chosen";
        if (controller.filerMode() != 0)
            return;
        // What is seen is what the picture is now.
        MyImageView& seen = *ui.pictureScrollView->imageView();
        EXPECT_TRUE(seen.waitForFrame());
        const QImage before = seen.shownFrame().copy();
        seen.setNeedsDisplay();
        EXPECT_TRUE(seen.waitForFrame());
        EXPECT_LE(largestDifference(before, seen.shownFrame()), 2) << "but for rounding";
    }

    std::mt19937 random{GetParam()};
};

TEST_P(RandomUseTest, LeavesEverythingFitting)
{
    const std::vector<QString> files{gradientFile("pixel.png", 1, 1), gradientFile("thin.png", 1, 300),
        gradientFile("small.png", 120, 80), folder.filePath("missing.png")};
    const std::vector<Operation> operations{
        {"pick", [&] { pickRow(); }},
        {"pick", [&] { pickRow(); }},
        {"mode", [&] { changeMode(); }},
        {"mode", [&] { changeMode(); }},
        {"mode", [&] { changeMode(); }},
        {"apply", [&] { controller.applyBtn(); }},
        {"undo", [&] { controller.undo(); }},
        {"redo", [&] { controller.redo(); }},
        {"history", [&] { controller.document().goInHistory(upTo(9) - 4); }},
        {"clear", [&] { controller.escapeEffect(); }},
        {"turn", [&] { controller.rotateImage(upTo(2)); }},
        {"flip", [&] { controller.flipImage(upTo(2)); }},
        {"flip", [&] { controller.flipImage(upTo(2)); }},
        {"resize", [&] { controller.resizeImageHeight(float(1 + upTo(200)), float(1 + upTo(200))); }},
        {"open", [&] { openPicture(files[std::size_t(upTo(qsizetype(files.size())))]); }},
        {"add", [&] { controller.addFavourite(); }},
        {"press", [&] { pressFavourite(); }},
        {"remove", [&] { controller.removeSelectedFavourite(); }},
        {"drag", [&] { dragAcross(); }},
        {"slider", [&] { moveSlider(); }},
        {"split", [&] { action("actionSplitView")->trigger(); }},
    };
    std::string trace;
    for (int step = 0; step < 150 && !HasFailure(); ++step) {
        const auto& [name, run] = operations[std::size_t(upTo(qsizetype(operations.size())))];
        trace += std::string(" ") + name;
        SCOPED_TRACE(trace);
        run();
        waitUntilIdle();
        QCoreApplication::processEvents();
        expectAllFits();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUseTest, testing::Values(3u, 5u));

} // namespace
