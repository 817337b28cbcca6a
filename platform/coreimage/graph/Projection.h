// Projective maps of the plane, and images seen through them.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <array>
#include <optional>

namespace ci {

/// Corners in picture pixels, y up.
struct Quadrilateral {
    CIPoint bottomLeft, bottomRight, topRight, topLeft;
    static Quadrilateral of(const CIRect&);
    CIRect bounds() const;
};

/// Maps (x, y) by the matrix m, row by row, on (x, y, 1): the first two components divided by the third.
struct Projection {
    std::array<double, 9> m{1, 0, 0, 0, 1, 0, 0, 0, 1};

    /// The map that takes the corners of one quadrilateral to those of another; nothing when one has three corners
    /// on a line.
    static std::optional<Projection> between(const Quadrilateral& from, const Quadrilateral& to);

    CIPoint map(CIPoint) const;
    /// The third component, by which the others are divided: not positive at and beyond the horizon.
    double depth(CIPoint p) const { return m[6] * p.x + m[7] * p.y + m[8]; }
    /// First this, then `next`.
    Projection then(const Projection& next) const;
    std::optional<Projection> inverted() const;
    /// The same map, with positive depth at `p`.
    Projection facing(CIPoint p) const;
    /// The bounding box of what a rectangle becomes; the part near the horizon is left out.
    CIRect mapRect(const CIRect&) const;
};

/// The image mapped by `map`, with the extent given; what would lie beyond the horizon is left out.
CIImage projected(const CIImage&, const Projection& map, const CIRect& extent);
/// The image repeated without end, then mapped.
CIImage projectedTiles(const CIImage&, const Projection& map);

} // namespace ci
