// Mouse, wheel, pinch and keys on the picture view.
#include "controls/MyImageView.h"
#include "controls/MyImageViewPrivate.h"
#include "controls/PictureScrollView.h"
#include "controls/ZoomSteps.h"

#include <cmath>

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>

namespace {

constexpr double kWheelNotch = 120; // eighths of a degree: one click of an ordinary wheel

std::vector<ControlPoint> pointsOf(ImageViewMaster* master)
{
    const std::shared_ptr<CIFilter> filter = master ? master->getCurrentFilter() : nullptr;
    return filter ? controlPoints(*filter) : std::vector<ControlPoint>();
}

} // namespace

// --- zoom ---

void MyImageView::wheelEvent(QWheelEvent* event)
{
    event->accept();
    const double delta = event->angleDelta().x() + event->angleDelta().y();
    // Fine wheels and touchpads send parts of a notch; together they make one step.
    d->wheelRest = delta * d->wheelRest < 0 ? delta : d->wheelRest + delta;
    if (std::abs(d->wheelRest) < kWheelNotch)
        return;
    const double direction = std::exchange(d->wheelRest, 0);
    const QScopedValueRollback mouse(d->eventMouse, std::optional(toPicture(event->position())));
    prev_zoom = zoom;
    zoom = zoomAfterWheelStep(zoom, direction);
    resizeViewBoundCenter(true, int(PictureCenter::Toward));
    if (controller)
        controller->setZoom(zoom);
}

