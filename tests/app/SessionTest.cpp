// What is kept of a session, and how it comes back.
#include "WindowFixture.h"

#include "app/document/SessionJournal.h"
#include "platform/chain/Baking.h"
#include "ui_MainWindow.h"
#include "widgets/GradientButton.h"

#include <QDir>
#include <QTest>

namespace {

const std::atomic<bool> kGoOn = false;

CIImage picture(int width, int height, int color = 90)
{
    CIBitmap bitmap(width, height, CIFormat::RGBA16);
    for (int y = 0; y < height; ++y)
        for (std::uint16_t& part : bitmap.mutableRow<std::uint16_t>(y))
            part = std::uint16_t(color * 257 + y);
    return CIImage::fromBitmap(bitmap);
}

bool areEqual(const CIImage& a, const CIImage& b)
{
    const CIBitmap *first = bitmapOf(a), *second = bitmapOf(b);
    if (!first || !second || first->format() != second->format() || first->width() != second->width()
        || first->height() != second->height())
        return false;
    for (int y = 0; y < first->height(); ++y)
        if (!std::equal(first->row(y), first->row(y) + bytesPerPixel(first->format()) * std::size_t(first->width()),
                second->row(y)))
            return false;
    return true;
}

class SessionFolderTest : public testing::Test {
protected:
    /// Makes a session that was not taken away.
    QString abandon(const SessionState& state)
    {
        const auto session = SessionFolder::make(home());
        EXPECT_TRUE(session && session->write(state, kGoOn));
        return session->path();
    }
    QString home() const { return folder.filePath("state/lumivex"); }
    QStringList names() const { return QDir(home()).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden); }

    QTemporaryDir folder;
};

TEST_F(SessionFolderTest, BelongsToItsProcessUntilThatEnds)
{
    auto session = SessionFolder::make(home());
    ASSERT_TRUE(session);
    SessionState state{{{"path", "a"}}, {{"picture", picture(70, 130)}}};
    ASSERT_TRUE(session->write(state, kGoOn));
    EXPECT_TRUE(SessionFolder::abandoned(home()).empty()) << "somebody is at work";
    state.values["path"] = "b";
    ASSERT_TRUE(session->write(state, kGoOn));
    EXPECT_EQ(QDir(session->path()).entryList({"picture-*"}), QStringList("picture-0")) << "the same picture";
    state.pictures["picture"] = picture(30, 20);
    const std::atomic<bool> stop = true;
    EXPECT_FALSE(session->write(state, stop));
    EXPECT_EQ(session->read()->pictures["picture"].extent().width, 70) << "what was there stays";
    ASSERT_TRUE(session->write(state, kGoOn));
    EXPECT_EQ(QDir(session->path()).entryList({"picture-*"}).size(), 1) << "the former one is of no use";
    EXPECT_FALSE(QFileInfo(session->path()).permissions() & (QFile::ReadGroup | QFile::ReadOther));

    session.reset();
    const auto found = SessionFolder::abandoned(home());
    ASSERT_EQ(found.size(), 1U);
    const std::optional<SessionState> back = found.front()->read();
    ASSERT_TRUE(back);
    EXPECT_EQ(back->values.at("path").toString(), "b");
    EXPECT_TRUE(areEqual(back->pictures.at("picture"), state.pictures.at("picture")));
}

TEST_F(SessionFolderTest, SetsDamageAside)
{
    const SessionState state{{{"path", "a"}}, {{"picture", picture(70, 130)}}};
    const auto damage = [](const QString& path, qint64 at) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(at));
        const char byte = char(file.peek(1).at(0) ^ 0x20);
        file.write(&byte, 1);
    };
    damage(abandon(state) + "/state", 40);
    EXPECT_TRUE(SessionFolder::abandoned(home()).empty());
    EXPECT_EQ(names().filter("damaged-").size(), 1);

    const QString path = abandon(state);
    damage(path + "/picture-0", QFileInfo(path + "/picture-0").size() / 2);
    auto found = SessionFolder::abandoned(home());
    ASSERT_EQ(found.size(), 1U);
    EXPECT_FALSE(found.front()->read());
    found.clear();
    EXPECT_TRUE(SessionFolder::abandoned(home()).empty());
    EXPECT_EQ(names().filter("damaged-").size(), 2);

    QDir().mkpath(home() + "/session-empty"); // killed before it had anything to keep
    EXPECT_TRUE(SessionFolder::abandoned(home()).empty());
    EXPECT_EQ(names().filter("session-").size(), 0);
}

