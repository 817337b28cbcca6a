// Turns a recipe into pixels.
#pragma once

#include "platform/coreimage/CIContext.h"

/// The bitmap that the image is, if it is nothing else: its pixels as they are stored. Null for any other recipe.
const CIBitmap* bitmapOf(const CIImage& image);

/// How a picture's pixels are stored: floats in linear sRGB, whatever the space.
struct StoredForm {
    StoredForm(CIFormat stored, CIColorSpace colors = CIColorSpace::SRGB)
        : format(stored)
        , space(stored == CIFormat::RGBAf ? CIColorSpace::LinearSRGB : colors)
    {
    }
    CIFormat format;
    CIColorSpace space;
};

/// For what becomes of a picture: as deep as `format`, and in the picture's own colors if they have a profile.
StoredForm storedLike(const CIImage& picture, CIFormat format);
StoredForm storedLike(const CIBitmap& picture);

/// The image's pixels at full size, stored in that form, or as they are stored already. A result without transparent
/// pixels is marked as opaque. Null when the extent is empty or infinite, memory runs out, or the render was
/// cancelled. Blocks while it renders; may be called from any thread.
CIBitmap renderedBitmap(
    const CIContext& context, const CIImage& image, const StoredForm& form, CIRenderControl* control = nullptr);

/// The same as an image of its own with its lower left corner at the origin.
CIImage bakedImage(
    const CIContext& context, const CIImage& image, const StoredForm& form, CIRenderControl* control = nullptr);

/// Makes what views ask a bitmap for first, its reduced copies, so that they need not. From any thread; blocks.
void makeReducedCopies(const CIImage& image);
