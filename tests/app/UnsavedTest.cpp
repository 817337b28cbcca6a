// Work that is not in a file yet, and what could lose it.
#include "WindowFixture.h"

#include "app/document/SessionFolder.h"
#include "platform/imageio/PictureMetadata.h"
#include "ui_MainWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

namespace {

class UnsavedTest : public WindowTest {
protected:
    using Reply = Controller::TerminateReply;

    UnsavedTest()
    {
        // A test before may have ended the program, after which no sheet would wait for an answer.
        QTimer::singleShot(0, [] { QCoreApplication::exit(); });
        QApplication::exec();
        openPicture(former);
    }
    ~UnsavedTest() override { QFile::remove(lower + ".jpeg"); }

    QString damagedFile()
    {
        QFile file(folder.filePath("damaged.png"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("no picture at all") > 0);
        return file.fileName();
    }
    /// A button that the status row offers; null when there is none.
    QToolButton* offered(const char* actionName)
    {
        for (QToolButton* button : ui.statusRow->findChildren<QToolButton*>())
            if (button->defaultAction() == action(actionName) && button->isVisible()
                && button->toolButtonStyle() == Qt::ToolButtonTextOnly)
                return button;
        return nullptr;
    }
    bool isFormer() const
    {
        return controller.getBgImageExtent() == CIRect{0, 0, 300, 200} && controller.getFilePath() == former
            && window.windowTitle().startsWith("Lumivex::former.png");
    }

    const QString former = pictureFile("former.png", 300, 200);
    const QString lower = QDir::tempPath() + "/lumivex-unsaved-" + QString::number(QCoreApplication::applicationPid());
};

TEST_F(UnsavedTest, UndoAfterAnOpenBringsTheWholeFormerDocumentBack)
{
    QImage deep(40, 30, QImage::Format_RGBA64);
    deep.fill(Qt::red);
    const QString other = folder.filePath("other.png");
    ASSERT_TRUE(deep.save(other));
    const auto metadata = controller.document().metadata();
    for (const auto& open : {&Controller::openFile, &Controller::openDroppedFile, &Controller::takeDroppedFile}) {
        perform(open, other);
        EXPECT_EQ(controller.getFilePath(), other);
        EXPECT_EQ(controller.document().format(), CIFormat::RGBA16);
        EXPECT_EQ(undo.undoActionName(), "Open");
        perform(&Controller::undo);
        EXPECT_TRUE(isFormer()) << window.windowTitle().toStdString();
        EXPECT_EQ(controller.document().format(), CIFormat::RGBA8);
        EXPECT_EQ(controller.document().metadata(), metadata);
        EXPECT_FALSE(window.isWindowModified());
        perform(&Controller::redo);
        EXPECT_EQ(controller.getFilePath(), other);
        EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 40, 30}));
        EXPECT_EQ(controller.document().format(), CIFormat::RGBA16);
        EXPECT_EQ(undo.undoActionName(), "Open");
        perform(&Controller::undo);
    }
}

TEST_F(UnsavedTest, APhotographThatWasShownReducedFirstLeavesTheFormerPictureToUndo)
{
    openPicture(pictureFile("large.jpg", 6000, 4000));
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 6000, 4000}));
    perform(&Controller::undo);
    EXPECT_TRUE(isFormer());
}

TEST_F(UnsavedTest, AnUnreadableFileIsAStepAndItsReasonStays)
{
    perform(&Controller::rotateLeft);
    perform(&Controller::openImgPanelDidEnd, 0, QStringList{damagedFile()});
    EXPECT_EQ(controller.getFilePath(), former) << "a cancelled panel changes nothing";
    openPicture(damagedFile());
    EXPECT_FALSE(controller.backImage());
    EXPECT_TRUE(window.windowTitle().startsWith("Lumivex::damaged.png"));
    const QString reason = ui.pictureInfoField->text();
    EXPECT_TRUE(reason.contains("damaged.png")) << reason.toStdString();
    ASSERT_TRUE(offered("actionUndo"));
    offered("actionUndo")->click();
    waitUntilIdle();
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 200, 300})) << "the turned picture";
    EXPECT_EQ(controller.getFilePath(), former);
    EXPECT_TRUE(window.isWindowModified());
    perform(&Controller::redo);
    EXPECT_FALSE(controller.backImage());
    EXPECT_EQ(ui.pictureInfoField->text(), reason);
}

