// The program's one connection to OpenGL.
#pragma once

#include <memory>

class QOffscreenSurface;
class QOpenGLContext;

/// An OpenGL 2.1 compatibility context without a window: what it draws is read back and painted like any picture.
/// Windows thus stay free of OpenGL, and a machine without it shows everything but the 3D effects.
///
/// Made when it is first asked for, kept by those who use it. Main thread only.
class OpenGLDevice {
public:
    ~OpenGLDevice();
    OpenGLDevice(const OpenGLDevice&) = delete;
    OpenGLDevice& operator=(const OpenGLDevice&) = delete;

    /// Never null; see `isUsable`.
    static std::shared_ptr<OpenGLDevice> shared();

    /// False when the machine has no OpenGL 2.1 with frame buffers in memory.
    bool isUsable() const { return m_usable; }
    /// To be called before anything is asked of OpenGL. False when it isn't usable.
    bool makeCurrent();
    /// Samples per pixel for smooth edges; 0 when there is no multisampling.
    int samples() const { return m_samples; }

private:
    OpenGLDevice();
    bool offersWhatWeNeed() const;

    std::unique_ptr<QOffscreenSurface> m_surface;
    std::unique_ptr<QOpenGLContext> m_context;
    bool m_usable = false;
    int m_samples = 0;
};
