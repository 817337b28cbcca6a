#include "widgets/DropFileTypes.h"

#include <QFileInfo>
#include <QMimeData>
#include <QStringList>
#include <QUrl>

namespace {

/// What the picture reader knows, as cameras and people write it.
const QStringList& imageFileTypes()
{
    static const QStringList types = [] {
        QStringList both = QStringLiteral("jpg jpeg jpe jfif jp2 j2k jpx jpf jxl tif tiff png apng gif webp heic heif "
                                          "hif avif bmp dib ico icns svg svgz exr hdr psd psb tga pbm pgm ppm pnm pfm "
                                          "dng cr2 cr3 crw nef nrw arw srf sr2 raf orf rw2 pef srw raw rwl 3fr erf "
                                          "kdc mos mrw x3f iiq")
                               .split(u' ');
        for (const QString& type : QStringList(both))
            both.append(type.toUpper());
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
