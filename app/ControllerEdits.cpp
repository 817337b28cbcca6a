#include "app/Controller.h"
#include "app/MainWindow.h"
#include "app/ZoomScale.h"
#include "controls/MyImageView.h"
#include "controls/PictureScrollView.h"
#include "widgets/ZoomSteps.h"
#include "platform/foundation/Pasteboard.h"
#include "platform/imageio/PictureReader.h"
#include "ui_MainWindow.h"

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
    connect(ciView, &MyImageView::layoutChanged, this,
        [this] { ui.zoomField->setText(tr("%1 %").arg(std::lround(ciView->getZoom() * 100))); });
}

void Controller::registerUndoPaste()
{
    m_undoManager.registerUndoWithTarget(this, [this, old = backgroundImage] { undoPaste(old); });
}

void Controller::paste()
{
    const QByteArray data = Pasteboard::generalPasteboard().pictureData();
    if (data.isEmpty())
        return;
    registerUndoPaste();
    m_undoManager.setActionName(tr("Paste"));
    const Result<CIBitmap> read = readPicture(std::as_bytes(std::span(data.data(), std::size_t(data.size()))));
    CIImage image;
    if (read) {
        image = CIImage::fromBitmap(read.value());
        m_formats.remember(image, read.value().format());
        m_readFailure.clear();
    } else {
        m_readFailure = QString::fromStdString(read.message());
    }
    setBackgroundImage(image);
    if (filerMode() == Standard)
        setZoom(ciView->getZoom());
}

void Controller::undoPaste(const CIImage& image)
{
    registerUndoPaste();
    setBackgroundImage(image);
    if (filerMode() == Standard)
        setZoom(ciView->getZoom());
}

void Controller::fitZoom()
{
    const CIRect extent = backgroundImage.extent();
    const int scroller = m_window.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, ui.pictureScrollView);
    const QSize area = ui.pictureScrollView->size();
    const float zoom = zoomThatFits(extent.width, extent.height, area.width() - scroller, area.height() - scroller);
    setZoom(zoom);
    ciView->setZoom(zoom);
}

void Controller::zoomChanged()
{
    if (filerMode() == Standard)
        ciView->setZoom(zoomOfSliderPosition(float(zoomSlider->value()) / kSliderSteps));
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
    if (filerMode() != Standard)
        return;
    const double zoom = double(ciView->getZoom()) + delta;
    if (zoom == kNoZoom)
        return;
    zoomTo(float(zoom));
}

void Controller::zoomTo(float zoom)
{
    setZoom(zoom);
    zoomChanged();
}

void Controller::zoomIn() { zoomTo(zoomAfterWheelStep(ciView->getZoom(), 1)); }

void Controller::zoomOut() { zoomTo(zoomAfterWheelStep(ciView->getZoom(), -1)); }

void Controller::zoomToFit()
{
    fitZoom();
    updateView();
}
