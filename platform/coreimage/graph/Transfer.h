// Between stored pixels and planes of premultiplied linear floats.
#pragma once

#include "platform/coreimage/CIBitmap.h"
#include "platform/coreimage/graph/Node.h"

namespace ci {

/// Rows of a bitmap as planes. 8-bit sRGB goes through a polynomial that is within 3.1e-6 of the curve, a hundredth
/// of the smallest step.
class RowDecoder {
public:
    RowDecoder(CIFormat, CIAlpha, CIColorSpace, bool floats);
    /// `count` pixels from `pixels` on, into `row`.
    void decode(const std::byte* pixels, int count, const MutableRow& row) const { m_decode(pixels, count, row); }

private:
    void (*m_decode)(const std::byte*, int, const MutableRow&);
};

/// Planes into stored pixels. Colors outside 0 to 1 are clipped, save in float bitmaps; 8-bit codes are within
/// 0.04 of a step before rounding.
class RowEncoder {
public:
    /// `opaque`: every alpha is known to be 1.
    RowEncoder(CIFormat, CIAlpha, CIColorSpace, bool opaque, bool floats);
    void encode(const Row& row, int count, std::byte* pixels) const { m_encode(row, count, pixels); }

private:
    void (*m_encode)(const Row&, int, std::byte*);
};

} // namespace ci
