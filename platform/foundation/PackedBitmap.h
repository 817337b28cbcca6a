// Pixels packed without loss.
#pragma once

#include "platform/coreimage/CIBitmap.h"

#include <QIODevice>

#include <atomic>

/// Appends the bitmap: its size and kind, then its rows, compressed about as fast as a disk writes, with checksums.
/// False when the device takes no more, or once `stop` is set. Needs little memory of its own.
bool packBitmap(const CIBitmap& bitmap, QIODevice& device, const std::atomic<bool>* stop = nullptr);

/// The same pixels. A null bitmap for damaged or foreign bytes, and for more than `maxPixels`. Throws std::bad_alloc
/// when there is no room.
CIBitmap unpackBitmap(QIODevice& device, std::int64_t maxPixels);
