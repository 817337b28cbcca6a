// BMP files and icons of all ages, written byte by byte.
#include "tests/imageio/ReadPictures.h"

#include "platform/imageio/ImageLog.h"
#include "platform/imageio/PictureReader.h"
#include "platform/imageio/PictureWriter.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

struct BmpReader : testing::Test {
    BmpReader()
    {
        setImageLog([](std::string_view) {});
    }
    ~BmpReader() override { setImageLog({}); }
};

Bytes joined(std::initializer_list<Bytes> parts)
{
    Bytes all;
    for (const Bytes& part : parts)
        append(all, part);
    return all;
}

Bytes longs(std::initializer_list<std::int64_t> values)
{
    Bytes bytes;
    for (const std::int64_t value : values)
        put(bytes, std::uint32_t(value), 4);
    return bytes;
}

/// A header of 40 bytes or more; `more` follows its first 40.
Bytes header(int size, int width, int height, int bits, int compression, int colors = 0, const Bytes& more = {})
{
    Bytes bytes =
        joined({longs({size, width, height}), wordsOf({1, bits}), longs({compression, 0, 0, 0, colors, 0}), more});
    bytes.resize(std::size_t(std::max(size, int(bytes.size()))));
    return bytes;
}

Bytes bmp(const Bytes& dib, const Bytes& palette, const Bytes& pixels)
{
    const auto at = std::int64_t(14 + dib.size() + palette.size());
    return joined({bytesOf("BM"), longs({at + std::int64_t(pixels.size()), 0, at}), dib, palette, pixels});
}

const Bytes kTwoColors = bytesOf({10, 20, 30, 0, 40, 50, 60, 0});
const Bytes kMasks = longs({0xff0000, 0xff00, 0xff, 0xff000000});

TEST_F(BmpReader, PixelsOfEveryDepth)
{
    for (const auto& [bits, row] : {std::pair(1, bytesOf({0x40, 0, 0, 0})), {2, bytesOf({0x10, 0, 0, 0})},
             {4, bytesOf({0x01, 0, 0, 0})}, {8, bytesOf({0, 1, 0, 0})}}) {
        const CIBitmap bitmap = read(bmp(header(40, 2, 1, bits, 0, 2), kTwoColors, row));
        EXPECT_THAT(pixelAt(bitmap, 0, 0), ElementsAre(30, 20, 10, 255)) << bits;
        EXPECT_THAT(pixelAt(bitmap, 1, 0), ElementsAre(60, 50, 40, 255)) << bits;
    }
    const CIBitmap fives = read(bmp(header(40, 2, -2, 16, 0), {}, wordsOf({0x7c00, 0x001f, 0x03e0, 0x4210})));
    EXPECT_THAT(pixelAt(fives, 0, 0), ElementsAre(255, 0, 0, 255)) << "from the top";
    EXPECT_THAT(pixelAt(fives, 1, 1), ElementsAre(132, 132, 132, 255));
    const CIBitmap sixes =
        read(bmp(header(40, 2, 1, 16, 3, 0, longs({0xf800, 0x7e0, 0x1f})), {}, wordsOf({0x07e0, 0xf800})));
    EXPECT_THAT(pixelAt(sixes, 0, 0), ElementsAre(0, 255, 0, 255));
    const CIBitmap tens =
        read(bmp(header(40, 1, 1, 32, 3, 0, longs({0x3ff00000, 0xffc00, 0x3ff})), {}, longs({0x3ff00000 | 512 << 10})));
    EXPECT_THAT(pixelAt(tens, 0, 0), ElementsAre(255, 128, 0, 255));
    const Bytes bgra = bytesOf({1, 2, 3, 4});
    EXPECT_THAT(pixelAt(read(bmp(header(40, 1, 1, 32, 0), {}, bgra)), 0, 0), ElementsAre(3, 2, 1, 255));
    EXPECT_THAT(pixelAt(read(bmp(header(124, 1, 1, 32, 3, 0, kMasks), {}, bgra)), 0, 0), ElementsAre(3, 2, 1, 4));
}

TEST_F(BmpReader, HeadersOfOtherSystems)
{
    const Bytes first = joined({longs({12}), wordsOf({2, 1, 1, 8})});
    const CIBitmap old = read(bmp(first, bytesOf({10, 20, 30, 40, 50, 60}), bytesOf({1, 0, 0, 0})));
    EXPECT_THAT(pixelAt(old, 0, 0), ElementsAre(60, 50, 40, 255)) << "three bytes a color";
    const Bytes second = header(64, 4, 1, 24, 4); // runs of whole pixels
    const CIBitmap runs = read(bmp(second, {}, bytesOf({3, 1, 2, 3, 1, 7, 8, 9, 0, 1})));
    EXPECT_THAT(pixelAt(runs, 2, 0), ElementsAre(3, 2, 1, 255));
    EXPECT_THAT(pixelAt(runs, 3, 0), ElementsAre(9, 8, 7, 255));
    const Bytes short16 = joined({longs({16, 2, 1}), wordsOf({1, 8})});
    EXPECT_THAT(pixelAt(read(bmp(short16, kTwoColors, bytesOf({1, 0, 0, 0}))), 1, 0), ElementsAre(30, 20, 10, 255));
}

