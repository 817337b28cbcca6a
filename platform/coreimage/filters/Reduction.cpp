// Reductions: an area of the picture in one pixel, row or column.
#include "platform/coreimage/passes/Reduction.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

#include <array>

namespace ci {
namespace {

using Channels = std::array<const float*, 4>;
Channels channels(const Row& row) { return {row.r, row.g, row.b, row.a}; }

/// The sum of a row, in a batch's lanes first: one running sum would wait for itself.
double sum(const float* v, int count)
{
    Batch lanes(0.0f);
    int i = 0;
    for (; i + kLanes<Batch> <= count; i += kLanes<Batch>)
        lanes = lanes + loadRow<Batch>(v + i);
    alignas(64) float parts[kLanes<Batch>];
    lanes.store_aligned(parts);
    double all = 0;
    for (const float part : parts)
        all += double(part);
    for (; i < count; ++i)
        all += double(v[i]);
    return all;
}

struct Extremes {
    std::array<float, 4> least{65504, 65504, 65504, 65504}, most{-65504, -65504, -65504, -65504};

    void add(std::size_t c, const float* v, int count)
    {
        Batch low(least[c]), high(most[c]);
        int i = 0;
        for (; i + kLanes<Batch> <= count; i += kLanes<Batch>) {
            const Batch here = loadRow<Batch>(v + i);
            low = min(here, low), high = max(here, high);
        }
        alignas(64) float lows[kLanes<Batch>], highs[kLanes<Batch>];
        low.store_aligned(lows);
        high.store_aligned(highs);
        least[c] = *std::min_element(std::begin(lows), std::end(lows));
        most[c] = *std::max_element(std::begin(highs), std::end(highs));
        for (; i < count; ++i)
            least[c] = min(v[i], least[c]), most[c] = max(v[i], most[c]);
    }
    void merge(const Extremes& e)
    {
        for (std::size_t c = 0; c < 4; ++c)
            least[c] = min(e.least[c], least[c]), most[c] = max(e.most[c], most[c]);
    }
};

Extremes extremes(const ReductionArea& area)
{
    return area.over(
        Extremes(),
        [&](Extremes& e, const Row& row, int) {
            for (std::size_t c = 0; c < 4; ++c)
                e.add(c, channels(row)[c], area.cells.width());
        },
        [](Extremes& all, const Extremes& e) { all.merge(e); });
}

Reduced onePixel(const std::array<float, 4>& p)
{
    Reduced out(1, 1);
    out.set(0, 0, p[0], p[1], p[2], p[3]);
    return out;
}

Reduced average(const ReductionArea& area)
{
    using Sums = std::array<double, 4>;
    const Sums sums = area.over(
        Sums{},
        [&](Sums& s, const Row& row, int) {
            for (std::size_t c = 0; c < 4; ++c)
                s[c] += sum(channels(row)[c], area.cells.width());
        },
        [](Sums& all, const Sums& s) {
            for (std::size_t c = 0; c < 4; ++c)
                all[c] += s[c];
        });
    const double cells = double(area.cells.width()) * area.cells.height();
    return onePixel({float(sums[0] / cells), float(sums[1] / cells), float(sums[2] / cells), float(sums[3] / cells)});
}

/// The least and the greatest values, side by side.
Reduced minMax(const ReductionArea& area)
{
    const Extremes e = extremes(area);
    Reduced out(2, 1);
    std::ranges::copy(e.least, out.at(0));
    std::ranges::copy(e.most, out.at(1));
    return out;
}

/// The first pixel whose alpha no other's exceeds; with a sign of -1, none is less than.
Reduced byAlpha(const ReductionArea& area, float sign)
{
    struct Best {
        float rank = -1e30f;
        std::array<float, 4> pixel{};
    };
    const Best best = area.over(
        Best(),
        [&](Best& b, const Row& row, int) {
            for (int x = 0; x < area.cells.width(); ++x)
                if (sign * row.a[x] > b.rank)
                    b = {sign * row.a[x], {row.r[x], row.g[x], row.b[x], row.a[x]}};
        },
        [](Best& all, const Best& b) {
            if (b.rank > all.rank)
                all = b;
        });
    return onePixel(best.pixel);
}

/// Left, lower side, width and height of where red is not zero, as shares of the area.
Reduced boundsOfRed(const ReductionArea& area)
{
    const GridRect& cells = area.cells;
    constexpr GridRect kNothing{1 << 30, 1 << 30, -(1 << 30), -(1 << 30)};
    const GridRect found = area.over(
        kNothing,
        [&](GridRect& r, const Row& row, int y) {
            const auto marked = [](float v) { return v > 0; };
            const float* const end = row.r + cells.width();
            const float* const first = std::find_if(row.r, end, marked);
            if (first == end)
                return;
            const auto last = std::find_if(std::make_reverse_iterator(end), std::make_reverse_iterator(row.r), marked);
            r = {std::min(r.x0, int(first - row.r)), std::min(r.y0, y), std::max(r.x1, int(last.base() - row.r)),
                std::max(r.y1, y + 1)};
        },
        [](GridRect& all, const GridRect& r) {
            all = {std::min(all.x0, r.x0), std::min(all.y0, r.y0), std::max(all.x1, r.x1), std::max(all.y1, r.y1)};
        });
    if (found.isEmpty())
        return onePixel({0, 0, 0, 0});
    const float w = float(cells.width()), h = float(cells.height());
    return onePixel(
        {float(found.x0) / w, float(found.y0 - cells.y0) / h, float(found.width()) / w, float(found.height()) / h});
}

/// The mean of every column, or of every row from the lowest up, for `count` picture pixels.
Reduced columnMeans(const ReductionArea& area, int count)
{
    using Sums = std::vector<double>;
    const auto width = std::size_t(area.cells.width());
    const Sums sums = area.over(
        Sums(4 * width),
        [&](Sums& s, const Row& row, int) {
            for (std::size_t c = 0; c < 4; ++c)
                for (std::size_t x = 0; x < width; ++x)
                    s[c * width + x] += double(channels(row)[c][x]);
        },
        [](Sums& all, const Sums& s) { std::ranges::transform(all, s, all.begin(), std::plus()); });
    Reduced out(count, 1);
    for (int x = 0; x < count; ++x)
        for (std::size_t c = 0; c < 4; ++c)
            out.at(x)[c] = float(sums[c * width + std::size_t(x) * width / std::size_t(count)] / area.cells.height());
    return out;
}

Reduced rowMeans(const ReductionArea& area, int count)
{
    using Means = std::vector<float>;
    const auto height = std::size_t(area.cells.height());
    const Means means = area.over(
        Means(4 * height),
        [&](Means& m, const Row& row, int y) {
            for (std::size_t c = 0; c < 4; ++c)
                m[4 * std::size_t(y - area.cells.y0) + c] =
                    float(sum(channels(row)[c], area.cells.width()) / area.cells.width());
        },
        [](Means& all, const Means& m) { std::ranges::transform(all, m, all.begin(), std::plus()); });
    Reduced out(1, count);
    for (int y = 0; y < count; ++y)
        std::copy_n(
            means.begin() + std::ptrdiff_t(4 * (std::size_t(y) * height / std::size_t(count))), 4, out.at(0, y));
    return out;
}

CIRect areaOf(const Values& in) { return in.rect("inputExtent"); }

/// The number of picture pixels along a side of the area, within what a bitmap could have.
int pixels(double side) { return int(std::clamp(std::ceil(side), 1.0, 16384.0)); }

/// Declares a reduction of inputExtent to a few pixels.
struct AreaFilter : RecipeFilter {
    AreaFilter(std::string name, std::string displayName, int width,
        const std::function<Reduced(const ReductionArea&)>& reduce)
        : RecipeFilter({.name = std::move(name),
                           .displayName = std::move(displayName),
                           .category = kCICategoryReduction,
                           .usage = Video | HighDynamicRange,
                           .inputs = {image(), rectangle("inputExtent", "Extent", {0, 0, 640, 80})},
                           .boundToPixelGrid = true},
            [=](const Values& in) { return reduced(in.image(), areaOf(in), width, 1, reduce); })
    {
    }
};

const AreaFilter areaAverage("CIAreaAverage", "Area Average", 1, &average);
const AreaFilter areaMinMax("CIAreaMinMax", "Area Min and Max", 2, &minMax);
const AreaFilter areaBoundsRed("CIAreaBoundsRed", "Area Bounds Red", 1, &boundsOfRed);
const AreaFilter areaMaximum(
    "CIAreaMaximum", "Area Maximum", 1, [](const ReductionArea& a) { return onePixel(extremes(a).most); });
const AreaFilter areaMinimum(
    "CIAreaMinimum", "Area Minimum", 1, [](const ReductionArea& a) { return onePixel(extremes(a).least); });
const AreaFilter areaMaximumAlpha(
    "CIAreaMaximumAlpha", "Area Maximum Alpha", 1, [](const ReductionArea& a) { return byAlpha(a, 1); });
const AreaFilter areaMinimumAlpha(
    "CIAreaMinimumAlpha", "Area Minimum Alpha", 1, [](const ReductionArea& a) { return byAlpha(a, -1); });
/// The least red as red, the greatest as green.
const AreaFilter areaMinMaxRed("CIAreaMinMaxRed", "Area Min and Max Red", 1, [](const ReductionArea& a) {
    const Extremes e = extremes(a);
    return onePixel({e.least[0], e.most[0], 0, 1});
});

Declaration averages(std::string name, std::string displayName)
{
    return {.name = std::move(name),
        .displayName = std::move(displayName),
        .category = kCICategoryReduction,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), rectangle("inputExtent", "Extent", {0, 0, 640, 80})},
        .boundToPixelGrid = true};
}

const RecipeFilter columnAverage{averages("CIColumnAverage", "Column Average"), [](const Values& in) {
                                     const int count = pixels(areaOf(in).intersected(in.image().extent()).width);
                                     return reduced(in.image(), areaOf(in), count, 1,
                                         [count](const ReductionArea& a) { return columnMeans(a, count); });
                                 }};
const RecipeFilter rowAverage{averages("CIRowAverage", "Row Average"), [](const Values& in) {
                                  const int count = pixels(areaOf(in).intersected(in.image().extent()).height);
                                  return reduced(in.image(), areaOf(in), 1, count,
                                      [count](const ReductionArea& a) { return rowMeans(a, count); });
                              }};

} // namespace
} // namespace ci
