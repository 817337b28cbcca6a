// The document and its tasks, without the program's window.
#include "app/document/Document.h"

#include "app/document/Clipboard.h"
#include "app/document/IdleThread.h"
#include "app/document/Opening.h"
#include "app/document/Resizing.h"
#include "app/document/Saving.h"
#include "app/document/Session.h"
#include "app/document/Turning.h"
#include "platform/foundation/UserDefaults.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <atomic>
#include <new>
#include <semaphore>

#ifdef __linux__
#    include <sched.h>
#endif

namespace {

class DocumentTest : public testing::Test {
protected:
    DocumentTest() { UserDefaults::standardUserDefaults().setFile(folder.filePath("defaults.ini")); }

    void waitUntilIdle()
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return document.isIdle(); }, 60'000));
    }
    QSize size() const { return {int(document.picture().extent().width), int(document.picture().extent().height)}; }
    static CIImage picture(int width, int height) { return CIImage::fromBitmap(CIBitmap(width, height)); }
    QString pictureFile(const QString& name, int width, int height) const
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::red);
        EXPECT_TRUE(image.save(folder.filePath(name)));
        return folder.filePath(name);
    }
    UndoManager& undo() { return document.undoManager(); }

    QTemporaryDir folder;
    QWidget window;
    Document document{&window};
};

TEST_F(DocumentTest, WorkIsDoneElsewhereAndOneAtATime)
{
    std::binary_semaphore mayEnd{0};
    int result = 0;
    std::string order;
    document.work(
        {.title = "Work"},
        [&](WorkControl&) {
            mayEnd.acquire();
            return 42;
        },
        [&](std::optional<int> made, bool isCancelled) {
            EXPECT_TRUE(document.isIdle());
            EXPECT_FALSE(isCancelled);
            result = made.value_or(0);
            order += "then ";
        });
    EXPECT_EQ(document.state(), Document::State::Working);
    document.work(
        {}, [](WorkControl&) { return 1; }, [&](std::optional<int>, bool) { ADD_FAILURE() << "refused"; });
    document.whenIdle([&] {
        order += "next ";
        document.work(
            {}, [](WorkControl&) { return 1; }, [&](std::optional<int>, bool) { order += "work "; });
    });
    document.whenIdle([&] { order += "last"; });
    EXPECT_EQ(order, "");
    mayEnd.release();
    waitUntilIdle();
    EXPECT_EQ(result, 42);
    EXPECT_TRUE(QTest::qWaitFor([&] { return order == "then next work last"; })) << order;
}

TEST_F(DocumentTest, WithoutMemoryThereIsNoResult)
{
    bool wasCalled = false;
    document.work(
        {}, [](WorkControl&) -> int { throw std::bad_alloc(); },
        [&](std::optional<int> made, bool) {
            wasCalled = true;
            EXPECT_FALSE(made);
        });
    waitUntilIdle();
    EXPECT_TRUE(wasCalled);
}

TEST_F(DocumentTest, GoesAwayWithItsWork)
{
    {
        Document other(nullptr);
        other.work(
            {},
            [](WorkControl& control) {
                while (!control.isCancelled())
                    std::this_thread::yield();
                return 1;
            },
            [](std::optional<int>, bool) { ADD_FAILURE() << "there is nobody any more"; });
    }
    QCoreApplication::processEvents();
}

TEST_F(DocumentTest, TurningIsUndoneAndRedoneByWork)
{
    document.setPicture(picture(30, 20));
    Turning turning(document);
    turning.rotate(true);
    waitUntilIdle();
    EXPECT_EQ(size(), QSize(20, 30));
    EXPECT_EQ(undo().undoActionName(), "Rotate Left");
    undo().undo();
    EXPECT_TRUE(undo().isUndoing()) << "until the picture is there";
    waitUntilIdle();
    EXPECT_EQ(size(), QSize(30, 20));
    EXPECT_FALSE(undo().canUndo());
    EXPECT_EQ(undo().redoActionName(), "Rotate Left");
    undo().redo();
    waitUntilIdle();
    EXPECT_EQ(size(), QSize(20, 30));
    EXPECT_FALSE(undo().canRedo());
    EXPECT_FALSE(document.wasChanged());
}

TEST_F(DocumentTest, TheClipboardTakesWhatIsFinished)
{
    LaterPicture finished;
    Clipboard clipboard(document, [&] { return finished; });
    clipboard.copy();
    EXPECT_TRUE(document.isIdle()) << "nothing to copy";
    finished = [](CIRenderControl*) { return picture(7, 5); };
    clipboard.copy();
    waitUntilIdle();
    document.setPicture(picture(3, 3));
    document.setState(Document::State::Opening);
    clipboard.paste();
    document.setState(Document::State::Idle);
    EXPECT_EQ(size(), QSize(3, 3));
    clipboard.paste();
    waitUntilIdle();
    EXPECT_EQ(size(), QSize(7, 5));
    EXPECT_EQ(undo().undoActionName(), "Paste");
}

