// The window while a picture is being read or transformed.
#include "WindowFixture.h"

#include "app/document/SessionFolder.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "effects2d/GeneratedEffect.h"
#include "files/ResizePanel.h"
#include "tests/support/NestedDocument.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {

class OpeningTest : public WindowTest {
protected:
    OpeningTest() { openPicture(former); }

    /// Takes longer to draw than any test.
    QString slowFile()
    {
        QFile file(folder.filePath("slow.pdf"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(nestedDocument(kDepth)));
        return file.fileName();
    }
    void openSlowly()
    {
        controller.openFile(slowFile());
        ASSERT_TRUE(QTest::qWaitFor([&] { return ui.openingCancelBtn->isVisible(); }));
        ASSERT_TRUE(controller.isOpening());
    }
    bool isFormerPicture() const
    {
        return controller.getBgImageExtent() == CIRect{0, 0, 300, 200} && controller.getFilePath() == former
            && window.windowTitle().startsWith("Lumivex::former.png");
    }
    /// How often a timer of 1 ms fires while the operation runs; never if that keeps the window waiting.
    static int ticksDuring(const std::function<void()>& operation)
    {
        int ticks = 0;
        QTimer timer;
        timer.setTimerType(Qt::PreciseTimer);
        connect(timer, ticks);
        timer.start(1);
        operation();
        return ticks;
    }
    static void connect(QTimer& timer, int& ticks)
    {
        QObject::connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
    }

    static constexpr int kDepth = 7;
    const QString former = pictureFile("former.png", 300, 200);
};

TEST_F(OpeningTest, ASlowFileLeavesTheWindowAliveAndClosedToEdits)
{
    pick("CIGaussianBlur");
    openSlowly();
    int ticks = 0;
    QTimer alive;
    connect(alive, ticks);
    alive.start(5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 20 || !controller.isOpening(); }));
    EXPECT_TRUE(controller.isOpening()) << "still under way";
    EXPECT_GE(ticks, 20);
    EXPECT_TRUE(ui.pictureInfoField->text().contains("slow.pdf"));
    EXPECT_TRUE(ui.openingBar->isVisible());
    EXPECT_TRUE(isFormerPicture());

    for (const char* name : {"actionRotateLeft", "actionSave", "actionPaste", "actionApply", "actionUndo", "action3D"})
        EXPECT_FALSE(action(name)->isEnabled()) << name;
    for (const char* name : {"actionOpen", "actionQuit", "actionHelp"})
        EXPECT_TRUE(action(name)->isEnabled()) << name;
    for (const QWidget* part : {static_cast<QWidget*>(ui.listView), static_cast<QWidget*>(ui.controlScrollArea),
             static_cast<QWidget*>(ui.pictureScrollView), static_cast<QWidget*>(ui.standardBtn),
             static_cast<QWidget*>(window.findChild<ResizePanel*>()), static_cast<QWidget*>(ui.applyBtn),
             static_cast<QWidget*>(ui.compareBtn)})
        EXPECT_FALSE(part->isEnabled()) << part->objectName().toStdString();
    const bool couldUndo = undo.canUndo();
    controller.rotateLeft();
    controller.flipVert();
    controller.resizeImageHeight(10, 10);
    controller.applyBtn();
    controller.undo();
    EXPECT_TRUE(isFormerPicture());
    EXPECT_EQ(undo.canUndo(), couldUndo);
    EXPECT_TRUE(controller.getCurrentFilter());
    EXPECT_TRUE(controller.windowShouldClose() || controller.wasChanged());
}

TEST_F(OpeningTest, EscapeKeepsAllAsItWas)
{
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    pick("CIGaussianBlur");
    ui.listView->setFocus();
    action("actionActualSize")->trigger();
    const CIImage picture = controller.backImage();
    const QString title = window.windowTitle(), status = ui.pictureInfoField->text();
    openSlowly();
    QTest::keyClick(&window, Qt::Key_Escape);
    waitUntilIdle();
    EXPECT_TRUE(controller.backImage().isSameAs(picture));
    EXPECT_EQ(controller.getFilePath(), former);
    EXPECT_EQ(window.windowTitle(), title);
    EXPECT_EQ(ui.pictureInfoField->text(), status);
    EXPECT_FLOAT_EQ(ui.pictureScrollView->imageView()->getZoom(), 1);
    EXPECT_TRUE(controller.getCurrentFilter()) << "the key was for the file";
    EXPECT_FALSE(ui.openingBar->isVisible() || ui.openingCancelBtn->isVisible());
    EXPECT_TRUE(ui.listView->hasFocus());
    EXPECT_TRUE(action("actionRotateLeft")->isEnabled() && ui.applyBtn->isEnabled());
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(controller.getCurrentFilter()) << "and this one for the filter";
}

