#include "tests/imageio/PictureFiles.h"

#include "platform/imageio/FileFormats.h"
#include "platform/imageio/PictureReader.h"
#include "platform/imageio/PictureWriter.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>

namespace {

TEST(FileFormats, StandWhereTheirNumbersSay)
{
    for (std::size_t i = 0; i < fileFormats().size(); ++i)
        EXPECT_EQ(std::size_t(fileFormats()[i].format), i) << fileFormats()[i].name;
}

TEST(FileFormats, ShareNoNamesAndNoTypes)
{
    std::set<std::string_view> taken;
    for (const FileFormat& format : fileFormats()) {
        EXPECT_TRUE(taken.insert(format.name).second) << format.name;
        EXPECT_TRUE(taken.insert(format.typeIdentifier).second) << format.typeIdentifier;
        for (const std::string_view extension : format.extensions)
            EXPECT_TRUE(taken.insert(extension).second) << extension;
    }
}

/// The desktop offers the program for what it can open.
TEST(FileFormats, AreTheOnesOfTheDesktopEntry)
{
    std::ifstream entry(LUMIVEX_RESOURCES "/io.github.lumivex.Lumivex.desktop");
    std::string line;
    while (std::getline(entry, line) && !line.starts_with("MimeType="))
        ;
    std::set<std::string> offered, readable;
    std::istringstream types(line.substr(line.find('=') + 1));
    for (std::string type; std::getline(types, type, ';');)
        offered.insert(type);
    for (const FileFormat& format : fileFormats())
        if (format.isRead())
            readable.insert(format.mimeTypes.begin(), format.mimeTypes.end());
    EXPECT_EQ(offered, readable);
}

TEST(FileFormats, RecognizeAndReadWhatTheyWrite)
{
    const TemporaryFolder folder;
    const CIBitmap picture = noiseBitmap(16, 16, CIFormat::RGBA16);
    for (const FileFormat& format : fileFormats()) {
        if (!format.encode || !format.isRead())
            continue;
        const auto encoded = encodePicture(picture, {.format = format.format});
        ASSERT_TRUE(encoded) << format.name;
        const auto info = readPictureInfo(folder.write("picture", *encoded));
        ASSERT_TRUE(info) << format.name << ": " << info.message();
        EXPECT_EQ(info->format, format.format) << format.name;
        EXPECT_EQ(info->hasAlpha, format.writesAlpha) << format.name;
        EXPECT_EQ(info->bitsPerComponent, format.writtenBits == 12 ? 16 : format.writtenBits) << format.name;
    }
}

} // namespace
