// What keys, mouse and wheel do with the strip.
#include "platform/foundation/Appearance.h"
#include "widgets/DocPageControl.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

namespace {

constexpr int kWheelNotch = 120;

} // namespace

/// The item goes with the mouse, and the others make room.
void DocPageControl::dragItem(QAbstractButton* item, const QMouseEvent& event)
{
    if (!m_drag.item) {
        if ((event.pos() - m_drag.pressed).manhattanLength() < QApplication::startDragDistance())
            return;
        settle();
        m_drag.item = item;
        m_drag.from = indexOf(item);
        item->setDown(false); // no click any more
        item->raise();
    }
    const QPoint mouse = mainPageScroller->mapFromGlobal(event.globalPosition().toPoint());
    if (!isMoving() && mouse.x() < 0)
        stepPrev();
    else if (!isMoving() && mouse.x() > mainPageScroller->width())
        stepNext();
    const int left = mouse.x() - m_document->x() - m_drag.pressed.x();
    item->move(left, 0);
    placeItem(item, (left + m_paging.pitch / 2) / m_paging.pitch);
}

void DocPageControl::setTabStop(QAbstractButton* item)
{
    for (QAbstractButton* other : std::as_const(m_items))
        other->setFocusPolicy(other == item ? Qt::StrongFocus : Qt::ClickFocus);
}

/// Goes to the nearest page that shows the whole item.
void DocPageControl::showItem(int index)
{
    const int shown = std::max(1, m_paging.view_page_count);
    if (index < m_paging.current_page)
        setCurrentPage(index);
    else if (index >= m_paging.current_page + shown)
        setCurrentPage(index - shown + 1);
}

void DocPageControl::keyPressEvent(QKeyEvent* event)
{
    const int index = indexOf(qobject_cast<QAbstractButton*>(focusWidget()));
    const int last = int(m_items.size()) - 1, forward = isRightToLeft() ? -1 : 1, key = event->key();
    const QHash<int, int> places = {
        {Qt::Key_Left, index - forward}, {Qt::Key_Right, index + forward}, {Qt::Key_Home, 0}, {Qt::Key_End, last}};
    if (index >= 0 && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        m_items[index]->click();
    } else if (index >= 0 && places.contains(key)) {
        const int next = std::clamp(places[key], 0, last);
        m_items[next]->setFocus(Qt::TabFocusReason);
        showItem(next);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void DocPageControl::wheelEvent(QWheelEvent* event)
{
    const QPoint angle = event->angleDelta();
    const int delta = angle.y() != 0 ? angle.y() : angle.x();
    m_wheelRest = delta * m_wheelRest < 0 ? delta : m_wheelRest + delta;
    for (; m_wheelRest >= kWheelNotch; m_wheelRest -= kWheelNotch)
        stepPrev();
    for (; m_wheelRest <= -kWheelNotch; m_wheelRest += kWheelNotch)
        stepNext();
    event->accept();
}

bool DocPageControl::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == mainPageScroller) {
        if (event->type() == QEvent::Resize)
            liveResizeDone();
        if (event->type() == QEvent::Paint && m_items.isEmpty() && !m_placeholder.isEmpty()) {
            QPainter painter(mainPageScroller);
            painter.setPen(Appearance::shared().look().secondaryText);
            painter.drawText(mainPageScroller->rect(), Qt::AlignCenter | Qt::TextWordWrap, m_placeholder);
        }
    } else if (auto* item = qobject_cast<QAbstractButton*>(watched); item && event->type() == QEvent::FocusIn) {
        setTabStop(item);
    } else if (item && event->type() == QEvent::MouseButtonPress) {
        m_drag.pressed = static_cast<QMouseEvent*>(event)->pos();
    } else if (item && event->type() == QEvent::MouseMove) {
        const auto& move = *static_cast<QMouseEvent*>(event);
        if (move.buttons() & Qt::LeftButton)
            dragItem(item, move);
        if (m_drag.item)
            return true;
    } else if (item && event->type() == QEvent::MouseButtonRelease && m_drag.item) {
        m_drag.item = nullptr;
        layOutItems();
        if (indexOf(item) != m_drag.from)
            emit itemMoved();
    }
    return QWidget::eventFilter(watched, event);
}
