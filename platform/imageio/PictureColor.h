// Brings pictures of any color model into sRGB.
#pragma once

#include "platform/imageio/Vips.h"

#include <string>

namespace imageio {

/// The same picture with 1 or 3 color bands (grey, or red, green, blue) and an optional straight alpha band after
/// them: 8 or 16 bits coded in sRGB, or float in linear sRGB. Embedded profiles are applied. An unfit profile is
/// logged and ignored. Null with a pending libvips error when the color model can't be handled.
VipsImagePtr toWorkingColor(VipsImagePtr);

/// The description of the embedded profile; empty when there is none or it can't be read.
std::string profileName(VipsImage*);

} // namespace imageio
