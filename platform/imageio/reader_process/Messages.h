// What the messages between the program and its readers hold.
#pragma once

#include "platform/imageio/Parcel.h"
#include "platform/imageio/PictureProperties.h"
#include "platform/imageio/PictureReader.h"

namespace imageio {

/// A bitmap without its pixels, whose rows are packed.
struct BitmapShape {
    int width, height;
    CIFormat format;
    CIAlpha alpha;
    CIColorSpace space = CIColorSpace::SRGB;
    bool isIncomplete = false;
    std::size_t bytes() const { return std::size_t(width) * std::size_t(height) * bytesPerPixel(format); }
};

Parcel packed(const ReadOptions&); // all but what only one process knows
Parcel packed(const Failure&); // without its subject, which the program knows
Parcel packed(const BitmapShape&);
Parcel packed(const PictureInfo&);
Parcel packed(const PictureFileProperties&);

// The counterparts. Each throws std::runtime_error for what can't have been packed.
/// `isIncomplete` takes the place of the other process's, if that has one.
ReadOptions unpackedOptions(std::string_view, std::atomic<bool>* isIncomplete);
Failure unpackedFailure(std::string_view, const std::string& subject);
BitmapShape unpackedShape(std::string_view);
PictureInfo unpackedInfo(std::string_view);
PictureFileProperties unpackedProperties(std::string_view);

} // namespace imageio
