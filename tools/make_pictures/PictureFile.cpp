#include "tools/make_pictures/PictureFile.h"

#include <vips/vips8>

#include <cstdint>

namespace {

using vips::VImage;

template <class Sample>
VImage quantised(const Raster& picture, VipsBandFormat format, VipsInterpretation interpretation, float top)
{
    std::vector<Sample> stored(picture.samples.size());
    std::transform(picture.samples.begin(), picture.samples.end(), stored.begin(),
        [top](float sample) { return static_cast<Sample>(std::lround(std::clamp(sample, 0.0f, 1.0f) * top)); });
    VipsImage* const image = vips_image_new_from_memory_copy(
        stored.data(), stored.size() * sizeof(Sample), picture.width, picture.height, picture.bands, format);
    if (!image)
        throw vips::VError();
    return VImage(image).copy(VImage::option()->set("interpretation", interpretation));
}

VImage quantised(const Raster& picture, Depth depth)
{
    const bool grey = picture.bands == 1;
    if (depth == Depth::Sixteen)
        return quantised<std::uint16_t>(
            picture, VIPS_FORMAT_USHORT, grey ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_RGB16, 65535.0f);
    return quantised<std::uint8_t>(
        picture, VIPS_FORMAT_UCHAR, grey ? VIPS_INTERPRETATION_B_W : VIPS_INTERPRETATION_sRGB, 255.0f);
}

} // namespace

void writeTiff(const Raster& picture, Depth depth, const std::string& file)
{
    quantised(picture, depth)
        .tiffsave(file.c_str(),
            VImage::option()
                ->set("compression", VIPS_FOREIGN_TIFF_COMPRESSION_DEFLATE)
                ->set("predictor", VIPS_FOREIGN_TIFF_PREDICTOR_HORIZONTAL)
                ->set("strip", true));
}

void writePng(const Raster& picture, const std::string& file)
{
    quantised(picture, Depth::Eight).pngsave(file.c_str(), VImage::option()->set("compression", 9)->set("strip", true));
}
