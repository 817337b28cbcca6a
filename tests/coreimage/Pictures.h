// Small pictures for tests, and the distance of two.
#pragma once

#include "platform/coreimage/CIContext.h"
#include "platform/coreimage/CIFilter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <string>

namespace pictures {

using Color = std::array<double, 4>;

/// Linear, premultiplied; `color(x, y)` at pixel centers, from the lower left up to the right.
template <class F>
CIBitmap painted(int width, int height, F color)
{
    CIBitmap bitmap(width, height, CIFormat::RGBAf, CIAlpha::Premultiplied, CIColorSpace::LinearSRGB);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const Color c = color(x + 0.5, y + 0.5);
            std::copy_n(c.begin(), 4, bitmap.mutableRow<float>(height - 1 - y).begin() + 4 * x);
        }
    return bitmap;
}
inline Color gray(double light) { return {light, light, light, 1}; }

/// Uniform noise, premultiplied, with transparent and opaque pixels among the rest.
inline CIBitmap noise(int width, int height, float low = 0, float high = 1)
{
    std::mt19937 random(unsigned(width * 7919 + height));
    std::uniform_real_distribution<float> value(low, high), alpha(-0.3f, 1.5f);
    CIBitmap bitmap(width, height, CIFormat::RGBAf, CIAlpha::Premultiplied, CIColorSpace::LinearSRGB);
    for (int y = 0; y < height; ++y) {
        const auto row = bitmap.mutableRow<float>(y);
        for (std::size_t x = 0; x < row.size(); x += 4) {
            const float a = std::clamp(alpha(random), 0.0f, 1.0f);
            for (std::size_t c = 0; c < 3; ++c)
                row[x + c] = value(random) * a;
            row[x + 3] = a;
        }
    }
    return bitmap;
}

/// Opaque 8-bit noise.
inline CIBitmap noise8(int width, int height)
{
    std::mt19937 random(unsigned(width * 31 + height));
    CIBitmap bitmap(width, height, CIFormat::RGBA8, CIAlpha::Opaque);
    for (int y = 0; y < height; ++y) {
        const auto row = bitmap.mutableRow<std::uint8_t>(y);
        for (std::size_t i = 0; i < row.size(); ++i)
            row[i] = i % 4 == 3 ? 255 : std::uint8_t(random());
    }
    return bitmap;
}

/// Soft waves of color, opaque: looks much the same at half the size.
inline CIBitmap smooth(int width, int height)
{
    CIBitmap bitmap(width, height, CIFormat::RGBAf, CIAlpha::Opaque, CIColorSpace::LinearSRGB);
    for (int y = 0; y < height; ++y) {
        const auto row = bitmap.mutableRow<float>(y);
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < 4; ++c)
                row[std::size_t(4 * x + c)] =
                    c == 3 ? 1 : 0.5f + 0.4f * std::sin(0.031f * float(x * (c + 1)) + 0.023f * float(y * (3 - c)));
    }
    return bitmap;
}

/// Component `c` of the pixel in column `x`, row `y` counted upwards.
inline float at(const CIBitmap& b, int x, int y, int c)
{
    return b.row<float>(b.height() - 1 - y)[std::size_t(4 * x + c)];
}

struct Difference {
    double largest = 0, mean = 0;
    bool finite = true;
};

/// Of two float bitmaps of one size.
inline Difference difference(const CIBitmap& p, const CIBitmap& q)
{
    Difference d;
    if (p.width() != q.width() || p.height() != q.height())
        return {1e9, 1e9, false};
    for (int y = 0; y < p.height(); ++y) {
        const auto a = p.row<float>(y), b = q.row<float>(y);
        for (std::size_t i = 0; i < a.size(); ++i) {
            const double apart = std::abs(double(a[i]) - double(b[i]));
            d.finite = d.finite && std::isfinite(a[i]) && std::isfinite(b[i]);
            d.largest = std::max(d.largest, apart);
            d.mean += apart;
        }
    }
    d.mean /= std::max(1.0, 4.0 * p.width() * p.height());
    return d;
}

/// Premultiplied linear floats of a rectangle.
inline CIBitmap rendered(const CIImage& image, const CIRect& rect, double scale = 1,
    CIContext::Arithmetic arithmetic = CIContext::Arithmetic::Batches)
{
    return CIContext(arithmetic).render(image, rect, scale, CIFormat::RGBAf, CIAlpha::Premultiplied);
}

/// A filter with its defaults, `image` in every image input.
inline std::shared_ptr<CIFilter> filter(const std::string& name, const CIImage& image)
{
    auto made = CIFilter::filterWithName(name);
    made->setDefaults();
    for (const std::string& key : made->inputKeys())
        if (made->attributesForKey(key)->isImage())
            made->setValueForKey(image, key);
    return made;
}

} // namespace pictures