TEST_F(OpeningTest, TheNewestFileWins)
{
    openSlowly();
    openPicture(pictureFile("new.png", 40, 30));
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 40, 30}));
    EXPECT_TRUE(controller.getFilePath().endsWith("new.png"));
    EXPECT_TRUE(ui.sideBar->isEnabled());
    openSlowly();
    perform(&Controller::openDroppedFile, folder.filePath("missing.png"));
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 40, 30})) << "what can't be read replaces nothing";
    openSlowly();
    EXPECT_EQ(controller.applicationShouldTerminate(), Controller::TerminateReply::Now);
    EXPECT_FALSE(controller.isOpening());
}

TEST_F(OpeningTest, WhatStandsInForALargePhotographLeavesWithIt)
{
    const QString large = pictureFile("large.jpg", 6000, 4000);
    CIImage picture;
    bool wasReduced = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (!controller.isOpening() || controller.getBgImageExtent().width != 6000)
            return;
        wasReduced = true;
        EXPECT_EQ(controller.getFilePath(), former);
        EXPECT_TRUE(controller.session().state().pictures.at("picture").isSameAs(picture)) << "no picture to keep";
        controller.cancelOpening();
    });
    look.start(0);
    constexpr int kAttempts = 10; // the whole picture may be as quick
    for (int attempt = 0; attempt < kAttempts && !wasReduced; ++attempt) {
        openPicture(former);
        action("actionActualSize")->trigger();
        picture = controller.backImage();
        openPicture(large);
    }
    ASSERT_TRUE(wasReduced);
    EXPECT_TRUE(isFormerPicture());
    EXPECT_FLOAT_EQ(ui.pictureScrollView->imageView()->getZoom(), 1);
    look.stop();
    openPicture(large);
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 6000, 4000}));
    EXPECT_EQ(controller.getFilePath(), large);
}

TEST_F(OpeningTest, WorkOnThePictureLeavesTheWindowAlive)
{
    const QString large = pictureFile("large.png", 4000, 3000);
    QFile file(large);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    auto* data = new QMimeData;
    data->setData("image/png", file.readAll());
    QApplication::clipboard()->setMimeData(data);
    QCoreApplication::processEvents();
    EXPECT_GT(ticksDuring([&] { perform(&Controller::paste); }), 0) << "paste";
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 4000, 3000}));
    EXPECT_GT(ticksDuring([&] { perform(&Controller::rotateLeft); }), 0) << "rotate";
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 3000, 4000}));
    EXPECT_GT(ticksDuring([&] { perform(&Controller::undo); }), 0) << "undo";
    EXPECT_GT(ticksDuring([&] { perform(&Controller::flipHorizont); }), 0) << "flip";
    action("actionCustom")->trigger();
    QTest::mouseClick(ui.filterCustomOutlineView->viewport(), Qt::LeftButton, {},
        ui.filterCustomOutlineView->visualRect(ui.filterCustomOutlineView->model()->index(0, 0)).center());
    ASSERT_TRUE(controller.getCurrentCustomEffect());
    EXPECT_GT(ticksDuring([&] { perform(&Controller::copy); }), 0) << "copy";
    EXPECT_GT(ticksDuring([&] { perform(&Controller::applyBtn); }), 0) << "apply";
    EXPECT_FALSE(controller.getCurrentCustomEffect());
    EXPECT_EQ(undo.undoActionName(), "Apply");
}

TEST_F(OpeningTest, StoppedPasteChangesNothing)
{
    QFile file(slowFile());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    auto* data = new QMimeData;
    data->setData("image/tiff", file.readAll()); // the content tells what it is
    QApplication::clipboard()->setMimeData(data);
    QCoreApplication::processEvents();
    const bool couldUndo = undo.canUndo();
    QTimer stop;
    QObject::connect(&stop, &QTimer::timeout, [] {
        if (QWidget* sheet = QApplication::activeModalWidget())
            QTest::keyClick(sheet, Qt::Key_Escape);
    });
    stop.start(20);
    perform(&Controller::paste);
    EXPECT_TRUE(isFormerPicture());
    EXPECT_EQ(undo.canUndo(), couldUndo);
}

TEST_F(OpeningTest, SaysThatTheRestOfAFileIsMissing)
{
    QImage noise(300, 200, QImage::Format_RGB32);
    for (int y = 0; y < noise.height(); ++y)
        for (int x = 0; x < noise.width(); ++x)
            noise.setPixel(x, y, QRgb(x * 2654435761u ^ y * 40503u * x));
    const QString cut = folder.filePath("cut.png");
    ASSERT_TRUE(noise.save(cut) && QFile::resize(cut, QFileInfo(cut).size() * 2 / 3));
    controller.openFile(cut);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !controller.isOpening(); }));
    EXPECT_EQ(controller.getFilePath(), cut);
    EXPECT_TRUE(controller.getBgImageExtent() == CIRect(0, 0, 300, 200));
    EXPECT_EQ(ui.pictureInfoField->text(), "cut.png is incomplete: the rest of the picture is missing.");
}

} // namespace
