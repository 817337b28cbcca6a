#include "app/catalogue/Thumbnail.h"

#include "platform/coreimage/CIContext.h"
#include "platform/imageio/reader_process/ReaderProcess.h"

#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr int kPixelsPerPoint = 2;
constexpr int kBytesPerPixel = 4;

/// Of a TIFF file with 8-bit red, green, blue and straight alpha in one uncompressed strip, which follows. Hundreds of
/// thumbnails are read at the program's start; a library that knows all of TIFF takes milliseconds for each.
QByteArray tiffHeader(const QSize& size)
{
    enum Type : quint16 { Short = 3, Long = 4 };
    struct Entry {
        quint16 tag;
        Type type;
        quint32 count, value;
    };
    constexpr quint32 kDirectory = 8, kEntries = 10;
    constexpr quint32 kBits = kDirectory + 2 + kEntries * 12 + 4, kPixels = kBits + 8;
    const quint32 width = quint32(size.width()), height = quint32(size.height());
    const Entry entries[kEntries] = {{256, Long, 1, width}, {257, Long, 1, height}, {258, Short, 4, kBits},
        {259, Short, 1, 1}, // not compressed
        {262, Short, 1, 2}, // RGB
        {273, Long, 1, kPixels}, {277, Short, 1, kBytesPerPixel}, {278, Long, 1, height},
        {279, Long, 1, width * height * kBytesPerPixel}, {338, Short, 1, 2}}; // straight alpha

    QByteArray header;
    QDataStream out(&header, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("II*\0", 4);
    out << kDirectory << quint16(kEntries);
    for (const Entry& entry : entries)
        out << entry.tag << quint16(entry.type) << entry.count << entry.value;
    out << quint32(0); // no further directory
    for (int i = 0; i < kBytesPerPixel; ++i)
        out << quint16(8);
    return header;
}

/// Null for any other TIFF.
QImage imageOfOwnTiff(const QByteArray& bytes)
{
    const auto number = [&](qsizetype at) { return qFromLittleEndian<quint32>(bytes.constData() + at); };
    if (bytes.size() < tiffHeader({}).size())
        return {};
    constexpr qsizetype kWidthAt = 18, kHeightAt = 30;
    constexpr quint32 kMost = 1000;
    const quint32 width = number(kWidthAt), height = number(kHeightAt);
    if (width == 0 || height == 0 || width > kMost || height > kMost)
        return {};
    const QByteArray header = tiffHeader(QSize(int(width), int(height)));
    if (!bytes.startsWith(header) || bytes.size() != header.size() + qsizetype(width) * height * kBytesPerPixel)
        return {};
    const auto* pixels = reinterpret_cast<const uchar*>(bytes.constData()) + header.size();
    const int bytesPerRow = int(width) * kBytesPerPixel;
    return QImage(pixels, int(width), int(height), bytesPerRow, QImage::Format_RGBA8888).copy();
}

QImage imageOfBitmap(const CIBitmap& bitmap)
{
    if (bitmap.isNull() || bitmap.format() != CIFormat::RGBA8)
        return {};
    const QImage::Format format = bitmap.alpha() == CIAlpha::Premultiplied ? QImage::Format_RGBA8888_Premultiplied
        : bitmap.alpha() == CIAlpha::Opaque                                ? QImage::Format_RGBX8888
                                                                           : QImage::Format_RGBA8888;
    QImage image(bitmap.width(), bitmap.height(), format);
    for (int y = 0; y < bitmap.height(); ++y)
        std::memcpy(image.scanLine(y), bitmap.row(y), std::size_t(bitmap.width()) * 4);
    return image;
}

QImage scaledTo(const QSize& size, const QImage& picture, int pixelsPerPoint)
{
    if (picture.isNull())
        return {};
    QImage small = picture.scaled(size * pixelsPerPoint, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    small.setDevicePixelRatio(pixelsPerPoint);
    return small;
}

} // namespace

QImage thumbnailOf(const CIBitmap& bitmap, const QSize& size, int pixelsPerPoint)
{
    return scaledTo(size, imageOfBitmap(bitmap), pixelsPerPoint);
}

QImage favouriteThumbnail(const QImage& picture) { return scaledTo(kFavouriteThumbnail, picture, kPixelsPerPoint); }

QImage favouriteThumbnail(const CIImage& image)
{
    const CIRect extent = image.extent();
    if (image.isNull() || extent.isEmpty() || extent.isInfinite())
        return {};
    const QSize wanted = kFavouriteThumbnail * kPixelsPerPoint;
    const double scale = std::min(1.0, std::max(wanted.width() / extent.width, wanted.height() / extent.height));
    return thumbnailOf(CIContext().render(image, extent, scale, CIFormat::RGBA8, CIAlpha::Premultiplied),
        kFavouriteThumbnail, kPixelsPerPoint);
}

QByteArray tiffOfThumbnail(const QImage& thumbnail)
{
    if (thumbnail.isNull())
        return {};
    const QImage pixels = thumbnail.convertToFormat(QImage::Format_RGBA8888);
    QByteArray tiff = tiffHeader(pixels.size());
    for (int y = 0; y < pixels.height(); ++y)
        tiff.append(reinterpret_cast<const char*>(pixels.constScanLine(y)), qsizetype(pixels.width()) * kBytesPerPixel);
    return tiff;
}

QImage thumbnailOfTiff(const QByteArray& bytes)
{
    QImage image = imageOfOwnTiff(bytes);
    if (image.isNull()) {
        ReadOptions options;
        options.maxPixels = 1'000'000;
        const std::span content(bytes.data(), std::size_t(bytes.size()));
        if (const Result<CIBitmap> read = ReaderProcess(std::as_bytes(content)).readPicture(options))
            image = imageOfBitmap(*read);
    }
    if (image.width() > 0)
        image.setDevicePixelRatio(double(image.width()) / kFavouriteThumbnail.width());
    return image;
}
