#include "tests/imageio/ReadPictures.h"

#include "platform/imageio/PictureWriter.h"

#include <cmath>

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr Pixel kRed{255, 0, 0, 255}, kGreen{0, 255, 0, 255}, kBlue{0, 0, 255, 255}, kWhite{255, 255, 255, 255};

TEST(ExrReader, ShowsTheDisplayWindow)
{
    Bytes file = exrFile();
    const Bytes name = bytesOf("displayWindow");
    const auto found = std::ranges::search(file, name).begin();
    ASSERT_NE(found, file.end());
    // After its type and size: the last column and the last row.
    const auto last = found + std::ptrdiff_t(name.size() + sizeof "" + sizeof "box2i" + 4 + 8);
    std::ranges::copy(bytesOf({2, 0, 0, 0, 1, 0, 0, 0}), last);
    const Result<CIBitmap> read = readPicture(file);
    ASSERT_TRUE(read) << read.message();
    EXPECT_EQ(read->width(), 3);
    EXPECT_EQ(read->height(), 2);
    EXPECT_THAT(pixelAt(*read, 0, 0), ::testing::ElementsAre(2, 0.5, 0.25, 1));
    EXPECT_THAT(pixelAt(*read, 2, 0), ::testing::Each(0)) << "no data there";
    EXPECT_THAT(pixelAt(*read, 0, 1), ::testing::Each(0));
}

TEST(PictureReader, ReadsEveryKindOfPng)
{
    const CIBitmap rgb = read(pngFile(2, 2, 8, 2, bytesOf({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12})));
    EXPECT_EQ(rgb.format(), CIFormat::RGBA8);
    EXPECT_EQ(rgb.alpha(), CIAlpha::Opaque);
    EXPECT_THAT(pixelAt(rgb, 1, 0), ElementsAre(4, 5, 6, 255));
    EXPECT_THAT(pixelAt(rgb, 0, 1), ElementsAre(7, 8, 9, 255)) << "row 0 is the top row";

    const CIBitmap rgba = read(pngFile(1, 2, 8, 6, bytesOf({200, 100, 50, 255, 200, 100, 50, 3})));
    EXPECT_EQ(rgba.alpha(), CIAlpha::Straight);
    EXPECT_THAT(pixelAt(rgba, 0, 1), ElementsAre(200, 100, 50, 3));
    EXPECT_EQ(read(pngFile(1, 1, 8, 6, bytesOf({9, 9, 9, 255}))).alpha(), CIAlpha::Opaque) << "no pixel is transparent";

    EXPECT_THAT(pixelAt(read(pngFile(2, 1, 8, 0, bytesOf({7, 77}))), 1, 0), ElementsAre(77, 77, 77, 255));
    EXPECT_THAT(pixelAt(read(pngFile(1, 1, 8, 4, bytesOf({7, 77}))), 0, 0), ElementsAre(7, 7, 7, 77));
    EXPECT_THAT(pixelAt(read(pngFile(8, 1, 1, 0, bytesOf({0x40}))), 1, 0), ElementsAre(255, 255, 255, 255));

    const CIBitmap palette = read(
        pngFile(2, 1, 8, 3, bytesOf({1, 0}), {{"PLTE", bytesOf({10, 20, 30, 40, 50, 60})}, {"tRNS", bytesOf({128})}}));
    EXPECT_THAT(pixelAt(palette, 0, 0), ElementsAre(40, 50, 60, 255));
    EXPECT_THAT(pixelAt(palette, 1, 0), ElementsAre(10, 20, 30, 128));

    const CIBitmap deep = read(pngFile(1, 1, 16, 2, bytesOf({0x12, 0x34, 0x56, 0x78, 0x9a, 0xbc})));
    EXPECT_EQ(deep.format(), CIFormat::RGBA16);
    EXPECT_THAT(pixelAt(deep, 0, 0), ElementsAre(0x1234, 0x5678, 0x9abc, 65535));
}

