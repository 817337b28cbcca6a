#include "controls/editors/ColorTable.h"

#include "controls/editors/DisplayLight.h"

#include <algorithm>
#include <cmath>

namespace {

/// Entries left and right of a place along an edge, and how far it is from the left one to the right.
struct Span {
    std::size_t left, right;
    double part;
};

Span spanAt(double place, std::size_t side)
{
    const double at = std::clamp(place, 0.0, 1.0) * double(side - 1);
    const auto left = std::min(std::size_t(at), side - 2);
    return {left, left + 1, at - double(left)};
}

double mixed(double a, double b, double part) { return a + (b - a) * part; }

/// `entry(index, c)` is a component of an entry of a cube, red changing fastest; places run from 0 to 1.
template <class F>
double trilinear(const ColorTriple& places, std::size_t side, F entry)
{
    const Span r = spanAt(places[0], side), g = spanAt(places[1], side), b = spanAt(places[2], side);
    const auto alongRed = [&](std::size_t green, std::size_t blue) {
        const std::size_t row = (blue * side + green) * side;
        return mixed(entry(row + r.left), entry(row + r.right), r.part);
    };
    const auto alongGreen = [&](std::size_t blue) {
        return mixed(alongRed(g.left, blue), alongRed(g.right, blue), g.part);
    };
    return mixed(alongGreen(b.left), alongGreen(b.right), b.part);
}

/// `color` for each entry of a cube, at places from 0 to 1.
template <class F>
std::vector<float> filledCube(std::size_t side, F color)
{
    std::vector<float> pixels;
    pixels.reserve(side * side * side * 4);
    const double step = 1.0 / double(side - 1);
    for (std::size_t b = 0; b < side; ++b)
        for (std::size_t g = 0; g < side; ++g)
            for (std::size_t r = 0; r < side; ++r) {
                for (double component : color(ColorTriple{double(r) * step, double(g) * step, double(b) * step}))
                    pixels.push_back(float(component));
                pixels.push_back(1);
            }
    return pixels;
}

} // namespace

ColorTriple ColorTable::operator()(const ColorTriple& color) const
{
    ColorTriple places{}, result{};
    for (std::size_t c = 0; c < 3; ++c)
        places[c] = (color[c] - low[c]) / (high[c] - low[c]);
    for (std::size_t c = 0; c < 3; ++c)
        if (isCube) {
            result[c] = trilinear(places, side, [&](std::size_t i) { return entries[i][c]; });
        } else {
            const Span span = spanAt(places[c], side);
            result[c] = mixed(entries[span.left][c], entries[span.right][c], span.part);
        }
    return result;
}

std::vector<float> sampledCube(std::size_t side, bool inLight, const ColorRule& rule)
{
    return filledCube(side, [&](ColorTriple at) {
        if (!inLight)
            return rule(at);
        for (double& component : at)
            component = displayFromLight(component);
        ColorTriple result = rule(at);
        for (double& component : result)
            component = lightFromDisplay(component);
        return result;
    });
}

std::vector<float> resampledCube(const std::vector<float>& pixels, std::size_t side, std::size_t newSide)
{
    return filledCube(newSide, [&](const ColorTriple& at) {
        ColorTriple result{};
        for (std::size_t c = 0; c < 3; ++c)
            result[c] = trilinear(at, side, [&](std::size_t i) { return double(pixels[i * 4 + c]); });
        return result;
    });
}
