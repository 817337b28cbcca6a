#include "app/document/TurnedPicture.h"

#include "platform/chain/Baking.h"

#include <algorithm>
#include <array>
#include <memory>

#include <tbb/blocked_range.h>
#include <tbb/parallel_for.h>

namespace {

constexpr int kBlock = 32; // pixels a side: source and target of a block stay in the cache

/// Pixels that are about to be written, all of them.
struct Canvas {
    Canvas(int width, int height, std::size_t pixelBytes)
        : width(width)
        , height(height)
        , bytesPerRow(std::size_t(width) * pixelBytes)
        , pixels(std::make_shared_for_overwrite<std::byte[]>(bytesPerRow * std::size_t(height)))
    {
    }
    template <class Pixel>
    Pixel* row(int y) const
    {
        return reinterpret_cast<Pixel*>(pixels.get() + std::size_t(y) * bytesPerRow);
    }
    CIBitmap bitmapLike(const CIBitmap& source) const
    {
        return {pixels.get(), width, height, bytesPerRow, source.format(), source.alpha(), source.colorSpace(), pixels};
    }

    int width, height;
    std::size_t bytesPerRow;
    std::shared_ptr<std::byte[]> pixels;
};

template <std::size_t Bytes>
using PixelOf = std::array<std::byte, Bytes>;

/// Calls `work` with each row, on all cores.
template <class Work>
void forRows(int count, Work work)
{
    tbb::parallel_for(tbb::blocked_range<int>(0, count, kBlock), [&](const tbb::blocked_range<int>& rows) {
        for (int y = rows.begin(); y < rows.end(); ++y)
            work(y);
    });
}

template <std::size_t Bytes>
void rotateBlock(const CIBitmap& source, bool left, int top, int bottom, int x0, const Canvas& target)
{
    const int x1 = std::min(x0 + kBlock, target.width);
    for (int y = top; y < bottom; ++y) {
        auto* row = target.row<PixelOf<Bytes>>(y);
        const int column = left ? source.width() - 1 - y : y;
        for (int x = x0; x < x1; ++x) {
            const std::byte* from = source.row(left ? x : source.height() - 1 - x);
            row[x] = reinterpret_cast<const PixelOf<Bytes>*>(from)[column];
        }
    }
}

template <std::size_t Bytes>
void rotate(const CIBitmap& source, bool left, const Canvas& target)
{
    const int strips = (target.height + kBlock - 1) / kBlock;
    tbb::parallel_for(0, strips, [&](int strip) {
        const int top = strip * kBlock, bottom = std::min(top + kBlock, target.height);
        for (int x = 0; x < target.width; x += kBlock)
            rotateBlock<Bytes>(source, left, top, bottom, x, target);
    });
}

template <std::size_t Bytes>
void mirror(const CIBitmap& source, const Canvas& target)
{
    forRows(source.height(), [&](int y) {
        const auto* from = reinterpret_cast<const PixelOf<Bytes>*>(source.row(y));
        std::reverse_copy(from, from + source.width(), target.row<PixelOf<Bytes>>(y));
    });
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
    const Canvas target(source.height(), source.width(), bytesPerPixel(source.format()));
    forPixelSize(source.format(), [&]<std::size_t Bytes>() { rotate<Bytes>(source, left, target); });
    return target.bitmapLike(source);
}

CIBitmap flippedBitmap(const CIBitmap& source, bool vertical)
{
    const Canvas target(source.width(), source.height(), bytesPerPixel(source.format()));
    if (vertical)
        forRows(source.height(), [&](int y) {
            std::copy_n(source.row(source.height() - 1 - y), target.bytesPerRow, target.row<std::byte>(y));
        });
    else
        forPixelSize(source.format(), [&]<std::size_t Bytes>() { mirror<Bytes>(source, target); });
    return target.bitmapLike(source);
}

CIBitmap croppedBitmap(const CIBitmap& source, const CIRect& rect)
{
    const Canvas target(int(rect.width), int(rect.height), bytesPerPixel(source.format()));
    const int top = source.height() - int(rect.top());
    const std::size_t left = std::size_t(rect.left()) * bytesPerPixel(source.format());
    forRows(target.height,
        [&](int y) { std::copy_n(source.row(top + y) + left, target.bytesPerRow, target.row<std::byte>(y)); });
    return target.bitmapLike(source);
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

CIImage croppedPicture(const CIImage& picture, const CIRect& rect)
{
    if (const CIBitmap* bitmap = bitmapOf(picture))
        return CIImage::fromBitmap(croppedBitmap(*bitmap, rect));
    return picture.cropped(rect).transformed(CIAffineTransform::translation(-rect.x, -rect.y));
}
