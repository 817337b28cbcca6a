#include "widgets/DropFileTypes.h"

#include "platform/imageio/FileFormats.h"

#include <QFileInfo>
#include <QMimeData>
#include <QStringList>
#include <QUrl>

namespace {

/// What the picture reader knows, as cameras and people write it.
const QStringList& imageFileTypes()
{
    static const QStringList types = [] {
        QStringList both;
        for (const FileFormat& format : fileFormats())
            if (format.isRead())
                for (const std::string_view extension : format.extensions) {
                    const QString lower = QString::fromUtf8(extension.data(), qsizetype(extension.size()));
                    both << lower << lower.toUpper();
                }
        return both;
    }();
    return types;
}

/// Old four-letter type codes, blanks and repeats included.
const QStringList& codedTypes()
{
    static const QStringList types{"tiff", "tif ", "jpeg", "jpg ", "png ", "gif ", "TIFF", "TIF ", "JPEG", "JPG ",
        "PNG ", "GIF ", "sgi ", "SGI ", "pngf", "qtif", "8BPS", "BMPf", "MooV", "PICS", "SGI ", "8BPS", "BMPf", "FPix",
        "GIFf", "JPEG", "PNGf", "PNTG", "TIFF", "TPIC", "qdgx", "qtif", "PICS", "FLC ", "SWFL", "PDF "};
    return types;
}

} // namespace

QString pictureFilePatterns() { return QStringLiteral("*.") + imageFileTypes().join(QLatin1String(" *.")); }

bool isAcceptablePictureFile(const QString& path)
{
    const QString extension = QFileInfo(path).suffix();
    if (extension.toLower() == "pdf")
        return false;
    return imageFileTypes().contains(extension) || codedTypes().contains(extension);
}

bool isAcceptableEffectPicture(const QString& path)
{
    const QString extension = QFileInfo(path).suffix().toLower();
    return extension == "pdf" || imageFileTypes().contains(extension) || codedTypes().contains(extension);
}

QString firstDroppedFile(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.isEmpty() ? QString() : urls.first().toLocalFile();
}

QString onlyDroppedFile(const QMimeData& data) { return data.urls().size() == 1 ? firstDroppedFile(data) : QString(); }
