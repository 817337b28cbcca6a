// The vector and color values of filter inputs.
#pragma once

#include "platform/coreimage/CIGeometry.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// A short row of numbers: a position, a rectangle (x, y, width, height), an offset, a row of weights.
class CIVector {
public:
    CIVector() = default;
    CIVector(std::initializer_list<double> values)
        : m_values(values)
    {
    }
    explicit CIVector(std::vector<double> values)
        : m_values(std::move(values))
    {
    }
    explicit CIVector(CIPoint p)
        : m_values{p.x, p.y}
    {
    }
    explicit CIVector(const CIRect& r)
        : m_values{r.x, r.y, r.width, r.height}
    {
    }

    std::size_t count() const { return m_values.size(); }
    /// The component at `index`, or 0 past the end.
    double valueAtIndex(std::size_t index) const { return index < m_values.size() ? m_values[index] : 0; }
    double X() const { return valueAtIndex(0); }
    double Y() const { return valueAtIndex(1); }
    double Z() const { return valueAtIndex(2); }
    double W() const { return valueAtIndex(3); }
    CIPoint point() const { return {X(), Y()}; }
    CIRect rect() const { return {X(), Y(), Z(), W()}; }
    const std::vector<double>& values() const { return m_values; }

    bool operator==(const CIVector&) const = default;

private:
    std::vector<double> m_values;
};

/// A color as people give it: sRGB-coded red, green, blue, not multiplied by alpha. Usually 0 to 1.
class CIColor {
public:
    CIColor() = default; // opaque black
    CIColor(double red, double green, double blue, double alpha = 1)
        : m_red(red)
        , m_green(green)
        , m_blue(blue)
        , m_alpha(alpha)
    {
    }

    double red() const { return m_red; }
    double green() const { return m_green; }
    double blue() const { return m_blue; }
    double alpha() const { return m_alpha; }

    bool operator==(const CIColor&) const = default;

private:
    double m_red = 0, m_green = 0, m_blue = 0, m_alpha = 1;
};
