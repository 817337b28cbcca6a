// What libvips reads, decoded no larger than it is asked for.
#include "platform/imageio/readers/Readers.h"

#include <algorithm>

namespace imageio {

namespace {

double longerSide(VipsImage* image) { return std::max(vips_image_get_width(image), vips_image_get_height(image)); }

/// The settings of ImageMagick allow so much and no more.
bool wasTooLargeForMagick()
{
    const std::string_view text = vips_error_buffer();
    return text.find("exceeds limit") != text.npos || text.find("exhausted") != text.npos
        || text.find("exceeded") != text.npos;
}

} // namespace

VipsImagePtr loadDrawing(const char* loader, VipsSource* source, int maxSide, double dpi)
{
    constexpr double kDrawingMinSide = 1024, kDrawingMaxSide = 8192; // px
    VipsImagePtr image = load(loader, source, "dpi", dpi);
    if (!image)
        return image;
    const double natural = longerSide(image.get());
    double wanted = std::clamp(natural, kDrawingMinSide, kDrawingMaxSide);
    if (maxSide > 0)
        wanted = std::min<double>(wanted, maxSide);
    return wanted == natural ? std::move(image) : load(loader, source, "scale", wanted / natural, "dpi", dpi);
}

void openJpeg(OpenPicture& picture, const PictureInput&, int maxSide)
{
    VipsSource* source = picture.source.get();
    const VipsFailOn failOn = picture.acceptsPart ? VIPS_FAIL_ON_NONE : VIPS_FAIL_ON_ERROR;
    picture.image = load("jpegload_source", source, "fail_on", failOn);
    if (!picture.image || maxSide <= 0)
        return;
    int shrink = 1;
    while (shrink < 8 && longerSide(picture.image.get()) / (2 * shrink) >= maxSide)
        shrink *= 2;
    if (shrink > 1)
        picture.image = load("jpegload_source", source, "fail_on", failOn, "shrink", shrink);
}

void openWebP(OpenPicture& picture, const PictureInput&, int maxSide)
{
    VipsSource* source = picture.source.get();
    picture.image = load("webpload_source", source);
    if (picture.image && maxSide > 0 && longerSide(picture.image.get()) > maxSide)
        picture.image = load("webpload_source", source, "scale", maxSide / longerSide(picture.image.get()));
}

void openRadiance(OpenPicture& picture, const PictureInput&, int)
{
    const VipsImagePtr packed = load("radload_source", picture.source.get());
    if (packed)
        picture.image = derive([&](VipsImage** out) { return vips_rad2float(packed.get(), out, nullptr); });
}

void openPdf(OpenPicture& picture, const PictureInput&, int maxSide)
{
    constexpr double kPdfDpi = 150;
    picture.image = loadDrawing("pdfload_source", picture.source.get(), maxSide, kPdfDpi);
}

void openThroughMagick(OpenPicture& picture, const PictureInput&, int)
{
    const auto content = PictureInput::wholeContent(picture.source.get());
    if (content.empty())
        return;
    picture.image = derive([&](VipsImage** out) {
        return vips_magickload_buffer(const_cast<std::byte*>(content.data()), content.size(), out, "access",
            VIPS_ACCESS_SEQUENTIAL, "fail_on", VIPS_FAIL_ON_ERROR, nullptr);
    });
    if (!picture.image && wasTooLargeForMagick())
        picture.refusal = Reason::TooLarge;
}

} // namespace imageio
