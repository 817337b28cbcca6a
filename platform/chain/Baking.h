// Turns a recipe into pixels.
#pragma once

#include "platform/coreimage/CIContext.h"

/// The bitmap that the image is, if it is nothing else: its pixels as they are stored. Null for any other recipe.
const CIBitmap* bitmapOf(const CIImage& image);

/// The image's pixels at full size, stored as `format`, or as they are stored already. A result without transparent
/// pixels is marked as opaque. Null when the extent is empty or infinite, memory runs out, or the render was
/// cancelled. Blocks while it renders; may be called from any thread.
CIBitmap renderedBitmap(
    const CIContext& context, const CIImage& image, CIFormat format, CIRenderControl* control = nullptr);

/// The same as an image of its own with its lower left corner at the origin.
CIImage bakedImage(const CIContext& context, const CIImage& image, CIFormat format, CIRenderControl* control = nullptr);

/// Makes what views ask a bitmap for first, its reduced copies, so that they need not. From any thread; blocks.
void makeReducedCopies(const CIImage& image);
