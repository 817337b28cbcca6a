// Blurs by discs, as lenses make them, for filters to build on. Outside an image all is transparent.
#pragma once

#include "platform/coreimage/CIImage.h"

namespace ci {

/// The mean over a disc. In the ring between `ringFrom` times the radius and the rim weights are 1 + `ringAmount`.
struct Disc {
    double radius = 0; // px
    double ringFrom = 1, ringAmount = 0;
};
CIImage discBlur(const CIImage&, const Disc&);

} // namespace ci
