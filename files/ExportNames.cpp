#include "files/ExportNames.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

#include <algorithm>

namespace {

/// In the name, or -1. A leading dot starts a name, not an extension.
qsizetype dotOf(const QString& name)
{
    const qsizetype start = name.lastIndexOf(QLatin1Char('/')) + 1, dot = name.lastIndexOf(QLatin1Char('.'));
    return dot > start ? dot : -1;
}

/// In lower case; empty for none.
QString extensionOf(const QString& name)
{
    const qsizetype dot = dotOf(name);
    return dot < 0 ? QString() : name.mid(dot + 1).toLower();
}

bool hasExtension(const FileFormat& format, const QString& extension)
{
    return std::ranges::any_of(
        format.extensions, [&](std::string_view known) { return extension == QLatin1String(known); });
}

} // namespace

const std::vector<const FileFormat*>& exportableFormats()
{
    static const std::vector<const FileFormat*> formats = [] {
        std::vector<const FileFormat*> rows;
        for (const FileFormat& row : fileFormats())
            if (row.format == PictureFormat::Pdf || canWrite(row))
                rows.push_back(&row);
        return rows;
    }();
    return formats;
}

const FileFormat* formatOfFileName(const QString& name)
{
    const FileFormat* format = formatOfExtension(extensionOf(name).toStdString());
    return std::ranges::count(exportableFormats(), format) ? format : nullptr;
}

QString nameInFormat(const QString& name, const FileFormat& format)
{
    const QString extension = extensionOf(name);
    if (hasExtension(format, extension))
        return name;
    const bool isPicture =
        std::ranges::any_of(fileFormats(), [&](const FileFormat& other) { return hasExtension(other, extension); });
    const QString stem = isPicture ? name.left(dotOf(name)) : name; // "Mr. Miller" has no extension
    return stem + QLatin1Char('.') + QLatin1String(format.extensions.front());
}

QString exportTarget(const QString& folder, const QString& name)
{
    const auto atHome = [](const QString& path) {
        return path == QLatin1String("~") || path.startsWith(QLatin1String("~/")) ? QDir::homePath() + path.mid(1)
                                                                                  : path;
    };
    return QDir::cleanPath(QDir(atHome(folder)).absoluteFilePath(atHome(name)));
}

QString fileSizeText(qint64 bytes)
{
    const QLocale locale;
    const QString exact = QCoreApplication::translate("ExportPanel", "%1 bytes").arg(locale.toString(bytes));
    if (bytes < 1000)
        return exact;
    return QCoreApplication::translate("ExportPanel", "%1 (%2)", "rounded size, exact size")
        .arg(locale.formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat), exact);
}
