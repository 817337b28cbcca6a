// Blurs along straight lines, for filters to build on. Outside an image all is transparent.
#pragma once

#include "platform/coreimage/CIImage.h"

namespace ci {

/// A Gaussian along `angle` (radians, counterclockwise) alone, of standard deviation `sigma` picture pixels, at most
/// 500. The extent grows by six of them along that angle.
CIImage blurAlong(const CIImage&, double angle, double sigma);

/// A pixel at p becomes the mean of what lies at center + s (p - center), for s from 1 to `farthest` (above 0). The
/// weights are those of a bell in s: exp(-0.55 t²) for t from -1 to 1.
CIImage blurToward(const CIImage&, CIPoint center, double farthest);

} // namespace ci
