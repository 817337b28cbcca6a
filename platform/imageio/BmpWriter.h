// Writes Windows bitmaps, which libvips leaves to others.
#pragma once

#include "platform/imageio/Vips.h"

namespace imageio {

/// `image` has 3 or 4 bands of 8 bits. With alpha the file gets the fifth header, which says that it is straight.
/// 0, or -1 with a pending libvips error.
int writeBmp(VipsImage* image, VipsTarget* target, double dotsPerInch);

} // namespace imageio
