#include "effects2d/plasmaEffect.h"

#include "effects2d/Random.h"

#include <cmath>

namespace {

constexpr double kTurn = 6.28318531; // as many decimals as the tables are made with
constexpr int kPeriod = 720; // pixels

/// Folds a sum of heights into 0 to 255 and bends it: slow in the dark, steep from 202 on.
int brightness(int v)
{
    while (v > 255)
        v = v - 511 >= 0 ? v - 511 : 511 - v;
    const int bent = v < 202 ? v : 4 * v - 603;
    return bent * 255 / 417;
}

} // namespace

const EffectDeclaration& plasmaEffect::declaration() const
{
    static const EffectDeclaration declared{"plasmaEffect", QT_TRANSLATE_NOOP("BaseEffect", "Plasma Effect"),
        QT_TRANSLATE_NOOP("BaseEffect", "Plasma Effect Generator"), kNotPlaced,
        {backgroundColor(), backgroundImage(), layerOpacity(QT_TRANSLATE_NOOP("EffectPanel", "Plasma opacity:"), 40),
            {"level", &plasmaEffect::m_level, {}, {.start = 7, .storage = ParameterFacts::NotStored}},
            {"lineWidth", &plasmaEffect::m_lineWidth, {}, {.start = 7.5, .storage = ParameterFacts::NotStored}}}};
    return declared;
}

std::shared_ptr<BaseEffect> plasmaEffect::mycopy() const
{
    const auto copy = std::static_pointer_cast<plasmaEffect>(LeveledEffect::mycopy());
    copy->setupPlazma();
    return copy;
}

void plasmaEffect::setupPlazma()
{
    for (int which = 0; which < 2; ++which)
        for (int axis = 0; axis < 2; ++axis)
            for (int channel = 0; channel < 3; ++channel)
                pos[channel][axis][which] = int(std::lround(float(uniform() * 512.0)));
    for (int i = 0; i < int(wave.size()); ++i) {
        wave[i] = int(std::sin(i * kTurn / kPeriod) * 100 + 100);
        wave2[i] = int(std::sin(i * kTurn / (kPeriod / 2)) * 64 + 64);
    }
    for (int i = 0; i < int(luma.size()); ++i)
        luma[i] = brightness(i);
}

void plasmaEffect::makeImageEffect()
{
    setupPlazma();
    LeveledEffect::makeImageEffect();
}

void plasmaEffect::drawMyself(quartz::Context& context, const QRectF& rect) { drawPlazma(context, rect); }

void plasmaEffect::movePhases()
{
    for (int which = 0; which < 2; ++which)
        for (int axis = 0; axis < 2; ++axis)
            for (int channel = 0; channel < 3; ++channel) {
                const int step = int(std::lround(float(2 * uniform())));
                int& p = pos[channel][axis][which];
                if (which + axis == 1) {
                    p += step + 2;
                    if (p > kPeriod - 1)
                        p -= kPeriod;
                } else {
                    p -= step + 2;
                    if (p < 0)
                        p += kPeriod;
                }
            }
}

void plasmaEffect::drawPlazma(quartz::Context& context, const QRectF& rect)
{
    const int side = std::min(int(std::fmin(rect.width(), rect.height())), kLargestSide);
    if (side < 1)
        return;
    movePhases();
    for (int i = 0; i < side; ++i)
        for (int channel = 0; channel < 3; ++channel)
            for (int axis = 0; axis < 2; ++axis)
                cWaves[i][channel][axis] = wave2[pos[channel][axis][1] + i] + wave[pos[channel][axis][0] + i];
    QImage image(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        const auto& down = cWaves[y];
        for (int x = 0; x < side; ++x) {
            const auto& along = cWaves[x];
            row[x] =
                qRgb(luma[down[0][1] + along[0][0]], luma[down[1][1] + along[1][0]], luma[down[2][1] + along[2][0]]);
        }
    }
    context.drawImage(rect, image);
}
