#include "platform/coreimage/passes/Distance.h"

#include "platform/coreimage/graph/Interleaved.h"
#include "platform/coreimage/graph/Planes.h"

#include <algorithm>

namespace ci {

namespace {

/// The exact squared distance transform of Felzenszwalb and Huttenlocher: first along columns, then the lower envelope
/// of parabolas along every row.
class DistancePass : public PassKernel {
public:
    explicit DistancePass(double farthest)
        : m_farthest(farthest)
    {
    }
    Margin margin(const Grid& grid) const override
    {
        const int cells = int(std::ceil(m_farthest * grid.scale)) + 1;
        return {cells, cells};
    }
    void run(
        const Render& render, RowReader& in, const GridRect& area, const Planes& out, Scratch& scratch) const override
    {
        const auto width = std::size_t(area.width()), height = std::size_t(area.height());
        float* const along = scratch.floats(width * height); // cells to the next marked one of the column
        const float far = float(width + height);
        for (std::size_t y = 0; y < height; ++y) {
            if (render.isCancelled())
                return;
            const Row row = in.row(area.y0 + int(y));
            float* const line = along + y * width;
            for (std::size_t x = 0; x < width; ++x)
                line[x] = row.r[x] >= 0.5f ? 0 : y ? std::min(line[x - width] + 1, far) : far;
        }
        for (std::size_t y = height - 1; y-- > 0;) {
            float* const line = along + y * width;
            for (std::size_t x = 0; x < width; ++x)
                line[x] = std::min(line[x], line[x + width] + 1);
        }

        int* const vertex = static_cast<int*>(scratch.bytes((width + 1) * sizeof(int)));
        float* const from = scratch.floats(width + 2); // where the parabola of a vertex becomes the lowest
        const float perCell = float(1 / (std::max(m_farthest, 1e-6) * render.grid.scale));
        for (int y = out.area.y0; y < out.area.y1; ++y) {
            const float* const line = along + std::size_t(y - area.y0) * width;
            const int last = envelope(line, int(width), vertex, from);
            const MutableRow row = out.row(y);
            for (int x = out.area.x0, k = 0; x < out.area.x1; ++x) {
                const float place = float(x - area.x0);
                while (k < last && from[k + 1] < place)
                    ++k;
                const float dx = place - float(vertex[k]), dy = line[vertex[k]];
                const int i = x - out.area.x0;
                row.r[i] = std::min(std::sqrt(dx * dx + dy * dy) * perCell, 1.0f);
                row.g[i] = row.b[i] = 0;
                row.a[i] = 1;
            }
        }
    }

private:
    /// The index of the last vertex.
    static int envelope(const float* heights, int count, int* vertex, float* from)
    {
        int last = 0;
        vertex[0] = 0;
        from[0] = -1e30f;
        for (int x = 1; x < count; ++x) {
            const auto meets = [&](int v) {
                const float a = heights[x] * heights[x], b = heights[v] * heights[v];
                return ((a - b) / float(x - v) + float(x + v)) / 2;
            };
            float place = meets(vertex[last]);
            while (last > 0 && place <= from[last])
                place = meets(vertex[--last]);
            if (place <= from[last]) // lower than the very first
                vertex[0] = x, last = 0;
            else
                vertex[++last] = x, from[last] = place;
        }
        return last;
    }
    double m_farthest; // px
};

} // namespace

CIImage distanceToRed(const CIImage& image, double farthest)
{
    const CIImage beyond = CIImage::fromColor(CIColor(1, 0, 0, 1));
    const CIRect extent =
        image.extent().isInfinite() ? image.extent() : image.extent().grown(farthest + 1).roundedOut();
    const NodePtr near = passNode(image.node(), std::make_shared<DistancePass>(farthest), extent);
    // A wide reach would make every tile work out much the same.
    return CIImage(farthest > 50 ? sharedNode(near) : near).compositedOver(beyond);
}

} // namespace ci
