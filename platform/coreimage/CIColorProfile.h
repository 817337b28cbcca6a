// Color spaces of files that are not in sRGB.
#pragma once

#include "platform/coreimage/CIBitmap.h"

#include <array>
#include <string>
#include <string_view>

/// A transfer curve and a matrix.
struct CIColorProfile {
    std::string name; // to be shown
    std::vector<float> light; // of each of the 65536 codes of 16 bits, from 0 to 1, never falling
    std::array<float, 9> toLinearSRGB{}; // row by row; red, green and blue light of such a file to that of sRGB
    std::vector<std::byte> icc; // the same as files hold it
    bool operator==(const CIColorProfile&) const = default;
};

/// A profile, and what converts by it. Codes of 8 bits stand for those of 16 bits that are 257 times as large; floats
/// are linear sRGB in any bitmap.
class CIProfiledSpace {
public:
    /// Throws std::invalid_argument for a curve of another length, or that falls, or a matrix without an inverse.
    explicit CIProfiledSpace(CIColorProfile);

    const CIColorProfile& profile() const { return m_profile; }
    const std::array<float, 9>& fromLinearSRGB() const { return m_fromLinearSRGB; }
    /// The code whose light is the nearest; light beyond 0 to 1 is clipped.
    std::uint16_t codeOf(float light) const;

private:
    static constexpr std::size_t kSteps = 4096;

    CIColorProfile m_profile;
    std::array<float, 9> m_fromLinearSRGB;
    std::array<std::uint16_t, kSteps + 1> m_first{}; // the highest code not brighter than the square of each step
};

/// The space of a profile, which bitmaps may have as any other: a number beyond those with names. Equal profiles have
/// the same one as long as the program runs. Throws as CIProfiledSpace does, and when there are too many of them.
/// From any thread, as all below.
CIColorSpace colorSpaceOf(CIColorProfile);

/// Null for the spaces with names.
const CIProfiledSpace* profiledSpace(CIColorSpace);

/// Bytes for the same kind of machine, and back. Throws std::invalid_argument for others.
std::string packedSpace(CIColorSpace);
CIColorSpace unpackedSpace(std::string_view);
