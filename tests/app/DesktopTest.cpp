// What the window does as people of a desktop expect it.
#include "WindowFixture.h"

#include "app/catalogue/OutlineView.h"
#include "app/document/RecentFiles.h"
#include "controls/panel/DropImageView.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "effects2d/customEffImageView.h"
#include "platform/foundation/Appearance.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/imageio/PictureReader.h"
#include "ui_MainWindow.h"
#include "widgets/ColorWell.h"
#include "widgets/Overlay.h"
#include "widgets/PanelCheckBox.h"
#include "widgets/PanelPopUp.h"

#include <QAbstractItemModel>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLabel>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QTreeView>

#include <set>

namespace {

constexpr int kPatience = 60'000; // ms, for a busy machine

class DesktopTest : public WindowTest {
protected:
    MyImageView& view = *ui.pictureScrollView->imageView();

    void press(const char* keys)
    {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QTest::keySequence(&window, QKeySequence(keys));
        waitUntilIdle();
    }
    QString message() const { return ui.pictureInfoField->text(); }
    QString brokenFile()
    {
        QFile broken(folder.filePath("broken.png"));
        EXPECT_TRUE(broken.open(QIODevice::WriteOnly));
        broken.write("\x89PNG\r\n\x1a\n and nothing else that would help");
        return broken.fileName();
    }
    /// What the window shows at a picture pixel.
    QColor shownAt(CIPoint place)
    {
        EXPECT_TRUE(view.waitForFrame());
        return view.grab().toImage().pixelColor((view.toWidget(place) * view.devicePixelRatioF()).toPoint());
    }
    template <class Part>
    Part& part(const char* name)
    {
        auto* found = window.findChild<Part*>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return *found;
    }
    void chooseEffect(const QString& name)
    {
        controller.selectMenuMode(3);
        OutlineView& list = *ui.filterCustomOutlineView;
        const QModelIndexList found =
            list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << name.toStdString();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(found.first()).center());
    }
};

TEST_F(DesktopTest, EveryEffectsPanelSaysSomething)
{
    openPicture(pictureFile("a.png", 40, 30));
    chooseEffect("Sketch Effect");
    EXPECT_TRUE(ui.filterHintField->isVisible());
    EXPECT_EQ(ui.filterHintField->text(), "There is nothing to set here.");
    chooseEffect("Simple Objects");
    EXPECT_TRUE(ui.filterHintField->text().contains("by chance")) << ui.filterHintField->text().toStdString();
    chooseEffect("Hilbert Lines");
    EXPECT_FALSE(ui.filterHintField->isVisible()) << "its controls speak for themselves";
}

TEST_F(DesktopTest, AnUnreadableFileOnAnImageWellIsTold)
{
    openPicture(pictureFile("a.png", 40, 30));
    pick("CIGlassDistortion");
    auto* well = ui.placeCntrlView->findChild<DropImageView*>();
    ASSERT_TRUE(well);
    const auto drop = [&](const QString& path) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(well, &enter);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(well, &event);
        waitUntilIdle();
    };
    const auto texture = [&] { return controller.getCurrentFilter()->valueForKey("inputTexture"); };
    drop(pictureFile("b.png", 8, 8));
    EXPECT_EQ(texture().toImage().extent(), (CIRect{0, 0, 8, 8}));
    drop(brokenFile());
    EXPECT_FALSE(texture().toImage()) << "no picture is passed on";
    EXPECT_TRUE(message().contains("broken.png")) << message().toStdString();
}

TEST_F(DesktopTest, PrintsThePictureAsLargeAsThePage)
{
    openPicture(pictureFile("a.png", 300, 200));
    press("Ctrl+P");
    auto* panel = window.findChild<QPrintDialog*>();
    ASSERT_TRUE(panel);
    const QString file = folder.filePath("a.pdf");
    panel->printer()->setOutputFormat(QPrinter::PdfFormat);
    panel->printer()->setOutputFileName(file);
    panel->done(QDialog::Accepted);
    QProcess draw;
    draw.start("pdftoppm", {"-r", "36", "-png", "-singlefile", file, folder.filePath("page")});
    ASSERT_TRUE(draw.waitForFinished());
    const QImage page(folder.filePath("page.png"));
    ASSERT_GT(page.width(), page.height()) << "a wide picture turns the page";
    EXPECT_EQ(page.pixelColor(page.rect().center()), QColor(200, 100, 50));
    EXPECT_EQ(page.pixelColor(1, 1), QColor(Qt::white));
    int wide = 0;
    for (int x = 0; x < page.width(); ++x)
        wide += page.pixelColor(x, page.height() / 2) == QColor(200, 100, 50);
    EXPECT_GT(wide, page.width() * 8 / 10);
}

