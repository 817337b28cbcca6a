#include "app/document/ReplacedFiles.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace {

constexpr int kDays = 30;

QString folderIn(const QString& home) { return home + QStringLiteral("/replaced"); }

/// Qt 6.4 takes the current folder where there can't be one.
bool hasTrash()
{
    return QDir().mkpath(
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Trash"));
}

} // namespace

std::optional<ReplacedFile> keepReplacedFile(const QString& file, const QString& home)
{
    const QString target = QFileInfo(file).canonicalFilePath(); // not a link to it
    if (QString inTrash; !target.isEmpty() && hasTrash() && QFile::moveToTrash(target, &inTrash)) {
        QFile::copy(inTrash, target); // a save that fails has replaced nothing
        return ReplacedFile{inTrash, true};
    }
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd-HHmmss-zzz "));
    const QString copy = folderIn(home) + QLatin1Char('/') + stamp + QFileInfo(file).fileName();
    if (QDir().mkpath(folderIn(home)) && QFile::copy(file, copy))
        return ReplacedFile{copy, false};
    return {};
}

void forgetReplacedFiles(const QString& home)
{
    const QDateTime oldest = QDateTime::currentDateTime().addDays(-kDays);
    const QFileInfoList files = QDir(folderIn(home)).entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo& file : files)
        if (file.lastModified() < oldest)
            QFile::remove(file.filePath());
}
