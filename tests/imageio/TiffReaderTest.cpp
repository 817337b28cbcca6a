// TIFF files of rarer kinds.
#include "tests/imageio/ReadPictures.h"

#include "platform/imageio/ImageLog.h"
#include "platform/imageio/PictureReader.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

constexpr int kBits = 258, kPlanar = 284, kExtra = 338, kFormat = 339, kSubsampling = 530;

TEST(TiffReader, SignedSamplesBeginWithBlack)
{
    const CIBitmap bytes = read(tiffFile(3, 1, 1, 8, 1, bytesOf({0x80, 0, 0x7f}), {{kFormat, 3, {2}}}));
    EXPECT_THAT(pixelAt(bytes, 0, 0), ElementsAre(0, 0, 0, 255));
    EXPECT_THAT(pixelAt(bytes, 1, 0), ElementsAre(128, 128, 128, 255));
    EXPECT_THAT(pixelAt(bytes, 2, 0), ElementsAre(255, 255, 255, 255));
    const CIBitmap words = read(tiffFile(2, 1, 1, 16, 1, wordsOf({0x8000, 0x7fff}), {{kFormat, 3, {2}}}));
    EXPECT_THAT(pixelAt(words, 0, 0), ElementsAre(0, 0, 0, 65535));
    EXPECT_THAT(pixelAt(words, 1, 0), ElementsAre(65535, 65535, 65535, 65535));
}

TEST(TiffReader, SamplesOfOddDepths)
{
    // 10, 12 and 14 bits: full, half, none.
    const CIBitmap tens = read(tiffFile(1, 1, 3, 10, 2, bytesOf({0xff, 0xe0, 0x00, 0x00}))); // 1023, 512, 0
    EXPECT_EQ(tens.format(), CIFormat::RGBA16);
    EXPECT_THAT(pixelAt(tens, 0, 0), ElementsAre(65535, 32800, 0, 65535));
    const CIBitmap twelves = read(tiffFile(2, 2, 1, 12, 1, bytesOf({0xff, 0xf0, 0x01, 0x80, 0x0f, 0xff})));
    EXPECT_THAT(pixelAt(twelves, 0, 0), ElementsAre(65535, 65535, 65535, 65535));
    EXPECT_THAT(pixelAt(twelves, 1, 0), ElementsAre(16, 16, 16, 65535));
    EXPECT_THAT(pixelAt(twelves, 0, 1), ElementsAre(32776, 32776, 32776, 65535));
    const CIBitmap fours = read(tiffFile(2, 1, 3, 4, 2, bytesOf({0xf0, 0x50, 0xf1})));
    EXPECT_THAT(pixelAt(fours, 0, 0), ElementsAre(255, 0, 85, 255));
    EXPECT_THAT(pixelAt(fours, 1, 0), ElementsAre(0, 255, 17, 255));
    const CIBitmap sixes = read(tiffFile(1, 1, 1, 6, 0, bytesOf({0xfc})));
    EXPECT_THAT(pixelAt(sixes, 0, 0), ElementsAre(0, 0, 0, 255)) << "0 is white";
    const CIBitmap planes = read(tiffFile(2, 1, 3, 12, 2, bytesOf({0xff, 0xf0, 0x00, 0x00, 0x0f, 0xff, 0, 0, 0}),
        {{kPlanar, 3, {2}}, {273, 4, {8, 11, 14}}, {279, 4, {3, 3, 3}}}));
    EXPECT_THAT(pixelAt(planes, 0, 0), ElementsAre(65535, 0, 0, 65535));
    EXPECT_THAT(pixelAt(planes, 1, 0), ElementsAre(0, 65535, 0, 65535));
    const CIBitmap alpha = read(tiffFile(1, 1, 2, 12, 1, bytesOf({0xff, 0xf8, 0x00}), {{kExtra, 3, {2}}}));
    EXPECT_THAT(pixelAt(alpha, 0, 0), ElementsAre(65535, 65535, 65535, 32776));
}

TEST(TiffReader, ShortFloats)
{
    const CIBitmap halves =
        read(tiffFile(1, 1, 3, 16, 2, wordsOf({0x3c00, 0x4100, 0xb400}), {{kFormat, 3, {3, 3, 3}}}));
    EXPECT_THAT(pixelAt(halves, 0, 0), ElementsAre(1, 2.5, -0.25, 1));
    const CIBitmap longer = read(tiffFile(1, 1, 1, 24, 1, bytesOf({0, 0, 0x3f}), {{kFormat, 3, {3}}}));
    EXPECT_THAT(pixelAt(longer, 0, 0), ElementsAre(1, 1, 1, 1)) << "1 sign, 7 exponent, 16 mantissa bits";
}

TEST(TiffReader, BrightnessAndColorDifferences)
{
    // Rec. 601: red is 76, 85, 255; no subsampling, then one pair of differences for four pixels.
    const CIBitmap full =
        read(tiffFile(2, 1, 3, 8, 6, bytesOf({76, 85, 255, 150, 44, 21}), {{kSubsampling, 3, {1, 1}}}));
    expectNear(pixelAt(full, 0, 0), {255, 0, 0, 255}, 2);
    expectNear(pixelAt(full, 1, 0), {0, 255, 0, 255}, 2);
    const CIBitmap coarse =
        read(tiffFile(2, 2, 3, 8, 6, bytesOf({76, 76, 76, 200, 85, 255}), {{kSubsampling, 3, {2, 2}}}));
    expectNear(pixelAt(coarse, 1, 0), {255, 0, 0, 255}, 2);
    expectNear(pixelAt(coarse, 1, 1), {255, 124, 124, 255}, 2);
    const Bytes turned = tiffFile(2, 1, 3, 8, 6, bytesOf({76, 85, 255, 150, 44, 21}),
        {{kSubsampling, 3, {1, 1}}, {274, 3, {6}}}); // its left side goes up
    ASSERT_EQ(read(turned).height(), 2);
    expectNear(pixelAt(read(turned), 0, 0), {255, 0, 0, 255}, 2);
}

TEST(TiffReader, HugeClaimsAndBeginnings)
{
    setImageLog([](std::string_view) {});
    const Bytes odd = tiffFile(60000, 60000, 3, 12, 2, bytesOf({1, 2, 3}));
    EXPECT_FALSE(readPicture(odd));
    EXPECT_FALSE(readPicture(tiffFile(60000, 60000, 3, 8, 6, bytesOf({1, 2, 3}))));
    const Bytes sound = tiffFile(2, 2, 1, 12, 1, bytesOf({0xff, 0xf0, 0x01, 0x80, 0x0f, 0xff}));
    for (std::size_t size = 0; size < sound.size() - 4; ++size)
        EXPECT_FALSE(readPicture(std::span(sound).first(size))) << size;
    setImageLog({});
}

} // namespace
