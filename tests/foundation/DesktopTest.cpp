#include "platform/foundation/Appearance.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/Pasteboard.h"
#include "platform/foundation/ResourcePaths.h"
#include "platform/foundation/TintedIcon.h"
#include "platform/foundation/UserDefaults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>
#include <QDBusVariant>
#include <QFile>
#include <QMimeData>
#include <QTemporaryDir>

namespace {

QString usualDefaultsFile;

TEST(UserDefaults, KeepsValuesBetweenRunsInTheGivenFile)
{
    QTemporaryDir folder;
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    const QString former = defaults.file();
    EXPECT_TRUE(usualDefaultsFile.endsWith("/lumivex/lumivex.ini")) << usualDefaultsFile.toStdString();

    const QByteArray bytes("\x00\xff\n=;[x]", 8);
    defaults.setFile(folder.filePath("a.ini"));
    defaults.setObjectForKey(bytes, "Bytes");
    defaults.setObjectForKey(QStringList{"é", "b,c"}, "List");
    EXPECT_TRUE(defaults.synchronize());
    defaults.setFile(folder.filePath("b.ini"));
    EXPECT_FALSE(defaults.objectForKey("Bytes").isValid());
    defaults.setFile(folder.filePath("a.ini"));
    EXPECT_EQ(defaults.objectForKey("Bytes").toByteArray(), bytes);
    EXPECT_EQ(defaults.objectForKey("List").toStringList(), (QStringList{"é", "b,c"}));
    defaults.removeObjectForKey("List");
    EXPECT_FALSE(defaults.objectForKey("List").isValid());
    defaults.setFile(former);
}

TEST(NotificationCenter, EmitsTheSignalOfThatName)
{
    int custom = 0, openGL = 0;
    QObject receiver;
    NotificationCenter& center = NotificationCenter::defaultCenter();
    QObject::connect(&center, &NotificationCenter::UpdateCustomView, &receiver, [&] { ++custom; });
    QObject::connect(&center, &NotificationCenter::UpdateOpenGLView, &receiver, [&] { ++openGL; });
    center.postNotificationName("UpdateCustomView");
    center.postNotificationName("UpdateOpenGLView");
    center.postNotificationName("UpdateOpenGLView");
    center.postNotificationName("updatecustomview");
    EXPECT_EQ(custom, 1);
    EXPECT_EQ(openGL, 2);
}

TEST(Pasteboard, OffersAPictureOfAnyTypeButNoText)
{
    Pasteboard& pasteboard = Pasteboard::generalPasteboard();
    QClipboard* clipboard = QApplication::clipboard();
    int changes = 0;
    QObject receiver;
    QObject::connect(&pasteboard, &Pasteboard::changed, &receiver, [&] { ++changes; });

    clipboard->setText("image/png");
    EXPECT_FALSE(pasteboard.offersTIFF());
    EXPECT_TRUE(pasteboard.pictureData().isEmpty());

    auto* files = new QMimeData;
    files->setData("image/jpeg", "lossy");
    files->setData("image/tiff", "exact");
    clipboard->setMimeData(files);
    EXPECT_TRUE(pasteboard.offersTIFF());
    EXPECT_EQ(pasteboard.pictureData(), "exact");

    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    clipboard->setImage(image);
    EXPECT_TRUE(pasteboard.offersTIFF());
    EXPECT_EQ(QImage::fromData(pasteboard.pictureData()).size(), QSize(3, 2));
    EXPECT_GE(changes, 3);

    EXPECT_EQ(Pasteboard::bestPictureType({"text/html", "image/x-odd"}), "image/x-odd");
    EXPECT_TRUE(Pasteboard::bestPictureType({"text/uri-list"}).isEmpty());
}

TEST(Appearance, FollowsTheDesktopUnlessTheUserChose)
{
    Appearance& appearance = Appearance::shared();
    appearance.dressApplication();
    int changes = 0;
    QObject receiver;
    QObject::connect(&appearance, &Appearance::changed, &receiver, [&] { ++changes; });
    const auto tell = [&](unsigned scheme, const QString& key = "color-scheme") {
        appearance.settingChanged("org.freedesktop.appearance", key, QDBusVariant(scheme));
    };
    tell(2);
    EXPECT_FALSE(appearance.isDark());
    tell(1, "contrast");
    EXPECT_FALSE(appearance.isDark());
    changes = 0;
    tell(1);
    EXPECT_TRUE(appearance.isDark());
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), Look::dark().window);

    appearance.setChoice(Appearance::Choice::Light);
    EXPECT_FALSE(appearance.isDark());
    tell(2);
    tell(1);
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), Look::light().window);
    appearance.setChoice(Appearance::Choice::System);
    EXPECT_TRUE(appearance.isDark());
    tell(2);
}

TEST(TintedIcon, TakesTheColorOfTheLook)
{
    QTemporaryDir folder;
    setResourceFolders({folder.path()});
    QFile file(folder.filePath("block.svg"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 4 4'><path d='M0 0h2v4h-2z' fill='red'/></svg>");
    file.close();

    EXPECT_TRUE(tintedIcon("none").isNull());
    const QIcon icon = tintedIcon("block");
    Appearance& appearance = Appearance::shared();
    for (const auto choice : {Appearance::Choice::Light, Appearance::Choice::Dark}) {
        appearance.setChoice(choice);
        const QImage drawn = icon.pixmap(QSize(16, 16), 1).toImage();
        EXPECT_EQ(drawn.pixelColor(3, 8), appearance.look().text);
        EXPECT_EQ(drawn.pixelColor(12, 8).alpha(), 0);
        EXPECT_EQ(
            icon.pixmap(QSize(16, 16), 1, QIcon::Disabled).toImage().pixelColor(3, 8), appearance.look().disabledText);
    }
    appearance.setChoice(Appearance::Choice::System);
    setResourceFolders({});
}

TEST(ResourcePaths, SearchesFoldersInTheirOrder)
{
    QTemporaryDir first, second;
    for (const QString& path : {first.filePath("a.txt"), second.filePath("a.txt"), second.filePath("b.txt")}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    setResourceFolders({first.path(), second.path()});
    EXPECT_EQ(pathForResource("a", "txt"), first.filePath("a.txt"));
    EXPECT_EQ(pathForResource("b", "txt"), second.filePath("b.txt"));
    EXPECT_TRUE(pathForResource("c", "txt").isEmpty());
    setResourceFolders({});
    EXPECT_EQ(resourceFolders().size(), 2);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QTemporaryDir folder;
    usualDefaultsFile = UserDefaults::standardUserDefaults().file();
    UserDefaults::standardUserDefaults().setFile(folder.filePath("defaults.ini"));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
