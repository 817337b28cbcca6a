// The pictures that some filters start with.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <QString>

/// A picture of the program's that is read from its file when it is first asked for.
class DefaultImage {
public:
    /// `name` is that of a TIFF file among the resources.
    explicit DefaultImage(const char* name);

    const QString& path() const { return m_path; } // empty when there is no such file
    /// Null when the file can't be read; the next call tries again.
    CIImage image();

private:
    QString m_path;
    CIImage m_image;
};
