// Greatest and least values around each pixel, for filters to build on. Outside an image all is transparent black.
#pragma once

#include "platform/coreimage/CIImage.h"

namespace ci {

enum class Extreme { Greatest, Least };

/// Of each component, within `width` by `height` picture pixels around each pixel; even lengths act as the next odd
/// one. The greatest values reach beyond the extent, which grows accordingly.
CIImage extremeOfRectangle(const CIImage&, Extreme, double width, double height);
/// The same within a disc: all pixels whose centers are `radius` picture pixels away or less.
CIImage extremeOfDisc(const CIImage&, Extreme, double radius);
/// The median of the 3 by 3 pixels around each pixel, of each component.
CIImage medianOfNine(const CIImage&);

} // namespace ci
