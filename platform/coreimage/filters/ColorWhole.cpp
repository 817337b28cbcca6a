// Color filters that look at more than a pixel: at the whole picture, at what surrounds it, or at where it lies.
#include "platform/coreimage/graph/Measured.h"
#include "platform/coreimage/kernel/DisplayValues.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/passes/Blur.h"

#include <array>
#include <bit>

namespace ci {
namespace {

template <class V>
struct Binarize {
    static constexpr bool straight = true, opaque = true;
    explicit Binarize(const Inputs<V>& in)
        : threshold(in.scalar("threshold"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const
    {
        const auto above = [&](const V& c) { return select(c >= threshold, V(1.0f), V(0.0f)); };
        return {above(p.r), above(p.g), above(p.b), V(1.0f)};
    }
    V threshold;
};

using Histogram = std::array<double, 256>;

/// How much of the picture has which lightness, in display values.
Histogram histogramOf(const InterleavedView& pixels)
{
    Histogram counts{};
    for (int y = pixels.area.y0; y < pixels.area.y1; ++y)
        for (int x = pixels.area.x0; x < pixels.area.x1; ++x) {
            const float* const p = pixels.at(x, y);
            const float light = luma(unpremultiplied(Pixel<float>{p[0], p[1], p[2], p[3]}));
            counts[std::size_t(std::lround(255 * displayFromLinear(std::clamp(light, 0.0f, 1.0f))))] += double(p[3]);
        }
    return counts;
}

/// Otsu's threshold (1979), as a code between two entries: it parts the histogram so that the two means lie as far
/// apart as can be for the numbers on their sides. Of equal ones, the middle.
double otsuThreshold(const Histogram& counts)
{
    double all = 0, sum = 0;
    for (std::size_t i = 0; i < counts.size(); ++i)
        all += counts[i], sum += double(i) * counts[i];
    double below = 0, sumBelow = 0, best = 0;
    std::size_t first = 127, last = 127;
    for (std::size_t i = 0; i + 1 < counts.size(); ++i) {
        below += counts[i], sumBelow += double(i) * counts[i];
        const double above = all - below;
        if (below <= 0 || above <= 0)
            continue;
        const double apart = sumBelow / below - (sum - sumBelow) / above, between = below * above * apart * apart;
        if (between > best * (1 + 1e-9))
            best = between, first = last = i;
        else if (between >= best * (1 - 1e-9))
            last = i;
    }
    return (double(first + last) / 2 + 0.5) / 255;
}

const RecipeFilter colorThresholdOtsu{{.name = "CIColorThresholdOtsu",
                                          .displayName = "Color Threshold Otsu",
                                          .category = kCICategoryColorAdjustment,
                                          .usage = AnyVideo,
                                          .inputs = {image()}},
    [](const Values& in) {
        constexpr double kMostCells = 1 << 18; // enough for a histogram
        const CIImage source = in.image();
        return measured(source, kMostCells, source.extent(), [=](const InterleavedView& pixels, const Grid&) {
            const auto threshold = double(linearFromSRGB(float(otsuThreshold(histogramOf(pixels)))));
            return pointwise<Binarize>(in.with("threshold", threshold), {source}, source.extent());
        });
    }};

/// The picture against its paper, which is what surrounds a place, far blurred: paper becomes white, shadows on it
/// vanish, ink becomes dark.
template <class V>
struct DocumentEnhancer {
    static constexpr float kInk = 0.15f, kPaper = 0.85f; // of the surroundings' light
    explicit DocumentEnhancer(const Inputs<V>& in)
        : amount(min(in.scalar("inputAmount"), 1.0f))
        , darker(max(V(in.scalar("inputAmount") - 1.0f), 0.0f))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& around) const
    {
        // Component by component: paper of any color becomes white.
        const auto enhanced = [&](const V& c, const V& paper) {
            const V ratio = c / max(paper, 0.01f);
            const V stretched = saturate(V((ratio - kInk) * (1 / (kPaper - kInk))));
            // Beyond 1 the amount darkens what is neither black nor white.
            return mix(c, V(stretched / mulAdd(darker, 1.0f - stretched, V(1.0f)) * p.a), amount);
        };
        return {enhanced(p.r, around.r), enhanced(p.g, around.g), enhanced(p.b, around.b), p.a};
    }
    V amount, darker;
};

const RecipeFilter documentEnhancer{
    {.name = "CIDocumentEnhancer",
        .displayName = "Document Enhancer",
        .category = kCICategoryColorEffect,
        .usage = NonSquarePixels,
        .inputs = {image(),
            scalar("inputAmount", "Amount", {.standard = 1, .min = 0, .max = 10, .sliderMin = 0, .sliderMax = 2})}},
    [](const Values& in) {
        const CIImage source = in.image();
        const CIRect page = source.extent();
        if (page.isInfinite() || in.number("inputAmount") == 0)
            return source;
        const double sigma = std::max(page.width, page.height) / 30; // several letters, less than a shadow
        return pointwise<DocumentEnhancer>(in, {source, gaussianBlur(source.clampedToExtent(), sigma)}, page);
    }};

using Words = xsimd::batch<std::uint32_t>;

inline std::uint32_t toWords(float v) { return std::uint32_t(std::int32_t(v)); }
inline Words toWords(const Batch& v) { return std::bit_cast<Words>(xsimd::to_int(v)); }
/// The upper 24 bits as a number from 0 to 1.
inline float fraction(std::uint32_t w) { return float(std::int32_t(w >> 8)) * 0x1p-24f; }
inline Batch fraction(const Words& w)
{
    return xsimd::to_float(std::bit_cast<xsimd::batch<std::int32_t>>(w >> 8)) * 0x1p-24f;
}

/// Noise of the intensity's height in display values, the same for all components and for all pictures.
template <class V>
struct Dither {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit Dither(const Inputs<V>& in)
        : intensity(in.scalar("inputIntensity"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p, const Point<V>& here) const
    {
        const V offset = (noise(here) - 0.5f) * intensity;
        const Pixel<V> shown = displayFromLinear(p);
        return linearFromDisplay(Pixel<V>{shown.r + offset, shown.g + offset, shown.b + offset, p.a});
    }
    /// 0 to 1 for each pixel: two rounds of multiplying and folding.
    static V noise(const Point<V>& here)
    {
        auto w = toWords(floor(here.x)) * 0x9E3779B1u + toWords(floor(here.y)) * 0x85EBCA77u;
        w = (w ^ (w >> 15)) * 0x2C1B3C6Du;
        w = (w ^ (w >> 13)) * 0x297A2D39u;
        return fraction(w ^ (w >> 16));
    }
    V intensity;
};

const RecipeFilter dither{
    {.name = "CIDither",
        .displayName = "Dither",
        .category = kCICategoryColorEffect,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            scalar("inputIntensity", "Intensity",
                {.standard = 0.1, .min = 0, .max = 5, .sliderMin = 0, .sliderMax = 1, .identity = 0})},
        .boundToPixelGrid = true},
    [](const Values& in) {
        const CIImage source = in.image();
        return in.number("inputIntensity") == 0 ? source : pointwise<Dither>(in, {source}, source.extent());
    }};

} // namespace
} // namespace ci
