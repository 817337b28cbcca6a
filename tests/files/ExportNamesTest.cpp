#include "files/ExportNames.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QLocale>

namespace {

TEST(ExportNames, TheTypedExtensionPicksTheFormat)
{
    const auto format = [](const char* name) {
        const FileFormat* found = formatOfFileName(QString::fromUtf8(name));
        return found ? std::string(found->name) : std::string();
    };
    EXPECT_EQ(format("Holiday.PNG"), "PNG");
    EXPECT_EQ(format("a.b.jpeg"), "JPEG");
    EXPECT_EQ(format("x.heic"), canWrite(fileFormat(PictureFormat::Heif)) ? "HEIF" : "");
    EXPECT_EQ(format("x.pdf"), "PDF");
    for (const char* none : {"png", ".png", "Mr. Miller", "x.png/y", "photo.cr2", ""})
        EXPECT_EQ(format(none), "") << none;
}

TEST(ExportNames, TheFormatGivesItsExtensionAndLeavesTheNameAsTyped)
{
    const FileFormat &png = fileFormat(PictureFormat::Png), &jpeg = fileFormat(PictureFormat::Jpeg);
    EXPECT_EQ(nameInFormat("My Holiday", png), "My Holiday.png");
    EXPECT_EQ(nameInFormat("My Holiday.CR2", png), "My Holiday.png");
    EXPECT_EQ(nameInFormat("My Holiday.JPEG", jpeg), "My Holiday.JPEG");
    EXPECT_EQ(nameInFormat("Mr. Miller", jpeg), "Mr. Miller.jpg");
    EXPECT_EQ(nameInFormat("v1.5", png), "v1.5.png");
    EXPECT_EQ(nameInFormat(".png", png), ".png.png") << "a hidden file's name";
}

TEST(ExportNames, TheTargetKeepsItsCapitals)
{
    EXPECT_EQ(exportTarget("/Home/Me/Pictures", "A b.PNG"), "/Home/Me/Pictures/A b.PNG");
    EXPECT_EQ(exportTarget("/Home/Me", "Sub/../x.png"), "/Home/Me/x.png");
    EXPECT_EQ(exportTarget("/Home/Me", "/Other/x.png"), "/Other/x.png");
    EXPECT_EQ(exportTarget("~/Pictures", "x.png"), QDir::homePath() + "/Pictures/x.png");
}

TEST(ExportNames, SizesAreExact)
{
    QLocale::setDefault(QLocale::English);
    EXPECT_EQ(fileSizeText(999), "999 bytes");
    EXPECT_EQ(fileSizeText(1'234'567), "1.2 MB (1,234,567 bytes)");
    QLocale::setDefault(QLocale::system());
}

} // namespace
