#include "platform/imageio/readers/Jp2Boxes.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace imageio {

namespace {

using Bytes = std::span<const std::byte>;

struct BadBox : std::runtime_error {
    BadBox()
        : std::runtime_error("a box is too short")
    {
    }
};

/// Big-endian numbers, one after the other.
class Reader {
public:
    explicit Reader(Bytes bytes)
        : m_rest(bytes)
    {
    }
    bool isAtEnd() const { return m_rest.empty(); }
    Bytes rest() const { return m_rest; }

    Bytes take(std::uint64_t count)
    {
        if (count > m_rest.size())
            throw BadBox();
        const Bytes taken = m_rest.first(std::size_t(count));
        m_rest = m_rest.subspan(std::size_t(count));
        return taken;
    }
    std::uint64_t number(int bytes)
    {
        std::uint64_t value = 0;
        for (const std::byte byte : take(std::uint64_t(bytes)))
            value = value << 8 | std::to_integer<std::uint64_t>(byte);
        return value;
    }

private:
    Bytes m_rest;
};

constexpr std::uint32_t fourLetters(std::string_view name)
{
    std::uint32_t code = 0;
    for (const char letter : name)
        code = code << 8 | static_cast<unsigned char>(letter);
    return code;
}

struct Box {
    std::uint32_t type;
    Bytes content;
};

Box nextBox(Reader& reader, bool mayBeCut)
{
    const std::uint64_t shortLength = reader.number(4);
    const auto type = std::uint32_t(reader.number(4));
    if (shortLength == 0) // up to the end of the file
        return {type, reader.take(reader.rest().size())};
    const std::uint64_t header = shortLength == 1 ? 16 : 8;
    const std::uint64_t length = shortLength == 1 ? reader.number(8) : shortLength;
    if (length < header)
        throw BadBox();
    return {
        type, reader.take(mayBeCut ? std::min<std::uint64_t>(length - header, reader.rest().size()) : length - header)};
}

Jp2Sample sampleOf(std::uint64_t stored) { return {int(stored & 127) + 1, (stored & 128) != 0}; }

Jp2Palette paletteOf(Reader box)
{
    const std::uint64_t entries = box.number(2), columns = box.number(1);
    if (entries == 0 || entries > 1024 || columns == 0)
        throw BadBox();
    Jp2Palette palette;
    for (std::uint64_t i = 0; i < columns; ++i)
        palette.columns.push_back(sampleOf(box.number(1)));
    for (std::uint64_t i = 0; i < entries; ++i)
        for (const Jp2Sample& column : palette.columns) {
            if (column.bits > 32)
                throw BadBox();
            auto value = std::int64_t(box.number((column.bits + 7) / 8));
            if (column.isSigned && value >= std::int64_t(1) << (column.bits - 1))
                value -= std::int64_t(1) << column.bits;
            palette.values.push_back(value);
        }
    return palette;
}

std::vector<Jp2Mapping> mappingsOf(Reader box)
{
    std::vector<Jp2Mapping> mappings;
    while (!box.isAtEnd()) {
        const int component = int(box.number(2));
        const bool usesPalette = box.number(1) == 1;
        const int column = int(box.number(1));
        mappings.push_back({component, usesPalette ? std::optional(column) : std::nullopt});
    }
    return mappings;
}

std::vector<Jp2Definition> definitionsOf(Reader box)
{
    std::vector<Jp2Definition> definitions;
    for (std::uint64_t count = box.number(2); count > 0; --count) {
        const int channel = int(box.number(2)), type = int(box.number(2)), association = int(box.number(2));
        definitions.push_back({channel, type, association});
    }
    return definitions;
}

/// The first "colr" box that can be used counts.
void addColor(Reader box, Jp2Boxes& boxes)
{
    constexpr std::uint64_t kEnumerated = 1, kRestrictedProfile = 2, kAnyProfile = 3;
    const std::uint64_t method = box.number(1);
    box.take(2); // precedence and approximation
    if (boxes.color != 0 || !boxes.profile.empty())
        return;
    if (method == kRestrictedProfile || method == kAnyProfile)
        boxes.profile = box.rest();
    if (method != kEnumerated)
        return;
    boxes.color = std::uint32_t(box.number(4));
    if (boxes.color == std::uint32_t(Jp2Color::Lab))
        while (!box.isAtEnd())
            boxes.labParameters.push_back(std::uint32_t(box.number(4)));
}

void addHeader(Reader header, Jp2Boxes& boxes)
{
    while (!header.isAtEnd()) {
        const Box box = nextBox(header, false);
        const Reader content(box.content);
        if (box.type == fourLetters("pclr"))
            boxes.palette = paletteOf(content);
        else if (box.type == fourLetters("cmap"))
            boxes.mappings = mappingsOf(content);
        else if (box.type == fourLetters("cdef"))
            boxes.definitions = definitionsOf(content);
        else if (box.type == fourLetters("colr"))
            addColor(content, boxes);
    }
}

} // namespace

std::optional<Jp2Boxes> jp2BoxesOf(std::span<const std::byte> file)
{
    Jp2Boxes boxes;
    if (!file.empty() && file[0] == std::byte(0xff)) {
        boxes.codestream = file;
        return boxes;
    }
    try {
        for (Reader reader(file); !reader.isAtEnd() && boxes.codestream.empty();) {
            const Box box = nextBox(reader, true);
            if (box.type == fourLetters("jp2h"))
                addHeader(Reader(box.content), boxes);
            else if (box.type == fourLetters("jp2c"))
                boxes.codestream = box.content;
        }
    } catch (const BadBox&) {
        return std::nullopt;
    }
    return boxes;
}

} // namespace imageio
