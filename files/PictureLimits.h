// How large a picture may become on this computer.
#pragma once

#include "platform/coreimage/CIBitmap.h"
#include "platform/foundation/PhysicalMemory.h"

#include <QSize>

#include <cstdint>
#include <optional>

/// Rounded to whole pixels, at least one each way. Nothing for values that are no size at all.
std::optional<QSize> pixelSize(float width, float height);

/// The most pixels of a picture that is stored as `format`: a resized picture and the one it comes from take half the
/// memory at most, and readers refuse more than 500 million.
std::int64_t largestPixelCount(CIFormat format);
bool fitsIntoMemory(QSize size, CIFormat format);
