// Means over discs, a row at a time: sums along the rows turn each chord into the difference of two values. Large discs
// are summed on a halved image, so that a disc never has more than a few rows.
#include "platform/coreimage/passes/DiscBlur.h"

#include "platform/coreimage/graph/Planes.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/kernel/Table.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace ci {

namespace {

constexpr double kMostCells = 12; // the radius above which the image is halved
constexpr double kWidest = 2000; // px

/// The part of a disc in one row of cells: `half` cells to each side of the middle.
struct Chord {
    int row;
    float half, weight;
};

void addDisc(std::vector<Chord>& chords, double radius, double weight)
{
    constexpr int kParts = 16; // a row is wider at one side than at the other
    const int rows = int(std::ceil(radius + 0.5)) - 1;
    for (int row = -rows; row <= rows; ++row) {
        double half = 0;
        for (int part = 0; part < kParts; ++part) {
            const double y = row + (part + 0.5) / kParts - 0.5;
            half += std::sqrt(std::max(0.0, radius * radius - y * y)) / kParts;
        }
        chords.push_back({row, float(half), float(weight)});
    }
}

class DiscPass : public BlockPass<DiscPass> {
public:
    explicit DiscPass(const Disc& disc)
        : m_disc(disc)
    {
    }
    int halvings(const Grid& grid) const override
    {
        return std::max(0, int(std::ceil(std::log2(radiusOn(grid) / kMostCells))));
    }
    Margin margin(const Grid& grid) const override
    {
        const int cell = 1 << halvings(grid), reach = (int(std::ceil(radiusOn(grid) / cell)) + 4) * cell;
        return {reach, reach};
    }
    template <class V>
    void work(const Grid& grid, const Planes& in, const Planes& out, Scratch& scratch) const
    {
        const int times = halvings(grid), cell = 1 << times;
        const std::vector<Chord> chords = chordsOn(grid, cell);
        const GridRect& to = out.area;
        const Planes coarse = times == 0
            ? out
            : Planes::allocate({floorDiv(to.x0, cell) - 1, floorDiv(to.y0, cell) - 1, floorDiv(to.x1 - 1, cell) + 2,
                                   floorDiv(to.y1 - 1, cell) + 2},
                scratch);
        forEachPlane(in, out, [&](int c) {
            const ScratchScope scope(scratch);
            means<V>(in, coarse, c, chords, scratch);
            if (times > 0)
                enlarge<V>(coarse, out, c, cell, scratch);
        });
    }

private:
    /// In cells. At radius 0 the disc is as large as a pixel.
    double radiusOn(const Grid& grid) const
    {
        const double r = m_disc.radius * grid.scale;
        return std::sqrt(r * r + 1 / M_PI);
    }

    std::vector<Chord> chordsOn(const Grid& grid, int cell) const
    {
        std::vector<Chord> chords;
        const double radius = radiusOn(grid) / cell, inner = radius * m_disc.ringFrom;
        addDisc(chords, radius, 1 + m_disc.ringAmount);
        if (m_disc.ringAmount > 0 && inner > 0.5)
            addDisc(chords, inner, -m_disc.ringAmount);
        double total = 0;
        for (const Chord& chord : chords)
            total += 2 * double(chord.half) * double(chord.weight);
        for (Chord& chord : chords)
            chord.weight = float(double(chord.weight) / total);
        return chords;
    }

    /// What lies left of each column, for `rows` lines at once: no sum waits for another.
    template <int rows>
    static void sumLines(const float* line, std::size_t stride, int count, float* sum, std::size_t sumStride)
    {
        double total[rows] = {}; // double: what lies before a window must cancel
        for (int x = 0; x < count; ++x)
            for (std::size_t k = 0; k < rows; ++k) {
                sum[k * sumStride + std::size_t(x)] = float(total[k]);
                total[k] += double(line[k * stride + std::size_t(x)]);
            }
        for (std::size_t k = 0; k < rows; ++k)
            sum[k * sumStride + std::size_t(count)] = float(total[k]);
    }

    /// A sum some floats away from the middle of a disc, and how often it counts.
    struct Share {
        std::ptrdiff_t offset;
        float weight;
    };

