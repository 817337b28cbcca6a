// Opens a picture with the loader for its kind; pixels are decoded when they are asked for.
#pragma once

#include "platform/imageio/PictureInput.h"

namespace imageio {

/// An opened picture and what has to outlive it.
struct OpenPicture {
    VipsSourcePtr source;
    std::shared_ptr<const void> held; // by the image: a temporary file, or the bytes around its own
    VipsImagePtr image; // as stored: neither upright nor in sRGB yet
    int orientation = 1; // EXIF number that still has to be applied
    bool isPremultiplied = false;
    bool acceptsPart = false; // of a file whose rest is missing
    Reason refusal = Reason::Damaged; // why there is no image
};

/// Opens what libvips or one of `readers` reads, reading the header only. `maxSide` > 0 lets the decoder skip detail,
/// as long as the longer side stays at least that long. A null image with a pending libvips error when it fails.
OpenPicture openPicture(const PictureInput&, int maxSide, bool acceptsPart = false);

} // namespace imageio
