// The Quite OK Image format: pixels one after the other, each told by those before it.
#include "platform/imageio/readers/DeferredImage.h"
#include "platform/imageio/readers/Readers.h"

#include <array>
#include <cstring>

namespace imageio {

namespace {

using Bytes = std::span<const std::byte>;
using Pixel = std::array<std::uint8_t, 4>;

constexpr std::size_t kHeaderBytes = 14;

std::uint32_t bigEndian(Bytes bytes)
{
    std::uint32_t value = 0;
    for (const std::byte byte : bytes.first(4))
        value = value << 8 | std::to_integer<std::uint32_t>(byte);
    return value;
}

class Decoder {
public:
    explicit Decoder(Bytes chunks)
        : m_rest(chunks)
    {
    }
    /// False when the file ends too early.
    bool fill(std::span<std::byte> pixels, std::size_t bands)
    {
        for (std::byte* target = pixels.data(); target != pixels.data() + pixels.size(); target += bands) {
            if (m_repeats > 0)
                --m_repeats;
            else if (!readChunk())
                return false;
            std::memcpy(target, m_pixel.data(), bands);
        }
        return true;
    }

private:
    bool readChunk()
    {
        constexpr int kRgb = 0xfe, kRgba = 0xff;
        if (m_rest.empty())
            return false;
        const int tag = take();
        if (tag == kRgb || tag == kRgba) {
            const std::size_t count = tag == kRgb ? 3 : 4;
            if (m_rest.size() < count)
                return false;
            for (std::size_t i = 0; i < count; ++i)
                m_pixel[i] = take();
        } else if (tag >> 6 == 0) {
            m_pixel = m_seen[std::size_t(tag)];
        } else if (tag >> 6 == 1) {
            add((tag >> 4 & 3) - 2, (tag >> 2 & 3) - 2, (tag & 3) - 2);
        } else if (tag >> 6 == 2) {
            if (m_rest.empty())
                return false;
            const int green = (tag & 63) - 32, others = take();
            add(green + (others >> 4) - 8, green, green + (others & 15) - 8);
        } else {
            m_repeats = tag & 63; // beside this one
        }
        m_seen[std::size_t(m_pixel[0] * 3 + m_pixel[1] * 5 + m_pixel[2] * 7 + m_pixel[3] * 11) % 64] = m_pixel;
        return true;
    }
    std::uint8_t take()
    {
        const auto byte = std::to_integer<std::uint8_t>(m_rest.front());
        m_rest = m_rest.subspan(1);
        return byte;
    }
    void add(int red, int green, int blue)
    {
        m_pixel = {std::uint8_t(m_pixel[0] + red), std::uint8_t(m_pixel[1] + green), std::uint8_t(m_pixel[2] + blue),
            m_pixel[3]};
    }

    Bytes m_rest;
    std::array<Pixel, 64> m_seen{};
    Pixel m_pixel{0, 0, 0, 255};
    int m_repeats = 0;
};

} // namespace

void openQoi(OpenPicture& picture, const PictureInput&, int)
{
    const Bytes file = PictureInput::wholeContent(picture.source.get());
    if (file.size() < kHeaderBytes)
        return;
    const std::uint32_t width = bigEndian(file.subspan(4)), height = bigEndian(file.subspan(8));
    const int bands = std::to_integer<int>(file[12]);
    // A run of pixels is 62 long at most.
    if (!fitsInto(file.size(), width, height, 62) || (bands != 3 && bands != 4))
        return;
    picture.image = deferredImage({int(width), int(height), bands, VIPS_FORMAT_UCHAR, VIPS_INTERPRETATION_sRGB},
        [file, bands, source = held(picture.source)](std::span<std::byte> pixels) {
            return Decoder(file.subspan(kHeaderBytes)).fill(pixels, std::size_t(bands));
        });
}

} // namespace imageio
