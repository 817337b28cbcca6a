#include "platform/coreimage/filters/Spline.h"

#include "platform/coreimage/kernel/Pixel.h"

namespace ci {

Spline::Spline(std::vector<CIPoint> points)
{
    std::ranges::stable_sort(points, {}, &CIPoint::x);
    for (const CIPoint& p : points) {
        if (!m_points.empty() && p.x - m_points.back().x < 1e-6)
            m_points.back().y = p.y; // of points above each other the last counts
        else
            m_points.push_back(p);
    }
    const std::size_t count = m_points.size();
    const auto rise = [&](std::size_t i) {
        return (m_points[i + 1].y - m_points[i].y) / (m_points[i + 1].x - m_points[i].x);
    };
    m_slopes.assign(count, 0);
    if (count < 2)
        return;
    m_slopes.front() = rise(0);
    m_slopes.back() = rise(count - 2);
    for (std::size_t i = 1; i + 1 < count; ++i) {
        const double before = rise(i - 1), after = rise(i);
        m_slopes[i] = before * after > 0 ? 2 * before * after / (before + after) : 0; // their harmonic mean
    }
}

double Spline::operator()(double x) const
{
    const auto above = std::ranges::upper_bound(m_points, x, {}, &CIPoint::x);
    if (above == m_points.begin() || above == m_points.end())
        return above == m_points.begin() ? m_points.front().y : m_points.back().y;
    const auto i = std::size_t(above - m_points.begin()) - 1;
    const CIPoint &p = m_points[i], &q = m_points[i + 1];
    const double width = q.x - p.x, t = (x - p.x) / width, s = 1 - t;
    return s * s * (1 + 2 * t) * p.y + t * t * (1 + 2 * s) * q.y
        + s * t * width * (s * m_slopes[i] - t * m_slopes[i + 1]);
}

std::vector<float> linearTable(const Spline& spline)
{
    constexpr int kSteps = 1024; // straight lines between them miss the steepest part by 4e-7
    std::vector<float> table;
    for (int i = 0; i <= kSteps; ++i)
        table.push_back(linearFromSRGB(float(spline(double(i) / kSteps))));
    return table;
}

} // namespace ci
