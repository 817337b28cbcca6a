#include "platform/imageio/readers/Dib.h"

#include <algorithm>
#include <cstring>
#include <initializer_list>

namespace imageio {

namespace {

constexpr std::uint32_t kFirstHeader = 12, kPlainHeader = 40, kOs2Header = 64, kFifthHeader = 124; // bytes
constexpr std::uint32_t kPlain = 0, kRuns8 = 1, kRuns4 = 2, kFields = 3, kRuns24 = 4, kAlphaFields = 6;

} // namespace

Dib::Dib(Bytes file, std::size_t pixelsAt, bool isIcon)
    : m_file(file)
    , m_isIcon(isIcon)
{
    const std::uint32_t header = m_file.u32(0);
    const bool isFirst = header == kFirstHeader;
    m_isOs2 = header == kOs2Header;
    m_width = isFirst ? std::int64_t(m_file.u16(4)) : std::int32_t(m_file.u32(4));
    m_height = isFirst ? std::int64_t(m_file.u16(6)) : std::int32_t(m_file.u32(8));
    m_isTopDown = m_height < 0;
    m_height = (m_isTopDown ? -m_height : m_height) / (isIcon ? 2 : 1);
    m_bits = int(m_file.u16(isFirst ? 10 : 14));
    m_compression = header >= kPlainHeader ? m_file.u32(16) : kPlain;

    findFields(header);
    const std::size_t after = header != kPlainHeader ? 0
        : m_compression == kFields                   ? 12
        : m_compression == kAlphaFields              ? 16
                                                     : 0;
    const std::size_t palette = header + after, entry = isFirst ? 3 : 4;
    const std::size_t named = header >= kPlainHeader ? m_file.u32(32) : 0;
    const std::size_t most = m_bits <= 8 ? std::size_t(1) << m_bits : 0;
    const std::size_t colors = m_bits <= 8 && (named == 0 || named > most) ? most : named;
    if (pixelsAt == 0)
        pixelsAt = palette + colors * entry;
    findPalette(palette, entry, std::min(palette + std::min(colors, most) * entry, pixelsAt));
    m_data = m_file.part(pixelsAt);
}

void Dib::findFields(std::uint32_t header)
{
    if (m_compression == kFields || m_compression == kAlphaFields) {
        const bool hasAlpha = header > kPlainHeader + 12 || m_compression == kAlphaFields;
        for (std::size_t i = 0; i < (hasAlpha ? 4 : 3); ++i)
            m_fields[i].mask = m_file.u32(kPlainHeader + 4 * i);
    } else if (m_bits == 16) {
        m_fields = {Field{0x7c00}, {0x3e0}, {0x1f}, {0}};
    } else {
        m_fields = {Field{0xff0000}, {0xff00}, {0xff}, {m_isIcon && m_bits == 32 ? 0xff000000 : 0}};
    }
}

void Dib::findPalette(std::size_t from, std::size_t entry, std::size_t until)
{
    for (Color& color : m_palette) {
        color = {0, 0, 0, 255};
        if (from + entry > until)
            continue;
        for (const std::size_t i : {0, 1, 2})
            color[i] = std::uint8_t(m_file.u8(from + 2 - i));
        from += entry;
    }
}

bool Dib::isSound() const
{
    const auto hasBits = [this](std::initializer_list<int> known) { return std::ranges::count(known, m_bits) > 0; };
    switch (m_compression) {
    case kPlain:
        if (!hasBits({1, 2, 4, 8, 16, 24, 32}))
            return false;
        break;
    case kFields:
    case kAlphaFields:
        if (m_isOs2 || !hasBits({16, 32}))
            return false;
        break;
    default: // a run is 255 pixels long at most
        return ((m_compression == kRuns8 && hasBits({8})) || (m_compression == kRuns4 && hasBits({4}))
                   || (m_compression == kRuns24 && m_isOs2 && hasBits({24})))
            && fitsInto(m_data.size(), m_width, m_height, 256);
    }
    constexpr std::int64_t kPixelsPerByte = 8;
    if (!fitsInto(m_data.size(), m_width, m_height, kPixelsPerByte))
        return false;
    const std::size_t lastRow = (std::size_t(m_width) * std::size_t(m_bits) + 7) / 8; // may lack its padding
    return m_data.size() >= rowBytes(m_bits) * std::size_t(m_height - 1) + lastRow;
}

PixelLayout Dib::layout() const
{
    return {int(m_width), int(m_height), hasAlpha() ? 4 : 3, VIPS_FORMAT_UCHAR, VIPS_INTERPRETATION_sRGB};
}

Bytes Dib::profile() const
{
    constexpr std::uint32_t kEmbedded = 0x4d424544; // "MBED", as a number
    return m_file.u32(0) == kFifthHeader && m_file.u32(56) == kEmbedded ? m_file.part(m_file.u32(112), m_file.u32(116))
                                                                        : Bytes();
}

/// Rows are made of whole 32-bit words.
std::size_t Dib::rowBytes(int bits) const { return (std::size_t(m_width) * std::size_t(bits) + 31) / 32 * 4; }

std::uint8_t Dib::Field::of(std::uint32_t pixel, std::uint8_t whenNone) const
{
    if (mask == 0)
        return whenNone;
    const int shift = std::countr_zero(mask);
    const std::uint64_t value = (pixel & mask) >> shift, most = mask >> shift;
    return std::uint8_t(most == 255 ? value : (value * 255 + most / 2) / most); // dividing takes long
}

Dib::Color Dib::colorOf(std::uint32_t pixel) const
{
    if (m_bits <= 8)
        return m_palette[pixel & 255];
    return {m_fields[0].of(pixel, 0), m_fields[1].of(pixel, 0), m_fields[2].of(pixel, 0), m_fields[3].of(pixel, 255)};
}

Dib::Color Dib::colorAt(Bytes row, std::size_t x) const
{
    const auto bits = std::size_t(m_bits);
    const LittleEndian numbers(row);
    if (bits < 8) { // the first pixel in the highest bits
        const std::size_t first = x * bits;
        return colorOf(numbers.u8(first / 8) >> (8 - bits - first % 8) & ((1u << bits) - 1));
    }
    const std::size_t at = x * bits / 8;
    switch (bits) {
    case 8:
        return colorOf(numbers.u8(at));
    case 16:
        return colorOf(numbers.u16(at));
    case 24:
        return colorOf(numbers.u16(at) | numbers.u8(at + 2) << 16);
    default:
        return colorOf(numbers.u32(at));
    }
}

/// Null outside the picture. Row 0 is the first one of the file.
std::byte* Dib::placeOf(std::span<std::byte> pixels, std::int64_t x, std::int64_t y) const
{
    if (x >= m_width || y >= m_height)
        return nullptr;
    const std::int64_t line = m_isTopDown ? y : m_height - 1 - y;
    return pixels.data() + (line * m_width + x) * layout().bands;
}

bool Dib::fill(std::span<std::byte> pixels) const
{
    if (hasRuns())
        return fillRuns(pixels);
    fillRows(pixels);
    if (m_isIcon)
        applyMask(pixels);
    return true;
}

void Dib::fillRows(std::span<std::byte> pixels) const
{
    const auto bands = std::size_t(layout().bands), rowSize = rowBytes(m_bits);
    for (std::int64_t y = 0; y < m_height; ++y) {
        const std::size_t at = std::size_t(y) * rowSize;
        const Bytes row = m_data.subspan(at, std::min(rowSize, m_data.size() - at));
        std::byte* target = placeOf(pixels, 0, y);
        for (std::int64_t x = 0; x < m_width; ++x, target += bands)
            std::memcpy(target, colorAt(row, std::size_t(x)).data(), bands);
    }
}

/// What no run names stays transparent.
bool Dib::fillRuns(std::span<std::byte> pixels) const
{
    const LittleEndian data(m_data);
    const std::size_t colorBytes = m_compression == kRuns24 ? 3 : 1;
    const bool areNibbles = m_compression == kRuns4;
    std::int64_t x = 0, y = 0;
    const auto put = [&](std::size_t at, std::size_t index) { // the pixel of that index of those at a place
        const std::uint32_t byte = data.u8(at + (areNibbles ? index / 2 : index * colorBytes));
        const std::uint32_t pixel = areNibbles ? byte >> (index % 2 ? 0 : 4) & 15
            : colorBytes == 3                  ? byte | data.u16(at + index * colorBytes + 1) << 8
                                               : byte;
        if (std::byte* const target = placeOf(pixels, x++, y))
            std::memcpy(target, colorOf(pixel).data(), 4);
    };
    for (std::size_t at = 0; at + 2 <= m_data.size();) {
        const std::size_t count = data.u8(at), word = data.u8(at + 1);
        if (count > 0) {
            for (std::size_t i = 0; i < count; ++i)
                put(at + 1, areNibbles ? i % 2 : 0);
            at += 1 + colorBytes;
        } else if (word == 0) {
            x = 0;
            ++y;
            at += 2;
        } else if (word == 1) {
            return true;
        } else if (word == 2) {
            x += data.u8(at + 2);
            y += data.u8(at + 3);
            at += 4;
        } else {
            const std::size_t bytes = areNibbles ? (word + 1) / 2 : word * colorBytes;
            if (at + 2 + bytes > m_data.size())
                return false;
            for (std::size_t i = 0; i < word; ++i)
                put(at + 2, i);
            at += 2 + (bytes + 1) / 2 * 2;
        }
    }
    return y >= m_height || (y == m_height - 1 && x >= m_width); // the end mark may be missing
}

/// An icon's alpha counts when it has any.
void Dib::applyMask(std::span<std::byte> pixels) const
{
    const auto isPainted = [&] {
        for (std::size_t i = 3; i < pixels.size(); i += 4)
            if (pixels[i] != std::byte(0))
                return true;
        return false;
    };
    if (m_bits == 32 && isPainted())
        return;
    const LittleEndian mask(m_data.subspan(std::min(rowBytes(m_bits) * std::size_t(m_height), m_data.size())));
    for (std::int64_t y = 0; y < m_height; ++y) {
        std::byte* const row = placeOf(pixels, 0, y);
        for (std::size_t x = 0; x < std::size_t(m_width); ++x)
            row[4 * x + 3] = std::byte(mask.u8(std::size_t(y) * rowBytes(1) + x / 8) >> (7 - x % 8) & 1 ? 0 : 255);
    }
}

} // namespace imageio
