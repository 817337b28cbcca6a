// Turning with the mouse and the keyboard, and the context menu.
#include "effects2d/BaseEffect.h"
#include "effects3d/MyOGLView.h"
#include "widgets/PictureMenu.h"

#include <utility>

#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>

namespace {

constexpr double kKeyStep = 10, kLargeKeyStep = 90; // points of mouse movement: 5 and 45 degrees

} // namespace

CIPoint MyOGLView::viewPoint(const QMouseEvent& event) const
{
    return {event.position().x(), height() - event.position().y()};
}

void MyOGLView::mousePressEvent(QMouseEvent* event)
{
    BaseEffect* current = effect();
    if (event->button() != Qt::LeftButton || !current)
        return;
    endKeyTurn();
    m_mouseTurns = true;
    current->mouseDown(viewPoint(*event));
}

void MyOGLView::mouseMoveEvent(QMouseEvent* event)
{
    BaseEffect* current = effect();
    if (!m_mouseTurns || !current)
        return;
    current->mouseDragged(viewPoint(*event));
    redraw();
}

void MyOGLView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton)
        return;
    m_mouseTurns = false;
    if (BaseEffect* current = effect())
        current->mouseUp(viewPoint(*event));
    endTurn();
}

void MyOGLView::keyPressEvent(QKeyEvent* event)
{
    const double step = event->modifiers() & Qt::ShiftModifier ? kLargeKeyStep : kKeyStep;
    CIPoint move;
    switch (event->key()) {
    case Qt::Key_Left:
        move.x = -step;
        break;
    case Qt::Key_Right:
        move.x = step;
        break;
    case Qt::Key_Up:
        move.y = step;
        break;
    case Qt::Key_Down:
        move.y = -step;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    BaseEffect* current = effect();
    if (!current || m_mouseTurns)
        return;
    if (!m_keysTurn) {
        current->mouseDown(m_keyPoint); // one undo step for as long as keys are held
        m_keysTurn = true;
    }
    m_keyPoint = {m_keyPoint.x + move.x, m_keyPoint.y + move.y};
    current->mouseDragged(m_keyPoint);
    redraw();
}

void MyOGLView::keyReleaseEvent(QKeyEvent* event)
{
    QWidget::keyReleaseEvent(event);
    if (!event->isAutoRepeat())
        endKeyTurn();
}

void MyOGLView::endKeyTurn()
{
    if (!std::exchange(m_keysTurn, false))
        return;
    if (BaseEffect* current = effect())
        current->mouseUp(m_keyPoint);
    endTurn();
}

/// Those who click need no frame around what they click on.
void MyOGLView::focusInEvent(QFocusEvent* event)
{
    m_showsFocus = event->reason() != Qt::MouseFocusReason;
    update();
}

void MyOGLView::focusOutEvent(QFocusEvent*)
{
    endKeyTurn();
    m_showsFocus = false;
    update();
}

void MyOGLView::enterEvent(QEnterEvent*) { mouseEntered(); }

void MyOGLView::leaveEvent(QEvent*) { mouseExited(); }

void MyOGLView::mouseEntered()
{
    if (!effect())
        return;
    setCursor(Qt::PointingHandCursor);
    update();
}

void MyOGLView::mouseExited()
{
    setCursor(Qt::ArrowCursor);
    update();
}

void MyOGLView::contextMenuEvent(QContextMenuEvent* event) { mouseContentMenu(pictureMenuPlace(*this, *event)); }

void MyOGLView::mouseContentMenu(const QPoint& globalPosition)
{
    popUpPictureMenu(controller ? controller->contextMenu() : nullptr, globalPosition);
}
