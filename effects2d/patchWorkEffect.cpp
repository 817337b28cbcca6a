#include "effects2d/patchWorkEffect.h"

#include "effects2d/EffectPanel.h"
#include "effects2d/Random.h"

#include <cmath>

namespace {

constexpr int kLargestSide = 200; // pixels

/// A square of opaque 0xffRRGGBB pixels, row 0 on top.
struct Square {
    explicit Square(int side)
        : side(side)
        , image(side, side, QImage::Format_RGB32)
        , pixels(reinterpret_cast<QRgb*>(image.bits())) // 32 bits a pixel: rows follow each other without a gap
    {
    }
    int side;
    QImage image;
    QRgb* pixels;
};

void fillWithNoise(Square& square)
{
    // The first pixel keeps the blue that the square begins with.
    square.image.fill(QRgb(0xff0000ff));
    for (int i = 1; i < square.side * square.side; ++i)
        square.pixels[i] = 0xff000000u | (~unsigned(uniform() * 16777216.0) & 0xffffffu);
}

/// Copies pixels to near places until colors have spread into patches.
void spread(Square& square)
{
    const int passes = int(uniform() * 13000.0 + 7000.0), side = square.side;
    int column = 0;
    for (int pass = 0; pass < passes; ++pass) {
        for (int i = 0; i < side - 1; ++i) {
            const int row = int(uniform() * (side - 3));
            const int dx = int(uniform() * 3.0);
            const int dy = int(uniform() * 3.0);
            // Only a random number of exactly 1, or a square of a few pixels, leads out of the square.
            if (row >= 0 && row + dy < side && column >= 0 && column + dx < side)
                square.pixels[(row + dy) * side + column + dx] = square.pixels[row * side + column];
            column = row; // the copies walk along a chain of points
        }
    }
}

} // namespace

void patchWorkEffect::awakeFromNib()
{
    setName(QT_TRANSLATE_NOOP("BaseEffect", "Patch Works"));
    setTips(QT_TRANSLATE_NOOP("BaseEffect", "Patch Works Effect Generator"));
    awakeWithOpacity(40);
    m_startPT = {-11000, -11000};
}

std::shared_ptr<BaseEffect> patchWorkEffect::mycopy() const
{
    const auto copy = std::static_pointer_cast<patchWorkEffect>(copyWithZone());
    copyParametersTo(*copy);
    return copy;
}

void patchWorkEffect::buildControls(EffectPanel& panel)
{
    addCommonControls(panel, EffectPanel::tr("Objects opacity:"));
    addGenerateButton(panel);
}

void patchWorkEffect::drawMyself(quartz::Context& context, const QRectF& rect) { drawPatchwork(context, rect); }

void patchWorkEffect::drawPatchwork(quartz::Context& context, const QRectF& rect)
{
    const int side = std::min(int(std::fmin(rect.width(), rect.height())), kLargestSide);
    if (side < 1)
        return;
    Square square(side);
    fillWithNoise(square);
    spread(square);
    context.drawImage(rect, square.image);
}
