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

void GeneratedEffect::nameUndoStep(const EffectControl* sender)
{
    UndoManager* undo = undoManager();
    if (!undo || !sender || !sender->focusProxy())
        return; // a step that is taken back keeps its name
    QString caption = sender->focusProxy()->accessibleName();
    if (caption.endsWith(QLatin1Char(':')))
        caption.chop(1);
    undo->setActionName(EffectPanel::tr("Change to %1", "%1 is a parameter of an effect").arg(caption.trimmed()));
}

void GeneratedEffect::post(const char* notification)
{
    NotificationCenter::defaultCenter().postNotificationName(QString::fromLatin1(notification));
}

void GeneratedEffect::read(const CIDictionary& dictionary)
{
    BaseEffect::read(dictionary);
    readParameter(dictionary, "useBackImage", m_useBackImage);
    readParameter(dictionary, "bgColor", m_bgColor);
    readParameter(dictionary, "opacity", m_opacity);
}

CIDictionary GeneratedEffect::save() const
{
    CIDictionary dictionary = BaseEffect::save();
    dictionary["useBackImage"] = m_useBackImage;
    dictionary["bgColor"] = m_bgColor;
    dictionary["opacity"] = m_opacity;
    return dictionary;
}

void GeneratedEffect::changeBgColor(EffectControl* sender)
{
    changeParameter(&GeneratedEffect::m_bgColor, &GeneratedEffect::setchangeBgColorSender, sender, Redraw::Composite);
}

void GeneratedEffect::setchangeBgColorSender(CIColor color, EffectControl* sender)
{
    restoreParameter(
        &GeneratedEffect::m_bgColor, color, &GeneratedEffect::setchangeBgColorSender, sender, Redraw::Composite);
}

void GeneratedEffect::useBgImage(EffectControl* sender)
{
    changeParameter(&GeneratedEffect::m_useBackImage, &GeneratedEffect::setuseBgImageSender, sender, Redraw::Composite);
}

void GeneratedEffect::setuseBgImageSender(bool use, EffectControl* sender)
{
    restoreParameter(
        &GeneratedEffect::m_useBackImage, use, &GeneratedEffect::setuseBgImageSender, sender, Redraw::Composite);
}

void GeneratedEffect::changeOpacity(EffectControl* sender)
{
    changeParameter(&GeneratedEffect::m_opacity, &GeneratedEffect::setchangeOpacitySender, sender, Redraw::Composite);
}

void GeneratedEffect::setchangeOpacitySender(float percent, EffectControl* sender)
{
    restoreParameter(
        &GeneratedEffect::m_opacity, percent, &GeneratedEffect::setchangeOpacitySender, sender, Redraw::Composite);
}

// --- controls ---

void GeneratedEffect::setUpControlsView()
{
    if (!topControlsView)
        return;
    try {
        buildControls(EffectPanel::placedIn(*topControlsView));
    } catch (const std::exception& error) {
        qWarning("%s", error.what());
    }
}

void GeneratedEffect::addCommonControls(EffectPanel& panel, const QString& opacityLabel)
{
    panel.addColorWell({EffectPanel::tr("Background Color:"), EffectPanel::tr("The color laid over the background")},
        m_bgColor, action(&GeneratedEffect::changeBgColor));
    panel.addCheckBox({EffectPanel::tr("Background Image:"), EffectPanel::tr("Lay the effect over the picture")},
        m_useBackImage, action(&GeneratedEffect::useBgImage));
    panel.addSlider({opacityLabel, EffectPanel::tr("How much of what lies beneath the effect is covered, in percent")},
        {.min = 0, .max = 100}, m_opacity, action(&GeneratedEffect::changeOpacity));
}

void GeneratedEffect::addGenerateButton(EffectPanel& panel)
{
    panel.addPushButton(
        {EffectPanel::tr("Generate"), EffectPanel::tr("Draw the effect anew with other random numbers")},
        action(&GeneratedEffect::regenerate));
}
