// Writes picture files.
#pragma once

#include "platform/coreimage/CIBitmap.h"
#include "platform/coreimage/CIContext.h"
#include "platform/imageio/FileFormats.h"
#include "platform/imageio/PictureMetadata.h"
#include "platform/imageio/Result.h"

#include <filesystem>
#include <memory>
#include <span>
#include <vector>

struct WriteOptions {
    PictureFormat format = PictureFormat::Png;
    // The next five are heeded by the formats whose row says so.
    double quality = 0.9; // 0 to 1, for formats that lose detail
    bool hasFullChroma = false; // colors are as sharp as brightness, whatever the quality
    bool isProgressive = false; // is seen as a whole before it is loaded
    bool isLossless = false;
    int compression = 0; // an index of the row's compressions
    double dotsPerInch = 0; // stored in the file; 0 stores none
    int bitsPerComponent = 0; // 8 or 16; 0 takes what the bitmap has. Formats that know only fewer bits use those
    /// Goes into the file where its format has room; what can't be stored is left out and logged. Null for none.
    std::shared_ptr<const PictureMetadata> metadata = nullptr;
    CIRenderControl* control = nullptr; // is told how far it is; once cancelled, nothing is written
};

/// Writes the bitmap with straight alpha, in its own space where the format has profiles, else in sRGB; formats without
/// alpha get the picture on white. Opaque bitmaps are stored without alpha.
///
/// The file appears under its name only when it is complete and on the disk: it is written beside `file` and then
/// renamed, so that an older file of that name survives every failure. A symbolic link is followed, permissions
/// are kept. Fails with a message fit to show, also when cancelled.
Result<void> writePicture(const CIBitmap&, const std::filesystem::path& file, const WriteOptions& = {});

Result<void> writePng(const CIBitmap&, const std::filesystem::path& file);

/// The bytes of such a file.
Result<std::vector<std::byte>> encodePicture(const CIBitmap&, const WriteOptions& = {});

/// Makes a file of finished bytes in the same way.
Result<void> writeBytes(std::span<const std::byte>, const std::filesystem::path& file);
