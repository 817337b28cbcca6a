// Pictures to measure with, and a clock.
#pragma once

#include "platform/coreimage/CIContext.h"
#include "platform/coreimage/CIFilter.h"

#include <chrono>
#include <cmath>
#include <cstdint>
#include <string>

namespace bench {

inline double milliseconds()
{
    using namespace std::chrono;
    return duration<double, std::milli>(steady_clock::now().time_since_epoch()).count();
}

/// An opaque 8-bit picture with gradients, edges and noise.
inline CIBitmap testPicture(int width, int height)
{
    CIBitmap bitmap(width, height, CIFormat::RGBA8, CIAlpha::Opaque);
    std::uint32_t random = 1;
    for (int y = 0; y < height; ++y) {
        const auto row = bitmap.mutableRow<std::uint8_t>(y);
        for (int x = 0; x < width; ++x) {
            random = random * 1664525u + 1013904223u;
            const int noise = int(random >> 28), checks = (x / 61 + y / 47) % 2 * 60;
            const std::size_t i = std::size_t(4 * x);
            row[i] = std::uint8_t(std::min(255, x * 180 / width + checks + noise));
            row[i + 1] = std::uint8_t(std::min(255, y * 180 / height + checks / 2 + noise));
            row[i + 2] = std::uint8_t(128 + 90 * std::sin(0.011 * x) * std::cos(0.007 * y) + noise);
            row[i + 3] = 255;
        }
    }
    return bitmap;
}

/// A filter with its defaults, `image` in every image input.
inline std::shared_ptr<CIFilter> filter(const std::string& name, const CIImage& image)
{
    auto made = CIFilter::filterWithName(name);
    if (!made)
        return made;
    made->setDefaults();
    for (const std::string& key : made->inputKeys())
        if (made->attributesForKey(key)->isImage())
            made->setValueForKey(image, key);
    return made;
}

} // namespace bench
