#include "platform/coreimage/CIGeometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
// Half the range of a double, so that the width of the infinite rectangle is still a number.
constexpr double kFar = std::numeric_limits<double>::max() / 2;
constexpr double kNear = kFar / 4; // sides beyond this count as endless
} // namespace

CIRect CIRect::infinite() { return {-kFar, -kFar, 2 * kFar, 2 * kFar}; }

CIRect CIRect::fromCorners(CIPoint a, CIPoint b)
{
    const double left = std::min(a.x, b.x), bottom = std::min(a.y, b.y);
    return {left, bottom, std::max(a.x, b.x) - left, std::max(a.y, b.y) - bottom};
}

bool CIRect::isInfinite() const { return width > kNear || height > kNear; }

bool CIRect::contains(CIPoint p) const { return p.x >= left() && p.x < right() && p.y >= bottom() && p.y < top(); }

bool CIRect::contains(const CIRect& r) const
{
    return r.isEmpty() || (r.left() >= left() && r.right() <= right() && r.bottom() >= bottom() && r.top() <= top());
}

CIRect CIRect::intersected(const CIRect& r) const
{
    const double l = std::max(left(), r.left()), b = std::max(bottom(), r.bottom());
    const double w = std::min(right(), r.right()) - l, h = std::min(top(), r.top()) - b;
    return w > 0 && h > 0 ? CIRect{l, b, w, h} : CIRect{};
}

CIRect CIRect::united(const CIRect& r) const
{
    if (isEmpty())
        return r;
    if (r.isEmpty())
        return *this;
    const double l = std::min(left(), r.left()), b = std::min(bottom(), r.bottom());
    return {l, b, std::max(right(), r.right()) - l, std::max(top(), r.top()) - b};
}

CIRect CIRect::grown(double dx, double dy) const
{
    if (isEmpty() || isInfinite())
        return *this;
    return {x - dx, y - dy, width + 2 * dx, height + 2 * dy};
}

CIRect CIRect::translated(double dx, double dy) const
{
    return isInfinite() ? *this : CIRect{x + dx, y + dy, width, height};
}

CIRect CIRect::roundedOut() const
{
    if (isEmpty() || isInfinite())
        return *this;
    const double l = std::floor(left()), b = std::floor(bottom());
    return {l, b, std::ceil(right()) - l, std::ceil(top()) - b};
}

CIAffineTransform CIAffineTransform::rotation(double radians)
{
    const double c = std::cos(radians), s = std::sin(radians);
    return {c, s, -s, c, 0, 0};
}

CIPoint CIAffineTransform::map(CIPoint p) const { return {a * p.x + c * p.y + tx, b * p.x + d * p.y + ty}; }

CIRect CIAffineTransform::mapRect(const CIRect& r) const
{
    if (r.isEmpty() || r.isInfinite())
        return r;
    const CIPoint p = map({r.left(), r.bottom()}), q = map({r.right(), r.bottom()});
    const CIPoint s = map({r.left(), r.top()}), t = map({r.right(), r.top()});
    const double left = std::min({p.x, q.x, s.x, t.x}), bottom = std::min({p.y, q.y, s.y, t.y});
    return {left, bottom, std::max({p.x, q.x, s.x, t.x}) - left, std::max({p.y, q.y, s.y, t.y}) - bottom};
}

CIAffineTransform CIAffineTransform::then(const CIAffineTransform& n) const
{
    return {n.a * a + n.c * b, n.b * a + n.d * b, n.a * c + n.c * d, n.b * c + n.d * d, n.a * tx + n.c * ty + n.tx,
        n.b * tx + n.d * ty + n.ty};
}

std::optional<CIAffineTransform> CIAffineTransform::inverted() const
{
    const double det = determinant();
    if (!std::isfinite(1 / det))
        return std::nullopt;
    return CIAffineTransform{d / det, -b / det, -c / det, a / det, (c * ty - d * tx) / det, (b * tx - a * ty) / det};
}