TEST_F(UnsavedTest, UndoIsOfferedWhereUnsavedWorkWasReplaced)
{
    const QString other = pictureFile("other.png", 40, 30);
    openPicture(other);
    EXPECT_FALSE(offered("actionUndo")) << "nothing was unsaved";
    perform(&Controller::flipHorizont);
    perform(&Controller::openDroppedFile, former);
    ASSERT_TRUE(offered("actionUndo"));
    EXPECT_FALSE(window.isWindowModified());
    perform(&Controller::rotateLeft);
    EXPECT_FALSE(offered("actionUndo")) << "it would undo something else";
    perform(&Controller::undo);
    perform(&Controller::undo);
    EXPECT_EQ(controller.getFilePath(), other);
    EXPECT_TRUE(window.isWindowModified()) << "it is as unsaved as it was";
}

TEST_F(UnsavedTest, TheOpenPanelOpensInANewWindowAsWell)
{
    QSignalSpy wanted(&controller.opening(), &Opening::newWindowWanted);
    QObject::disconnect(&controller.opening(), &Opening::newWindowWanted, nullptr, nullptr); // no process
    QSignalSpy spy(&controller.opening(), &Opening::newWindowWanted);
    controller.openImg();
    auto* panel = window.findChild<QFileDialog*>();
    ASSERT_TRUE(panel);
    const QString other = pictureFile("other.png", 40, 30);
    panel->setDirectory(folder.path());
    panel->selectFile(other);
    for (QAbstractButton* button : panel->findChildren<QAbstractButton*>())
        if (button->text() == "Open in New Window")
            button->click();
    ASSERT_EQ(spy.size(), 1);
    EXPECT_EQ(spy.first().first().toString(), other);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_TRUE(isFormer());
}

TEST_F(UnsavedTest, TurnsFlipsAndPastesAreWorkToo)
{
    const auto expectUnsaved = [&](const char* what) {
        EXPECT_FALSE(controller.wasChanged()) << what;
        EXPECT_TRUE(window.isWindowModified() && window.windowTitle().endsWith("[*]")) << what;
        answering("Cancel", [&] { EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Cancel) << what; });
        openPicture(former);
        EXPECT_FALSE(window.isWindowModified()) << what;
        EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Now) << what;
    };
    perform(&Controller::rotateLeft);
    expectUnsaved("turned");
    perform(&Controller::flipVert);
    expectUnsaved("flipped");
    perform(&Controller::copy);
    perform(&Controller::paste);
    expectUnsaved("pasted");
    perform(&Controller::rotateLeft);
    const SessionState kept = controller.session().state();
    openPicture(former);
    controller.session().restore(kept);
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_FALSE(controller.wasChanged());
}

TEST_F(UnsavedTest, AFailedWriteIsToldAndLeavesTheMarkUntilOneSucceeds)
{
    pick("CIColorInvert");
    answering("OK", [&] { controller.savePanelDidEnd(QDialog::Accepted, folder.filePath("no folder/x")); });
    EXPECT_FALSE(controller.wasChanged()) << "it is marked as saved all the same";
    EXPECT_TRUE(window.isWindowModified());
    answering("Cancel", [&] { EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Cancel); });
    perform(&Controller::savePanelDidEnd, QDialog::Accepted, lower);
    EXPECT_TRUE(QFile::exists(lower + ".jpeg"));
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Now);
}

