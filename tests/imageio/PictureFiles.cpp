#include "tests/imageio/PictureFiles.h"

#include "platform/imageio/PictureRows.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>

namespace {

void put(Bytes& target, std::uint32_t value, int size, bool isBigEndian = false)
{
    for (int i = 0; i < size; ++i)
        target.push_back(std::byte(value >> 8 * (isBigEndian ? size - 1 - i : i)));
}

std::uint32_t crc32(const Bytes& bytes)
{
    std::uint32_t crc = ~0u;
    for (const std::byte b : bytes) {
        crc ^= std::to_integer<std::uint32_t>(b);
        for (int i = 0; i < 8; ++i)
            crc = crc >> 1 ^ (crc & 1 ? 0xedb88320u : 0);
    }
    return ~crc;
}

/// A zlib stream of stored blocks.
Bytes zlibStored(const Bytes& content)
{
    Bytes stream = bytesOf({0x78, 0x01});
    std::uint32_t a = 1, b = 0;
    for (std::size_t start = 0; start == 0 || start < content.size(); start += 65535) {
        const std::size_t size = std::min<std::size_t>(65535, content.size() - start);
        stream.push_back(std::byte(start + size == content.size()));
        put(stream, std::uint32_t(size), 2);
        put(stream, ~std::uint32_t(size), 2);
        stream.insert(
            stream.end(), content.begin() + std::ptrdiff_t(start), content.begin() + std::ptrdiff_t(start + size));
    }
    for (const std::byte byte : content) {
        a = (a + std::to_integer<std::uint32_t>(byte)) % 65521;
        b = (b + a) % 65521;
    }
    put(stream, b << 16 | a, 4, true);
    return stream;
}

void putChunk(Bytes& png, const std::string& name, const Bytes& content)
{
    Bytes checked = bytesOf(name);
    append(checked, content);
    put(png, std::uint32_t(content.size()), 4, true);
    append(png, checked);
    put(png, crc32(checked), 4, true);
}

int sizeOfType(int type)
{
    switch (type) {
    case 3:
        return 2;
    case 4:
        return 4;
    case 5:
    case 10:
        return 4; // a rational is two of these
    default:
        return 1;
    }
}

Bytes bmpHeader(int width, int height, int storedHeight)
{
    Bytes header;
    for (const int value : {40, width, storedHeight})
        put(header, std::uint32_t(value), 4);
    append(header, wordsOf({1, 24}));
    for (const int value : {0, (width * 3 + 3) / 4 * 4 * height, 2835, 2835, 0, 0})
        put(header, std::uint32_t(value), 4);
    return header;
}

// Bottom row first, blue first, rows of whole 32-bit words.
const std::initializer_list<int> kBmpPixels = {255, 0, 0, 255, 255, 255, 0, 0, 0, 0, 255, 0, 255, 0, 0, 0};

template <class Save>
Bytes saved(const CIBitmap& bitmap, Save save)
{
    imageio::useVips();
    const imageio::VipsImagePtr image = imageio::imageOfBitmap(bitmap, {.hasAlpha = true});
    void* bytes = nullptr;
    std::size_t size = 0;
    save(image.get(), &bytes, &size);
    const auto* first = static_cast<const std::byte*>(bytes);
    Bytes result(first, first + size);
    g_free(bytes);
    return result;
}

} // namespace

Bytes bytesOf(std::string_view text)
{
    const auto* first = reinterpret_cast<const std::byte*>(text.data());
    return {first, first + text.size()};
}

Bytes bytesOf(std::initializer_list<int> values)
{
    Bytes bytes;
    for (const int value : values)
        bytes.push_back(std::byte(value));
    return bytes;
}

Bytes wordsOf(std::initializer_list<int> values)
{
    Bytes bytes;
    for (const int value : values)
        put(bytes, std::uint32_t(value), 2);
    return bytes;
}

Bytes floatsOf(std::initializer_list<float> values)
{
    Bytes bytes;
    for (const float value : values)
        put(bytes, std::bit_cast<std::uint32_t>(value), 4);
    return bytes;
}

void append(Bytes& target, const Bytes& more) { target.insert(target.end(), more.begin(), more.end()); }

