#include "app/catalogue/DefaultImages.h"

#include "platform/foundation/ResourcePaths.h"
#include "platform/imageio/PictureReader.h"

#include <QFile>

DefaultImage::DefaultImage(const char* name)
    : m_path(pathForResource(QLatin1String(name), QStringLiteral("tiff")))
{
}

CIImage DefaultImage::image()
{
    if (!m_image && !m_path.isEmpty()) {
        const Result<CIBitmap> read = readPicture(QFile::encodeName(m_path).toStdString());
        if (read) // the reader logs its failures
            m_image = CIImage::fromBitmap(read.value());
    }
    return m_image;
}
