#include "effects3d/OpenGLDevice.h"

#include "effects3d/OpenGL.h"

#include <algorithm>

#include <QLoggingCategory>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>

namespace {

Q_LOGGING_CATEGORY(openGLLog, "lumivex")

constexpr int kMostSamples = 4; // more are hardly seen and cost time where the processor draws

QSurfaceFormat compatibilityFormat()
{
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(2, 1);
    format.setProfile(QSurfaceFormat::NoProfile);
    return format;
}

} // namespace

std::shared_ptr<OpenGLDevice> OpenGLDevice::shared()
{
    static std::weak_ptr<OpenGLDevice> kept;
    std::shared_ptr<OpenGLDevice> device = kept.lock();
    if (!device) {
        device.reset(new OpenGLDevice);
        kept = device;
    }
    return device;
}

OpenGLDevice::OpenGLDevice()
    : m_surface(std::make_unique<QOffscreenSurface>())
    , m_context(std::make_unique<QOpenGLContext>())
{
    m_context->setFormat(compatibilityFormat());
    if (m_context->create()) {
        m_surface->setFormat(m_context->format());
        m_surface->create();
        m_usable = m_context->makeCurrent(m_surface.get()) && offersWhatWeNeed();
    }
    if (!m_usable) {
        qCInfo(openGLLog, "no usable OpenGL: 3D effects are off");
        return;
    }
    const bool multisampling = QOpenGLFramebufferObject::hasOpenGLFramebufferBlit()
        && (m_context->format().majorVersion() >= 3
            || m_context->hasExtension(QByteArrayLiteral("GL_EXT_framebuffer_multisample")));
    if (multisampling) {
        glGetIntegerv(GL_MAX_SAMPLES, &m_samples);
        m_samples = std::clamp(m_samples, 0, kMostSamples);
    }
}

OpenGLDevice::~OpenGLDevice() { m_context->doneCurrent(); }

bool OpenGLDevice::offersWhatWeNeed() const
{
    const QSurfaceFormat format = m_context->format();
    return !m_context->isOpenGLES() && format.profile() != QSurfaceFormat::CoreProfile
        && format.version() >= std::pair(2, 1) && QOpenGLFramebufferObject::hasOpenGLFramebufferObjects();
}

bool OpenGLDevice::makeCurrent() { return m_usable && m_context->makeCurrent(m_surface.get()); }
