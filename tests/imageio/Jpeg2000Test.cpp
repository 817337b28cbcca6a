// JPEG 2000 with all that its boxes and its grid can say. Files are made of known samples, without loss.
#include "tests/imageio/ReadPictures.h"

#include "tests/support/QuietLog.h"

#include <fstream>
#include <iterator>

#include <openjpeg.h>

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

struct Component {
    std::vector<int> samples;
    int bits = 8;
    bool isSigned = false;
    int step = 1; // grid points between samples, each way
};

struct Grid {
    int left, top, right, bottom;
    int tileLeft = 0, tileTop = 0, tileSide = 0; // 0: one tile
};

OPJ_UINT32 samplesBetween(int first, int end, int step)
{
    return OPJ_UINT32((end + step - 1) / step - (first + step - 1) / step);
}

opj_image_t* imageOf(const Grid& grid, const std::vector<Component>& components)
{
    std::vector<opj_image_cmptparm_t> layout;
    for (const Component& component : components) {
        opj_image_cmptparm_t one{};
        one.dx = one.dy = OPJ_UINT32(component.step);
        one.w = samplesBetween(grid.left, grid.right, component.step);
        one.h = samplesBetween(grid.top, grid.bottom, component.step);
        one.prec = OPJ_UINT32(component.bits);
        one.sgnd = component.isSigned;
        layout.push_back(one);
    }
    opj_image_t* image = opj_image_create(OPJ_UINT32(layout.size()), layout.data(), OPJ_CLRSPC_UNSPECIFIED);
    image->x0 = OPJ_UINT32(grid.left);
    image->y0 = OPJ_UINT32(grid.top);
    image->x1 = OPJ_UINT32(grid.right);
    image->y1 = OPJ_UINT32(grid.bottom);
    for (std::size_t i = 0; i < components.size(); ++i) {
        EXPECT_EQ(components[i].samples.size(), std::size_t(layout[i].w) * layout[i].h);
        std::ranges::copy(components[i].samples, image->comps[i].data);
    }
    return image;
}

Bytes codestream(const Grid& grid, const std::vector<Component>& components)
{
    opj_cparameters_t parameters;
    opj_set_default_encoder_parameters(&parameters);
    parameters.tcp_numlayers = 1;
    parameters.cp_disto_alloc = 1;
    const bool isSmall = std::min(grid.right - grid.left, grid.bottom - grid.top) < 16;
    parameters.numresolution = isSmall ? 1 : 3;
    parameters.image_offset_x0 = grid.left;
    parameters.image_offset_y0 = grid.top;
    parameters.cp_tx0 = grid.tileLeft;
    parameters.cp_ty0 = grid.tileTop;
    parameters.tile_size_on = grid.tileSide > 0;
    parameters.cp_tdx = parameters.cp_tdy = grid.tileSide;
    const TemporaryFolder folder;
    const std::string path = folder.path() / "codestream";
    opj_image_t* image = imageOf(grid, components);
    opj_codec_t* codec = opj_create_compress(OPJ_CODEC_J2K);
    opj_stream_t* stream = opj_stream_create_default_file_stream(path.c_str(), OPJ_FALSE);
    EXPECT_TRUE(opj_setup_encoder(codec, &parameters, image) && opj_start_compress(codec, image, stream)
        && opj_encode(codec, stream) && opj_end_compress(codec, stream));
    opj_stream_destroy(stream);
    opj_destroy_codec(codec);
    opj_image_destroy(image);
    std::ifstream file(path, std::ios::binary);
    return bytesOf(std::string(std::istreambuf_iterator<char>(file), {}));
}

/// One pixel.
Bytes dot(const std::vector<int>& samples, int bits = 8)
{
    std::vector<Component> components;
    for (const int sample : samples)
        components.push_back({{sample}, bits});
    return codestream({0, 0, 1, 1}, components);
}

Bytes number(std::size_t value, int bytes)
{
    Bytes result;
    for (int i = bytes - 1; i >= 0; --i)
        result.push_back(std::byte(value >> 8 * i));
    return result;
}

