#include "platform/imageio/PictureProperties.h"
#include "platform/imageio/PictureReader.h"
#include "platform/imageio/PictureWriter.h"
#include "tests/imageio/PictureFiles.h"
#include "tests/support/QuietLog.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

class MetadataCopy : public testing::Test {
protected:
    const QuietLog quiet;

    /// A photograph that was held upright, with entries written by another program.
    fs::path photograph()
    {
        const fs::path file = folder.path() / "photo.jpg";
        EXPECT_TRUE(writePicture(noiseBitmap(40, 30, CIFormat::RGBA8, CIAlpha::Opaque), file,
            {.format = PictureFormat::Jpeg, .dotsPerInch = 300}));
        const std::string line =
            "exiv2 -M'set Exif.Image.Model Camera' -M'set Exif.Image.Orientation 6'"
            " -M'set Exif.Photo.ExposureTime 1/250' -M'set Exif.Photo.PixelXDimension 40'"
            " -M'set Exif.GPSInfo.GPSLatitude 4/1 15/1 33/1' -M'set Iptc.Application2.City Bern'"
            " -M'set Xmp.dc.creator Somebody' -M'set Xmp.tiff.Orientation 6' -M'set Xmp.tiff.XResolution 600/1'"
            " -M'set Exif.Image.XResolution 600/1' -M'set Exif.Image.ResolutionUnit 2' "
            + file.string();
        EXPECT_EQ(std::system(line.c_str()), 0);
        return file;
    }
    std::string valueOf(const fs::path& file, std::string_view group, std::string_view key)
    {
        const Result<PictureFileProperties> read = readPictureProperties(file);
        if (!read)
            return read.message();
        const auto place = std::ranges::find(read->properties, group, &PictureProperty::key);
        if (place == read->properties.end())
            return {};
        const auto value = std::ranges::find(place->children, key, &PictureProperty::key);
        return value == place->children.end() ? std::string() : value->value;
    }

    TemporaryFolder folder;
};

TEST_F(MetadataCopy, CarriesWhatStaysTrueIntoEveryFormatThatTakesIt)
{
    const fs::path photo = photograph();
    EXPECT_EQ(PictureMetadata::ofFile(photo)->dotsPerInch(), 600);
    const CIBitmap turned = noiseBitmap(30, 41, CIFormat::RGBA16, CIAlpha::Opaque);
    for (const auto& [name, format] : {std::pair("a.jpg", PictureFormat::Jpeg), {"a.tiff", PictureFormat::Tiff},
             {"a.png", PictureFormat::Png}, {"a.webp", PictureFormat::WebP}, {"a.jp2", PictureFormat::Jpeg2000}}) {
        SCOPED_TRACE(name);
        const fs::path file = folder.path() / name;
        ASSERT_TRUE(writePicture(turned, file, {.format = format}));
        const std::string profile = readPictureInfo(file)->profileName;
        ASSERT_TRUE(writePicture(turned, file, {.format = format, .metadata = PictureMetadata::ofFile(photo)}));
        const Result<CIBitmap> back = readPicture(file);
        ASSERT_TRUE(back) << back.message();
        EXPECT_EQ(back->height(), 41) << "nobody turns it once more";
        EXPECT_EQ(valueOf(file, "{TIFF}", "Model"), "Camera");
        EXPECT_EQ(valueOf(file, "{Exif}", "ExposureTime"), "1/250 s");
        EXPECT_EQ(valueOf(file, "{Exif}", "PixelXDimension"), "30");
        EXPECT_EQ(valueOf(file, "{GPS}", "GPSLatitude"), valueOf(photo, "{GPS}", "GPSLatitude"));
        EXPECT_EQ(valueOf(file, "{IPTC}", "City"), format == PictureFormat::WebP ? "" : "Bern") << "WebP has no IPTC";
        EXPECT_EQ(valueOf(file, "{XMP}", "dc:creator"), "Somebody");
        EXPECT_EQ(valueOf(file, "{XMP}", "tiff:Orientation"), "");
        EXPECT_EQ(valueOf(file, "{XMP}", "tiff:XResolution"), "");
        EXPECT_EQ(valueOf(file, "{TIFF}", "XResolution").find("600"), std::string::npos) << "it has its own";
        EXPECT_EQ(readPictureInfo(file)->profileName, profile);
    }
}

TEST_F(MetadataCopy, AddsNothingThatNobodyAskedFor)
{
    const CIBitmap bitmap = noiseBitmap(30, 41, CIFormat::RGBA8, CIAlpha::Opaque);
    const auto carried = PictureMetadata::ofFile(photograph());
    for (const PictureFormat format :
        {PictureFormat::Jpeg, PictureFormat::Png, PictureFormat::Tiff, PictureFormat::WebP, PictureFormat::Avif}) {
        if (!canWrite(fileFormat(format)))
            continue;
        SCOPED_TRACE(fileFormat(format).name);
        const fs::path file = folder.path() / "plain";
        ASSERT_TRUE(writePicture(bitmap, file, {.format = format}));
        EXPECT_EQ(valueOf(file, "{Exif}", "ColorSpace") + valueOf(file, "{Exif}", "ExifVersion"), "");
        EXPECT_EQ(valueOf(file, "{TIFF}", "XResolution") + valueOf(file, "{TIFF}", "ResolutionUnit"), "");
        EXPECT_EQ(valueOf(file, "{PNG}", "XPixelsPerMeter") + valueOf(file, "{JFIF}", "XDensity"),
            format == PictureFormat::Jpeg ? "1" : "")
            << "the pixels are squares";
        const Result<CIBitmap> back = readPicture(file);
        ASSERT_TRUE(back) << back.message();
        EXPECT_EQ(back->height(), 41);
        ASSERT_TRUE(writePicture(bitmap, file, {.format = format, .metadata = carried}));
        EXPECT_EQ(valueOf(file, "{TIFF}", "Model"), "Camera");
        EXPECT_NE(valueOf(file, "{Exif}", "ColorSpace"), "Uncalibrated");
        if (format != PictureFormat::Avif) { // whose encoder puts one into every Exif
            EXPECT_EQ(valueOf(file, "{TIFF}", "XResolution"), "");
        }
        ASSERT_TRUE(writePicture(bitmap, file, {.format = format, .dotsPerInch = 300, .metadata = carried}));
        const std::string dots = valueOf(file, "{TIFF}", "XResolution");
        if (format == PictureFormat::Png)
            EXPECT_EQ(valueOf(file, "{PNG}", "XPixelsPerMeter"), "11811");
        else
            EXPECT_EQ(dots, format == PictureFormat::Tiff && dots != "300" ? "118" : "300") << "per centimeter";
    }
}

