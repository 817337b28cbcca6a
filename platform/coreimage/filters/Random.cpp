// Noise: four independent uniform values in every pixel, the same picture again every 256 pixels.
#include "platform/coreimage/kernel/PointwiseFilter.h"

#include <array>
#include <cstdint>

namespace ci {
namespace {

constexpr int kPeriod = 256; // px

struct Noise {
    float plane[4][kPeriod][kPeriod];
};

/// The finalizer of MurmurHash3: every bit of the input decides half of those of the result.
std::uint32_t scrambled(std::uint32_t v)
{
    v ^= v >> 16;
    v *= 0x85ebca6bu;
    v ^= v >> 13;
    v *= 0xc2b2ae35u;
    return v ^ (v >> 16);
}

const Noise& noise()
{
    static const std::unique_ptr<const Noise> table = [] {
        auto made = std::make_unique<Noise>();
        std::uint32_t index = 0;
        for (auto& plane : made->plane)
            for (auto& row : plane)
                for (float& v : row)
                    v = float(scrambled(++index * 0x9e3779b9u) >> 8) * 0x1p-24f;
        return made;
    }();
    return *table;
}

int wrapped(double pixel) { return int(std::int64_t(pixel) & (kPeriod - 1)); }

class NoiseReader : public RowReader {
public:
    NoiseReader(const Render& render, const GridRect& area, Scratch& scratch)
        : m_grid(render.grid)
        , m_area(area)
        , m_out(allocateRow(scratch, area.width()))
    {
    }
    Row row(int y) override
    {
        const Noise& table = noise();
        const auto line = std::size_t(pixel(y, m_grid.phaseY));
        for (int x = 0; x < m_area.width(); ++x) {
            const auto column = std::size_t(pixel(m_area.x0 + x, m_grid.phaseX));
            m_out.r[x] = table.plane[0][line][column], m_out.g[x] = table.plane[1][line][column];
            m_out.b[x] = table.plane[2][line][column], m_out.a[x] = table.plane[3][line][column];
        }
        return m_out;
    }

private:
    /// The picture pixel in the middle of a cell.
    int pixel(int cell, double phase) const { return wrapped(std::floor((cell + 0.5 + phase) / m_grid.scale)); }
    Grid m_grid;
    GridRect m_area;
    MutableRow m_out;
};

class NoiseNode : public Node {
public:
    NoiseNode()
        : Node(CIRect::infinite(), false)
    {
    }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        if (accepts != Form::Rows)
            return {};
        return {.rows = std::make_unique<NoiseReader>(render, area, scratch)};
    }
};

const RecipeFilter randomGenerator{{.name = "CIRandomGenerator",
                                       .displayName = "Random Generator",
                                       .category = kCICategoryGenerator,
                                       .usage = Video,
                                       .inputs = {},
                                       .boundToPixelGrid = true},
    [](const Values&) { return CIImage(std::make_shared<NoiseNode>()); }};

} // namespace
} // namespace ci
