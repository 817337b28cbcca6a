// What PNG files say about their colors and the way up, and files that end too early.
#include "tests/imageio/ReadPictures.h"

#include "platform/imageio/ImageLog.h"
#include "platform/imageio/PictureReader.h"
#include "platform/imageio/PictureWriter.h"
#include "platform/imageio/reader_process/ReaderProcess.h"

#include <cmath>

#include <gmock/gmock.h>

namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using Chunks = std::vector<std::pair<std::string, Bytes>>;

double coded(double l) { return 255 * (l <= 0.0031308 ? 12.92 * l : 1.055 * std::pow(l, 1 / 2.4) - 0.055); }

Bytes bigEndian(std::initializer_list<std::uint32_t> values)
{
    Bytes bytes;
    for (const std::uint32_t value : values)
        put(bytes, value, 4, true);
    return bytes;
}

Bytes greyPng(const Chunks& chunks) { return pngFile(1, 1, 8, 2, bytesOf({100, 100, 100}), chunks); }

TEST(PngReader, HeedsGamma)
{
    const Chunks linear{{"gAMA", bigEndian({100000})}};
    EXPECT_NEAR(pixelAt(inSrgb(read(greyPng(linear))), 0, 0)[0], coded(100 / 255.0), 1);
    EXPECT_NEAR(pixelAt(inSrgb(read(pngFile(1, 1, 8, 0, bytesOf({100}), linear))), 0, 0)[1], coded(100 / 255.0), 1);
    EXPECT_THAT(pixelAt(read(greyPng({{"gAMA", bigEndian({45455})}})), 0, 0), ElementsAre(100, 100, 100, 255));
    EXPECT_THAT(pixelAt(read(greyPng({{"sRGB", bytesOf({0})}, {"gAMA", bigEndian({100000})}})), 0, 0),
        ElementsAre(100, 100, 100, 255));
}

TEST(PngReader, HeedsCodePointsBeforeAllElse)
{
    // Linear Rec. 2020, though the file has a gamma, too; white stays white.
    const Chunks wide{{"cICP", bytesOf({9, 8, 0, 1})}, {"gAMA", bigEndian({45455})}};
    EXPECT_NEAR(pixelAt(inSrgb(read(greyPng(wide))), 0, 0)[2], coded(100 / 255.0), 1);
    // The white of paper, 203 candela of at most 10000, has the code 0.5807 of the perceptual curve.
    const CIBitmap bright =
        read(pngFile(2, 1, 8, 2, bytesOf({148, 148, 148, 255, 255, 255}), {{"cICP", bytesOf({9, 16, 0, 1})}}));
    EXPECT_EQ(bright.format(), CIFormat::RGBAf);
    EXPECT_NEAR(pixelAt(bright, 0, 0)[1], 1, 0.02);
    EXPECT_NEAR(pixelAt(bright, 1, 0)[1], 10000 / 203.0, 0.01);
    const CIBitmap hybrid = read(pngFile(1, 1, 8, 6, bytesOf({191, 191, 191, 51}), {{"cICP", bytesOf({1, 18, 0, 1})}}));
    EXPECT_NEAR(pixelAt(hybrid, 0, 0)[0], 1, 0.02) << "three quarters are the white of paper";
    EXPECT_NEAR(pixelAt(hybrid, 0, 0)[3], 0.2, 1e-6);
}

TEST(PngReader, TurnsByXmp)
{
    const std::string xmp = "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
                            "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description rdf:about='' "
                            "xmlns:tiff='http://ns.adobe.com/tiff/1.0/' tiff:Orientation='6'/></rdf:RDF></x:xmpmeta>";
    Bytes text = bytesOf(std::string_view("XML:com.adobe.xmp\0\0\0\0\0", 22));
    append(text, bytesOf(xmp));
    const CIBitmap upright = read(pngFile(2, 1, 8, 0, bytesOf({7, 77}), {{"iTXt", text}}));
    ASSERT_EQ(upright.height(), 2);
    EXPECT_EQ(pixelAt(upright, 0, 0)[0], 7);
    EXPECT_EQ(pixelAt(upright, 0, 1)[0], 77);
}

struct Parts : testing::Test {
    Parts()
    {
        setImageLog([](std::string_view) {});
    }
    ~Parts() override { setImageLog({}); }

    /// In this process and in one of its own.
    static void forBoth(const Bytes& file, const std::function<void(const Result<CIBitmap>&, bool isIncomplete)>& check)
    {
        std::atomic<bool> isIncomplete = false;
        const Result<CIBitmap> here = readPicture(file, {.isIncomplete = &isIncomplete});
        check(here, isIncomplete.exchange(false));
        const Result<CIBitmap> there = ReaderProcess(file).readPicture({.isIncomplete = &isIncomplete});
        check(there, isIncomplete);
    }
};

TEST_F(Parts, OfFilesThatEndTooEarly)
{
    const CIBitmap noise = noiseBitmap(200, 200, CIFormat::RGBA8, CIAlpha::Opaque);
    for (const PictureFormat format : {PictureFormat::Png, PictureFormat::Jpeg}) {
        const Bytes whole = *encodePicture(noise, {.format = format});
        const Result<CIBitmap> expected = readPicture(whole);
        const Bytes half(whole.begin(), whole.begin() + std::ptrdiff_t(whole.size() / 2));
        EXPECT_FALSE(readPicture(half)) << "who doesn't ask for parts gets none";
        forBoth(half, [&](const Result<CIBitmap>& part, bool isIncomplete) {
            ASSERT_TRUE(part) << part.message();
            EXPECT_TRUE(isIncomplete);
            for (int y = 0; y < 60; ++y)
                ASSERT_EQ(pixelAt(*part, y, y), pixelAt(*expected, y, y)) << y;
            EXPECT_NE(pixelAt(*part, 199, 199), pixelAt(*expected, 199, 199));
            if (format == PictureFormat::Png) {
                EXPECT_THAT(pixelAt(*part, 199, 199), Each(0));
            }
        });
        forBoth(whole, [](const Result<CIBitmap>& read, bool isIncomplete) {
            EXPECT_TRUE(read);
            EXPECT_FALSE(isIncomplete);
        });
        const Bytes start(whole.begin(), whole.begin() + 60);
        forBoth(start, [](const Result<CIBitmap>& read, bool) { EXPECT_THAT(read.message(), HasSubstr("damaged")); });
    }
    forBoth(pngFile(20000, 20000, 8, 6, bytesOf({1, 2, 3})),
        [](const Result<CIBitmap>& read, bool) { EXPECT_FALSE(read); });
}

} // namespace
