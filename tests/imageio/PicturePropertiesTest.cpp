#include "platform/imageio/PictureProperties.h"

#include "platform/imageio/PictureWriter.h"
#include "tests/imageio/PictureFiles.h"
#include "tests/support/QuietLog.h"

#include <algorithm>
#include <cstdlib>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const PictureProperty* find(const std::vector<PictureProperty>& properties, std::string_view key)
{
    const auto found = std::ranges::find(properties, key, &PictureProperty::key);
    return found == properties.end() ? nullptr : &*found;
}

/// "{Exif}/FNumber"; "none" when there is no such property.
std::string valueAt(const std::vector<PictureProperty>& properties, std::string_view path)
{
    const std::size_t slash = path.find('/');
    const PictureProperty* found = find(properties, path.substr(0, slash));
    if (!found)
        return "none";
    return slash == std::string_view::npos ? found->value : valueAt(found->children, path.substr(slash + 1));
}

void expectSorted(const std::vector<PictureProperty>& properties)
{
    EXPECT_TRUE(std::ranges::is_sorted(properties, {}, &PictureProperty::key));
    for (const PictureProperty& property : properties) {
        EXPECT_NE(property.value.empty(), property.children.empty()) << property.key << ": a value or a group";
        expectSorted(property.children);
    }
}

class PictureProperties : public testing::Test {
protected:
    const QuietLog quiet;

    fs::path picture(const char* name, PictureFormat format, double dpi = 0)
    {
        const fs::path file = folder.path() / name;
        EXPECT_TRUE(writePicture(
            noiseBitmap(40, 30, CIFormat::RGBA8, CIAlpha::Opaque), file, {.format = format, .dotsPerInch = dpi}));
        return file;
    }
    /// Has another program write metadata into the file.
    static void tell(const fs::path& file, std::initializer_list<const char*> commands)
    {
        std::string line = "exiv2";
        for (const char* command : commands)
            line += std::string(" -M\"") + command + "\"";
        ASSERT_EQ(std::system((line + " " + file.string()).c_str()), 0);
    }
    static std::vector<PictureProperty> propertiesOf(const fs::path& file)
    {
        Result<PictureFileProperties> read = readPictureProperties(file);
        EXPECT_TRUE(read) << read.message();
        return read ? std::move(read->properties) : std::vector<PictureProperty>();
    }

    TemporaryFolder folder;
};

TEST_F(PictureProperties, TellTheFileAndItsPixels)
{
    const fs::path file = picture("a.jpg", PictureFormat::Jpeg, 300);
    const Result<PictureFileProperties> read = readPictureProperties(file);
    ASSERT_TRUE(read) << read.message();
    EXPECT_EQ(read->typeIdentifier, "public.jpeg");
    EXPECT_EQ(read->fileSize, fs::file_size(file));
    const std::pair<const char*, const char*> expected[] = {{"PixelWidth", "40"}, {"PixelHeight", "30"}, {"Depth", "8"},
        {"ColorModel", "RGB"}, {"DPIWidth", "300"}, {"DPIHeight", "300"}, {"HasAlpha", "No"},
        {"Orientation", "1 (upright)"}};
    for (const auto& [path, value] : expected)
        EXPECT_EQ(valueAt(read->properties, path), value) << path;
    EXPECT_NE(valueAt(read->properties, "ProfileName").find("sRGB"), std::string::npos);
    expectSorted(read->properties);
}

TEST_F(PictureProperties, ReadMetadataAsPeopleWriteThem)
{
    const fs::path file = picture("camera.jpg", PictureFormat::Jpeg);
    tell(file,
        {"set Exif.Image.Make Canon", "set Exif.Image.Orientation Short 6",
            "set Exif.Photo.ExposureTime Rational 1/250", "set Exif.Photo.FNumber Rational 28/10",
            "set Exif.Photo.FocalLength Rational 50/1", "set Exif.Photo.ISOSpeedRatings Short 400",
            "set Exif.GPSInfo.GPSLatitude Rational 48/1 8/1 18/1", "set Exif.GPSInfo.GPSLatitudeRef Ascii N",
            "set Exif.Canon.OwnerName Ascii Ada", "set Iptc.Application2.City String Ulm",
            "add Iptc.Application2.Keywords String lake", "add Iptc.Application2.Keywords String dawn",
            "set Xmp.dc.creator XmpSeq Ada"});
    const std::vector<PictureProperty> properties = propertiesOf(file);
    const std::pair<const char*, const char*> expected[] = {{"{TIFF}/Make", "Canon"},
        {"Orientation", "6 (to be turned right)"}, {"{Exif}/ExposureTime", "1/250 s"}, {"{Exif}/FNumber", "f/2.8"},
        {"{Exif}/FocalLength", "50.0 mm"}, {"{Exif}/ISOSpeedRatings", "400"}, {"{Exif}/{Canon}/OwnerName", "Ada"},
        {"{IPTC}/City", "Ulm"}, {"{IPTC}/Keywords", "lake, dawn"}, {"{XMP}/dc:creator", "Ada"}};
    for (const auto& [path, value] : expected)
        EXPECT_EQ(valueAt(properties, path), value) << path;
    EXPECT_TRUE(valueAt(properties, "{GPS}/GPSLatitude").starts_with("48° 8'"))
        << valueAt(properties, "{GPS}/GPSLatitude");
    expectSorted(properties);
}

