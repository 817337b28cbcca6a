// The little pictures of favourites.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <QByteArray>
#include <QImage>

/// Points.
inline constexpr QSize kFavouriteThumbnail(40, 25);

/// The whole image stretched to 40 x 25 points, at two pixels a point. Null for a null image or one without an end.
QImage favouriteThumbnail(const CIImage& image);
/// The same of a picture.
QImage favouriteThumbnail(const QImage& picture);
/// A bitmap stretched to so many points. Null for a null one.
QImage thumbnailOf(const CIBitmap& bitmap, const QSize& points, int pixelsPerPoint);

/// A thumbnail as the bytes of a TIFF file; empty when there is none.
QByteArray tiffOfThumbnail(const QImage& thumbnail);
/// Null when the bytes are no picture.
QImage thumbnailOfTiff(const QByteArray& bytes);
