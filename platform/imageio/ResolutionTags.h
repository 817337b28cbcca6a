// The resolution that encoders store although none was asked for, or elsewhere than it is looked for.
#pragma once

#include "platform/imageio/FileFormats.h"

#include <cstddef>
#include <span>
#include <vector>

namespace imageio {

/// Has a finished JPEG, PNG or TIFF file tell this one, or none for 0. Others stay as they are.
void storeResolution(PictureFormat format, double dotsPerInch, std::vector<std::byte>& file);

/// Takes it out of a TIFF file, in place.
void dropTiffResolution(std::span<std::byte> file);

} // namespace imageio
