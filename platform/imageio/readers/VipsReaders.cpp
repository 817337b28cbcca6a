// What libvips reads, decoded no larger than it is asked for.
#include "platform/imageio/readers/Readers.h"

#include <algorithm>

namespace imageio {

namespace {

constexpr double kDrawingMinSide = 1024, kDrawingMaxSide = 8192; // px
constexpr double kSvgDpi = 96, kPdfDpi = 150;

double longerSide(VipsImage* image) { return std::max(vips_image_get_width(image), vips_image_get_height(image)); }

/// Drawings have no pixels of their own: small ones are drawn larger, so that they are worth editing.
VipsImagePtr loadDrawing(const char* loader, VipsSource* source, int maxSide, double dpi)
{
    VipsImagePtr image = load(loader, source, "dpi", dpi);
    if (!image)
        return image;
    const double natural = longerSide(image.get());
    double wanted = std::clamp(natural, kDrawingMinSide, kDrawingMaxSide);
    if (maxSide > 0)
        wanted = std::min<double>(wanted, maxSide);
    return wanted == natural ? std::move(image) : load(loader, source, "scale", wanted / natural, "dpi", dpi);
}

} // namespace

void openJpeg(OpenPicture& picture, const PictureInput&, int maxSide)
{
    VipsSource* source = picture.source.get();
    picture.image = load("jpegload_source", source);
    if (!picture.image || maxSide <= 0)
        return;
    int shrink = 1;
    while (shrink < 8 && longerSide(picture.image.get()) / (2 * shrink) >= maxSide)
        shrink *= 2;
    if (shrink > 1)
        picture.image = load("jpegload_source", source, "shrink", shrink);
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

void openSvg(OpenPicture& picture, const PictureInput&, int maxSide)
{
    picture.image = loadDrawing("svgload_source", picture.source.get(), maxSide, kSvgDpi);
}

void openPdf(OpenPicture& picture, const PictureInput&, int maxSide)
{
    picture.image = loadDrawing("pdfload_source", picture.source.get(), maxSide, kPdfDpi);
}

void openThroughMagick(OpenPicture& picture, const PictureInput& input, int)
{
    const auto content = PictureInput::wholeContent(picture.source.get());
    if (content.empty())
        return;
    const int page = input.isOf(PictureFormat::Ico) ? largestIconIndex(input.reader()) : 0;
    picture.image = derive([&](VipsImage** out) {
        return vips_magickload_buffer(const_cast<std::byte*>(content.data()), content.size(), out, "page", page,
            "access", VIPS_ACCESS_SEQUENTIAL, "fail_on", VIPS_FAIL_ON_ERROR, nullptr);
    });
}

} // namespace imageio
