// Puts together the properties of a picture.
#pragma once

#include "platform/imageio/PictureInput.h"
#include "platform/imageio/PictureProperties.h"

#include <string_view>

namespace imageio {

using Properties = std::vector<PictureProperty>;

/// The group of that key, made if there is none. Valid until the next one is added.
PictureProperty& groupIn(Properties& properties, std::string_view key);

/// Adds a value, or appends it to the one of that key: "red, green". Control characters become blanks, what is too long
/// to read is cut, an empty value is not added.
void addValue(Properties& properties, std::string_view key, std::string value);

/// All the way down.
void sortProperties(Properties& properties);

/// Exif, GPS, IPTC, TIFF and XMP, as far as the file has them.
void addMetadata(const PictureInput& input, Properties& properties);

/// What the format's own headers say: {JFIF} and {PNG}.
void addFormatHeaders(const PictureInput& input, Properties& properties);

} // namespace imageio
