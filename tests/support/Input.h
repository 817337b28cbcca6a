// What mouse and drags do to a widget, without the help of the window system.
#pragma once

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWheelEvent>
#include <QWidget>

namespace input {

inline void moveMouse(QWidget& widget, QPointF to, Qt::MouseButtons held = Qt::LeftButton,
    Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QMouseEvent event(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, held, modifiers);
    QApplication::sendEvent(&widget, &event);
}

/// 120 is a notch; in the widget's middle.
inline void turnWheel(QWidget& widget, int delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QPointF middle = QRectF(widget.rect()).center();
    QWheelEvent event(
        middle, widget.mapToGlobal(middle), {}, {0, delta}, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

inline void enter(QWidget& widget, QPointF at = {5, 5})
{
    QEnterEvent event(at, at, widget.mapToGlobal(at));
    QApplication::sendEvent(&widget, &event);
}

inline void leave(QWidget& widget)
{
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(&widget, &event);
}

struct Files : QMimeData {
    explicit Files(const QStringList& paths)
    {
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls.append(QUrl::fromLocalFile(path));
        setUrls(urls);
    }
};

inline bool accepts(QWidget& widget, const QMimeData& data, QPoint at = {5, 5},
    Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction)
{
    QDragEnterEvent event(at, actions, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

/// Lets go over the widget if it wants the data; whether it does.
inline bool drop(QWidget& widget, const QMimeData& data, QPoint at = {5, 5})
{
    if (!accepts(widget, data, at))
        return false;
    QDropEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
    return true;
}

} // namespace input
