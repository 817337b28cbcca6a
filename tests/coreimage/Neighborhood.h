// What tests of filters that look around a pixel share.
#pragma once

#include "tests/coreimage/Pictures.h"

#include <functional>
#include <gtest/gtest.h>

namespace pictures {

inline CIImage made(const std::string& name, const CIBitmap& source, const CIDictionary& inputs)
{
    const auto f = filter(name, CIImage::fromBitmap(source));
    for (const auto& [key, value] : inputs)
        f->setValueForKey(value, key);
    return f->outputImage();
}

inline CIBitmap result(const std::string& name, const CIBitmap& source, const CIDictionary& inputs)
{
    return rendered(made(name, source, inputs), CIImage::fromBitmap(source).extent());
}

inline float outsideZero(const CIBitmap& b, int x, int y, int c)
{
    return x < 0 || y < 0 || x >= b.width() || y >= b.height() ? 0 : at(b, x, y, c);
}

/// One bright opaque pixel on opaque black.
inline CIBitmap dot(int width, int height, int x, int y)
{
    return painted(width, height, [=](double px, double py) { return gray(px == x + 0.5 && py == y + 0.5 ? 1 : 0); });
}

/// Compares each component of each pixel with what `expected(x, y, c)` says.
inline void expectEach(const CIBitmap& out, double tolerance, const std::function<double(int, int, int)>& expected)
{
    for (int y = 0; y < out.height(); ++y)
        for (int x = 0; x < out.width(); ++x)
            for (int c = 0; c < 4; ++c)
                ASSERT_NEAR(double(at(out, x, y, c)), expected(x, y, c), tolerance) << x << ", " << y << ", " << c;
}

} // namespace pictures
