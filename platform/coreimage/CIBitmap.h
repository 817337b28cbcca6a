// Pixels in memory: what pictures are read into and rendered into.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

/// How the pixels of a bitmap are stored: four components a pixel in the order of the name.
enum class CIFormat {
    RGBA8, // 8 bits
    BGRA8, // 8 bits, the order of a little-endian 0xAARRGGBB word
    RGBA16, // 16 bits, native byte order
    RGBAf, // 32-bit float, may leave 0 to 1
};

enum class CIAlpha { Opaque, Straight, Premultiplied };

enum class CIColorSpace { SRGB, LinearSRGB };

std::size_t bytesPerPixel(CIFormat);

/// A rectangle of pixels. Row 0 is the top row, as in files and on screens; rows are `bytesPerRow()` apart.
/// Copies share the pixels until one of them asks for mutable access.
class CIBitmap {
public:
    CIBitmap() = default;
    /// Zeroed pixels. Throws std::bad_alloc when there is no room.
    CIBitmap(int width, int height, CIFormat = CIFormat::RGBA8, CIAlpha = CIAlpha::Straight,
        CIColorSpace = CIColorSpace::SRGB);
    /// Pixels that live elsewhere; `owner` keeps them alive. Never written to.
    CIBitmap(const void* pixels, int width, int height, std::size_t bytesPerRow, CIFormat, CIAlpha, CIColorSpace,
        std::shared_ptr<const void> owner);

    bool isNull() const { return m_width <= 0 || m_height <= 0; }
    int width() const { return m_width; }
    int height() const { return m_height; }
    CIFormat format() const { return m_format; }
    CIAlpha alpha() const { return m_alpha; }
    CIColorSpace colorSpace() const { return m_space; }
    std::size_t bytesPerRow() const { return m_bytesPerRow; }

    /// Row `y`, counted from the top.
    const std::byte* row(int y) const { return m_pixels + std::size_t(y) * m_bytesPerRow; }
    template <class T>
    std::span<const T> row(int y) const
    {
        return {reinterpret_cast<const T*>(row(y)), std::size_t(m_width) * bytesPerPixel(m_format) / sizeof(T)};
    }
    /// Mutable row `y`. A bitmap that shares its pixels copies them first.
    std::byte* mutableRow(int y);
    template <class T>
    std::span<T> mutableRow(int y)
    {
        return {reinterpret_cast<T*>(mutableRow(y)), std::size_t(m_width) * bytesPerPixel(m_format) / sizeof(T)};
    }
    /// Promises that no pixel is transparent: renders of it take shorter ways.
    void setOpaque() { m_alpha = CIAlpha::Opaque; }

private:
    void detach();

    int m_width = 0, m_height = 0;
    CIFormat m_format = CIFormat::RGBA8;
    CIAlpha m_alpha = CIAlpha::Straight;
    CIColorSpace m_space = CIColorSpace::SRGB;
    std::size_t m_bytesPerRow = 0;
    std::shared_ptr<const void> m_owner;
    const std::byte* m_pixels = nullptr;
    bool m_writable = false;
};
