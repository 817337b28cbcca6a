// Line drawings from an array of segments.
#include "platform/coreimage/kernel/PointwiseFilter.h"

#include <algorithm>

namespace ci {
namespace {

struct Segment {
    CIPoint from, to; // px
};

/// Segments from four numbers each: x and y of both ends, as vectors or as arrays. What has other lengths is left out.
std::vector<Segment> segments(const CIArray& mesh)
{
    std::vector<Segment> all;
    for (const CIValue& entry : mesh) {
        std::vector<double> v = entry.isVector() ? entry.toVector().values() : std::vector<double>();
        for (const CIValue& number : entry.toArray())
            v.push_back(number.toDouble());
        const auto usable = [](double d) { return std::isfinite(d) && std::abs(d) < 1e7; };
        if (v.size() == 4 && std::ranges::all_of(v, usable))
            all.push_back({{v[0], v[1]}, {v[2], v[3]}});
    }
    return all;
}

/// How much each cell of a row is covered by the segment that covers it most.
class MeshReader : public RowReader {
public:
    MeshReader(const std::vector<Segment>& segments, double width, const Pixel<float>& color, const Render& render,
        const GridRect& area, Scratch& scratch)
        : m_segments(segments)
        , m_color(color)
        , m_grid(render.grid)
        , m_area(area)
        , m_half(width / 2)
        , m_out(allocateRow(scratch, area.width()))
    {
    }
    Row row(int y) override
    {
        std::fill_n(m_out.a, m_area.width(), 0.0f);
        for (const Segment& s : m_segments)
            draw(s, double(m_grid.yAt(y)));
        for (int x = 0; x < m_area.width(); ++x) {
            const float share = m_out.a[x];
            m_out.r[x] = m_color.r * share, m_out.g[x] = m_color.g * share;
            m_out.b[x] = m_color.b * share, m_out.a[x] = m_color.a * share;
        }
        return m_out;
    }

private:
    void draw(const Segment& s, double y)
    {
        const double cell = 1 / m_grid.scale, reach = m_half + cell;
        if (y < std::min(s.from.y, s.to.y) - reach || y > std::max(s.from.y, s.to.y) + reach)
            return;
        const double dx = s.to.x - s.from.x, dy = s.to.y - s.from.y, length2 = std::max(dx * dx + dy * dy, 1e-12);
        // The columns that the line can touch on this row: it crosses the row's strip between these two places.
        double low = std::min(s.from.x, s.to.x), high = std::max(s.from.x, s.to.x);
        if (std::abs(dy) > 1e-9) {
            const double slanted = reach * std::sqrt(length2) / std::abs(dy);
            const double middle = s.from.x + (y - s.from.y) / dy * dx;
            low = std::max(low, middle - slanted), high = std::min(high, middle + slanted);
        }
        const int first = std::max(m_area.x0, int(std::floor((low - reach) * m_grid.scale - m_grid.phaseX)));
        const int last = std::min(m_area.x1, int(std::ceil((high + reach) * m_grid.scale - m_grid.phaseX)) + 1);
        for (int x = first; x < last; ++x) {
            const double px = double(m_grid.xAt(x)) - s.from.x, py = y - s.from.y;
            const double t = std::clamp((px * dx + py * dy) / length2, 0.0, 1.0);
            const double away = std::hypot(px - t * dx, py - t * dy);
            const auto upTo = [&](double side) { return std::clamp((side - away) / cell + 0.5, 0.0, 1.0); };
            float& share = m_out.a[x - m_area.x0];
            share = std::max(share, float(upTo(m_half) - upTo(-m_half)));
        }
    }

    const std::vector<Segment>& m_segments;
    Pixel<float> m_color;
    Grid m_grid;
    GridRect m_area;
    double m_half;
    MutableRow m_out;
};

CIRect extentOf(const std::vector<Segment>& segments, double width)
{
    CIRect all;
    for (const Segment& s : segments)
        all = all.united(CIRect::fromCorners(s.from, s.to).grown(width / 2 + 0.5));
    return all.roundedOut();
}

class MeshNode : public Node {
public:
    MeshNode(std::vector<Segment> segments, double width, const Pixel<float>& color)
        : Node(extentOf(segments, width), false)
        , m_segments(std::move(segments))
        , m_width(width)
        , m_color(color)
    {
    }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        if (accepts != Form::Rows)
            return {};
        return {.rows = std::make_unique<MeshReader>(m_segments, m_width, m_color, render, area, scratch)};
    }

private:
    std::vector<Segment> m_segments;
    double m_width;
    Pixel<float> m_color;
};

CIArray fan()
{
    CIArray lines;
    for (int i = 0; i <= 8; ++i)
        lines.emplace_back(CIVector{150.0, 60.0, 60 + 22.5 * i, 240.0});
    return lines;
}

const RecipeFilter meshGenerator{
    {.name = "CIMeshGenerator",
        .displayName = "Mesh Generator",
        .category = kCICategoryGenerator,
        .usage = Video | HighDynamicRange,
        .inputs = {distance("inputWidth", "Width", {.standard = 1.5, .min = 0, .sliderMin = 1, .sliderMax = 10}),
            color("inputColor", "Color", CIColor{1, 1, 1, 1}),
            fitted(object("inputMesh", "Mesh", InputKind::Array), fan())}},
    [](const Values& in) {
        std::vector<Segment> mesh = segments(in.value("inputMesh").toArray());
        if (mesh.empty())
            return CIImage();
        const Pixel<float> color = Inputs<float>(in, 1).color("inputColor");
        return CIImage(std::make_shared<MeshNode>(std::move(mesh), std::min(in.number("inputWidth"), 1e4), color));
    }};

} // namespace
} // namespace ci
