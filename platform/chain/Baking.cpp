#include "platform/chain/Baking.h"

#include "platform/coreimage/CIColorProfile.h"
#include "platform/coreimage/graph/BitmapNode.h"

#include <algorithm>
#include <new>

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

CIBitmap rendered(const CIContext& context, const CIImage& image, const StoredForm& form, CIRenderControl* control)
{
    if (!profiledSpace(form.space))
        return context.render(image, image.extent(), 1, form.format, CIAlpha::Straight, control);
    if (image.isNull() || image.extent().isEmpty() || image.extent().isInfinite())
        return {};
    const CIRect area = image.extent().roundedOut();
    constexpr double kMostPixels = 4e9;
    if (area.width * area.height > kMostPixels)
        return {};
    try {
        CIBitmap bitmap(int(area.width), int(area.height), form.format, CIAlpha::Straight, form.space);
        const bool isDone = context.renderInto(bitmap, int(area.x), int(area.y + area.height), image, 1, control);
        return isDone ? bitmap : CIBitmap();
    } catch (const std::bad_alloc&) {
        return {};
    }
}

} // namespace

StoredForm storedLike(const CIBitmap& picture)
{
    return {picture.format(), profiledSpace(picture.colorSpace()) ? picture.colorSpace() : CIColorSpace::SRGB};
}

StoredForm storedLike(const CIImage& picture, CIFormat format)
{
    const CIBitmap* const bitmap = bitmapOf(picture);
    return {format, bitmap ? storedLike(*bitmap).space : CIColorSpace::SRGB};
}

const CIBitmap* bitmapOf(const CIImage& image)
{
    const auto* node = dynamic_cast<const ci::BitmapNode*>(image.node().get());
    return node ? &node->bitmap() : nullptr;
}

CIBitmap renderedBitmap(
    const CIContext& context, const CIImage& image, const StoredForm& form, CIRenderControl* control)
{
    if (const CIBitmap* stored = bitmapOf(image))
        return *stored;
    CIBitmap bitmap = rendered(context, image, form, control);
    if (!bitmap.isNull() && isOpaque(bitmap))
        bitmap.setOpaque();
    return bitmap;
}

CIImage bakedImage(const CIContext& context, const CIImage& image, const StoredForm& form, CIRenderControl* control)
{
    return CIImage::fromBitmap(renderedBitmap(context, image, form, control));
}

void makeReducedCopies(const CIImage& image)
{
    if (const auto* node = dynamic_cast<const ci::BitmapNode*>(image.node().get()))
        node->levels();
}
