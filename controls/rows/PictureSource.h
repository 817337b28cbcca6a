// Where picture files come from.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <optional>

#include <QStringList>

/// In tests, a small fake. Everything is called on the main thread.
class PictureSource {
public:
    virtual ~PictureSource() = default;

    /// Reads a picture file beside the living window. Null when it is no readable picture, nothing at all when the user
    /// stopped it.
    virtual std::optional<CIImage> readImage(const QString& path) = 0;
    /// Tells the user that the file could not be read, without asking for an answer.
    virtual void showReadFailure(const QString& path) = 0;
    /// For open panels: "Pictures (*.png …)" and the like.
    virtual QStringList pictureNameFilters() = 0;
};
