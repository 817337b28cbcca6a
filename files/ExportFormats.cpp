#include "files/ExportFormats.h"

namespace {

const QLatin1String kAppleIcons("com.apple.icns");
const QLatin1String kWindowsIcons("com.microsoft.ico");

/// Without its extension. A leading dot starts a name, not an extension.
QString withoutExtension(const QString& path)
{
    const qsizetype name = path.lastIndexOf(QLatin1Char('/')) + 1;
    const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
    return dot > name ? path.left(dot) : path;
}

} // namespace

int getRealExportIndex(const QString& name)
{
    for (std::size_t i = 0; i < kExportFormats.size(); ++i)
        if (name == QLatin1String(kExportFormats[i].name))
            return int(i);
    return -1;
}

PictureFormat bitmapFormatForType(const QString& typeIdentifier)
{
    const std::optional<PictureFormat> format = destinationFormat(typeIdentifier);
    return format && !isIconType(typeIdentifier) && *format != PictureFormat::WebP ? *format : PictureFormat::Tiff;
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
    if (typeIdentifier == kAppleIcons) {
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

std::optional<PictureFormat> destinationFormat(const QString& typeIdentifier)
{
    static const std::pair<QLatin1String, PictureFormat> formats[] = {
        {QLatin1String("public.jpeg"), PictureFormat::Jpeg},
        {QLatin1String("public.jpeg-2000"), PictureFormat::Jpeg2000},
        {QLatin1String("public.tiff"), PictureFormat::Tiff},
        {QLatin1String("com.compuserve.gif"), PictureFormat::Gif},
        {QLatin1String("public.png"), PictureFormat::Png},
        {QLatin1String("com.microsoft.bmp"), PictureFormat::Bmp},
        {QLatin1String("org.webmproject.webp"), PictureFormat::WebP},
        {kAppleIcons, PictureFormat::Icns},
        {kWindowsIcons, PictureFormat::Ico},
    };
    for (const auto& [type, format] : formats)
        if (typeIdentifier == type)
            return format;
    return std::nullopt;
}

bool isIconType(const QString& typeIdentifier)
{
    return typeIdentifier == kAppleIcons || typeIdentifier == kWindowsIcons;
}
