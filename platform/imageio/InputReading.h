// What readers of files do, for a file whose bytes are at hand already.
#pragma once

#include "platform/imageio/PictureInput.h"
#include "platform/imageio/PictureMetadata.h"
#include "platform/imageio/PictureProperties.h"
#include "platform/imageio/PictureReader.h"

namespace imageio {

// As the public functions of these names, in this process.
Result<CIBitmap> readPicture(const Result<PictureInput>&, const ReadOptions&);
Result<PictureInfo> readPictureInfo(const Result<PictureInput>&);
Result<PictureFileProperties> readPictureProperties(const Result<PictureInput>&);
/// As PictureMetadata::ofFile.
std::shared_ptr<const PictureMetadata> readMetadata(const PictureInput&);

} // namespace imageio
