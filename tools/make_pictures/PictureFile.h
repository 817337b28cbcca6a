#pragma once

#include "tools/make_pictures/Raster.h"

#include <string>

/// Bits of one stored sample.
enum class Depth { Eight, Sixteen };

/// Writes 1 (grey), 3 (sRGB) or 4 (sRGB and straight alpha) bands as a losslessly packed TIFF.
/// Throws vips::VError when the file can't be written.
void writeTiff(const Raster& picture, Depth depth, const std::string& file);

/// The same, 8 bits a sample, as PNG. Throws as above.
void writePng(const Raster& picture, const std::string& file);
