// Means over rectangles by running sums, whose cost hardly grows with their size.
#include "platform/coreimage/graph/Planes.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/passes/Blur.h"

#include <cmath>

namespace ci {

namespace {

/// A window of cells: `whole` on each side of the middle count fully, one more on each side by `part`.
struct Window {
    int whole;
    float part, share; // share: of one whole cell
    explicit Window(double width)
    {
        const double half = std::max(0.0, (width - 1) / 2);
        whole = int(std::floor(half + 1e-9));
        part = float(std::max(0.0, half - whole));
        share = float(1 / (2 * half + 1));
    }
    int reach() const { return whole + 1; }
};

class BoxPass : public BlockPass<BoxPass> {
public:
    BoxPass(double width, double height)
        : m_width(width)
        , m_height(height)
    {
    }

    Margin margin(const Grid& grid) const override
    {
        return {Window(m_width * grid.scale).reach(), Window(m_height * grid.scale).reach()};
    }

    template <class V>
    void work(const Grid& grid, const Planes& in, const Planes& out, Scratch& scratch) const
    {
        const Window across(m_width * grid.scale), along(m_height * grid.scale);
        const int width = in.area.width(), before = out.area.x0 - in.area.x0;
        float* const sums = scratch.floats(std::size_t(width));
        float* const line = scratch.floats(std::size_t(width));
        float* const powers = scratch.floats(std::size_t(width));
        forEachPlane(in, out, [&](int c) {
            std::fill_n(sums, width, 0.0f);
            for (int y = out.area.y0 - along.whole; y < out.area.y0 + along.whole; ++y)
                for (int x = 0; x < width; x += kLanes<V>)
                    storeRow(sums + x, loadRow<V>(sums + x) + loadRow<V>(in.line(c, y) + x));
            for (int y = out.area.y0; y < out.area.y1; ++y) {
                meansOfColumns<V>(in, c, y, along, sums, line);
                meansOfLine<V>(line + before, across, powers, out.line(c, y), out.area.width());
            }
        });
    }

private:
    /// `sums` holds the window's rows but the last, and is left that way for the row above.
    template <class V>
    static void meansOfColumns(const Planes& in, int c, int y, const Window& window, float* sums, float* means)
    {
        const float *const last = in.line(c, y + window.whole), *const first = in.line(c, y - window.whole);
        const float *const above = in.line(c, y + window.reach()), *const below = in.line(c, y - window.reach());
        for (int x = 0; x < in.area.width(); x += kLanes<V>) {
            const V sum = loadRow<V>(sums + x) + loadRow<V>(last + x);
            const V ends = loadRow<V>(below + x) + loadRow<V>(above + x);
            storeRow(means + x, V(window.share) * mulAdd(V(window.part), ends, sum));
            storeRow(sums + x, sum - loadRow<V>(first + x));
        }
    }

    /// Sums over 1, 2, 4, 8 … neighbors, each made of two of those before; the window is put together from these.
    /// Nothing cancels, as it would where sums run along a line.
    template <class V>
    static void meansOfLine(const float* middle, const Window& window, float* powers, float* to, int count)
    {
        const int cells = 2 * window.whole + 1, all = count + cells;
        const float* const first = middle - window.whole;
        for (int x = 0; x < count; x += kLanes<V>)
            storeRow(to + x, V(window.part) * (loadRow<V>(first + x - 1) + loadRow<V>(first + x + cells)));
        std::copy_n(first, all, powers);
        for (int power = 1, done = 0; power <= cells; power *= 2) {
            if (cells & power) {
                for (int x = 0; x < count; x += kLanes<V>)
                    storeRow(to + x, loadRow<V>(to + x) + loadRow<V>(powers + done + x));
                done += power;
            }
            if (2 * power <= cells)
                for (int x = 0; x < all - 2 * power; x += kLanes<V>)
                    storeRow(powers + x, loadRow<V>(powers + x) + loadRow<V>(powers + power + x));
        }
        for (int x = 0; x < count; x += kLanes<V>)
            storeRow(to + x, V(window.share) * loadRow<V>(to + x));
    }

    double m_width, m_height; // px
};

} // namespace

CIImage boxBlur(const CIImage& image, double width, double height)
{
    if (image.isNull() || (width <= 1 && height <= 1))
        return image;
    constexpr double kWidest = 1000; // px
    width = std::min(width, kWidest);
    height = std::min(height, kWidest);
    const CIRect extent = image.extent().grown(std::ceil((width - 1) / 2), std::ceil((height - 1) / 2));
    return CIImage(passNode(image.node(), std::make_shared<BoxPass>(width, height), extent, true));
}

} // namespace ci
