// What is known about a whole area of an image: means, extremes, histograms.
#pragma once

#include "platform/coreimage/CIImage.h"
#include "platform/coreimage/graph/Node.h"

#include <algorithm>
#include <functional>
#include <tbb/parallel_for.h>
#include <vector>

namespace ci {

/// A small image: premultiplied linear RGBA, row 0 the lowest, its lower left corner at the origin.
struct Reduced {
    Reduced(int w, int h)
        : width(w)
        , height(h)
        , pixels(std::size_t(w) * std::size_t(h) * 4)
    {
    }
    float* at(int x, int y = 0) { return pixels.data() + (std::size_t(y) * std::size_t(width) + std::size_t(x)) * 4; }
    void set(int x, int y, float r, float g, float b, float a)
    {
        float* const p = at(x, y);
        p[0] = r, p[1] = g, p[2] = b, p[3] = a;
    }
    int width, height;
    std::vector<float> pixels;
};

/// The pixels that are to be reduced: the cells of an area on a grid of its own.
struct ReductionArea {
    const Node& node;
    Render render;
    GridRect cells;

    /// Runs `each(state, row, y)` over all rows, on all cores, and `merge(state, other)` over what came out, from the
    /// lowest rows up. Rows start at the area's left column.
    template <class State, class Each, class Merge>
    State over(const State& empty, Each each, Merge merge) const
    {
        const int band = std::max(64, 2 * node.reach(render.grid));
        std::vector<State> parts(std::size_t((cells.height() + band - 1) / band), empty);
        tbb::parallel_for(std::size_t(0), parts.size(), [&](std::size_t index) {
            if (render.isCancelled())
                return;
            Scratch& scratch = Scratch::ofThread();
            const ScratchScope scope(scratch);
            GridRect rows = cells;
            rows.y0 += int(index) * band;
            rows.y1 = std::min(rows.y0 + band, cells.y1);
            const auto reader = node.rows(render, rows, scratch);
            for (int y = rows.y0; y < rows.y1; ++y)
                each(parts[index], reader->row(y), y);
        });
        State all = empty;
        for (const State& part : parts)
            merge(all, part);
        return all;
    }
};

/// How precisely an area is looked at. Reduced renders look at reduced pixels, so that a preview does not read a whole
/// picture, but never at fewer than `leastCells` of them; no render looks at more than `mostCells`.
struct ReductionLimits {
    double leastCells = 1 << 18, mostCells = 1e12;
};

/// The image that `reduce` makes of `area` (picture pixels, cut to the image); `width` by `height` pixels, worked out
/// once for each render before its tiles. Transparent where the area holds nothing.
CIImage reduced(const CIImage&, const CIRect& area, int width, int height,
    std::function<Reduced(const ReductionArea&)> reduce, const ReductionLimits& = {});

} // namespace ci
