// Histograms of an area, a row of bins, and the chart of one.
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/passes/Reduction.h"

#include <array>

namespace ci {
namespace {

/// What the pixels of an area add to four rows of bins.
using Bins = std::vector<double>;

/// The bin that a value from 0 to 1 falls into; what lies beyond counts in the outermost.
std::size_t binOf(float v, std::size_t count)
{
    return std::size_t(std::clamp(v * float(count), 0.0f, float(count) - 1));
}

/// `put(add, r, g, b, a)` calls `add(channel, value from 0 to 1, weight)` for what a pixel adds. The bins of a channel
/// add up to `scale` where every pixel adds 1.
template <class Put>
Reduced histogram(const ReductionArea& area, std::size_t count, double scale, Put put)
{
    const Bins bins = area.over(
        Bins(4 * count),
        [&](Bins& b, const Row& row, int) {
            const auto add = [&](std::size_t c, float v, float weight) {
                b[4 * binOf(v, count) + c] += double(weight);
            };
            for (int x = 0; x < area.cells.width(); ++x)
                put(add, row.r[x], row.g[x], row.b[x], row.a[x]);
        },
        [](Bins& all, const Bins& b) { std::ranges::transform(all, b, all.begin(), std::plus()); });
    const double share = scale / (double(area.cells.width()) * area.cells.height());
    Reduced out(int(count), 1);
    std::ranges::transform(bins, out.pixels.begin(), [&](double v) { return float(std::min(v * share, 65504.0)); });
    return out;
}

Reduced plainHistogram(const ReductionArea& area, std::size_t count, double scale)
{
    return histogram(area, count, scale, [](const auto& add, float r, float g, float b, float a) {
        add(0, r, 1), add(1, g, 1), add(2, b, 1), add(3, a, 1);
    });
}

std::size_t binCount(const Values& in) { return std::size_t(in.number("inputCount")); }

CIInputAttributes area() { return rectangle("inputExtent", "Extent", {0, 0, 640, 80}); }

template <class Reduce>
CIImage rowOfBins(const Values& in, Reduce reduce)
{
    const std::size_t count = binCount(in);
    const double scale = in.number("inputScale");
    return reduced(in.image(), in.rect("inputExtent"), int(count), 1,
        [=](const ReductionArea& pixels) { return reduce(pixels, count, scale); });
}

const RecipeFilter areaHistogram{
    {.name = "CIAreaHistogram",
        .displayName = "Area Histogram",
        .category = kCICategoryReduction,
        .usage = Video,
        .inputs = {image(), area(),
            scalar("inputScale", "Scale", {.standard = 1, .min = 0, .sliderMin = 0, .sliderMax = 1}),
            scalar("inputCount", "Count", {.standard = 64, .min = 1, .max = 2048, .sliderMin = 10, .sliderMax = 1000})},
        .boundToPixelGrid = true},
    [](const Values& in) { return rowOfBins(in, &plainHistogram); }};

/// Of colors not multiplied by alpha, each counted by its alpha; the fourth row counts alpha itself.
const RecipeFilter areaAlphaWeightedHistogram{
    {.name = "CIAreaAlphaWeightedHistogram",
        .displayName = "Area Alpha Weighted Histogram",
        .category = kCICategoryReduction,
        .usage = Video,
        .inputs = {image(), area(), scalar("inputScale", "Scale", {.standard = 1, .min = 0}),
            scalar("inputCount", "Count", {.standard = 64, .min = 1, .max = 2048})},
        .boundToPixelGrid = true},
    [](const Values& in) {
        return rowOfBins(in, [](const ReductionArea& pixels, std::size_t count, double scale) {
            return histogram(pixels, count, scale, [](const auto& add, float r, float g, float b, float a) {
                const float whole = a > 1e-6f ? 1 / a : 0;
                add(0, r * whole, a), add(1, g * whole, a), add(2, b * whole, a), add(3, a, 1);
            });
        });
    }};

/// The bins are even steps of the logarithm, from the minimum to the maximum stop; alpha is counted as it is.
const RecipeFilter areaLogarithmicHistogram{
    {.name = "CIAreaLogarithmicHistogram",
        .displayName = "Area Logarithmic Histogram",
        .category = kCICategoryReduction,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), area(), scalar("inputScale", "Scale", {.standard = 1, .min = 0}),
            scalar("inputCount", "Count", {.standard = 64, .min = 1, .max = 2048}),
            scalar("inputMinimumStop", "Minimum Stop", {.standard = -10}),
            scalar("inputMaximumStop", "Maximum Stop", {.standard = 4})},
        .boundToPixelGrid = true},
    [](const Values& in) {
        const auto low = float(in.number("inputMinimumStop"));
        const float perSpan = 1 / std::max(float(in.number("inputMaximumStop")) - low, 1e-3f);
        return rowOfBins(in, [=](const ReductionArea& pixels, std::size_t count, double scale) {
            return histogram(pixels, count, scale, [=](const auto& add, float r, float g, float b, float a) {
                const auto stop = [=](float v) { return (std::log2(std::max(v, 1e-30f)) - low) * perSpan; };
                add(0, stop(r), 1), add(1, stop(g), 1), add(2, stop(b), 1), add(3, a, 1);
            });
        });
    }};

