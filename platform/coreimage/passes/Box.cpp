// Means over rectangles by running sums, whose cost does not grow with their size.
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
        float* const sum = scratch.floats(std::size_t(width + kRowPadding));
        float* const line = scratch.floats(std::size_t(width + kRowPadding));
        for (int c = 0; c < 4; ++c) {
            std::fill_n(sum, width + kRowPadding, 0.0f);
            const auto add = [&](int y, float sign) {
                const float* const row = in.line(c, y);
                for (int x = 0; x < width; x += kLanes<V>)
                    storeRow(sum + x, mulAdd(V(sign), loadRow<V>(row + x), loadRow<V>(sum + x)));
            };
            for (int y = out.area.y0 - along.whole; y < out.area.y0 + along.whole; ++y)
                add(y, 1);
            for (int y = out.area.y0; y < out.area.y1; ++y) {
                add(y + along.whole, 1);
                const float *below = in.line(c, y - along.reach()), *above = in.line(c, y + along.reach());
                for (int x = 0; x < width; x += kLanes<V>)
                    storeRow(line + x,
                        V(along.share)
                            * mulAdd(
                                V(along.part), loadRow<V>(below + x) + loadRow<V>(above + x), loadRow<V>(sum + x)));
                meanOfLine(line + (out.area.x0 - in.area.x0), across, out.line(c, y), out.area.width());
                add(y - along.whole, -1);
            }
        }
    }

    static void meanOfLine(const float* middle, const Window& window, float* to, int count)
    {
        double sum = 0; // double: what is added must cancel when it is taken away
        for (int k = -window.whole; k < window.whole; ++k)
            sum += double(middle[k]);
        for (int x = 0; x < count; ++x) {
            sum += double(middle[x + window.whole]);
            to[x] =
                window.share * (float(sum) + window.part * (middle[x - window.reach()] + middle[x + window.reach()]));
            sum -= double(middle[x - window.whole]);
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
