#include "effects2d/patchWorkEffect.h"

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

const EffectDeclaration& patchWorkEffect::declaration() const
{
    static const EffectDeclaration declared{"patchWorkEffect", QT_TRANSLATE_NOOP("BaseEffect", "Patch Works"),
        QT_TRANSLATE_NOOP("BaseEffect", "Patch Works Effect Generator"), kNotPlaced,
        {backgroundColor(), backgroundImage(), layerOpacity(QT_TRANSLATE_NOOP("EffectPanel", "Objects opacity:"), 40),
            {"level", &patchWorkEffect::m_level, {}, {.start = 7}},
            {"lineWidth", &patchWorkEffect::m_lineWidth, {}, {.start = 7.5}}}};
    return declared;
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
