#include "app/Baking.h"

#include <algorithm>

namespace {

template <class T>
bool isOpaque(const CIBitmap& bitmap, T full)
{
    for (int y = 0; y < bitmap.height(); ++y) {
        const std::span<const T> row = bitmap.row<T>(y);
        for (std::size_t i = 3; i < row.size(); i += 4)
            if (row[i] < full)
                return false;
    }
    return true;
}

bool isOpaque(const CIBitmap& bitmap)
{
    switch (bitmap.format()) {
    case CIFormat::RGBA16:
        return isOpaque<std::uint16_t>(bitmap, 65535);
    case CIFormat::RGBAf:
        return isOpaque<float>(bitmap, 1);
    default:
        return isOpaque<std::uint8_t>(bitmap, 255);
    }
}

} // namespace

CIImage bakedImage(const CIContext& context, const CIImage& image, CIFormat format)
{
    CIBitmap bitmap = context.render(image, image.extent(), 1, format, CIAlpha::Straight);
    if (bitmap.isNull())
        return {};
    if (isOpaque(bitmap))
        bitmap.setOpaque();
    return CIImage::fromBitmap(bitmap);
}
