// Pixels that wait on the disk.
#pragma once

#include "platform/coreimage/CIBitmap.h"

#include <QString>
#include <QTemporaryFile>

#include <memory>

/// A bitmap in a file of its own, compressed without loss. The file has no name where the system allows that: it goes
/// away with the object, and even when the program is killed.
class StoredBitmap {
public:
    /// Null, with the reason logged, when the folder can't be written to or is full. The folder is made if need be.
    static std::unique_ptr<StoredBitmap> write(const CIBitmap& bitmap, const QString& folder);

    /// The same pixels. A null bitmap when the file is damaged. Throws std::bad_alloc when there is no room.
    CIBitmap read();

    qint64 fileSize() const { return m_file.size(); }

private:
    explicit StoredBitmap(const QString& folder);
    bool store(const CIBitmap& bitmap);

    QTemporaryFile m_file;
};
