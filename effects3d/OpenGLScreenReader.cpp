#include "effects3d/OpenGLScreenReader.h"

#include "effects3d/OpenGL.h"
#include "platform/imageio/PictureWriter.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QStandardPaths>

namespace {

Q_LOGGING_CATEGORY(readerLog, "lumivex")

QSize viewportSize()
{
    std::array<GLint, 4> viewport{};
    glGetIntegerv(GL_VIEWPORT, viewport.data());
    return {viewport[2], viewport[3]};
}

void check(bool holds, const char* message)
{
    if (!holds)
        throw OpenGLScreenReader::Failure(message);
}

/// The bitmap with an owner of its own, as files are written from.
CIBitmap bitmapOf(const QImage& image)
{
    return CIBitmap(image.constBits(), image.width(), image.height(), std::size_t(image.bytesPerLine()),
        CIFormat::BGRA8, CIAlpha::Premultiplied, CIColorSpace::SRGB, std::make_shared<const QImage>(image));
}

} // namespace

OpenGLScreenReader::OpenGLScreenReader()
    : OpenGLScreenReader(viewportSize())
{
}

OpenGLScreenReader::OpenGLScreenReader(QSize size)
    : m_size(size.expandedTo({0, 0}))
    , m_bytesPerRow(std::size_t(m_size.width()) * 4)
    , m_buffer(static_cast<std::uint32_t*>(std::calloc(std::size_t(m_size.height()) + 1, m_bytesPerRow + 4)))
{
    check(m_buffer != nullptr, "malloc failed");
}

void OpenGLScreenReader::readPartialScreenToBufferBufferHeightBufferBaseAddress(int width, int height, void* base)
{
    while (glGetError() != GL_NO_ERROR) { } // older ones are not about the reading
    GLint boundFrame = 0;
    glGetIntegerv(GL_FRAMEBUFFER_BINDING, &boundFrame);
    if (boundFrame == 0)
        glReadBuffer(GL_FRONT);
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    glPixelStorei(GL_PACK_ALIGNMENT, 4);
    glPixelStorei(GL_PACK_ROW_LENGTH, 0);
    glPixelStorei(GL_PACK_SKIP_ROWS, 0);
    glPixelStorei(GL_PACK_SKIP_PIXELS, 0);
    glReadPixels(0, 0, width, height, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, base);
    glPopClientAttrib();
    if (const GLenum error = glGetError(); error != GL_NO_ERROR) {
        std::array<char, 32> message{};
        std::snprintf(message.data(), message.size(), "OpenGL error 0x%04X", error);
        throw Failure(message.data());
    }
}

void OpenGLScreenReader::readFullScreenToBuffer()
{
    readPartialScreenToBufferBufferHeightBufferBaseAddress(m_size.width(), m_size.height(), m_buffer.get());
}

void OpenGLScreenReader::flipImageData()
{
    const auto width = std::size_t(m_size.width());
    for (int top = 0, bottom = m_size.height() - 1; top < bottom; ++top, --bottom) {
        std::uint32_t* upper = m_buffer.get() + std::size_t(top) * width;
        std::swap_ranges(upper, upper + width, m_buffer.get() + std::size_t(bottom) * width);
    }
}

QImage OpenGLScreenReader::createRGBAImageFromBufferData() const
{
    const QImage shared(reinterpret_cast<const uchar*>(m_buffer.get()), m_size.width(), m_size.height(),
        qsizetype(m_bytesPerRow), QImage::Format_ARGB32_Premultiplied);
    QImage image = shared.copy();
    check(m_size.isEmpty() || !image.isNull(), "CGBitmapContextCreate failure");
    return image;
}

QImage OpenGLScreenReader::createRGBImageFromBufferData() const
{
    return createRGBAImageFromBufferData().convertToFormat(QImage::Format_RGB32);
}

QImage OpenGLScreenReader::createNSImage()
{
    readFullScreenToBuffer();
    flipImageData();
    return createRGBAImageFromBufferData();
}

QImage OpenGLScreenReader::imageFromCGImageRefSizeMode(const QImage& image, QSize size, Qt::AspectRatioMode mode)
{
    return image.scaled(size, mode, Qt::SmoothTransformation);
}

void OpenGLScreenReader::createTIFFImageFile(const QString& path)
{
    flipImageData();
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    const QString file = path.isEmpty() ? QDir(desktop).filePath(QStringLiteral("ScreenSnapshot.tiff")) : path;
    check(!m_size.isEmpty(), "cgImageFromPixelBuffer failed");
    const std::string name = QFile::encodeName(file).toStdString();
    const auto written = writePicture(bitmapOf(createRGBAImageFromBufferData()), name, {.format = PictureFormat::Tiff});
    if (!written) {
        qCWarning(readerLog, "%s", written.message().c_str());
        throw Failure("Image could not be written successfully");
    }
}