TEST_F(BmpReader, RunsAndWhatTheyLeaveOut)
{
    const CIBitmap picture = read(runsFile());
    EXPECT_THAT(pixelAt(picture, 1, 1), ElementsAre(60, 50, 40, 255));
    EXPECT_EQ(pixelAt(picture, 2, 1)[3], 0) << "no run names it";
    EXPECT_THAT(pixelAt(picture, 4, 0), ElementsAre(60, 50, 40, 255));
    EXPECT_THAT(pixelAt(picture, 5, 0), ElementsAre(30, 20, 10, 255));
    const CIBitmap fours = read(bmp(header(40, 5, 1, 4, 2, 2), kTwoColors, bytesOf({5, 0x01, 0, 1})));
    EXPECT_THAT(pixelAt(fours, 2, 0), ElementsAre(30, 20, 10, 255));
    EXPECT_THAT(pixelAt(fours, 3, 0), ElementsAre(60, 50, 40, 255));
    EXPECT_FALSE(readPicture(bmp(header(40, 5000, 5000, 8, 1, 2), kTwoColors, bytesOf({0, 1})))) << "too few bytes";
    EXPECT_FALSE(readPicture(bmp(header(40, 6, 2, 8, 1, 2), kTwoColors, bytesOf({2, 1, 0, 9, 1}))));
}

Bytes icon(std::initializer_list<std::pair<int, Bytes>> pictures) // sides, contents
{
    Bytes file = wordsOf({0, 1, int(pictures.size())}), contents;
    for (const auto& [side, content] : pictures) {
        append(file, bytesOf({side, side, 0, 0, 1, 0, 0, 0}));
        append(file, longs({std::int64_t(content.size()), std::int64_t(6 + 16 * pictures.size() + contents.size())}));
        append(contents, content);
    }
    append(file, contents);
    return file;
}

TEST_F(BmpReader, IconsWithAlphaMasksAndFiles)
{
    const Bytes mask = bytesOf({0x80, 0, 0, 0, 0, 0, 0, 0}); // bottom left is transparent
    const Bytes pixels = bytesOf({1, 2, 3, 0, 4, 5, 6, 0, 7, 8, 9, 0, 10, 11, 12, 0});
    const CIBitmap masked = read(icon({{2, joined({header(40, 2, 4, 32, 0), pixels, mask})}}));
    ASSERT_EQ(masked.height(), 2);
    EXPECT_EQ(pixelAt(masked, 0, 1)[3], 0);
    EXPECT_THAT(pixelAt(masked, 1, 0), ElementsAre(12, 11, 10, 255));
    for (const int compression : {0, 3}) { // headers of the fifth version
        const Bytes fifth = header(124, 1, 2, 32, compression, 0, kMasks);
        const CIBitmap painted = read(icon({{1, joined({fifth, bytesOf({1, 2, 3, 77}), bytesOf({0, 0, 0, 0})})}}));
        EXPECT_THAT(pixelAt(painted, 0, 0), ElementsAre(3, 2, 1, 77)) << compression;
    }
    const CIBitmap mapped =
        read(icon({{1, joined({header(40, 1, 2, 1, 0, 2), kTwoColors, bytesOf({0x80, 0, 0, 0, 0, 0, 0, 0})})}}));
    EXPECT_THAT(pixelAt(mapped, 0, 0), ElementsAre(60, 50, 40, 255));
    const Bytes png = *encodePicture(noiseBitmap(16, 16), {.format = PictureFormat::Png});
    EXPECT_EQ(read(icon({{2, joined({header(40, 2, 4, 32, 0), pixels, mask})}, {16, png}})).width(), 16);
}

TEST_F(BmpReader, NoBeginningDoesHarm)
{
    const Bytes pixels = bytesOf({1, 2, 3, 0, 4, 5, 6, 0, 7, 8, 9, 0, 10, 11, 12, 0});
    for (const Bytes& file : {bmp(header(40, 2, 2, 32, 0), {}, pixels),
             bmp(header(40, 6, 1, 8, 1, 2), kTwoColors, bytesOf({0, 6, 0, 1, 0, 1, 0, 1, 0, 1}))})
        for (std::size_t size = 0; size < file.size(); ++size)
            EXPECT_FALSE(readPicture(std::span(file).first(size)) && size + 2 < file.size()) << size;
    for (const auto& [width, height] :
        {std::pair(0, 1), {1, 0}, {-5, 5}, {0x7fffffff, 0x7fffffff}, {1, int(0x80000000)}})
        for (const int compression : {0, 1, 3})
            EXPECT_FALSE(readPicture(bmp(header(40, width, height, compression ? 8 : 32, compression), {}, pixels)));
}

} // namespace
