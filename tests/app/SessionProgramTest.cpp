// Sessions that end unexpectedly, with the real program.
#include "ProgramFixture.h"

#include "app/document/SessionFolder.h"
#include "platform/chain/Baking.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace {

class SessionProgramTest : public ProgramTest {
protected:
    QString home() const { return environment.value("XDG_STATE_HOME") + "/lumivex"; }
    QStringList sessions() const { return QDir(home()).entryList({"session-*"}, QDir::Dirs); }
    /// So many pictures are, and the state, which comes last, tells of all.
    bool isKept(int pictureCount) const
    {
        const QStringList names = sessions();
        if (names.size() != 1)
            return false;
        const QDir session(home() + '/' + names.first());
        const QFileInfo state(session.filePath("state"));
        const QFileInfo picture(session.filePath(QString("picture-%1").arg(pictureCount - 1)));
        return state.exists() && picture.exists() && state.lastModified() >= picture.lastModified();
    }
    /// The kept picture of the only session, which must have ended.
    QImage keptPicture() const
    {
        const auto found = SessionFolder::abandoned(home());
        const std::optional<SessionState> state = found.size() == 1 ? found.front()->read() : std::nullopt;
        if (!state || !state->pictures.contains("picture"))
            return {};
        const CIBitmap bitmap = *bitmapOf(state->pictures.at("picture"));
        QImage image(bitmap.width(), bitmap.height(), QImage::Format_RGBA8888);
        for (int y = 0; y < bitmap.height(); ++y)
            std::copy_n(bitmap.row(y), 4 * bitmap.width(), reinterpret_cast<std::byte*>(image.scanLine(y)));
        return image;
    }
};

TEST_F(SessionProgramTest, ComesBackAfterItWasKilledAndLeavesNothingAfterAnOrderlyEnd)
{
    const QString path = pictureFile("journey.png");
    QProcess& first = start({"--new-window", path});
    QString mainWindow = window("Lumivex::journey.png");
    ASSERT_FALSE(mainWindow.isEmpty());
    ASSERT_TRUE(pressUntil([&] { return isKept(1); }, [&] { press(mainWindow, "ctrl+l"); }));
    first.kill(); // SIGKILL: it can do nothing about it
    first.waitForFinished();
    EXPECT_EQ(keptPicture().pixelColor(0, 59), Qt::red) << "turned to the left";

    QProcess& second = start({"--new-window"});
    QString question = window("Lumivex", 2);
    ASSERT_TRUE(
        pressUntil([] { return !windows("Lumivex::journey.*").isEmpty(); }, [&] { press(question, "Return"); }));
    mainWindow = window("Lumivex::journey.png.*");
    ASSERT_FALSE(mainWindow.isEmpty()) << "the picture is back";
    ASSERT_TRUE(pressUntil([&] { return isKept(2); }, [&] { press(mainWindow, "ctrl+l"); }))
        << "the journal goes on where it was";
    second.kill();
    second.waitForFinished();
    EXPECT_EQ(keptPicture().pixelColor(59, 39), Qt::red) << "turned twice";

    QProcess& third = start({"--new-window"});
    question = window("Lumivex", 2);
    ASSERT_TRUE(pressUntil([&] { return sessions().isEmpty(); },
        [&] {
            press(question, "Tab");
            press(question, "space"); // Discard
        }));
    ASSERT_TRUE(waitFor([] { return windows("Lumivex").size() == 1; })) << "the question has gone";
    mainWindow = window("Lumivex");
    EXPECT_TRUE(
        pressUntil([&] { return third.state() == QProcess::NotRunning; }, [&] { press(mainWindow, "ctrl+q"); }));
    EXPECT_EQ(third.exitStatus(), QProcess::NormalExit);
    EXPECT_TRUE(QDir(home()).isEmpty());
}

} // namespace