TEST_F(UnsavedTest, AWindowThatStaysOpenSaysWhy)
{
    pick("CIColorInvert");
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(ui.pictureInfoField->text().contains("not saved")) << ui.pictureInfoField->text().toStdString();
    ASSERT_TRUE(offered("actionSave"));
    EXPECT_TRUE(offered("actionQuit"));
    answering("Cancel", [&] { offered("actionSave")->click(); }); // whether to replace the file
    EXPECT_FALSE(offered("actionSave"));
    EXPECT_TRUE(window.isVisible());
}

TEST_F(UnsavedTest, ClosingAsksWhereOnlyTheWindowKeepsAPicture)
{
    perform(&Controller::rotateLeft);
    EXPECT_TRUE(controller.windowShouldClose());
    answering("Cancel", [&] {
        EXPECT_FALSE(window.close());
        QCoreApplication::processEvents();
    });
    EXPECT_TRUE(window.isVisible());
}

TEST_F(UnsavedTest, RevertingIsAStepBackToTheFile)
{
    perform(&Controller::rotateLeft);
    ASSERT_TRUE(action("actionRevert")->isEnabled());
    action("actionRevert")->trigger();
    waitUntilIdle();
    EXPECT_TRUE(isFormer());
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_EQ(undo.undoActionName(), "Revert to Opened File");
    perform(&Controller::undo);
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 200, 300}));
    EXPECT_TRUE(window.isWindowModified());
    ASSERT_TRUE(QFile::remove(former));
    action("actionRevert")->trigger();
    waitUntilIdle();
    EXPECT_EQ(controller.getBgImageExtent(), (CIRect{0, 0, 200, 300})) << "there is nothing to go back to";
}

TEST_F(UnsavedTest, ARunThatQuitsAfterADeclinedSaveKeepsItsJournal)
{
    const QString home = folder.filePath("state");
    const auto sessions = [&] { return QDir(home).entryList({"session-*"}, QDir::Dirs).size(); };
    controller.session().startJournal(home);
    pick("CIColorInvert");
    controller.session().keepNow();
    EXPECT_EQ(sessions(), 1);
    // The question before quitting, then whether to replace the file.
    answering({"Save...", "Cancel"}, [&] { EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Cancel); });
    EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Now);
    controller.applicationWillTerminate();
    EXPECT_EQ(sessions(), 1) << "for the next start";
}

TEST_F(UnsavedTest, TheEndOfTheProgramIsNoAnswer)
{
    pick("CIColorInvert");
    QTimer end;
    end.setSingleShot(true);
    end.callOnTimeout([] {
        ASSERT_TRUE(QApplication::activeModalWidget());
        QCoreApplication::exit();
    });
    end.start(50);
    QTimer::singleShot(0, [&] { EXPECT_EQ(controller.applicationShouldTerminate(), Reply::Cancel); });
    QApplication::exec();
    if (QWidget* sheet = QApplication::activeModalWidget())
        sheet->hide();
}

TEST_F(UnsavedTest, TheEndOfTheDesktopsSessionAsksOnlyWhereItMay)
{
    const QString home = folder.filePath("state");
    const auto sessions = [&] { return QDir(home).entryList({"session-*"}, QDir::Dirs).size(); };
    controller.session().startJournal(home);
    const auto mayAsk = [] { return true; };
    EXPECT_TRUE(controller.desktopSessionEnds(mayAsk)) << "nothing is unsaved";
    pick("CIColorInvert");
    answering("Cancel", [&] { EXPECT_FALSE(controller.desktopSessionEnds(mayAsk)); });
    EXPECT_EQ(sessions(), 0);
    QDialog sheet(&window);
    sheet.setModal(true);
    sheet.show();
    EXPECT_TRUE(controller.desktopSessionEnds([] {
        ADD_FAILURE() << "no two questions at once";
        return true;
    }));
    EXPECT_EQ(sessions(), 1) << "for the next start";
    sheet.hide();
    answering("Don't Save", [&] { EXPECT_TRUE(controller.desktopSessionEnds(mayAsk)); });
}

} // namespace