TEST_F(PictureProperties, KnowTheHeadersOfEachFormat)
{
    const Bytes comment = bytesOf(std::string_view("Title\0Caf\xE9", 10));
    const fs::path png = folder.write("a.png",
        pngFile(2, 1, 8, 2, bytesOf({1, 2, 3, 4, 5, 6}),
            {{"gAMA", bytesOf({0, 0, 0xB1, 0x8F})}, {"pHYs", bytesOf({0, 0, 0x0B, 0x13, 0, 0, 0x0B, 0x13, 1})},
                {"tEXt", comment}}));
    const std::vector<PictureProperty> properties = propertiesOf(png);
    EXPECT_EQ(valueAt(properties, "{PNG}/Gamma"), "0.45455");
    EXPECT_EQ(valueAt(properties, "{PNG}/Title"), "Café");
    EXPECT_EQ(valueAt(properties, "{PNG}/InterlaceType"), "None");
    EXPECT_EQ(valueAt(properties, "DPIWidth"), "72");

    Bytes jfif = bytesOf({0xFF, 0xD8, 0xFF, 0xE0, 0, 16, 'J', 'F', 'I', 'F', 0, 1, 2, 1, 0, 96, 0, 96, 0, 0});
    const Result<std::vector<std::byte>> jpeg =
        encodePicture(noiseBitmap(8, 8, CIFormat::RGBA8, CIAlpha::Opaque), {.format = PictureFormat::Jpeg});
    ASSERT_TRUE(jpeg);
    append(jfif, Bytes(jpeg->begin() + std::ptrdiff_t(jfif.size()), jpeg->end())); // instead of its own
    const std::vector<PictureProperty> ofJpeg = propertiesOf(folder.write("jfif.jpg", jfif));
    EXPECT_EQ(valueAt(ofJpeg, "{JFIF}/DensityUnit"), "Dots per inch");
    EXPECT_EQ(valueAt(ofJpeg, "{JFIF}/XDensity"), "96");
    EXPECT_EQ(valueAt(ofJpeg, "{JFIF}/JFIFVersion"), "1.02");

    EXPECT_EQ(valueAt(propertiesOf(folder.write("a.gif", gifFile())), "{GIF}/FrameCount"), "2");
    EXPECT_EQ(readPictureProperties(folder.write("a.dng", rawFile()))->typeIdentifier, "public.camera-raw-image");
    EXPECT_EQ(readPictureProperties(folder.write("a.pdf", pdfFile()))->typeIdentifier, "com.adobe.pdf");
    EXPECT_EQ(readPictureProperties(picture("a.webp", PictureFormat::WebP))->typeIdentifier, "org.webmproject.webp");
    expectSorted(propertiesOf(folder.path() / "a.dng"));
}

TEST_F(PictureProperties, SurviveBrokenFiles)
{
    EXPECT_FALSE(readPictureProperties(folder.path() / "none.jpg"));
    EXPECT_FALSE(readPictureProperties(folder.write("text.jpg", bytesOf("no picture at all"))));
    const fs::path file = picture("cut.jpg", PictureFormat::Jpeg);
    tell(file, {"set Exif.Photo.ExposureTime Rational 1/250", "set Xmp.dc.creator XmpSeq Ada"});
    for (std::uintmax_t size = fs::file_size(file) - 1; size > 0; size -= std::min<std::uintmax_t>(size, 37)) {
        fs::resize_file(file, size); // must end, whatever it says
        static_cast<void>(readPictureProperties(file));
    }
    const fs::path chunks = folder.write("chunks.png",
        pngFile(2, 1, 8, 2, bytesOf({1, 2, 3, 4, 5, 6}), {{"tEXt", bytesOf("no end of the name")}, {"pHYs", {}}}));
    EXPECT_EQ(valueAt(propertiesOf(chunks), "PixelWidth"), "2");
}

} // namespace
