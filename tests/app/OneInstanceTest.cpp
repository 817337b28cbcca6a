// Several starts and the session bus, with the real program.
#include "ProgramFixture.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QUrl>

namespace {

const QString kService = QStringLiteral("io.github.lumivex.Lumivex");

class OneInstanceTest : public ProgramTest {
protected:
    OneInstanceTest()
    {
        QDir().mkpath(environment.value("XDG_DATA_HOME") + "/dbus-1/services");
        daemon.setProcessEnvironment(environment);
        daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        EXPECT_TRUE(daemon.waitForReadyRead());
        const QString address = QString::fromUtf8(daemon.readLine()).trimmed();
        environment.insert("DBUS_SESSION_BUS_ADDRESS", address);
        connection = std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(address, "test"));
    }
    ~OneInstanceTest() override
    {
        for (const QString& id : tool({"search", "--name", "^Lumivex"}).split('\n', Qt::SkipEmptyParts))
            tool({"windowkill", id}); // also of processes that others have started
        QDBusConnection::disconnectFromBus("test");
        daemon.kill();
        daemon.waitForFinished();
    }

    QDBusMessage call(const QString& method, const QVariantList& arguments)
    {
        QDBusMessage message = QDBusMessage::createMethodCall(
            kService, "/io/github/lumivex/Lumivex", "org.freedesktop.Application", method);
        message.setArguments(arguments);
        return connection->call(message, QDBus::Block, 20'000);
    }
    bool hasOwner() const { return connection->interface()->isServiceRegistered(kService); }
    static QString url(const QString& path) { return QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded); }

    QProcess daemon;
    std::unique_ptr<QDBusConnection> connection;
};

TEST_F(OneInstanceTest, HandsOverToTheFirst)
{
    start({pictureFile("a.png")});
    ASSERT_FALSE(window("Lumivex::a.png").isEmpty());
    ASSERT_TRUE(hasOwner());
    environment.insert("XDG_ACTIVATION_TOKEN", "token");
    QProcess& second = start({pictureFile("with space & ü.png")});
    EXPECT_TRUE(second.waitForFinished(20'000)) << "it has nothing left to do";
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_FALSE(window("Lumivex::with space & ü.png").isEmpty()) << "in the window that was there";
    EXPECT_TRUE(tool({"search", "--name", "^Lumivex::a.png$"}).isEmpty());

    // Several: one here, the others in windows of their own.
    EXPECT_EQ(call("Open", {QStringList{url(pictureFile("c.png")), url(pictureFile("d.png"))}, QVariantMap()}).type(),
        QDBusMessage::ReplyMessage);
    EXPECT_FALSE(window("Lumivex::c.png").isEmpty());
    EXPECT_FALSE(window("Lumivex::d.png").isEmpty());
    EXPECT_EQ(call("Activate", {QVariantMap{{"activation-token", "x"}}}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(call("ActivateAction", {"none", QVariantList(), QVariantMap()}).type(), QDBusMessage::ReplyMessage);

    QProcess& separate = start({"--new-window", pictureFile("e.png")});
    EXPECT_FALSE(window("Lumivex::e.png").isEmpty());
    EXPECT_EQ(separate.state(), QProcess::Running);
    EXPECT_FALSE(window("Lumivex::c.png").isEmpty()) << "the other one was left alone";
}

TEST_F(OneInstanceTest, AsksBeforeChangesAreLost)
{
    start({pictureFile("a.png")});
    const QString first = window("Lumivex::a.png");
    const auto isChanged = [&] { return tool({"getwindowname", first}) != "Lumivex::a.png"; };
    ASSERT_TRUE(pressUntil(isChanged, [&] {
        press(first, "ctrl+f"); // finds a filter, which is a change
        press(first, "ctrl+a");
        tool({"type", "--window", first, "invert"});
        press(first, "Return");
    }));
    QProcess& second = start({pictureFile("b.png")});
    EXPECT_TRUE(second.waitForFinished(20'000)) << "it does not wait for the answer";
    const QString question = window("Lumivex");
    ASSERT_FALSE(question.isEmpty());
    QProcess& third = start({pictureFile("c.png")});
    EXPECT_TRUE(third.waitForFinished(20'000));
    EXPECT_FALSE(window("Lumivex::c.png").isEmpty()) << "while there is a question, in a window of its own";
    ASSERT_TRUE(pressUntil([&] { return windows("Lumivex").isEmpty(); }, [&] { press(question, "Escape"); }));
    EXPECT_TRUE(tool({"getwindowname", first}).startsWith("Lumivex::a.png"));
}

TEST_F(OneInstanceTest, IsStartedByTheBus)
{
    QFile service(environment.value("XDG_DATA_HOME") + "/dbus-1/services/" + kService + ".service");
    ASSERT_TRUE(service.open(QIODevice::WriteOnly));
    service.write("[D-BUS Service]\nName=" + kService.toUtf8() + "\nExec=" LUMIVEX_PROGRAM "\n");
    service.close();
    connection->call(QDBusMessage::createMethodCall(
        "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ReloadConfig"));
    EXPECT_EQ(call("Open", {QStringList{url(pictureFile("a.png"))}, QVariantMap()}).type(), QDBusMessage::ReplyMessage);
    EXPECT_FALSE(window("Lumivex::a.png").isEmpty());
}

TEST_F(ProgramTest, RunsWithoutABus)
{
    const QProcess& program = start({pictureFile("a.png"), pictureFile("b.png")});
    EXPECT_FALSE(window("Lumivex::a.png").isEmpty());
    EXPECT_FALSE(window("Lumivex::b.png").isEmpty()) << "by a process of its own";
    EXPECT_EQ(program.state(), QProcess::Running);
    for (const QString& id : tool({"search", "--name", "^Lumivex"}).split('\n', Qt::SkipEmptyParts))
        tool({"windowkill", id});
}

} // namespace
