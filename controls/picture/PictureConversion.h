// Between the engine's images and Qt's.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <QImage>
#include <QSize>

/// The longer side of an image in a well, in pixels.
inline constexpr int kThumbnailSide = 64;

/// An image of the picture's pixels at one pixel a point, in sRGB. Pictures of three bytes a pixel are opaque; all
/// others are taken at four 8-bit channels. Null for a null picture.
CIImage imageOfPicture(const QImage& picture);

/// The pixels of `rect` (picture pixels, y up), `rect` rounded to whole pixels in size. Null when there are none. At a
/// scale below 1 there are as many pixels as the reduced rectangle touches; the lower left corner is that of `rect`.
QImage pictureOfImage(const CIImage& image, const CIRect& rect, double scale = 1);

/// `extent` shrunk or enlarged so that its longer side is `kThumbnailSide`; the shorter one is at least 1.
QSize thumbnailSize(const CIRect& extent);
/// The whole image at that size; null for images without an end.
QImage thumbnailOf(const CIImage& image);
