// Images whose recipe needs numbers taken from another image as a whole: a threshold, a palette, a mean.
#pragma once

#include "platform/coreimage/CIImage.h"
#include "platform/coreimage/graph/Interleaved.h"

#include <functional>

namespace ci {

/// Makes the recipe from what was measured. `pixels` has a transparent rim around the image.
using MeasuredRecipe = std::function<CIImage(const InterleavedView& pixels, const Grid&)>;

/// The image that `recipe` makes, once, before the first render. It sees `subject` halved until that has at most
/// `mostCells` cells, whatever the scale of the render. Null when `subject` is empty or infinite.
CIImage measured(const CIImage& subject, double mostCells, const CIRect& extent, MeasuredRecipe recipe);

} // namespace ci
