// Files of other editors, and what is packed or placed in unusual ways.
#include "tests/imageio/PictureFiles.h"

#include "platform/imageio/ImageLog.h"
#include "platform/imageio/PictureReader.h"
#include "platform/imageio/reader_process/ReaderProcess.h"

#include <gmock/gmock.h>
#include <zlib.h>

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// As the program reads it.
CIBitmap read(const Bytes& file)
{
    const Result<CIBitmap> result = ReaderProcess(file).readPicture();
    EXPECT_TRUE(result) << result.message();
    return result ? *result : CIBitmap(9, 9);
}

Bytes joined(std::initializer_list<Bytes> parts)
{
    Bytes all;
    for (const Bytes& part : parts)
        append(all, part);
    return all;
}

Bytes big(std::initializer_list<std::uint32_t> values, int size)
{
    Bytes bytes;
    for (const std::uint32_t value : values)
        put(bytes, value, size, true);
    return bytes;
}

Bytes psd(int channels, int width, int height, int depth, int mode, const Bytes& data, const Bytes& layers = {},
    const Bytes& palette = {})
{
    return joined({bytesOf("8BPS"), big({1, 0, 0, 0}, 2), big({std::uint32_t(channels)}, 2),
        big({std::uint32_t(height), std::uint32_t(width)}, 4), big({std::uint32_t(depth), std::uint32_t(mode)}, 2),
        big({std::uint32_t(palette.size())}, 4), palette, big({0, std::uint32_t(layers.size())}, 4), layers, data});
}

constexpr int kGrey = 1, kIndexed = 2, kRgb = 3, kLab = 9;

TEST(PsdReader, InksAndOtherColors)
{
    const CIBitmap inks = inSrgb(read(inksFile()));
    EXPECT_GT(pixelAt(inks, 0, 0)[1], 250);
    EXPECT_LT(pixelAt(inks, 1, 0)[1], 80);
    EXPECT_LT(pixelAt(inks, 2, 0)[0] + 80, pixelAt(inks, 2, 0)[2]);

    const CIBitmap lab = read(psd(3, 2, 1, 8, kLab, bytesOf({0, 0, 255, 0, 128, 128, 128, 128})));
    EXPECT_NEAR(pixelAt(lab, 0, 0)[0], 65535, 700);
    EXPECT_NEAR(pixelAt(lab, 1, 0)[0], 0, 700);
    const CIBitmap deep = read(psd(1, 1, 2, 16, kGrey, bytesOf({0, 0, 0x12, 0x34, 0xff, 0xff})));
    EXPECT_THAT(pixelAt(deep, 0, 0), ElementsAre(0x1234, 0x1234, 0x1234, 65535));
    const CIBitmap light = read(psd(1, 1, 1, 32, kGrey, bytesOf({0, 0, 0x40, 0x20, 0, 0})));
    EXPECT_THAT(pixelAt(light, 0, 0), ElementsAre(2.5, 2.5, 2.5, 1));
    Bytes palette(768);
    palette[5] = std::byte(10);
    palette[256 + 5] = std::byte(20);
    palette[512 + 5] = std::byte(30);
    EXPECT_THAT(
        pixelAt(read(psd(1, 1, 1, 8, kIndexed, bytesOf({0, 0, 5}), {}, palette)), 0, 0), ElementsAre(10, 20, 30, 255));
}

TEST(PsdReader, RunsAndTransparency)
{
    // 200 twice; 10 and 20; 130 twice; alpha 255 and 51. The second pixel lies on white paper.
    const Bytes runs = joined({big({1, 2, 3, 2, 3}, 2), bytesOf({255, 255, 1, 10, 214, 255, 224, 1, 255, 51})});
    const Bytes layers = joined({big({2}, 4), bytesOf({0xff, 0xff}), big({0}, 4)}); // a count of -1
    const CIBitmap picture = read(psd(4, 2, 1, 8, kRgb, runs, layers));
    EXPECT_THAT(pixelAt(picture, 0, 0), ElementsAre(255, 10, 224, 255));
    EXPECT_THAT(pixelAt(picture, 1, 0), ElementsAre(255, 50, 100, 51));
    EXPECT_EQ(pixelAt(read(psd(4, 2, 1, 8, kRgb, runs)), 1, 0)[3], 255) << "the fourth channel is a selection";
    const Bytes whole = psd(4, 2, 1, 8, kRgb, runs, layers);
    setImageLog([](std::string_view) {});
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(readPicture(std::span(whole).first(size))) << size;
    setImageLog({});
}

