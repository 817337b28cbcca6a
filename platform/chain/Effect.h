// What a filter does to a picture, as far as a glance tells.
#pragma once

#include "platform/coreimage/CIContext.h"

/// How a result differs from the picture that it was made of.
struct Effect {
    double changed = 0; // share of the picture's pixels; seen small, or in the middle at full size
    bool isEmpty = false; // next to nothing is left in the picture's frame
    bool isFlat = false; // nearly one color, unlike the picture

    /// False where a person would ask what the filter is for.
    bool tells() const { return changed >= 0.05 && !isEmpty && !isFlat; }
};

/// Of two bitmaps of one size, in 8-bit premultiplied RGBA. A null result is empty.
Effect effectOf(const CIBitmap& picture, const CIBitmap& result);
/// Renders both small. Blocks; from any thread. A null result is empty.
Effect effectOn(const CIImage& picture, const CIImage& result, CIRenderControl* control = nullptr);
