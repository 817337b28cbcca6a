#include "platform/chain/Baking.h"

#include "platform/coreimage/graph/BitmapNode.h"

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

const CIBitmap* bitmapOf(const CIImage& image)
{
    const auto* node = dynamic_cast<const ci::BitmapNode*>(image.node().get());
    return node ? &node->bitmap() : nullptr;
}

CIBitmap renderedBitmap(const CIContext& context, const CIImage& image, CIFormat format, CIRenderControl* control)
{
    if (const CIBitmap* stored = bitmapOf(image))
        return *stored;
    CIBitmap bitmap = context.render(image, image.extent(), 1, format, CIAlpha::Straight, control);
    if (!bitmap.isNull() && isOpaque(bitmap))
        bitmap.setOpaque();
    return bitmap;
}

CIImage bakedImage(const CIContext& context, const CIImage& image, CIFormat format, CIRenderControl* control)
{
    return CIImage::fromBitmap(renderedBitmap(context, image, format, control));
}

void makeReducedCopies(const CIImage& image)
{
    if (const auto* node = dynamic_cast<const ci::BitmapNode*>(image.node().get()))
        node->levels();
}