Bytes pngFile(int width, int height, int bits, int colorType, const Bytes& rows,
    const std::vector<std::pair<std::string, Bytes>>& chunks)
{
    Bytes png = bytesOf("\x89PNG\r\n\x1a\n");
    Bytes header;
    put(header, std::uint32_t(width), 4, true);
    put(header, std::uint32_t(height), 4, true);
    append(header, bytesOf({bits, colorType, 0, 0, 0}));
    putChunk(png, "IHDR", header);
    for (const auto& [name, content] : chunks)
        putChunk(png, name, content);
    const int samples = colorType == 2 ? 3 : colorType == 6 ? 4 : colorType == 4 ? 2 : 1;
    const std::size_t rowSize = (std::size_t(width) * std::size_t(samples * bits) + 7) / 8;
    Bytes filtered;
    for (std::size_t at = 0; at + rowSize <= rows.size(); at += rowSize) {
        filtered.push_back(std::byte(0)); // no filter
        filtered.insert(filtered.end(), rows.begin() + std::ptrdiff_t(at), rows.begin() + std::ptrdiff_t(at + rowSize));
    }
    putChunk(png, "IDAT", zlibStored(filtered));
    putChunk(png, "IEND", {});
    return png;
}

std::pair<std::string, Bytes> profileChunk(const Bytes& profile)
{
    Bytes content = bytesOf(std::string_view("test\0\0", 6));
    append(content, zlibStored(profile));
    return {"iCCP", content};
}

Bytes tiffFile(int width, int height, int samples, int bits, int photometric, const Bytes& pixels,
    const std::vector<TiffEntry>& entries)
{
    std::map<int, TiffEntry> all;
    const auto set = [&all](TiffEntry entry) { all[entry.tag] = std::move(entry); };
    set({256, 4, {width}});
    set({257, 4, {height}});
    set({258, 3, std::vector<std::int64_t>(std::size_t(samples), bits)});
    set({259, 3, {1}});
    set({262, 3, {photometric}});
    set({273, 4, {8}});
    set({277, 3, {samples}});
    set({278, 4, {height}});
    set({279, 4, {std::int64_t(pixels.size())}});
    for (const TiffEntry& entry : entries)
        set(entry);

    Bytes tiff = bytesOf(std::string_view("II*\0", 4));
    Bytes outside, directory;
    const std::size_t start = 8 + pixels.size() + pixels.size() % 2;
    const std::size_t outsideStart = start + 2 + 12 * all.size() + 4;
    put(tiff, std::uint32_t(start), 4);
    append(tiff, pixels);
    tiff.resize(start);
    put(directory, std::uint32_t(all.size()), 2);
    for (const auto& [tag, entry] : all) {
        Bytes values;
        for (const std::int64_t value : entry.values)
            put(values, std::uint32_t(value), sizeOfType(entry.type));
        const bool isRational = entry.type == 5 || entry.type == 10;
        put(directory, std::uint32_t(tag), 2);
        put(directory, std::uint32_t(entry.type), 2);
        put(directory, std::uint32_t(entry.values.size() / (isRational ? 2 : 1)), 4);
        if (values.size() > 4) {
            put(directory, std::uint32_t(outsideStart + outside.size()), 4);
            append(outside, values);
            outside.resize((outside.size() + 1) / 2 * 2);
        } else {
            values.resize(4);
            append(directory, values);
        }
    }
    put(directory, 0, 4);
    append(tiff, directory);
    append(tiff, outside);
    return tiff;
}

Bytes gifFile()
{
    Bytes gif = bytesOf("GIF89a");
    append(gif, bytesOf({1, 0, 1, 0, 0x80, 0, 0, 255, 0, 0, 0, 0, 255})); // a palette of red and blue
    for (const int codes : {0x44, 0x4c}) { // clear, color 0 or 1, end
        append(gif, bytesOf({0x21, 0xf9, 4, 0, 10, 0, 0, 0, 0x2c, 0, 0, 0, 0, 1, 0, 1, 0, 0}));
        append(gif, bytesOf({2, 2, codes, 1, 0}));
    }
    append(gif, bytesOf({0x3b}));
    return gif;
}

