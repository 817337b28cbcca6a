#include "files/ExportFormats.h"
#include "files/PictureLimits.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

TEST(ExportFormats, NamesAreComparedExactly)
{
    EXPECT_EQ(getRealExportIndex("JPEG"), 0);
    EXPECT_EQ(getRealExportIndex("PDF"), 7);
    EXPECT_EQ(getRealExportIndex("jpeg"), -1);
    EXPECT_EQ(getRealExportIndex("PDF "), -1);
}

TEST(ExportFormats, OnlyLongExtensionsCanBeSavedInPlace)
{
    EXPECT_EQ(exportIndexForExtension("jpeg"), 0);
    EXPECT_EQ(exportIndexForExtension("JPEG-2000"), 1);
    EXPECT_EQ(exportIndexForExtension("Tiff"), 2);
    EXPECT_EQ(exportIndexForExtension("icns"), 6);
    for (const char* extension : {"png", "gif", "bmp", "jpg", "pdf", "tif", "", "webp"})
        EXPECT_EQ(exportIndexForExtension(extension), -1) << extension;
}

TEST(ExportFormats, PathsTakeTheExtensionAndBecomeLowerCase)
{
    EXPECT_EQ(exportPath("/Home/Me/Holiday.PNG", "PNG"), "/home/me/holiday.png");
    EXPECT_EQ(exportPath("/a/Holiday", "JPEG-2000"), "/a/holiday.jpeg-2000");
    EXPECT_EQ(exportPath("/A/Two.Dots.tif", "PDF"), "/A/Two.Dots.pdf") << "PDF keeps its letters";
    EXPECT_EQ(exportPath("/A/x", "EPS "), "/A/x.eps");
    EXPECT_EQ(exportPath("/a.b/name", "GIF"), "/a.b/name.gif") << "a folder's dot is no extension";
    EXPECT_EQ(exportPath("/a/.hidden", "BMP"), "/a/.hidden.bmp");
    EXPECT_EQ(exportPath(" /a/x", "TIFF"), "/a/x.tiff");
}

TEST(ExportFormats, UnknownTypesBecomeTiff)
{
    EXPECT_EQ(bitmapFormatForType("public.jpeg"), PictureFormat::Jpeg);
    EXPECT_EQ(bitmapFormatForType("com.microsoft.bmp"), PictureFormat::Bmp);
    EXPECT_EQ(bitmapFormatForType("com.apple.icns"), PictureFormat::Tiff);
    EXPECT_EQ(bitmapFormatForType(""), PictureFormat::Tiff);
}

TEST(ExportFormats, IconsAreTheLargestThatThePictureFills)
{
    const QString apple = "com.apple.icns", windows = "com.microsoft.ico";
    EXPECT_EQ(getIconSizeSize(apple, 600), 512);
    EXPECT_EQ(getIconSizeSize(windows, 600), 256);
    EXPECT_EQ(getIconSizeSize(apple, 1024), 1024);
    const std::pair<int, int> sides[] = {{256, 256}, {255, 128}, {128, 128}, {127, 48}, {48, 48}, {47, 16}, {3, 16}};
    for (const auto& [available, side] : sides)
        EXPECT_EQ(getIconSizeSize(apple, available), side) << available;
}

TEST(PictureLimits, SizesAreWholeAndFitIntoMemory)
{
    EXPECT_EQ(pixelSize(200.4f, 0.2f), QSize(200, 1));
    for (const float bad : {0.0f, -3.0f, NAN, INFINITY, 1e9f})
        EXPECT_FALSE(pixelSize(bad, 10)) << bad;
    const auto side = int(std::sqrt(double(largestPixelCount(CIFormat::RGBA8))));
    EXPECT_TRUE(fitsIntoMemory({side, side}, CIFormat::RGBA8));
    EXPECT_FALSE(fitsIntoMemory({side + 1, side + 1}, CIFormat::RGBA8));
    EXPECT_FALSE(fitsIntoMemory({1'000'000, 1'000'000}, CIFormat::RGBA8)) << "more than 32 bits can count";
}

} // namespace
