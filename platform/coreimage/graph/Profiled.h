// Between stored pixels in the colors of a profile, and planes of premultiplied linear floats.
#pragma once

#include "platform/coreimage/CIColorProfile.h"
#include "platform/coreimage/graph/Node.h"

namespace ci {

/// As a `RowDecoder` decodes; the space has a profile. Each code has the very light that the profile says.
void (*profiledDecoder(CIFormat, CIAlpha))(const CIProfiledSpace*, const std::byte*, int, const MutableRow&);

/// As a `RowEncoder` encodes; the code is the one of the nearest light.
void (*profiledEncoder(CIFormat, CIAlpha))(const CIProfiledSpace*, const Row&, int, std::byte*);

} // namespace ci
