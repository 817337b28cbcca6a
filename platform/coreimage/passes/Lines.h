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
inline constexpr int kMostBoxes = 6;
/// What a mean is taken over.
struct Window {
    std::array<Box, kMostBoxes> boxes;
    int count = 0;
};

/// A bell exp(-steepness t²) as a stack of boxes around 0: their half widths in t, and what each adds to the wider
/// ones.
template <std::size_t N>
struct Bell {
    std::array<double, N> sides, heights{};
    Bell(const std::array<double, N>& sides_, double steepness)
        : sides(sides_)
    {
        double below = 0, total = 0;
        for (std::size_t i = 0; i < N; ++i) {
            const double t = (sides[i] + (i + 1 < N ? sides[i + 1] : 0)) / 2, level = std::exp(-steepness * t * t);
            heights[i] = level - below;
            total += heights[i] * 2 * sides[i];
            below = level;
        }
        for (double& height : heights)
            height /= total;
    }
    /// As weights of a mean around `middle`, `unit` cells for each t.
    Window around(double middle, double unit) const
    {
        Window window;
        for (std::size_t i = 0; i < N; ++i)
            window.boxes[i] = {middle - sides[i] * unit, middle + sides[i] * unit, heights[i] / unit};
        window.count = int(N);
        return window;
    }
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
    ParallelLines(double slope, double sigma, Span u, Span v)
        : m_slope(slope)
        , m_sigma(sigma)
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
        // Boxes that differ least from the bell; a little wider, so that their variance is right.
        static const Bell<6> bell({2.6, 1.95, 1.52, 1.17, 0.86, 0.54}, 0.5);
        return bell.around(u, kWiden * m_sigma);
    }
    Span covered(double) const override { return {-1e9, 1e9}; }

private:
    static constexpr double kWiden = 1.031;
    double m_slope, m_sigma, m_first;
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
        static const Bell<5> bell({1, 0.86, 0.7, 0.52, 0.3}, 0.55);
        return bell.around(u * (1 + m_farthest) / 2, std::max(std::abs(u * (1 - m_farthest)) / 2, 0.25));
    }
    Span covered(double u) const override
    {
        const double side = m_withDiagonal ? std::abs(u) + 1e-6 : std::abs(u) - 1e-6;
        return {-side, side};
    }

private:
    double m_farthest, m_step, m_first;
    bool m_withDiagonal;
};

} // namespace ci::lines
