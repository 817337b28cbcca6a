// Greatest and least values. The extreme of any number of cells in a row is that of two overlapping runs of a power of
// two, and runs of a power of two come from doubling: the cost of a rectangle grows with the logarithm of its sides,
// that of a disc with its radius.
#include "platform/coreimage/passes/Morphology.h"

#include "platform/coreimage/graph/Planes.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

namespace ci {

namespace {

constexpr double kWidest = 500; // cells to each side; beyond it nothing is left to see

template <Extreme E, class V>
V extreme(const V& a, const V& b)
{
    if constexpr (E == Extreme::Greatest)
        return max(a, b);
    else
        return min(a, b);
}

/// A length in cells, between two whole ones: `low` and, to the `part`, `low` + 1.
struct Reach {
    int low;
    float part;
    Reach(double length, const Grid& grid)
    {
        const double cells = std::clamp(length * grid.scale, 0.0, kWidest);
        low = int(std::floor(cells + 1e-6));
        part = grid.scale == 1 ? 0 : std::max(0.0f, float(cells - low)); // full size knows no half pixels
    }
    int highest() const { return low + (part > 0 ? 1 : 0); }
};

/// to[x] = a (1 - part) + b part.
template <class V>
void mixLine(const float* a, const float* b, float part, float* to, int count)
{
    for (int x = 0; x < count; x += kLanes<V>)
        storeRow(to + x, mix(loadRow<V>(a + x), loadRow<V>(b + x), V(part)));
}

/// to[x] = the extreme of a[x] and b[x]; `to` may be one of them.
template <Extreme E, class V>
void extremeLine(const float* a, const float* b, float* to, int count)
{
    for (int x = 0; x < count; x += kLanes<V>)
        storeRow(to + x, extreme<E>(loadRow<V>(a + x), loadRow<V>(b + x)));
}

/// The doublings after which two runs cover 2 `reach` + 1 cells.
int doublings(int reach) { return std::bit_width(unsigned(2 * reach + 1)) - 1; }

template <Extreme E>
class RectanglePass : public PassKernel {
public:
    RectanglePass(double across, double along)
        : m_across(across)
        , m_along(along)
    {
    }
    Margin margin(const Grid& grid) const override
    {
        return {Reach(m_across, grid).highest(), Reach(m_along, grid).highest()};
    }
    void run(const Render& render, RowReader& reader, const GridRect& area, const Planes& out,
        Scratch& scratch) const override
    {
        const Planes in = Planes::allocate(area, scratch);
        in.fill(reader);
        const Reach across(m_across, render.grid), along(m_along, render.grid);
        forEachPlane(in, out, [&](int c) {
            if (render.floats)
                plane<float>(in, out, c, across, along, scratch);
            else
                plane<Batch>(in, out, c, across, along, scratch);
        });
    }

private:
    template <class V>
    void plane(
        const Planes& in, const Planes& out, int c, const Reach& across, const Reach& along, Scratch& scratch) const
    {
        const ScratchScope scope(scratch);
        const int width = out.area.width();
        float* const runs = scratch.floats(std::size_t(in.area.width()) + 2 * kRowPadding);
        float* const wider = scratch.floats(std::size_t(width) + kRowPadding);
        for (int y = in.area.y0; y < in.area.y1; ++y) {
            float* const line = in.line(c, y);
            std::copy_n(line, in.area.width(), runs);
            const int from = out.area.x0 - in.area.x0;
            const int size = doubleRuns<V>(runs, in.area.width(), across.low);
            extremeLine<E, V>(runs + from - across.low, runs + from + across.low + 1 - size, line + from, width);
            if (across.part > 0) {
                std::copy_n(line + from, width, wider);
                extremeLine<E, V>(runs + from - across.low - 1, runs + from + across.low + 2 - size, runs, width);
                extremeLine<E, V>(runs, wider, runs, width);
                mixLine<V>(wider, runs, across.part, line + from, width);
            }
        }
        columns<V>(in, out, c, along, wider);
    }

    /// Doubles the runs in place as far as they fit into 2 `reach` + 1 cells; the length they have in the end.
    template <class V>
    static int doubleRuns(float* runs, int width, int reach)
    {
        int size = 1;
        for (int i = 0; i < doublings(reach); ++i, size *= 2)
            extremeLine<E, V>(runs, runs + size, runs, width - size);
        return size;
    }

