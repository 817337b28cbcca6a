#pragma once

#include "tools/make_pictures/landscape/Vec.h"
#include "tools/make_pictures/Noise.h"

#include <cstdint>
#include <limits>
#include <vector>

enum class Kind : std::uint8_t { Sky, Ground, Water };

/// Columns of a canvas that one thread may draw on: first...last - 1.
struct Strip {
    int first, last;
};

/// A picture in the making: linear light, distance (metres along the view) and kind of thing for every pixel.
struct Canvas {
    Canvas(int width, int height)
        : width(width)
        , height(height)
        , color(static_cast<std::size_t>(width) * height)
        , distance(color.size(), std::numeric_limits<float>::max())
        , kind(color.size(), Kind::Sky)
    {
    }
    std::size_t index(int x, int y) const { return static_cast<std::size_t>(y) * width + x; }
    bool shows(int x, int y, float away) const
    {
        return x >= 0 && y >= 0 && x < width && y < height && distance[index(x, y)] > away;
    }

    int width, height;
    std::vector<Vec> color;
    std::vector<float> distance;
    std::vector<Kind> kind;
};

/// A point of a stroke: pixels, and half its thickness there.
struct Nib {
    float x, y, radius;
};

/// A straight tapering stroke of one color, hidden by what is nearer than `away`. Thinner than a pixel it grows faint.
void drawStroke(Canvas& canvas, const Strip& strip, const Nib& from, const Nib& to, const Vec& color, float away);

/// A filled ellipse of half axes `long` and `wide`, its long axis turned by `angle`.
struct Ellipse {
    float x, y, longAxis, wideAxis, angle;
};
void drawEllipse(Canvas& canvas, const Strip& strip, const Ellipse& ellipse, const Vec& color, float away);

/// Repeatable random numbers of 0...1.
class Random {
public:
    explicit Random(std::uint32_t seed)
        : m_seed(seed)
    {
    }
    float next() { return cellRandom(static_cast<int>(m_seed), static_cast<int>(m_count++), 77); }
    float between(float low, float high) { return low + (high - low) * next(); }

private:
    std::uint32_t m_seed, m_count = 0;
};