TEST(PictureReader, TurnsPicturesUpright)
{
    // Odd sizes, wider than a strip is high; the mapping is the table of the EXIF standard, told the slow way.
    constexpr int kWidth = 37, kHeight = 301;
    Bytes pixels;
    const CIBitmap noise = noiseBitmap(kWidth, kHeight);
    for (int y = 0; y < kHeight; ++y)
        append(pixels, Bytes(noise.row(y), noise.row(y) + 4 * kWidth));
    for (int orientation = 1; orientation <= 8; ++orientation) {
        SCOPED_TRACE(orientation);
        const CIBitmap upright =
            read(tiffFile(kWidth, kHeight, 4, 8, 2, pixels, {{274, 3, {orientation}}, {338, 3, {2}}}));
        const bool swaps = orientation >= 5;
        ASSERT_EQ(upright.width(), swaps ? kHeight : kWidth);
        int wrong = 0;
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x) {
                const int mx = kWidth - 1 - x, my = kHeight - 1 - y;
                const std::pair<int, int> places[] = {
                    {x, y}, {mx, y}, {mx, my}, {x, my}, {y, x}, {my, x}, {my, mx}, {y, mx}};
                const auto [ux, uy] = places[orientation - 1];
                wrong += pixelAt(upright, ux, uy) != pixelAt(noise, x, y);
            }
        EXPECT_EQ(wrong, 0);
    }
}

TEST(PictureReader, TurnsJpegByExifAndSaysSoInTheInfo)
{
    CIBitmap wide(64, 16, CIFormat::RGBA8, CIAlpha::Opaque);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 64; ++x)
            wide.mutableRow<std::uint8_t>(y)[std::size_t(4 * x)] = x < 32 ? 255 : 0;
    const Bytes jpeg = *encodePicture(wide, {.format = PictureFormat::Jpeg});
    const Bytes turned = withExifOrientation(jpeg, 6); // the right side of what is stored goes down
    const CIBitmap upright = read(turned);
    ASSERT_EQ(upright.width(), 16);
    ASSERT_EQ(upright.height(), 64);
    EXPECT_GT(pixelAt(upright, 8, 4)[0], 250);
    EXPECT_LT(pixelAt(upright, 8, 60)[0], 5);

    const TemporaryFolder folder;
    const auto info = readPictureInfo(folder.write("picture.dat", turned));
    ASSERT_TRUE(info) << info.message();
    EXPECT_EQ(info->width, 16);
    EXPECT_EQ(info->height, 64);
    EXPECT_EQ(info->format, PictureFormat::Jpeg);
    EXPECT_THAT(info->profileName, HasSubstr("sRGB"));
}

TEST(PictureReader, ReadsOtherNumbersAndColorModels)
{
    const CIBitmap cmyk = inSrgb(read(tiffFile(3, 1, 4, 8, 5, bytesOf({0, 0, 0, 0, 255, 0, 0, 0, 0, 0, 0, 255}))));
    expectNear(pixelAt(cmyk, 0, 0), kWhite, 3);
    EXPECT_LT(pixelAt(cmyk, 1, 0)[0] + 80, pixelAt(cmyk, 1, 0)[2]) << "cyan ink takes red away";
    EXPECT_LT(pixelAt(cmyk, 2, 0)[1], 80);

    const CIBitmap floats = read(tiffFile(1, 1, 3, 32, 2, floatsOf({0.5f, 2.5f, -0.25f}), {{339, 3, {3, 3, 3}}}));
    EXPECT_EQ(floats.format(), CIFormat::RGBAf);
    EXPECT_EQ(floats.colorSpace(), CIColorSpace::LinearSRGB);
    EXPECT_THAT(pixelAt(floats, 0, 0), ElementsAre(0.5, 2.5, -0.25, 1));

    EXPECT_THAT(pixelAt(read(tiffFile(1, 1, 1, 16, 1, wordsOf({4660}))), 0, 0), ElementsAre(4660, 4660, 4660, 65535));
    const CIBitmap inverted = read(tiffFile(1, 1, 1, 8, 0, bytesOf({250})));
    EXPECT_THAT(pixelAt(inverted, 0, 0), ElementsAre(5, 5, 5, 255)) << "0 is white";

    const CIBitmap exr = read(exrFile());
    EXPECT_EQ(exr.alpha(), CIAlpha::Premultiplied);
    expectNear(pixelAt(exr, 0, 0), {2, 0.5, 0.25, 1}, 1e-6);
    expectNear(pixelAt(exr, 1, 0), {0.25, 0.25, 0.25, 0.5}, 1e-6);
}