Bytes bmpFile()
{
    Bytes bmp = bytesOf("BM");
    for (const int value : {14 + 40 + 16, 0, 14 + 40})
        put(bmp, std::uint32_t(value), 4);
    append(bmp, bmpHeader(2, 2, 2));
    append(bmp, bytesOf(kBmpPixels));
    return bmp;
}

Bytes iconFile()
{
    Bytes small = bmpHeader(1, 1, 2), large = bmpHeader(2, 2, 4); // heights count the mask rows too
    append(small, bytesOf({0, 255, 0, 0, 0, 0, 0, 0}));
    append(large, bytesOf(kBmpPixels));
    large.resize(large.size() + 8);
    Bytes icon = wordsOf({0, 1, 2});
    std::uint32_t offset = 6 + 2 * 16;
    for (const auto& [side, image] : {std::pair<int, const Bytes&>{1, small}, {2, large}}) {
        append(icon, bytesOf({side, side, 0, 0, 1, 0, 24, 0}));
        put(icon, std::uint32_t(image.size()), 4);
        put(icon, offset, 4);
        offset += std::uint32_t(image.size());
    }
    append(icon, small);
    append(icon, large);
    return icon;
}

Bytes sgiFile()
{
    Bytes sgi = bytesOf({0x01, 0xda, 0, 1, 0, 3, 0, 2, 0, 1, 0, 3, 0, 0, 0, 0, 0, 0, 0, 255});
    sgi.resize(512);
    append(sgi, bytesOf({255, 0, 0, 0, 0, 255})); // one plane after the other
    return sgi;
}

Bytes psdFile()
{
    Bytes psd = bytesOf("8BPS");
    append(psd, bytesOf({0, 1, 0, 0, 0, 0, 0, 0, 0, 3, 0, 0, 0, 1, 0, 0, 0, 2, 0, 8, 0, 3}));
    psd.resize(psd.size() + 12 + 2); // three empty sections, uncompressed
    append(psd, bytesOf({255, 0, 0, 0, 0, 255}));
    return psd;
}

Bytes exrFile()
{
    Bytes exr = bytesOf({0x76, 0x2f, 0x31, 0x01, 2, 0, 0, 0});
    const auto attribute = [&exr](std::string_view name, std::string_view type, const Bytes& content) {
        for (const std::string_view text : {name, type}) {
            append(exr, bytesOf(text));
            exr.push_back(std::byte(0));
        }
        put(exr, std::uint32_t(content.size()), 4);
        append(exr, content);
    };
    Bytes channels;
    for (const char* name : {"A", "B", "G", "R"}) {
        append(channels, bytesOf(std::string_view(name, 2)));
        append(channels, bytesOf({1, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0})); // half, no subsampling
    }
    channels.push_back(std::byte(0));
    const Bytes window = bytesOf({0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0});
    attribute("channels", "chlist", channels);
    attribute("compression", "compression", bytesOf({0}));
    attribute("dataWindow", "box2i", window);
    attribute("displayWindow", "box2i", window);
    attribute("lineOrder", "lineOrder", bytesOf({0}));
    attribute("pixelAspectRatio", "float", floatsOf({1}));
    attribute("screenWindowCenter", "v2f", floatsOf({0, 0}));
    attribute("screenWindowWidth", "float", floatsOf({1}));
    exr.push_back(std::byte(0));
    put(exr, std::uint32_t(exr.size() + 8), 4); // where the only line starts
    put(exr, 0, 4);
    put(exr, 0, 4);
    put(exr, 16, 4);
    append(exr, wordsOf({0x3c00, 0x3800, 0x3400, 0x3400, 0x3800, 0x3400, 0x4000, 0x3400})); // A, B, G, R of both
    return exr;
}

