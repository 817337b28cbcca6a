// Bitmaps as Qt's pictures.
#pragma once

#include "platform/coreimage/CIBitmap.h"

#include <QImage>

/// Eight bits a component, sRGB, straight alpha; shares the pixels where they are so already.
CIBitmap plainBitmap(const CIBitmap& picture);

/// Shows the pixels of a plain bitmap, which has to outlive it.
QImage pictureOver(const CIBitmap& plain);

/// A picture of its own; null for a null bitmap.
QImage screenPicture(const CIBitmap& picture);
