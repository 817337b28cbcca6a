#include "files/ImageDestination.h"

#include "files/ExportFormats.h"
#include "files/PlainPicture.h"
#include "platform/coreimage/passes/Resample.h"
#include "platform/imageio/PictureWriter.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>
#include <span>

namespace {

constexpr int kPointsPerInch = 72;

/// In memory first: the writer does not tell when its device is full.
QByteArray pdfOf(const CIBitmap& plain)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(kPointsPerInch);
    writer.setPageSize(QPageSize(QSizeF(plain.width(), plain.height()), QPageSize::Point, {},
        QPageSize::ExactMatch)); // no paper of nearly that size
    writer.setPageMargins({});
    QPainter page(&writer);
    page.setRenderHint(QPainter::LosslessImageRendering);
    page.drawImage(QRectF(0, 0, plain.width(), plain.height()), pictureOver(plain));
    page.end();
    return buffer.data();
}

} // namespace

Result<std::vector<std::byte>> encodePdf(const CIBitmap& picture)
{
    const CIBitmap bitmap = picture.isNull() ? CIBitmap() : plainBitmap(picture);
    if (bitmap.isNull())
        return Failure{Reason::NothingToWrite};
    const QByteArray document = pdfOf(bitmap);
    const auto bytes = std::as_bytes(std::span(document.constData(), std::size_t(document.size())));
    return std::vector<std::byte>(bytes.begin(), bytes.end());
}

Result<void> writePdf(const CIBitmap& picture, const QString& path, CIRenderControl* control)
{
    const Result<std::vector<std::byte>> document = encodePdf(picture);
    if (!document)
        return document.failure();
    if (control && control->isCancelled())
        return Failure{Reason::NotWritten};
    return writeBytes(*document, QFile::encodeName(path).toStdString());
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
