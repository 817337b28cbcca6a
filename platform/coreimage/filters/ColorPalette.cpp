// Pictures in the colors of a palette, which is another, small picture.
#include "platform/coreimage/filters/Lab.h"
#include "platform/coreimage/graph/Measured.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"
#include "platform/coreimage/kernel/Table.h"

namespace ci {
namespace {

constexpr std::size_t kMostColors = 256;

/// Where colors are compared: in Lab as the eye does, or as linear light.
template <class V>
Pixel<V> comparable(const Pixel<V>& p, bool perceptual)
{
    return perceptual ? labFromLinear(p) : p;
}

/// The palette's entry that is nearest to a color. An entry is six numbers: the color to compare with, then the
/// linear color itself.
template <class V>
class Palette {
public:
    explicit Palette(const Values& in)
        : m_entries(tableOf(in, "palette"))
        , m_perceptual(in.flag("inputPerceptual"))
    {
    }
    /// Its number in the palette, for a straight color.
    V nearest(const Pixel<V>& p) const
    {
        const Pixel<V> c = comparable(p, m_perceptual);
        V least(1e30f), found(0.0f);
        for (std::size_t i = 0; i < m_entries.size() / 6; ++i) {
            const float* const e = &m_entries[6 * i];
            const V r = c.r - e[0], g = c.g - e[1], b = c.b - e[2];
            const V apart = mulAdd(r, r, mulAdd(g, g, b * b));
            found = select(apart < least, V(float(i)), found);
            least = min(apart, least);
        }
        return found;
    }
    Pixel<V> color(const V& number, const V& alpha) const
    {
        const V at = number * 6.0f;
        return {gather(&m_entries[3], at), gather(&m_entries[4], at), gather(&m_entries[5], at), alpha};
    }

private:
    std::span<const float> m_entries;
    bool m_perceptual;
};

/// The colors of a palette picture, row by row from the lower left, as entries for `Palette`.
CIData entriesOf(const InterleavedView& pixels, bool perceptual)
{
    std::vector<float> entries;
    const GridRect inside = pixels.area.grown(-1, -1);
    for (int y = inside.y0; y < inside.y1; ++y)
        for (int x = inside.x0; x < inside.x1 && entries.size() < 6 * kMostColors; ++x) {
            const float* const p = pixels.at(x, y);
            const Pixel<float> color = unpremultiplied(Pixel<float>{p[0], p[1], p[2], p[3]});
            const Pixel<float> place = comparable(color, perceptual);
            entries.insert(entries.end(), {place.r, place.g, place.b, color.r, color.g, color.b});
        }
    return tableData(entries);
}

template <class V>
struct Palettize {
    static constexpr bool straight = true, keepsAlpha = true;
    explicit Palettize(const Inputs<V>& in)
        : palette(in.values())
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const { return palette.color(palette.nearest(p), p.a); }
    Palette<V> palette;
};

CIInputAttributes perceptual()
{
    return number("inputPerceptual", "Perceptual", InputKind::Boolean, {.standard = 0, .min = 0, .max = 1});
}

const RecipeFilter palettize{
    {.name = "CIPalettize",
        .displayName = "Palettize",
        .category = kCICategoryColorEffect,
        .usage = Video,
        .inputs = {image(), fitted(image("inputPaletteImage", "Palette Image"), Meaning::Palette), perceptual()}},
    [](const Values& in) {
        const CIImage source = in.image();
        return measured(in.image("inputPaletteImage"), kMostColors, source.extent(),
            [in, source](const InterleavedView& colors, const Grid&) {
                const Values ready = in.with("palette", entriesOf(colors, in.flag("inputPerceptual")));
                return pointwise<Palettize>(ready, {source}, source.extent());
            });
    }};

/// The mean place of all pixels that a color of the palette is nearest to, x in red and y in green, in picture pixels.
std::vector<float> centroids(const Values& ready, const InterleavedView& pixels, const Grid& grid, std::size_t count)
{
    struct Sum {
        double x = 0, y = 0, weight = 0;
    };
    std::vector<Sum> sums(count);
    const Palette<Batch> palette(ready);
    const int width = pixels.area.width(), padded = width + kRowPadding;
    std::vector<float> rows(std::size_t(5 * padded));
    float* const nearest = rows.data() + 4 * padded;
    const MutableRow row{rows.data(), rows.data() + padded, rows.data() + 2 * padded, rows.data() + 3 * padded};
    for (int y = pixels.area.y0; y < pixels.area.y1; ++y) {
        deinterleave(pixels.at(pixels.area.x0, y), width, row);
        for (int x = 0; x < width; x += kLanes<Batch>)
            storeRow(nearest + x,
                palette.nearest(unpremultiplied(Pixel<Batch>{loadRow<Batch>(row.r + x), loadRow<Batch>(row.g + x),
                    loadRow<Batch>(row.b + x), loadRow<Batch>(row.a + x)})));
        for (int x = 0; x < width; ++x) {
            Sum& sum = sums[std::size_t(nearest[x])];
            const auto weight = double(row.a[x]);
            sum.x += weight * double(grid.xAt(pixels.area.x0 + x));
            sum.y += weight * double(grid.yAt(y));
            sum.weight += weight;
        }
    }
    std::vector<float> places;
    for (const Sum& s : sums) {
        const double per = s.weight > 0 ? 1 / s.weight : 0;
        places.insert(places.end(), {float(s.x * per), float(s.y * per), 0, 1});
    }
    return places;
}

CIImage rowOfPixels(const std::vector<float>& pixels)
{
    const auto count = pixels.size() / 4;
    CIBitmap row(int(count), 1, CIFormat::RGBAf, CIAlpha::Opaque, CIColorSpace::LinearSRGB);
    std::ranges::copy(pixels, row.mutableRow<float>(0).begin());
    return CIImage::fromBitmap(row);
}

const RecipeFilter paletteCentroid{
    {.name = "CIPaletteCentroid",
        .displayName = "Palette Centroid",
        .category = kCICategoryColorEffect,
        .usage = Video,
        .inputs = {image(), fitted(image("inputPaletteImage", "Palette Image"), Meaning::Palette), perceptual()},
        .tolerance = 0.1f, // places of hundreds of pixels
        .boundToPixelGrid = true},
    [](const Values& in) {
        constexpr double kMostCells = 1 << 18; // pixels looked at
        const CIImage source = in.image(), colors = in.image("inputPaletteImage");
        const CIRect palette = colors.extent();
        const CIRect extent{0, 0, std::min(palette.width * palette.height, double(kMostColors)), 1};
        return measured(colors, kMostColors, extent, [=](const InterleavedView& entries, const Grid&) {
            const CIData data = entriesOf(entries, in.flag("inputPerceptual"));
            const Values ready = in.with("palette", data);
            return measured(source, kMostCells, extent, [=](const InterleavedView& pixels, const Grid& grid) {
                return rowOfPixels(centroids(ready, pixels, grid, data.size() / (6 * sizeof(float))));
            });
        });
    }};

} // namespace
} // namespace ci
