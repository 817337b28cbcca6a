// Single colors through filters.
#pragma once

#include "tests/coreimage/Pictures.h"

#include <array>
#include <gtest/gtest.h>

namespace pictures {

inline double linear(double coded) { return coded <= 0.04045 ? coded / 12.92 : std::pow((coded + 0.055) / 1.055, 2.4); }
inline double coded(double light)
{
    return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}
inline CIImage flat(const Color& c, int width = 3, int height = 3)
{
    return CIImage::fromBitmap(painted(width, height, [&](double, double) {
        return Color{c[0] * c[3], c[1] * c[3], c[2] * c[3], c[3]};
    }));
}

} // namespace pictures
