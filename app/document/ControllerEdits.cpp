#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "app/window/ZoomScale.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "effects2d/customEffImageView.h"
#include "effects2d/GeneratedEffect.h"
#include "ui_MainWindow.h"
#include "widgets/ZoomSteps.h"

#include <QSignalBlocker>
#include <QStyle>

namespace {

// The slider counts whole steps.
constexpr float kSliderSteps = 10000; // per unit of its position
constexpr double kNoZoom = -50; // a sentinel of the views

} // namespace

void Controller::connectZoom()
{
    zoomSlider->setRange(0, int(kZoomSliderEnd * kSliderSteps));
    zoomSlider->setSingleStep(int(0.1f * kSliderSteps));
    zoomSlider->setPageStep(int(kSliderSteps));
    connect(zoomSlider, &QSlider::valueChanged, this, &Controller::zoomChanged);
    for (ZoomedCanvas* view : {static_cast<ZoomedCanvas*>(ciView), static_cast<ZoomedCanvas*>(customEffectsView)})
        connect(view, &ZoomedCanvas::layoutChanged, this, &Controller::showZoom);
}

void Controller::showZoom()
{
    if (const ZoomedCanvas* canvas = m_modes.current().canvas())
        ui.zoomField->setText(tr("%1 %").arg(std::lround(canvas->getZoom() * 100)));
}

/// Slider and field, which belong to the modes with a canvas.
void Controller::showZoomOfMode()
{
    ZoomedCanvas* canvas = m_modes.current().canvas();
    zoomSlider->setEnabled(canvas);
    zoomSuperView->setVisible(canvas);
    if (!canvas)
        return updateView();
    canvas->setZoom(canvas->getZoom());
    setZoom(canvas->getZoom());
    showZoom();
}

void Controller::fitZoom()
{
    const CIRect extent = m_document.picture().extent();
    const int scroller = m_window.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, ui.pictureScrollView);
    const QSize area = ui.pictureScrollView->size() - QSize(scroller, scroller);
    const float zoom = zoomThatFits(extent.width, extent.height, area.width(), area.height());
    // Effects are drawn without a picture, too.
    const QSizeF canvas = GeneratedEffect::kCanvasWithoutPicture;
    const float customZoom =
        extent.isEmpty() ? zoomThatFits(canvas.width(), canvas.height(), area.width(), area.height()) : zoom;
    ciView->setZoom(zoom);
    customEffectsView->setZoom(customZoom);
    if (const ZoomedCanvas* canvas = m_modes.current().canvas())
        setZoom(canvas->getZoom());
}

void Controller::zoomChanged()
{
    if (ZoomedCanvas* canvas = m_modes.current().canvas())
        canvas->setZoom(zoomOfSliderPosition(float(zoomSlider->value()) / kSliderSteps));
    updateView();
}

void Controller::setZoom(float zoom)
{
    const QSignalBlocker quiet(zoomSlider);
    const float position = std::min(std::max(sliderPositionOfZoom(zoom), 0.0f), kZoomSliderEnd);
    zoomSlider->setValue(int(std::lround(position * kSliderSteps)));
}

void Controller::updateZoommWithDelta(double delta)
{
    const ZoomedCanvas* canvas = m_modes.current().canvas();
    const double zoom = canvas ? double(canvas->getZoom()) + delta : kNoZoom;
    if (zoom != kNoZoom)
        zoomTo(float(zoom));
}

void Controller::zoomTo(float zoom)
{
    setZoom(zoom);
    zoomChanged();
}

void Controller::zoomIn() { zoomTo(zoomAfterWheelStep(m_modes.current().canvas()->getZoom(), 1)); }

void Controller::zoomOut() { zoomTo(zoomAfterWheelStep(m_modes.current().canvas()->getZoom(), -1)); }

void Controller::zoomToFit()
{
    fitZoom();
    updateView();
}
