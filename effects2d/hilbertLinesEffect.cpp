#include "effects2d/hilbertLinesEffect.h"

#include "effects2d/Random.h"

#include <cmath>

namespace {

constexpr double kBeyond = 1000; // canvas units by which the curve is larger than the longer side
constexpr int kDeepest = 10; // a million segments; no canvas shows a finer curve

} // namespace

const EffectDeclaration& hilbertLinesEffect::declaration() const
{
    static const EffectDeclaration declared{"hilbertLinesEffect", QT_TRANSLATE_NOOP("BaseEffect", "Hilbert Lines"),
        QT_TRANSLATE_NOOP("BaseEffect", "Hilbert Lines Effect Generator"), {},
        {backgroundColor(), backgroundImage(), layerOpacity(QT_TRANSLATE_NOOP("EffectPanel", "Objects opacity:"), 70),
            {"level", &hilbertLinesEffect::m_level,
                {QT_TRANSLATE_NOOP("EffectPanel", "Lines level:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "How often the curve is folded")},
                {.start = 7, .min = 3, .max = 7, .continuous = false}},
            {"lineWidth", &hilbertLinesEffect::m_lineWidth,
                {QT_TRANSLATE_NOOP("EffectPanel", "Line width:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "How thick the curve is")},
                {.start = 7.5, .min = 1, .max = 15, .decimals = 1, .continuous = false}}}};
    return declared;
}

void hilbertLinesEffect::drawMyself(quartz::Context& context, const QRectF& rect) { drawHilbertRect(context, rect); }

void hilbertLinesEffect::drawHilbertRect(quartz::Context& context, const QRectF& rect)
{
    const int level = std::min(m_level, kDeepest);
    const int side = int(std::fmax(rect.width(), rect.height()) + kBeyond);
    dist = side;
    for (int i = 0; i < level; ++i)
        dist /= 2;
    goToXY(float((rect.width() - side) / 2 + dist / 2), float((rect.height() - side) / 2 + dist / 2));
    m_context = &context;
    context.saveGState();
    hilbertU(level);
    context.restoreGState();
    m_context = nullptr;
}

/// Each call picks a color, so a segment has the color of the call that ran last before it.
void hilbertLinesEffect::pickColor()
{
    const RandomColor color;
    m_context->setRGBStrokeColor(color.red, color.green, color.blue, color.alpha);
}

void hilbertLinesEffect::hilbertU(int level)
{
    if (level < 1)
        return;
    pickColor();
    hilbertD(level - 1);
    lineRel(0, dist);
    hilbertU(level - 1);
    lineRel(dist, 0);
    hilbertU(level - 1);
    lineRel(0, -dist);
    hilbertC(level - 1);
}

void hilbertLinesEffect::hilbertD(int level)
{
    if (level < 1)
        return;
    pickColor();
    hilbertU(level - 1);
    lineRel(dist, 0);
    hilbertD(level - 1);
    lineRel(0, dist);
    hilbertD(level - 1);
    lineRel(-dist, 0);
    hilbertA(level - 1);
}

void hilbertLinesEffect::hilbertC(int level)
{
    if (level < 1)
        return;
    pickColor();
    hilbertA(level - 1);
    lineRel(-dist, 0);
    hilbertC(level - 1);
    lineRel(0, -dist);
    hilbertC(level - 1);
    lineRel(dist, 0);
    hilbertU(level - 1);
}

void hilbertLinesEffect::hilbertA(int level)
{
    if (level < 1)
        return;
    pickColor();
    hilbertC(level - 1);
    lineRel(0, -dist);
    hilbertA(level - 1);
    lineRel(-dist, 0);
    hilbertA(level - 1);
    lineRel(0, dist);
    hilbertD(level - 1);
}

void hilbertLinesEffect::goToXY(float newX, float newY)
{
    x = newX;
    y = newY;
}

void hilbertLinesEffect::lineRel(double dx, double dy)
{
    const QPointF from(x, y);
    x = float(x + dx);
    y = float(y + dy);
    m_context->setLineWidth(m_lineWidth);
    m_context->strokeLine(from, from + QPointF(dx, dy));
}
