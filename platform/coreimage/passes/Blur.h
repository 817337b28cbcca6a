// Blurs as operations on images, for filters to build on. Outside an image all is transparent: clamp it first and
// crop afterwards where the rim should stay sharp.
#pragma once

#include "platform/coreimage/CIImage.h"

namespace ci {

/// A Gaussian of standard deviation `sigma` picture pixels; the extent grows by three sigma and a pixel.
CIImage gaussianBlur(const CIImage&, double sigma);
/// The mean of `width` by `height` picture pixels around each pixel.
CIImage boxBlur(const CIImage&, double width, double height);

} // namespace ci
