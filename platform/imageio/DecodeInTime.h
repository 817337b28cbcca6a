// Decoding that may never come to an end.
#pragma once

#include "platform/imageio/PictureInput.h"
#include "platform/imageio/PictureReader.h"

namespace imageio {

/// Runs `decode` on a thread of its own, for as long as the options allow, and at most half a minute. The libraries
/// that render drawings can't be stopped within a strip, and a few lines of a drawing can ask for endless work: such a
/// thread is left to itself, and holds back neither the caller nor the end of the program.
Result<CIBitmap> decodeInTime(const PictureInput& input, const ReadOptions& options,
    Result<CIBitmap> (*decode)(const PictureInput&, const ReadOptions&));

} // namespace imageio
