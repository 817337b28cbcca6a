#include "tests/imageio/PictureFiles.h"

#include "platform/imageio/PictureReader.h"
#include "platform/imageio/PictureWriter.h"
#include "tests/support/QuietLog.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace {

using ::testing::ElementsAre;

namespace fs = std::filesystem;

double largestDifference(const CIBitmap& a, const CIBitmap& b)
{
    double largest = a.width() == b.width() && a.height() == b.height() ? 0 : 1e9;
    for (int y = 0; largest < 1e9 && y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            for (std::size_t i = 0; i < 4; ++i)
                largest = std::max(largest, std::abs(pixelAt(a, x, y)[i] - pixelAt(b, x, y)[i]));
    return largest;
}

TEST(PictureWriter, KeepsEveryPixelOfExactFormats)
{
    const TemporaryFolder folder;
    for (const PictureFormat format : {PictureFormat::Png, PictureFormat::Tiff})
        for (const CIFormat depth : {CIFormat::RGBA8, CIFormat::RGBA16})
            for (const CIAlpha alpha : {CIAlpha::Straight, CIAlpha::Opaque}) {
                CIBitmap bitmap = noiseBitmap(67, 43, depth, alpha);
                if (alpha == CIAlpha::Opaque)
                    for (int y = 0; y < 43; ++y)
                        for (int x = 0; x < 67; ++x)
                            std::ranges::fill_n(
                                bitmap.mutableRow(y) + std::size_t(4 * x + 3) * bytesPerPixel(depth) / 4,
                                std::ptrdiff_t(bytesPerPixel(depth) / 4), std::byte(255));
                const fs::path file = folder.path() / "picture";
                ASSERT_TRUE(writePicture(bitmap, file, {.format = format}));
                const Result<CIBitmap> back = readPicture(file);
                ASSERT_TRUE(back) << back.message();
                EXPECT_EQ(back->format(), depth);
                EXPECT_EQ(back->alpha(), alpha);
                EXPECT_EQ(largestDifference(*back, bitmap), 0);
            }
}

Result<CIBitmap> throughPng(const CIBitmap& bitmap) { return readPicture(*encodePicture(bitmap)); }

TEST(PictureWriter, ConvertsOtherKindsOfPixels)
{
    CIBitmap screen(1, 1, CIFormat::BGRA8, CIAlpha::Premultiplied);
    std::ranges::copy(bytesOf({20, 40, 60, 102}), screen.mutableRow(0));
    EXPECT_THAT(pixelAt(*throughPng(screen), 0, 0), ElementsAre(150, 100, 50, 102));

    CIBitmap light(2, 1, CIFormat::RGBAf, CIAlpha::Premultiplied, CIColorSpace::LinearSRGB);
    std::ranges::copy(floatsOf({0.25f, 0.1070f, 9.0f, 0.5f, NAN, -1.0f, 0.0f, 1.0f}), light.mutableRow(0));
    const Result<CIBitmap> coded = throughPng(light);
    ASSERT_TRUE(coded);
    EXPECT_EQ(coded->format(), CIFormat::RGBA16);
    EXPECT_NEAR(pixelAt(*coded, 0, 0)[0], 0.7354 * 65535, 20); // the sRGB curve at 0.5
    EXPECT_NEAR(pixelAt(*coded, 0, 0)[1], 0.5 * 65535, 40); // and at 0.214
    EXPECT_EQ(pixelAt(*coded, 0, 0)[2], 65535);
    EXPECT_THAT(pixelAt(*coded, 1, 0), ElementsAre(0, 0, 0, 65535));
    EXPECT_EQ(readPicture(*encodePicture(light, {.bitsPerComponent = 8}))->format(), CIFormat::RGBA8);
}

TEST(PictureWriter, PutsTransparentPicturesOnWhiteWhereThereIsNoAlpha)
{
    CIBitmap glass(16, 16);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            std::ranges::copy(bytesOf({0, 0, 0, 51}), glass.mutableRow(y) + 4 * x);
    const Result<CIBitmap> back = readPicture(*encodePicture(glass, {.format = PictureFormat::Jpeg}));
    ASSERT_TRUE(back);
    EXPECT_EQ(back->alpha(), CIAlpha::Opaque);
    EXPECT_NEAR(pixelAt(*back, 8, 8)[1], 204, 2);
}

TEST(PictureWriter, HeedsTheOptionsThatAFormatHas)
{
    CIBitmap noise = noiseBitmap(64, 64, CIFormat::RGBA8, CIAlpha::Opaque);
    for (int y = 0; y < 64; ++y)
        for (std::size_t x = 0; x < 64; ++x)
            noise.mutableRow(y)[4 * x + 3] = std::byte(255);
    const auto size = [&](const WriteOptions& options) { return encodePicture(noise, options)->size(); };
    for (const FileFormat& format : fileFormats()) {
        if (!canWrite(format) || format.isIcon)
            continue;
        SCOPED_TRACE(format.name);
        const WriteOptions plain{.format = format.format};
        const auto differs = [&](auto change) {
            WriteOptions changed = plain;
            change(changed);
            return *encodePicture(noise, changed) != *encodePicture(noise, plain);
        };
        EXPECT_EQ(differs([](WriteOptions& o) { o.quality = 0.2; }), format.options.quality);
        EXPECT_EQ(differs([](WriteOptions& o) { o.isProgressive = true; }), format.options.progressive);
        EXPECT_EQ(differs([](WriteOptions& o) { o.hasFullChroma = true, o.quality = 0.5; }),
            format.options.chroma || format.options.quality);
        EXPECT_EQ(differs([&](WriteOptions& o) { o.compression = !format.options.compressions.empty(); }),
            !format.options.compressions.empty());
        EXPECT_EQ(differs([](WriteOptions& o) { o.dotsPerInch = 300; }), format.options.resolution);
        WriteOptions exact = plain;
        exact.isLossless = true;
        if (format.options.lossless && format.format != PictureFormat::Avif && format.format != PictureFormat::Heif) {
            EXPECT_EQ(largestDifference(*readPicture(*encodePicture(noise, exact)), noise), 0);
        }
    }
    EXPECT_GT(size({.format = PictureFormat::Jpeg, .quality = 0.5, .hasFullChroma = true}),
        size({.format = PictureFormat::Jpeg, .quality = 0.5}));
}

TEST(PictureWriter, KeepsTheRangeOfLightInFloatFiles)
{
    CIBitmap light(2, 1, CIFormat::RGBAf, CIAlpha::Premultiplied, CIColorSpace::LinearSRGB);
    std::ranges::copy(floatsOf({0.25f, 0.125f, 9.0f, 0.5f, 0.0f, -1.0f, 0.5f, 1.0f}), light.mutableRow(0));
    const Result<CIBitmap> back = readPicture(*encodePicture(light, {.format = PictureFormat::Exr}));
    ASSERT_TRUE(back) << back.message();
    EXPECT_THAT(pixelAt(*back, 0, 0), ElementsAre(0.25, 0.125, 9, 0.5));
    EXPECT_THAT(pixelAt(*back, 1, 0), ElementsAre(0, -1, 0.5, 1));

    CIBitmap glass(1, 1);
    std::ranges::copy(bytesOf({188, 0, 0, 51}), glass.mutableRow(0));
    EXPECT_NEAR(pixelAt(*readPicture(*encodePicture(glass, {.format = PictureFormat::Exr})), 0, 0)[0], 0.1, 0.001);
}

TEST(PictureWriter, SaysWhyAFileCantBeWritten)
{
    const QuietLog quiet;
    const TemporaryFolder folder;
    const auto bytes = bytesOf({1, 2, 3});
    EXPECT_EQ(writeBytes(bytes, folder.path() / "no folder" / "x").failure().reason, Reason::NoFolder);
    const fs::path system = "/sys/kernel/x"; // even for the administrator
    const Reason reason = writeBytes(bytes, system).failure().reason;
    EXPECT_TRUE(reason == Reason::ReadOnly || reason == Reason::NotPermitted) << int(reason);
}

TEST(PictureWriter, ReplacesFilesWholeOrNotAtAll)
{
    const QuietLog quiet;
    const TemporaryFolder folder;
    const CIBitmap picture = noiseBitmap(10, 10);
    const fs::path file = folder.write("old.png", bytesOf("old")), link = folder.path() / "link.png";
    ASSERT_EQ(chmod(file.c_str(), 0640), 0);
    fs::create_symlink("old.png", link);

    EXPECT_FALSE(writePicture(CIBitmap(), file));
    EXPECT_FALSE(writePicture(CIBitmap(70000, 1), file, {.format = PictureFormat::Jpeg})) << "wider than JPEG can be";
    EXPECT_EQ(fs::file_size(file), 3u) << "a failure leaves the old file";

    ASSERT_TRUE(writePng(picture, link));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(int(fs::status(file).permissions()), 0640);
    EXPECT_EQ(largestDifference(*readPicture(file), picture), 0);

    EXPECT_FALSE(writePng(picture, folder.path()));
    EXPECT_FALSE(writePng(picture, folder.path() / "no folder" / "x.png"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 2) << "nothing is left behind";
}

} // namespace