TEST_F(DocumentTest, SavingTellsWhenAFileIsThere)
{
    int saved = 0, ended = 0;
    Saving saving(document, &window, [] { return [](CIRenderControl*) { return picture(7, 5); }; },
        {.saved = [&] { ++saved; }, .impossible = [] {}, .terminate = [&] { ++ended; }});
    saving.initExportFormats();
    document.setWasChanged(true);
    QTimer answer;
    answer.callOnTimeout([] {
        if (auto* sheet = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            sheet->reject();
    });
    answer.start(0);
    saving.panelDidEnd(1, folder.filePath("no folder/a.jpeg"));
    waitUntilIdle();
    EXPECT_EQ(saved, 0);
    EXPECT_FALSE(document.wasChanged());
    EXPECT_TRUE(document.isUnsaved());

    const QString target = QDir::tempPath() + "/lumivex-saving-" + QString::number(QCoreApplication::applicationPid());
    document.setWasChanged(true);
    saving.panelDidEnd(1, target);
    EXPECT_FALSE(document.wasChanged());
    waitUntilIdle();
    EXPECT_EQ(document.filePath(), target + ".jpeg");
    EXPECT_EQ(QImage(target + ".jpeg").size(), QSize(7, 5));
    EXPECT_EQ(saved, 1);
    EXPECT_EQ(ended, 0);

    document.setFilePath({});
    saving.saveAndQuit();
    EXPECT_TRUE(saving.isQuitting());
    saving.panelDidEnd(0, {});
    EXPECT_EQ(ended, 1) << "also without a file";
    EXPECT_TRUE(QFile::remove(target + ".jpeg"));
}

TEST_F(DocumentTest, AnOpeningReplacesTheDocumentOrAddsAStep)
{
    Opening opening(document, [] { return 0; });
    const QString file = pictureFile("a.png", 9, 4), other = pictureFile("b.png", 5, 5);
    QSignalSpy opened(&opening, &Opening::opened), notRead(&opening, &Opening::notRead);
    opening.open(other);
    EXPECT_EQ(document.state(), Document::State::Opening);
    opening.open(file);
    waitUntilIdle();
    EXPECT_EQ(size(), QSize(9, 4));
    EXPECT_EQ(document.filePath(), file) << "the newest wins";
    EXPECT_EQ(opened.size(), 1);
    EXPECT_EQ(undo().undoActionNames(), QStringList("Open"));

    opening.openDropped(folder.filePath("missing.png"), true);
    waitUntilIdle();
    EXPECT_EQ(notRead.size(), 1);
    EXPECT_FALSE(document.readFailure().isEmpty());
    opening.openDropped(other, true);
    waitUntilIdle();
    EXPECT_EQ(size(), QSize(5, 5));
    EXPECT_EQ(undo().undoActionName(), "Open");
    undo().undo();
    EXPECT_EQ(size(), QSize(9, 4));
    EXPECT_EQ(document.filePath(), file);

    opening.open(other);
    opening.cancel();
    EXPECT_TRUE(document.isIdle());
    EXPECT_EQ(document.filePath(), file);
    opening.open(folder.filePath("missing.png"));
    waitUntilIdle();
    EXPECT_FALSE(document.picture());
    EXPECT_TRUE(document.filePath().endsWith("missing.png")) << "it has the file's name all the same";
}

TEST_F(DocumentTest, ASessionKeepsThePictureAndWhatOthersMakeOfIt)
{
    Opening opening(document, [] { return 0; });
    std::string restored;
    Session session(document, opening, &window,
        {[](SessionState& state, const CIImage&) { state.values["edit"] = "blur"; },
            [&](const SessionState& state) { restored = state.value("edit").toString(); }});
    document.setPicture(picture(6, 3));
    document.setFilePath("/a/b.png");
    document.setWasChanged(true);
    const SessionState state = session.state();
    document.setPicture({});
    document.setFilePath({});
    document.setWasChanged(false);
    undo().registerUndoWithTarget(this, [] {});
    session.restore(state);
    EXPECT_EQ(size(), QSize(6, 3));
    EXPECT_EQ(document.filePath(), "/a/b.png");
    EXPECT_TRUE(document.wasChanged());
    EXPECT_EQ(restored, "blur");
    EXPECT_FALSE(undo().canUndo());
}

#ifdef __linux__
TEST(IdleThreadTest, ComesFirstOnceItIsWaitedFor)
{
    std::atomic<bool> wasIdle = false, isHurried = false;
    std::binary_semaphore hasBegun(0);
    {
        IdleThread thread;
        thread.begin([&] {
            wasIdle = sched_getscheduler(0) == SCHED_IDLE;
            hasBegun.release();
            const QDeadlineTimer patience(60'000); // ms
            while (!(isHurried = sched_getscheduler(0) != SCHED_IDLE) && !patience.hasExpired())
                QThread::yieldCurrentThread();
        });
        hasBegun.acquire();
    }
    EXPECT_TRUE(wasIdle);
    EXPECT_TRUE(isHurried);
}
#endif

} // namespace