    template <class V>
    static void columns(const Planes& in, const Planes& out, int c, const Reach& along, float* wider)
    {
        const int from = out.area.x0, width = out.area.width();
        const auto at = [&](int y) { return in.at(c, from, y); };
        int size = 1;
        for (int i = 0; i < doublings(along.low); ++i, size *= 2)
            for (int y = in.area.y0; y + size < in.area.y1; ++y)
                extremeLine<E, V>(at(y), at(y + size), at(y), width);
        for (int y = out.area.y0; y < out.area.y1; ++y) {
            float* const to = out.line(c, y);
            extremeLine<E, V>(at(y - along.low), at(y + along.low + 1 - size), to, width);
            if (along.part > 0) {
                extremeLine<E, V>(at(y - along.low - 1), at(y + along.low + 2 - size), wider, width);
                extremeLine<E, V>(to, wider, wider, width);
                mixLine<V>(to, wider, along.part, to, width);
            }
        }
    }

    double m_across, m_along; // px to each side
};

/// One row of a disc: two runs of 2^level cells, `first` and `second` floats away from the middle.
struct Chord {
    std::ptrdiff_t first, second;
};

template <Extreme E>
class DiscPass : public PassKernel {
public:
    explicit DiscPass(double radius)
        : m_radius(radius)
    {
    }
    Margin margin(const Grid& grid) const override
    {
        const int reach = Reach(m_radius, grid).highest();
        return {reach, reach};
    }
    void run(const Render& render, RowReader& reader, const GridRect& area, const Planes& out,
        Scratch& scratch) const override
    {
        const Planes in = Planes::allocate(area, scratch);
        in.fill(reader);
        const Reach reach(m_radius, render.grid);
        forEachPlane(in, out, [&](int c) {
            if (render.floats)
                plane<float>(in, out, c, reach, render.grid, scratch);
            else
                plane<Batch>(in, out, c, reach, render.grid, scratch);
        });
    }

private:
    template <class V>
    void plane(const Planes& in, const Planes& out, int c, const Reach& reach, const Grid& grid, Scratch& scratch) const
    {
        const ScratchScope scope(scratch);
        const int levels = doublings(reach.highest()) + 1, width = in.area.width();
        const std::size_t size = in.stride * std::size_t(in.area.height());
        float* const runs = scratch.floats(std::size_t(levels) * size + 2 * kRowPadding);
        for (int y = in.area.y0; y < in.area.y1; ++y) {
            float* line = runs + std::size_t(y - in.area.y0) * in.stride;
            std::copy_n(in.line(c, y), in.stride, line);
            for (int k = 1; k < levels; ++k, line += size)
                extremeLine<E, V>(line, line + (1 << (k - 1)), line + size, width);
        }
        // At full size the radius stands as it is; elsewhere the two next whole ones are mixed.
        const auto radius = [&](int whole) { return grid.scale == 1 ? std::min(m_radius, kWidest) : double(whole); };
        const std::vector<Chord> chords = chordsOf(radius(reach.low), in.stride, size);
        const std::vector<Chord> wider =
            reach.part > 0 ? chordsOf(radius(reach.low + 1), in.stride, size) : std::vector<Chord>();
        for (int y = out.area.y0; y < out.area.y1; ++y) {
            const float* const middle =
                runs + std::size_t(y - in.area.y0) * in.stride + std::size_t(out.area.x0 - in.area.x0);
            float* const to = out.line(c, y);
            for (int x = 0; x < out.area.width(); x += kLanes<V>) {
                V value = extremeOf<V>(middle + x, chords);
                if (!wider.empty())
                    value = mix(value, extremeOf<V>(middle + x, wider), V(reach.part));
                storeRow(to + x, value);
            }
        }
    }

    template <class V>
    static V extremeOf(const float* middle, const std::vector<Chord>& chords)
    {
        V one = loadRow<V>(middle), other = one; // two chains, neither waits for the other
        for (const Chord& chord : chords) {
            one = extreme<E>(one, loadRow<V>(middle + chord.first));
            other = extreme<E>(other, loadRow<V>(middle + chord.second));
        }
        return extreme<E>(one, other);
    }

    static std::vector<Chord> chordsOf(double radius, std::size_t stride, std::size_t plane)
    {
        std::vector<Chord> chords;
        const int rows = int(std::floor(radius + 1e-6));
        for (int dy = -rows; dy <= rows; ++dy) {
            const int half = int(std::floor(std::sqrt(std::max(0.0, radius * radius - dy * dy)) + 1e-6));
            const int level = doublings(half);
            const std::ptrdiff_t start = level * std::ptrdiff_t(plane) + dy * std::ptrdiff_t(stride);
            chords.push_back({start - half, start + half + 1 - (1 << level)});
        }
        return chords;
    }