Bytes box(const char* type, const Bytes& content)
{
    Bytes result = number(content.size() + 8, 4);
    append(result, bytesOf(type));
    append(result, content);
    return result;
}

Bytes enumerated(int space, const std::vector<int>& parameters = {})
{
    Bytes content = bytesOf({1, 0, 0});
    append(content, number(std::size_t(space), 4));
    for (const int parameter : parameters)
        append(content, number(std::size_t(parameter), 4));
    return box("colr", content);
}

Bytes boxed(const Bytes& stream, const std::vector<Bytes>& headers)
{
    Bytes file = box("jP  ", bytesOf({0x0d, 0x0a, 0x87, 0x0a})), header;
    append(file, box("ftyp", bytesOf({'j', 'p', '2', ' ', 0, 0, 0, 0, 'j', 'p', '2', ' '})));
    for (const Bytes& part : headers)
        append(header, part);
    append(file, box("jp2h", header));
    append(file, box("jp2c", stream));
    return file;
}

Pixel only(const Bytes& file) { return pixelAt(read(file), 0, 0); }

Pixel shown(const Bytes& file) { return pixelAt(inSrgb(read(file)), 0, 0); }

constexpr int kCmyk = 12, kYcck = 13, kLab = 14, kSrgb = 16, kGrey = 17, kSycc = 18, kEsycc = 24;

TEST(Jpeg2000, KeepsEveryPrecision)
{
    for (const int bits : {1, 2, 4, 7, 8, 9, 12, 16, 20}) {
        const int most = (1 << bits) - 1, some = most / 3;
        const double full = bits > 8 ? 65535 : 255;
        const Bytes plain = codestream({0, 0, 2, 1}, {{{some, most}, bits}});
        const Bytes shifted = codestream({0, 0, 2, 1}, {{{some - (1 << (bits - 1)), most >> 1}, bits, true}});
        for (const Bytes& file : {plain, shifted, boxed(plain, {enumerated(kGrey)})}) {
            const CIBitmap picture = read(file);
            EXPECT_EQ(picture.format(), bits > 8 ? CIFormat::RGBA16 : CIFormat::RGBA8) << bits;
            expectNear(pixelAt(picture, 0, 0), {full * some / most, full * some / most, full * some / most, full}, 0.5);
            EXPECT_THAT(pixelAt(picture, 1, 0), ElementsAre(full, full, full, full)) << bits;
        }
    }
}

TEST(Jpeg2000, LooksUpPalettes)
{
    const Bytes indices = codestream({0, 0, 3, 1}, {{{1, 0, 200}, 8}});
    const Bytes palette = box("pclr", bytesOf({0, 2, 4, 7, 7, 7, 7, 10, 20, 30, 255, 40, 50, 60, 128}));
    const Bytes columns = box("cmap", bytesOf({0, 0, 1, 0, 0, 0, 1, 1, 0, 0, 1, 2, 0, 0, 1, 3}));
    const Bytes opacity =
        box("cdef", bytesOf({0, 4, 0, 0, 0, 0, 0, 1, 0, 1, 0, 0, 0, 2, 0, 2, 0, 0, 0, 3, 0, 3, 0, 1, 0, 0}));
    const CIBitmap picture = read(boxed(indices, {palette, columns, opacity, enumerated(kSrgb)}));
    EXPECT_THAT(pixelAt(picture, 0, 0), ElementsAre(40, 50, 60, 128));
    EXPECT_THAT(pixelAt(picture, 1, 0), ElementsAre(10, 20, 30, 255));
    EXPECT_THAT(pixelAt(picture, 2, 0), ElementsAre(40, 50, 60, 128)) << "beyond the palette its last entry counts";

    const Bytes deep = box("pclr", bytesOf({0, 1, 3, 15, 15, 15, 0x12, 0x34, 0x56, 0x78, 0x9a, 0xbc}));
    const Bytes swapped = box("cmap", bytesOf({0, 0, 1, 2, 0, 0, 1, 1, 0, 0, 1, 0}));
    EXPECT_THAT(only(boxed(dot({0}), {deep, swapped, enumerated(kSrgb)})), ElementsAre(0x9abc, 0x5678, 0x1234, 65535));
}

