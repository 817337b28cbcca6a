// The boxes around a JPEG 2000 codestream: what its samples mean.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace imageio {

enum class Jp2Color : std::uint32_t { Cmyk = 12, Lab = 14, Srgb = 16, Grey = 17, Sycc = 18, Esycc = 24 };

struct Jp2Sample {
    int bits = 8;
    bool isSigned = false;
};

struct Jp2Palette {
    std::vector<Jp2Sample> columns;
    std::vector<std::int64_t> values; // entry after entry, one for each column
    std::size_t entries() const { return columns.empty() ? 0 : values.size() / columns.size(); }
};

/// One channel made of a component of the codestream, directly or as an index into a column of the palette.
struct Jp2Mapping {
    int component;
    std::optional<int> column;
};

struct Jp2Definition {
    int channel;
    int type; // 0 color, 1 opacity, 2 opacity that the colors are multiplied with
    int association; // 0 the whole picture; of colors, their number from 1
};

struct Jp2Boxes {
    std::span<const std::byte> codestream; // empty when there is none
    std::optional<Jp2Palette> palette;
    std::vector<Jp2Mapping> mappings; // empty: channels are components
    std::vector<Jp2Definition> definitions; // empty: channels are colors, in their order
    std::uint32_t color = 0; // a Jp2Color, any other number that the file has, or 0 when it tells none
    std::vector<std::uint32_t>
        labParameters; // range and offset of L, a and b, and the illuminant; empty: the usual ones
    std::span<const std::byte> profile; // embedded; empty without one
};

/// Of a file with boxes or of a bare codestream. Nothing when a box can't be right. The spans point into `file`.
std::optional<Jp2Boxes> jp2BoxesOf(std::span<const std::byte> file);

} // namespace imageio