TEST(GifReader, LeavesTheRestOfTheCanvasTransparent)
{
    Bytes gif = bytesOf("GIF89a");
    append(gif, bytesOf({3, 0, 2, 0, 0x80, 0, 0, 255, 0, 0, 0, 0, 255})); // 3 x 2; red and blue
    append(gif, bytesOf({0x21, 0xfe, 2, 'h', 'i', 0, 0x2c, 1, 0, 1, 0, 1, 0, 1, 0, 0, 2, 2, 0x4c, 1, 0, 0x3b}));
    const CIBitmap picture = read(gif);
    ASSERT_EQ(picture.width(), 3);
    EXPECT_THAT(pixelAt(picture, 1, 1), ElementsAre(0, 0, 255, 255));
    EXPECT_EQ(pixelAt(picture, 0, 0)[3], 0);
    EXPECT_EQ(pixelAt(picture, 2, 1)[3], 0);
}

Bytes gzipped(const std::string& text)
{
    Bytes packed(text.size() + 100);
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, MAX_WBITS + 16, 8, Z_DEFAULT_STRATEGY);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
    stream.avail_in = uInt(text.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = uInt(packed.size());
    deflate(&stream, Z_FINISH);
    packed.resize(packed.size() - stream.avail_out);
    deflateEnd(&stream);
    return packed;
}

TEST(SvgReader, UnpacksDrawings)
{
    const std::string start = "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20'>";
    const CIBitmap drawn = read(gzipped(start + "<rect width='20' height='20' fill='#0f0'/></svg>"));
    EXPECT_THAT(pixelAt(drawn, drawn.width() / 4, 5), ElementsAre(0, 255, 0, 255));
    setImageLog([](std::string_view) {});
    const Bytes bomb = gzipped(start + std::string(std::size_t(70) << 20, ' ') + "</svg>");
    EXPECT_THAT(readPicture(bomb).message(), HasSubstr("too large"));
    EXPECT_THAT(readPicture(gzipped("a letter, not a drawing")).message(), HasSubstr("not a picture of a kind"));
    setImageLog({});
}

TEST(OtherReaders, Pcx)
{
    Bytes pcx = bytesOf({10, 5, 1, 8, 0, 0, 0, 0, 1, 0, 0, 0, 72, 0, 72, 0}); // 2 x 1
    pcx.resize(128);
    pcx[65] = std::byte(3); // planes
    pcx[66] = std::byte(2); // bytes a row
    pcx[68] = std::byte(1);
    append(pcx, bytesOf({10, 20, 0xc2, 30, 50, 0xc1, 200})); // 10 20, 30 twice, 50 and 200
    const CIBitmap picture = read(pcx);
    EXPECT_THAT(pixelAt(picture, 0, 0), ElementsAre(10, 30, 50, 255));
    EXPECT_THAT(pixelAt(picture, 1, 0), ElementsAre(20, 30, 200, 255));
}

TEST(OtherReaders, Xcf)
{
    // One layer of 2 x 1 pixels in one tile, as runs of each channel.
    const auto property = [](std::uint32_t kind, const Bytes& value) {
        return joined({big({kind, std::uint32_t(value.size())}, 4), value});
    };
    const Bytes head = joined({bytesOf(std::string_view("gimp xcf file\0", 14)), big({2, 1, 0}, 4),
        property(17, bytesOf({1})), big({0, 0}, 4)}); // packed; the end of the properties
    const auto at = std::uint32_t(head.size() + 12); // of the layer; one more number ends the channels
    const Bytes layer = joined({big({2, 1, 0, 2}, 4), bytesOf(std::string_view("a\0", 2)), property(6, big({255}, 4)),
        property(8, big({1}, 4)), property(15, big({0, 0}, 4)), big({0, 0}, 4)});
    const std::uint32_t tree = at + std::uint32_t(layer.size()) + 8, level = tree + 20, tile = level + 16;
    const Bytes file = joined({head, big({at, 0, 0}, 4), layer, big({tree, 0}, 4), big({2, 1, 3, level, 0}, 4),
        big({2, 1, tile, 0}, 4), bytesOf({254, 10, 20, 1, 30, 254, 50, 200})});
    const CIBitmap picture = read(file);
    EXPECT_THAT(pixelAt(picture, 0, 0), ElementsAre(10, 30, 50, 255));
    EXPECT_THAT(pixelAt(picture, 1, 0), ElementsAre(20, 30, 200, 255));
}

TEST(OtherReaders, TellTooLargeFromDamaged)
{
    Bytes sgi = bytesOf({0x01, 0xda, 0, 1, 0, 3, 0xfd, 0xe8, 0, 2, 0, 3, 0, 0, 0, 0, 0, 0, 0, 255}); // 65000 x 2
    sgi.resize(512);
    sgi.resize(512 + 65000 * 2 * 3, std::byte(9));
    setImageLog([](std::string_view) {});
    const Result<CIBitmap> here = readPicture(sgi);
    setImageLog({});
    EXPECT_TRUE(here || here.failure().reason == Reason::TooLarge) << here.message();
    EXPECT_EQ(read(sgi).width(), 65000) << "the reading process has settings of its own";
}

} // namespace
