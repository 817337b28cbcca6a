// A palette: the colors around which those of an area gather.
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/passes/Reduction.h"

#include <array>
#include <random>

namespace ci {
namespace {

using Color = std::array<float, 3>;
using Colors = std::vector<Color>;

float distance2(const Color& p, const Color& q)
{
    const float r = p[0] - q[0], g = p[1] - q[1], b = p[2] - q[2];
    return r * r + g * g + b * b;
}

/// To the measure in which colors are compared and back: linear light, or as evenly graded as displays have it.
Color measured(const Color& c, bool perceptual)
{
    return perceptual ? Color{srgbFromLinear(c[0]), srgbFromLinear(c[1]), srgbFromLinear(c[2])} : c;
}
Color linear(const Color& c, bool perceptual)
{
    return perceptual ? Color{linearFromSRGB(c[0]), linearFromSRGB(c[1]), linearFromSRGB(c[2])} : c;
}

/// The colors of an area without alpha; transparent pixels have none.
Colors colorsOf(const ReductionArea& area, bool perceptual)
{
    return area.over(
        Colors(),
        [&](Colors& colors, const Row& row, int) {
            for (int x = 0; x < area.cells.width(); ++x)
                if (row.a[x] > 1e-3f) {
                    const Pixel<float> p = unpremultiplied(Pixel<float>{row.r[x], row.g[x], row.b[x], row.a[x]});
                    colors.push_back(measured({p.r, p.g, p.b}, perceptual));
                }
        },
        [](Colors& all, const Colors& colors) { all.insert(all.end(), colors.begin(), colors.end()); });
}

/// Seeds far apart: each the likelier to be taken the farther it is from those before it (k-means++).
Colors spreadSeeds(const Colors& colors, std::size_t count)
{
    std::mt19937 random(1); // the same picture has the same palette each time
    Colors seeds{colors[colors.size() / 2]};
    std::vector<double> away(colors.size(), 1e30);
    while (seeds.size() < count) {
        double all = 0;
        for (std::size_t i = 0; i < colors.size(); ++i)
            all += away[i] = std::min(away[i], double(distance2(colors[i], seeds.back())));
        double left = double(random()) / 4294967296.0 * all;
        std::size_t chosen = 0;
        while (chosen + 1 < colors.size() && (left -= away[chosen]) > 0)
            ++chosen;
        seeds.push_back(colors[chosen]);
    }
    return seeds;
}

std::size_t nearest(const Colors& means, const Color& c)
{
    std::size_t best = 0;
    float least = 1e30f;
    for (std::size_t k = 0; k < means.size(); ++k)
        if (const float d = distance2(means[k], c); d < least)
            least = d, best = k;
    return best;
}

/// Lloyd's step: every mean moves into the middle of the colors that it is nearest to.
void refine(Colors& means, const Colors& colors)
{
    std::vector<std::array<double, 4>> sums(means.size());
    std::vector<std::size_t> owner(colors.size());
    tbb::parallel_for(std::size_t(0), colors.size(), [&](std::size_t i) { owner[i] = nearest(means, colors[i]); });
    for (std::size_t i = 0; i < colors.size(); ++i) {
        auto& s = sums[owner[i]];
        s[0] += double(colors[i][0]), s[1] += double(colors[i][1]), s[2] += double(colors[i][2]), s[3] += 1;
    }
    for (std::size_t k = 0; k < means.size(); ++k)
        if (sums[k][3] > 0)
            means[k] = {float(sums[k][0] / sums[k][3]), float(sums[k][1] / sums[k][3]), float(sums[k][2] / sums[k][3])};
}

/// Seeds from the lowest row of a given image.
Colors givenSeeds(const CIImage& image, std::size_t count, bool perceptual)
{
    Colors seeds;
    const CIRect extent = image.extent();
    if (extent.isEmpty() || extent.isInfinite())
        return seeds;
    const double width = std::min(extent.width, double(count));
    const CIBitmap row =
        CIContext().render(image, {extent.x, extent.y, width, 1}, 1, CIFormat::RGBAf, CIAlpha::Straight);
    for (int x = 0; x < row.width(); ++x) {
        const float* const p = row.row<float>(row.height() - 1).data() + 4 * x;
        seeds.push_back(measured({p[0], p[1], p[2]}, perceptual));
    }
    return seeds;
}

Reduced palette(const ReductionArea& area, const Colors& given, std::size_t count, int passes, bool perceptual)
{
    Reduced out(int(count), 1);
    const Colors colors = colorsOf(area, perceptual);
    if (colors.empty())
        return out;
    Colors means = given;
    if (means.empty())
        means = spreadSeeds(colors, count);
    for (int i = 0; i < passes && !area.render.isCancelled(); ++i)
        refine(means, colors);
    for (std::size_t k = 0; k < std::min(count, means.size()); ++k) {
        const Color c = linear(means[k], perceptual);
        out.set(int(k), 0, c[0], c[1], c[2], 1);
    }
    return out;
}

/// One opaque pixel for each color. With no count, as many as there are given means.
const RecipeFilter kMeans{
    {.name = "CIKMeans",
        .displayName = "KMeans",
        .category = kCICategoryReduction,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), rectangle("inputExtent", "Extent", {0, 0, 640, 80}), image("inputMeans", "Means"),
            count("inputCount", "Count", {.standard = 8, .min = 0, .max = 128, .identity = 0}),
            count("inputPasses", "Passes", {.standard = 5, .min = 0, .max = 20, .identity = 0}),
            number("inputPerceptual", "Perceptual", InputKind::Boolean, {.standard = 0, .min = 0, .max = 1})},
        .optional = {"inputMeans"},
        .boundToPixelGrid = true},
    [](const Values& in) {
        const CIImage means = in.image("inputMeans");
        const bool perceptual = in.flag("inputPerceptual");
        auto count = std::size_t(in.number("inputCount"));
        if (count == 0)
            count = std::size_t(std::clamp(means.extent().width, 1.0, 128.0));
        const int passes = int(in.number("inputPasses"));
        const auto reduce = [=](const ReductionArea& area) {
            return palette(area, givenSeeds(means, count, perceptual), count, passes, perceptual);
        };
        constexpr double kSamples = 1 << 14; // more do not change a palette, but its time
        return reduced(in.image(), in.rect("inputExtent"), int(count), 1, reduce, {kSamples, kSamples});
    }};

} // namespace
} // namespace ci
