// Writes finished pictures: one-page PDF documents, and files of a given type with a resolution.
#pragma once

#include "platform/coreimage/CIBitmap.h"
#include "platform/coreimage/CIContext.h"
#include "platform/imageio/Result.h"

#include <QSizeF>
#include <QTransform>

#include <vector>

/// A PDF whose page is as many points wide and high as the picture has pixels. No detail is lost. May be called from
/// any thread.
Result<std::vector<std::byte>> encodePdf(const CIBitmap& picture);
/// The file appears under its name only when it is complete.
Result<void> writePdf(const CIBitmap& picture, const QString& path, CIRenderControl* control = nullptr);

/// Uniformly scaled so that a picture of `picture` pixels just fits into `view`.
QTransform imageTransformToFitViewSize(QSizeF picture, QSizeF view);

/// The whole picture in a square of `side` pixels, in the middle, the rest transparent. Null for a null picture.
CIBitmap scaleImageSize(const CIBitmap& picture, int side);

/// Writes one picture with its resolution stored; icon types get the largest icon that the picture fills.
/// False when the type isn't known or the file can't be written.
bool export1PathTypeDpi(const CIBitmap& picture, const QString& path, const QString& typeIdentifier, float dpi);
