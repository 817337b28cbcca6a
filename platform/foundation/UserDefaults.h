// What the program remembers between runs.
#pragma once

#include <QString>
#include <QVariant>

#include <memory>

class QSettings;

/// Values by name, kept in one ini file in the user's configuration folder ($XDG_CONFIG_HOME/lumivex/lumivex.ini).
/// Main thread only.
class UserDefaults {
public:
    static UserDefaults& standardUserDefaults();

    /// Reads and writes `file` from now on, forgetting nothing of what the former file holds.
    void setFile(const QString& file);
    QString file() const;

    /// Invalid when there is no such value.
    QVariant objectForKey(const QString& key) const;
    QString stringForKey(const QString& key) const { return objectForKey(key).toString(); }
    void setObjectForKey(const QVariant& value, const QString& key);
    void removeObjectForKey(const QString& key);

    /// Writes the file now, as a whole or not at all. False when it can't be written.
    bool synchronize();

    ~UserDefaults();

private:
    UserDefaults();

    std::unique_ptr<QSettings> m_settings;
};
