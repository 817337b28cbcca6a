// Pictures whose pixels change places, or are left out.
#pragma once

#include "platform/coreimage/CIImage.h"

/// Turned by a quarter, counter-clockwise when `left`, with the lower left corner at the origin. The pixels of bitmaps
/// only change places: nothing is lost. Null for an image without end.
CIImage rotatedPicture(const CIImage& picture, bool left);

/// Upside down when `vertical`, else with left and right exchanged.
CIImage flippedPicture(const CIImage& picture, bool vertical);

/// What lies in `rect`, of whole pixels and inside the picture, with its lower left corner at the origin. The pixels of
/// bitmaps are copied as they are stored.
CIImage croppedPicture(const CIImage& picture, const CIRect& rect);
