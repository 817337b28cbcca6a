// Lists of records on disk, however large what they hold.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <map>
#include <optional>
#include <vector>

/// Bytes of a record. Large ones stay in a file of their own until somebody asks for them.
class StoredData {
public:
    StoredData() = default;
    StoredData(QByteArray bytes)
        : m_bytes(std::move(bytes))
    {
    }
    static StoredData inFile(const QString& path);

    /// Reads the file if they lie in one; empty when it is gone.
    QByteArray bytes() const;
    bool isInFile() const { return !m_file.isEmpty(); }
    const QString& file() const { return m_file; }

private:
    QByteArray m_bytes;
    QString m_file;
};

using StoredRecord = std::map<QString, StoredData>;
using StoredRecords = std::vector<StoredRecord>;

/// Bytes for the list in `file`: large ones are written at once, so that they need no memory until then. Nothing when
/// that fails.
std::optional<StoredData> storedDataFor(const QString& file, const QByteArray& bytes);

/// Says that large values of the list in `file` may still be wanted: none is removed while others say so. For whoever
/// keeps records in memory.
class StoredRecordsUse {
public:
    explicit StoredRecordsUse(const QString& file);
    ~StoredRecordsUse();
    StoredRecordsUse(const StoredRecordsUse&) = delete;
    StoredRecordsUse& operator=(const StoredRecordsUse&) = delete;

    /// Runs `action` if nobody else uses the list.
    void ifAlone(const std::function<void()>& action);

private:
    int m_descriptor;
};

/// Nothing when there is no such file, or when it doesn't hold a list. Damaged entries are left out, with a line in the
/// log.
std::optional<StoredRecords> readStoredRecords(const QString& file);

/// Replaces the list in `file` as a whole, or, when that fails (no room, no permission), not at all: whoever is
/// interrupted leaves the old list. Large values go into a folder beside it, each under the hash of what it holds, so
/// that equal ones are stored once and those that were there already aren't written again. What the new list doesn't
/// name is removed unless others than `user`, null for nobody, use it.
bool writeStoredRecords(const StoredRecords& records, const QString& file, StoredRecordsUse* user = nullptr);

/// Replaces the list by what `change` makes of the present one, which is nothing when there is none or it is damaged.
/// Other programs that do the same wait. False as above, or when one of them doesn't end.
bool changeStoredRecords(const QString& file,
    const std::function<StoredRecords(const std::optional<StoredRecords>&)>& change, StoredRecordsUse& user);

/// A file that doesn't hold a list gets, with its large values, the name that is answered. Empty when all is well, or
/// when there is no file.
QString setDamagedRecordsAside(const QString& file);
