// Distances to shapes.
#pragma once

#include "platform/coreimage/CIImage.h"

namespace ci {

/// Red from 0 at the pixels whose red is at least one half to 1 at `farthest` picture pixels from them and beyond;
/// opaque, infinite. Distances run between pixel centers.
CIImage distanceToRed(const CIImage&, double farthest);

} // namespace ci
