#include "app/document/OneInstance.h"

#include "platform/foundation/Log.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QUrl>

namespace {

const QString kService = QStringLiteral("io.github.lumivex.Lumivex");
const QString kPath = QStringLiteral("/io/github/lumivex/Lumivex"); // the name with slashes, as activation has it
const QString kInterface = QStringLiteral("org.freedesktop.Application");
const QString kTokenKey = QStringLiteral("activation-token"), kStartupKey = QStringLiteral("desktop-startup-id");
constexpr int kPatience = 5000; // ms; who does not answer by then is left alone

} // namespace

OneInstance::OneInstance()
    : m_token(qgetenv("XDG_ACTIVATION_TOKEN"))
    , m_startupId(qgetenv("DESKTOP_STARTUP_ID"))
{
}

OneInstance::~OneInstance()
{
    if (!m_isOnBus)
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.unregisterService(kService);
    bus.unregisterObject(kPath);
}

OneInstance::Start OneInstance::start(const QStringList& paths)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return Start::Alone;
    // The object first: calls come as soon as the name is there.
    if (!bus.registerObject(kPath, this, QDBusConnection::ExportAllSlots))
        return Start::Alone;
    const auto reply = bus.interface()->registerService(
        kService, QDBusConnectionInterface::DontQueueService, QDBusConnectionInterface::DontAllowReplacement);
    m_isOnBus = reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
    if (m_isOnBus)
        return Start::First;
    bus.unregisterObject(kPath);
    return handOver(paths) ? Start::HandedOver : Start::Alone;
}

bool OneInstance::handOver(const QStringList& paths) const
{
    QVariantMap platformData;
    if (!m_token.isEmpty())
        platformData[kTokenKey] = QString::fromUtf8(m_token);
    if (!m_startupId.isEmpty())
        platformData[kStartupKey] = QString::fromUtf8(m_startupId);
    QStringList uris;
    for (const QString& path : paths)
        uris << QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    QDBusMessage call = QDBusMessage::createMethodCall(
        kService, kPath, kInterface, uris.isEmpty() ? QStringLiteral("Activate") : QStringLiteral("Open"));
    if (!uris.isEmpty())
        call << uris;
    call << platformData;
    const QDBusMessage answer = QDBusConnection::sessionBus().call(call, QDBus::Block, kPatience);
    if (answer.type() == QDBusMessage::ReplyMessage)
        return true;
    qCWarning(lumivexLog, "The running program does not answer: %s", qUtf8Printable(answer.errorMessage()));
    return false;
}

void OneInstance::Activate(const QVariantMap& platformData) { request({}, platformData); }

void OneInstance::Open(const QStringList& uris, const QVariantMap& platformData)
{
    QStringList paths;
    for (const QString& uri : uris) {
        const QUrl url(uri);
        if (url.isLocalFile())
            paths << url.toLocalFile();
        else
            qCWarning(lumivexLog, "%s is no file of this computer.", qUtf8Printable(uri));
    }
    request(paths, platformData);
}

void OneInstance::ActivateAction(const QString&, const QVariantList&, const QVariantMap& platformData)
{
    request({}, platformData);
}

/// The window system takes the token when the window asks to be activated.
void OneInstance::request(const QStringList& paths, const QVariantMap& platformData)
{
    QString token = platformData.value(kTokenKey).toString();
    if (token.isEmpty())
        token = platformData.value(kStartupKey).toString();
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
    // Later, for there may be a question: the caller must not wait for its answer.
    QMetaObject::invokeMethod(
        this, [this, paths] { emit requested(paths); }, Qt::QueuedConnection);
}
