#include "tests/imageio/PictureFiles.h"

#include "platform/coreimage/CIContext.h"
#include "platform/imageio/PictureRows.h"

#include <bit>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>

namespace {

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

void put(Bytes& target, std::uint32_t value, int size, bool isBigEndian)
{
    for (int i = 0; i < size; ++i)
        target.push_back(std::byte(value >> 8 * (isBigEndian ? size - 1 - i : i)));
}

void append(Bytes& target, const Bytes& more) { target.insert(target.end(), more.begin(), more.end()); }

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

Bytes inksFile()
{
    Bytes psd = bytesOf("8BPS");
    append(psd, bytesOf({0, 1, 0, 0, 0, 0, 0, 0, 0, 4, 0, 0, 0, 1, 0, 0, 0, 3, 0, 8, 0, 4}));
    psd.resize(psd.size() + 12 + 2);
    append(psd, bytesOf({255, 255, 0, 255, 255, 255, 255, 255, 255, 255, 0, 255})); // what each leaves of the paper
    return psd;
}

Bytes runsFile()
{
    Bytes bmp = bytesOf("BM");
    for (const int value : {14 + 40 + 8 + 14, 0, 14 + 40 + 8, 40, 6, 2})
        put(bmp, std::uint32_t(value), 4);
    append(bmp, wordsOf({1, 8}));
    for (const int value : {1, 14, 0, 0, 2, 0})
        put(bmp, std::uint32_t(value), 4);
    append(bmp, bytesOf({10, 20, 30, 0, 40, 50, 60, 0}));
    append(bmp, bytesOf({2, 1, 0, 2, 1, 1, 0, 3, 0, 1, 0, 0, 0, 1})); // two, a step to the right and up, three
    return bmp;
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

CIBitmap inSrgb(const CIBitmap& bitmap)
{
    const CIImage image = CIImage::fromBitmap(bitmap);
    return CIContext().render(image, image.extent());
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