TEST_F(MetadataCopy, WritesThePictureWhereThereIsNothingToCarry)
{
    const CIBitmap bitmap = noiseBitmap(9, 7, CIFormat::RGBA8, CIAlpha::Opaque);
    const fs::path file = folder.path() / "a";
    const fs::path broken = folder.path() / "broken";
    std::ofstream(broken) << "\xff\xd8\xff\xe1 no Exif";
    for (const fs::path& source : {broken, folder.path() / "missing", photograph()}) {
        ASSERT_TRUE(
            writePicture(bitmap, file, {.format = PictureFormat::Gif, .metadata = PictureMetadata::ofFile(source)}));
        EXPECT_EQ(readPictureInfo(file)->format, PictureFormat::Gif);
        ASSERT_TRUE(
            writePicture(bitmap, file, {.format = PictureFormat::Png, .metadata = PictureMetadata::ofFile(source)}));
        EXPECT_EQ(readPictureInfo(file)->width, 9);
    }
    // Onto itself: what was read stays when the file gives way.
    const fs::path photo = photograph();
    ASSERT_TRUE(
        writePicture(bitmap, photo, {.format = PictureFormat::Jpeg, .metadata = PictureMetadata::ofFile(photo)}));
    EXPECT_EQ(valueOf(photo, "{TIFF}", "Model"), "Camera");
    EXPECT_EQ(readPictureInfo(photo)->width, 9);
}

TEST_F(MetadataCopy, CanLeaveOutThePlace)
{
    const auto all = PictureMetadata::ofFile(photograph());
    const CIBitmap bitmap = noiseBitmap(40, 30, CIFormat::RGBA8, CIAlpha::Opaque);
    for (const PictureFormat format : {PictureFormat::Jpeg, PictureFormat::Avif}) {
        if (!canWrite(fileFormat(format)))
            continue;
        SCOPED_TRACE(fileFormat(format).name);
        const fs::path file = folder.path() / "placed", elsewhere = folder.path() / "elsewhere";
        ASSERT_TRUE(writePicture(bitmap, file, {.format = format, .metadata = all}));
        ASSERT_TRUE(writePicture(bitmap, elsewhere, {.format = format, .metadata = all->withoutPlace()}));
        EXPECT_NE(valueOf(file, "{GPS}", "GPSLatitude"), "");
        EXPECT_EQ(valueOf(elsewhere, "{GPS}", "GPSLatitude"), "");
        EXPECT_EQ(valueOf(elsewhere, "{IPTC}", "City"), "");
        EXPECT_EQ(valueOf(elsewhere, "{TIFF}", "Model"), "Camera");
        EXPECT_EQ(readPicture(file)->width(), 40) << "nobody turns it once more";
    }
    if (canWrite(fileFormat(PictureFormat::Heif))) { // whose files Exiv2 doesn't read everywhere
        const Bytes heif = *encodePicture(bitmap, {.format = PictureFormat::Heif, .metadata = all});
        EXPECT_FALSE(std::ranges::search(heif, bytesOf("Camera")).empty());
    }
}

TEST_F(MetadataCopy, LeavesPreviewsBehind)
{
    const fs::path photo = photograph();
    const fs::path preview = folder.path() / "photo-thumb.jpg"; // where the tool looks for it
    ASSERT_TRUE(
        writePicture(noiseBitmap(20, 15, CIFormat::RGBA8, CIAlpha::Opaque), preview, {.format = PictureFormat::Jpeg}));
    ASSERT_EQ(std::system(("exiv2 -it insert " + photo.string()).c_str()), 0);
    const auto previewsOf = [](const fs::path& file) {
        std::string lines;
        FILE* tool = popen(("exiv2 -pp " + file.string()).c_str(), "r");
        for (int c = std::fgetc(tool); c != EOF; c = std::fgetc(tool))
            lines.push_back(char(c));
        pclose(tool);
        return lines;
    };
    ASSERT_NE(previewsOf(photo), "");
    const fs::path file = folder.path() / "a.jpg";
    ASSERT_TRUE(writePicture(noiseBitmap(9, 7, CIFormat::RGBA8, CIAlpha::Opaque), file,
        {.format = PictureFormat::Jpeg, .metadata = PictureMetadata::ofFile(photo)}));
    EXPECT_EQ(previewsOf(file), "");
    EXPECT_EQ(valueOf(file, "{TIFF}", "Model"), "Camera");
}

} // namespace
