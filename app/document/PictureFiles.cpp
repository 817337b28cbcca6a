#include "app/document/PictureFiles.h"

#include <QStringList>

QString pictureFilePatterns()
{
    static const char* const extensions[] = {
        "jpg",
        "jpeg",
        "jpe",
        "jp2",
        "j2k",
        "jpeg-2000",
        "jxl",
        "png",
        "tif",
        "tiff",
        "gif",
        "bmp",
        "webp",
        "heic",
        "heif",
        "avif",
        "svg",
        "svgz",
        "pdf",
        "exr",
        "psd",
        "ico",
        "icns",
        "sgi",
        "dng",
        "cr2",
        "cr3",
        "nef",
        "arw",
        "raf",
        "orf",
        "rw2",
        "pef",
        "srw",
    };
    QStringList patterns;
    for (const char* extension : extensions) {
        const QString lower = QLatin1String(extension);
        patterns << QStringLiteral("*.") + lower << QStringLiteral("*.") + lower.toUpper();
    }
    return patterns.join(QLatin1Char(' '));
}
