// Between stored pixels and planes of premultiplied linear floats.
#pragma once

#include "platform/coreimage/CIColorProfile.h"
#include "platform/coreimage/graph/Node.h"

namespace ci {

/// Rows of a bitmap as planes. 8-bit sRGB goes through a polynomial that is within 3.1e-6 of the curve, a hundredth
/// of the smallest step.
class RowDecoder {
public:
    RowDecoder(CIFormat, CIAlpha, CIColorSpace, bool floats);
    /// `count` pixels from `pixels` on, into `row`.
    void decode(const std::byte* pixels, int count, const MutableRow& row) const
    {
        m_decode(m_space, pixels, count, row);
    }

private:
    const CIProfiledSpace* m_space; // null without a profile
    void (*m_decode)(const CIProfiledSpace*, const std::byte*, int, const MutableRow&);
};

/// Planes into stored pixels. Colors outside 0 to 1 are clipped, save in float bitmaps; 8-bit codes are within
/// 0.04 of a step before rounding.
class RowEncoder {
public:
    /// `opaque`: every alpha is known to be 1.
    RowEncoder(CIFormat, CIAlpha, CIColorSpace, bool opaque, bool floats);
    void encode(const Row& row, int count, std::byte* pixels) const { m_encode(m_space, row, count, pixels); }

private:
    const CIProfiledSpace* m_space;
    void (*m_encode)(const CIProfiledSpace*, const Row&, int, std::byte*);
};

} // namespace ci
