// Mouse, wheel, pinch and keys on the picture view.
#include "controls/picture/MyImageView.h"
#include "controls/picture/MyImageViewPrivate.h"

#include <cmath>
#include <utility>

#include <QCoreApplication>
#include <QEnterEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineF>

namespace {

constexpr double kFarDrag = 24; // points: what takes the picture along is no trembling hand

constexpr double kReach = 12; // points from a layer's corner that still take hold of it

} // namespace

// --- points ---

const std::vector<FreeLayer>& MyImageView::layers() const
{
    const std::shared_ptr<CIFilter> filter = controller ? controller->getCurrentFilter() : nullptr;
    if (!d->areLayersKnown || d->layersOf.lock() != filter) {
        d->areLayersKnown = true;
        d->layersOf = filter;
        d->layers = filter ? freeLayers(*filter, controller->backImage().extent()) : std::vector<FreeLayer>();
    }
    return d->layers;
}

std::vector<ControlPoint> MyImageView::points() const
{
    const std::shared_ptr<CIFilter> filter = controller ? controller->getCurrentFilter() : nullptr;
    if (!filter)
        return {};
    std::vector<ControlPoint> all = controlPoints(*filter);
    const std::vector<ControlPoint> more = layerPoints(*filter, layers());
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

/// Where layers lie they are taken hold of; else the nearest point of an input, however far away it is: small marks
/// need no aim.
std::optional<std::size_t> MyImageView::pointAt(const std::vector<ControlPoint>& points, CIPoint place) const
{
    if (const auto found =
            layers().empty() ? std::nullopt : layerPointAt(points, layers(), place, kReach / double(zoom)))
        return found;
    const std::size_t stated = points.size() - layerPoints(*controller->getCurrentFilter(), layers()).size();
    return nearestControlPoint(std::span(points).first(stated), place);
}

/// As the user has dragged it.
void MyImageView::setPoint(const CIFilter& filter, const std::string& key, std::uint32_t mode, CIPoint to)
{
    const auto set = [&](const CIValue& value) {
        controller->setFilterValueForKey(*controller->getCurrentFilter(), value, key);
        controller->setActionNameForFilterKey(filter, key);
        setNeedsDisplay();
    };
    if (!isLayerMode(mode)) {
        if (const std::optional<DraggedValue> dragged = draggedValue(filter.valueForKey(key), mode, to)) {
            if (movingNow)
                parmMode = dragged->mode;
            set(dragged->value);
        }
        return;
    }
    for (const FreeLayer& layer : std::vector<FreeLayer>(layers()))
        if (layer.placeKey == key)
            set(draggedLayer(layer, mode, to).vector());
}

bool MyImageView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // Arrow keys belong to the selected point, even where a menu uses them.
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (d->selected && (key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down)) {
            event->accept();
            return true;
        }
        if (key == Qt::Key_Escape && d->pick) {
            event->accept();
            return true;
        }
    }
    return ControlledCanvas::event(event);
}

// --- hover ---

void MyImageView::enterEvent(QEnterEvent* event)
{
    mouseEntered();
    hover(event->position());
}

void MyImageView::leaveEvent(QEvent*) { mouseExited(); }

Qt::CursorShape MyImageView::pointer() const
{
    if (d->pick)
        return Qt::CrossCursor;
    return displayingPoints ? Qt::PointingHandCursor : Qt::ArrowCursor;
}

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
    const std::vector<ControlPoint> all = present ? points() : std::vector<ControlPoint>();
    const auto nearest = all.empty() ? std::nullopt : pointAt(all, toPicture(position));
    if (nearest != std::exchange(d->hovered, nearest))
        update();
}

// --- a place that is asked for ---

void MyImageView::pickPlace(std::function<void(std::optional<CIPoint>)> take)
{
    endPicking({});
    if (take)
        setFocus();
    d->pick = std::move(take);
    updateCursor();
}

bool MyImageView::isPickingPlace() const { return d->pick != nullptr; }

void MyImageView::endPicking(std::optional<CIPoint> place)
{
    if (!d->pick)
        return;
    const auto take = std::exchange(d->pick, nullptr);
    updateCursor();
    take(place);
}

// --- dragging ---

/// From press to release: one step of undo.
void MyImageView::beginChange()
{
    endChange();
    d->isChanging = controller;
    if (controller)
        controller->beginChange();
}

void MyImageView::endChange()
{
    if (std::exchange(d->isChanging, false) && controller)
        controller->endChange();
}

/// Nobody hears of a release then.
void MyImageView::hideEvent(QHideEvent* event)
{
    endChange();
    ControlledCanvas::hideEvent(event);
}

