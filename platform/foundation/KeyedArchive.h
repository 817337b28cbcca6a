// Values as bytes that say themselves what they are.
#pragma once

#include "platform/coreimage/CIValue.h"

#include <QByteArray>

#include <stdexcept>

/// Why a value could not be archived, or bytes not be read.
class ArchiveError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Archives are CBOR. Every value comes back as it was, numbers and strings as well as pictures: bitmaps keep their
/// pixel format, and the pixels of other images are stored in the smallest format that holds them without loss.
///
/// Bytes may come from anywhere: damage and foreign data are found, never believed.
class KeyedArchive {
public:
    /// Throws ArchiveError for images without an end, or when there is no memory for their pixels.
    static QByteArray archivedData(const CIValue& value);
    /// Throws ArchiveError when the bytes are no archive.
    static CIValue unarchivedValue(const QByteArray& data);
};
