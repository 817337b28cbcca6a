// What a picture file says about itself.
#pragma once

#include "platform/imageio/Result.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

/// A value, or a group of further ones.
struct PictureProperty {
    std::string key; // the name the file format gives it: "ExposureTime"; that of a group is in braces: "{Exif}"
    std::string value; // fit to read: "1/250 s"; empty for groups
    std::vector<PictureProperty> children; // sorted by key; empty for values
};

struct PictureFileProperties {
    std::string typeIdentifier; // a uniform type identifier, such as "public.png"
    std::uintmax_t fileSize = 0; // bytes
    /// Sorted by key. Size, depth, color model, profile, resolution and orientation, and the groups that the file
    /// has of {Exif} (with maker notes as groups inside it), {GPS}, {GIF}, {IPTC}, {JFIF}, {PNG}, {TIFF} and {XMP}.
    std::vector<PictureProperty> properties;
};

/// Reads headers only, and holds nothing of the file afterwards. Damaged metadata are left out and logged. Fails with
/// a message fit to show when the file is no picture. Blocks; may be called from several threads at once.
Result<PictureFileProperties> readPictureProperties(const std::filesystem::path& file);
