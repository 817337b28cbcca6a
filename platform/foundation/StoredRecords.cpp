#include "platform/foundation/StoredRecords.h"

#include <QCborArray>
#include <QCborMap>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QSet>

#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

constexpr int kPatience = 5000; // ms; a list is written in a fraction of that
constexpr qsizetype kLarge = 64 * 1024; // bytes; what is larger gets a file of its own

QString folderOf(const QString& file)
{
    const QFileInfo info(file);
    return info.absolutePath() + QLatin1Char('/') + info.completeBaseName() + QLatin1String(".data");
}

/// New names in a folder are on the disk only after this.
void syncFolder(const QString& folder)
{
    const int descriptor = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    fsync(descriptor);
    close(descriptor);
}

bool writeWhole(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

/// Writes large bytes unless they are there already. Answers the name in the folder, empty when it fails.
QString writeLarge(const QByteArray& bytes, const QString& folder)
{
    const QString name = QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Blake2b_160).toHex());
    const QFileInfo present(folder, name);
    if (present.isFile() && present.size() == bytes.size())
        return name;
    return QDir().mkpath(folder) && writeWhole(present.filePath(), bytes) ? name : QString();
}

/// Small bytes as such, large ones as their file's name; undefined when they can't be written.
QCborValue encoded(const StoredData& data, const QString& folder)
{
    if (data.isInFile() && QFileInfo(data.file()).absolutePath() == folder)
        return QFileInfo(data.file()).fileName();
    const QByteArray bytes = data.bytes();
    if (bytes.size() <= kLarge)
        return bytes;
    const QString name = writeLarge(bytes, folder);
    return name.isEmpty() ? QCborValue() : QCborValue(name);
}

bool isPlainName(const QString& name) { return !name.isEmpty() && QFileInfo(name).fileName() == name; }

std::optional<StoredData> decoded(const QCborValue& value, const QString& folder)
{
    if (value.isByteArray())
        return StoredData(value.toByteArray());
    if (value.isString() && isPlainName(value.toString()))
        return StoredData::inFile(folder + QLatin1Char('/') + value.toString());
    return {};
}

void removeAllBut(const QSet<QString>& names, const QString& folder)
{
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo& file : files)
        if (!names.contains(file.fileName()))
            QFile::remove(file.filePath());
}

} // namespace

StoredData StoredData::inFile(const QString& path)
{
    StoredData data;
    data.m_file = path;
    return data;
}

QByteArray StoredData::bytes() const
{
    if (!isInFile())
        return m_bytes;
    QFile file(m_file);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::optional<StoredData> storedDataFor(const QString& path, const QByteArray& bytes)
{
    return decoded(encoded(bytes, folderOf(path)), folderOf(path));
}

std::optional<StoredRecords> readStoredRecords(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QCborParserError error;
    const QCborValue list = QCborValue::fromCbor(file.readAll(), &error);
    if (error.error != QCborError::NoError || !list.isArray()) {
        qWarning("%s holds no list: %s", qUtf8Printable(path), qUtf8Printable(error.errorString()));
        return {};
    }
    const QString folder = folderOf(path);
    StoredRecords records;
    const QCborArray array = list.toArray();
    for (const QCborValue& stored : array) {
        StoredRecord& record = records.emplace_back();
        const QCborMap map = stored.toMap();
        for (const auto& [key, value] : map)
            if (const std::optional<StoredData> data = decoded(value, folder))
                record[key.toString()] = *data;
            else
                qWarning("%s: no data under %s", qUtf8Printable(path), qUtf8Printable(key.toString()));
    }
    return records;
}

bool writeStoredRecords(const StoredRecords& records, const QString& path, StoredRecordsUse* user)
{
    const QString folder = folderOf(path);
    QSet<QString> files;
    QCborArray list;
    for (const StoredRecord& record : records) {
        QCborMap map;
        for (const auto& [key, data] : record) {
            const QCborValue value = encoded(data, folder);
            if (value.isUndefined())
                return false;
            if (value.isString())
                files.insert(value.toString());
            map.insert(key, value);
        }
        list.append(map);
    }
    // What the list names must be there before the list is.
    if (!files.isEmpty())
        syncFolder(folder);
    if (!QDir().mkpath(QFileInfo(path).absolutePath()) || !writeWhole(path, QCborValue(list).toCbor()))
        return false;
    syncFolder(QFileInfo(path).absolutePath());
    const auto clear = [&] { removeAllBut(files, folder); };
    if (user)
        user->ifAlone(clear);
    else
        StoredRecordsUse(path).ifAlone(clear);
    return true;
}

bool changeStoredRecords(const QString& path,
    const std::function<StoredRecords(const std::optional<StoredRecords>&)>& change, StoredRecordsUse& user)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QLockFile lock(path + QLatin1String(".lock"));
    return lock.tryLock(kPatience) && writeStoredRecords(change(readStoredRecords(path)), path, &user);
}

QString setDamagedRecordsAside(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || readStoredRecords(path))
        return {};
    const QFileInfo info(path);
    const QString aside =
        QStringLiteral("%1/%2-damaged-%3.%4")
            .arg(info.absolutePath(), info.completeBaseName(),
                QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmsszzz")), info.suffix());
    if (!file.rename(aside))
        return {};
    QDir().rename(folderOf(path), folderOf(aside));
    return aside;
}

// --- who uses a list ---

StoredRecordsUse::StoredRecordsUse(const QString& file)
{
    QDir().mkpath(QFileInfo(file).absolutePath());
    m_descriptor =
        ::open(QFile::encodeName(file + QLatin1String(".users")).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (m_descriptor >= 0)
        ::flock(m_descriptor, LOCK_SH | LOCK_NB);
}

StoredRecordsUse::~StoredRecordsUse()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

void StoredRecordsUse::ifAlone(const std::function<void()>& action)
{
    if (m_descriptor < 0)
        return;
    if (::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0)
        action();
    ::flock(m_descriptor, LOCK_SH | LOCK_NB);
}