    double m_radius; // px
};

/// The median of nine from sorted columns: the middle one of the greatest least, the middle middle and the least
/// greatest (A. Paeth, Median finding on a 3x3 grid, 1990).
template <class V>
V middleOf(const V& a, const V& b, const V& c)
{
    return max(min(a, b), min(max(a, b), c));
}

class MedianPass : public PassKernel {
public:
    Margin margin(const Grid& grid) const override { return {apart(grid), apart(grid)}; }
    void run(const Render& render, RowReader& reader, const GridRect& area, const Planes& out,
        Scratch& scratch) const override
    {
        const Planes in = Planes::allocate(area, scratch);
        in.fill(reader);
        forEachPlane(in, out, [&](int c) {
            if (render.floats)
                plane<float>(in, out, c, render.grid, scratch);
            else
                plane<Batch>(in, out, c, render.grid, scratch);
        });
    }

private:
    /// How many cells apart neighboring pixels lie.
    static int apart(const Grid& grid) { return std::max(1, int(std::lround(std::min(grid.scale, 256.0)))); }
    /// Where a cell covers several pixels, the median has less to do; it is gone when nine pixels make one cell.
    static float share(const Grid& grid) { return float(std::clamp((3 * grid.scale - 1) / 2, 0.0, 1.0)); }

    template <class V>
    void plane(const Planes& in, const Planes& out, int c, const Grid& grid, Scratch& scratch) const
    {
        const ScratchScope scope(scratch);
        const int step = apart(grid), left = out.area.x0 - in.area.x0;
        const float part = share(grid);
        const auto room = std::size_t(in.area.width() + 2 * kRowPadding);
        float *const low = scratch.floats(room), *const middle = scratch.floats(room),
                     *const high = scratch.floats(room);
        for (int y = out.area.y0; y < out.area.y1; ++y) {
            const float *below = in.line(c, y - step), *line = in.line(c, y), *above = in.line(c, y + step);
            for (int x = 0; x < in.area.width(); x += kLanes<V>) {
                const V p = loadRow<V>(below + x), q = loadRow<V>(line + x), r = loadRow<V>(above + x);
                const V least = min(p, q), most = max(p, q), rest = min(most, r);
                storeRow(low + x, min(least, rest));
                storeRow(middle + x, max(least, rest));
                storeRow(high + x, max(most, r));
            }
            float* const to = out.line(c, y);
            for (int x = 0; x < out.area.width(); x += kLanes<V>) {
                const int at = left + x;
                const auto three = [&](const float* from) {
                    return std::array{
                        loadRow<V>(from + at - step), loadRow<V>(from + at), loadRow<V>(from + at + step)};
                };
                const auto l = three(low), m = three(middle), h = three(high);
                const V median =
                    middleOf(max(max(l[0], l[1]), l[2]), middleOf(m[0], m[1], m[2]), min(min(h[0], h[1]), h[2]));
                storeRow(to + x, part < 1 ? mix(loadRow<V>(line + at), median, V(part)) : median);
            }
        }
    }
};

template <template <Extreme> class Pass, class... Lengths>
NodePtr extremeNode(const CIImage& image, Extreme which, const CIRect& extent, Lengths... lengths)
{
    if (which == Extreme::Greatest)
        return passNode(image.node(), std::make_shared<Pass<Extreme::Greatest>>(lengths...), extent, true);
    return passNode(image.node(), std::make_shared<Pass<Extreme::Least>>(lengths...), extent, true);
}

/// Least values don't reach beyond the image, transparent pixels around it reach into it.
CIRect extentOf(const CIImage& image, Extreme which, double across, double along)
{
    return which == Extreme::Greatest ? image.extent().grown(across, along) : image.extent();
}

} // namespace

CIImage extremeOfRectangle(const CIImage& image, Extreme which, double width, double height)
{
    const double across = std::min(std::floor(width / 2), kWidest), along = std::min(std::floor(height / 2), kWidest);
    if (image.isNull() || (across < 1 && along < 1))
        return image;
    return CIImage(extremeNode<RectanglePass>(image, which, extentOf(image, which, across, along), across, along));
}

CIImage extremeOfDisc(const CIImage& image, Extreme which, double radius)
{
    if (image.isNull() || radius < 1)
        return image;
    radius = std::min(radius, kWidest);
    const double reach = std::floor(radius);
    return CIImage(extremeNode<DiscPass>(image, which, extentOf(image, which, reach, reach), radius));
}

CIImage medianOfNine(const CIImage& image)
{
    return image.isNull() ? image
                          : CIImage(passNode(image.node(), std::make_shared<MedianPass>(), image.extent(), true));
}

} // namespace ci
