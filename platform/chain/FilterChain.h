// From the picture and a filter to what is shown: the rules, without a window.
#pragma once

#include "platform/coreimage/CIFilter.h"
#include "platform/coreimage/CIImage.h"

#include <vector>

/// The key of the input that receives the picture: "inputBackgroundImage" where the filter has such an image input,
/// else "inputImage" (also when it has neither).
const char* pictureKey(const CIFilter& filter);

/// Puts the picture into every image input.
void setupAllImageInputsToNotNil(CIFilter& filter, const CIImage& picture);

/// Gives the filter the values that suit the picture (`ci::fittedValues`). The input that receives the picture is left
/// as it is, and so are pictures that depend on the editor, and pictures and texts that the user has given it.
void fitToPicture(CIFilter& filter, const CIImage& picture);

/// True if an image input other than the one that receives the picture is empty.
bool filterHasMissingImage(const CIFilter& filter);

/// What the filter makes of the picture. Filters without an "inputImage" (generators, gradients) lie over it; a
/// result more than 1.3 times as wide and as high as the picture is cut to the picture. Layers lie where `Layers.h`
/// says. `viewSize` is given to filters that ask for an extent (picture pixels). May be null.
///
/// The input that receives the picture and "inputExtent" are set in `filter` on the way.
CIImage filteredPicture(CIFilter& filter, const CIImage& picture, CIPoint viewSize);

/// True if the result reaches beyond the picture, as that of a blur does. Filters that change the geometry are to.
bool isLargerThanPicture(const CIFilter& filter, const CIImage& result, const CIImage& picture);
/// The same as `filteredPicture`, in the picture's frame if it would be larger: the picture's edges then go on without
/// end, and don't become transparent.
CIImage filteredPictureOfSameSize(CIFilter& filter, const CIImage& picture, CIPoint viewSize);

/// Each layer over those before it; null without layers.
CIImage foldedLayers(const std::vector<CIImage>& layers);

/// The image over opaque black, or black alone.
CIImage overBlack(const CIImage& image);