    /// Each chord ends `half` beyond the middle of a cell, between two sums on either side.
    static std::vector<Share> sharesOf(const std::vector<Chord>& chords, std::ptrdiff_t stride)
    {
        std::vector<Share> shares;
        for (const Chord& chord : chords) {
            const float end = chord.half + 0.5f;
            const auto whole = std::ptrdiff_t(std::floor(end));
            const float part = end - float(whole), w = chord.weight;
            const std::ptrdiff_t row = chord.row * stride;
            shares.insert(shares.end(),
                {{row + whole, w * (1 - part)}, {row + whole + 1, w * part}, {row + 1 - whole, -w * (1 - part)},
                    {row - whole, -w * part}});
        }
        return shares;
    }

    template <class V>
    static void means(const Planes& in, const Planes& out, int c, const std::vector<Chord>& chords, Scratch& scratch)
    {
        const std::size_t stride = in.stride + kRowPadding;
        float* const sums = scratch.floats(stride * std::size_t(in.area.height()) + 4 * kRowPadding);
        int y = in.area.y0;
        const auto sumAt = [&](int line) { return sums + std::size_t(line - in.area.y0) * stride; };
        for (; y + 4 <= in.area.y1; y += 4)
            sumLines<4>(in.line(c, y), in.stride, in.area.width(), sumAt(y), stride);
        for (; y < in.area.y1; ++y)
            sumLines<1>(in.line(c, y), in.stride, in.area.width(), sumAt(y), stride);

        const std::vector<Share> shares = sharesOf(chords, std::ptrdiff_t(stride));
        const int left = out.area.x0 - in.area.x0, width = out.area.width();
        for (y = out.area.y0; y < out.area.y1; ++y) {
            const float* const middle = sumAt(y) + left;
            float* const to = out.line(c, y);
            int x = 0;
            for (; x + 4 * kLanes<V> <= width; x += 4 * kLanes<V>)
                meansOf<V, 4>(middle + x, shares, to + x);
            for (; x < width; x += kLanes<V>)
                meansOf<V, 1>(middle + x, shares, to + x);
        }
    }

    template <class V, int batches>
    static void meansOf(const float* middle, const std::vector<Share>& shares, float* to)
    {
        V mean[batches];
#pragma GCC unroll 4
        for (int i = 0; i < batches; ++i)
            mean[i] = V(0.0f);
        for (const Share& share : shares) {
            const V weight(share.weight);
#pragma GCC unroll 4 // else the sums live in memory
            for (int i = 0; i < batches; ++i)
                mean[i] = mulAdd(weight, loadRow<V>(middle + share.offset + i * kLanes<V>), mean[i]);
        }
#pragma GCC unroll 4
        for (int i = 0; i < batches; ++i)
            storeRow(to + i * kLanes<V>, mean[i]);
    }

    /// Reads the coarse cells linearly.
    template <class V>
    static void enlarge(const Planes& coarse, const Planes& out, int c, int cell, Scratch& scratch)
    {
        const int width = out.area.width(), coarseWidth = coarse.area.width();
        const auto room = std::size_t(std::max(width, coarseWidth) + 2 * kRowPadding);
        float *const columns = scratch.floats(room), *const parts = scratch.floats(room),
                     *const line = scratch.floats(room);
        const auto place = [&](int i) { return (float(i) + 0.5f) / float(cell) - 0.5f; };
        for (int x = 0; x < width + kRowPadding; ++x) {
            const float at = place(out.area.x0 + std::min(x, width - 1)) - float(coarse.area.x0);
            columns[x] = std::floor(at);
            parts[x] = at - columns[x];
        }
        for (int y = out.area.y0; y < out.area.y1; ++y) {
            const float at = place(y), low = std::floor(at);
            const float *below = coarse.line(c, int(low)), *above = coarse.line(c, int(low) + 1);
            for (int x = 0; x < coarseWidth; x += kLanes<V>)
                storeRow(line + x, mix(loadRow<V>(below + x), loadRow<V>(above + x), V(at - low)));
            float* const to = out.line(c, y);
            for (int x = 0; x < width; x += kLanes<V>) {
                const V column = loadRow<V>(columns + x);
                storeRow(to + x, mix(gather(line, column), gather(line + 1, column), loadRow<V>(parts + x)));
            }
        }
    }

    Disc m_disc;
};

} // namespace

CIImage discBlur(const CIImage& image, const Disc& disc)
{
    if (image.isNull() || disc.radius < 0.05)
        return image;
    Disc limited = disc;
    limited.radius = std::min(disc.radius, kWidest);
    return CIImage(passNode(
        image.node(), std::make_shared<DiscPass>(limited), image.extent().grown(std::ceil(limited.radius) + 1), true));
}

} // namespace ci
