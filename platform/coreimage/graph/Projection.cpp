#include "platform/coreimage/graph/Projection.h"

#include "platform/coreimage/kernel/SampleFilter.h"

#include <algorithm>
#include <cmath>

namespace ci {

Quadrilateral Quadrilateral::of(const CIRect& r)
{
    return {{r.left(), r.bottom()}, {r.right(), r.bottom()}, {r.right(), r.top()}, {r.left(), r.top()}};
}

CIRect Quadrilateral::bounds() const
{
    const auto [left, right] = std::minmax({bottomLeft.x, bottomRight.x, topRight.x, topLeft.x});
    const auto [bottom, top] = std::minmax({bottomLeft.y, bottomRight.y, topRight.y, topLeft.y});
    return {left, bottom, right - left, top - bottom};
}

namespace {

/// From the square of side 1 at the origin. P. Heckbert: Fundamentals of Texture Mapping and Image Warping, 1989.
Projection fromSquare(const Quadrilateral& q)
{
    const auto [x0, y0] = q.bottomLeft;
    const auto [x1, y1] = q.bottomRight;
    const auto [x2, y2] = q.topRight;
    const auto [x3, y3] = q.topLeft;
    const double sumX = x0 - x1 + x2 - x3, sumY = y0 - y1 + y2 - y3;
    const double dx1 = x1 - x2, dx2 = x3 - x2, dy1 = y1 - y2, dy2 = y3 - y2;
    const double area = dx1 * dy2 - dx2 * dy1;
    const double g = (sumX * dy2 - dx2 * sumY) / area, h = (dx1 * sumY - sumX * dy1) / area;
    return {{x1 - x0 + g * x1, x3 - x0 + h * x3, x0, y1 - y0 + g * y1, y3 - y0 + h * y3, y0, g, h, 1}};
}

bool isFinite(const Projection& p)
{
    return std::ranges::all_of(p.m, [](double v) { return std::isfinite(v); });
}

} // namespace

std::optional<Projection> Projection::between(const Quadrilateral& from, const Quadrilateral& to)
{
    const Projection onto = fromSquare(to), source = fromSquare(from);
    if (!isFinite(onto) || !isFinite(source) || !onto.inverted())
        return std::nullopt;
    const auto back = source.inverted();
    return back ? std::optional(back->then(onto)) : std::nullopt;
}

CIPoint Projection::map(CIPoint p) const
{
    const double w = depth(p);
    return {(m[0] * p.x + m[1] * p.y + m[2]) / w, (m[3] * p.x + m[4] * p.y + m[5]) / w};
}

Projection Projection::then(const Projection& next) const
{
    Projection product;
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column) {
            double sum = 0;
            for (std::size_t k = 0; k < 3; ++k)
                sum += next.m[3 * row + k] * m[3 * k + column];
            product.m[3 * row + column] = sum;
        }
    return product;
}

std::optional<Projection> Projection::inverted() const
{
    const auto minor = [this](std::size_t a, std::size_t b, std::size_t c, std::size_t d) {
        return m[a] * m[d] - m[b] * m[c];
    };
    const Projection adjugate{{minor(4, 5, 7, 8), minor(2, 1, 8, 7), minor(1, 2, 4, 5), minor(5, 3, 8, 6),
        minor(0, 2, 6, 8), minor(2, 0, 5, 3), minor(3, 4, 6, 7), minor(1, 0, 7, 6), minor(0, 1, 3, 4)}};
    const double determinant = m[0] * adjugate.m[0] + m[1] * adjugate.m[3] + m[2] * adjugate.m[6];
    Projection inverse = adjugate;
    for (double& v : inverse.m)
        v /= determinant;
    return isFinite(inverse) && std::abs(determinant) > 1e-12 ? std::optional(inverse) : std::nullopt;
}

Projection Projection::facing(CIPoint p) const
{
    Projection copy = *this;
    if (depth(p) < 0)
        for (double& v : copy.m)
            v = -v;
    return copy;
}

