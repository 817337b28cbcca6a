// An OpenGL texture.
#pragma once

#include "effects3d/OpenGL.h"
#include "platform/coreimage/CIGeometry.h"

#include <memory>
#include <string>

#include <QImage>

/// A two-dimensional texture, deleted in OpenGL together with this object. A context must be current in all calls and
/// at the end.
class Texture2D {
public:
    enum class PixelFormat {
        RGBA8888 = 1,
        RGB565 = 2,
        A8 = 3,
    };
    struct TexParameters {
        GLint minFilter = GL_LINEAR, magFilter = GL_LINEAR, wrapS = GL_REPEAT, wrapT = GL_REPEAT;
        bool operator==(const TexParameters&) const = default;
    };

    /// From `pixelsHigh` rows of `pixelsWide` pixels, each row filled up to four bytes. The picture takes
    /// `contentSize` of them, in pixels. What was bound stays bound. Another format throws std::logic_error.
    static std::unique_ptr<Texture2D> initWithDataPixelFormatPixelsWidePixelsHighContentSize(
        const void* data, PixelFormat format, GLuint pixelsWide, GLuint pixelsHigh, CIPoint contentSize);
    /// From a picture: colors of at least 8 bits, or with alpha, as RGBA8888 (premultiplied), colors of fewer bits as
    /// RGB565, grey or alpha without a color space as A8. Row 0 of the picture has t = 0. Null for a null picture.
    ///
    /// Also gives the texture that is bound the picture with all its smaller levels.
    static std::unique_ptr<Texture2D> initWithImage(const QImage& image);

    ~Texture2D();
    Texture2D(const Texture2D&) = delete;
    Texture2D& operator=(const Texture2D&) = delete;

    GLuint name() const { return m_name; }
    CIPoint contentSize() const { return m_contentSize; } // width and height
    PixelFormat pixelFormat() const { return m_pixelFormat; }
    GLuint pixelsWide() const { return m_pixelsWide; }
    GLuint pixelsHigh() const { return m_pixelsHigh; }
    float maxS() const { return m_maxS; } // where the picture ends in the texture, 1 for all of it
    float maxT() const { return m_maxT; }
    std::string description() const;

    /// Upright, one pixel a unit, its lower left corner at `point`.
    void drawAtPoint(CIPoint point) const;
    /// Upright, stretched over `rect`.
    void drawInRect(const CIRect& rect) const;

    // What textures made from now on get
    static void setTexParameters(const TexParameters& parameters);
    static TexParameters texParameters();
    static void applyTexParameters(); // to the texture that is bound
    static void saveTexParameters();
    static void restoreTexParameters();
    static void setAliasTexParameters(); // sharp pixels
    static void setAntiAliasTexParameters();

private:
    Texture2D() = default;

    GLuint m_name = 0;
    CIPoint m_contentSize;
    GLuint m_pixelsWide = 0, m_pixelsHigh = 0;
    PixelFormat m_pixelFormat = PixelFormat::RGBA8888;
    float m_maxS = 1, m_maxT = 1;
};
