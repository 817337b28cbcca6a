#include "effects3d/PictureTexture.h"

#include "effects3d/OpenGLDevice.h"
#include "effects3d/Texture2D.h"
#include "platform/coreimage/CIContext.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

#include <QImage>

namespace {

/// Texels around the widest body that is drawn, a ball of 0.8 in a frame of 2: about one for each pixel at its middle.
constexpr double kTexelsPerPixel = 2.5; // times the frame's shorter side
constexpr int kLeastSide = 256;

int sideForViewport()
{
    std::array<GLint, 4> viewport{};
    glGetIntegerv(GL_VIEWPORT, viewport.data());
    GLint largest = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largest);
    const double wanted = std::max(std::min(viewport[2], viewport[3]) * kTexelsPerPixel,
        double(std::max(viewport[2], viewport[3]))); // flat, the picture fills the frame
    const auto side = unsigned(std::clamp(wanted, double(kLeastSide), 32768.0));
    return int(std::min(std::bit_ceil(side), std::bit_floor(unsigned(std::max(largest, 64)))));
}

/// A power of two that holds the picture's pixels, but no more than `most`.
int texelsFor(double pixels, int most)
{
    return int(std::bit_ceil(unsigned(std::clamp(std::ceil(pixels), 1.0, double(most)))));
}

/// The picture stretched to powers of two, of which smaller levels are made without another resampling.
QImage pixelsOf(const CIImage& picture, int side)
{
    const CIRect extent = picture.extent();
    const int width = texelsFor(extent.width, side), height = texelsFor(extent.height, side);
    const double scale = std::max(width / extent.width, height / extent.height);
    // What of the reduction is the same both ways is the context's, which has reduced copies of its bitmaps.
    CIAffineTransform stretch = CIAffineTransform::translation(-extent.x, -extent.y);
    stretch = stretch.then(CIAffineTransform::scaling(width / extent.width / scale, height / extent.height / scale));
    static const CIContext context;
    auto bitmap = std::make_unique<CIBitmap>(width, height, CIFormat::RGBA8, CIAlpha::Premultiplied);
    context.renderInto(*bitmap, 0, height, picture.clampedToExtent().transformed(stretch), scale);
    const auto* pixels = reinterpret_cast<const uchar*>(std::as_const(*bitmap).row(0));
    const auto release = [](void* kept) { delete static_cast<CIBitmap*>(kept); };
    const auto bytesPerRow = qsizetype(bitmap->bytesPerRow());
    return QImage(pixels, width, height, bytesPerRow, QImage::Format_RGBA8888_Premultiplied, release, bitmap.release());
}

} // namespace

std::shared_ptr<PictureTexture> PictureTexture::of(const CIImage& picture)
{
    static std::weak_ptr<PictureTexture> last;
    const CIRect extent = picture.extent();
    if (picture.isNull() || extent.isEmpty() || extent.isInfinite())
        return {};
    const int side = sideForViewport();
    std::shared_ptr<PictureTexture> texture = last.lock();
    if (!texture || !texture->m_picture.isSameAs(picture) || texture->m_side < side) {
        texture.reset(new PictureTexture(picture, side));
        last = texture;
    }
    return texture;
}

PictureTexture::PictureTexture(const CIImage& picture, int side)
    : m_device(OpenGLDevice::shared())
    , m_picture(picture)
    , m_side(side)
{
    glPushAttrib(GL_TEXTURE_BIT);
    glGenTextures(1, &m_name);
    glBindTexture(GL_TEXTURE_2D, m_name);
    // A texture fills the one that is bound with all levels of the picture; its own has only the first.
    Texture2D::initWithImage(pixelsOf(picture, side));
    glPopAttrib();
}

PictureTexture::~PictureTexture()
{
    if (m_device->makeCurrent())
        glDeleteTextures(1, &m_name);
}

void PictureTexture::bind(GLint wrap) const
{
    glBindTexture(GL_TEXTURE_2D, m_name);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, wrap);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, wrap);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
}
