// Images in patches of one color around scattered places.
#pragma once

#include "platform/coreimage/CIImage.h"

namespace ci {

/// Where the patches lie and what becomes of them. Lengths are picture pixels.
struct Mosaic {
    CIPoint origin;
    double across = 20, along = 20; // from one patch to the next
    double oddRows = 0; // how far every other row is moved to the right
    double scatter = 0; // how far a patch may be away from its place in the lattice, as a share of it: up to 0.5
    /// Each patch becomes a dot of this radius on opaque white; 0 lets them fill the plane.
    double dot = 0;
};

/// Each pixel takes the color around the middle of the nearest patch.
CIImage mosaic(const CIImage&, const Mosaic&);

} // namespace ci
