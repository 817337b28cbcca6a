// The formats that pictures are saved in, and the rules of names that go with them.
#pragma once

#include "platform/imageio/FileFormats.h"

#include <QString>

#include <vector>

/// In the order of the menu: an item's tag is its index here. All have an `exportName`.
const std::vector<const FileFormat*>& exportFormats();

inline constexpr double kDefaultResolution = 300; // dots per inch

/// The index of exactly this name; -1 for any other.
int getRealExportIndex(const QString& name);

/// What a bitmap of that type is written as; everything unknown, icons and PDF too, becomes TIFF.
PictureFormat bitmapFormatForType(const QString& typeIdentifier);

/// The format that saving in place uses for a file of this extension (without the dot); -1 when there is none.
/// Extensions shorter than four characters are filled up with blanks, as four-character codes are, and then match
/// nothing: only jpeg, jpeg-2000, tiff and icns can be saved in place.
int exportIndexForExtension(QString extension);

/// Where a picture goes that is saved under a chosen path: its extension, if any, gives way to that of the format.
/// Except for PDF, the whole path becomes lower case.
QString exportPath(const QString& chosenPath, const QString& formatName);

/// The side of an icon for a picture whose shorter side is `available` pixels. Only icns knows 512 and 1024.
int getIconSizeSize(const QString& typeIdentifier, int available);

/// What an image destination of that type writes; null for types that can't be written.
const FileFormat* destinationFormat(const QString& typeIdentifier);
