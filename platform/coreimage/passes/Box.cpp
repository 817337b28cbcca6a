// Means over rectangles by running sums, whose cost does not grow with their size.
#include "platform/coreimage/graph/Interleaved.h"
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

class BoxPass : public PassKernel {
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

    void run(const Render& render, RowReader& reader, const GridRect& area, const Planes& out,
        Scratch& scratch) const override
    {
        const Planes in = Planes::allocate(area, scratch);
        in.fill(reader);
        if (render.floats)
            blur<float>(render.grid, in, out, scratch);
        else
            blur<Batch>(render.grid, in, out, scratch);
    }

private:
    template <class V>
    void blur(const Grid& grid, const Planes& in, const Planes& out, Scratch& scratch) const
    {
        const Window across(m_width * grid.scale), along(m_height * grid.scale);
        const int width = in.area.width();
        const MutableRow sum = allocateRow(scratch, width), line = allocateRow(scratch, width);
        float* const pixels = scratch.floats(4 * std::size_t(width));
        float* const means = scratch.floats(4 * std::size_t(out.area.width()));
        float *const sums[4] = {sum.r, sum.g, sum.b, sum.a}, *const lines[4] = {line.r, line.g, line.b, line.a};
        const auto add = [&](int c, int y, float sign) {
            const float* const row = in.line(c, y);
            for (int x = 0; x < width; x += kLanes<V>)
                storeRow(sums[c] + x, mulAdd(V(sign), loadRow<V>(row + x), loadRow<V>(sums[c] + x)));
        };
        for (int c = 0; c < 4; ++c) {
            std::fill_n(sums[c], width, 0.0f);
            for (int y = out.area.y0 - along.whole; y < out.area.y0 + along.whole; ++y)
                add(c, y, 1);
        }
        for (int y = out.area.y0; y < out.area.y1; ++y) {
            for (int c = 0; c < 4; ++c) {
                add(c, y + along.whole, 1);
                const float *below = in.line(c, y - along.reach()), *above = in.line(c, y + along.reach());
                for (int x = 0; x < width; x += kLanes<V>) {
                    const V ends = loadRow<V>(below + x) + loadRow<V>(above + x);
                    storeRow(lines[c] + x, V(along.share) * mulAdd(V(along.part), ends, loadRow<V>(sums[c] + x)));
                }
                add(c, y - along.whole, -1);
            }
            interleave(line, width, pixels);
            meansOfLine(pixels + 4 * (out.area.x0 - in.area.x0), across, means, out.area.width());
            deinterleave(means, out.area.width(), out.row(y));
        }
    }

    /// All four components at once. In doubles: what is added must cancel when it is taken away.
    static void meansOfLine(const float* middle, const Window& window, float* to, int count)
    {
        using Sum = double __attribute__((vector_size(32)));
        const auto at = [middle](int x) { return loadQuad(middle + 4 * std::ptrdiff_t(x)); };
        const auto wide = [](const Quad& q) { return __builtin_convertvector(q, Sum); };
        Sum sum = {};
        for (int k = -window.whole; k <= window.whole; ++k)
            sum += wide(at(k));
        for (int x = 0; x < count; ++x) {
            const Quad ends = at(x - window.reach()) + at(x + window.reach());
            const Quad mean = window.share * (__builtin_convertvector(sum, Quad) + window.part * ends);
            __builtin_memcpy(to + 4 * std::ptrdiff_t(x), &mean, sizeof mean);
            sum += wide(at(x + window.whole + 1)) - wide(at(x - window.whole));
        }
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
