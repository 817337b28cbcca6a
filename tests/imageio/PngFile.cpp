#include "tests/imageio/PictureFiles.h"

#include <algorithm>

namespace {

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

} // namespace

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