/// Of the values that displays show, which spread evenly for the eye.
Reduced codedHistogram(const ReductionArea& area, std::size_t count)
{
    return histogram(area, count, 1, [](const auto& add, float r, float g, float b, float) {
        add(0, srgbFromLinear(r), 1), add(1, srgbFromLinear(g), 1), add(2, srgbFromLinear(b), 1);
    });
}

struct Chart {
    int width, height;
    double low, high; // shares of the width: darker before, lighter behind
};

/// Columns as high as the bins, the highest of all as high as the chart, over a veil of black. Colors add up where the
/// columns of several channels overlap.
Reduced charted(const std::vector<float>& bins, const Chart& chart)
{
    float most = 0;
    for (std::size_t i = 0; i < bins.size(); ++i)
        most = i % 4 == 3 ? most : std::max(most, bins[i]);
    const float perUnit = most > 0 ? float(chart.height) / most : 0;
    Reduced out(chart.width, chart.height);
    for (int x = 0; x < chart.width; ++x) {
        const double place = (x + 0.5) / chart.width;
        const float light = place > chart.high ? 1.0f : place < chart.low ? 0.25f : 0.6f;
        for (int y = 0; y < chart.height; ++y) {
            float* const p = out.at(x, y);
            float highest = 0;
            for (std::size_t c = 0; c < 3; ++c) {
                const float covered = std::clamp(bins[std::size_t(4 * x) + c] * perUnit - float(y), 0.0f, 1.0f);
                p[c] = light * covered;
                highest = std::max(highest, covered);
            }
            p[3] = std::max(0.5f, highest);
        }
    }
    return out;
}

/// The lowest row of an image is taken for bins. A picture, which is more than a row, is counted first.
const RecipeFilter histogramDisplayFilter{
    {.name = "CIHistogramDisplayFilter",
        .displayName = "Histogram Display",
        .category = kCICategoryReduction,
        .usage = Video,
        .inputs = {image(),
            scalar("inputHeight", "Height", {.standard = 100, .min = 1, .max = 200, .sliderMin = 1, .sliderMax = 100}),
            scalar("inputHighLimit", "High Limit", {.standard = 1, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1}),
            scalar("inputLowLimit", "Low Limit", {.standard = 0, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1})},
        .boundToPixelGrid = true},
    [](const Values& in) {
        constexpr int kPictureBins = 256, kMostBins = 4096;
        const CIRect extent = in.image().extent();
        const bool isRow = extent.height <= 1;
        const Chart chart{isRow ? int(std::clamp(std::ceil(extent.width), 1.0, double(kMostBins))) : kPictureBins,
            int(in.number("inputHeight")), in.number("inputLowLimit"), in.number("inputHighLimit")};
        const auto reduce = [=](const ReductionArea& pixels) {
            if (!isRow)
                return charted(codedHistogram(pixels, std::size_t(chart.width)).pixels, chart);
            using Row4 = std::vector<float>;
            const Row4 bins = pixels.over(
                Row4(std::size_t(chart.width) * 4),
                [&](Row4& b, const Row& row, int) {
                    for (int x = 0; x < std::min(chart.width, pixels.cells.width()); ++x)
                        std::ranges::copy(std::array{row.r[x], row.g[x], row.b[x], row.a[x]}, b.begin() + 4 * x);
                },
                [](Row4& all, const Row4& b) { std::ranges::transform(all, b, all.begin(), std::plus()); });
            return charted(bins, chart);
        };
        constexpr double kSamples = 1 << 20; // of a picture; more change no chart
        return reduced(in.image(), extent, chart.width, chart.height, reduce, {kSamples, isRow ? 1e12 : kSamples});
    }};

} // namespace
} // namespace ci
