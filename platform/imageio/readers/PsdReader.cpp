// PSD and PSB: the picture that all layers make together, as it is stored beside them.
#include "platform/imageio/readers/DeferredImage.h"
#include "platform/imageio/readers/FileBytes.h"
#include "platform/imageio/readers/Readers.h"

#include <cstring>
#include <vector>

namespace imageio {

namespace {

enum class Mode : std::uint32_t { Grey = 1, Indexed = 2, Rgb = 3, Cmyk = 4, Duotone = 8, Lab = 9 };

/// Where everything is.
struct Document {
    explicit Document(Bytes content)
        : file(content)
        , isLarge(file.u16(4) == 2)
        , channels(file.u16(12))
        , height(file.u32(14))
        , width(file.u32(18))
        , depth(file.u16(22))
        , mode(Mode(file.u16(24)))
    {
        constexpr std::size_t kHeader = 26;
        palette = section(kHeader, false);
        resources = section(kHeader + 4 + palette.size(), false);
        const std::size_t layersAt = kHeader + 8 + palette.size() + resources.size();
        layers = section(layersAt, isLarge);
        dataAt = layersAt + lengthBytes(isLarge) + layers.size();
    }

    static std::size_t lengthBytes(bool isWide) { return isWide ? 8 : 4; }
    Bytes section(std::size_t at, bool isWide) const
    {
        const std::size_t size = isWide ? std::size_t(file.u32(at)) << 32 | file.u32(at + 4) : file.u32(at);
        return file.part(at + lengthBytes(isWide), size);
    }
    std::uint32_t colors() const { return mode == Mode::Rgb || mode == Mode::Lab ? 3 : mode == Mode::Cmyk ? 4 : 1; }
    bool hasRuns() const { return file.u16(dataAt) == 1; }
    /// Whether the first channel after the colors says how transparent all layers together are.
    bool hasAlpha() const
    {
        if (channels <= colors() || mode == Mode::Indexed)
            return false;
        const BigEndian info(layers);
        const std::size_t length = lengthBytes(isLarge);
        if (info.u32(0) != 0 || (isLarge && info.u32(4) != 0))
            return (info.u16(length) & 0x8000) != 0; // a count below zero
        constexpr std::size_t kSoon = 65536; // deep pictures have their layers, and before them this mark, further on
        const std::string_view text = info.text(0, kSoon);
        return text.find("8BIMMt16") != text.npos || text.find("8BIMMt32") != text.npos
            || text.find("8BIMMtrn") != text.npos;
    }
    std::size_t sampleBytes() const { return depth / 8; }
    std::size_t rowBytes() const { return std::size_t(width) * sampleBytes(); }
    Bytes profile() const;
    bool isSound() const;

    BigEndian file;
    bool isLarge;
    std::uint32_t channels, height, width, depth;
    Mode mode;
    Bytes palette, resources, layers;
    std::size_t dataAt = 0; // of how the pixels are packed, and then the pixels
};

Bytes Document::profile() const
{
    constexpr std::uint32_t kProfile = 0x040f;
    const BigEndian all(resources);
    for (std::size_t at = 0; at + 12 <= all.size() && all.text(at, 4) == "8BIM";) {
        const std::size_t name = at + 6 + (all.u8(at + 6) + 2) / 2 * 2; // with its length, in whole words
        if (all.u16(at + 4) == kProfile)
            return all.part(name + 4, all.u32(name));
        at = name + 4 + (std::size_t(all.u32(name)) + 1) / 2 * 2;
    }
    return {};
}

/// Of the kinds that are read here.
bool Document::isSound() const
{
    const bool isDeepEnough = depth == 8 || depth == 16 || (depth == 32 && (mode == Mode::Rgb || mode == Mode::Grey));
    const bool isKnown = mode == Mode::Grey || mode == Mode::Rgb || mode == Mode::Cmyk || mode == Mode::Duotone
        || (mode == Mode::Indexed && depth == 8 && palette.size() >= 768) || (mode == Mode::Lab && depth != 32);
    if (!isDeepEnough || !isKnown || channels < colors() || file.u16(dataAt) > 1)
        return false;
    const std::size_t rest = file.part(dataAt + 2).size();
    constexpr int kBytesPerRun = 64; // 128 for two
    if (!fitsInto(rest, width, height, hasRuns() ? kBytesPerRun : 1))
        return false;
    return hasRuns() || rest >= rowBytes() * height * (colors() + (hasAlpha() ? 1 : 0));
}

/// Bytes as they are after a number below 128, else one byte again and again. False when there are too few.
bool unpackRow(Bytes packed, std::span<std::byte> row)
{
    while (!row.empty()) {
        if (packed.size() < 2)
            return false;
        const auto head = std::to_integer<std::size_t>(packed[0]);
        const bool isRun = head > 128;
        const std::size_t count = std::min(isRun ? 257 - head : head == 128 ? 0 : head + 1, row.size());
        const std::size_t used = isRun ? 1 : count;
        if (packed.size() < 1 + used)
            return false;
        if (isRun)
            std::ranges::fill(row.first(count), packed[1]);
        else
            std::ranges::copy(packed.subspan(1, count), row.begin());
        row = row.subspan(count);
        packed = packed.subspan(1 + used);
    }
    return true;
}

/// The rows of one channel after the other.
class Planes {
public:
    explicit Planes(const Document& document)
        : m_document(document)
        , m_row(document.rowBytes())
        , m_at(document.dataAt + 2)
        , m_countAt(m_at)
    {
        if (document.hasRuns())
            m_at += std::size_t(document.channels) * document.height * countBytes();
    }
    /// Empty when the file ends too early.
    Bytes next()
    {
        if (!m_document.hasRuns()) {
            const Bytes row = m_document.file.part(m_at, m_row.size());
            m_at += m_row.size();
            return row.size() == m_row.size() ? row : Bytes();
        }
        const std::size_t count = m_document.isLarge ? m_document.file.u32(m_countAt) : m_document.file.u16(m_countAt);
        m_countAt += countBytes();
        const bool isWhole = unpackRow(m_document.file.part(m_at, count), m_row);
        m_at += count;
        return isWhole ? Bytes(m_row) : Bytes();
    }

private:
    std::size_t countBytes() const { return m_document.isLarge ? 4 : 2; }

