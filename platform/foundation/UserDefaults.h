// What the program remembers between runs.
#pragma once

#include "platform/foundation/StoredRecords.h"

#include <QString>
#include <QVariant>

#include <memory>

class QSettings;

/// Values by name, kept in one ini file in the user's configuration folder ($XDG_CONFIG_HOME/lumivex/lumivex.ini).
/// Lists of records may be large; each has a file of its own in the data folder ($XDG_DATA_HOME/lumivex).
/// Main thread only.
class UserDefaults {
public:
    static UserDefaults& standardUserDefaults();

    /// Reads and writes `file` from now on, and lists beside it, forgetting nothing of what the former file holds.
    void setFile(const QString& file);
    QString file() const;

    /// Invalid when there is no such value.
    QVariant objectForKey(const QString& key) const;
    void setObjectForKey(const QVariant& value, const QString& key);
    void removeObjectForKey(const QString& key);

    /// The list under that key; nothing when there is none that can be read.
    std::optional<StoredRecords> recordsForKey(const QString& key) const;
    /// Bytes for a record under that key; large ones are on the disk from now on. Nothing when there is no room.
    std::optional<StoredData> storedDataForKey(const QByteArray& bytes, const QString& key) const;
    /// See StoredRecords.h for what happens to lists that several programs use, and to damaged ones.
    std::unique_ptr<StoredRecordsUse> useRecordsForKey(const QString& key) const;
    bool changeRecordsForKey(const QString& key,
        const std::function<StoredRecords(const std::optional<StoredRecords>&)>& change, StoredRecordsUse& user);
    QString setDamagedRecordsAside(const QString& key);
    /// Written at once, as a whole or not at all. False when it can't be written; then the old list stays.
    bool setRecordsForKey(const StoredRecords& records, const QString& key);

    /// Writes the file now, as a whole or not at all. False when it can't be written.
    bool synchronize();

    ~UserDefaults();

private:
    UserDefaults();

    QString recordsFile(const QString& key) const;

    std::unique_ptr<QSettings> m_settings;
    QString m_dataFolder;
};
