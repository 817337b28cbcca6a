// Turns a recipe into pixels.
#pragma once

#include "platform/coreimage/CIContext.h"

/// The image's pixels at full size as an image of its own with its lower left corner at the origin, stored as
/// `format`. An image without transparent pixels is marked as opaque. Null when the extent is empty or infinite or
/// memory runs out. Blocks while it renders.
CIImage bakedImage(const CIContext& context, const CIImage& image, CIFormat format);
