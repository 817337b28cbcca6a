#include "app/Controller.h"
#include "app/document/PictureOpening.h"
#include "app/document/Turning.h"
#include "app/window/MainWindow.h"
#include "app/window/ZoomScale.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "effects2d/customEffImageView.h"
#include "effects2d/GeneratedEffect.h"
#include "files/PictureLimits.h"
#include "files/PlainPicture.h"
#include "platform/chain/Baking.h"
#include "platform/coreimage/passes/Resample.h"
#include "platform/foundation/Pasteboard.h"
#include "platform/imageio/PictureWriter.h"
#include "ui_MainWindow.h"
#include "widgets/AlertPanel.h"
#include "widgets/BackgroundWork.h"
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

/// Beside the living window; null when there is no memory for it, which the user is told. Soon done, so not to be
/// stopped.
CIImage Controller::turned(const QString& title, const std::function<CIImage()>& turn)
{
    CIImage picture;
    WorkControl control(1);
    control.canBeCancelled = false;
    const bool needsCopies = m_modes.current().needsReducedCopies();
    if (!workInBackground(&m_window, title, control, [&] {
            picture = turn();
            if (needsCopies)
                makeReducedCopies(picture);
        })) {
        showMessage(tr("There was not enough memory to turn the picture"));
        return {};
    }
    return picture;
}

void Controller::rotateImage(bool left)
{
    if (!m_document.picture() || isOpening())
        return;
    const CIImage rotated =
        turned(tr("Rotating the picture…"), [&] { return rotatedPicture(m_document.picture(), left); });
    if (!rotated)
        return;
    m_undoManager.registerUndoWithTarget(this, [this, left] { rotateImage(!left); });
    if (!m_undoManager.isUndoing()) // the redo is called what it does, not what the undo does
        m_undoManager.setActionName(left ? tr("Rotate Left") : tr("Rotate Right"));
    setBackgroundImage(rotated);
    customEffectsView->setZoom(customEffectsView->getZoom()); // lays itself out for the new size
}

void Controller::flipImage(bool vertical)
{
    if (!m_document.picture() || isOpening())
        return;
    const CIImage flipped =
        turned(tr("Flipping the picture…"), [&] { return flippedPicture(m_document.picture(), vertical); });
    if (!flipped)
        return;
    m_undoManager.registerUndoWithTarget(this, [this, vertical] { flipImage(!vertical); });
    if (!m_undoManager.isUndoing())
        m_undoManager.setActionName(vertical ? tr("Flip Vertical") : tr("Flip Horizontal"));
    setBackgroundImage(flipped);
}

void Controller::resizeImageHeight(float width, float height)
{
    if (!m_document.picture() || isOpening())
        return;
    if (!(width > 0 && height > 0)) {
        AlertPanel::Alert_OKMsgText(
            &m_window, tr("The picture can't have that size."), tr("Its width and its height are numbers above zero."));
        return;
    }
    const std::optional<QSize> size = pixelSize(width, height);
    if (!size || !fitsIntoMemory(*size, m_document.format())) {
        AlertPanel::Alert_OKMsgText(&m_window, tr("The picture can't be made that large."),
            tr("Up to %1 million pixels fit into this computer's memory.")
                .arg(largestPixelCount(m_document.format()) / 1'000'000));
        return;
    }
    CIImage resized;
    WorkControl control(1);
    const CIImage recipe = ci::resampled(m_document.picture(), size->width(), size->height());
    workInBackground(&m_window, tr("Resizing the picture…"), control,
        [&] { resized = bakedImage(*m_document.context(), recipe, m_document.format(), &control.rendering); });
    if (resized) {
        m_document.replacePicture(resized, tr("Resize"));
        m_document.setWasChanged(true);
    } else if (!control.isCancelled()) {
        showMessage(tr("There was not enough memory to resize the picture"));
    }
}

void Controller::copy()
{
    if (isOpening())
        return;
    const BaseEffect::LaterImage image = laterEffectedImage();
    if (!image)
        return;
    CIBitmap bitmap;
    std::vector<std::byte> tiff;
    QImage shown;
    WorkControl control(0.5);
    workInBackground(&m_window, tr("Copying the picture…"), control, [&] {
        bitmap =
            renderedBitmap(*m_document.context(), image(&control.rendering), m_document.format(), &control.rendering);
        Result<std::vector<std::byte>> encoded =
            encodePicture(bitmap, {.format = PictureFormat::Tiff, .control = &control.writing});
        if (encoded)
            tiff = std::move(encoded.value());
        shown = screenPicture(bitmap);
    });
    if (tiff.empty()) {
        if (!control.isCancelled())
            showMessage(tr("There was not enough memory to copy the picture"));
        return;
    }
    Pasteboard::generalPasteboard().setPicture(
        QByteArray(reinterpret_cast<const char*>(tiff.data()), qsizetype(tiff.size())), shown);
    updateMainBtnState();
}

void Controller::paste()
{
    const QByteArray data = isOpening() ? QByteArray() : Pasteboard::generalPasteboard().pictureData();
    if (data.isEmpty())
        return;
    PictureRead read;
    WorkControl control(1);
    workInBackground(&m_window, tr("Pasting the picture…"), control, [&] {
        read = readUnlessCancelled(
            [data](const ReadOptions& options) { return readPictureData(data, options); }, control.rendering);
    });
    if (control.isCancelled())
        return;
    m_document.replaceByForeignPicture(m_document.take(read));
    m_undoManager.setActionName(tr("Paste"));
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
