// The source picture as a texture.
#pragma once

#include "effects3d/OpenGL.h"
#include "platform/coreimage/CIImage.h"

#include <QSize>

#include <memory>

class OpenGLDevice;
class Texture2D;

/// The whole picture with its smaller levels, t = 0 at the top, premultiplied sRGB. Only as large as the frame that
/// is drawn needs it, and made once for all who draw the same picture. Main thread only.
class PictureTexture {
public:
    ~PictureTexture();
    PictureTexture(const PictureTexture&) = delete;
    PictureTexture& operator=(const PictureTexture&) = delete;

    /// To be called while drawing: the context is current and the viewport set. The one before is answered again as
    /// long as it is of the same picture and fine enough. Null when there is no picture, or one without an end.
    /// `frame` is what is drawn in the end, in pixels, if it isn't the viewport.
    static std::shared_ptr<PictureTexture> of(const CIImage& picture, QSize frame = {});

    GLuint name() const;
    /// For drawing; beyond the picture it is repeated, or its edge is.
    void bind(GLint wrap = GL_REPEAT) const;

private:
    PictureTexture(const CIImage& picture, int level);

    std::shared_ptr<OpenGLDevice> m_device;
    CIImage m_picture;
    int m_level; // how often the picture was halved
    std::unique_ptr<Texture2D> m_texture;
};
