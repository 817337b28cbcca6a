// Weighted sums of neighboring pixels, for filters to build on.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <span>

namespace ci {

/// Sums with `columns` by `rows` weights (odd numbers), read as a page is: the first weight belongs to the neighbor at
/// the upper left. `bias` is added. Outside the image all is transparent.
struct Weights {
    std::span<const double> values;
    int columns = 1, rows = 1;
    double bias = 0;
    /// Sums the colors only, and leaves alpha as it is.
    bool keepsAlpha = false;
};
CIImage convolved(const CIImage&, const Weights&);

} // namespace ci
