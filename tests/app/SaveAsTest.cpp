// Where Save As writes, and what becomes of the file that was there.
#include "WindowFixture.h"

#include "app/document/ReplacedFiles.h"
#include "files/SavePanel.h"
#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace {

class SaveAsTest : public WindowTest {
protected:
    SaveAsTest()
    {
        EXPECT_TRUE(QDir().mkpath(chosen));
        // A test before may have ended the program, after which no sheet would wait for an answer.
        QTimer::singleShot(0, [] { QCoreApplication::exit(); });
        QApplication::exec();
        openPicture(former);
    }
    ~SaveAsTest() override
    {
        QDir(home).removeRecursively();
        UserDefaults::standardUserDefaults().removeObjectForKey("SaveAsFolder");
    }

    void saveAs(const QString& path) { perform(&Controller::savePanelDidEnd, QDialog::Accepted, path); }
    static QByteArray contents(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    const QString former = pictureFile("former.png", 30, 20);
    const QString home = QDir::tempPath() + "/lumivex-save-as-" + QString::number(QCoreApplication::applicationPid());
    const QString chosen = home + "/Pictures", lower = home + "/pictures";
};

TEST_F(SaveAsTest, AFolderThatIsMissingInLowerCaseIsAskedAboutBeforeAnythingChanges)
{
    perform(&Controller::rotateLeft);
    answering("Cancel", [&] { saveAs(chosen + "/Holiday"); });
    EXPECT_EQ(QDir(home).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("Pictures"));
    EXPECT_TRUE(QDir(chosen).isEmpty());
    EXPECT_EQ(controller.getFilePath(), former);
    EXPECT_TRUE(window.isWindowModified());

    answering("Use Chosen Folder", [&] { saveAs(chosen + "/Holiday"); });
    EXPECT_TRUE(QFile::exists(chosen + "/holiday.jpeg"));
    EXPECT_EQ(controller.getFilePath(), chosen + "/holiday.jpeg");
    EXPECT_FALSE(QFile::exists(lower));

    answering("Make Folder", [&] { saveAs(chosen + "/Holiday"); });
    EXPECT_TRUE(QFile::exists(lower + "/holiday.jpeg"));
    saveAs(chosen + "/Again"); // the folder is there now
    EXPECT_TRUE(QFile::exists(lower + "/again.jpeg"));
}

TEST_F(SaveAsTest, TheInformationPanelShowsTheFileThatWasWritten)
{
    auto* size = window.findChild<ImageInfo*>()->findChild<QLabel*>("mFileSize");
    const auto showsSizeOf = [&](const QString& path) {
        return QTest::qWaitFor(
            [&] { return size->text().startsWith(QString::number(QFile(path).size()) + ' '); }, 20'000);
    };
    EXPECT_TRUE(showsSizeOf(former));
    answering("Use Chosen Folder", [&] { saveAs(chosen + "/Shown"); });
    EXPECT_TRUE(showsSizeOf(chosen + "/shown.jpeg"));
    perform(&Controller::resizeImageHeight, 7.0f, 5.0f);
    answering("OK", [&] { perform(&Controller::saveImg); });
    EXPECT_TRUE(showsSizeOf(chosen + "/shown.jpeg"));
}

TEST_F(SaveAsTest, TheAnswerIsRememberedIfWished)
{
    QTimer::singleShot(50, [] {
        auto* remembers = QApplication::activeModalWidget()->findChild<QCheckBox*>();
        ASSERT_TRUE(remembers);
        remembers->click();
    });
    QTimer later; // answering would press the button before the box is ticked
    later.setSingleShot(true);
    later.callOnTimeout([] {
        for (QAbstractButton* button : QApplication::activeModalWidget()->findChildren<QAbstractButton*>())
            if (button->text() == "Use Chosen Folder")
                button->click();
    });
    later.start(150);
    saveAs(chosen + "/One");
    saveAs(chosen + "/Two");
    EXPECT_EQ(QDir(chosen).entryList(QDir::Files), (QStringList{"one.jpeg", "two.jpeg"}));
}

TEST_F(SaveAsTest, WhoCancelsThereIsNotTakenToWantToQuit)
{
    pick("CIColorInvert");
    controller.setFilePath({});
    answering("Save...", [&] { controller.applicationShouldTerminate(); });
    auto* panel = window.findChild<SavePanel*>();
    ASSERT_TRUE(panel);
    panel->disconnect(&controller.document());
    panel->reject();
    answering("Cancel", [&] { saveAs(chosen + "/Holiday"); });
    answering("Cancel", [&] {
        EXPECT_EQ(controller.applicationShouldTerminate(), Controller::TerminateReply::Cancel) << "asked once more";
    });
}

TEST_F(SaveAsTest, ThePanelTellsThePathAsItIsTyped)
{
    controller.runSavePanel();
    auto* panel = window.findChild<SavePanel*>();
    ASSERT_TRUE(panel);
    panel->setDirectory(chosen);
    auto* line = panel->findChild<QLabel*>("targetLine");
    auto* name = panel->findChild<QLineEdit*>("fileNameEdit");
    ASSERT_TRUE(line && name && line->isVisible());
    name->setText("Holiday.png");
    EXPECT_EQ(line->toolTip(), "Will be written to " + lower + "/holiday.jpeg, where there is no folder yet");
    auto* formats = panel->findChild<QComboBox*>("formatMenu");
    formats->setCurrentIndex(formats->findText("PDF"));
    EXPECT_EQ(line->toolTip(), "Will be written to " + chosen + "/Holiday.pdf");
    name->clear();
    EXPECT_EQ(line->text(), "");
    formats->setCurrentIndex(0);
    panel->reject();
}

TEST_F(SaveAsTest, WhatIsOverwrittenInSpiteOfANoIsInTheTrash)
{
    EXPECT_TRUE(QDir().mkpath(lower));
    const QString target = lower + "/precious.jpeg";
    QFile file(target);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("precious") == 8);
    file.close();
    answering("Cancel", [&] { saveAs(target); });
    EXPECT_NE(contents(target), "precious");
    EXPECT_TRUE(ui.pictureInfoField->text().contains("trash")) << ui.pictureInfoField->text().toStdString();
    const QDir trash(qEnvironmentVariable("XDG_DATA_HOME") + "/Trash");
    EXPECT_EQ(contents(trash.filePath("files/precious.jpeg")), "precious");
    EXPECT_TRUE(contents(trash.filePath("info/precious.jpeg.trashinfo")).contains("precious.jpeg")) << "its place";

    answering("OK", [&] { saveAs(target); });
    EXPECT_EQ(QDir(trash.filePath("files")).entryList({"precious*"}, QDir::Files).size(), 1) << "who says yes means it";
}

TEST(ReplacedFiles, AreKeptForThirtyDaysWhereThereIsNoTrash)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("There.png"), state = folder.filePath("state");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("precious") == 8);
    file.close();
    const QByteArray data = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", "/proc/no such folder");
    const auto kept = keepReplacedFile(path, state);
    qputenv("XDG_DATA_HOME", data);
    ASSERT_TRUE(kept);
    EXPECT_FALSE(kept->isInTrash);
    EXPECT_TRUE(kept->path.startsWith(state) && kept->path.endsWith("There.png"));
    EXPECT_TRUE(QFile::exists(path));
    forgetReplacedFiles(state);
    QFile copy(kept->path);
    ASSERT_TRUE(copy.open(QIODevice::ReadWrite));
    EXPECT_EQ(copy.readAll(), "precious");
    ASSERT_TRUE(copy.setFileTime(QDateTime::currentDateTime().addDays(-31), QFileDevice::FileModificationTime));
    copy.close();
    forgetReplacedFiles(state);
    EXPECT_FALSE(QFile::exists(kept->path));
}

} // namespace
