// Turning, resizing, copying and pasting the picture.
#include "WindowFixture.h"

#include "app/document/RecentFiles.h"
#include "app/document/TurnedPicture.h"
#include "controls/panel/DropImageView.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "files/ResizePanel.h"
#include "platform/chain/Baking.h"
#include "platform/foundation/Pasteboard.h"
#include "platform/imageio/PictureReader.h"
#include "tests/support/Input.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <vector>

namespace {

using Rows = std::vector<std::vector<int>>; // of the red component, top row first

template <class T>
CIImage imageOf(const Rows& rows, CIFormat format)
{
    CIBitmap bitmap(int(rows.front().size()), int(rows.size()), format);
    for (std::size_t y = 0; y < rows.size(); ++y)
        for (std::size_t x = 0; x < rows[y].size(); ++x)
            bitmap.mutableRow<T>(int(y))[4 * x] = T(rows[y][x]);
    return CIImage::fromBitmap(bitmap);
}

template <class T>
Rows rowsOf(const CIImage& image)
{
    const CIBitmap bitmap = *bitmapOf(image);
    Rows rows;
    for (int y = 0; y < bitmap.height(); ++y) {
        rows.emplace_back();
        for (std::size_t x = 0; x < std::size_t(bitmap.width()); ++x)
            rows.back().push_back(int(bitmap.row<T>(y)[4 * x]));
    }
    return rows;
}

template <class T>
void expectTurns(CIFormat format)
{
    const CIImage picture = imageOf<T>({{1, 2, 3}, {4, 5, 6}}, format);
    EXPECT_EQ(rowsOf<T>(rotatedPicture(picture, true)), (Rows{{3, 6}, {2, 5}, {1, 4}}));
    EXPECT_EQ(rowsOf<T>(rotatedPicture(picture, false)), (Rows{{4, 1}, {5, 2}, {6, 3}}));
    EXPECT_EQ(rowsOf<T>(flippedPicture(picture, false)), (Rows{{3, 2, 1}, {6, 5, 4}}));
    EXPECT_EQ(rowsOf<T>(flippedPicture(picture, true)), (Rows{{4, 5, 6}, {1, 2, 3}}));
}

TEST(Turning, MovesPixelsOfEveryFormat)
{
    expectTurns<std::uint8_t>(CIFormat::RGBA8);
    expectTurns<std::uint16_t>(CIFormat::RGBA16);
    expectTurns<float>(CIFormat::RGBAf);
}

TEST(Turning, RecipesTurnAsBitmapsDo)
{
    CIBitmap bitmap(70, 45, CIFormat::RGBA8, CIAlpha::Opaque); // more than a block each way
    for (int y = 0; y < 45; ++y)
        for (std::size_t i = 0; i < 70 * 4; ++i)
            bitmap.mutableRow<std::uint8_t>(y)[i] = i % 4 == 3 ? 255 : std::uint8_t(i * 31 + std::size_t(y) * 77);
    const CIImage stored = CIImage::fromBitmap(bitmap);
    const CIImage recipe = stored.transformed(CIAffineTransform::translation(5, -3)); // no bitmap any more
    const CIContext context;
    for (int way = 0; way < 4; ++way) {
        const auto turned = [way](const CIImage& image) {
            return way < 2 ? rotatedPicture(image, way == 0) : flippedPicture(image, way == 2);
        };
        const CIRect extent = turned(recipe).extent();
        EXPECT_EQ(extent, turned(stored).extent()) << "at the origin";
        const CIBitmap a = renderedBitmap(context, turned(recipe), CIFormat::RGBA8);
        const CIBitmap b = renderedBitmap(context, turned(stored), CIFormat::RGBA8);
        for (int y = 0; y < b.height(); ++y)
            ASSERT_EQ(std::memcmp(a.row(y), b.row(y), std::size_t(b.width()) * 4), 0) << way << ", row " << y;
    }
}

class EditsTest : public WindowTest {
protected:
    void open(const Rows& rows) { controller.undoPaste(imageOf<std::uint8_t>(rows, CIFormat::RGBA8)); }
    Rows shown() { return rowsOf<std::uint8_t>(controller.backImage()); }
    /// Runs a program that talks to this one's clipboard.
    static QByteArray answerOf(const QString& program, const QStringList& arguments)
    {
        QProcess process;
        QSignalSpy done(&process, &QProcess::finished);
        process.start(program, arguments);
        EXPECT_TRUE(done.wait(10000));
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return process.readAllStandardOutput();
    }
};

const Rows kPicture{{1, 2, 3}, {4, 5, 6}};

TEST_F(EditsTest, FlipIsUndoneByTheOtherFlip)
{
    open(kPicture);
    action("actionFlipHorizont")->trigger();
    waitUntilIdle();
    EXPECT_EQ(shown(), (Rows{{3, 2, 1}, {6, 5, 4}}));
    perform(&Controller::undo);
    EXPECT_EQ(shown(), (Rows{{6, 5, 4}, {3, 2, 1}})) << "turned by half a turn";
    perform(&Controller::redo);
    EXPECT_EQ(shown(), (Rows{{4, 5, 6}, {1, 2, 3}})) << "flipped vertically";
    perform(&Controller::undo);
    EXPECT_EQ(shown(), kPicture);
    EXPECT_FALSE(controller.wasChanged());
}

TEST_F(EditsTest, WithoutAPictureNothingHappens)
{
    openPicture("/nowhere.png");
    const bool couldUndo = undo.canUndo();
    perform(&Controller::rotateLeft);
    perform(&Controller::flipVert);
    perform(&Controller::resizeImageHeight, 10, 10);
    perform(&Controller::copy);
    EXPECT_EQ(undo.canUndo(), couldUndo);
    EXPECT_FALSE(action("actionCopy")->isEnabled());
    controller.setBackgroundImage(CIImage::fromBitmap(CIBitmap(4, 4)).cropped({9, 9, 4, 4}));
    perform(&Controller::copy);
    EXPECT_FALSE(ui.pictureInfoField->text().contains("memory")) << ui.pictureInfoField->text().toStdString();
    EXPECT_TRUE(action("actionRotateLeft")->isEnabled()) << "like all that is not about an effect or the clipboard";
}

TEST_F(EditsTest, WhatChangesInAnotherModeIsSeenInStandardMode)
{
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.setPixel(0, 0, 0xff0000ff);
    const QString file = folder.filePath("corner.png");
    ASSERT_TRUE(picture.save(file));
    openPicture(file);
    MyImageView& view = *ui.pictureScrollView->imageView();
    const auto corner = [&] {
        EXPECT_TRUE(view.waitForFrame());
        return view.shownFrame().pixel(0, 0);
    };
    const QRgb before = corner();
    action("action3D")->trigger();
    perform(&Controller::flipHorizont); // the size stays
    action("actionStandard")->trigger();
    EXPECT_NE(corner(), before);
}

TEST_F(EditsTest, ResizesInOneStep)
{
    openPicture(pictureFile("a.png", 40, 30));
    action("actionResize")->trigger();
    auto* panel = window.findChild<ResizePanel*>();
    ASSERT_TRUE(panel && panel->isVisible());
    EXPECT_TRUE(action("actionResize")->isChecked());
    perform(&Controller::resizeImageHeight, 20.2f, 50);
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 20, 50}));
    EXPECT_EQ(panel->findChild<QLabel*>("mCaptionInfo")->text(), "20 x 50 pixels");
    const CIBitmap pixels = *bitmapOf(controller.backImage());
    for (int x : {0, 4 * 10, 4 * 19})
        EXPECT_NEAR(pixels.row<std::uint8_t>(25)[std::size_t(x)], 200, 1) << "one color stays one color";
    EXPECT_EQ(pixels.alpha(), CIAlpha::Opaque) << "up to the edges";
    EXPECT_TRUE(controller.wasChanged());
    EXPECT_EQ(undo.undoActionName(), "Resize");
    perform(&Controller::undo);
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 40, 30}));

    for (const auto& [size, told] : {std::pair(900'000.0f, "made that large"), std::pair(0.0f, "have that size")})
        answering("OK", [&, size = size] {
            perform(&Controller::resizeImageHeight, size, 900'000);
            EXPECT_TRUE(window.findChild<QDialog*>("AlertPanel")->accessibleName().contains(told));
        });
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 40, 30}));
    panel->close();
    EXPECT_FALSE(action("actionResize")->isChecked());
}