TEST(Jpeg2000, PutsCoarseComponentsWhereTheyBelong)
{
    // Grid points 3 to 7, of which the coarse components know 4 and 6.
    const Component fine{{10, 20, 30, 40, 50}}, coarse{{100, 200}, 8, false, 2};
    const CIBitmap picture = read(boxed(codestream({3, 0, 8, 1}, {fine, coarse, coarse}), {enumerated(kSrgb)}));
    ASSERT_EQ(picture.width(), 5);
    const int expected[] = {100, 100, 100, 200, 200};
    for (int x = 0; x < 5; ++x)
        EXPECT_THAT(pixelAt(picture, x, 0), ElementsAre(10 * (x + 1), expected[x], expected[x], 255)) << x;

    const Component all{{1, 2, 3, 4}, 8, false, 2};
    const CIBitmap half = read(codestream({0, 0, 4, 4}, {all, all, all}));
    ASSERT_EQ(half.width(), 2) << "a picture has as many pixels as its finest component has samples";
    EXPECT_THAT(pixelAt(half, 1, 1), ElementsAre(4, 4, 4, 255));
}

TEST(Jpeg2000, MindsOffsetsOfPictureAndTiles)
{
    const int width = 37, height = 29;
    std::vector<int> samples;
    for (int i = 0; i < width * height; ++i)
        samples.push_back(i * 7 % 251);
    const Grid grids[] = {{0, 0, width, height}, {5, 3, 5 + width, 3 + height}, {5, 3, 5 + width, 3 + height, 2, 1, 16},
        {1000, 77, 1000 + width, 77 + height, 999, 70, 10}};
    for (const Grid& grid : grids) {
        const CIBitmap picture = read(codestream(grid, {{samples}}));
        ASSERT_EQ(picture.width(), width);
        ASSERT_EQ(picture.height(), height);
        for (int i = 0; i < width * height; ++i)
            ASSERT_EQ(pixelAt(picture, i % width, i / width)[0], samples[std::size_t(i)]) << grid.left << ", " << i;
    }
}

TEST(Jpeg2000, TurnsItsColorSpacesIntoSrgb)
{
    // Red, by the matrix of BT.601.
    for (const int space : {kSycc, kEsycc})
        expectNear(only(boxed(dot({76, 85, 255}), {enumerated(space)})), {254, 0, 0, 255}, 1.5);
    const Bytes red = codestream({0, 0, 1, 1}, {{{76}}, {{85 - 128}, 8, true}, {{127}, 8, true}});
    expectNear(only(boxed(red, {enumerated(kSycc)})), {254, 0, 0, 255}, 1.5);
    expectNear(only(boxed(dot({1224, 1357, 4095}, 12), {enumerated(kSycc)})), {65535, 0, 0, 65535}, 300);
    EXPECT_THAT(only(boxed(dot({90, 128, 128}), {enumerated(kSycc)})), ElementsAre(90, 90, 90, 255));

    expectNear(shown(boxed(dot({0, 0, 0, 0}), {enumerated(kCmyk)})), {255, 255, 255, 255}, 2);
    const Pixel cyan = shown(boxed(dot({255, 0, 0, 0}), {enumerated(kCmyk)}));
    EXPECT_LT(cyan[0], 80);
    EXPECT_GT(cyan[2], 180);

    // L 53.23, a 80.11, b 67.22 is sRGB's red under daylight; under D50 it is 54.29, 80.81, 69.89.
    const auto lab = [](double value, double range, double offset, double most) {
        return int(value * most / range + offset + 0.5);
    };
    const Bytes usual =
        dot({lab(54.29, 100, 0, 65535), lab(80.81, 170, 32768, 65535), lab(69.89, 200, 24576, 65535)}, 16);
    expectNear(only(boxed(usual, {enumerated(kLab)})), {65535, 0, 0, 65535}, 400);
    const Bytes own =
        dot({lab(54.29, 100, 0, 65535), lab(80.81, 256, 32768, 65535), lab(69.89, 256, 32768, 65535)}, 16);
    expectNear(only(boxed(own, {enumerated(kLab, {100, 0, 256, 32768, 256, 32768, 0})})), {65535, 0, 0, 65535}, 400);
}

