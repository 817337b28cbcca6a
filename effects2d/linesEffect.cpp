#include "effects2d/linesEffect.h"

#include "effects2d/Random.h"

const EffectDeclaration& linesEffect::declaration() const
{
    static const EffectDeclaration declared{"linesEffect", QT_TRANSLATE_NOOP("BaseEffect", "Lines Effect"),
        QT_TRANSLATE_NOOP("BaseEffect", "Lines Effect Generator"), kNotPlaced,
        {backgroundColor(), backgroundImage(), layerOpacity(QT_TRANSLATE_NOOP("EffectPanel", "Objects opacity:"), 50),
            {"linesCount", &linesEffect::m_linesCount,
                {QT_TRANSLATE_NOOP("EffectPanel", "Lines count:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "How many lines are drawn")},
                {.start = 500, .min = 20, .max = 2000, .continuous = false}},
            {"lineWidth", &linesEffect::m_lineWidth,
                {QT_TRANSLATE_NOOP("EffectPanel", "Line width:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "How thick the lines are")},
                {.start = 1, .min = 0.5, .max = 50, .decimals = 1, .continuous = false}},
            drawingScale()}};
    return declared;
}

void linesEffect::drawMyself(quartz::Context& context, const QRectF& rect) { devideLinesRect(context, rect); }

void linesEffect::devideLinesRect(quartz::Context& context, const QRectF& rect)
{
    // The anchor is a place on the picture but gets numbers of the reduced canvas: the first burst starts nearer to
    // the lower left corner.
    placeAnchor(rect);
    const double z = m_imageZoom;
    for (int i = 0; i < m_linesCount; ++i) {
        const RandomColor color;
        context.setRGBStrokeColor(color.red, color.green, color.blue, color.alpha);
        context.beginPath();
        context.moveToPoint({m_startPT.x * z, m_startPT.y * z});
        const int x = int(rect.width() * uniform());
        const int y = int(rect.height() * uniform());
        context.addLineToPoint(QPointF(x, y));
        context.closePath();
        context.setLineWidth(m_lineWidth);
        context.strokePath();
    }
}
