// Device-independent bitmaps, which BMP files and icons hold.
#pragma once

#include "platform/imageio/readers/DeferredImage.h"
#include "platform/imageio/readers/FileBytes.h"

#include <array>

namespace imageio {

/// Headers of all ages (OS/2 1 and 2, Windows 3 to 5); 1 to 32 bits a pixel, masks of any width, runs.
class Dib {
public:
    /// `file` begins with the bitmap's header; its pixels begin at `pixelsAt`, or after the palette when that is 0.
    /// In icons a mask of one bit a pixel follows, whose rows count as well.
    Dib(Bytes file, std::size_t pixelsAt, bool isIcon);

    /// Whether there are as many bytes as the header claims, of a known kind.
    bool isSound() const;
    /// 3 or, with alpha, 4 bands of 8 bits.
    PixelLayout layout() const;
    /// `pixels` are zeros before. False when the runs end too early.
    bool fill(std::span<std::byte> pixels) const;
    Bytes profile() const; // embedded; empty when there is none

private:
    using Color = std::array<std::uint8_t, 4>;
    /// Some bits of a pixel.
    struct Field {
        std::uint32_t mask = 0;
        std::uint8_t of(std::uint32_t pixel, std::uint8_t whenNone) const;
    };

    void findFields(std::uint32_t header);
    void findPalette(std::size_t from, std::size_t entry, std::size_t until);
    bool hasRuns() const { return m_compression != 0 && m_compression != 3 && m_compression != 6; }
    bool hasAlpha() const { return m_isIcon || hasRuns() || m_fields[3].mask != 0; }
    std::size_t rowBytes(int bits) const;
    Color colorOf(std::uint32_t pixel) const;
    Color colorAt(Bytes row, std::size_t x) const;
    void fillRows(std::span<std::byte> pixels) const;
    bool fillRuns(std::span<std::byte> pixels) const;
    void applyMask(std::span<std::byte> pixels) const;
    std::byte* placeOf(std::span<std::byte> pixels, std::int64_t x, std::int64_t y) const;

    LittleEndian m_file;
    bool m_isIcon, m_isOs2;
    std::int64_t m_width, m_height; // px
    bool m_isTopDown;
    int m_bits;
    std::uint32_t m_compression;
    std::array<Field, 4> m_fields{}; // red, green, blue, alpha
    std::array<Color, 256> m_palette{};
    Bytes m_data; // of the pixels, and what follows
};

} // namespace imageio
