#include "effects3d/OpenGLFrame.h"

#include "effects3d/OpenGL.h"
#include "effects3d/OpenGLDevice.h"
#include "effects3d/OpenGLScreenReader.h"

#include <QLoggingCategory>
#include <QOpenGLFramebufferObject>

namespace {

Q_LOGGING_CATEGORY(openGLFrameLog, "lumivex")

std::unique_ptr<QOpenGLFramebufferObject> newBuffer(QSize pixels, int samples, bool depth)
{
    QOpenGLFramebufferObjectFormat format;
    format.setInternalTextureFormat(GL_RGBA8);
    format.setSamples(samples);
    format.setAttachment(depth ? QOpenGLFramebufferObject::Depth : QOpenGLFramebufferObject::NoAttachment);
    auto buffer = std::make_unique<QOpenGLFramebufferObject>(pixels, format);
    if (!buffer->isValid())
        buffer.reset();
    return buffer;
}

} // namespace

OpenGLFrame::OpenGLFrame(std::shared_ptr<OpenGLDevice> device)
    : m_device(std::move(device))
{
}

OpenGLFrame::~OpenGLFrame() { m_device->makeCurrent(); }

bool OpenGLFrame::begin(QSize pixels)
{
    if (pixels.isEmpty() || !m_device->makeCurrent())
        return false;
    if (!m_drawn || m_drawn->size() != pixels) {
        m_resolved.reset();
        m_drawn.reset(); // before its successor: both may not fit
        m_drawn = newBuffer(pixels, m_device->samples(), true);
        if (m_drawn && m_drawn->format().samples() > 0)
            m_resolved = newBuffer(pixels, 0, false);
    }
    if (!m_drawn || !m_drawn->bind())
        return false;
    glViewport(0, 0, pixels.width(), pixels.height());
    return true;
}

QImage OpenGLFrame::end()
{
    if (m_resolved) {
        QOpenGLFramebufferObject::blitFramebuffer(m_resolved.get(), m_drawn.get());
        m_resolved->bind();
    }
    QImage image;
    try {
        OpenGLScreenReader reader(m_drawn->size());
        image = reader.createNSImage();
    } catch (const OpenGLScreenReader::Failure& failure) {
        qCWarning(openGLFrameLog, "%s", failure.what());
    }
    QOpenGLFramebufferObject::bindDefault();
    return image;
}
