// The finished picture.
#include "app/Controller.h"
#include "platform/chain/Baking.h"

CIBitmap Controller::createObjectImage()
{
    const LaterPicture picture = laterEffectedImage();
    return picture ? renderedBitmap(*m_document.context(), picture(nullptr), m_document.format()) : CIBitmap();
}

CIBitmap Controller::getCGImage() { return renderedBitmap(*m_document.context(), getImage(true), CIFormat::RGBA8); }

void Controller::getBitmapBmpBitmap(const CIBitmap& bitmap, BitmapDescription& description)
{
    if (bitmap.isNull())
        return;
    constexpr int samples = 4;
    description.width = float(bitmap.width());
    description.height = float(bitmap.height());
    description.bitsPerPixel = int(bytesPerPixel(bitmap.format())) * 8;
    description.bitsPerSample = description.bitsPerPixel / samples;
    description.bytesPerRow = bitmap.bytesPerRow();
    description.pixels = bitmap.row(0);
    description.bitmap = &bitmap;
}
