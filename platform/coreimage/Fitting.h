// Values that suit a picture of any size.
#pragma once

#include "platform/coreimage/CIFilter.h"

namespace ci {

/// Values under which the filter shows on that picture what it is for, whatever the picture's size: places and areas at
/// the same parts of it, distances at the same part of its shorter side, a second picture unlike the first. On 300 x
/// 300 pixels, for which standard values are made, these are the standard values wherever they tell something.
///
/// Left out are inputs without any value, and pictures of the editor's own (`Automatic`). "inputImage" and
/// "inputBackgroundImage" are given as second pictures: who knows which of them receives the picture sets it after.
/// Empty for a picture whose extent is empty or infinite.
CIDictionary fittedValues(const CIFilter& filter, const CIImage& picture);

/// How much larger the input's values are on a picture of that extent than standard ones; 1 for what doesn't grow.
double fittedGrowth(const CIFilter& filter, const CIInputAttributes& input, const CIRect& extent);

} // namespace ci
