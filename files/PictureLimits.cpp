#include "files/PictureLimits.h"

#include "platform/imageio/PictureReader.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::int64_t kSharesOfMemory = 4;
constexpr float kLongestSide = 1'000'000; // px; far beyond what any format stores

} // namespace

std::optional<QSize> pixelSize(float width, float height)
{
    const bool isSize = width > 0 && height > 0 && width <= kLongestSide && height <= kLongestSide;
    if (!isSize) // true of not-a-number, too
        return std::nullopt;
    return QSize(std::max(1, int(std::lround(width))), std::max(1, int(std::lround(height))));
}

std::int64_t largestPixelCount(CIFormat format)
{
    return std::min(physicalMemory() / kSharesOfMemory / std::int64_t(bytesPerPixel(format)), ReadOptions().maxPixels);
}

bool fitsIntoMemory(QSize size, CIFormat format)
{
    return std::int64_t(size.width()) * size.height() <= largestPixelCount(format);
}
