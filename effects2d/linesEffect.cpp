#include "effects2d/linesEffect.h"

#include "effects2d/EffectPanel.h"
#include "effects2d/Random.h"

void linesEffect::awakeFromNib()
{
    setName(QT_TRANSLATE_NOOP("BaseEffect", "Lines Effect"));
    setTips(QT_TRANSLATE_NOOP("BaseEffect", "Lines Effect Generator"));
    m_useBackImage = true;
    m_bgColor = CIColor(1, 1, 1, 0.5);
    m_opacity = 50;
    m_linesCount = 500;
    m_lineWidth = 1;
    m_imageZoom = 1;
    m_startPT = kNotPlaced;
}

std::shared_ptr<BaseEffect> linesEffect::mycopy() const
{
    const auto copy = std::static_pointer_cast<linesEffect>(copyWithZone());
    copyParametersTo(*copy);
    return copy;
}

void linesEffect::buildControls(EffectPanel& panel)
{
    addCommonControls(panel, EffectPanel::tr("Objects opacity:"));
    panel.addSlider({EffectPanel::tr("Lines count:"), EffectPanel::tr("How many lines are drawn")},
        {.min = 20, .max = 2000, .continuous = false}, m_linesCount, action(&BurstEffect::changeLinesCount));
    panel.addSlider({EffectPanel::tr("Line width:"), EffectPanel::tr("How thick the lines are")},
        {.min = 0.5, .max = 50, .decimals = 1, .continuous = false}, m_lineWidth,
        action(&BurstEffect::changeLineWidth));
    addGenerateButton(panel);
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
