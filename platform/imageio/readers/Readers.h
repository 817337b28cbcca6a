// Readers of formats that need more than a plain loader of libvips.
#pragma once

#include "platform/imageio/PictureLoad.h"

namespace imageio {

// Each does what openPicture says for its format, with `picture.source` in place.
void openBmp(OpenPicture& picture, const PictureInput& input, int maxSide);
void openExr(OpenPicture& picture, const PictureInput& input, int maxSide);
void openGif(OpenPicture& picture, const PictureInput& input, int maxSide);
void openIcns(OpenPicture& picture, const PictureInput& input, int maxSide);
void openIco(OpenPicture& picture, const PictureInput& input, int maxSide);
void openJpeg(OpenPicture& picture, const PictureInput& input, int maxSide);
void openJpeg2000(OpenPicture& picture, const PictureInput& input, int maxSide);
void openPdf(OpenPicture& picture, const PictureInput& input, int maxSide);
void openPng(OpenPicture& picture, const PictureInput& input, int maxSide);
void openPnm(OpenPicture& picture, const PictureInput& input, int maxSide);
void openPsd(OpenPicture& picture, const PictureInput& input, int maxSide);
void openQoi(OpenPicture& picture, const PictureInput& input, int maxSide);
void openRadiance(OpenPicture& picture, const PictureInput& input, int maxSide);
void openSvg(OpenPicture& picture, const PictureInput& input, int maxSide);
void openTga(OpenPicture& picture, const PictureInput& input, int maxSide);
void openThroughMagick(OpenPicture& picture, const PictureInput& input, int maxSide);
void openTiff(OpenPicture& picture, const PictureInput& input, int maxSide);
void openWebP(OpenPicture& picture, const PictureInput& input, int maxSide);

/// A file inside the file, as if it were that.
void openInner(OpenPicture& picture, const PictureInput& inner, int maxSide);

/// Drawings have no pixels of their own: small ones are drawn larger, so that they are worth editing.
VipsImagePtr loadDrawing(const char* loader, VipsSource* source, int maxSide, double dpi);

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