CIRect Projection::mapRect(const CIRect& r) const
{
    // The rectangle's corners, cut off where less than a part of the middle's depth remains.
    constexpr double kNearest = 0.2;
    const Projection front = facing(r.center());
    const double least = kNearest * front.depth(r.center());
    const Quadrilateral q = Quadrilateral::of(r);
    const std::array<CIPoint, 4> corners{q.bottomLeft, q.bottomRight, q.topRight, q.topLeft};
    double left = INFINITY, bottom = INFINITY, right = -INFINITY, top = -INFINITY;
    const auto include = [&](CIPoint p) {
        const CIPoint at = front.map(p);
        left = std::min(left, at.x), right = std::max(right, at.x);
        bottom = std::min(bottom, at.y), top = std::max(top, at.y);
    };
    for (std::size_t i = 0; i < 4; ++i) {
        const CIPoint a = corners[i], b = corners[(i + 1) % 4];
        const double da = front.depth(a) - least, db = front.depth(b) - least;
        if (da >= 0)
            include(a);
        if ((da < 0) != (db < 0)) {
            const double t = da / (da - db);
            include({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)});
        }
    }
    return left < right && bottom < top ? CIRect{left, bottom, right - left, top - bottom} : CIRect{};
}

namespace {

const Declaration& inverseDeclaration()
{
    static const Declaration d{
        .name = "inverse", .displayName = {}, .category = {}, .inputs = {vector("inverse", {}, {}), image()}};
    return d;
}

template <class V>
struct ProjectiveWarp {
    explicit ProjectiveWarp(const Inputs<V>& in)
    {
        const std::vector<double> values = in.values().vector("inverse").values();
        for (std::size_t i = 0; i < 9; ++i)
            m[i] = V(float(values[i]));
    }
    Point<V> operator()(const Point<V>& p) const
    {
        const V depth = mulAdd(m[6], p.x, mulAdd(m[7], p.y, m[8]));
        const V scale = select(depth > V(1e-6f), V(V(1.0f) / depth), V(1e30f)); // beyond the horizon nothing is seen
        return {mulAdd(m[0], p.x, mulAdd(m[1], p.y, m[2])) * scale, mulAdd(m[3], p.x, mulAdd(m[4], p.y, m[5])) * scale};
    }
    V m[9];
};

/// Beyond the horizon there are no tiles.
template <class V>
struct ProjectiveTiles {
    explicit ProjectiveTiles(const Inputs<V>& in)
        : warp(in)
    {
        const CIRect tile = in.values().image().extent();
        left = V(float(tile.left())), bottom = V(float(tile.bottom()));
        width = V(float(tile.width)), height = V(float(tile.height));
    }
    Point<V> operator()(const Point<V>& here) const
    {
        const Point<V> p = warp(here);
        const auto seen = max(abs(p.x), abs(p.y)) < V(1e7f);
        return {select(seen, left + wrap(V(p.x - left), width), V(-1e30f)),
            select(seen, bottom + wrap(V(p.y - bottom), height), V(-1e30f))};
    }
    ProjectiveWarp<V> warp;
    V left, bottom, width, height;
};

/// The inverse map, with depth 1 in the middle of what is seen, so that single precision serves.
std::optional<Values> valuesFor(const CIImage& image, const Projection& map)
{
    const CIPoint middle = image.extent().isInfinite() ? CIPoint{} : image.extent().center();
    const auto inverse = map.inverted();
    if (!inverse)
        return std::nullopt;
    const CIPoint there = map.map(middle);
    Projection back = inverse->facing(there);
    const double depth = back.depth(there);
    if (!(depth > 0))
        return std::nullopt;
    for (double& v : back.m)
        v /= depth;
    return Values(inverseDeclaration(),
        {{"inverse", CIVector(std::vector<double>(back.m.begin(), back.m.end()))}, {"inputImage", image}});
}

/// How much the map enlarges the middle of the image.
double magnificationOf(const CIImage& image, const Projection& map)
{
    if (image.extent().isInfinite())
        return 1;
    const CIPoint c = image.extent().center();
    const CIPoint p = map.map({c.x - 0.5, c.y - 0.5}), x = map.map({c.x + 0.5, c.y - 0.5}),
                  y = map.map({c.x - 0.5, c.y + 0.5});
    const double m = std::max(std::hypot(x.x - p.x, x.y - p.y), std::hypot(y.x - p.x, y.y - p.y));
    return std::isfinite(m) && m > 0 ? m : 1;
}

} // namespace

CIImage projected(const CIImage& image, const Projection& map, const CIRect& extent)
{
    if (image.isNull())
        return {};
    const auto values = valuesFor(image, map);
    return values ? warp<ProjectiveWarp>(*values, image, extent, magnificationOf(image, map)) : CIImage();
}

CIImage projectedTiles(const CIImage& image, const Projection& map)
{
    if (image.isNull() || image.extent().isInfinite() || image.extent().isEmpty())
        return image;
    const auto values = valuesFor(image, map);
    const CIImage tile(sharedTileNode(image.node()));
    return values ? warp<ProjectiveTiles>(*values, tile, CIRect::infinite(), magnificationOf(image, map)) : CIImage();
}

} // namespace ci
