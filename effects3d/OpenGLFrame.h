// A picture in memory that OpenGL draws into.
#pragma once

#include <QImage>
#include <QSize>

#include <memory>

class OpenGLDevice;
class QOpenGLFramebufferObject;

/// A frame buffer with color and depth, multisampled where that is offered.
class OpenGLFrame {
public:
    explicit OpenGLFrame(std::shared_ptr<OpenGLDevice> device);
    ~OpenGLFrame();

    /// Makes a frame of that many pixels the target of all drawing, for the whole of it. False when OpenGL can't.
    bool begin(QSize pixels);
    /// What was drawn, upright, premultiplied. Null when it can't be read.
    QImage end();

private:
    std::shared_ptr<OpenGLDevice> m_device;
    std::unique_ptr<QOpenGLFramebufferObject> m_drawn; // several samples a pixel
    std::unique_ptr<QOpenGLFramebufferObject> m_resolved; // one sample a pixel; null when `m_drawn` has one
};
