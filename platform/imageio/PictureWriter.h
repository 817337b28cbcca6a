// Writes picture files.
#pragma once

#include "platform/coreimage/CIBitmap.h"
#include "platform/coreimage/CIContext.h"
#include "platform/imageio/FileFormats.h"
#include "platform/imageio/PictureMetadata.h"
#include "platform/imageio/Result.h"

#include <filesystem>
#include <memory>
#include <vector>

struct WriteOptions {
    PictureFormat format = PictureFormat::Png;
    double quality = 0.9; // 0 to 1, for formats that lose detail
    double dotsPerInch = 0; // stored in the file; 0 stores none
    int bitsPerComponent = 0; // 8 or 16; 0 takes what the bitmap has. Formats that know only 8 bits use 8
    /// Goes into the file where its format has room; what can't be stored is left out and logged. Null for none.
    std::shared_ptr<const PictureMetadata> metadata = nullptr;
    CIRenderControl* control = nullptr; // is told how far it is; once cancelled, nothing is written
};

/// Writes the bitmap in sRGB with straight alpha; formats without alpha get the picture on white. Opaque bitmaps
/// are stored without alpha.
///
/// The file appears under its name only when it is complete and on the disk: it is written beside `file` and then
/// renamed, so that an older file of that name survives every failure. A symbolic link is followed, permissions
/// are kept. Fails with a message fit to show, also when cancelled.
Result<void> writePicture(const CIBitmap&, const std::filesystem::path& file, const WriteOptions& = {});

Result<void> writePng(const CIBitmap&, const std::filesystem::path& file);

/// The bytes of such a file.
Result<std::vector<std::byte>> encodePicture(const CIBitmap&, const WriteOptions& = {});