void MyImageView::pressed(CIPoint point)
{
    movingNow = true;
    parmIndex = -1;
    parmKey.clear();
    parmMode = ParmMode::kNothing;
    if (d->pick)
        return endPicking(
            controller && controller->backImage().extent().contains(point) ? std::optional(point) : std::nullopt);
    const std::vector<ControlPoint> all =
        d->showsOriginal ? std::vector<ControlPoint>() : points(); // none is seen on it
    const bool isPicture = QGuiApplication::keyboardModifiers() & Qt::ControlModifier;
    if (const auto nearest = all.empty() ? std::nullopt : pointAt(all, point); nearest && !isPicture) {
        const ControlPoint& taken = all[*nearest];
        parmIndex = 0;
        parmKey = taken.key;
        parmMode = taken.mode;
        const bool jumps = !isLayerMode(parmMode);
        d->grabOffset = jumps ? CIPoint() : CIPoint(taken.position.x - point.x, taken.position.y - point.y);
        if (d->selected)
            d->selected = nearest;
        beginChange();
    } else if (controller && controller->backImage().extent().contains(point)) {
        d->pressed = point;
    }
    update();
}

void MyImageView::dragged(CIPoint point)
{
    dragGrabbedPoint(point);
    if (d->pressed && QLineF(toWidget(*d->pressed), toWidget(point)).length() > kFarDrag) {
        d->pressed.reset();
        emit pictureDragged();
    }
}

void MyImageView::released(CIPoint point)
{
    movingNow = false;
    d->pressed.reset();
    endChange();
    hover(toWidget(point));
    update();
}

void MyImageView::dragGrabbedPoint(CIPoint to)
{
    const std::shared_ptr<CIFilter> filter = controller ? controller->getCurrentFilter() : nullptr;
    if (!filter || parmMode == ParmMode::kNothing || parmIndex == -1)
        return;
    setPoint(*filter, parmKey, parmMode, {to.x + d->grabOffset.x, to.y + d->grabOffset.y});
}

// --- keys ---

bool MyImageView::focusNextPrevChild(bool next)
{
    const std::size_t count = points().size();
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
    if (index)
        notifyPoint(this, qsizetype(*index), QAccessible::Focus);
}

void MyImageView::focusOutEvent(QFocusEvent* event)
{
    if (!movingNow)
        endChange();
    if (event->reason() != Qt::ActiveWindowFocusReason)
        endPicking({});
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        selectPoint({});
    ControlledCanvas::focusOutEvent(event);
}

bool MyImageView::moveSelectedPoint(int key, bool far)
{
    const std::shared_ptr<CIFilter> filter = controller ? controller->getCurrentFilter() : nullptr;
    const std::vector<ControlPoint> all = points();
    if (!filter || !d->selected || *d->selected >= all.size())
        return false;
    const ControlPoint& point = all[*d->selected];
    double step = far ? 10 : 1; // picture pixels
    for (const FreeLayer& layer : layers())
        if (layer.isWhole && layer.placeKey == point.key && point.mode != ParmMode::kLayerMiddle)
            step *= layer.size.x + layer.size.y; // to the next whole scale
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
    if (!d->isChanging)
        beginChange(); // until the key is released
    setPoint(*filter, point.key, point.mode, to);
    notifyPoint(this, qsizetype(*d->selected), QAccessible::DescriptionChanged);
    return true;
}

QList<CanvasPoint> MyImageView::canvasPoints() const
{
    QList<CanvasPoint> result;
    for (const ControlPoint& point : d->showsOriginal ? std::vector<ControlPoint>() : points()) {
        const QString position = tr("%1, %2").arg(std::lround(point.position.x)).arg(std::lround(point.position.y));
        const bool selected = d->selected == std::size_t(result.size());
        result.append({QString::fromStdString(point.label), position, toWidget(point.position), selected});
    }
    return result;
}

void MyImageView::keyPressEvent(QKeyEvent* event)
{
    const bool sideways = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
    if (sideways && event->modifiers() & Qt::ControlModifier && d->isSplit())
        QCoreApplication::sendEvent(d->divider, event);
    else if (event->key() == Qt::Key_Escape && d->pick)
        endPicking({});
    else if (event->key() == Qt::Key_Escape && d->selected)
        selectPoint({});
    else if (!moveSelectedPoint(event->key(), event->modifiers() & Qt::ShiftModifier))
        ControlledCanvas::keyPressEvent(event);
}

void MyImageView::keyReleaseEvent(QKeyEvent* event)
{
    if (!event->isAutoRepeat() && !movingNow)
        endChange();
    ControlledCanvas::keyReleaseEvent(event);
}
