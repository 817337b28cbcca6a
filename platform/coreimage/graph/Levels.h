// Reduced copies of a bitmap, each half as wide and high as the one before.
#pragma once

#include "platform/coreimage/graph/Transfer.h"

#include <vector>

namespace ci {

/// A reduced bitmap: interleaved premultiplied linear components, of 16 bits (0 to 65535 for 0 to 1) where the
/// original is limited to 0 to 1, else floats. Row 0 is the top.
struct Level {
    Level(int w, int h, bool wide);
    bool isWide() const { return !floats.empty(); }
    /// Calls `each` with the row from texel `from` on and the number that stands for 1.
    template <class Each>
    void visit(int y, int from, Each each) const
    {
        const std::size_t start = at(y, from);
        isWide() ? each(floats.data() + start, 1.0f) : each(words.data() + start, 65535.0f);
    }
    void write(int y, const Row& row);
    std::size_t at(int y, int x) const { return (std::size_t(y) * std::size_t(width) + std::size_t(x)) * 4; }

    int width, height;
    std::vector<std::uint16_t> words;
    std::vector<float> floats;
};

/// Rows of one level of a bitmap, counted from the top; level 0 is the bitmap itself.
class LevelRows {
public:
    LevelRows(const CIBitmap& bitmap, const std::vector<Level>& levels, int level, bool floats)
        : m_bitmap(bitmap)
        , m_level(level > 0 ? &levels[std::size_t(level - 1)] : nullptr)
        , m_decoder(bitmap.format(), bitmap.alpha(), bitmap.colorSpace(), floats)
    {
    }
    int width() const { return m_level ? m_level->width : m_bitmap.width(); }
    int height() const { return m_level ? m_level->height : m_bitmap.height(); }
    void read(int y, int from, int count, const MutableRow& row) const;
    /// Adds a row times `weight` to `sums`, four floats a texel. `spare` and `pixels` have room for the row.
    void add(int y, int from, int count, float weight, float* sums, const MutableRow& spare, float* pixels) const;

private:
    const CIBitmap& m_bitmap;
    const Level* m_level;
    RowDecoder m_decoder;
};

/// The copies, largest first; the last has at most 32 texels a side.
std::vector<Level> halvedCopies(const CIBitmap&);

} // namespace ci
