#include "app/window/Zooming.h"

#include "app/window/ZoomScale.h"
#include "widgets/ZoomedCanvas.h"
#include "widgets/ZoomSteps.h"

#include <QEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>

namespace {

// The slider counts whole steps.
constexpr float kSliderSteps = 10000; // per unit of its position
constexpr float kSmallestFit = 0.001f;
constexpr double kNoZoom = -50; // a sentinel of the views

} // namespace

Zooming::Zooming(QSlider& slider, QLabel& field, QWidget& area, std::vector<Canvas> canvases, Source source)
    : m_slider(slider)
    , m_field(field)
    , m_area(area)
    , m_canvases(std::move(canvases))
    , m_source(std::move(source))
{
    slider.setRange(0, int(kZoomSliderEnd * kSliderSteps));
    slider.setSingleStep(int(0.1f * kSliderSteps));
    slider.setPageStep(int(kSliderSteps));
    connect(&slider, &QSlider::valueChanged, this, &Zooming::takeSlider);
    field.installEventFilter(this);
    area.installEventFilter(this);
    for (const Canvas& each : m_canvases)
        connect(&each.canvas, &ZoomedCanvas::layoutChanged, this, &Zooming::showPercent);
}

void Zooming::showPercent()
{
    if (const ZoomedCanvas* canvas = m_source.canvas())
        m_field.setText(canvas->canvasValue());
}

void Zooming::setZoom(float zoom)
{
    const QSignalBlocker quiet(m_slider);
    const float position = std::min(std::max(sliderPositionOfZoom(zoom), 0.0f), kZoomSliderEnd);
    m_slider.setValue(int(std::lround(position * kSliderSteps)));
}

void Zooming::takeZoom(float zoom)
{
    m_isFitted = false;
    setZoom(zoom);
}

void Zooming::show()
{
    if (const ZoomedCanvas* canvas = m_source.canvas())
        setZoom(canvas->getZoom());
    showPercent();
}

void Zooming::layOut()
{
    if (ZoomedCanvas* canvas = m_source.canvas())
        canvas->setZoom(canvas->getZoom(), canvas->getZoom());
    show();
}

void Zooming::showIn(QWidget& control)
{
    m_slider.setEnabled(isPossible());
    control.setVisible(isPossible());
    if (isPossible())
        layOut();
    else
        emit zoomed();
}

void Zooming::takeSlider()
{
    m_isFitted = false;
    if (ZoomedCanvas* canvas = m_source.canvas())
        canvas->setZoom(zoomOfSliderPosition(float(m_slider.value()) / kSliderSteps));
    emit zoomed();
}

void Zooming::zoomTo(float zoom)
{
    setZoom(zoom);
    takeSlider();
}

void Zooming::zoomBy(double delta)
{
    const ZoomedCanvas* canvas = m_source.canvas();
    if (!canvas)
        return;
    const double zoom = double(canvas->getZoom()) + delta;
    const bool isLess = delta < 0 && canvas->getZoom() <= float(kSmallestZoom);
    if (zoom != kNoZoom && !isLess)
        zoomTo(float(zoom));
}

void Zooming::step(int direction)
{
    const ZoomedCanvas* canvas = m_source.canvas();
    if (!canvas)
        return;
    const float zoom = zoomAfterWheelStep(canvas->getZoom(), direction);
    if (zoom != canvas->getZoom())
        zoomTo(zoom);
}

void Zooming::fit()
{
    const QSizeF picture = m_source.pictureSize();
    const int scroller = m_area.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &m_area);
    const QSize area = m_area.size() - QSize(scroller, scroller);
    for (const Canvas& each : m_canvases) {
        const QSizeF size = picture.isEmpty() ? each.withoutPicture : picture;
        each.canvas.setZoom(zoomThatFits(size.width(), size.height(), area.width(), area.height()), kSmallestFit);
    }
    m_isFitted = true;
    show();
}

void Zooming::zoomToFit()
{
    fit();
    emit zoomed();
}

void Zooming::fitAgain()
{
    if (m_isFitted)
        zoomToFit();
}

bool Zooming::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_area && event->type() == QEvent::Resize) // the canvases have their new size after that
        QMetaObject::invokeMethod(this, &Zooming::fitAgain, Qt::QueuedConnection);
    const ZoomedCanvas* canvas = m_source.canvas();
    if (watched != &m_field || event->type() != QEvent::MouseButtonDblClick || !canvas)
        return QObject::eventFilter(watched, event);
    if (canvas->getZoom() == 1)
        zoomToFit();
    else
        zoomTo(1);
    return true;
}