TEST_F(EditsTest, OtherProgramsPasteWhatIsCopied)
{
    openPicture(pictureFile("a.png", 12, 7));
    pick("CIColorInvert");
    action("actionCopy")->trigger();
    waitUntilIdle();
    EXPECT_TRUE(ui.pasteBtn->isEnabled());
    const QByteArray types = answerOf("xclip", {"-selection", "clipboard", "-o", "-t", "TARGETS"});
    EXPECT_TRUE(types.contains("image/tiff") && types.contains("image/png")) << types.toStdString();
    for (const char* type : {"image/tiff", "image/png"}) {
        const QByteArray bytes = answerOf("xclip", {"-selection", "clipboard", "-o", "-t", type});
        const Result<CIBitmap> read = readPicture(std::as_bytes(std::span(bytes.data(), std::size_t(bytes.size()))));
        ASSERT_TRUE(read) << type << ": " << read.message();
        EXPECT_EQ(read->width(), 12);
        EXPECT_EQ(read->height(), 7);
        EXPECT_EQ(read->row<std::uint8_t>(3)[8], 174) << type << ": 200 inverted in linear light";
    }
}

TEST_F(EditsTest, PastesWhatOtherProgramsCopy)
{
    const QString file = pictureFile("clip.png", 9, 5);
    QSignalSpy changed(&Pasteboard::generalPasteboard(), &Pasteboard::changed);
    // It stays behind to serve the clipboard, so its output must not keep us waiting.
    QProcess::startDetached(
        "sh", {"-c", "exec xclip -selection clipboard -t image/png -i '" + file + "' >/dev/null 2>&1"});
    EXPECT_TRUE(changed.wait(5000));
    action("actionPaste")->trigger();
    waitUntilIdle();
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 9, 5}));
    perform(&Controller::undo);
    EXPECT_NE(controller.getBgImageExtent(), (CIRect{0, 0, 9, 5}));
    perform(&Controller::redo);
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 9, 5}));
}

