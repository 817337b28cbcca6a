// How light and dark, red, green and blue a picture is.
#pragma once

#include <QImage>

#include <array>
#include <cstdint>

/// How many pixels have each of 256 levels, in the encoding of the screen.
struct Histogram {
    using Levels = std::array<std::uint32_t, 256>;

    Levels red{}, green{}, blue{};
    Levels luma{}; // Rec. 709 weights, of encoded values
    std::uint32_t pixels = 0; // counted

    /// From 0, all black, to 1, all white; 0 for an empty histogram.
    double meanLuma() const;
    /// The share of pixels whose luma is `level`.
    double share(int level) const;

    bool operator==(const Histogram&) const = default;
};

/// Counts about `most` pixels spread over an ARGB32_Premultiplied image. Transparent pixels don't count, half
/// transparent ones do with the color that they would have if they were opaque.
Histogram histogramOf(const QImage& image, int most = 40000);