TEST_F(DesktopTest, CloseLeavesTheWindowOpenWhileThereAreChanges)
{
    EXPECT_EQ(action("actionNewWindow")->shortcut(), QKeySequence("Ctrl+N"));
    openPicture(pictureFile("a.png", 30, 20));
    pick("CIColorInvert");
    press("Ctrl+W");
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(message().contains("not saved")) << message().toStdString();
    openPicture(pictureFile("b.png", 30, 20));
    controller.document().setWasChanged(false);
    if (!controller.document().isUnsaved()) {
        press("Ctrl+W");
        EXPECT_FALSE(window.isVisible());
    }
}

TEST_F(DesktopTest, PreferencesChangeOnlyWhenTheyAreAccepted)
{
    openPicture(pictureFile("a.png", 30, 20));
    ASSERT_FALSE(RecentFiles::list().isEmpty());
    Appearance::shared().setChoice(Appearance::Choice::Light);
    const auto choose = [&] {
        press("Ctrl+,");
        ASSERT_TRUE(Overlay::openIn(window));
        auto& looks = part<QComboBox>("appearanceMenu");
        looks.setCurrentText("Dark");
        part<PanelCheckBox>("forgetRecentBox").setChecked(true);
        part<PanelCheckBox>("actionHistogramBox").setChecked(false);
    };
    ASSERT_TRUE(ui.histogramRow->isVisible());
    choose();
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(Overlay::openIn(window));
    EXPECT_FALSE(Appearance::shared().isDark());
    EXPECT_FALSE(RecentFiles::list().isEmpty());
    EXPECT_TRUE(ui.histogramRow->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    choose();
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(Appearance::shared().isDark());
    EXPECT_TRUE(RecentFiles::list().isEmpty());
    EXPECT_FALSE(ui.histogramRow->isVisible());
    action("actionHistogram")->trigger();
    Appearance::shared().setChoice(Appearance::Choice::System);
}

TEST_F(DesktopTest, KeysGoToThePictureWhenTheirRowGoes)
{
    openPicture(pictureFile("a.png", 30, 20));
    pick("CISepiaTone");
    ui.fitInputsBtn->setFocus();
    press("Ctrl+Return");
    waitUntilIdle();
    EXPECT_FALSE(ui.fitRow->isVisible());
    EXPECT_EQ(window.focusWidget(), ui.pictureScrollView->imageView());
}

TEST_F(DesktopTest, CheckersAreSeenThroughTransparentPixels)
{
    QImage half(64, 64, QImage::Format_ARGB32);
    half.fill(Qt::transparent);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 32; ++x)
            half.setPixelColor(x, y, QColor(10, 20, 30));
    const QString path = folder.filePath("half.png");
    ASSERT_TRUE(half.save(path));
    openPicture(path);
    EXPECT_EQ(shownAt({8.5, 32.5}), QColor(10, 20, 30));
    std::set<int> seen;
    for (double x = 34.5; x < 64; ++x)
        seen.insert(shownAt({x, 32.5}).lightness());
    EXPECT_EQ(seen, (std::set{204, 255}));

    press("Alt+3"); // the generated effects' view
    seen.clear();
    const QImage shown = window.grab().toImage();
    auto& canvas = *ui.customEffectsScrollView->imageView();
    for (double x = 34.5; x < 64; ++x)
        seen.insert(shown.pixelColor(canvas.mapTo(&window, canvas.toWidget({x, 32.5}).toPoint())).lightness());
    EXPECT_EQ(seen, (std::set{204, 255}));
}

TEST_F(DesktopTest, PastesAFileThatWasCopiedInAFileManager)
{
    openPicture(pictureFile("a.png", 30, 20));
    const auto copy = [](const QString& path) {
        auto* data = new QMimeData;
        data->setUrls({QUrl::fromLocalFile(path)});
        QGuiApplication::clipboard()->setMimeData(data);
    };
    copy(pictureFile("copied.png", 44, 33));
    QCoreApplication::processEvents();
    EXPECT_TRUE(action("actionPaste")->isEnabled());
    press("Ctrl+V");
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 44, 33}));
    EXPECT_EQ(undo.undoActionName(), "Paste");
    copy(brokenFile());
    press("Ctrl+V");
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 44, 33})) << "what is no picture changes nothing";
    EXPECT_TRUE(message().contains("broken.png")) << message().toStdString();
    QGuiApplication::clipboard()->clear();
}

