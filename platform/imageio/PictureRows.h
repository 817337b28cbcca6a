// A bitmap as a libvips image, converted row by row while it is read.
#pragma once

#include "platform/coreimage/CIBitmap.h"
#include "platform/imageio/Vips.h"

namespace imageio {

struct RowLayout {
    int bits = 8; // 8 or 16; 32 are linear, premultiplied floats
    bool hasAlpha = false; // straight; without it transparent pixels come out on white
    bool keepsProfile = false; // codes stay in the space of the bitmap's profile, if it has one
};

/// The bitmap in sRGB, in its own space, or as floats. It must outlive the image. Null with a pending libvips error
/// when that fails.
VipsImagePtr imageOfBitmap(const CIBitmap&, RowLayout);

} // namespace imageio
