// Smooth curves through given points.
#pragma once

#include "platform/coreimage/CIGeometry.h"

#include <algorithm>
#include <vector>

namespace ci {

/// The monotone cubic through points (Fritsch and Butland 1984): where the points rise the curve rises, it never
/// swings past them. Level before the first point and after the last.
class Spline {
public:
    explicit Spline(std::vector<CIPoint> points);
    double operator()(double x) const;

private:
    std::vector<CIPoint> m_points; // by x, at least one
    std::vector<double> m_slopes;
};

/// The curve from 0 to 1 in display values, as a table of linear light for `Curve`: nothing but the lookup is left to
/// do for a pixel.
std::vector<float> linearTable(const Spline&);

} // namespace ci
