// Readers of formats that need more than a plain loader of libvips.
#pragma once

#include "platform/imageio/PictureLoad.h"

namespace imageio {

// Each does what openPicture says for its format, with `picture.source` in place.
void openExr(OpenPicture& picture, const PictureInput& input, int maxSide);
void openIcns(OpenPicture& picture, const PictureInput& input, int maxSide);
void openJpeg(OpenPicture& picture, const PictureInput& input, int maxSide);
void openJpeg2000(OpenPicture& picture, const PictureInput& input, int maxSide);
void openPdf(OpenPicture& picture, const PictureInput& input, int maxSide);
void openPnm(OpenPicture& picture, const PictureInput& input, int maxSide);
void openQoi(OpenPicture& picture, const PictureInput& input, int maxSide);
void openRadiance(OpenPicture& picture, const PictureInput& input, int maxSide);
void openSvg(OpenPicture& picture, const PictureInput& input, int maxSide);
void openTga(OpenPicture& picture, const PictureInput& input, int maxSide);
void openThroughMagick(OpenPicture& picture, const PictureInput& input, int maxSide);
void openWebP(OpenPicture& picture, const PictureInput& input, int maxSide);

/// Runs a loader on the source with the options that all share, then those given. Null when that fails.
template <class... Options>
VipsImagePtr load(const char* loader, VipsSource* source, Options... options)
{
    return derive([&](VipsImage** out) {
        return vips_call(loader, source, out, "access", VIPS_ACCESS_SEQUENTIAL, "fail_on", VIPS_FAIL_ON_ERROR,
            options..., static_cast<const char*>(nullptr));
    });
}

} // namespace imageio
