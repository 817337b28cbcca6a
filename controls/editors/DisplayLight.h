// The sRGB curve between linear light and display values, for plain numbers.
#pragma once

#include <cmath>

inline double displayFromLight(double light)
{
    return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

inline double lightFromDisplay(double display)
{
    return display <= 0.04045 ? display / 12.92 : std::pow((display + 0.055) / 1.055, 2.4);
}
