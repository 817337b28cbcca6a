#include "platform/imageio/PictureLoad.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <unistd.h>

namespace imageio {

namespace {

constexpr double kDrawingMinSide = 1024, kDrawingMaxSide = 8192; // px
constexpr double kPdfDpi = 150;

/// Runs a loader on the source with the options that all share, then those given.
template <class... Options>
VipsImagePtr load(const char* loader, VipsSource* source, Options... options)
{
    return derive([&](VipsImage** out) {
        return vips_call(loader, source, out, "access", VIPS_ACCESS_SEQUENTIAL, "fail_on", VIPS_FAIL_ON_ERROR,
            options..., static_cast<const char*>(nullptr));
    });
}

double longerSide(VipsImage* image) { return std::max(vips_image_get_width(image), vips_image_get_height(image)); }

VipsImagePtr loadJpeg(VipsSource* source, int maxSide)
{
    VipsImagePtr image = load("jpegload_source", source);
    if (!image || maxSide <= 0)
        return image;
    int shrink = 1;
    while (shrink < 8 && longerSide(image.get()) / (2 * shrink) >= maxSide)
        shrink *= 2;
    return shrink == 1 ? std::move(image) : load("jpegload_source", source, "shrink", shrink);
}

VipsImagePtr loadWebP(VipsSource* source, int maxSide)
{
    VipsImagePtr image = load("webpload_source", source);
    if (!image || maxSide <= 0 || longerSide(image.get()) <= maxSide)
        return image;
    return load("webpload_source", source, "scale", maxSide / longerSide(image.get()));
}

/// Drawings have no pixels of their own: small ones are drawn larger, so that they are worth editing.
template <class... Options>
VipsImagePtr loadDrawing(const char* loader, VipsSource* source, int maxSide, Options... options)
{
    VipsImagePtr image = load(loader, source, options...);
    if (!image)
        return image;
    const double natural = longerSide(image.get());
    double wanted = std::clamp(natural, kDrawingMinSide, kDrawingMaxSide);
    if (maxSide > 0)
        wanted = std::min<double>(wanted, maxSide);
    return wanted == natural ? std::move(image) : load(loader, source, "scale", wanted / natural, options...);
}

VipsImagePtr loadThroughMagick(const PictureInput& input, VipsSource* source)
{
    const auto content = PictureInput::wholeContent(source);
    if (content.empty())
        return nullptr;
    const int page = input.kind() == PictureKind::Ico ? largestIconIndex(input.reader()) : 0;
    return derive([&](VipsImage** out) {
        return vips_magickload_buffer(const_cast<std::byte*>(content.data()), content.size(), out, "page", page,
            "access", VIPS_ACCESS_SEQUENTIAL, "fail_on", VIPS_FAIL_ON_ERROR, nullptr);
    });
}

/// A file with the given content that goes away with its last owner; empty when it can't be made.
std::shared_ptr<const std::string> temporaryCopy(std::span<const std::byte> content)
{
    std::string path = (std::filesystem::temp_directory_path() / "lumivex-XXXXXX").string();
    const int descriptor = mkstemp(path.data());
    if (descriptor < 0)
        return nullptr;
    const std::shared_ptr<const std::string> file(new std::string(path), [](const std::string* name) {
        ::unlink(name->c_str());
        delete name;
    });
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written <= 0)
            break;
        content = content.subspan(std::size_t(written));
    }
    ::close(descriptor);
    return content.empty() ? file : nullptr;
}

/// The EXR library reads only named files.
VipsImagePtr loadExr(const PictureInput& input, std::shared_ptr<const void>& temporaryFile)
{
    std::string path = input.path().string();
    if (path.empty()) {
        const auto copy = temporaryCopy(input.memory());
        if (!copy)
            return nullptr;
        path = *copy;
        temporaryFile = copy;
    }
    VipsImagePtr image = derive([&](VipsImage** out) {
        return vips_openexrload(
            path.c_str(), out, "access", VIPS_ACCESS_SEQUENTIAL, "fail_on", VIPS_FAIL_ON_ERROR, nullptr);
    });
    if (!image || vips_image_get_bands(image.get()) != 4)
        return image;
    const double factors[] = {1, 1, 1, 1.0 / 255}, offsets[] = {0, 0, 0, 0}; // libvips counts alpha up to 255
    return derive([&](VipsImage** out) { return vips_linear(image.get(), out, factors, offsets, 4, nullptr); });
}

/// These decoders turn the picture themselves, and may leave the number in the metadata.
bool isUprightByDecoder(PictureKind kind)
{
    return kind == PictureKind::Heif || kind == PictureKind::Avif || kind == PictureKind::JpegXl;
}

} // namespace

OpenPicture openPicture(const PictureInput& input, int maxSide)
{
    OpenPicture picture;
    picture.source = input.source();
    VipsSource* source = picture.source.get();
    if (!source)
        return picture;
    switch (input.kind()) {
    case PictureKind::Jpeg:
        picture.image = loadJpeg(source, maxSide);
        break;
    case PictureKind::Png:
        picture.image = load("pngload_source", source);
        break;
    case PictureKind::Tiff:
        picture.image = load("tiffload_source", source);
        break;
    case PictureKind::Gif:
        picture.image = load("gifload_source", source);
        break;
    case PictureKind::WebP:
        picture.image = loadWebP(source, maxSide);
        break;
    case PictureKind::Heif:
    case PictureKind::Avif:
        picture.image = load("heifload_source", source);
        break;
    case PictureKind::Jpeg2000:
        picture.image = load("jp2kload_source", source);
        break;
    case PictureKind::JpegXl:
        picture.image = load("jxlload_source", source);
        break;
    case PictureKind::Svg:
        picture.image = loadDrawing("svgload_source", source, maxSide, "dpi", 96.0);
        break;
    case PictureKind::Pdf:
        picture.image = loadDrawing("pdfload_source", source, maxSide, "dpi", kPdfDpi);
        break;
    case PictureKind::Exr:
        picture.image = loadExr(input, picture.temporaryFile);
        break;
    case PictureKind::Bmp:
    case PictureKind::Psd:
    case PictureKind::Ico:
    case PictureKind::Sgi:
        picture.image = loadThroughMagick(input, source);
        break;
    case PictureKind::Unknown:
    case PictureKind::CameraRaw:
        break; // not for libvips
    }
    if (picture.image && !isUprightByDecoder(input.kind()))
        picture.orientation = vips_image_get_orientation(picture.image.get());
    picture.isPremultiplied = input.kind() == PictureKind::Exr;
    return picture;
}

} // namespace imageio
