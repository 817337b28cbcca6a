// Blurs as operations on images, for filters to build on. Outside an image all is transparent: clamp it first and
// crop afterwards where the rim should stay sharp.
#pragma once

#include "platform/coreimage/CIImage.h"

namespace ci {

/// A Gaussian of standard deviation `sigma` picture pixels; the extent grows by three sigma and a pixel. Sigmas
/// beyond 2000 px count as that.
CIImage gaussianBlur(const CIImage&, double sigma);
/// The same for pictures: nothing shines in from beyond the rim, and the extent stays as it is.
CIImage blurredWithin(const CIImage&, double sigma);
/// The mean of `width` by `height` picture pixels around each pixel.
CIImage boxBlur(const CIImage&, double width, double height);

} // namespace ci
