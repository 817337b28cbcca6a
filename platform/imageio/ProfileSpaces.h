// Color spaces of ICC profiles.
#pragma once

#include "platform/coreimage/CIColorProfile.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace imageio {

struct CloseProfile {
    void operator()(void* profile) const;
};
using ProfilePtr = std::unique_ptr<void, CloseProfile>; // of Little CMS

/// The description in English; empty when there is none.
std::string descriptionOf(void* profile);

/// The space of an RGB profile, `icc` in a file, that is one curve and a matrix, or of a grey one. None for other
/// profiles: tables, inks, a curve for each color.
std::optional<CIColorSpace> spaceOf(void* profile, std::vector<std::byte> icc);

/// Display P3, Adobe RGB, Rec. 2020, ProPhoto: from the smallest to the largest. Made once.
const std::vector<CIColorSpace>& wideSpaces();

/// The profile of a space, null when it can't be made.
ProfilePtr profileOf(CIColorSpace);

/// Whether the colors, in linear sRGB, have codes in the space, give or take what nobody sees.
bool holds(CIColorSpace, std::span<const float> colors);

} // namespace imageio
