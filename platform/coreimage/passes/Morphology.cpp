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

template <class V>
using Value = std::conditional_t<std::is_same_v<V, CodeBatch>, std::uint8_t, float>;

/// to[x] = a (1 - part) + b part.
template <class V>
void mixLine(const float* a, const float* b, float part, float* to, int count)
{
    for (int x = 0; x < count; x += kLanes<V>)
        storeRow(to + x, mix(loadRow<V>(a + x), loadRow<V>(b + x), V(part)));
}

/// to[x] = the extreme of a[x] and b[x]; `to` may be one of them.
template <Extreme E, class V>
void extremeLine(const Value<V>* a, const Value<V>* b, Value<V>* to, int count)
{
    for (int x = 0; x < count; x += kLanes<V>)
        storeRow(to + x, extreme<E>(loadRow<V>(a + x), loadRow<V>(b + x)));
}

/// The doublings after which two runs cover 2 `reach` + 1 cells.
int doublings(int reach) { return std::bit_width(unsigned(2 * reach + 1)) - 1; }

/// What chooses among the values around each: one `Pass::sheet<V>(in, out, grid, scratch)` for light and for codes.
template <class Pass>
class RankPass : public BlockPass<RankPass<Pass>> {
public:
    template <class V>
    void work(const Grid& grid, const Planes& in, const Planes& out, Scratch& scratch) const
    {
        forEachPlane(in, out, [&](int c) { pass().template sheet<V>(in.sheet(c), out.sheet(c), grid, scratch); });
    }
    bool onlyChooses() const override { return true; }
    void runOnCodes(CodeReader& reader, const GridRect& area, const CodeSheet& out, Scratch& scratch) const override
    {
        const CodeSheet in = allocateCodes(area, scratch);
        fillCodes(in, reader);
        pass().template sheet<CodeBatch>(in, out, Grid(), scratch);
    }

private:
    const Pass& pass() const { return static_cast<const Pass&>(*this); }
};

template <Extreme E>
class RectanglePass : public RankPass<RectanglePass<E>> {
public:
    RectanglePass(double across, double along)
        : m_across(across)
        , m_along(along)
    {
    }
    PassKernel::Margin margin(const Grid& grid) const override
    {
        return {Reach(m_across, grid).highest(), Reach(m_along, grid).highest()};
    }

    template <class V, class T>
    void sheet(const Sheet<T>& in, const Sheet<T>& out, const Grid& grid, Scratch& scratch) const
    {
        const ScratchScope scope(scratch);
        const Reach across(m_across, grid), along(m_along, grid);
        const int width = out.length(), from = (out.area.x0 - in.area.x0) * in.step;
        T* const runs = row<T>(in.length(), scratch);
        T* const wider = row<T>(in.length(), scratch);
        for (int y = in.area.y0; y < in.area.y1; ++y) {
            T* const line = in.line(y);
            std::copy_n(line, in.length(), runs);
            const int size = doubleRuns<V>(runs, in.length(), in.step, across.low);
            const auto widest = [&](int low, T* to) {
                extremeLine<E, V>(runs + from - low * in.step, runs + from + (low + 1 - size) * in.step, to, width);
            };
            widest(across.low, line + from);
            if constexpr (std::is_same_v<T, float>) {
                if (across.part > 0) {
                    std::copy_n(line + from, width, wider);
                    widest(across.low + 1, runs);
                    extremeLine<E, V>(runs, wider, runs, width);
                    mixLine<V>(wider, runs, across.part, line + from, width);
                }
            }
        }
        columns<V>(in, out, along, wider);
    }

private:
    template <class T>
    static T* row(int length, Scratch& scratch)
    {
        constexpr int kRoom = 2 * 64; // bytes
        return static_cast<T*>(scratch.bytes(std::size_t(length) * sizeof(T) + kRoom));
    }

    /// Doubles the runs in place as far as they fit into 2 `reach` + 1 cells; the length they have in the end.
    template <class V, class T>
    static int doubleRuns(T* runs, int length, int step, int reach)
    {
        int size = 1;
        for (int i = 0; i < doublings(reach); ++i, size *= 2)
            extremeLine<E, V>(runs, runs + size * step, runs, length - size * step);
        return size;
    }

    template <class V, class T>
    static void columns(const Sheet<T>& in, const Sheet<T>& out, const Reach& along, T* wider)
    {
        const int width = out.length();
        const auto at = [&](int y) { return in.at(out.area.x0, y); };
        int size = 1;
        for (int i = 0; i < doublings(along.low); ++i, size *= 2)
            for (int y = in.area.y0; y + size < in.area.y1; ++y)
                extremeLine<E, V>(at(y), at(y + size), at(y), width);
        for (int y = out.area.y0; y < out.area.y1; ++y) {
            T* const to = out.line(y);
            extremeLine<E, V>(at(y - along.low), at(y + along.low + 1 - size), to, width);
            if constexpr (std::is_same_v<T, float>) {
                if (along.part > 0) {
                    extremeLine<E, V>(at(y - along.low - 1), at(y + along.low + 2 - size), wider, width);
                    extremeLine<E, V>(to, wider, wider, width);
                    mixLine<V>(to, wider, along.part, to, width);
                }
            }
        }
    }

    double m_across, m_along; // px to each side
};

/// One row of a disc: two runs of 2^level cells, `first` and `second` values away from the middle.
struct Chord {
    std::ptrdiff_t first, second;
};

template <Extreme E>
class DiscPass : public RankPass<DiscPass<E>> {
public:
    explicit DiscPass(double radius)
        : m_radius(radius)
    {
    }
    PassKernel::Margin margin(const Grid& grid) const override
    {
        const int reach = Reach(m_radius, grid).highest();
        return {reach, reach};
    }

