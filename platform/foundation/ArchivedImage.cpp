#include "platform/foundation/ArchivedImage.h"

#include "platform/coreimage/CIContext.h"
#include "platform/coreimage/graph/BitmapNode.h"
#include "platform/foundation/KeyedArchive.h"
#include "platform/foundation/PackedBitmap.h"

#include <QBuffer>
#include <QCborArray>

#include <cmath>
#include <cstring>

namespace {

// As plain pictures name them.
constexpr CIFormat kFormats[] = {CIFormat::RGBA8, CIFormat::BGRA8, CIFormat::RGBA16, CIFormat::RGBAf};
constexpr CIAlpha kAlphas[] = {CIAlpha::Opaque, CIAlpha::Straight, CIAlpha::Premultiplied};
constexpr CIColorSpace kSpaces[] = {CIColorSpace::SRGB, CIColorSpace::LinearSRGB};

constexpr qint64 kMostBytes = 1'000'000'000; // what one array of bytes holds
constexpr double kFarthest = 1e9; // px from the origin
constexpr int kBand = 64; // rows compared at a time

template <class T, std::size_t count>
T valueAt(const T (&values)[count], const QCborValue& index)
{
    const qint64 i = index.toInteger(-1);
    if (i < 0 || i >= qint64(count))
        throw ArchiveError("A picture is stored in an unknown way.");
    return values[i];
}

CIBitmap floatRows(const CIImage& image, int width, int bottom, int height)
{
    CIBitmap rows(width, height, CIFormat::RGBAf, CIAlpha::Premultiplied, CIColorSpace::LinearSRGB);
    CIContext().renderInto(rows, 0, bottom + height, image);
    return rows;
}

/// Whether a bitmap of codes stands for the very same light as the image.
bool isSame(const CIBitmap& bitmap, const CIImage& image)
{
    const CIImage copy = CIImage::fromBitmap(bitmap);
    for (int bottom = 0; bottom < bitmap.height(); bottom += kBand) {
        const int height = std::min(kBand, bitmap.height() - bottom);
        const CIBitmap a = floatRows(copy, bitmap.width(), bottom, height);
        const CIBitmap b = floatRows(image, bitmap.width(), bottom, height);
        for (int y = 0; y < height; ++y)
            if (std::memcmp(a.row(y), b.row(y), std::size_t(bitmap.width()) * bytesPerPixel(CIFormat::RGBAf)) != 0)
                return false;
    }
    return true;
}

/// The pixels of an image that starts at the origin, in the first format that holds them.
CIBitmap pixelsOf(const CIImage& image, int width, int height)
{
    const CIContext context;
    for (CIFormat format : {CIFormat::RGBA8, CIFormat::RGBA16}) {
        CIBitmap bitmap(width, height, format, CIAlpha::Straight);
        context.renderInto(bitmap, 0, height, image);
        if (isSame(bitmap, image))
            return bitmap;
    }
    return floatRows(image, width, 0, height);
}

QByteArray packed(const CIBitmap& bitmap)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!packBitmap(bitmap, buffer) || buffer.size() > kMostBytes)
        throw ArchiveError("The picture is too large to be kept.");
    return buffer.data();
}

CIBitmap unpacked(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return unpackBitmap(buffer, kMostBytes / 4);
}

/// As former versions stored pictures.
CIBitmap plainBitmap(const QCborMap& map)
{
    const qint64 width = map[QLatin1String("width")].toInteger(), height = map[QLatin1String("height")].toInteger();
    const CIFormat format = valueAt(kFormats, map[QLatin1String("format")]);
    const CIAlpha alpha = valueAt(kAlphas, map[QLatin1String("alpha")]);
    const CIColorSpace space = valueAt(kSpaces, map[QLatin1String("space")]);
    const QByteArray bytes = map[QLatin1String("pixels")].toByteArray();
    if (width <= 0 || height <= 0 || width > kMostBytes || height > kMostBytes / width)
        throw ArchiveError("A picture has no size.");
    const qint64 rowSize = width * qint64(bytesPerPixel(format));
    if (rowSize * height != bytes.size())
        throw ArchiveError("A picture has too few or too many pixels.");
    CIBitmap bitmap(int(width), int(height), format, alpha, space);
    for (int y = 0; y < bitmap.height(); ++y)
        std::memcpy(bitmap.mutableRow(y), bytes.constData() + y * rowSize, std::size_t(rowSize));
    return bitmap;
}

} // namespace

QCborMap archivedImage(const CIImage& image)
{
    const CIRect extent = image.extent();
    if (extent.isInfinite() || extent.isEmpty())
        throw ArchiveError("An image without an end can't be kept.");
    const CIRect whole = extent.roundedOut();
    if (whole.width * whole.height * 4 > double(kMostBytes))
        throw ArchiveError("The picture is too large to be kept.");
    CIBitmap bitmap;
    try {
        const auto* node = dynamic_cast<const ci::BitmapNode*>(image.node().get());
        bitmap = node ? node->bitmap()
                      : pixelsOf(image.transformed(CIAffineTransform::translation(-whole.x, -whole.y)),
                          int(whole.width), int(whole.height));
    } catch (const std::bad_alloc&) {
        throw ArchiveError("There is no memory for a picture.");
    }
    return QCborMap{{QLatin1String("extent"), QCborArray{extent.x, extent.y, extent.width, extent.height}},
        {QLatin1String("packed"), packed(bitmap)}};
}

CIImage unarchivedImage(const QCborMap& map)
{
    const QCborValue bytes = map[QLatin1String("packed")];
    const CIBitmap bitmap = bytes.isByteArray() ? unpacked(bytes.toByteArray()) : plainBitmap(map);
    if (bitmap.isNull())
        throw ArchiveError("A picture is damaged.");
    CIImage image = CIImage::fromBitmap(bitmap);

    const QCborArray stored = map[QLatin1String("extent")].toArray();
    const CIRect extent{stored[0].toDouble(), stored[1].toDouble(), stored[2].toDouble(), stored[3].toDouble()};
    const CIRect whole = extent.roundedOut();
    const bool isNear = std::abs(whole.x) < kFarthest && std::abs(whole.y) < kFarthest; // not-a-number is never near
    if (extent.isInfinite() || whole.width != bitmap.width() || whole.height != bitmap.height() || !isNear)
        throw ArchiveError("A picture has no place.");
    if (whole.x != 0 || whole.y != 0)
        image = image.transformed(CIAffineTransform::translation(whole.x, whole.y));
    return extent == whole ? image : image.cropped(extent);
}
