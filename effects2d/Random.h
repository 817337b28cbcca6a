// Random numbers as the generators draw them: the C library's, never seeded, so that every run draws the same.
#pragma once

#include <cstdlib>

#include <QPointF>
#include <QRectF>

/// 0 to 1, both included.
inline double uniform() { return (std::rand() & 0x7FFF) / 32767.0; }

/// Red, green, blue and alpha, drawn in this order.
struct RandomColor {
    double red = uniform(), green = uniform(), blue = uniform(), alpha = uniform();
};

inline double randomX(const QRectF& r) { return r.left() + r.width() * uniform(); }
inline double randomY(const QRectF& r) { return r.top() + r.height() * uniform(); } // `top` is the lower edge, y is up

/// x is drawn first.
inline QPointF randomPoint(const QRectF& r)
{
    const double x = randomX(r);
    return {x, randomY(r)};
}