bool MyImageView::event(QEvent* event)
{
    if (event->type() == QEvent::NativeGesture && controller) {
        const auto* gesture = static_cast<QNativeGestureEvent*>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture) {
            const QScopedValueRollback mouse(d->eventMouse, std::optional(toPicture(gesture->position())));
            controller->updateZoommWithDelta(gesture->value());
            event->accept();
            return true;
        }
    }
    if (event->type() == QEvent::ShortcutOverride) {
        // Arrow keys belong to the selected point, even where a menu uses them.
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (d->selected && (key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down)) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

// --- hover ---

void MyImageView::enterEvent(QEnterEvent* event)
{
    mouseEntered();
    hover(event->position());
}

void MyImageView::leaveEvent(QEvent*) { mouseExited(); }

void MyImageView::mouseEntered()
{
    if (!controller || !controller->isControlsPresent())
        return;
    displayingPoints = true;
    updateCursor();
    update();
}

void MyImageView::mouseExited()
{
    displayingPoints = false;
    d->hovered.reset();
    updateCursor();
    update();
}

void MyImageView::hover(const QPointF& position)
{
    // Another filter may have been chosen by key while the mouse rested here.
    const bool present = controller && controller->isControlsPresent();
    if (present != displayingPoints)
        present ? mouseEntered() : mouseExited();
    const std::vector<ControlPoint> points = pointsOf(present ? controller : nullptr);
    const auto nearest = nearestControlPoint(points, toPicture(position));
    if (nearest != std::exchange(d->hovered, nearest))
        update();
}

void MyImageView::updateCursor()
{
    if (d->panFrom)
        setCursor(Qt::ClosedHandCursor);
    else if (d->spaceHeld)
        setCursor(Qt::OpenHandCursor);
    else
        setCursor(displayingPoints ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

// --- dragging ---

bool MyImageView::isPanStart(const QMouseEvent& event) const
{
    return event.button() == Qt::MiddleButton || (event.button() == Qt::LeftButton && d->spaceHeld);
}

void MyImageView::startPan(const QPointF& position)
{
    const CIRect clip = d->scrollView->clipBounds();
    d->panFrom = position;
    d->panScroll = {clip.x, clip.y};
    updateCursor();
}

void MyImageView::endPan()
{
    d->panFrom.reset();
    updateCursor();
}

void MyImageView::mousePressEvent(QMouseEvent* event)
{
    if (isPanStart(*event)) {
        startPan(event->position());
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    movingNow = true;
    parmIndex = -1;
    parmKey.clear();
    parmMode = ParmMode::kNothing;
    const std::vector<ControlPoint> points = pointsOf(controller);
    // However far away it is: small marks need no aim.
    if (const auto nearest = nearestControlPoint(points, toPicture(event->position()))) {
        parmIndex = 0;
        parmKey = points[*nearest].key;
        parmMode = points[*nearest].mode;
        if (d->selected)
            d->selected = nearest;
    }
    update();
}

void MyImageView::mouseMoveEvent(QMouseEvent* event)
{
    if (d->panFrom) {
        const QPointF moved = event->position() - *d->panFrom;
        d->scrollView->setScrollPosition({d->panScroll.x - moved.x(), d->panScroll.y + moved.y()});
    } else if (movingNow) {
        dragGrabbedPoint(toPicture(event->position()));
    } else {
        hover(event->position());
    }
}

void MyImageView::mouseReleaseEvent(QMouseEvent* event)
{
    if (d->panFrom && event->button() != Qt::RightButton) {
        endPan();
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    movingNow = false;
    hover(event->position());
    update();
}

void MyImageView::dragGrabbedPoint(CIPoint to)
{
    const std::shared_ptr<CIFilter> filter = controller ? controller->getCurrentFilter() : nullptr;
    if (!filter || parmMode == ParmMode::kNothing || parmIndex == -1)
        return;
    const std::optional<DraggedValue> dragged = draggedValue(filter->valueForKey(parmKey), parmMode, to);
    if (!dragged)
        return;
    parmMode = dragged->mode;
    controller->setFilterValueForKey(*filter, dragged->value, parmKey);
    controller->setActionNameForFilterKey(*filter, parmKey);
    setNeedsDisplay();
}

// --- keys ---

bool MyImageView::focusNextPrevChild(bool next)
{
    const std::size_t count = pointsOf(controller).size();
    // Entering by Tab selects nothing yet, so that nobody is caught here who only passes by.
    std::optional<std::size_t> wanted;
    if (count > 0 && !d->selected)
        wanted = next ? 0 : count - 1;
    else if (count > 0 && (next ? *d->selected + 1 < count : *d->selected > 0))
        wanted = *d->selected + (next ? 1 : -1);
    selectPoint(wanted);
    return wanted.has_value() || QWidget::focusNextPrevChild(next);
}

void MyImageView::selectPoint(std::optional<std::size_t> index)
{
    d->selected = index;
    update();
}

void MyImageView::focusOutEvent(QFocusEvent* event)
{
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        selectPoint({});
    d->spaceHeld = false;
    endPan();
    QWidget::focusOutEvent(event);
}

bool MyImageView::moveSelectedPoint(int key, bool far)
{
    const std::shared_ptr<CIFilter> filter = controller ? controller->getCurrentFilter() : nullptr;
    const std::vector<ControlPoint> points = pointsOf(controller);
    if (!filter || !d->selected || *d->selected >= points.size())
        return false;
    const ControlPoint& point = points[*d->selected];
    const double step = far ? 10 : 1; // picture pixels
    CIPoint to = point.position;
    switch (key) {
    case Qt::Key_Left:
        to.x -= step;
        break;
    case Qt::Key_Right:
        to.x += step;
        break;
    case Qt::Key_Down:
        to.y -= step;
        break;
    case Qt::Key_Up:
        to.y += step;
        break;
    default:
        return false;
    }
    const std::optional<DraggedValue> dragged = draggedValue(filter->valueForKey(point.key), point.mode, to);
    controller->setFilterValueForKey(*filter, dragged->value, point.key);
    controller->setActionNameForFilterKey(*filter, point.key);
    setNeedsDisplay();
    return true;
}

void MyImageView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        d->spaceHeld = true;
        updateCursor();
    } else if (event->key() == Qt::Key_Escape && d->selected) {
        selectPoint({});
    } else if (event->key() != Qt::Key_Space
        && !moveSelectedPoint(event->key(), event->modifiers() & Qt::ShiftModifier)) {
        QWidget::keyPressEvent(event); // the scroll view scrolls
    }
}

void MyImageView::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space) {
        QWidget::keyReleaseEvent(event);
    } else if (!event->isAutoRepeat()) {
        d->spaceHeld = false;
        updateCursor();
    }
}

// --- menu ---

void MyImageView::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    mouseContentMenu(byKey ? mapToGlobal(rect().center()) : event->globalPos());
}

void MyImageView::mouseContentMenu(const QPoint& globalPosition)
{
    QMenu* menu = controller ? controller->contextMenu() : nullptr;
    if (!menu)
        return;
    QFont font = menu->font();
    font.setPixelSize(11);
    menu->setFont(font);
    menu->popup(globalPosition);
}
