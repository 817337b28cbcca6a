// Bundles of lines to blur along. Everything is measured in cells: `u` along the main axis, which the lines follow
// most, `v` across it, both from an origin.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>

namespace ci::lines {

/// A part of a window and the height of its weights.
struct Box {
    double from, to, weight;
};
inline constexpr int kMostBoxes = 5;
/// What a mean is taken over.
struct Window {
    std::array<Box, kMostBoxes> boxes;
    int count = 0;
};

struct Span {
    double low, high;
    Span united(const Span& s) const { return {std::min(low, s.low), std::max(high, s.high)}; }
};

/// A bundle of lines. Line j lies at v = start(u) + j spread(u).
class Lines {
public:
    virtual ~Lines() = default;
    virtual double start(double u) const = 0;
    virtual double spread(double u) const = 0;
    virtual Window windowAt(double u) const = 0;
    /// The places across, at `u`, whose pixels belong to this bundle.
    virtual Span covered(double u) const = 0;
    int count = 0;
};

/// Lines a cell apart, as many as the block needs that `u` and `v` span.
class ParallelLines : public Lines {
public:
    ParallelLines(double slope, double reach, Span u, Span v)
        : m_slope(slope)
        , m_reach(reach)
    {
        const double a = slope * u.low, b = slope * u.high;
        // At u = 0 they run through the centers of cells: level lines lose nothing.
        m_first = v.low + 0.5 + std::floor(-std::max(a, b)) - 1;
        count = int(std::ceil(v.high - std::min(a, b)) - m_first) + 2;
    }
    double start(double u) const override { return m_first + m_slope * u; }
    double spread(double) const override { return 1; }
    Window windowAt(double u) const override
    {
        const double half = m_reach + 0.5; // cells reach half a step beyond their centers
        return {{Box{u - half, u + half, 0.5 / half}}, 1};
    }
    Span covered(double) const override { return {-1e9, 1e9}; }

private:
    double m_slope, m_reach, m_first;
};

/// Rays from the origin. Each place takes the mean of what lies between it and `farthest` times as far out.
class Rays : public Lines {
public:
    /// `withDiagonal`: the rays at 45 degrees belong to this bundle, not to the one along the other axis.
    Rays(double farthest, Span u, Span v, bool withDiagonal)
        : m_farthest(farthest)
        , m_withDiagonal(withDiagonal)
    {
        double low = 1, high = -1; // slopes
        for (const double across : {v.low, v.high})
            for (const double along : {u.low, u.high}) {
                const double slope = std::clamp(across / (std::abs(along) < 1e-6 ? 1e-6 : along), -1.0, 1.0);
                low = std::min(low, slope), high = std::max(high, slope);
            }
        if (u.low < 1 && u.high > -1)
            low = -1, high = 1;
        // Rays are a cell apart or less where they are farthest apart. The step is rounded, so that tiles share them.
        constexpr double kSteps = 4; // to the double
        m_step = std::exp2(-std::ceil(kSteps * std::log2(std::max({1.0, std::abs(u.low), std::abs(u.high)}))) / kSteps);
        m_first = (std::floor(low / m_step) - 1) * m_step;
        count = int(std::ceil((high - m_first) / m_step)) + 2;
    }
    double start(double u) const override { return m_first * u; }
    double spread(double u) const override { return m_step * u; }
    Window windowAt(double u) const override
    {
        // The bell as a stack of boxes: what each adds to the ones around it.
        static constexpr Sides kSides{1, 0.86, 0.7, 0.52, 0.3, 0};
        static const std::array<double, kMostBoxes> heights = bellHeights(kSides);
        const double middle = u * (1 + m_farthest) / 2;
        const double half = std::max(std::abs(u * (1 - m_farthest)) / 2, 0.25);
        Window window;
        double total = 0;
        for (const double side : kSides)
            if (window.count < kMostBoxes) {
                const auto i = std::size_t(window.count++);
                window.boxes[i] = {middle - side * half, middle + side * half, heights[i]};
                total += heights[i] * 2 * side * half;
            }
        for (Box& box : window.boxes)
            box.weight /= total;
        return window;
    }
    Span covered(double u) const override
    {
        const double side = m_withDiagonal ? std::abs(u) + 1e-6 : std::abs(u) - 1e-6;
        return {-side, side};
    }

private:
    using Sides = std::array<double, kMostBoxes + 1>;
    static std::array<double, kMostBoxes> bellHeights(const Sides& sides)
    {
        std::array<double, kMostBoxes> heights{};
        double below = 0;
        for (std::size_t i = 0; i < kMostBoxes; ++i) {
            const double t = (sides[i] + sides[i + 1]) / 2, level = std::exp(-0.55 * t * t);
            heights[i] = level - below;
            below = level;
        }
        return heights;
    }
    double m_farthest, m_step, m_first;
    bool m_withDiagonal;
};

} // namespace ci::lines
