#include "tests/imageio/PictureSamples.h"

#include "platform/imageio/PictureWriter.h"

std::vector<PictureSample> pictureSamples()
{
    const CIBitmap noise = noiseBitmap(61, 47);
    const auto encoded = [&](PictureFormat format) { return *encodePicture(noise, {.format = format}); };
    const Bytes tiffPixels(61 * 47 * 3, std::byte(77));
    const std::string svg = "<svg xmlns='http://www.w3.org/2000/svg' width='30' height='20'>"
                            "<g><path d='M0 0L9 9L0 9z' fill='#123456'/></g></svg>";
    const Bytes oddPixels(275 * 47, std::byte(0x5a)); // rows of 61 times three times 12 bits
    const Bytes light = pngFile(61, 47, 8, 2, tiffPixels, {{"cICP", bytesOf({9, 16, 0, 1})}});
    const Bytes differences = tiffFile(61, 47, 3, 8, 6, tiffPixels, {{530, 3, {1, 1}}});
    return {{"png", encoded(PictureFormat::Png)}, {"jpeg", withExifOrientation(encoded(PictureFormat::Jpeg), 6)},
        {"tiff", encoded(PictureFormat::Tiff)}, {"plain tiff", tiffFile(61, 47, 3, 8, 2, tiffPixels)},
        {"tiff of 12 bits", tiffFile(61, 47, 3, 12, 2, oddPixels)}, {"tiff of differences", differences},
        {"bright png", light}, {"inks", inksFile(), false}, {"runs", runsFile(), false},
        {"webp", encoded(PictureFormat::WebP)}, {"jpeg 2000", encoded(PictureFormat::Jpeg2000)},
        {"gif", encoded(PictureFormat::Gif)}, {"two frames", gifFile(), false}, {"bmp", bmpFile(), false},
        {"icon", iconFile(), false}, {"sgi", sgiFile()}, {"psd", psdFile(), false}, {"exr", exrFile()},
        {"raw", rawFile()}, {"avif", avifFile(noise)}, {"jpeg xl", jpegXlFile(noise)}, {"svg", bytesOf(svg)},
        {"pdf", pdfFile(), false}};
}
