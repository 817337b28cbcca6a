#include "widgets/ZoomedCanvas.h"

#include "widgets/CanvasScrollView.h"
#include "widgets/PictureLayout.h"
#include "widgets/ZoomSteps.h"

#include <cmath>
#include <utility>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QWheelEvent>

namespace {

constexpr double kWheelNotch = 120; // eighths of a degree: one click of an ordinary wheel

} // namespace

ZoomedCanvas::ZoomedCanvas(CanvasScrollView* scrollView)
    : QWidget(scrollView)
    , m_scrollView(scrollView)
{
    installAccessibleCanvas();
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

// --- layout ---

void ZoomedCanvas::setZoom(float newZoom, float smallest)
{
    zoom = newZoom >= smallest && newZoom < float(kSmallestZoom) ? newZoom : clampedZoom(newZoom);
    resizeViewBoundCenter(true, int(PictureCenter::Toward));
}

QString ZoomedCanvas::canvasValue() const { return tr("%1 %").arg(std::lround(zoom * 100)); }

void ZoomedCanvas::resizeViewBoundCenter(bool force, int center)
{
    const PictureLayout layout = layOutPicture({.clip = m_scrollView->clipBounds(),
        .pictureSize = pictureSize(),
        .oldBounds = m_bounds,
        .zoom = zoom,
        .previousZoom = prev_zoom,
        .mouse = m_eventMouse,
        .force = force,
        .center = PictureCenter(center)});
    if (!layout.unchanged) {
        if (std::exchange(m_bounds, layout.bounds) != layout.bounds)
            boundsResized();
        prev_zoom = zoom;
        m_scrollView->setFrameSize(layout.frameSize);
        if (layout.scrollTo)
            m_scrollView->setScrollPosition(
                {(layout.scrollTo->x - m_bounds.x) * zoom, (layout.scrollTo->y - m_bounds.y) * zoom});
    }
    viewTransformOffsetX = float(-m_bounds.x);
    viewTransformOffsetY = float(-m_bounds.y);
    update();
    emit layoutChanged();
}

void ZoomedCanvas::visibleSizeChanged(const QSizeF& before)
{
    const CIRect clip = m_scrollView->clipBounds();
    const CIPoint center{
        m_bounds.x + (clip.x + before.width() / 2) / zoom, m_bounds.y + (clip.y + before.height() / 2) / zoom};
    resizeViewBoundCenter(true, int(PictureCenter::None));
    const CIRect after = m_scrollView->clipBounds();
    m_scrollView->setScrollPosition(
        {(center.x - m_bounds.x) * zoom - after.width / 2, (center.y - m_bounds.y) * zoom - after.height / 2});
}

CIRect ZoomedCanvas::visibleRect() const
{
    const CIRect clip = m_scrollView->clipBounds();
    return {m_bounds.x + clip.x / zoom, m_bounds.y + clip.y / zoom, clip.width / zoom, clip.height / zoom};
}

/// The place of the view's origin, moved to the nearest corner of a device pixel.
QPointF ZoomedCanvas::toWidget(CIPoint picture) const
{
    const CIRect seen = visibleRect();
    const double ratio = devicePixelRatioF();
    const auto snapped = [&](double v, double offset) { return (std::round(v * ratio + offset) - offset) / ratio; };
    return {snapped(-seen.x * zoom, m_subpixel.x()) + picture.x * zoom,
        snapped((seen.y + seen.height) * zoom, m_subpixel.y()) - picture.y * zoom};
}

CIPoint ZoomedCanvas::toPicture(const QPointF& widget) const
{
    const QPointF origin = toWidget({0, 0});
    return {(widget.x() - origin.x()) / zoom, (origin.y() - widget.y()) / zoom};
}

void ZoomedCanvas::setSubpixel(const QPainter& painter)
{
    const QTransform device = painter.deviceTransform();
    m_subpixel = {device.dx() - std::floor(device.dx()), device.dy() - std::floor(device.dy())};
}

// --- zoom ---

void ZoomedCanvas::wheelEvent(QWheelEvent* event)
{
    event->accept();
    const double delta = event->angleDelta().x() + event->angleDelta().y();
    // Fine wheels and touchpads send parts of a notch; together they make one step.
    m_wheelRest = delta * m_wheelRest < 0 ? delta : m_wheelRest + delta;
    if (std::abs(m_wheelRest) < kWheelNotch)
        return;
    const double direction = std::exchange(m_wheelRest, 0);
    const QScopedValueRollback mouse(m_eventMouse, std::optional(toPicture(event->position())));
    prev_zoom = zoom;
    zoom = zoomAfterWheelStep(zoom, direction);
    resizeViewBoundCenter(true, int(PictureCenter::Toward));
    zoomedByWheel(zoom);
}

bool ZoomedCanvas::event(QEvent* event)
{
    if (event->type() == QEvent::NativeGesture) {
        const auto* gesture = static_cast<QNativeGestureEvent*>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture) {
            const QScopedValueRollback mouse(m_eventMouse, std::optional(toPicture(gesture->position())));
            pinched(gesture->value());
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

// --- moving the picture about, and the left button ---

void ZoomedCanvas::updateCursor()
{
    if (m_panFrom)
        setCursor(Qt::ClosedHandCursor);
    else
        setCursor(m_spaceHeld ? Qt::OpenHandCursor : pointer());
}

void ZoomedCanvas::setSpaceHeld(bool held)
{
    m_spaceHeld = held;
    updateCursor();
}

void ZoomedCanvas::endPan()
{
    m_panFrom.reset();
    updateCursor();
}

void ZoomedCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && m_spaceHeld)) {
        const CIRect clip = m_scrollView->clipBounds();
        m_panFrom = event->position();
        m_panScroll = {clip.x, clip.y};
        updateCursor();
    } else if (event->button() == Qt::LeftButton) {
        m_dragging = true;
        pressed(toPicture(event->position()));
    }
}

void ZoomedCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (m_panFrom) {
        const QPointF moved = event->position() - *m_panFrom;
        m_scrollView->setScrollPosition({m_panScroll.x - moved.x(), m_panScroll.y + moved.y()});
    } else if (m_dragging) {
        dragged(toPicture(event->position()));
    } else {
        hovered(event->position());
    }
}

void ZoomedCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_panFrom && event->button() != Qt::RightButton) {
        endPan();
    } else if (m_dragging && event->button() == Qt::LeftButton) {
        m_dragging = false;
        released(toPicture(event->position()));
    }
}

void ZoomedCanvas::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space) {
        QWidget::keyPressEvent(event); // the scroll view scrolls
    } else if (!event->isAutoRepeat()) {
        setSpaceHeld(true);
    }
}

void ZoomedCanvas::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space) {
        QWidget::keyReleaseEvent(event);
    } else if (!event->isAutoRepeat()) {
        setSpaceHeld(false);
    }
}

void ZoomedCanvas::focusOutEvent(QFocusEvent* event)
{
    m_spaceHeld = false;
    endPan();
    QWidget::focusOutEvent(event);
}
