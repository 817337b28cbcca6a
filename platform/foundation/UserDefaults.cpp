#include "platform/foundation/UserDefaults.h"

#include <QSettings>

UserDefaults::UserDefaults()
    : m_settings(std::make_unique<QSettings>(
        QSettings::IniFormat, QSettings::UserScope, QStringLiteral("lumivex"), QStringLiteral("lumivex")))
{
    m_settings->setFallbacksEnabled(false); // no values from files of other programs or of the system
}

UserDefaults::~UserDefaults() = default;

UserDefaults& UserDefaults::standardUserDefaults()
{
    static UserDefaults defaults;
    return defaults;
}

void UserDefaults::setFile(const QString& file)
{
    m_settings = std::make_unique<QSettings>(file, QSettings::IniFormat);
}

QString UserDefaults::file() const { return m_settings->fileName(); }

QVariant UserDefaults::objectForKey(const QString& key) const { return m_settings->value(key); }

void UserDefaults::setObjectForKey(const QVariant& value, const QString& key) { m_settings->setValue(key, value); }

void UserDefaults::removeObjectForKey(const QString& key) { m_settings->remove(key); }

bool UserDefaults::synchronize()
{
    m_settings->sync();
    return m_settings->status() == QSettings::NoError;
}
