#include "widgets/rows/TransformParts.h"

#include <cmath>
#include <numbers>

TransformParts transformParts(const CIAffineTransform& t)
{
    double angle = 0;
    if (t.c != 0 || t.d != 1)
        angle = std::atan2(-t.c, t.d);
    if (angle < 0)
        angle += 2 * std::numbers::pi;
    const double s = std::sin(angle), c = std::cos(angle);
    // The first row turned back: scale * stretch times 1 and times the skew.
    const double along = t.b * s + t.a * c;
    const double across = t.b * c - t.a * s;
    const double scale = std::hypot(t.c, t.d);

    TransformParts parts{.scale = float(scale), .angle = float(angle)};
    if (along != 0)
        parts.skew = float(across / along);
    if (scale != 0)
        parts.stretch = float(along / scale);
    return parts;
}

CIAffineTransform composedTransform(const TransformParts& parts, CIPoint translation)
{
    const double s = std::sin(double(parts.angle)), c = std::cos(double(parts.angle));
    const double scale = parts.scale, along = scale * double(parts.stretch), skew = parts.skew;
    return {along * (c - skew * s), along * (s + skew * c), -scale * s, scale * c, translation.x, translation.y};
}