TEST(PictureReader, ReadsTheOtherFormats)
{
    const CIBitmap gif = read(gifFile());
    EXPECT_EQ(gif.height(), 1) << "the first frame alone";
    EXPECT_EQ(pixelAt(gif, 0, 0), kRed);

    for (const Bytes& file : {bmpFile(), iconFile()}) {
        const CIBitmap bitmap = read(file);
        ASSERT_EQ(bitmap.width(), 2);
        EXPECT_EQ(pixelAt(bitmap, 0, 0), kRed);
        EXPECT_EQ(pixelAt(bitmap, 1, 0), kGreen);
        EXPECT_EQ(pixelAt(bitmap, 0, 1), kBlue);
    }
    for (const Bytes& file : {sgiFile(), psdFile()}) {
        const CIBitmap bitmap = read(file);
        EXPECT_EQ(pixelAt(bitmap, 0, 0), kRed);
        EXPECT_EQ(pixelAt(bitmap, 1, 0), kBlue);
    }

    const CIBitmap raw = read(rawFile());
    EXPECT_EQ(raw.format(), CIFormat::RGBA16);
    EXPECT_NEAR(raw.width(), 64, 4);
    EXPECT_GT(pixelAt(raw, 10, 24)[1], 2 * pixelAt(raw, 50, 24)[1]);

    CIBitmap plain(64, 64, CIFormat::RGBA8, CIAlpha::Opaque);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            std::ranges::copy(bytesOf({90, 160, 30, 255}), plain.mutableRow(y) + 4 * x);
    for (const Bytes& file : {avifFile(plain), jpegXlFile(plain)})
        expectNear(pixelAt(read(file), 30, 30), {90, 160, 30, 255}, 4);
    for (const PictureFormat format : {PictureFormat::WebP, PictureFormat::Jpeg2000, PictureFormat::Gif})
        expectNear(pixelAt(read(*encodePicture(plain, {.format = format})), 30, 30), {90, 160, 30, 255}, 4);
}

TEST(PictureReader, DrawsVectorPicturesWithoutLookingAtOtherFiles)
{
    const TemporaryFolder folder;
    folder.write("red.png", pngFile(1, 1, 8, 2, bytesOf({255, 0, 0})));
    const std::string image = "<image width='20' height='20' href='";
    const std::string svg = "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20'>" + image + "red.png'/>"
        + image + "file://" + (folder.path() / "red.png").string()
        + "'/><rect x='20' width='20' height='20' fill='#0f0'/></svg>";
    const Result<CIBitmap> drawn = readPicture(folder.write("drawing.svg", bytesOf(svg)));
    ASSERT_TRUE(drawn) << drawn.message();
    EXPECT_GE(drawn->width(), 1000) << "a small drawing is drawn larger";
    EXPECT_EQ(pixelAt(*drawn, drawn->width() / 4, drawn->height() / 2)[3], 0) << "a file beside the drawing was read";
    EXPECT_EQ(pixelAt(*drawn, drawn->width() * 3 / 4, drawn->height() / 2), kGreen);

    const CIBitmap page = read(pdfFile());
    EXPECT_NEAR(page.width(), 2 * page.height(), 2);
    EXPECT_EQ(pixelAt(page, page.width() / 4, page.height() / 2), kRed);
    EXPECT_EQ(pixelAt(page, page.width() * 3 / 4, page.height() / 2), kWhite);
}

