#include "tests/imageio/PictureSamples.h"

#include "platform/imageio/PictureWriter.h"

std::vector<PictureSample> pictureSamples()
{
    const CIBitmap noise = noiseBitmap(61, 47);
    const auto encoded = [&](PictureFormat format) { return *encodePicture(noise, {.format = format}); };
    const Bytes tiffPixels(61 * 47 * 3, std::byte(77));
    const std::string svg = "<svg xmlns='http://www.w3.org/2000/svg' width='30' height='20'>"
                            "<g><path d='M0 0L9 9L0 9z' fill='#123456'/></g></svg>";
    return {{"png", encoded(PictureFormat::Png)}, {"jpeg", withExifOrientation(encoded(PictureFormat::Jpeg), 6)},
        {"tiff", encoded(PictureFormat::Tiff)}, {"plain tiff", tiffFile(61, 47, 3, 8, 2, tiffPixels)},
        {"webp", encoded(PictureFormat::WebP)}, {"jpeg 2000", encoded(PictureFormat::Jpeg2000)},
        {"gif", encoded(PictureFormat::Gif)}, {"two frames", gifFile(), false}, {"bmp", bmpFile(), false},
        {"icon", iconFile(), false}, {"sgi", sgiFile()}, {"psd", psdFile(), false}, {"exr", exrFile()},
        {"raw", rawFile()}, {"avif", avifFile(noise)}, {"jpeg xl", jpegXlFile(noise)}, {"svg", bytesOf(svg)},
        {"pdf", pdfFile(), false}};
}
