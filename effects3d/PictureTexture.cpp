#include "effects3d/PictureTexture.h"

#include "effects3d/OpenGLDevice.h"
#include "effects3d/Texture2D.h"
#include "platform/coreimage/CIContext.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace {

/// Around the widest body, a ball of 0.8 in a frame of 2, there are 2.5 times as many pixels as the frame's shorter
/// side has; a little less is not seen.
constexpr double kTexelsPerPixel = 2;

int intOf(GLenum what)
{
    GLint value = 0;
    glGetIntegerv(what, &value);
    return value;
}

QSize viewportSize()
{
    std::array<GLint, 4> viewport{};
    glGetIntegerv(GL_VIEWPORT, viewport.data());
    return {viewport[2], viewport[3]};
}

/// Texels that the picture needs along its longer side.
int sideForFrame(QSize frame)
{
    const int shorter = std::min(frame.width(), frame.height()), longer = std::max(frame.width(), frame.height());
    return std::max(int(kTexelsPerPixel * shorter), int(longer)); // flat, the picture fills the frame
}

/// How often the picture can be halved and still has `side` pixels; more often where it would be too large.
int levelFor(const CIRect& extent, int side)
{
    const double longer = std::max(extent.width, extent.height);
    const int largest = std::max(intOf(GL_MAX_TEXTURE_SIZE), 64);
    int level = 0;
    while (std::ldexp(longer, -level - 1) >= side || std::ldexp(longer, -level) > largest)
        ++level;
    return level;
}

/// Halves are what a context has at hand of a bitmap that it has shown.
CIBitmap pixelsOf(const CIImage& picture, int level)
{
    static const CIContext context;
    const CIRect extent = picture.extent();
    const double scale = std::ldexp(1, -level);
    const auto texels = [scale](double pixels) { return std::max(1, int(std::ceil(pixels * scale))); };
    CIBitmap bitmap(texels(extent.width), texels(extent.height), CIFormat::RGBA8, CIAlpha::Premultiplied);
    const bool atOrigin = extent.x == 0 && extent.y == 0;
    const CIImage moved =
        atOrigin ? picture : picture.transformed(CIAffineTransform::translation(-extent.x, -extent.y));
    context.renderInto(bitmap, 0, bitmap.height(), moved.clampedToExtent(), scale);
    return bitmap;
}

} // namespace

std::shared_ptr<PictureTexture> PictureTexture::of(const CIImage& picture, QSize frame)
{
    static std::weak_ptr<PictureTexture> last;
    const CIRect extent = picture.extent();
    if (picture.isNull() || extent.isEmpty() || extent.isInfinite())
        return {};
    const int level = levelFor(extent, sideForFrame(frame.isEmpty() ? viewportSize() : frame));
    std::shared_ptr<PictureTexture> texture = last.lock();
    if (!texture || !texture->m_picture.isSameAs(picture) || texture->m_level > level) {
        texture.reset(new PictureTexture(picture, level));
        last = texture;
    }
    return texture;
}

PictureTexture::PictureTexture(const CIImage& picture, int level)
    : m_device(OpenGLDevice::shared())
    , m_picture(picture)
    , m_level(level)
{
    const CIBitmap pixels = pixelsOf(picture, level);
    const CIPoint size{double(pixels.width()), double(pixels.height())};
    m_texture = Texture2D::initWithDataPixelFormatPixelsWidePixelsHighContentSize(
        pixels.row(0), Texture2D::PixelFormat::RGBA8888, GLuint(pixels.width()), GLuint(pixels.height()), size);
    const GLuint bound = GLuint(intOf(GL_TEXTURE_BINDING_2D));
    glBindTexture(GL_TEXTURE_2D, name());
    QOpenGLContext::currentContext()->functions()->glGenerateMipmap(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, bound);
}

PictureTexture::~PictureTexture() { m_device->makeCurrent(); }

GLuint PictureTexture::name() const { return m_texture->name(); }

void PictureTexture::bind(GLint wrap) const
{
    glBindTexture(GL_TEXTURE_2D, name());
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, wrap);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, wrap);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
}
