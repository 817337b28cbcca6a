// What single filters do: values at single places, worked out by hand or from where a formula comes from, never by
// running the filter. A fact says what a filter is for, and fails when its formula changes.
#pragma once

#include "tests/coreimage/Pictures.h"

#include <array>
#include <optional>

namespace facts {

/// Premultiplied linear red, green, blue and alpha.
using Color = std::array<double, 4>;

struct Seen {
    CIPoint at; // between the centers of cells the result is read linearly
    Color color;
};

/// How a fact changes when all pictures and all positions among the inputs are moved.
enum class Moved {
    Along, // the places move along
    Answers, // the places stay: the filter answers at the origin
    Never, // the filter is bound to the origin
};

struct Fact {
    std::string filter;
    CIDictionary inputs; // for the rest the defaults; pictures that are not given are missing
    std::vector<Seen> seen;
    double tolerance = 1e-3;
    bool reduced = true; // also holds at half the scale
    Moved moved = Moved::Along;
    std::optional<CIRect> extent = {};

    Fact within(double t) const
    {
        return with([t](Fact& f) { f.tolerance = t; });
    }
    /// For what single pixels decide.
    Fact atFullSize() const
    {
        return with([](Fact& f) { f.reduced = false; });
    }
    Fact answered() const
    {
        return with([](Fact& f) { f.moved = Moved::Answers; });
    }
    Fact inPlace() const
    {
        return with([](Fact& f) { f.moved = Moved::Never; });
    }
    Fact reaching(const CIRect& r) const
    {
        return with([&r](Fact& f) { f.extent = r; });
    }

private:
    template <class F>
    Fact with(F change) const
    {
        Fact fact = *this;
        change(fact);
        return fact;
    }
};
using Facts = std::vector<Fact>;

// One function for each file of facts.
Facts blends();
Facts colors();
Facts tones();
Facts looks();
Facts distortions();
Facts geometry();
Facts tiles();
Facts blurs();
Facts styles();
Facts neighborhoods();
Facts generators();
Facts lights();
Facts codes();
Facts transitions();
Facts reductions();
Facts halftones();

// Colors.

inline Color straight(double r, double g, double b, double a = 1) { return {r * a, g * a, b * a, a}; }
inline Color gray(double light, double a = 1) { return straight(light, light, light, a); }
/// The light of an sRGB code, IEC 61966-2-1.
inline double light(double code) { return code <= 0.04045 ? code / 12.92 : std::pow((code + 0.055) / 1.055, 2.4); }
inline Color coded(double r, double g, double b, double a = 1) { return straight(light(r), light(g), light(b), a); }
inline double luma(const Color& c) { return 0.2126 * c[0] + 0.7152 * c[1] + 0.0722 * c[2]; }
inline Color mixed(const Color& a, const Color& b, double t)
{
    Color c;
    for (std::size_t i = 0; i < 4; ++i)
        c[i] = (1 - t) * a[i] + t * b[i];
    return c;
}
inline const Color kNothing{0, 0, 0, 0}, kBlack{0, 0, 0, 1}, kWhite{1, 1, 1, 1};
inline const Color kSome = straight(0.5, 0.25, 0.1), kThin = straight(0.5, 0.25, 0.1, 0.5);

// Pictures, from the origin up to the right.

template <class F> // Color(double x, double y), at pixel centers
CIImage painted(int width, int height, F color)
{
    return CIImage::fromBitmap(pictures::painted(width, height, color));
}
inline CIImage flat(const Color& c, int width = 40, int height = 40)
{
    return painted(width, height, [&](double, double) { return c; });
}
/// 100 by 100 pixels that tell where they lie: what a warp reads says where it looked.
inline Color rampAt(double x, double y) { return {x / 100, y / 100, 0.25, 1}; }
inline CIImage ramp() { return painted(100, 100, rampAt); }
/// 100 by 100 pixels, one color left of x = 50, the other right of it.
inline CIImage halves(const Color& left, const Color& right)
{
    return painted(100, 100, [&](double x, double) { return x < 50 ? left : right; });
}
/// 21 by 21 pixels with another one in their middle, whose center is (10.5, 10.5).
inline CIImage dotOn(const Color& ground, const Color& dot)
{
    return painted(21, 21, [&](double x, double y) { return x == 10.5 && y == 10.5 ? dot : ground; });
}
inline CIImage moved(const CIImage& image, double x, double y)
{
    return image.transformed(CIAffineTransform::translation(x, y));
}

inline CIVector at(double x, double y) { return CIVector{x, y}; }
/// What a flat picture of one color becomes.
inline Fact of(const char* filter, const Color& color, CIDictionary inputs, const Color& becomes)
{
    inputs["inputImage"] = flat(color);
    return {filter, std::move(inputs), {{{11, 11}, becomes}}, 1e-4};
}
/// Little-endian floats.
inline CIData bytes(const std::vector<float>& numbers)
{
    const auto* const first = reinterpret_cast<const std::byte*>(numbers.data());
    return {first, first + numbers.size() * sizeof(float)};
}
inline CIData bytes(const std::string& text)
{
    const auto* const first = reinterpret_cast<const std::byte*>(text.data());
    return {first, first + text.size()};
}

} // namespace facts
