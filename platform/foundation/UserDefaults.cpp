#include "platform/foundation/UserDefaults.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

UserDefaults::UserDefaults()
    : m_settings(std::make_unique<QSettings>(
        QSettings::IniFormat, QSettings::UserScope, QStringLiteral("lumivex"), QStringLiteral("lumivex")))
    , m_dataFolder(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/lumivex"))
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
    m_dataFolder = QFileInfo(file).absolutePath();
}

QString UserDefaults::file() const { return m_settings->fileName(); }

QVariant UserDefaults::objectForKey(const QString& key) const { return m_settings->value(key); }

void UserDefaults::setObjectForKey(const QVariant& value, const QString& key) { m_settings->setValue(key, value); }

void UserDefaults::removeObjectForKey(const QString& key) { m_settings->remove(key); }

QString UserDefaults::recordsFile(const QString& key) const
{
    return m_dataFolder + QLatin1Char('/') + key + QStringLiteral(".cbor");
}

std::optional<StoredRecords> UserDefaults::recordsForKey(const QString& key) const
{
    return readStoredRecords(recordsFile(key));
}

std::optional<StoredData> UserDefaults::storedDataForKey(const QByteArray& bytes, const QString& key) const
{
    return storedDataFor(recordsFile(key), bytes);
}

bool UserDefaults::setRecordsForKey(const StoredRecords& records, const QString& key)
{
    return writeStoredRecords(records, recordsFile(key));
}

std::unique_ptr<StoredRecordsUse> UserDefaults::useRecordsForKey(const QString& key) const
{
    return std::make_unique<StoredRecordsUse>(recordsFile(key));
}

bool UserDefaults::changeRecordsForKey(const QString& key,
    const std::function<StoredRecords(const std::optional<StoredRecords>&)>& change, StoredRecordsUse& user)
{
    return changeStoredRecords(recordsFile(key), change, user);
}

QString UserDefaults::setDamagedRecordsAside(const QString& key) { return ::setDamagedRecordsAside(recordsFile(key)); }

bool UserDefaults::synchronize()
{
    m_settings->sync();
    return m_settings->status() == QSettings::NoError;
}
