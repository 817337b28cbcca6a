// Truevision TGA: color maps, true color and grey, plain or with runs.
#include "platform/imageio/readers/DeferredImage.h"
#include "platform/imageio/readers/Readers.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace imageio {

namespace {

using Bytes = std::span<const std::byte>;
using Color = std::array<std::uint8_t, 4>;

constexpr std::size_t kHeaderBytes = 18;

int byteAt(Bytes bytes, std::size_t at) { return std::to_integer<int>(bytes[at]); }
int wordAt(Bytes bytes, std::size_t at) { return byteAt(bytes, at) | byteAt(bytes, at + 1) << 8; }

struct Header {
    int kind, mapFirst, mapLength, mapBits, width, height, bits, flags;
    std::size_t textBytes;

    explicit Header(Bytes file)
        : kind(byteAt(file, 2))
        , mapFirst(wordAt(file, 3))
        , mapLength(byteAt(file, 1) ? wordAt(file, 5) : 0)
        , mapBits(byteAt(file, 7))
        , width(wordAt(file, 12))
        , height(wordAt(file, 14))
        , bits(byteAt(file, 16))
        , flags(byteAt(file, 17))
        , textBytes(std::size_t(byteAt(file, 0)))
    {
    }
    bool hasMap() const { return (kind & 7) == 1; }
    bool isGrey() const { return (kind & 7) == 3; }
    bool hasRuns() const { return (kind & 8) != 0; }
    int colorBits() const { return hasMap() ? mapBits : bits; }
    /// Files of 16 bits name their alpha bit mostly by chance.
    bool hasAlpha() const { return isGrey() ? bits == 16 : colorBits() == 32 && (hasMap() || (flags & 15) != 0); }
    int bands() const { return (isGrey() ? 1 : 3) + (hasAlpha() ? 1 : 0); }
    std::size_t pixelBytes() const { return std::size_t(bits + 7) / 8; }
    std::size_t mapBytes() const { return std::size_t(mapLength) * std::size_t((mapBits + 7) / 8); }
};

/// In the order of the bands.
Color colorOf(Bytes stored, const Header& header)
{
    const auto at = [&](std::size_t i) { return std::to_integer<std::uint8_t>(stored[i]); };
    if (header.isGrey())
        return {at(0), stored.size() > 1 ? at(1) : std::uint8_t(255)};
    if (stored.size() == 2) {
        const int word = at(0) | at(1) << 8;
        const auto five = [&](int shift) { return std::uint8_t(((word >> shift & 31) * 255 + 15) / 31); };
        return {five(10), five(5), five(0), 255};
    }
    return {at(2), at(1), at(0), stored.size() > 3 ? at(3) : std::uint8_t(255)};
}

/// Hands out one pixel after the other.
class Pixels {
public:
    Pixels(const Header& header, Bytes map, Bytes data)
        : m_header(header)
        , m_map(map)
        , m_rest(data)
    {
    }
    /// Nothing when the file ends too early or names a color that the map lacks.
    std::optional<Color> next()
    {
        const std::size_t size = m_header.pixelBytes();
        if (m_header.hasRuns() && m_left == 0) {
            if (m_rest.empty())
                return std::nullopt;
            const int packet = byteAt(m_rest, 0);
            m_rest = m_rest.subspan(1);
            m_left = (packet & 127) + 1;
            m_isRun = (packet & 128) != 0;
            m_hasColor = false;
        }
        if (!m_isRun || !m_hasColor) {
            if (m_rest.size() < size)
                return std::nullopt;
            m_color = looked(m_rest.first(size));
            m_hasColor = true;
            m_rest = m_rest.subspan(size);
        }
        --m_left;
        return m_color;
    }

private:
    std::optional<Color> looked(Bytes stored) const
    {
        if (!m_header.hasMap())
            return colorOf(stored, m_header);
        const int index = (stored.size() > 1 ? wordAt(stored, 0) : byteAt(stored, 0)) - m_header.mapFirst;
        const auto size = std::size_t((m_header.mapBits + 7) / 8);
        if (index < 0 || index >= m_header.mapLength)
            return std::nullopt;
        return colorOf(m_map.subspan(std::size_t(index) * size, size), m_header);
    }

    const Header& m_header;
    Bytes m_map, m_rest;
    std::optional<Color> m_color;
    int m_left = 0;
    bool m_isRun = false, m_hasColor = false;
};

bool fill(std::span<std::byte> target, const Header& header, Pixels pixels)
{
    constexpr int kFromRight = 16, kFromTop = 32;
    const auto bands = std::size_t(header.bands());
    for (int row = 0; row < header.height; ++row)
        for (int column = 0; column < header.width; ++column) {
            const std::optional<Color> color = pixels.next();
            if (!color)
                return false;
            const int x = header.flags & kFromRight ? header.width - 1 - column : column;
            const int y = header.flags & kFromTop ? row : header.height - 1 - row;
            const std::size_t at = (std::size_t(y) * std::size_t(header.width) + std::size_t(x)) * bands;
            std::ranges::transform(std::span(*color).first(bands), target.begin() + std::ptrdiff_t(at),
                [](std::uint8_t value) { return std::byte(value); });
        }
    return true;
}

bool isPlausible(const Header& header, int mapKind)
{
    const auto isOneOf = [](int bits, std::initializer_list<int> known) {
        return std::ranges::find(known, bits) != known.end();
    };
    if (header.width == 0 || header.height == 0 || mapKind > 1 || (header.flags & 0xc0) != 0)
        return false;
    switch (header.kind) {
    case 1:
    case 9:
        return mapKind == 1 && isOneOf(header.bits, {8, 16}) && isOneOf(header.mapBits, {15, 16, 24, 32});
    case 2:
    case 10:
        return isOneOf(header.bits, {15, 16, 24, 32});
    case 3:
    case 11:
        return isOneOf(header.bits, {8, 16});
    default:
        return false;
    }
}

} // namespace

bool isTga(std::string_view head, const ReadBytes&)
{
    if (head.size() < kHeaderBytes)
        return false;
    const Bytes bytes(reinterpret_cast<const std::byte*>(head.data()), head.size());
    return isPlausible(Header(bytes), byteAt(bytes, 1));
}

void openTga(OpenPicture& picture, const PictureInput&, int)
{
    const Bytes file = PictureInput::wholeContent(picture.source.get());
    if (file.size() < kHeaderBytes)
        return;
    const Header header(file);
    const std::size_t map = kHeaderBytes + header.textBytes, data = map + header.mapBytes();
    const auto mostPerByte = std::int64_t(header.hasRuns() ? 128 : 1);
    if (data > file.size() || !fitsInto(file.size(), header.width, header.height, mostPerByte))
        return;
    picture.image = deferredImage({header.width, header.height, header.bands(), VIPS_FORMAT_UCHAR,
                                      header.isGrey() ? VIPS_INTERPRETATION_B_W : VIPS_INTERPRETATION_sRGB},
        [=, source = held(picture.source)](std::span<std::byte> pixels) {
            return fill(pixels, header, Pixels(header, file.subspan(map, header.mapBytes()), file.subspan(data)));
        });
}

} // namespace imageio