TEST(Jpeg2000, FindsAlphaWhereTheDefinitionsSay)
{
    // Alpha, blue, green, red.
    const Bytes channels =
        box("cdef", bytesOf({0, 4, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 3, 0, 2, 0, 0, 0, 2, 0, 3, 0, 0, 0, 1}));
    EXPECT_THAT(only(boxed(dot({128, 30, 20, 10}), {channels, enumerated(kSrgb)})), ElementsAre(10, 20, 30, 128));

    Bytes multiplied = channels;
    multiplied[13] = std::byte(2); // the kind of the first one
    EXPECT_THAT(only(boxed(dot({51, 30, 20, 10}), {multiplied, enumerated(kSrgb)})), ElementsAre(50, 100, 150, 51));

    EXPECT_THAT(only(dot({10, 20, 30, 40})), ElementsAre(10, 20, 30, 40)) << "one channel more than colors is alpha";
    EXPECT_THAT(only(boxed(dot({10, 40}), {enumerated(kGrey)})), ElementsAre(10, 10, 10, 40));
}

TEST(Jpeg2000, AppliesEmbeddedProfiles)
{
    const cmsHPROFILE srgb = cmsCreate_sRGBProfile();
    cmsToneCurve* curve = cmsBuildGamma(nullptr, 1);
    for (const cmsTagSignature tag : {cmsSigRedTRCTag, cmsSigGreenTRCTag, cmsSigBlueTRCTag})
        cmsWriteTag(srgb, tag, curve);
    cmsFreeToneCurve(curve);
    Bytes color = bytesOf({2, 0, 0});
    append(color, savedProfile(srgb));
    expectNear(shown(boxed(dot({55, 55, 55}), {box("colr", color)})), {128, 128, 128, 255}, 1.5);
}

TEST(Jpeg2000, ReadsNoMoreDetailThanIsAskedFor)
{
    const CIBitmap half = read(codestream({5, 3, 205, 103}, {{std::vector<int>(200 * 100, 77)}}), {.maxSide = 90});
    EXPECT_EQ(half.width(), 90);
    EXPECT_EQ(pixelAt(half, 50, 20)[0], 77);
}

TEST(Jpeg2000, RefusesWhatCantBeRight)
{
    const QuietLog quiet;
    EXPECT_THAT(readPicture(boxed(dot({1, 2, 3, 4}), {enumerated(kYcck)})).message(), HasSubstr("kind of pixel"));
    const Bytes palette = box("pclr", bytesOf({0, 1, 1, 7, 9}));
    EXPECT_FALSE(readPicture(boxed(dot({0}), {palette, box("cmap", bytesOf({0, 7, 1, 0})), enumerated(kGrey)})));
    EXPECT_FALSE(readPicture(boxed(dot({0}), {palette, box("cmap", bytesOf({0, 0, 1, 3})), enumerated(kGrey)})));
    EXPECT_FALSE(readPicture(boxed(dot({0}), {box("pclr", bytesOf({4, 0, 3, 7})), enumerated(kGrey)})));
    EXPECT_FALSE(readPicture(boxed(dot({0}), {enumerated(kSrgb)}))) << "two colors are missing";
    const Bytes wide = codestream({0, 0, 1, 1}, {{{5}}});
    for (const int side : {0x00ffff, 0x7fffff}) { // of the grid, and of its one tile
        Bytes claimed = wide;
        for (const std::size_t place : {8, 24})
            std::ranges::copy(number(std::size_t(side) << 8, 4), claimed.begin() + std::ptrdiff_t(place));
        EXPECT_FALSE(readPicture(claimed)) << side;
    }
    const Bytes whole = codestream({0, 0, 64, 64}, {{std::vector<int>(64 * 64, 5)}});
    for (std::size_t size = 1; size < whole.size() - 2; size += 7)
        EXPECT_FALSE(readPicture(std::span(whole).first(size))) << size;
}

} // namespace