    template <class V, class T>
    void sheet(const Sheet<T>& in, const Sheet<T>& out, const Grid& grid, Scratch& scratch) const
    {
        const ScratchScope scope(scratch);
        const Reach reach(m_radius, grid);
        const int levels = doublings(reach.highest()) + 1;
        const std::size_t size = in.stride * std::size_t(in.area.height());
        T* const runs = static_cast<T*>(scratch.bytes((std::size_t(levels) * size + 2 * 64) * sizeof(T)));
        for (int y = in.area.y0; y < in.area.y1; ++y) {
            T* line = runs + std::size_t(y - in.area.y0) * in.stride;
            std::copy_n(in.line(y), in.stride, line);
            for (int k = 1; k < levels; ++k, line += size)
                extremeLine<E, V>(line, line + (in.step << (k - 1)), line + size, in.length());
        }
        // At full size the radius stands as it is; elsewhere the two next whole ones are mixed.
        const auto radius = [&](int whole) { return grid.scale == 1 ? std::min(m_radius, kWidest) : double(whole); };
        const std::vector<Chord> chords = chordsOf(radius(reach.low), in.stride, size, in.step);
        const std::vector<Chord> wider =
            reach.part > 0 ? chordsOf(radius(reach.low + 1), in.stride, size, in.step) : std::vector<Chord>();
        for (int y = out.area.y0; y < out.area.y1; ++y) {
            const T* const middle =
                runs + std::size_t(y - in.area.y0) * in.stride + std::ptrdiff_t(out.area.x0 - in.area.x0) * in.step;
            T* const to = out.line(y);
            for (int x = 0; x < out.length(); x += kLanes<V>) {
                V value = extremeOf<V>(middle + x, chords);
                if constexpr (std::is_same_v<T, float>) {
                    if (!wider.empty())
                        value = mix(value, extremeOf<V>(middle + x, wider), V(reach.part));
                }
                storeRow(to + x, value);
            }
        }
    }

private:
    template <class V, class T>
    static V extremeOf(const T* middle, const std::vector<Chord>& chords)
    {
        V one = loadRow<V>(middle), other = one; // two chains, neither waits for the other
        for (const Chord& chord : chords) {
            one = extreme<E>(one, loadRow<V>(middle + chord.first));
            other = extreme<E>(other, loadRow<V>(middle + chord.second));
        }
        return extreme<E>(one, other);
    }

    static std::vector<Chord> chordsOf(double radius, std::size_t stride, std::size_t level, int step)
    {
        std::vector<Chord> chords;
        const int rows = int(std::floor(radius + 1e-6));
        for (int dy = -rows; dy <= rows; ++dy) {
            const int half = int(std::floor(std::sqrt(std::max(0.0, radius * radius - dy * dy)) + 1e-6));
            const int doubled = doublings(half);
            const std::ptrdiff_t start = doubled * std::ptrdiff_t(level) + dy * std::ptrdiff_t(stride);
            chords.push_back({start - half * step, start + (half + 1 - (1 << doubled)) * step});
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

class MedianPass : public RankPass<MedianPass> {
public:
    PassKernel::Margin margin(const Grid& grid) const override { return {apart(grid), apart(grid)}; }

    template <class V, class T>
    void sheet(const Sheet<T>& in, const Sheet<T>& out, const Grid& grid, Scratch& scratch) const
    {
        const ScratchScope scope(scratch);
        const int step = apart(grid), aside = step * in.step, left = (out.area.x0 - in.area.x0) * in.step;
        const float part = share(grid);
        const std::size_t room = (std::size_t(in.length()) + 2 * 64) * sizeof(T);
        T *const low = static_cast<T*>(scratch.bytes(room)), *const middle = static_cast<T*>(scratch.bytes(room)),
                 *const high = static_cast<T*>(scratch.bytes(room));
        for (int y = out.area.y0; y < out.area.y1; ++y) {
            const T *below = in.line(y - step), *line = in.line(y), *above = in.line(y + step);
            for (int x = 0; x < in.length(); x += kLanes<V>) {
                const V p = loadRow<V>(below + x), q = loadRow<V>(line + x), r = loadRow<V>(above + x);
                const V least = min(p, q), most = max(p, q), rest = min(most, r);
                storeRow(low + x, min(least, rest));
                storeRow(middle + x, max(least, rest));
                storeRow(high + x, max(most, r));
            }
            T* const to = out.line(y);
            for (int x = 0; x < out.length(); x += kLanes<V>) {
                const int at = left + x;
                const auto three = [&](const T* from) {
                    return std::array{
                        loadRow<V>(from + at - aside), loadRow<V>(from + at), loadRow<V>(from + at + aside)};
                };
                const auto l = three(low), m = three(middle), h = three(high);
                V median = middleOf(max(max(l[0], l[1]), l[2]), middleOf(m[0], m[1], m[2]), min(min(h[0], h[1]), h[2]));
                if constexpr (std::is_same_v<T, float>) {
                    if (part < 1)
                        median = mix(loadRow<V>(line + at), median, V(part));
                }
                storeRow(to + x, median);
            }
        }
    }

private:
    /// How many cells apart neighboring pixels lie.
    static int apart(const Grid& grid) { return std::max(1, int(std::lround(std::min(grid.scale, 256.0)))); }
    /// Where a cell covers several pixels, the median has less to do; it is gone when nine pixels make one cell.
    static float share(const Grid& grid) { return float(std::clamp((3 * grid.scale - 1) / 2, 0.0, 1.0)); }
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
