#include "effects2d/BurstEffect.h"

void BurstEffect::makeReducedImageEffect(float limit)
{
    const QSizeF canvas = canvasSize();
    const float shorter = std::min(float(canvas.width()), float(canvas.height()));
    if (shorter > limit)
        m_imageZoom = limit / shorter;
    const double z = m_imageZoom; // the product is not single precision: 544 pixels make 199, not 200
    const QSize pixels(int(canvas.width() * z), int(canvas.height() * z));
    if (pixels.isEmpty())
        return;
    quartz::Drawing small(pixels);
    quartz::Context smallContext(small);
    drawMyself(smallContext, {QPointF(0, 0), small.size()});
    const QImage drawn = small.rendered(quartz::Part::whole(small.size()));
    if (drawn.isNull())
        return;
    quartz::Drawing layer(canvas);
    quartz::Context(layer).drawImage({QPointF(0, 0), canvas}, drawn);
    setLayer(std::move(layer));
}

void BurstEffect::copyParametersTo(BurstEffect& copy) const
{
    copy.setUseBackImage(m_useBackImage);
    copy.setBgColor(m_bgColor);
    copy.seOpacity(m_opacity);
    copy.setLinesCount(m_linesCount);
    copy.setStartPoint(m_startPT);
    copy.setLineWidth(m_lineWidth);
    copy.setMZoom(m_imageZoom);
}

void BurstEffect::read(const CIDictionary& dictionary)
{
    AnchoredEffect::read(dictionary);
    readParameter(dictionary, "linesCount", m_linesCount);
    readParameter(dictionary, "lineWidth", m_lineWidth);
}

CIDictionary BurstEffect::save() const
{
    CIDictionary dictionary = AnchoredEffect::save();
    dictionary["linesCount"] = m_linesCount;
    dictionary["lineWidth"] = m_lineWidth;
    return dictionary;
}

void BurstEffect::changeLinesCount(EffectControl* sender)
{
    changeParameter(&BurstEffect::m_linesCount, &BurstEffect::setchangeLinesCountSender, sender, Redraw::Layer);
}

void BurstEffect::setchangeLinesCountSender(int count, EffectControl* sender)
{
    restoreParameter(&BurstEffect::m_linesCount, count, &BurstEffect::setchangeLinesCountSender, sender, Redraw::Layer);
}

void BurstEffect::changeLineWidth(EffectControl* sender)
{
    changeParameter(&BurstEffect::m_lineWidth, &BurstEffect::setchangeLineWidthSender, sender, Redraw::Layer);
}

void BurstEffect::setchangeLineWidthSender(double width, EffectControl* sender)
{
    restoreParameter(&BurstEffect::m_lineWidth, width, &BurstEffect::setchangeLineWidthSender, sender, Redraw::Layer);
}
