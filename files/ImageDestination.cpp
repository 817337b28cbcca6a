#include "files/ImageDestination.h"

#include "files/ExportFormats.h"
#include "files/PlainPicture.h"
#include "platform/coreimage/passes/Resample.h"
#include "platform/imageio/PictureWriter.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kPointsPerInch = 72;

/// In memory first: the writer does not tell when its device is full.
QByteArray pdfOf(const CIBitmap& plain)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(kPointsPerInch);
    writer.setPageSize(QPageSize(QSizeF(plain.width(), plain.height()), QPageSize::Point));
    writer.setPageMargins({});
    QPainter page(&writer);
    page.setRenderHint(QPainter::LosslessImageRendering);
    page.drawImage(QRectF(0, 0, plain.width(), plain.height()), pictureOver(plain));
    page.end();
    return buffer.data();
}

} // namespace

Result<void> writePdf(const CIBitmap& picture, const QString& path, CIRenderControl* control)
{
    const CIBitmap bitmap = picture.isNull() ? CIBitmap() : plainBitmap(picture);
    if (bitmap.isNull())
        return Failure{Reason::NothingToWrite};
    const QByteArray document = pdfOf(bitmap);
    if (control && control->isCancelled())
        return Failure{Reason::NotWritten};
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(document) == document.size() && file.commit();
    if (isWritten)
        return {};
    return Failure{
        Reason::CannotWrite, path.section(QLatin1Char('/'), -1).toStdString(), file.errorString().toStdString()};
}

QTransform imageTransformToFitViewSize(QSizeF picture, QSizeF view)
{
    const double factor = std::min(view.width() / picture.width(), view.height() / picture.height());
    return QTransform::fromScale(factor, factor);
}

CIBitmap scaleImageSize(const CIBitmap& picture, int side)
{
    if (picture.isNull() || side <= 0)
        return {};
    const QSizeF whole(picture.width(), picture.height());
    const QRectF fitting = imageTransformToFitViewSize(whole, QSizeF(side, side)).mapRect(QRectF(QPointF(), whole));
    const CIImage scaled = ci::resampled(CIImage::fromBitmap(picture), std::max(1, int(std::lround(fitting.width()))),
        std::max(1, int(std::lround(fitting.height()))));
    const CIRect extent = scaled.extent();
    const CIImage centered = scaled.transformed(
        CIAffineTransform::translation(std::floor((side - extent.width) / 2), std::floor((side - extent.height) / 2)));
    return CIContext().render(centered, {0, 0, double(side), double(side)});
}

bool export1PathTypeDpi(const CIBitmap& picture, const QString& path, const QString& typeIdentifier, float dpi)
{
    const FileFormat* format = destinationFormat(typeIdentifier);
    if (!format)
        return false;
    const CIBitmap written = format->isIcon
        ? scaleImageSize(picture, getIconSizeSize(typeIdentifier, std::min(picture.width(), picture.height())))
        : picture;
    return writePicture(
        written, QFile::encodeName(path).toStdString(), {.format = format->format, .dotsPerInch = double(dpi)})
        .isOk();
}
