#include "files/ExportFormats.h"

#include <algorithm>

namespace {

/// Without its extension. A leading dot starts a name, not an extension.
QString withoutExtension(const QString& path)
{
    const qsizetype name = path.lastIndexOf(QLatin1Char('/')) + 1;
    const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
    return dot > name ? path.left(dot) : path;
}

} // namespace

const std::vector<const FileFormat*>& exportFormats()
{
    static const std::vector<const FileFormat*> offered = [] {
        std::vector<const FileFormat*> rows;
        for (const FileFormat& row : fileFormats())
            if (row.exportName)
                rows.push_back(&row);
        return rows;
    }();
    return offered;
}

int getRealExportIndex(const QString& name)
{
    const auto& formats = exportFormats();
    const auto found =
        std::ranges::find_if(formats, [&](const FileFormat* row) { return name == QLatin1String(row->exportName); });
    return found == formats.end() ? -1 : int(found - formats.begin());
}

PictureFormat bitmapFormatForType(const QString& typeIdentifier)
{
    const FileFormat* format = destinationFormat(typeIdentifier);
    return format && format->exportName && !format->isIcon ? format->format : PictureFormat::Tiff;
}

int exportIndexForExtension(QString extension)
{
    constexpr int codeLength = 4;
    extension = extension.leftJustified(codeLength, QLatin1Char(' ')).toUpper();
    return getRealExportIndex(extension); // the names are in upper case
}

QString exportPath(const QString& chosenPath, const QString& formatName)
{
    const QString stem = withoutExtension(chosenPath);
    if (formatName == QLatin1String("EPS ")) // an older table had this name
        return stem + QStringLiteral(".eps");
    if (formatName == QLatin1String("PDF ") || formatName == QLatin1String("PDF"))
        return stem + QStringLiteral(".pdf");
    return (stem + QLatin1Char('.') + formatName).toLower().trimmed();
}

int getIconSizeSize(const QString& typeIdentifier, int available)
{
    if (typeIdentifier == QLatin1String(fileFormat(PictureFormat::Icns).typeIdentifier)) {
        if (available >= 1024)
            return 1024;
        if (available >= 512)
            return 512;
    }
    if (available > 255)
        return 256;
    if (available >= 128)
        return 128;
    return available >= 48 ? 48 : 16;
}

const FileFormat* destinationFormat(const QString& typeIdentifier)
{
    const FileFormat* format = formatOfType(typeIdentifier.toStdString());
    return format && format->encode ? format : nullptr;
}
