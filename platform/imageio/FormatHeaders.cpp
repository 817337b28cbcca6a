// Properties that only the headers of one format have.
#include "platform/imageio/PropertyTree.h"

#include <algorithm>
#include <array>
#include <string>

namespace imageio {

namespace {

constexpr int kMostParts = 4096; // chunks or segments that are walked through
constexpr std::size_t kLongestText = 1000;

/// Big-endian numbers at places of the file; 0 beyond its end.
class Numbers {
public:
    explicit Numbers(ReadBytes read)
        : m_read(std::move(read))
    {
    }
    std::size_t at(std::size_t offset, std::size_t bytes) const
    {
        std::size_t value = 0;
        for (const std::byte byte : m_read(offset, bytes))
            value = value << 8 | std::size_t(byte);
        return value;
    }
    std::string text(std::size_t offset, std::size_t bytes) const
    {
        std::string result;
        for (const std::byte byte : m_read(offset, bytes))
            result.push_back(char(byte));
        return result;
    }

private:
    ReadBytes m_read;
};

std::string fiveDigits(std::size_t number) // of a value that is stored 100000 times as large
{
    std::string text = std::to_string(double(number) / 100000);
    text.erase(text.find_last_not_of('0') + 1);
    return text.ends_with('.') ? text + "0" : text;
}

/// Latin-1, as the format has it.
std::string utf8OfLatin1(const std::string& latin)
{
    std::string text;
    for (const char c : latin) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x80) {
            text.push_back(c);
        } else {
            text.push_back(char(0xC0 | code >> 6));
            text.push_back(char(0x80 | (code & 0x3F)));
        }
    }
    return text;
}

void addPngChunk(const Numbers& file, const std::string& type, std::size_t at, std::size_t size, Properties& png)
{
    static constexpr std::array intents{"Perceptual", "Relative colorimetric", "Saturation", "Absolute colorimetric"};
    if (type == "IHDR") {
        addValue(png, "InterlaceType", file.at(at + 12, 1) == 1 ? "Adam7" : "None");
    } else if (type == "gAMA") {
        addValue(png, "Gamma", fiveDigits(file.at(at, 4)));
    } else if (type == "sRGB") {
        addValue(png, "sRGBIntent", intents[std::min(file.at(at, 1), intents.size() - 1)]);
    } else if (type == "pHYs" && file.at(at + 8, 1) == 1) {
        addValue(png, "XPixelsPerMeter", std::to_string(file.at(at, 4)));
        addValue(png, "YPixelsPerMeter", std::to_string(file.at(at + 4, 4)));
    } else if (type == "tEXt") {
        const std::string content = file.text(at, std::min(size, kLongestText));
        const std::size_t end = content.find('\0');
        if (end != std::string::npos && end > 0)
            addValue(png, utf8OfLatin1(content.substr(0, end)), utf8OfLatin1(content.substr(end + 1)));
    }
}

void addPng(const PictureInput& input, Properties& png)
{
    const Numbers file(input.reader());
    std::size_t at = 8; // after the signature
    for (int i = 0; i < kMostParts && at + 12 <= input.size(); ++i) {
        const std::size_t size = file.at(at, 4);
        const std::string type = file.text(at + 4, 4);
        if (size > input.size() || type == "IEND")
            break;
        addPngChunk(file, type, at + 8, size, png);
        at += 12 + size;
    }
}

void addJfif(const PictureInput& input, Properties& properties)
{
    const Numbers file(input.reader());
    static constexpr std::array units{"None", "Dots per inch", "Dots per centimeter"};
    std::size_t at = 2; // after the start marker
    for (int i = 0; i < kMostParts && at + 4 <= input.size(); ++i) {
        const std::size_t marker = file.at(at, 2), size = file.at(at + 2, 2);
        if (marker == 0xFFE0 && file.text(at + 4, 4) == "JFIF") {
            Properties& jfif = groupIn(properties, "{JFIF}").children;
            const std::size_t minor = file.at(at + 10, 1);
            addValue(jfif, "JFIFVersion",
                std::to_string(file.at(at + 9, 1)) + "." + (minor < 10 ? "0" : "") + std::to_string(minor));
            addValue(jfif, "DensityUnit", units[std::min<std::size_t>(file.at(at + 11, 1), units.size() - 1)]);
            addValue(jfif, "XDensity", std::to_string(file.at(at + 12, 2)));
            addValue(jfif, "YDensity", std::to_string(file.at(at + 14, 2)));
        } else if (marker == 0xFFC2) {
            addValue(groupIn(properties, "{JFIF}").children, "IsProgressive", "Yes");
        }
        if (marker == 0xFFDA || marker >> 8 != 0xFF || size < 2)
            break; // the pixels
        at += 2 + size;
    }
}

} // namespace

void addFormatHeaders(const PictureInput& input, Properties& properties)
{
    if (input.isOf(PictureFormat::Png))
        addPng(input, groupIn(properties, "{PNG}").children);
    else if (input.isOf(PictureFormat::Jpeg))
        addJfif(input, properties);
}

} // namespace imageio
