// Puts metadata into picture files in memory.
#pragma once

#include "platform/imageio/PictureMetadata.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace imageio {

/// To be called before anything of Exiv2; more than once does no harm.
void prepareExiv2();

/// The file's name for Exiv2, which takes some relative ones for addresses in the network or for standard input.
std::string plainPath(const std::filesystem::path& file);

/// `encoded` (a picture file, `width` x `height` px, upright, sRGB) with these entries. `encoded` itself where the
/// format takes nothing or the entries don't fit, with a line in the log.
std::vector<std::byte> withMetadata(
    const PictureMetadata& metadata, std::vector<std::byte> encoded, int width, int height);

/// The Exif entries as a block that starts with "Exif\0\0"; empty when there are none or they don't fit.
std::vector<std::byte> exifBlock(const PictureMetadata& metadata, int width, int height);

/// What another process needs to have the same metadata.
std::string packed(const PictureMetadata& metadata);
/// Null when these bytes aren't such; `file` is where they come from.
std::shared_ptr<const PictureMetadata> unpackedMetadata(const std::filesystem::path& file, std::string_view bytes);

} // namespace imageio
