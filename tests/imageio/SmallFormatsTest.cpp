// Formats with readers of our own, from files written byte by byte.
#include "tests/imageio/ReadPictures.h"

#include "platform/imageio/PictureWriter.h"
#include "tests/support/QuietLog.h"

namespace {

using ::testing::ElementsAre;

struct SmallFormats : testing::Test {
    const QuietLog quiet;

    /// No beginning of the file is a picture, and none does harm.
    static void expectWholeOnly(const Bytes& file)
    {
        for (std::size_t size = 0; size < file.size(); ++size)
            EXPECT_FALSE(readPicture(std::span(file).first(size))) << size;
    }
};

Bytes joined(std::string_view text, const Bytes& more)
{
    Bytes file = bytesOf(text);
    append(file, more);
    return file;
}

TEST_F(SmallFormats, PortableMapsAsTextAndBytes)
{
    for (const Bytes& bits :
        {bytesOf("P1\n# a comment\n3 2\n1 0 1\n001\n"), joined("P4 # bits\n3 2\n", bytesOf({0xa0, 0x20}))}) {
        const CIBitmap bitmap = read(bits);
        EXPECT_THAT(pixelAt(bitmap, 0, 0), ElementsAre(0, 0, 0, 255)) << "one is black";
        EXPECT_THAT(pixelAt(bitmap, 1, 0), ElementsAre(255, 255, 255, 255));
        EXPECT_THAT(pixelAt(bitmap, 2, 1), ElementsAre(0, 0, 0, 255));
    }
    for (const Bytes& grey : {bytesOf("P2 2 1 15 3#x\n 15 "), joined("P5 2 1 15\n", bytesOf({3, 15}))}) {
        EXPECT_THAT(pixelAt(read(grey), 0, 0), ElementsAre(51, 51, 51, 255)) << "of 15";
        EXPECT_THAT(pixelAt(read(grey), 1, 0), ElementsAre(255, 255, 255, 255));
    }
    for (const Bytes& color :
        {bytesOf("P3\n1 2\n255\n1 2 3\n4 5 6\n"), joined("P6\n1 2\n255\n", bytesOf({1, 2, 3, 4, 5, 6}))})
        EXPECT_THAT(pixelAt(read(color), 0, 1), ElementsAre(4, 5, 6, 255));
    const Bytes deep = joined("P6 1 1 1023\n", bytesOf({0, 0, 1, 0x55, 3, 0xff}));
    EXPECT_THAT(pixelAt(read(deep), 0, 0), ElementsAre(0, 21845, 65535, 65535)) << "of 1023";
    const Bytes alpha =
        joined("P7\nWIDTH 1\nHEIGHT 1\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n", bytesOf({9, 8, 7, 6}));
    EXPECT_THAT(pixelAt(read(alpha), 0, 0), ElementsAre(9, 8, 7, 6));
    const Bytes light = joined("PF\n1 2\n-1.0\n", floatsOf({1, 2, 3, 0.5f, 0.25f, 4}));
    EXPECT_THAT(pixelAt(read(light), 0, 0), ElementsAre(0.5, 0.25, 4, 1)) << "the last row is the top one";
    EXPECT_EQ(read(light).format(), CIFormat::RGBAf);

    expectWholeOnly(joined("P6 2 2 255\n", bytesOf({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12})));
    for (const char* wrong : {"P5 0 1 255\n........", "P5 2 2 0\n........", "P5 nan 2 255\n........",
             "P2 2 2 255 1 2 3 x ....", "P5 99999 99999 255\n........", "P6 1e300 2 255\n.........."})
        EXPECT_FALSE(readPicture(bytesOf(wrong))) << wrong;
}

TEST_F(SmallFormats, QuiteOkImages)
{
    Bytes file = joined("qoif", bytesOf({0, 0, 0, 4, 0, 0, 0, 2, 4, 0}));
    append(file,
        bytesOf({0xfe, 10, 20, 30, // a color
            0xff, 40, 50, 60, 70, // with alpha
            0x40 | 3 << 4 | 2 << 2 | 1, // one more, as much, one less
            0x80 | 37, 8 << 4 | 9, // by five; red and blue differ from that
            0xc1, // two more of these
            0x00 | (10 * 3 + 20 * 5 + 30 * 7 + 255 * 11) % 64, // the first one
            0xc0, 0, 0, 0, 0, 0, 0, 0, 1}));
    const CIBitmap picture = read(file);
    EXPECT_THAT(pixelAt(picture, 0, 0), ElementsAre(10, 20, 30, 255));
    EXPECT_THAT(pixelAt(picture, 1, 0), ElementsAre(40, 50, 60, 70));
    EXPECT_THAT(pixelAt(picture, 2, 0), ElementsAre(41, 50, 59, 70));
    for (const auto& [x, y] : {std::pair(3, 0), {0, 1}, {1, 1}})
        EXPECT_THAT(pixelAt(picture, x, y), ElementsAre(46, 55, 65, 70)) << x << ", " << y;
    EXPECT_THAT(pixelAt(picture, 2, 1), ElementsAre(10, 20, 30, 255));
    EXPECT_THAT(pixelAt(picture, 3, 1), ElementsAre(10, 20, 30, 255));
    file.resize(file.size() - 9); // the end mark, and the last run
    expectWholeOnly(file);
}

Bytes tga(int map, int kind, const Bytes& mapRange, int width, int height, int bits, int flags, const Bytes& rest)
{
    Bytes file = bytesOf({2, map, kind});
    append(file, mapRange);
    append(file, wordsOf({0, 0, width, height}));
    append(file, bytesOf({bits, flags, 'i', 'd'}));
    append(file, rest);
    return file;
}

TEST_F(SmallFormats, TargaWithAndWithoutRuns)
{
    const Bytes noMap = bytesOf({0, 0, 0, 0, 0});
    const CIBitmap fromBottom = read(tga(0, 2, noMap, 1, 2, 24, 0, bytesOf({1, 2, 3, 4, 5, 6})));
    EXPECT_THAT(pixelAt(fromBottom, 0, 0), ElementsAre(6, 5, 4, 255));
    const CIBitmap fromTop = read(tga(0, 2, noMap, 2, 1, 32, 0x28, bytesOf({1, 2, 3, 4, 5, 6, 7, 8})));
    EXPECT_THAT(pixelAt(fromTop, 1, 0), ElementsAre(7, 6, 5, 8));
    EXPECT_THAT(pixelAt(read(tga(0, 2, noMap, 2, 1, 16, 0x20, bytesOf({0x00, 0x7c, 0x1f, 0x80}))), 0, 0),
        ElementsAre(255, 0, 0, 255));

    const Bytes runs = tga(0, 11, noMap, 4, 1, 8, 0x20, bytesOf({0x82, 77, 0x00, 9}));
    EXPECT_THAT(pixelAt(read(runs), 2, 0), ElementsAre(77, 77, 77, 255));
    EXPECT_THAT(pixelAt(read(runs), 3, 0), ElementsAre(9, 9, 9, 255));
    expectWholeOnly(runs);

    const Bytes palette = bytesOf({5, 0, 2, 0, 24}); // its first color has the number 5
    const CIBitmap mapped = read(tga(1, 1, palette, 2, 1, 8, 0x30, bytesOf({1, 2, 3, 4, 5, 6, 5, 6})));
    EXPECT_THAT(pixelAt(mapped, 0, 0), ElementsAre(6, 5, 4, 255)) << "from right to left";
    EXPECT_FALSE(readPicture(tga(1, 1, palette, 2, 1, 8, 0x20, bytesOf({1, 2, 3, 4, 5, 6, 5, 7})))) << "no such color";
}

TEST_F(SmallFormats, IconsOfBothAges)
{
    for (const int side : {16, 48, 128}) { // a packed one among files
        const CIBitmap picture = noiseBitmap(side, side);
        const CIBitmap back = read(*encodePicture(picture, {.format = PictureFormat::Icns}));
        ASSERT_EQ(back.width(), side);
        for (int i = 0; i < side; ++i)
            EXPECT_EQ(pixelAt(back, i, side - 1 - i), pixelAt(picture, i, side - 1 - i)) << side;
    }
    // Runs: 256 of each plane are two of 128.
    Bytes planes = bytesOf("ARGB");
    for (const int value : {200, 10, 20, 30})
        append(planes, bytesOf({253, value, 253, value}));
    Bytes file = joined("icns", bytesOf({0, 0, 0, int(planes.size()) + 16}));
    append(file, joined("ic04", bytesOf({0, 0, 0, int(planes.size()) + 8})));
    append(file, planes);
    EXPECT_THAT(pixelAt(read(file), 15, 15), ElementsAre(10, 20, 30, 200));
    expectWholeOnly(file);
}

TEST_F(SmallFormats, RadianceKeepsLight)
{
    // 8 and more pixels a row come as planes of runs.
    Bytes file = joined("#?RADIANCE\nFORMAT=32-bit_rle_rgbe\n\n-Y 1 +X 8\n", bytesOf({2, 2, 0, 8}));
    for (const int value : {128, 64, 32, 131}) // 131 - 128 = 3: times 8
        append(file, bytesOf({128 + 8, value}));
    const CIBitmap picture = read(file);
    EXPECT_EQ(picture.format(), CIFormat::RGBAf);
    EXPECT_NEAR(pixelAt(picture, 3, 0)[0], 4, 0.05);
    EXPECT_NEAR(pixelAt(picture, 3, 0)[2], 1, 0.05);
}

} // namespace
