#include "app/document/RecentFiles.h"

#include "platform/foundation/UserDefaults.h"

#include <QFileInfo>

namespace {

const QString kKey = QStringLiteral("RecentFiles");

QStringList stored() { return UserDefaults::standardUserDefaults().objectForKey(kKey).toStringList(); }

} // namespace

namespace RecentFiles {

QStringList list()
{
    QStringList paths = stored();
    paths.removeIf([](const QString& path) { return !QFileInfo::exists(path); });
    return paths;
}

void remember(const QString& path)
{
    const QString full = QFileInfo(path).absoluteFilePath();
    QStringList paths = stored();
    paths.removeAll(full);
    paths.prepend(full);
    UserDefaults::standardUserDefaults().setObjectForKey(QStringList(paths.mid(0, kMost)), kKey);
}

void clear() { UserDefaults::standardUserDefaults().removeObjectForKey(kKey); }

QStringList titles(const QStringList& paths)
{
    QStringList names;
    for (const QString& path : paths)
        names << QFileInfo(path).fileName();
    QStringList shown = names;
    for (qsizetype i = 0; i < names.size(); ++i)
        if (names.count(names[i]) > 1)
            shown[i] += QStringLiteral(" (%1)").arg(QFileInfo(paths[i]).absolutePath());
    return shown;
}

} // namespace RecentFiles
