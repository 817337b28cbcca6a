// Reads what OpenGL has drawn.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <stdexcept>

/// Reads the surface of the current OpenGL context into memory, makes images of it and writes it as a TIFF file.
/// Window systems don't let programs read the whole screen through OpenGL, so it is always a context's own surface.
///
/// OpenGL's rows start at the bottom; `flipImageData` turns the buffer over, once. All failures are `Failure`s.
class OpenGLScreenReader {
public:
    /// A step that can't fail in a working program did; says which.
    struct Failure : std::runtime_error {
        using std::runtime_error::runtime_error;
    };

    /// For a surface of `size` pixels.
    explicit OpenGLScreenReader(QSize size);
    /// For as many pixels as the current viewport has.
    OpenGLScreenReader();

    QSize size() const { return m_size; }
    const std::uint32_t* buffer() const { return m_buffer.get(); } // 0xAARRGGBB, premultiplied

    /// Reads the lower left `width` x `height` pixels, bottom row first. `base` has room for them. From the front
    /// buffer, or from the frame buffer in memory that is bound.
    static void readPartialScreenToBufferBufferHeightBufferBaseAddress(int width, int height, void* base);
    void readFullScreenToBuffer();
    /// Swaps top and bottom.
    void flipImageData();

    /// Copies of the buffer as it is.
    QImage createRGBAImageFromBufferData() const;
    QImage createRGBImageFromBufferData() const; // opaque

    /// Reads the surface; answers it upright.
    QImage createTIFFImage() { return createNSImage(); }
    QImage createNSImage();
    /// Another size, in pixels.
    static QImage imageFromCGImageRefSizeMode(const QImage& image, QSize size, Qt::AspectRatioMode mode);

    /// Turns the buffer over and writes it. `path` is "ScreenSnapshot.tiff" on the desktop when empty.
    void createTIFFImageFile(const QString& path = {});

private:
    struct Free {
        void operator()(std::uint32_t* buffer) const { std::free(buffer); }
    };

    QSize m_size; // pixels
    std::size_t m_bytesPerRow;
    std::unique_ptr<std::uint32_t[], Free> m_buffer;
};
