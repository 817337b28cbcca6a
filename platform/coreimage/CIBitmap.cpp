#include "platform/coreimage/CIBitmap.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

namespace {

/// Zeroed without being touched: the system gives pages as they are first written, and large bitmaps cost no time
/// or memory before.
std::shared_ptr<std::byte> allocate(std::size_t bytes)
{
    constexpr std::size_t kLine = 64; // rows start on a cache line, and whole batches may be read past the end
    void* block = std::calloc(bytes + 2 * kLine, 1);
    if (!block)
        throw std::bad_alloc();
    void* start = block;
    std::size_t room = bytes + 2 * kLine;
    auto* pixels = static_cast<std::byte*>(std::align(kLine, bytes + kLine, start, room));
    return {pixels, [block](std::byte*) { std::free(block); }};
}

} // namespace

std::size_t bytesPerPixel(CIFormat format)
{
    switch (format) {
    case CIFormat::RGBA16:
        return 8;
    case CIFormat::RGBAf:
        return 16;
    default:
        return 4;
    }
}

CIBitmap::CIBitmap(int width, int height, CIFormat format, CIAlpha alpha, CIColorSpace space)
    : m_width(width)
    , m_height(height)
    , m_format(format)
    , m_alpha(alpha)
    , m_space(space)
{
    if (isNull())
        return;
    m_bytesPerRow = std::size_t(width) * bytesPerPixel(format);
    auto pixels = allocate(m_bytesPerRow * std::size_t(height));
    m_pixels = pixels.get();
    m_owner = std::move(pixels);
    m_writable = true;
}

CIBitmap::CIBitmap(const void* pixels, int width, int height, std::size_t bytesPerRow, CIFormat format, CIAlpha alpha,
    CIColorSpace space, std::shared_ptr<const void> owner)
    : m_width(width)
    , m_height(height)
    , m_format(format)
    , m_alpha(alpha)
    , m_space(space)
    , m_bytesPerRow(bytesPerRow)
    , m_owner(std::move(owner))
    , m_pixels(static_cast<const std::byte*>(pixels))
{
}

void CIBitmap::detach()
{
    if (m_writable && m_owner.use_count() == 1)
        return;
    const std::size_t rowBytes = std::size_t(m_width) * bytesPerPixel(m_format);
    auto pixels = allocate(rowBytes * std::size_t(m_height));
    for (int y = 0; y < m_height; ++y)
        std::memcpy(pixels.get() + std::size_t(y) * rowBytes, row(y), rowBytes);
    m_bytesPerRow = rowBytes;
    m_pixels = pixels.get();
    m_owner = std::move(pixels);
    m_writable = true;
}

std::byte* CIBitmap::mutableRow(int y)
{
    detach();
    return const_cast<std::byte*>(row(y)); // ours alone, and made writable above
}
