// Tells formats apart by their first bytes.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace imageio {

enum class PictureKind {
    Unknown,
    Jpeg,
    Png,
    Tiff,
    Gif,
    Bmp,
    WebP,
    Heif,
    Avif,
    Jpeg2000,
    JpegXl,
    Svg,
    Pdf,
    Exr,
    Psd,
    Ico,
    Sgi,
    CameraRaw
};

/// Reads up to `size` bytes at `offset`; fewer at the end of the file.
using ReadBytes = std::function<std::vector<std::byte>(std::size_t offset, std::size_t size)>;

PictureKind kindOfContent(const ReadBytes&);

/// "JPEG", "PNG", …
const char* nameOfKind(PictureKind);

/// The entry of an icon file with the most pixels, of those the one with the most bits.
int largestIconIndex(const ReadBytes&);

} // namespace imageio