TEST_F(DesktopTest, ThePictureIsDraggedOutAsAFileOfTheLastFormat)
{
    openPicture(pictureFile("Holiday.png", 300, 200));
    UserDefaults::standardUserDefaults().setObjectForKey("TIFF", "exportFormat");
    std::unique_ptr<QMimeData> carried;
    controller.draggingOut().carry = [&](QMimeData* data) { carried.reset(data); };
    const auto drag = [&](const QPointF& from, const QPointF& to) {
        QTest::mousePress(&view, Qt::LeftButton, {}, from.toPoint());
        QMouseEvent move(QEvent::MouseMove, to, view.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&view, &move);
        QTest::mouseRelease(&view, Qt::LeftButton, {}, to.toPoint());
        waitUntilIdle();
    };
    const QPointF middle = view.toWidget({150, 100});
    drag(middle, middle + QPointF(5, 5));
    EXPECT_FALSE(carried) << "a click that trembles";
    drag(middle, middle + QPointF(60, 20));
    ASSERT_TRUE(carried);
    const QString file = carried->urls().value(0).toLocalFile();
    EXPECT_EQ(QFileInfo(file).fileName(), "Holiday.tif");
    const Result<PictureInfo> info = readPictureInfo(file.toStdString());
    ASSERT_TRUE(info) << info.message();
    EXPECT_EQ(info->format, PictureFormat::Tiff);
    EXPECT_EQ(info->width, 300);
    UserDefaults::standardUserDefaults().removeObjectForKey("exportFormat");
}

TEST_F(DesktopTest, TheOpenPanelStartsWithThePicturesAndShowsThemSmall)
{
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder.path().toUtf8());
    QDir(folder.path()).mkdir("Pictures");
    ASSERT_TRUE(QFile::copy(pictureFile("a.png", 60, 60), folder.filePath("Pictures/a.png")));
    press("Ctrl+O");
    qputenv("HOME", home);
    auto* panel = window.findChild<QFileDialog*>();
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->directory().absolutePath(), folder.filePath("Pictures"));
    EXPECT_TRUE(panel->sidebarUrls().contains(QUrl::fromLocalFile(folder.filePath("Pictures"))));
    auto* list = panel->findChild<QTreeView*>();
    ASSERT_TRUE(list);
    const auto shown = [&] {
        const QModelIndex row = list->model()->index(0, 0, list->rootIndex());
        const QImage icon = row.data(Qt::DecorationRole).value<QIcon>().pixmap(40, 40).toImage();
        return icon.isNull() ? QColor() : icon.pixelColor(icon.width() / 2, icon.height() / 2);
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == QColor(200, 100, 50); }, kPatience));
    panel->reject();
}

TEST_F(DesktopTest, SolidsAreAppliedInThePicturesSizeOnAColor)
{
    openPicture(pictureFile("a.png", 2400, 1600));
    controller.selectMenuMode(2);
    OutlineView& list = *ui.filter3DOutlineView;
    const QModelIndex solids = list.model()->index(1, 0);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(solids).center());
    ASSERT_TRUE(controller.getCurrent3DEffect());
    const CIImage before = controller.backImage();
    ui.applyBtn->click();
    EXPECT_LT(controller.getBgImageExtent().width, 2400) << "as large as it is seen, unless the user wants more";
    EXPECT_TRUE(message().contains("window's size")) << message().toStdString();
    perform(&Controller::undo);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the former panel

    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(solids).center());
    const QList<PanelPopUp*> menus = ui.place3DCntrlView->findChildren<PanelPopUp*>();
    ASSERT_EQ(menus.size(), 2);
    menus.last()->setCurrentIndex(1);
    emit menus.last()->activated(1);
    auto* well = ui.place3DCntrlView->findChild<ColorWell*>();
    ASSERT_TRUE(well);
    well->pick(QColor(0, 128, 255));
    ui.applyBtn->click();
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 2400, 1600}));
    const CIBitmap pixels = CIContext().render(controller.backImage(), {0, 0, 2400, 1600});
    const auto at = [&](int x, int y) {
        const auto* p = pixels.row<std::uint8_t>(y).data() + std::size_t(x) * 4;
        return QColor(p[0], p[1], p[2], p[3]);
    };
    EXPECT_EQ(at(3, 3), QColor(0, 128, 255));
    EXPECT_EQ(at(1200, 800), QColor(200, 100, 50)) << "the ball wears the picture";
    perform(&Controller::undo);
    EXPECT_TRUE(controller.backImage().isSameAs(before));
}

/// What a run on a larger screen has left.
struct LargeFrame {
    LargeFrame()
    {
        QWidget large;
        large.setGeometry(700, 500, 3000, 2000);
        UserDefaults::standardUserDefaults().setObjectForKey(large.saveGeometry(), "Velmora");
    }
    ~LargeFrame() { UserDefaults::standardUserDefaults().removeObjectForKey("Velmora"); }
};

class LargeFrameTest : private LargeFrame, public WindowTest { };

TEST_F(LargeFrameTest, TheWindowFitsOnASmallerScreen)
{
    const QRect room = window.screen()->availableGeometry();
    EXPECT_TRUE(room.contains(window.frameGeometry())) << window.width() << " x " << window.height();
}

} // namespace
