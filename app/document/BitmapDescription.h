// What a bitmap looks like in memory.
#pragma once

#include "platform/coreimage/CIBitmap.h"

struct BitmapDescription {
    float width, height; // px
    int bitsPerPixel, bitsPerSample;
    std::size_t bytesPerRow;
    const std::byte* pixels;
    const CIBitmap* bitmap; // which the caller keeps
};

/// Leaves the description as it is for a null bitmap.
void describeBitmap(const CIBitmap& bitmap, BitmapDescription& description);
