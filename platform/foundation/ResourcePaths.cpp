#include "platform/foundation/ResourcePaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

QStringList chosenFolders;

QStringList usualFolders()
{
    const QDir program(QCoreApplication::applicationDirPath());
    return {QDir::cleanPath(program.filePath(QStringLiteral("../share/lumivex"))),
        QStringLiteral(LUMIVEX_SOURCE_RESOURCES)};
}

} // namespace

QStringList resourceFolders() { return chosenFolders.isEmpty() ? usualFolders() : chosenFolders; }

void setResourceFolders(const QStringList& folders) { chosenFolders = folders; }

QString pathForResource(const QString& name, const QString& type)
{
    const QString file = name + QLatin1Char('.') + type;
    const QStringList folders = resourceFolders();
    for (const QString& folder : folders)
        for (const char* place : {"", "pictures/", "icons/", "help/"}) {
            const QString path = folder + QLatin1Char('/') + QLatin1String(place) + file;
            if (QFileInfo(path).isFile())
                return path;
        }
    return {};
}
