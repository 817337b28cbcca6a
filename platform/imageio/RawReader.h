// Develops camera raw files.
#pragma once

#include "platform/imageio/PictureInput.h"
#include "platform/imageio/PictureReader.h"

namespace imageio {

Result<PictureInfo> readRawInfo(const PictureInput&);

/// Demosaiced, with the white balance of the camera, 16 bits in sRGB. With `maxSide`, half the resolution
/// where that is enough; the result may still be larger than `maxSide`.
Result<CIBitmap> readRaw(const PictureInput&, const ReadOptions&);

} // namespace imageio
