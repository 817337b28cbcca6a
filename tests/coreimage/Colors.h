// Single colors through filters.
#pragma once

#include "tests/coreimage/Pictures.h"

#include <array>
#include <gtest/gtest.h>

namespace pictures {

using Color = std::array<double, 4>; // straight, linear

inline double linear(double coded) { return coded <= 0.04045 ? coded / 12.92 : std::pow((coded + 0.055) / 1.055, 2.4); }
inline double coded(double light)
{
    return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}
inline double luma(const Color& c) { return 0.2126 * c[0] + 0.7152 * c[1] + 0.0722 * c[2]; }

inline CIImage flat(const Color& c, int width = 3, int height = 3)
{
    CIBitmap bitmap(width, height, CIFormat::RGBAf, CIAlpha::Straight, CIColorSpace::LinearSRGB);
    for (int y = 0; y < height; ++y) {
        const auto row = bitmap.mutableRow<float>(y);
        for (std::size_t i = 0; i < row.size(); ++i)
            row[i] = float(c[i % 4]);
    }
    return CIImage::fromBitmap(bitmap);
}

/// What the filter makes of one color.
inline Color result(const std::string& name, const Color& c, const CIDictionary& inputs = {})
{
    const auto f = filter(name, flat(c));
    for (const auto& [key, value] : inputs)
        f->setValueForKey(value, key);
    const CIBitmap out = CIContext().render(f->outputImage(), {1, 1, 1, 1}, 1, CIFormat::RGBAf, CIAlpha::Straight);
    return {at(out, 0, 0, 0), at(out, 0, 0, 1), at(out, 0, 0, 2), at(out, 0, 0, 3)};
}

inline void expectColor(const Color& actual, const Color& expected, double tolerance = 1e-5)
{
    for (std::size_t c = 0; c < 4; ++c)
        EXPECT_NEAR(actual[c], expected[c], tolerance) << "component " << c;
}

inline const Color kSome{0.5, 0.25, 0.1, 1}, kThin{0.5, 0.25, 0.1, 0.5};

} // namespace pictures
