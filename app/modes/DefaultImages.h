// The pictures that some filters start with.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <QString>

/// A picture that is read from its file when it is first asked for.
class DefaultImage {
public:
    void setPath(const QString& path) { m_path = path; }
    const QString& path() const { return m_path; }
    /// Null when the file can't be read; the next call tries again.
    CIImage image();

private:
    QString m_path;
    CIImage m_image;
};
