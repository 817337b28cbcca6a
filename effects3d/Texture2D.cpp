#include "effects3d/Texture2D.h"

#include <cstring>
#include <stdexcept>
#include <vector>

#include <QColorSpace>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(textureLog, "lumivex")

Texture2D::TexParameters parameters;
Texture2D::TexParameters savedParameters;

Texture2D::PixelFormat formatFor(const QImage& image)
{
    const QImage::Format format = image.format();
    const bool grey = format == QImage::Format_Grayscale8 || format == QImage::Format_Grayscale16;
    if (format == QImage::Format_Alpha8 || (grey && !image.colorSpace().isValid()))
        return Texture2D::PixelFormat::A8;
    const bool coarse = format == QImage::Format_RGB16 || format == QImage::Format_RGB555
        || format == QImage::Format_RGB444 || format == QImage::Format_RGB666;
    return coarse ? Texture2D::PixelFormat::RGB565 : Texture2D::PixelFormat::RGBA8888;
}

QImage asAlpha(const QImage& image)
{
    QImage alpha = image.format() == QImage::Format_Alpha8 ? image : image.convertToFormat(QImage::Format_Grayscale8);
    alpha.reinterpretAsFormat(QImage::Format_Alpha8);
    return alpha;
}

/// In the layout that OpenGL takes, rows filled up to four bytes.
QImage converted(const QImage& image, Texture2D::PixelFormat format)
{
    switch (format) {
    case Texture2D::PixelFormat::RGB565:
        return image.convertToFormat(QImage::Format_RGB16);
    case Texture2D::PixelFormat::A8:
        return asAlpha(image);
    case Texture2D::PixelFormat::RGBA8888:
        break;
    }
    return image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
}

/// The bytes are taken for RGBA whatever they are. Only those of RGBA8888 make sense so, and all colors of 8 bits are
/// that; of the other formats there are fewer bytes than are read, and zeros follow them.
void buildMipmapsOfBoundTexture(const QImage& pixels)
{
    const auto wanted = std::size_t(pixels.width()) * std::size_t(pixels.height()) * 4;
    const auto present = std::size_t(pixels.sizeInBytes());
    const void* bytes = pixels.constBits();
    std::vector<unsigned char> filled;
    if (present < wanted) {
        filled.resize(wanted);
        std::memcpy(filled.data(), bytes, present);
        bytes = filled.data();
    }
    gluBuild2DMipmaps(GL_TEXTURE_2D, 4, pixels.width(), pixels.height(), GL_RGBA, GL_UNSIGNED_BYTE, bytes);
}

} // namespace

std::unique_ptr<Texture2D> Texture2D::initWithDataPixelFormatPixelsWidePixelsHighContentSize(
    const void* data, PixelFormat format, GLuint pixelsWide, GLuint pixelsHigh, CIPoint contentSize)
{
    struct Upload {
        GLint internal;
        GLenum external, type;
    };
    const auto upload = [format]() -> Upload {
        switch (format) {
        case PixelFormat::RGBA8888:
            return {GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE};
        case PixelFormat::RGB565:
            return {GL_RGB, GL_RGB, GL_UNSIGNED_SHORT_5_6_5};
        case PixelFormat::A8:
            return {GL_ALPHA, GL_ALPHA, GL_UNSIGNED_BYTE};
        }
        throw std::logic_error("");
    }();

    std::unique_ptr<Texture2D> texture(new Texture2D);
    texture->m_contentSize = contentSize;
    texture->m_pixelsWide = pixelsWide;
    texture->m_pixelsHigh = pixelsHigh;
    texture->m_pixelFormat = format;
    texture->m_maxS = float(contentSize.x / pixelsWide);
    texture->m_maxT = float(contentSize.y / pixelsHigh);

    GLint bound = 0;
    glGetIntegerv(GL_TEXTURE_BINDING_2D, &bound);
    glGenTextures(1, &texture->m_name);
    glBindTexture(GL_TEXTURE_2D, texture->m_name);
    applyTexParameters();
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    glTexImage2D(GL_TEXTURE_2D, 0, upload.internal, GLsizei(pixelsWide), GLsizei(pixelsHigh), 0, upload.external,
        upload.type, data);
    glBindTexture(GL_TEXTURE_2D, GLuint(bound));
    return texture;
}

std::unique_ptr<Texture2D> Texture2D::initWithImage(const QImage& image)
{
    if (image.isNull()) {
        qCInfo(textureLog, "Image is Null");
        return {};
    }
    const PixelFormat format = formatFor(image);
    const QImage pixels = converted(image, format);
    std::unique_ptr<Texture2D> texture = initWithDataPixelFormatPixelsWidePixelsHighContentSize(pixels.constBits(),
        format, GLuint(pixels.width()), GLuint(pixels.height()), {double(pixels.width()), double(pixels.height())});
    buildMipmapsOfBoundTexture(pixels);
    return texture;
}

Texture2D::~Texture2D() { glDeleteTextures(1, &m_name); }

std::string Texture2D::description() const
{
    return "<Texture2D | Name = " + std::to_string(m_name) + " | Dimensions = " + std::to_string(m_pixelsWide) + "x"
        + std::to_string(m_pixelsHigh) + " | Coordinates = (" + std::to_string(m_maxS) + ", " + std::to_string(m_maxT)
        + ")>";
}

void Texture2D::drawAtPoint(CIPoint point) const { drawInRect({point.x, point.y, m_contentSize.x, m_contentSize.y}); }

void Texture2D::drawInRect(const CIRect& rect) const
{
    glBindTexture(GL_TEXTURE_2D, m_name);
    glBegin(GL_QUADS);
    glTexCoord2f(0, m_maxT);
    glVertex2d(rect.left(), rect.bottom());
    glTexCoord2f(m_maxS, m_maxT);
    glVertex2d(rect.right(), rect.bottom());
    glTexCoord2f(m_maxS, 0);
    glVertex2d(rect.right(), rect.top());
    glTexCoord2f(0, 0);
    glVertex2d(rect.left(), rect.top());
    glEnd();
}

void Texture2D::setTexParameters(const TexParameters& newParameters) { parameters = newParameters; }

Texture2D::TexParameters Texture2D::texParameters() { return parameters; }

void Texture2D::applyTexParameters()
{
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, parameters.minFilter);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, parameters.magFilter);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, parameters.wrapS);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, parameters.wrapT);
}

void Texture2D::saveTexParameters() { savedParameters = parameters; }

void Texture2D::restoreTexParameters() { parameters = savedParameters; }

void Texture2D::setAliasTexParameters() { parameters.minFilter = parameters.magFilter = GL_NEAREST; }

void Texture2D::setAntiAliasTexParameters() { parameters.minFilter = parameters.magFilter = GL_LINEAR; }
