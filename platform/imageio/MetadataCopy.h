// What a picture file says about itself, carried over to another one.
#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

namespace imageio {

/// To be called before anything of Exiv2; more than once does no harm.
void prepareExiv2();

/// `encoded` (a picture file in memory, `width` x `height` px, upright, sRGB) with the Exif, IPTC and XMP entries of
/// `source`. Entries that describe the pixels or the layout of the old file are left out: size, orientation, color
/// space, preview pictures. `encoded` itself where the source has nothing, the format takes nothing, or the entries are
/// damaged, with a line in the log.
std::vector<std::byte> withMetadataOf(
    const std::filesystem::path& source, std::vector<std::byte> encoded, int width, int height);

} // namespace imageio
