// Turning by any angle.
#pragma once

#include "platform/coreimage/CIImage.h"

namespace ci {

/// Seen through a turn and a shift, sampled once by the cubic window of Catmull and Rom: sharper than what a linear
/// sampling leaves. `motion` scales nothing. Meant for renders at full size. Beyond the image's edges it is
/// transparent.
CIImage turned(const CIImage&, const CIAffineTransform& motion);

} // namespace ci
