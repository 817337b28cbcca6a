#include "platform/imageio/Signatures.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace imageio {

namespace {

using namespace std::string_view_literals;

/// Numbers of a TIFF-like file, in its byte order; 0 past the end.
class Numbers {
public:
    Numbers(const ReadBytes& read, bool littleEndian)
        : m_read(read)
        , m_littleEndian(littleEndian)
    {
    }
    std::uint32_t u16(std::size_t offset) const { return number(offset, 2); }
    std::uint32_t u32(std::size_t offset) const { return number(offset, 4); }

private:
    std::uint32_t number(std::size_t offset, std::size_t size) const
    {
        const auto bytes = m_read(offset, size);
        if (bytes.size() < size)
            return 0;
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value = value << 8 | std::to_integer<std::uint32_t>(bytes[m_littleEndian ? size - 1 - i : i]);
        return value;
    }

    const ReadBytes& m_read;
    bool m_littleEndian;
};

// Tag numbers and values of TIFF 6.0, TIFF/EP and DNG.
constexpr std::uint32_t kTagCompression = 259, kTagPhotometric = 262, kTagSubDirectories = 330, kTagDngVersion = 50706;
constexpr std::uint32_t kPhotometricColorFilterArray = 32803, kPhotometricLinearRaw = 34892;

bool isRawCompression(std::uint32_t compression)
{
    constexpr std::uint32_t kinds[] = {32767, 32769, 32770, 34713, 65000, 65535}; // what the camera makers use
    return std::ranges::find(kinds, compression) != std::end(kinds);
}

struct DirectoryScan {
    bool isRaw = false;
    std::vector<std::size_t> next; // offsets of further directories
};

DirectoryScan scanDirectory(const Numbers& numbers, std::size_t offset)
{
    DirectoryScan scan;
    const std::uint32_t count = std::min<std::uint32_t>(numbers.u16(offset), 200);
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::size_t entry = offset + 2 + std::size_t(12) * i;
        const std::uint32_t tag = numbers.u16(entry), length = numbers.u32(entry + 4);
        const std::uint32_t value = numbers.u16(entry + 2) == 3 ? numbers.u16(entry + 8) : numbers.u32(entry + 8);
        if (tag == kTagDngVersion || (tag == kTagCompression && isRawCompression(value))
            || (tag == kTagPhotometric && (value == kPhotometricColorFilterArray || value == kPhotometricLinearRaw)))
            scan.isRaw = true;
        if (tag == kTagSubDirectories && length == 1)
            scan.next.push_back(value);
        else if (tag == kTagSubDirectories)
            for (std::uint32_t j = 0; j < std::min<std::uint32_t>(length, 8); ++j)
                scan.next.push_back(numbers.u32(value + std::size_t(4) * j));
    }
    scan.next.push_back(numbers.u32(offset + 2 + std::size_t(12) * count));
    return scan;
}

/// Most camera makers store their sensor data in a TIFF file with a directory of its own.
bool isCameraTiff(const ReadBytes& read, bool littleEndian)
{
    const Numbers numbers(read, littleEndian);
    std::vector<std::size_t> waiting{numbers.u32(4)};
    for (int visited = 0; visited < 12 && !waiting.empty(); ++visited) { // directories may form a circle
        const std::size_t offset = waiting.back();
        waiting.pop_back();
        if (offset == 0)
            continue;
        const DirectoryScan scan = scanDirectory(numbers, offset);
        if (scan.isRaw)
            return true;
        waiting.insert(waiting.begin(), scan.next.begin(), scan.next.end());
    }
    return false;
}

/// Files of the ISO base media family name their brands at the start.
bool hasBrand(std::string_view head, std::initializer_list<std::string_view> wanted)
{
    if (head.substr(4, 4) != "ftyp"sv)
        return false;
    const std::size_t size = std::min<std::size_t>(head.size(), static_cast<unsigned char>(head[3]));
    for (std::size_t at = 8; at + 4 <= size; at += 4)
        if (std::ranges::find(wanted, head.substr(at, 4)) != wanted.end())
            return true;
    return false;
}

} // namespace

bool isAvif(std::string_view head, const ReadBytes&) { return hasBrand(head, {"avif", "avis"}); }

bool isHeif(std::string_view head, const ReadBytes&)
{
    return hasBrand(head, {"heic", "heix", "heim", "heis", "hevc", "hevx", "mif1", "msf1"});
}

bool isWebP(std::string_view head, const ReadBytes&)
{
    return head.starts_with("RIFF"sv) && head.substr(8, 4) == "WEBP"sv;
}

bool isCameraRaw(std::string_view head, const ReadBytes& read)
{
    const bool isTiff = head.starts_with("II*\0"sv) || head.starts_with("MM\0*"sv);
    const bool isMakersMark = head.substr(8, 2) == "CR"sv || head.substr(8, 4) == "IIII"sv;
    return isTiff ? isMakersMark || isCameraTiff(read, head[0] == 'I') : hasBrand(head, {"crx "});
}

bool isBmp(std::string_view head, const ReadBytes&)
{
    if (!head.starts_with("BM"sv) || head.size() < 18)
        return false;
    constexpr unsigned char headerSizes[] = {12, 16, 40, 52, 56, 64, 108, 124};
    return std::ranges::find(headerSizes, static_cast<unsigned char>(head[14])) != std::end(headerSizes)
        && head.substr(15, 3) == "\0\0\0"sv;
}

bool isSgi(std::string_view head, const ReadBytes&)
{
    return head.starts_with("\x01\xda"sv) && (head[2] == 0 || head[2] == 1) && (head[3] == 1 || head[3] == 2);
}

bool isPnm(std::string_view head, const ReadBytes&)
{
    return head[0] == 'P' && "1234567Ff"sv.find(head[1]) != head.npos && " \t\r\n#"sv.find(head[2]) != head.npos;
}

} // namespace imageio
