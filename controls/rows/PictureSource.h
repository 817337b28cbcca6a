// Where picture files come from.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <functional>

#include <QStringList>

/// In tests, a small fake. Everything is called on the main thread.
class PictureSource {
public:
    virtual ~PictureSource() = default;

    /// Reads a picture file beside the living window and then calls `take`, with null when it is no readable picture.
    /// Calls nothing when the user stops it, or when something else is going on.
    virtual void readImage(const QString& path, std::function<void(const CIImage&)> take) = 0;
    /// Tells the user that the file could not be read, without asking for an answer.
    virtual void showReadFailure(const QString& path) = 0;
    /// For open panels: "Pictures (*.png …)" and the like.
    virtual QStringList pictureNameFilters() = 0;
};
