#include "app/document/BitmapDescription.h"

void describeBitmap(const CIBitmap& bitmap, BitmapDescription& description)
{
    if (bitmap.isNull())
        return;
    constexpr int samples = 4;
    const int bits = int(bytesPerPixel(bitmap.format())) * 8;
    description = {float(bitmap.width()), float(bitmap.height()), bits, bits / samples, bitmap.bytesPerRow(),
        bitmap.row(0), &bitmap};
}
