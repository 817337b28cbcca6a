#include "platform/foundation/Appearance.h"

#include "platform/foundation/UserDefaults.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFontDatabase>
#include <QPointer>
#include <QStyleFactory>

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kSpace = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");

const QString kChoiceKey = QStringLiteral("Appearance");
const QString kLastSchemeKey = QStringLiteral("LastColorScheme");

// Portals answer the value wrapped once or twice.
unsigned schemeOf(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toUInt();
}

/// Desktops name a font of theirs; without one it is the generic family, whose digits and weights are anybody's guess.
void setFontWhereNoneIsChosen()
{
    const QString kOwn = QStringLiteral("Inter");
    QFont font = QApplication::font();
    if (font.family().compare(QLatin1String("Sans Serif"), Qt::CaseInsensitive) != 0 || !QFontDatabase::hasFamily(kOwn))
        return;
    font.setFamily(kOwn);
    QApplication::setFont(font);
}

} // namespace

Appearance::Appearance()
{
    const UserDefaults& defaults = UserDefaults::standardUserDefaults();
    m_choice = Choice(qBound(0, defaults.objectForKey(kChoiceKey).toInt(), 2));
    m_systemScheme = defaults.objectForKey(kLastSchemeKey).toUInt();
    m_paletteIsDark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    update();
    askPortal();
}

Appearance& Appearance::shared()
{
    static QPointer<Appearance> appearance; // goes with the application, and comes anew with the next one
    if (!appearance) {
        appearance = new Appearance;
        appearance->setParent(qApp);
    }
    return *appearance;
}

void Appearance::askPortal()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    read << kSpace << kKey;
    auto* call = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, &Appearance::portalAnswered);
}

void Appearance::portalAnswered(QDBusPendingCallWatcher* call)
{
    const QDBusPendingReply<QDBusVariant> reply = *call;
    setSystemScheme(reply.isError() ? 0 : schemeOf(QVariant::fromValue(reply.value())));
    call->deleteLater();
}

void Appearance::settingChanged(const QString& space, const QString& key, const QDBusVariant& value)
{
    if (space == kSpace && key == kKey)
        setSystemScheme(schemeOf(QVariant::fromValue(value)));
}

void Appearance::setSystemScheme(unsigned scheme)
{
    if (scheme == m_systemScheme)
        return;
    m_systemScheme = scheme;
    UserDefaults::standardUserDefaults().setObjectForKey(scheme, kLastSchemeKey);
    update();
}

void Appearance::setChoice(Choice choice)
{
    m_choice = choice;
    UserDefaults::standardUserDefaults().setObjectForKey(int(choice), kChoiceKey);
    update();
}

void Appearance::update()
{
    const bool systemIsDark = m_systemScheme == 0 ? m_paletteIsDark : m_systemScheme == 1;
    const bool dark = m_choice == Choice::System ? systemIsDark : m_choice == Choice::Dark;
    if (dark == m_dark)
        return;
    m_dark = dark;
    if (m_dressed)
        dressApplication();
    emit changed();
}

void Appearance::dressApplication()
{
    if (!m_dressed) {
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        setFontWhereNoneIsChosen();
    }
    m_dressed = true;
    QApplication::setPalette(paletteOf(look()));
    qApp->setStyleSheet(styleSheetOf(look()));
}
