// Brings pictures of any color model into a space that bitmaps have.
#pragma once

#include "platform/coreimage/CIBitmap.h"
#include "platform/imageio/Vips.h"

#include <string>

namespace imageio {

/// A picture with 1 or 3 color bands (grey, or red, green, blue) and an optional straight alpha band after them.
struct WorkingColor {
    VipsImagePtr image; // 8 or 16 bits, or float in linear sRGB; null with a pending libvips error when that fails
    CIColorSpace space; // of the codes; of no meaning for floats
};

/// Codes stay as they are when their embedded profile is a curve and a matrix. Pictures with other profiles, and of
/// other color models, become 16 bits deep in the smallest space that holds what they can show. An unfit profile is
/// logged and ignored.
WorkingColor toWorkingColor(VipsImagePtr);

/// The description of the embedded profile; empty when there is none or it can't be read.
std::string profileName(VipsImage*);

} // namespace imageio
