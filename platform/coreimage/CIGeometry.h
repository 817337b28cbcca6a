// Points, rectangles and affine transforms of the image engine.
//
// Lengths are picture pixels, y points up, pixel centers lie at half-integers. Rectangles may be infinite.
#pragma once

#include <array>
#include <optional>

struct CIPoint {
    double x = 0, y = 0;
    bool operator==(const CIPoint&) const = default;
};

/// An axis-aligned rectangle. One with no area is empty; the infinite one contains every point.
struct CIRect {
    double x = 0, y = 0, width = 0, height = 0;

    static CIRect infinite();
    /// The smallest rectangle that holds both corners, in any order.
    static CIRect fromCorners(CIPoint a, CIPoint b);

    double left() const { return x; }
    double right() const { return x + width; }
    double bottom() const { return y; }
    double top() const { return y + height; }
    CIPoint center() const { return {x + width / 2, y + height / 2}; }

    bool isEmpty() const { return !(width > 0 && height > 0); }
    /// True when at least one side has no end; such a rectangle can't be rendered whole.
    bool isInfinite() const;
    bool contains(CIPoint) const;
    bool contains(const CIRect&) const;

    CIRect intersected(const CIRect&) const;
    CIRect united(const CIRect&) const; // an empty rectangle adds nothing
    CIRect grown(double dx, double dy) const;
    CIRect grown(double d) const { return grown(d, d); }
    CIRect translated(double dx, double dy) const;
    /// The smallest rectangle with whole-number sides that holds this one.
    CIRect roundedOut() const;

    bool operator==(const CIRect&) const = default;
};

/// Maps (x, y) to (a x + c y + tx, b x + d y + ty).
struct CIAffineTransform {
    double a = 1, b = 0, c = 0, d = 1, tx = 0, ty = 0;

    static CIAffineTransform translation(double dx, double dy) { return {1, 0, 0, 1, dx, dy}; }
    static CIAffineTransform scaling(double sx, double sy) { return {sx, 0, 0, sy, 0, 0}; }
    static CIAffineTransform rotation(double radians); // counterclockwise

    CIPoint map(CIPoint) const;
    /// The bounding box of the mapped rectangle; infinite stays infinite.
    CIRect mapRect(const CIRect&) const;
    /// First this, then `next`.
    CIAffineTransform then(const CIAffineTransform& next) const;
    /// Nothing when the transform flattens the plane.
    std::optional<CIAffineTransform> inverted() const;
    double determinant() const { return a * d - b * c; }
    bool isIdentity() const { return *this == CIAffineTransform(); }
    bool isTranslation() const { return a == 1 && b == 0 && c == 0 && d == 1; }

    bool operator==(const CIAffineTransform&) const = default;
};
