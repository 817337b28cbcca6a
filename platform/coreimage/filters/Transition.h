// What transitions have in common: the two pictures, the time, and the way along an angle.
#pragma once

#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {

inline CIInputAttributes targetImage() { return image("inputTargetImage", "Target Image"); }
inline CIInputAttributes transitionTime()
{
    return time(
        "inputTime", "Time", {.standard = 0, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1, .identity = 0});
}
inline CIInputAttributes transitionExtent(CIVector standard = {0, 0, 300, 300})
{
    return rectangle("inputExtent", "Extent", std::move(standard));
}

/// Both pictures together.
inline CIRect bothExtents(const Values& in)
{
    return in.image().extent().united(in.image("inputTargetImage").extent());
}

/// A rectangle that arithmetic in floats can bear: infinite sides end far away.
inline CIRect bounded(const CIRect& rect)
{
    constexpr double kFar = 1e6; // px
    return CIRect::fromCorners({rect.left(), rect.bottom()}, {rect.right(), rect.top()})
        .intersected({-kFar, -kFar, 2 * kFar, 2 * kFar});
}

/// The places of a rectangle's corners along a direction: x cos a + y sin a.
struct Span {
    double low, high; // px
    Span(const CIRect& rect, double angle)
    {
        const double c = std::cos(angle), s = std::sin(angle);
        low = c * (c < 0 ? rect.right() : rect.left()) + s * (s < 0 ? rect.top() : rect.bottom());
        high = c * (c < 0 ? rect.left() : rect.right()) + s * (s < 0 ? rect.bottom() : rect.top());
    }
    double length() const { return high - low; }
};

} // namespace ci
