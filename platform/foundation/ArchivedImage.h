// The pixels of an image in an archive.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <QCborMap>

/// Place and packed pixels. Throws ArchiveError for images without an end or without memory for them.
QCborMap archivedImage(const CIImage& image);
/// Throws ArchiveError when the entries don't fit together.
CIImage unarchivedImage(const QCborMap& map);
