// Resizing with antialiasing, as operations on images. Values stay in linear light; the image's edge pixels are
// repeated where a window reaches beyond it, so an opaque image keeps hard edges.
#pragma once

#include "platform/coreimage/CIImage.h"

namespace ci {

/// The whole image in `width` by `height` pixels with its lower left corner at the origin, by a Lanczos window of three
/// lobes. An image without end stays as it is; a null image for a size below one pixel.
CIImage resampled(const CIImage&, int width, int height);

/// Scaled about the origin; factors that are not positive give a null image.
CIImage lanczosScaled(const CIImage&, double sx, double sy);
/// By the cubic windows of Mitchell and Netravali: b = 1, c = 0 is the B-spline, b = 0, c = 0.5 that of Catmull and
/// Rom.
CIImage cubicScaled(const CIImage&, double sx, double sy, double b, double c);
/// Each pixel the largest of the values it covers, channel by channel.
CIImage maximumScaled(const CIImage&, double sx, double sy);

} // namespace ci