TEST_F(EditsTest, BrokenClipboardGivesNoPictureAndTheWayBack)
{
    open(kPicture);
    QApplication::clipboard()->setText("no picture");
    QCoreApplication::processEvents();
    EXPECT_FALSE(ui.pasteBtn->isEnabled());
    auto* broken = new QMimeData;
    broken->setData("image/tiff", "II*\0 no more");
    QApplication::clipboard()->setMimeData(broken);
    perform(&Controller::paste);
    EXPECT_FALSE(controller.backImage());
    perform(&Controller::undo);
    EXPECT_EQ(shown(), kPicture);
}

TEST_F(EditsTest, ADropOnThePictureMovesNothingInTheWindow)
{
    open(kPicture);
    window.show();
    QWidget& view = *ui.pictureScrollView->imageView();
    const QList<int> panes = ui.splitter->sizes();
    const QPoint place = ui.pictureScrollView->viewport()->mapTo(&window, QPoint(5, 5));
    const QString file = pictureFile("framed.png", 8, 6);
    const QImage before = window.grab().toImage();
    EXPECT_TRUE(input::accepts(view, input::Files({file})));
    QApplication::processEvents();
    EXPECT_EQ(ui.splitter->count(), 3);
    EXPECT_EQ(ui.splitter->sizes(), panes);
    EXPECT_NE(window.grab().toImage(), before) << "there is a frame";
    const QWidget* under = window.childAt(place);
    EXPECT_TRUE(under && ui.pictureScrollView->isAncestorOf(under)) << "the frame doesn't catch the drop";
    input::drop(view, input::Files({file}));
    waitUntilIdle();
    EXPECT_EQ(controller.getFilePath(), file);
    EXPECT_EQ(controller.backImage().extent().width, 8);
    EXPECT_TRUE(RecentFiles::list().contains(file));
}

TEST_F(EditsTest, FilesAreDroppedAnywhereOnTheWindow)
{
    open(kPicture);
    const auto accepts = [&](const QString& path, QPoint at) {
        return input::accepts(window, input::Files({path}), at);
    };
    const auto drop = [&](const QString& path) {
        const bool isWanted = input::drop(window, input::Files({path}), {300, 20});
        waitUntilIdle();
        return isWanted;
    };
    const auto middleOf = [&](QWidget& widget) { return widget.mapTo(&window, widget.rect().center()); };
    EXPECT_TRUE(accepts("/p/document.pdf", {300, 20}));
    EXPECT_FALSE(accepts("/p/document.pdf", middleOf(*ui.pictureScrollView->viewport()))) << "the view doesn't want it";
    pick("CIGlassDistortion");
    auto* well = ui.placeCntrlView->findChild<DropImageView*>();
    ASSERT_TRUE(well);
    EXPECT_FALSE(accepts("/p/its-own.png", middleOf(*well))) << "a well that drops on itself leaves the picture alone";
    controller.clearAllAndUpdate();
    EXPECT_FALSE(drop(folder.filePath("text.txt")));
    EXPECT_TRUE(drop(folder.filePath("missing.png")));
    EXPECT_EQ(shown(), kPicture) << "what can't be read replaces nothing";
    const QString file = pictureFile("dropped.PNG", 8, 6);
    EXPECT_TRUE(drop(file));
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 8, 6}));
    EXPECT_EQ(controller.getFilePath(), file);
    perform(&Controller::undo);
    EXPECT_EQ(shown(), kPicture);
}

TEST_F(EditsTest, RecentFilesAreInTheirMenu)
{
    RecentFiles::clear();
    const QString first = pictureFile("first.png", 4, 4), second = pictureFile("second.png", 5, 5);
    openPicture(first);
    openPicture(second);
    openPicture(first);
    openPicture("/nowhere.png");
    EXPECT_EQ(RecentFiles::list(), QStringList({first, second}));
    emit menu("menuRecent").aboutToShow();
    ASSERT_GE(menu("menuRecent").actions().size(), 2);
    menu("menuRecent").actions().at(1)->trigger();
    waitUntilIdle();
    EXPECT_EQ(controller.getFilePath(), second);
    EXPECT_TRUE(QFile::remove(first));
    EXPECT_EQ(RecentFiles::list(), QStringList{second}) << "files that are gone are left out";
    EXPECT_EQ(
        RecentFiles::titles({"/a/x.png", "/b/x.png", "/b/y.png"}), QStringList({"x.png (/a)", "x.png (/b)", "y.png"}));
    menu("menuRecent").actions().last()->trigger();
    EXPECT_TRUE(RecentFiles::list().isEmpty());
}

} // namespace
