#include "platform/imageio/PictureProperties.h"

#include "platform/imageio/ImageLog.h"
#include "platform/imageio/PictureColor.h"
#include "platform/imageio/PictureLoad.h"
#include "platform/imageio/PropertyTree.h"
#include "platform/imageio/RawReader.h"

#include <cmath>

namespace {

using namespace imageio;

constexpr double kMillimetersPerInch = 25.4;

const char* typeIdentifierOf(PictureKind kind)
{
    switch (kind) {
    case PictureKind::Jpeg:
        return "public.jpeg";
    case PictureKind::Png:
        return "public.png";
    case PictureKind::Tiff:
        return "public.tiff";
    case PictureKind::Gif:
        return "com.compuserve.gif";
    case PictureKind::Bmp:
        return "com.microsoft.bmp";
    case PictureKind::WebP:
        return "org.webmproject.webp";
    case PictureKind::Heif:
        return "public.heic";
    case PictureKind::Avif:
        return "public.avif";
    case PictureKind::Jpeg2000:
        return "public.jpeg-2000";
    case PictureKind::JpegXl:
        return "public.jpeg-xl";
    case PictureKind::Svg:
        return "public.svg-image";
    case PictureKind::Pdf:
        return "com.adobe.pdf";
    case PictureKind::Exr:
        return "com.ilm.openexr-image";
    case PictureKind::Psd:
        return "com.adobe.photoshop-image";
    case PictureKind::Ico:
        return "com.microsoft.ico";
    case PictureKind::Sgi:
        return "com.sgi.sgi-image";
    case PictureKind::CameraRaw:
        return "public.camera-raw-image";
    case PictureKind::Unknown:
        break;
    }
    return "";
}

const char* yesOrNo(bool yes) { return yes ? "Yes" : "No"; }

const char* colorModelOf(VipsImage* image)
{
    switch (vips_image_get_interpretation(image)) {
    case VIPS_INTERPRETATION_B_W:
    case VIPS_INTERPRETATION_GREY16:
        return "Gray";
    case VIPS_INTERPRETATION_CMYK:
        return "CMYK";
    case VIPS_INTERPRETATION_LAB:
    case VIPS_INTERPRETATION_LABQ:
    case VIPS_INTERPRETATION_LABS:
        return "Lab";
    default:
        return vips_image_get_bands(image) < 3 ? "Gray" : "RGB";
    }
}

/// The EXIF number, and what has to be done to the stored pixels.
std::string orientationText(int orientation)
{
    static const char* const meanings[] = {"upright", "mirrored", "to be turned by 180°",
        "mirrored, to be turned by 180°", "mirrored, to be turned left", "to be turned right",
        "mirrored, to be turned right", "to be turned left"};
    const bool known = orientation >= 1 && orientation <= 8;
    return std::to_string(orientation) + (known ? std::string(" (") + meanings[orientation - 1] + ")" : std::string());
}

/// Whole numbers where they are meant.
std::string dpiText(double perMillimeter)
{
    const double dpi = std::round(perMillimeter * kMillimetersPerInch * 10) / 10;
    std::string text = std::to_string(dpi);
    text.resize(text.find('.') + (dpi == std::floor(dpi) ? 0 : 2));
    return text;
}

void addGif(VipsImage* image, Properties& properties)
{
    Properties& gif = groupIn(properties, "{GIF}").children;
    int frames = 1, loops = 0, count = 0;
    if (vips_image_get_typeof(image, VIPS_META_N_PAGES))
        vips_image_get_int(image, VIPS_META_N_PAGES, &frames);
    addValue(gif, "FrameCount", std::to_string(frames));
    if (vips_image_get_typeof(image, "loop") && vips_image_get_int(image, "loop", &loops) == 0)
        addValue(gif, "LoopCount", loops == 0 ? "endless" : std::to_string(loops));
    int* delays = nullptr; // ms; the image's own
    if (vips_image_get_typeof(image, "delay") && vips_image_get_array_int(image, "delay", &delays, &count) == 0
        && count > 0)
        addValue(gif, "DelayTime", std::to_string(delays[0]) + " ms");
}

void addPixels(const PictureInput& input, const OpenPicture& picture, const PictureInfo& info, Properties& properties)
{
    VipsImage* image = picture.image.get();
    addValue(properties, "PixelWidth", std::to_string(vips_image_get_width(image)));
    addValue(properties, "PixelHeight", std::to_string(vips_image_get_height(image)));
    addValue(properties, "ColorModel", colorModelOf(image));
    addValue(properties, "Orientation", orientationText(picture.orientation));
    const double x = vips_image_get_xres(image), y = vips_image_get_yres(image);
    if (x > 0 && y > 0 && (x != 1 || y != 1)) { // libvips' way of saying that the file has none
        addValue(properties, "DPIWidth", dpiText(x));
        addValue(properties, "DPIHeight", dpiText(y));
    }
    addValue(properties, "ProfileName", info.profileName);
    if (input.kind() == PictureKind::Gif)
        addGif(image, properties);
}

Result<PictureFileProperties> propertiesOf(const PictureInput& input, const std::filesystem::path& file)
{
    const Result<PictureInfo> info = readPictureInfo(file);
    if (!info)
        return info.failure();
    PictureFileProperties result;
    result.typeIdentifier = typeIdentifierOf(input.kind());
    result.fileSize = input.size();
    Properties& properties = result.properties;
    addValue(properties, "Depth", std::to_string(info->bitsPerComponent));
    addValue(properties, "HasAlpha", yesOrNo(info->hasAlpha));
    addValue(properties, "IsFloat", yesOrNo(info->isFloat));
    const OpenPicture picture = input.kind() == PictureKind::CameraRaw ? OpenPicture() : openPicture(input, 0);
    if (picture.image) {
        addPixels(input, picture, *info, properties);
    } else {
        addValue(properties, "PixelWidth", std::to_string(info->width));
        addValue(properties, "PixelHeight", std::to_string(info->height));
        addValue(properties, "ColorModel", "RGB");
    }
    addFormatHeaders(input, properties);
    addMetadata(file, properties);
    sortProperties(properties);
    return result;
}

} // namespace

Result<PictureFileProperties> readPictureProperties(const std::filesystem::path& file)
{
    const Result<PictureInput> input = PictureInput::fromFile(file);
    if (!input)
        return input.failure();
    try {
        useVips();
        return propertiesOf(*input, file);
    } catch (const std::exception& error) {
        imageLog(input->name() + ": " + error.what());
        return Failure{input->name() + " can't be read."};
    }
}