Bytes rawFile()
{
    constexpr int kWidth = 64, kHeight = 48;
    Bytes pixels;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            put(pixels, x < kWidth / 2 ? 3000 : 500, 2);
    const std::vector<std::int64_t> model = {'T', 'e', 's', 't', 0};
    return tiffFile(kWidth, kHeight, 1, 16, 32803, pixels,
        {{254, 4, {0}}, {271, 2, model}, {272, 2, model},
            {33421, 3, {2, 2}}, // color filter array: red green, green blue
            {33422, 1, {0, 1, 1, 2}}, {50706, 1, {1, 4, 0, 0}}, {50708, 2, model}, {50717, 4, {4095}}, // white level
            {50721, 10, {1, 1, 0, 1, 0, 1, 0, 1, 1, 1, 0, 1, 0, 1, 0, 1, 1, 1}}, // XYZ to camera
            {50728, 5, {1, 1, 1, 1, 1, 1}}, // neutral
            {50778, 3, {21}}}); // daylight
}

Bytes pdfFile()
{
    std::string pdf = "%PDF-1.4\n";
    const std::string drawing = "1 0 0 rg 0 0 36 36 re f";
    const std::string objects[] = {"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R]/Count 1>>",
        "<</Type/Page/Parent 2 0 R/MediaBox[0 0 72 36]/Contents 4 0 R/Resources<<>>>>",
        "<</Length " + std::to_string(drawing.size()) + ">>stream\n" + drawing + "\nendstream"};
    std::string table = "xref\n0 5\n0000000000 65535 f \n";
    for (int i = 0; i < 4; ++i) {
        const std::string offset = std::to_string(pdf.size());
        table += std::string(10 - offset.size(), '0') + offset + " 00000 n \n";
        pdf += std::to_string(i + 1) + " 0 obj" + objects[i] + "endobj\n";
    }
    const std::string start = std::to_string(pdf.size());
    return bytesOf(pdf + table + "trailer<</Size 5/Root 1 0 R>>\nstartxref\n" + start + "\n%%EOF\n");
}

Bytes avifFile(const CIBitmap& bitmap)
{
    return saved(bitmap, [](VipsImage* image, void** bytes, std::size_t* size) {
        vips_heifsave_buffer(
            image, bytes, size, "compression", VIPS_FOREIGN_HEIF_COMPRESSION_AV1, "effort", 0, nullptr);
    });
}

Bytes jpegXlFile(const CIBitmap& bitmap)
{
    return saved(bitmap,
        [](VipsImage* image, void** bytes, std::size_t* size) { vips_jxlsave_buffer(image, bytes, size, nullptr); });
}

Bytes withExifOrientation(const Bytes& jpeg, int orientation)
{
    Bytes result(jpeg.begin(), jpeg.begin() + 2);
    append(result, bytesOf({0xff, 0xe1, 0, 34}));
    append(result, bytesOf(std::string_view("Exif\0\0II*\0\x08\0\0\0\x01\0", 16)));
    append(result, wordsOf({0x112, 3, 1, 0, orientation, 0, 0, 0}));
    result.insert(result.end(), jpeg.begin() + 2, jpeg.end());
    return result;
}

CIBitmap noiseBitmap(int width, int height, CIFormat format, CIAlpha alpha)
{
    CIBitmap bitmap(width, height, format, alpha);
    std::uint32_t state = 12345;
    for (int y = 0; y < height; ++y)
        for (std::byte& byte : bitmap.mutableRow<std::byte>(y)) {
            state = state * 1664525 + 1013904223;
            byte = std::byte(state >> 24);
        }
    return bitmap;
}

std::array<double, 4> pixelAt(const CIBitmap& bitmap, int x, int y)
{
    std::array<double, 4> pixel{};
    for (std::size_t i = 0; i < 4; ++i) {
        const std::size_t at = 4 * std::size_t(x) + i;
        pixel[i] = bitmap.format() == CIFormat::RGBAf ? double(bitmap.row<float>(y)[at])
            : bitmap.format() == CIFormat::RGBA16     ? bitmap.row<std::uint16_t>(y)[at]
                                                      : bitmap.row<std::uint8_t>(y)[at];
    }
    return pixel;
}

TemporaryFolder::TemporaryFolder()
{
    std::string name = (std::filesystem::temp_directory_path() / "lumivex-test-XXXXXX").string();
    m_path = mkdtemp(name.data()) ? name : "";
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::filesystem::path TemporaryFolder::write(const std::string& name, const Bytes& bytes) const
{
    std::ofstream(m_path / name, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
    return m_path / name;
}