TEST_F(SessionFolderTest, IsWrittenAtMostOnceInAWhileAndOnlyAfterChanges)
{
    SessionState state{{{"path", "a"}}, {{"picture", picture(9, 9)}}};
    SessionJournal journal(
        home(), [&] { return state; }, std::chrono::hours(1));
    journal.update();
    EXPECT_TRUE(names().isEmpty());
    const auto keptPath = [&] {
        for (const QString& name : names()) {
            QFile file(home() + '/' + name + "/state");
            if (file.open(QIODevice::ReadOnly))
                return file.readAll();
        }
        return QByteArray();
    };
    state.values["path"] = "b";
    journal.update();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !keptPath().isEmpty(); }));
    const QByteArray first = keptPath();
    state.values["path"] = "c";
    journal.update();
    EXPECT_EQ(keptPath(), first) << "the hour isn't over";
    journal.update(true);
    EXPECT_NE(keptPath(), first) << "but when the session ends";
    state.values["path"] = "a";
    journal.update();
    journal.markClean();
    EXPECT_TRUE(names().isEmpty()) << "saved";
}

class SessionTest : public WindowTest {
protected:
    /// Through the disk, into a window that shows something else.
    void restoreElsewhere()
    {
        const SessionState kept = controller.session().state();
        {
            const auto session = SessionFolder::make(folder.path());
            ASSERT_TRUE(session && session->write(kept, kGoOn));
        }
        controller.changeFilterMode(ui.standardBtn);
        controller.escapeEffect();
        openPicture(pictureFile("other.png", 5, 5));
        auto found = SessionFolder::abandoned(folder.path());
        ASSERT_EQ(found.size(), 1U);
        const std::optional<SessionState> state = found.front()->read();
        ASSERT_TRUE(state);
        controller.session().restore(*state);
        found.front()->remove();
    }
};

TEST_F(SessionTest, BringsPictureFilterAndModeBack)
{
    openPicture(pictureFile("a.png", 60, 40));
    perform(&Controller::rotateLeft);
    const CIImage turned = controller.getImage(false);
    pick("CIGlassDistortion");
    controller.setFilterValueForKey(*controller.getCurrentFilter(), 123, "inputScale");
    controller.setFilterValueForKey(*controller.getCurrentFilter(), CIVector{7, 8}, "inputCenter");
    controller.setFilterValueForKey(*controller.getCurrentFilter(), picture(12, 10), "inputTexture");
    const CIImage texture = controller.getCurrentFilter()->valueForKey("inputTexture").toImage();
    const CIBitmap shown = controller.createObjectImage();
    restoreElsewhere();
    EXPECT_EQ(window.windowTitle(), "Lumivex::a.png[*]");
    EXPECT_TRUE(controller.wasChanged());
    EXPECT_TRUE(areEqual(controller.getImage(false), turned));
    ASSERT_TRUE(controller.getCurrentFilter());
    EXPECT_EQ(controller.getCurrentFilter()->valueForKey("inputScale").toDouble(), 123);
    EXPECT_TRUE(areEqual(controller.getCurrentFilter()->valueForKey("inputTexture").toImage(), texture));
    EXPECT_TRUE(areEqual(CIImage::fromBitmap(controller.createObjectImage()), CIImage::fromBitmap(shown)));
    EXPECT_TRUE(ui.listView->selectedItem());
    EXPECT_FALSE(undo.canUndo());
}

TEST_F(SessionTest, BringsEffectsBack)
{
    openPicture(pictureFile("a.png", 60, 40));
    controller.changeFilterMode(ui.customBtn);
    ui.filterCustomOutlineView->selectRow(ui.filterCustomOutlineView->model()->index(0, 0));
    ASSERT_TRUE(controller.getCurrentCustomEffect());
    const CIDictionary custom = controller.getCurrentCustomEffect()->save();
    restoreElsewhere();
    EXPECT_EQ(controller.filerMode(), unsigned(Controller::Custom));
    ASSERT_TRUE(controller.getCurrentCustomEffect());
    EXPECT_EQ(controller.getCurrentCustomEffect()->save().size(), custom.size());
    EXPECT_EQ(controller.getCurrentCustomEffect()->className(), custom.at("class").toString());
    EXPECT_TRUE(ui.filterNameField->isVisible());
}

TEST_F(SessionTest, AsksForEachSessionUntilOneIsRestored)
{
    const QString home = folder.filePath("state");
    const SessionState kept{
        {{"path", "/a/kept.png"}, {"mode", 0.0}, {"wasChanged", true}}, {{"picture", picture(8, 6)}}};
    for (int i = 0; i < 2; ++i) {
        const auto session = SessionFolder::make(home);
        ASSERT_TRUE(session->write(kept, kGoOn));
    }
    controller.session().startJournal(home);
    answering({"Discard", "Restore"}, [&] { controller.session().offerRestore(home); });
    EXPECT_EQ(controller.getImage(false).extent().width, 8);
    EXPECT_EQ(controller.getFilePath(), "/a/kept.png");
    EXPECT_EQ(QDir(home).entryList({"session-*"}, QDir::Dirs).size(), 1);
    EXPECT_TRUE(SessionFolder::abandoned(home).empty()) << "it is this window's now";
    controller.applicationWillTerminate();
    EXPECT_TRUE(QDir(home).entryList({"session-*"}, QDir::Dirs).isEmpty());
}

} // namespace
