#include "app/modes/DefaultImages.h"

#include "platform/imageio/PictureReader.h"

#include <QFile>

CIImage DefaultImage::image()
{
    if (!m_image && !m_path.isEmpty()) {
        const Result<CIBitmap> read = readPicture(QFile::encodeName(m_path).toStdString());
        if (read) // the reader logs its failures
            m_image = CIImage::fromBitmap(read.value());
    }
    return m_image;
}
