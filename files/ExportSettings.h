// How a picture is exported: the format's options, the size, what the file says about itself.
#pragma once

#include "platform/imageio/PictureWriter.h"

#include <QSize>

enum class KeptMetadata { All, AllButPlace, None };

struct ExportSettings {
    WriteOptions options; // without metadata and control
    KeptMetadata metadata = KeptMetadata::All;
    QSize size; // px

    /// As they were when the format was last used; the standard ones before that. The size is not remembered.
    static ExportSettings remembered(PictureFormat format);
    void remember() const;
    static void forgetAll();
    /// Of the last export; JPEG before that.
    static PictureFormat lastFormat();
};

/// The picture in the size of the settings; for icon formats the square that is stored. Null when it can't be made.
CIBitmap bitmapToExport(const CIBitmap& picture, const ExportSettings& settings);

/// The bytes of the file. `metadata` may be null. May be called from any thread, and runs out of memory with a
/// failure.
Result<std::vector<std::byte>> encodeExport(const CIBitmap& toExport, const ExportSettings& settings,
    const std::shared_ptr<const PictureMetadata>& metadata, CIRenderControl* control);
