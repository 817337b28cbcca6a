#include "controls/picture/PictureConversion.h"

#include "platform/coreimage/CIContext.h"
#include "platform/coreimage/CIFilter.h"

#include <algorithm>
#include <cmath>
#include <cstring>

CIImage imageOfPicture(const QImage& picture)
{
    const int width = int(picture.width() / picture.devicePixelRatio());
    const int height = int(picture.height() / picture.devicePixelRatio());
    if (picture.isNull() || width <= 0 || height <= 0)
        return {};
    const QImage whole = picture.width() == width && picture.height() == height
        ? picture
        : picture.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const bool opaque = picture.depth() == 24;
    const QImage source =
        whole.convertToFormat(opaque ? QImage::Format_RGBX8888 : QImage::Format_RGBA8888_Premultiplied);
    CIBitmap bitmap(width, height, CIFormat::RGBA8, opaque ? CIAlpha::Opaque : CIAlpha::Premultiplied);
    for (int y = 0; y < height; ++y)
        std::memcpy(bitmap.mutableRow(y), source.constScanLine(y), std::size_t(width) * 4);
    return CIImage::fromBitmap(bitmap);
}

QImage pictureOfImage(const CIImage& image, const CIRect& rect, double scale)
{
    const CIRect whole{std::floor(rect.x), std::floor(rect.y), std::round(rect.width), std::round(rect.height)};
    const CIBitmap bitmap = CIContext().render(image, whole, scale, CIFormat::RGBA8, CIAlpha::Premultiplied);
    if (bitmap.isNull())
        return {};
    QImage picture(bitmap.width(), bitmap.height(), QImage::Format_RGBA8888_Premultiplied);
    for (int y = 0; y < bitmap.height(); ++y)
        std::memcpy(picture.scanLine(y), bitmap.row(y), std::size_t(bitmap.width()) * 4);
    return picture;
}

QSize thumbnailSize(const CIRect& extent)
{
    if (extent.isEmpty() || extent.isInfinite())
        return {};
    const double factor = kThumbnailSide / std::max(extent.width, extent.height);
    const auto shorter = [factor](double side) { return std::max(1, int(std::lround(side * factor))); };
    return extent.width >= extent.height ? QSize(kThumbnailSide, shorter(extent.height))
                                         : QSize(shorter(extent.width), kThumbnailSide);
}

QImage thumbnailOf(const CIImage& image)
{
    const CIRect extent = image.extent();
    const QSize size = thumbnailSize(extent);
    const std::shared_ptr<CIFilter> scaler = CIFilter::filterWithName("CIAffineTransform");
    if (size.isEmpty() || !scaler)
        return {};
    const double x = size.width() / extent.width, y = size.height() / extent.height;
    scaler->setDefaults();
    // The lower left corner comes to the origin, wherever the image lies.
    scaler->setValueForKey(CIAffineTransform{x, 0, 0, y, -extent.x * x, -extent.y * y}, "inputTransform");
    scaler->setValueForKey(image, "inputImage");
    return pictureOfImage(scaler->outputImage(), {0, 0, double(size.width()), double(size.height())});
}
