// Operations on images that the engine itself needs, built on kernels.
#pragma once

#include "platform/coreimage/CIImage.h"

namespace ci {

/// The image seen through an affine transform, sampled linearly. A transform that flattens it gives a null image.
CIImage affine(const CIImage&, const CIAffineTransform&);
CIImage sourceOver(const CIImage& image, const CIImage& background);

} // namespace ci
