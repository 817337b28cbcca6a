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

/// What a new file, which is upright and in sRGB, says of itself beside the entries that it is given.
struct NewFile {
    int width, height; // px
    double dotsPerInch; // 0 for none
    bool isSrgb = true;
};

/// `encoded` with these entries (null for none) instead of those that its encoder made. `encoded` itself where the
/// format takes nothing or the entries don't fit, with a line in the log.
std::vector<std::byte> withMetadata(
    const PictureMetadata* metadata, std::vector<std::byte> encoded, const NewFile& about);

/// The Exif entries as a block that starts with "Exif\0\0"; empty when there is nothing to say or they don't fit.
std::vector<std::byte> exifBlock(const PictureMetadata* metadata, const NewFile& about);

/// What another process needs to have the same metadata.
std::string packed(const PictureMetadata& metadata);
/// Null when these bytes aren't such; `file` is where they come from.
std::shared_ptr<const PictureMetadata> unpackedMetadata(const std::filesystem::path& file, std::string_view bytes);

} // namespace imageio
