// Writes icon files of the two desktops that have their own.
#pragma once

#include "platform/imageio/Vips.h"

#include <span>

namespace imageio {

/// Sides of the squares that the formats can hold, in pixels.
std::span<const int> icnsSides();
std::span<const int> icoSides();

/// One square of 8 bits a band. 0, or -1 with a pending libvips error, also for a side that the format doesn't know.
int writeIcns(VipsImage* image, VipsTarget* target);
int writeIco(VipsImage* image, VipsTarget* target);

} // namespace imageio
