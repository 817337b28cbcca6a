#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

/// Samples of a picture in the making, y down, bands interleaved.
/// 0 is black or clear, 1 is white or opaque; gamma is the maker's affair.
struct Raster {
    Raster(int width, int height, int bands)
        : width(width)
        , height(height)
        , bands(bands)
        , samples(static_cast<std::size_t>(width) * height * bands)
    {
    }
    float* at(int x, int y) { return samples.data() + (static_cast<std::size_t>(y) * width + x) * bands; }
    const float* at(int x, int y) const { return samples.data() + (static_cast<std::size_t>(y) * width + x) * bands; }

    int width, height, bands;
    std::vector<float> samples;
};

/// The sRGB transfer curve of IEC 61966-2-1, linear light to stored value; clamps to 0...1.
inline float encodeSrgb(float light)
{
    light = std::clamp(light, 0.0f, 1.0f);
    return light <= 0.0031308f ? 12.92f * light : 1.055f * std::pow(light, 1 / 2.4f) - 0.055f;
}
