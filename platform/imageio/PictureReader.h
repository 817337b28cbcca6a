// Reads picture files.
#pragma once

#include "platform/coreimage/CIBitmap.h"
#include "platform/imageio/FileFormats.h"
#include "platform/imageio/Result.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>

struct ReadOptions {
    std::int64_t maxPixels = 500'000'000; // width times height; larger pictures are refused
    std::int64_t maxBytes = 0; // of the pixels as they are returned; 0 takes half of the computer's memory
    int maxSide = 0; // px; when set, a larger picture is reduced while it is decoded. Quick, and good for a first view
    std::chrono::seconds timeLimit{120};
    const std::atomic<bool>* cancelled = nullptr; // set from another thread to give up; the result is then a failure
    std::atomic<float>* progress = nullptr; // 0 to 1 of the pixels; stays as it is where nobody can tell
    /// When set, files that end too early are read as far as they go, where their format allows that; becomes true
    /// then. The pixels that are missing are transparent, or what the decoder puts there.
    std::atomic<bool>* isIncomplete = nullptr;
    /// Gives zeroed memory for that many bytes of pixels, and throws std::bad_alloc when it can't. The bitmap's own if
    /// empty.
    std::function<std::shared_ptr<std::byte>(std::size_t bytes)> memory{};
};

/// What the header of a picture file says.
struct PictureInfo {
    int width = 0, height = 0; // px, upright
    int bitsPerComponent = 8;
    bool isFloat = false;
    bool hasAlpha = false;
    std::string profileName; // of the embedded color profile; empty without one
    PictureFormat format = PictureFormat::Png;
};

/// Reads a picture: upright, first frame or page, row 0 on top. Content decides the format, not the name.
///
/// The result is RGBA8 for files of up to 8 bits, RGBA16 for deeper ones and RGBAf (linear sRGB, not clipped) for
/// floating-point ones. Codes are those of the file, in sRGB or in the space of its profile if that is a curve and a
/// matrix; of other profiles and color models, 16 bits in a space that holds them. Alpha is straight (in OpenEXR files
/// premultiplied, as they are stored), or opaque when no pixel is transparent. Drawings (SVG, PDF) are rendered 1024 to
/// 8192 pixels large and see no other file.
///
/// Fails with a message fit to show when the file is missing, damaged, incomplete (see `isIncomplete`), of an unknown
/// format, over `maxPixels` or too large for the memory; the header is checked before memory is taken, and the
/// technical reason is logged. Blocks while it reads; may be called from several threads at once.
Result<CIBitmap> readPicture(const std::filesystem::path& file, const ReadOptions& = {});

/// The same from bytes in memory, which must stay until the call returns.
Result<CIBitmap> readPicture(std::span<const std::byte> content, const ReadOptions& = {});

/// Size and kind of a picture without decoding it. The size is that of the picture itself also when `maxPixels`
/// is exceeded.
Result<PictureInfo> readPictureInfo(const std::filesystem::path& file);
