// The portable formats of Netpbm: bitmaps, grey and color maps as text or bytes (P1 to P6), any of them with alpha
// (P7), and floating-point ones (PF, Pf).
#include "platform/imageio/readers/DeferredImage.h"
#include "platform/imageio/readers/Readers.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <optional>
#include <string_view>

namespace imageio {

namespace {

struct Header {
    char kind = 0; // the second letter of the file
    std::int64_t width = 0, height = 0;
    int bands = 1;
    double most = 1; // the value that stands for white; of floating-point maps below zero for little-endian ones
    bool isText() const { return kind >= '1' && kind <= '3'; }
    bool isFloat() const { return kind == 'F' || kind == 'f'; }
    bool isPacked() const { return kind == '4'; }
    std::int64_t sampleBytes() const { return isFloat() ? 4 : most > 255 ? 2 : 1; }
};

/// Words between blanks and comments.
class Words {
public:
    explicit Words(std::string_view text)
        : m_rest(text)
    {
    }
    std::string_view next()
    {
        skipBlanks();
        const std::size_t end = std::min(m_rest.find_first_of(" \t\r\n\v\f#"), m_rest.size());
        return take(end);
    }
    double number()
    {
        const std::string_view word = next();
        double value = NAN;
        std::from_chars(word.data(), word.data() + word.size(), value);
        return value;
    }
    /// 0 for what can't be one.
    std::int64_t count()
    {
        constexpr double kMost = 1e9;
        const double value = number();
        return value >= 0 && value <= kMost ? std::int64_t(value) : 0;
    }
    /// One digit, which need not stand alone.
    double digit()
    {
        skipBlanks();
        return m_rest.empty() ? NAN : take(1).front() - '0';
    }
    /// What follows the one blank after the header.
    std::string_view afterBlank() const { return m_rest.substr(std::min<std::size_t>(1, m_rest.size())); }

private:
    void skipBlanks()
    {
        for (;;) {
            take(std::min(m_rest.find_first_not_of(" \t\r\n\v\f"), m_rest.size()));
            if (!m_rest.starts_with('#'))
                return;
            take(std::min(m_rest.find('\n'), m_rest.size()));
        }
    }
    std::string_view take(std::size_t count)
    {
        const std::string_view taken = m_rest.substr(0, count);
        m_rest.remove_prefix(count);
        return taken;
    }

    std::string_view m_rest;
};

void readTags(Words& words, Header& header)
{
    for (std::string_view tag = words.next(); !tag.empty() && tag != "ENDHDR"; tag = words.next()) {
        if (tag == "WIDTH")
            header.width = words.count();
        else if (tag == "HEIGHT")
            header.height = words.count();
        else if (tag == "DEPTH")
            header.bands = int(words.count());
        else if (tag == "MAXVAL")
            header.most = words.number();
        else
            words.next(); // the kind of tuple, which the depth tells as well
    }
}

std::optional<Header> headerOf(Words& words)
{
    Header header;
    header.kind = words.next()[1];
    if (header.kind == '7') {
        readTags(words, header);
    } else {
        header.width = words.count();
        header.height = words.count();
        header.bands = header.kind == '3' || header.kind == '6' || header.kind == 'F' ? 3 : 1;
        if (header.kind != '1' && header.kind != '4')
            header.most = words.number();
    }
    const bool isRange = header.isFloat() ? header.most != 0 : header.most >= 1 && header.most <= 65535;
    return isRange && header.bands >= 1 && header.bands <= 4 ? std::optional(header) : std::nullopt;
}

/// As many bytes as the samples take at least.
std::int64_t fewestBytes(const Header& header)
{
    if (header.isPacked())
        return (header.width + 7) / 8 * header.height;
    return header.width * header.height * header.bands * (header.isText() ? 1 : header.sampleBytes());
}

/// The sample with that number, in the units of the file.
class Samples {
public:
    Samples(const Header& header, Words words)
        : m_header(header)
        , m_words(words)
        , m_bytes(words.afterBlank())
    {
    }
    /// In their order only, if they are written as text.
    double at(std::int64_t index)
    {
        if (m_header.kind == '1')
            return 1 - m_words.digit(); // one is black
        if (m_header.isText())
            return m_words.number();
        if (m_header.isPacked()) {
            const std::int64_t line = index / m_header.width, column = index % m_header.width;
            return 1 - (byte(line * ((m_header.width + 7) / 8) + column / 8) >> (7 - column % 8) & 1);
        }
        return m_header.sampleBytes() == 1 ? byte(index) : byte(2 * index) << 8 | byte(2 * index + 1);
    }

private:
    int byte(std::int64_t at) const { return static_cast<unsigned char>(m_bytes[std::size_t(at)]); }

    const Header& m_header;
    Words m_words;
    std::string_view m_bytes;
};

template <class T>
bool fill(std::span<std::byte> pixels, const Header& header, Samples samples, double full)
{
    auto* target = reinterpret_cast<T*>(pixels.data());
    const auto count = std::int64_t(pixels.size() / sizeof(T));
    for (std::int64_t i = 0; i < count; ++i) {
        const double value = samples.at(i);
        if (!(value >= 0)) // not-a-number, too: the text ends early
            return false;
        target[i] = T(std::min(value / header.most, 1.0) * full + 0.5);
    }
    return true;
}

/// The rows stand from bottom to top.
void fillWithFloats(std::span<std::byte> pixels, const Header& header, std::string_view bytes)
{
    const std::size_t line = pixels.size() / std::size_t(header.height);
    const bool isSwapped = (header.most < 0) != (std::endian::native == std::endian::little);
    for (std::size_t y = 0; y < std::size_t(header.height); ++y)
        std::memcpy(pixels.data() + line * (std::size_t(header.height) - 1 - y), bytes.data() + line * y, line);
    for (std::size_t i = 0; isSwapped && i < pixels.size(); i += sizeof(float))
        std::reverse(pixels.begin() + std::ptrdiff_t(i), pixels.begin() + std::ptrdiff_t(i + sizeof(float)));
}

PixelLayout layoutOf(const Header& header)
{
    const bool isGrey = header.bands <= 2, isDeep = header.most > 255;
    const PixelLayout layout{int(header.width), int(header.height), header.bands,
        isDeep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR,
        isGrey ? (isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W)
               : (isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB)};
    if (header.isFloat())
        return {layout.width, layout.height, layout.bands, VIPS_FORMAT_FLOAT, VIPS_INTERPRETATION_scRGB};
    return layout;
}

} // namespace

void openPnm(OpenPicture& picture, const PictureInput&, int)
{
    const auto file = PictureInput::wholeContent(picture.source.get());
    Words words({reinterpret_cast<const char*>(file.data()), file.size()});
    const std::optional<Header> header = file.size() < 2 ? std::nullopt : headerOf(words);
    if (!header || !fitsInto(file.size(), header->width, header->height, 8)
        || std::int64_t(words.afterBlank().size()) < fewestBytes(*header))
        return;
    picture.image = deferredImage(layoutOf(*header), [=, header = *header, source = held(picture.source)](auto pixels) {
        const Samples samples(header, words);
        if (header.isFloat())
            fillWithFloats(pixels, header, words.afterBlank());
        else if (header.most > 255)
            return fill<std::uint16_t>(pixels, header, samples, 65535);
        else
            return fill<std::uint8_t>(pixels, header, samples, 255);
        return true;
    });
}

} // namespace imageio
