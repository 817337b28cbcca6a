#include "platform/imageio/PictureProperties.h"

#include "platform/imageio/ImageLog.h"
#include "platform/imageio/InputReading.h"
#include "platform/imageio/PictureColor.h"
#include "platform/imageio/PictureLoad.h"
#include "platform/imageio/PropertyTree.h"
#include "platform/imageio/RawReader.h"

#include <cmath>

namespace {

using namespace imageio;

constexpr double kMillimetersPerInch = 25.4;

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
    if (input.isOf(PictureFormat::Gif))
        addGif(image, properties);
}

Result<PictureFileProperties> propertiesOf(const PictureInput& input)
{
    const Result<PictureInfo> info = imageio::readPictureInfo(input);
    if (!info)
        return info.failure();
    PictureFileProperties result;
    result.typeIdentifier = input.format()->typeIdentifier;
    result.fileSize = input.size();
    Properties& properties = result.properties;
    addValue(properties, "Depth", std::to_string(info->bitsPerComponent));
    addValue(properties, "HasAlpha", yesOrNo(info->hasAlpha));
    addValue(properties, "IsFloat", yesOrNo(info->isFloat));
    const OpenPicture picture = input.isOf(PictureFormat::CameraRaw) ? OpenPicture() : openPicture(input, 0);
    if (picture.image) {
        addPixels(input, picture, *info, properties);
    } else {
        addValue(properties, "PixelWidth", std::to_string(info->width));
        addValue(properties, "PixelHeight", std::to_string(info->height));
        addValue(properties, "ColorModel", "RGB");
    }
    addFormatHeaders(input, properties);
    addMetadata(input, properties);
    sortProperties(properties);
    return result;
}

} // namespace

Result<PictureFileProperties> readPictureProperties(const std::filesystem::path& file)
{
    return imageio::readPictureProperties(PictureInput::fromFile(file));
}

Result<PictureFileProperties> imageio::readPictureProperties(const Result<PictureInput>& input)
{
    if (!input)
        return input.failure();
    try {
        useVips();
        return propertiesOf(*input);
    } catch (const std::exception& error) {
        imageLog(input->name() + ": " + error.what());
        return input->failure(Reason::CannotRead);
    }
}
