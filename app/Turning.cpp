#include "app/Turning.h"

#include "app/Baking.h"

#include <algorithm>
#include <array>

namespace {

constexpr int kBlock = 32; // pixels a side: source and target of a block stay in the cache

template <std::size_t Bytes>
using PixelOf = std::array<std::byte, Bytes>;

template <std::size_t Bytes>
void rotateBlock(const CIBitmap& source, bool left, int top, int x0, CIBitmap& target, std::byte* first)
{
    const int bottom = std::min(top + kBlock, target.height()), x1 = std::min(x0 + kBlock, target.width());
    for (int y = top; y < bottom; ++y) {
        auto* row = reinterpret_cast<PixelOf<Bytes>*>(first + std::size_t(y) * target.bytesPerRow());
        const int column = left ? source.width() - 1 - y : y;
        for (int x = x0; x < x1; ++x) {
            const std::byte* from = source.row(left ? x : source.height() - 1 - x);
            row[x] = reinterpret_cast<const PixelOf<Bytes>*>(from)[column];
        }
    }
}

template <std::size_t Bytes>
void rotate(const CIBitmap& source, bool left, CIBitmap& target)
{
    std::byte* const first = target.mutableRow(0);
    for (int y = 0; y < target.height(); y += kBlock)
        for (int x = 0; x < target.width(); x += kBlock)
            rotateBlock<Bytes>(source, left, y, x, target, first);
}

template <std::size_t Bytes>
void mirror(const CIBitmap& source, CIBitmap& target)
{
    const auto width = std::size_t(source.width());
    for (int y = 0; y < source.height(); ++y) {
        const auto* from = reinterpret_cast<const PixelOf<Bytes>*>(source.row(y));
        std::reverse_copy(from, from + width, reinterpret_cast<PixelOf<Bytes>*>(target.mutableRow(y)));
    }
}

/// Calls `work` with the number of bytes of a pixel.
template <class Work>
void forPixelSize(CIFormat format, Work work)
{
    switch (bytesPerPixel(format)) {
    case 4:
        return work.template operator()<4>();
    case 8:
        return work.template operator()<8>();
    default:
        return work.template operator()<16>();
    }
}

CIBitmap rotatedBitmap(const CIBitmap& source, bool left)
{
    CIBitmap target(source.height(), source.width(), source.format(), source.alpha(), source.colorSpace());
    forPixelSize(source.format(), [&]<std::size_t Bytes>() { rotate<Bytes>(source, left, target); });
    return target;
}

CIBitmap flippedBitmap(const CIBitmap& source, bool vertical)
{
    CIBitmap target(source.width(), source.height(), source.format(), source.alpha(), source.colorSpace());
    if (!vertical)
        forPixelSize(source.format(), [&]<std::size_t Bytes>() { mirror<Bytes>(source, target); });
    for (int y = 0; vertical && y < source.height(); ++y)
        std::copy_n(source.row(source.height() - 1 - y), std::size_t(source.width()) * bytesPerPixel(source.format()),
            target.mutableRow(y));
    return target;
}

CIImage transformedToOrigin(const CIImage& picture, const CIAffineTransform& transform)
{
    const CIImage image = picture.transformed(transform);
    const CIRect extent = image.extent();
    return extent.isInfinite() ? CIImage() : image.transformed(CIAffineTransform::translation(-extent.x, -extent.y));
}

} // namespace

CIImage rotatedPicture(const CIImage& picture, bool left)
{
    if (const CIBitmap* bitmap = bitmapOf(picture))
        return CIImage::fromBitmap(rotatedBitmap(*bitmap, left));
    const double sine = left ? 1 : -1; // the cosine is exactly 0, which M_PI_2 would miss
    return transformedToOrigin(picture, {0, sine, -sine, 0, 0, 0});
}

CIImage flippedPicture(const CIImage& picture, bool vertical)
{
    if (const CIBitmap* bitmap = bitmapOf(picture))
        return CIImage::fromBitmap(flippedBitmap(*bitmap, vertical));
    return transformedToOrigin(
        picture, vertical ? CIAffineTransform{1, 0, 0, -1, 0, 0} : CIAffineTransform{-1, 0, 0, 1, 0, 0});
}