    const Document& m_document;
    std::vector<std::byte> m_row;
    std::size_t m_at, m_countAt;
};

/// In the order of this computer. Inks are stored as what they leave.
void putSample(Bytes sample, bool isInk, std::byte* target)
{
    for (std::size_t i = 0; i < sample.size(); ++i) {
        const std::byte byte = sample[std::endian::native == std::endian::little ? sample.size() - 1 - i : i];
        target[i] = isInk ? ~byte : byte;
    }
}

/// The colors are stored as on white paper.
template <class T>
void takePaperAway(std::span<std::byte> pixels, std::size_t colors, double full, bool isInk)
{
    const std::size_t bands = colors + 1;
    auto* samples = reinterpret_cast<T*>(pixels.data());
    for (std::size_t i = 0; i + bands <= pixels.size() / sizeof(T); i += bands) {
        const double alpha = double(samples[i + colors]) / full;
        if (alpha <= 0 || alpha >= 1)
            continue;
        for (std::size_t c = i; c < i + colors; ++c) {
            const double paper = isInk ? 0 : (1 - alpha) * full;
            const double color = (double(samples[c]) - paper) / alpha;
            samples[c] = T(std::is_floating_point_v<T> ? color : std::clamp(color, 0.0, full) + 0.5);
        }
    }
}

bool fill(const Document& document, std::span<std::byte> pixels)
{
    const bool isIndexed = document.mode == Mode::Indexed, isInk = document.mode == Mode::Cmyk;
    const std::size_t size = document.sampleBytes();
    const std::size_t stored = document.colors() + (document.hasAlpha() ? 1 : 0), step = isIndexed ? 3 : stored * size;
    Planes planes(document);
    for (std::size_t channel = 0; channel < stored; ++channel)
        for (std::size_t y = 0; y < document.height; ++y) {
            const Bytes row = planes.next();
            if (row.empty())
                return false;
            std::byte* target = pixels.data() + y * document.width * step + (isIndexed ? 0 : channel * size);
            for (std::size_t x = 0; x < document.width; ++x, target += step)
                if (isIndexed)
                    for (const std::size_t c : {0, 1, 2})
                        target[c] = document.palette[c * 256 + std::to_integer<std::size_t>(row[x])];
                else
                    putSample(row.subspan(x * size, size), isInk && channel < document.colors(), target);
        }
    if (!document.hasAlpha() || document.mode == Mode::Lab)
        return true;
    if (document.depth == 8)
        takePaperAway<std::uint8_t>(pixels, document.colors(), 255, isInk);
    else if (document.depth == 16)
        takePaperAway<std::uint16_t>(pixels, document.colors(), 65535, isInk);
    else
        takePaperAway<float>(pixels, document.colors(), 1, false);
    return true;
}

PixelLayout layoutOf(const Document& document)
{
    const int bands = (document.mode == Mode::Indexed ? 3 : int(document.colors())) + (document.hasAlpha() ? 1 : 0);
    const bool isDeep = document.depth == 16;
    const VipsInterpretation interpretation = document.mode == Mode::Cmyk ? VIPS_INTERPRETATION_CMYK
        : document.depth == 32                                            ? VIPS_INTERPRETATION_scRGB
        : bands <= 2 ? (isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W)
                     : (isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB);
    return {int(document.width), int(document.height), bands,
        document.depth == 8 ? VIPS_FORMAT_UCHAR
            : isDeep        ? VIPS_FORMAT_USHORT
                            : VIPS_FORMAT_FLOAT,
        interpretation};
}

/// Lightness from 0 to 100, the other two around 0.
VipsImagePtr labImage(VipsImagePtr image, const Document& document)
{
    const double unit = document.depth == 8 ? 1 : 257; // 16 bits a sample are 257 steps for each of 8
    double factors[] = {100 / (255 * unit), 1 / unit, 1 / unit, 1 / unit}, shifts[] = {0, -128, -128, 0};
    VipsImagePtr lab = derive([&](VipsImage** out) {
        return vips_linear(image.get(), out, factors, shifts, vips_image_get_bands(image.get()), nullptr);
    });
    return lab ? derive([&](VipsImage** out) {
        return vips_copy(lab.get(), out, "interpretation", VIPS_INTERPRETATION_LAB, nullptr);
    })
               : nullptr;
}

} // namespace

void openPsd(OpenPicture& picture, const PictureInput& input, int maxSide)
{
    const Document document(PictureInput::wholeContent(picture.source.get()));
    if (!document.isSound()) {
        openThroughMagick(picture, input, maxSide);
        return;
    }
    VipsImagePtr image = deferredImage(layoutOf(document),
        [document, source = held(picture.source)](std::span<std::byte> pixels) { return fill(document, pixels); });
    if (image && document.mode == Mode::Lab)
        image = labImage(std::move(image), document);
    const Bytes profile = document.profile();
    if (image && !profile.empty() && document.mode != Mode::Lab)
        vips_image_set_blob_copy(image.get(), VIPS_META_ICC_NAME, profile.data(), profile.size());
    picture.image = std::move(image);
}

} // namespace imageio
