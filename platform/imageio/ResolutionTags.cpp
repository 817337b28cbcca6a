#include "platform/imageio/ResolutionTags.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace imageio {

namespace {

std::string_view textAt(std::span<const std::byte> file, std::size_t at, std::size_t size)
{
    return at + size <= file.size() ? std::string_view(reinterpret_cast<const char*>(file.data() + at), size)
                                    : std::string_view();
}

std::uint32_t numberAt(std::span<const std::byte> file, std::size_t at, std::size_t size, bool isBig)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < size && at + i < file.size(); ++i)
        number |= std::to_integer<std::uint32_t>(file[at + i]) << 8 * (isBig ? size - 1 - i : i);
    return number;
}

/// Puts the segment that tells it in front of all others. Without dots per inch it says that the pixels are squares.
void storeDensity(std::vector<std::byte>& jpeg, double dotsPerInch)
{
    constexpr std::size_t kStart = 2, kName = 6; // after the mark of the format, and after that of the segment
    if (jpeg.size() < kStart || textAt(jpeg, kName, 4) == "JFIF")
        return;
    const auto dots = std::uint8_t(dotsPerInch > 0);
    const auto across = std::uint32_t(std::clamp(std::lround(dotsPerInch), 1L, 65535L));
    const auto high = std::uint8_t(across >> 8), low = std::uint8_t(across & 255);
    const std::uint8_t segment[] = {0xff, 0xe0, 0, 16, 'J', 'F', 'I', 'F', 0, 1, 1, dots, high, low, high, low, 0, 0};
    const auto bytes = std::as_bytes(std::span(segment));
    jpeg.insert(jpeg.begin() + kStart, bytes.begin(), bytes.end());
}

void dropPhysicalSize(std::vector<std::byte>& png)
{
    constexpr std::size_t kFirst = 8, kAround = 12; // bytes of a chunk beside its data
    for (std::size_t at = kFirst; at + kAround <= png.size();) {
        const std::size_t size = numberAt(png, at, 4, true) + kAround;
        const std::string_view type = textAt(png, at + 4, 4);
        if (type == "IDAT" || size > png.size() - at)
            return;
        if (type == "pHYs") {
            png.erase(png.begin() + std::ptrdiff_t(at), png.begin() + std::ptrdiff_t(at + size));
            return;
        }
        at += size;
    }
}

} // namespace

void storeResolution(PictureFormat format, double dotsPerInch, std::vector<std::byte>& file)
{
    if (format == PictureFormat::Jpeg)
        storeDensity(file, dotsPerInch);
    else if (format == PictureFormat::Png && dotsPerInch <= 0)
        dropPhysicalSize(file);
    else if (format == PictureFormat::Tiff && dotsPerInch <= 0)
        dropTiffResolution(file);
}

void dropTiffResolution(std::span<std::byte> file)
{
    constexpr std::uint32_t kTags[] = {282, 283, 296}; // across, down, unit
    constexpr std::size_t kEntry = 12, kNext = 4;
    const bool isBig = textAt(file, 0, 2) == "MM";
    const std::size_t directory = numberAt(file, 4, 4, isBig), count = numberAt(file, directory, 2, isBig);
    const std::size_t entries = directory + 2;
    if (directory < 8 || entries + count * kEntry + kNext > file.size())
        return;
    std::size_t kept = 0;
    for (std::size_t i = 0; i < count; ++i)
        if (std::ranges::count(kTags, numberAt(file, entries + i * kEntry, 2, isBig)) == 0)
            std::memmove(file.data() + entries + kEntry * kept++, file.data() + entries + i * kEntry, kEntry);
    std::memmove(file.data() + entries + kEntry * kept, file.data() + entries + kEntry * count, kNext);
    file[directory + (isBig ? 0 : 1)] = std::byte(kept >> 8);
    file[directory + (isBig ? 1 : 0)] = std::byte(kept & 255);
}

} // namespace imageio
