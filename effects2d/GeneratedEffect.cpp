#include "effects2d/GeneratedEffect.h"

#include "effects2d/EffectMaster.h"
#include "effects2d/EffectPanel.h"
#include "platform/coreimage/CIBitmap.h"

#include <cstring>

#include <QPainter>

namespace {

constexpr int kBandHeight = 1024; // rows composited at a time for a picture at full size

QColor colorOf(const CIColor& c)
{
    const auto component = [](double v) { return float(std::clamp(v, 0.0, 1.0)); };
    return QColor::fromRgbF(component(c.red()), component(c.green()), component(c.blue()), component(c.alpha()));
}

} // namespace

// --- picture and layer ---

void GeneratedEffect::initEffect()
{
    loadImage();
    makeImageEffect();
}

void GeneratedEffect::loadImage()
{
    if (!m_image.isNull())
        return;
    EffectMaster* master = EffectMaster::mainController();
    if (!master) {
        clearFilter();
        return;
    }
    m_image = master->backImage();
    m_shownBack = {};
}

void GeneratedEffect::clearFilter()
{
    m_image = {};
    m_shownBack = {};
}

void GeneratedEffect::reloadImage()
{
    clearFilter();
    loadImage();
    makeImageEffect();
}

void GeneratedEffect::clearEffect()
{
    wasInit = false;
    clearFilter();
    clearTopControlsView();
    m_shownLayer = {};
}

QSizeF GeneratedEffect::canvasSize() const
{
    const QSizeF size = sizeOf(m_image);
    return size.isEmpty() ? kCanvasWithoutPicture : size;
}

void GeneratedEffect::makeImageEffect()
{
    quartz::Drawing layer(canvasSize());
    quartz::Context context(layer);
    drawMyself(context, {QPointF(0, 0), layer.size()});
    setLayer(std::move(layer));
}

void GeneratedEffect::setLayer(quartz::Drawing layer)
{
    m_effectImage = std::make_shared<const quartz::Drawing>(std::move(layer));
    m_shownLayer = {};
}

void GeneratedEffect::regenerate(EffectControl*)
{
    makeImageEffect();
    post();
}

// --- compositing ---

void GeneratedEffect::prepareToDraw()
{
    if (wasInit)
        return;
    initEffect();
    wasInit = true;
}

QSizeF GeneratedEffect::drawImageSize()
{
    if (!wasInit)
        loadImage();
    return wasInit && m_effectImage ? m_effectImage->size() : canvasSize();
}

GeneratedEffect::Composition GeneratedEffect::composition() const
{
    return {m_effectImage->size(), showsBackImage() ? m_image : CIImage(), m_bgColor, m_opacity};
}

/// The layer at its opacity over the tint over the picture.
QImage GeneratedEffect::Composition::composite(const quartz::Part& part, const QImage& back, const QImage& layer) const
{
    QImage result = back;
    if (result.isNull()) {
        result = QImage(part.size, QImage::Format_ARGB32_Premultiplied);
        result.fill(Qt::transparent);
    }
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    // Where the canvas ends within a pixel, the tint covers only its share.
    painter.fillRect(part.fromCanvas().mapRect(QRectF(QPointF(0, 0), canvas)), colorOf(tint));
    painter.setOpacity(std::clamp(opacity / 100.0, 0.0, 1.0));
    painter.drawImage(0, 0, layer);
    return result;
}

QImage GeneratedEffect::drawPart(const quartz::Part& part)
{
    prepareToDraw();
    if (!m_effectImage)
        return renderedPart(m_image, part);
    if (showsBackImage() && (m_shownBack.pixels.isNull() || m_shownBack.part != part))
        m_shownBack = {part, renderedPart(m_image, part)};
    if (m_shownLayer.pixels.isNull() || m_shownLayer.part != part)
        m_shownLayer = {part, m_effectImage->rendered(part)};
    // The copy made here keeps the pixels in `m_shownBack` as they are.
    return composition().composite(part, showsBackImage() ? m_shownBack.pixels.copy() : QImage(), m_shownLayer.pixels);
}

CIImage GeneratedEffect::getDrawImage()
{
    prepareToDraw();
    return m_effectImage ? composition().drawn(*m_effectImage, nullptr) : m_image;
}

BaseEffect::LaterImage GeneratedEffect::laterDrawImage()
{
    prepareToDraw();
    if (!m_effectImage)
        return BaseEffect::laterDrawImage();
    return [composition = composition(), layer = m_effectImage->detached()](
               CIRenderControl* control) { return composition.drawn(layer, control); };
}

/// In bands, so that there is no second picture in memory.
CIImage GeneratedEffect::Composition::drawn(const quartz::Drawing& layer, CIRenderControl* control) const
{
    const quartz::Part whole = quartz::Part::whole(canvas);
    CIBitmap bitmap(whole.size.width(), whole.size.height(), CIFormat::BGRA8, CIAlpha::Premultiplied);
    for (int y = 0; y < bitmap.height(); y += kBandHeight) {
        if (control && control->isCancelled())
            return {};
        const int height = std::min(kBandHeight, bitmap.height() - y);
        const quartz::Part band{1, 0, whole.top - y, {bitmap.width(), height}};
        const QImage pixels = composite(band, renderedPart(back, band), layer.rendered(band));
        for (int row = 0; row < height; ++row)
            std::memcpy(bitmap.mutableRow(y + row), pixels.constScanLine(row), std::size_t(bitmap.width()) * 4);
        if (control)
            control->setProgress(double(y + height) / bitmap.height());
    }
    return CIImage::fromBitmap(bitmap);
}

// --- parameters ---

EffectParameter GeneratedEffect::backgroundColor(const CIColor& start, const char* undoneTells)
{
    return {"bgColor", &GeneratedEffect::m_bgColor,
        {QT_TRANSLATE_NOOP("EffectPanel", "Background Color:"),
            QT_TRANSLATE_NOOP("EffectPanel", "The color laid over the background")},
        {.start = start, .redraw = ParameterFacts::Composite, .undoneTells = undoneTells}};
}

EffectParameter GeneratedEffect::backgroundImage()
{
    return {"useBackImage", &GeneratedEffect::m_useBackImage,
        {QT_TRANSLATE_NOOP("EffectPanel", "Background Image:"),
            QT_TRANSLATE_NOOP("EffectPanel", "Lay the effect over the picture")},
        {.start = true, .redraw = ParameterFacts::Composite}};
}

EffectParameter GeneratedEffect::layerOpacity(const char* label, double start)
{
    return {"opacity", &GeneratedEffect::m_opacity,
        {label, QT_TRANSLATE_NOOP("EffectPanel", "How much of what lies beneath the effect is covered, in percent")},
        {.start = start, .max = 100, .redraw = ParameterFacts::Composite}};
}

void GeneratedEffect::parameterChanged(const ParameterFacts& facts)
{
    if (facts.redraw == ParameterFacts::Layer)
        makeImageEffect();
}

void GeneratedEffect::buildControls(EffectPanel& panel)
{
    BaseEffect::buildControls(panel);
    panel.addPushButton(EffectPanel::tr("Generate"), EffectPanel::tr("Draw the effect anew with other random numbers"),
        action([this] { regenerate(nullptr); }));
}
