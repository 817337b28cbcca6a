#include "tests/fuzz/Targets.h"

#include "app/document/SessionFolder.h"
#include "platform/chain/FilterSettings.h"
#include "platform/foundation/KeyedArchive.h"
#include "platform/foundation/Log.h"
#include "tests/fuzz/MemoryFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

[[maybe_unused]] const bool isQuiet = [] {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return true;
}();

QByteArray arrayOf(FuzzBytes bytes)
{
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), qsizetype(bytes.size()));
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        std::abort();
}

} // namespace

void fuzzArchive(FuzzBytes content)
{
    try {
        // What can be read can be written, and read again.
        const CIValue value = KeyedArchive::unarchivedValue(arrayOf(content));
        static_cast<void>(KeyedArchive::unarchivedValue(KeyedArchive::archivedData(value)));
    } catch (const ArchiveError&) {
    }
    const MemoryFile file(content);
    if (const auto records = readStoredRecords(QString::fromStdString(file.path().string())))
        for (const StoredRecord& record : *records) {
            const FilterSettings settings = settingsFrom(record);
            for (const auto& [key, data] : settings.unread)
                static_cast<void>(settings.valueForKey(key));
            static_cast<void>(namesOf({settings}));
        }
}

void fuzzJournal(FuzzBytes content)
{
    if (content.size() < 2)
        return;
    const std::size_t wanted = std::to_integer<std::size_t>(content[0]) | std::to_integer<std::size_t>(content[1]) << 8;
    content = content.subspan(2);
    const std::size_t length = std::min(wanted, content.size());
    const QByteArray state = arrayOf(content.first(length));
    static const QTemporaryDir home(QFile::exists(QStringLiteral("/dev/shm"))
            ? QStringLiteral("/dev/shm/lumivex-XXXXXX")
            : QStringLiteral("lumivex-XXXXXX"));
    const QString folder = home.filePath(QStringLiteral("session-fuzz"));
    QDir().mkpath(folder);
    write(folder + QStringLiteral("/state"), QCryptographicHash::hash(state, QCryptographicHash::Blake2b_256) + state);
    write(folder + QStringLiteral("/picture-0"), arrayOf(content.subspan(length)));
    for (const std::unique_ptr<SessionFolder>& session : SessionFolder::abandoned(home.path()))
        static_cast<void>(session->read());
    const QStringList left = QDir(home.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : left)
        QDir(home.filePath(name)).removeRecursively();
}
