// The formats that pictures are saved in, and the rules of names that go with them.
#pragma once

#include "platform/imageio/PictureWriter.h"

#include <QString>

#include <array>
#include <optional>

struct ExportFormat {
    const char* name; // title in the menu and, in lower case, the extension
    const char* typeIdentifier; // a uniform type identifier; empty for PDF, which isn't a bitmap
};

/// In the order of the menu: an item's tag is its index here.
inline constexpr std::array<ExportFormat, 8> kExportFormats{{
    {"JPEG", "public.jpeg"},
    {"JPEG-2000", "public.jpeg-2000"},
    {"TIFF", "public.tiff"},
    {"GIF", "com.compuserve.gif"},
    {"PNG", "public.png"},
    {"BMP", "com.microsoft.bmp"},
    {"ICNS", "com.apple.icns"},
    {"PDF", ""},
}};

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

/// What an image destination of that type writes; nothing for types that can't be written.
std::optional<PictureFormat> destinationFormat(const QString& typeIdentifier);
bool isIconType(const QString& typeIdentifier);
