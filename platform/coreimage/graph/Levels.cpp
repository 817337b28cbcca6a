#include "platform/coreimage/graph/Levels.h"

#include "platform/coreimage/graph/Interleaved.h"

#include <algorithm>
#include <tbb/parallel_for.h>

namespace ci {

Level::Level(int w, int h, bool wide)
    : width(w)
    , height(h)
{
    const std::size_t count = std::size_t(w) * std::size_t(h) * 4;
    if (wide)
        floats.resize(count);
    else
        words.resize(count);
}

void Level::write(int y, const Row& row)
{
    const float* planes[4] = {row.r, row.g, row.b, row.a};
    const std::size_t start = at(y, 0);
    const bool wide = isWide();
    for (std::size_t i = 0; i < std::size_t(width); ++i)
        for (std::size_t c = 0; c < 4; ++c)
            if (wide)
                floats[start + 4 * i + c] = planes[c][i];
            else
                words[start + 4 * i + c] = std::uint16_t(std::clamp(planes[c][i], 0.0f, 1.0f) * 65535.0f + 0.5f);
}

void LevelRows::read(int y, int from, int count, const MutableRow& row) const
{
    if (!m_level)
        return m_decoder.decode(m_bitmap.row(y) + std::size_t(from) * bytesPerPixel(m_bitmap.format()), count, row);
    m_level->visit(y, from, [&](const auto* p, float one) {
        const float scale = 1 / one;
        for (int i = 0; i < count; ++i) {
            row.r[i] = float(p[4 * i]) * scale;
            row.g[i] = float(p[4 * i + 1]) * scale;
            row.b[i] = float(p[4 * i + 2]) * scale;
            row.a[i] = float(p[4 * i + 3]) * scale;
        }
    });
}

void LevelRows::add(int y, int from, int count, float weight, float* sums, const MutableRow& spare, float* pixels) const
{
    const auto addTexels = [&](const auto* p, float one) {
        const float share = weight / one;
        for (int i = 0; i < 4 * count; ++i)
            sums[i] += share * float(p[i]);
    };
    if (m_level)
        return m_level->visit(y, from, addTexels);
    read(y, from, count, spare);
    interleave(spare, count, pixels);
    addTexels(pixels, 1.0f);
}

namespace {

Level halved(const LevelRows& source, bool wide)
{
    Level half((source.width() + 1) / 2, (source.height() + 1) / 2, wide);
    tbb::parallel_for(tbb::blocked_range<int>(0, half.height, 16), [&](const tbb::blocked_range<int>& rows) {
        Scratch& scratch = Scratch::ofThread();
        const ScratchScope scope(scratch);
        const MutableRow upper = allocateRow(scratch, source.width() + 1),
                         lower = allocateRow(scratch, source.width() + 1);
        for (int y = rows.begin(); y < rows.end(); ++y) {
            const int count = source.width();
            source.read(2 * y, 0, count, upper);
            source.read(std::min(2 * y + 1, source.height() - 1), 0, count, lower);
            float* const above[4] = {upper.r, upper.g, upper.b, upper.a};
            const float* const below[4] = {lower.r, lower.g, lower.b, lower.a};
            for (int c = 0; c < 4; ++c) {
                float* p = above[c];
                for (int x = 0; x < count; ++x)
                    p[x] += below[c][x];
                p[count] = p[count - 1]; // an odd last column stands for two
                for (int x = 0; x < half.width; ++x)
                    p[x] = 0.25f * (p[2 * x] + p[2 * x + 1]);
            }
            half.write(y, upper);
        }
    });
    return half;
}

} // namespace

std::vector<Level> halvedCopies(const CIBitmap& bitmap)
{
    std::vector<Level> levels;
    const bool wide =
        bitmap.format() == CIFormat::RGBAf || profiledSpace(bitmap.colorSpace()); // has light beyond 0 to 1
    int width = bitmap.width(), height = bitmap.height();
    while (std::max(width, height) > 32) {
        levels.push_back(halved(LevelRows(bitmap, levels, int(levels.size()), false), wide));
        width = levels.back().width;
        height = levels.back().height;
    }
    return levels;
}

} // namespace ci
