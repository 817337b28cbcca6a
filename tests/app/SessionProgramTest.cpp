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
    QString window = this->window("Lumivex::journey.png");
    ASSERT_FALSE(window.isEmpty());
    QTest::qWait(2500);
    EXPECT_TRUE(sessions().isEmpty()) << "there is nothing to keep yet";
    ASSERT_TRUE(pressUntil([&] { return isKept(1); }, [&] { press(window, "ctrl+l"); }));
    first.kill(); // SIGKILL: it can do nothing about it
    first.waitForFinished();
    EXPECT_EQ(keptPicture().pixelColor(0, 59), Qt::red) << "turned to the left";

    QProcess& second = start({"--new-window"});
    QString question = topWindow("Lumivex", 2);
    const auto isBack = [] { return !tool({"search", "--onlyvisible", "--name", "^Lumivex::journey"}).isEmpty(); };
    ASSERT_TRUE(pressUntil(isBack, [&] { press(question, "Return"); }));
    window = this->window("Lumivex::journey.png.*");
    ASSERT_FALSE(window.isEmpty()) << "the picture is back";
    QTest::qWait(500);
    ASSERT_TRUE(pressUntil([&] { return isKept(2); }, [&] { press(window, "ctrl+l"); }))
        << "the journal goes on where it was";
    second.kill();
    second.waitForFinished();
    EXPECT_EQ(keptPicture().pixelColor(59, 39), Qt::red) << "turned twice";

    QProcess& third = start({"--new-window"});
    question = topWindow("Lumivex", 2);
    QTest::qWait(500);
    press(question, "Tab");
    press(question, "space"); // Discard
    ASSERT_TRUE(waitFor([&] { return sessions().isEmpty(); }));
    window = this->window("Lumivex");
    QTest::qWait(500);
    press(window, "ctrl+q");
    EXPECT_TRUE(third.waitForFinished(10'000));
    EXPECT_EQ(third.exitStatus(), QProcess::NormalExit);
    EXPECT_TRUE(QDir(home()).isEmpty());
}

} // namespace
