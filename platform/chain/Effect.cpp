#include "platform/chain/Effect.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

constexpr double kSide = 128; // px of the longer side: enough to see a tenth of a picture
constexpr int kLeastChange = 4; // of 255; less is not noticed
constexpr int kLeastSpread = 40; // also of 255: less is a pattern in one color
constexpr double kLeastShown = 0.005; // share of pixels
constexpr double kStrays = 0.03; // share of pixels that may lie outside a spread

CIBitmap seen(const CIImage& image, const CIRect& area, double scale, CIRenderControl* control)
{
    return CIContext().render(image, area, scale, CIFormat::RGBA8, CIAlpha::Premultiplied, control);
}

double shareOfChanged(const CIBitmap& a, const CIBitmap& b)
{
    if (a.isNull() || b.isNull() || a.width() != b.width() || a.height() != b.height())
        return 0;
    long changed = 0;
    for (int y = 0; y < a.height(); ++y) {
        const auto p = a.row<std::uint8_t>(y), q = b.row<std::uint8_t>(y);
        for (std::size_t x = 0; x < p.size(); x += 4)
            for (std::size_t c = x; c < x + 4; ++c)
                if (std::abs(p[c] - q[c]) >= kLeastChange) {
                    ++changed;
                    break;
                }
    }
    return double(changed) / (double(a.width()) * a.height());
}

/// The widest range of a component that all but strays lie in, alpha included.
int spread(const CIBitmap& bitmap)
{
    int widest = 0;
    for (std::size_t c = 0; c < 4; ++c) {
        std::array<long, 256> counts{};
        for (int y = 0; y < bitmap.height(); ++y) {
            const auto row = bitmap.row<std::uint8_t>(y);
            for (std::size_t x = c; x < row.size(); x += 4)
                ++counts[row[x]];
        }
        const auto strays = long(kStrays / 2 * bitmap.width() * bitmap.height());
        const auto firstAbove = [&](auto begin, auto end) {
            long sum = 0;
            return int(std::find_if(begin, end, [&](long n) { return (sum += n) > strays; }) - begin);
        };
        widest = std::max(
            widest, 255 - firstAbove(counts.rbegin(), counts.rend()) - firstAbove(counts.begin(), counts.end()));
    }
    return widest;
}

bool isEmpty(const CIBitmap& bitmap)
{
    long opaque = 0;
    for (int y = 0; y < bitmap.height(); ++y) {
        const auto row = bitmap.row<std::uint8_t>(y);
        for (std::size_t x = 3; x < row.size(); x += 4)
            opaque += row[x] >= kLeastChange;
    }
    return opaque < kLeastShown * bitmap.width() * bitmap.height();
}

} // namespace

Effect effectOf(const CIBitmap& picture, const CIBitmap& result)
{
    if (result.isNull())
        return {.isEmpty = true};
    return {.changed = shareOfChanged(picture, result),
        .isEmpty = isEmpty(result),
        .isFlat = spread(result) < kLeastSpread && spread(picture) >= kLeastSpread};
}

Effect effectOn(const CIImage& picture, const CIImage& result, CIRenderControl* control)
{
    const CIRect all = picture.extent();
    if (result.isNull() || all.isEmpty() || all.isInfinite())
        return {.isEmpty = true};
    const double scale = std::min(1.0, kSide / std::max(all.width, all.height));
    Effect effect = effectOf(seen(picture, all, scale, control), seen(result, all, scale, control));
    if (scale < 1 && !effect.tells() && !effect.isEmpty && !effect.isFlat) {
        // Sharpening and grain are gone in a small copy.
        const CIPoint middle = all.center();
        const CIRect part = CIRect{middle.x - kSide / 2, middle.y - kSide / 2, kSide, kSide}.intersected(all);
        effect.changed =
            std::max(effect.changed, shareOfChanged(seen(picture, part, 1, control), seen(result, part, 1, control)));
    }
    return effect;
}