/// Primaries and curve of Adobe RGB (1998).
Bytes wideProfile()
{
    const cmsCIExyY white{0.3127, 0.3290, 1};
    const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1}, {0.21, 0.71, 1}, {0.15, 0.06, 1}};
    cmsToneCurve* curve = cmsBuildGamma(nullptr, 563.0 / 256);
    cmsToneCurve* curves[] = {curve, curve, curve};
    const Bytes profile = savedProfile(cmsCreateRGBProfile(&white, &primaries, curves));
    cmsFreeToneCurve(curve);
    return profile;
}

TEST(PictureReader, AppliesTheEmbeddedProfile)
{
    const Bytes pixel = bytesOf({100, 150, 120});
    const auto linear = [](double code) { return std::pow(code / 255, 563.0 / 256); };
    const auto coded = [](double l) {
        return 255 * (l <= 0.0031308 ? 12.92 * l : 1.055 * std::pow(l, 1 / 2.4) - 0.055);
    };
    const double r = linear(100), g = linear(150), b = linear(120); // both spaces have white and blue's hue in common
    const Pixel expected{coded(1.39836 * r - 0.39836 * g), coded(g), coded(-0.04293 * g + 1.04293 * b), 255};
    expectNear(pixelAt(inSrgb(read(pngFile(1, 1, 8, 2, pixel, {profileChunk(wideProfile())}))), 0, 0), expected, 1.5);

    Bytes everyCode;
    for (int code = 0; code < 256; ++code)
        append(everyCode, bytesOf({code, code / 2, 255 - code}));
    const auto srgb = profileChunk(savedProfile(cmsCreate_sRGBProfile()));
    const CIBitmap same = read(pngFile(256, 1, 8, 2, everyCode, {srgb}));
    for (int code = 0; code < 256; ++code)
        ASSERT_THAT(pixelAt(same, code, 0), ElementsAre(code, code / 2, 255 - code, 255)) << "sRGB is left alone";

    Bytes broken = wideProfile();
    std::fill(broken.begin() + 130, broken.end(), std::byte(0x5a));
    EXPECT_THAT(
        pixelAt(read(pngFile(1, 1, 8, 2, pixel, {profileChunk(broken)})), 0, 0), ElementsAre(100, 150, 120, 255));
}

TEST(PictureReader, ReducesWhileDecoding)
{
    CIBitmap half(1000, 500, CIFormat::RGBA8, CIAlpha::Straight);
    for (int y = 0; y < 500; ++y)
        for (int x = 0; x < 1000; ++x) // transparent black beside opaque white
            std::ranges::fill_n(half.mutableRow(y) + 4 * x, 4, std::byte(x < 510 ? 0 : 255));
    for (const PictureFormat format : {PictureFormat::Png, PictureFormat::Jpeg, PictureFormat::WebP}) {
        const CIBitmap small = read(*encodePicture(half, {.format = format}), {.maxSide = 100});
        EXPECT_EQ(small.width(), 100);
        EXPECT_EQ(small.height(), 50);
        EXPECT_GT(pixelAt(small, 51, 25)[0], 240) << "no dark fringe";
    }
    EXPECT_EQ(read(pngFile(2, 1, 8, 0, bytesOf({7, 77})), {.maxSide = 100}).width(), 2);
}

TEST(PictureReader, SaysHowFarItIsAndCanBeGivenUp)
{
    const Bytes png = *encodePicture(noiseBitmap(300, 300));
    std::atomic<float> progress = 0;
    EXPECT_TRUE(readPicture(png, {.progress = &progress}));
    EXPECT_EQ(progress, 1);
    const std::atomic<bool> cancelled = true;
    EXPECT_FALSE(readPicture(png, {.cancelled = &cancelled}));
    EXPECT_FALSE(readPicture(rawFile(), {.cancelled = &cancelled}));
}

} // namespace
