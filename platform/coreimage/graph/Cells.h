// Images in cells of one color.
#pragma once

#include "platform/coreimage/CIImage.h"

namespace ci {

/// Squares of `size` picture pixels, with a corner at `origin`, each in the mean color of what it covers.
CIImage cells(const CIImage&, CIPoint origin, double size);

} // namespace ci
