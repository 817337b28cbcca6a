#include "app/window/WindowGestures.h"

#include "app/window/MainWindow.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "effects2d/customEffImageView.h"
#include "ui_MainWindow.h"

#include <QKeyEvent>

WindowGestures::WindowGestures(MainWindow& window, Ui::MainWindow& interface)
    : m_window(window)
    , ui(interface)
{
    window.installEventFilter(this); // gets what nobody in the window took
}

/// The canvas that is seen; null in 3D mode, which has none.
ZoomedCanvas* WindowGestures::shownCanvas() const
{
    for (QAbstractScrollArea* area : {static_cast<QAbstractScrollArea*>(ui.pictureScrollView),
             static_cast<QAbstractScrollArea*>(ui.customEffectsScrollView)})
        if (area->isVisible())
            return qobject_cast<ZoomedCanvas*>(area->viewport());
    return nullptr;
}

void WindowGestures::holdSpace(bool held)
{
    if (ZoomedCanvas* canvas = shownCanvas())
        canvas->setSpaceHeld(held);
}

bool WindowGestures::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (watched != &m_window)
        return false;
    if (type == QEvent::WindowDeactivate)
        holdSpace(false); // another window will get its release
    if (type != QEvent::KeyPress && type != QEvent::KeyRelease)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Space || key->modifiers() != Qt::NoModifier)
        return false;
    if (!key->isAutoRepeat())
        holdSpace(type == QEvent::KeyPress);
    return true;
}
