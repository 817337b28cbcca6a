#include "widgets/HeldInput.h"

#include <QCoreApplication>

namespace {

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::NativeGesture:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
        return true;
    default:
        return false;
    }
}

} // namespace

HeldInput::HeldInput() { qApp->installEventFilter(this); }

HeldInput::~HeldInput()
{
    qApp->removeEventFilter(this);
    for (Held& held : m_held)
        if (held.receiver)
            QCoreApplication::postEvent(held.receiver, held.event.release());
}

bool HeldInput::eventFilter(QObject* receiver, QEvent* event)
{
    if (!isInput(event->type()))
        return false;
    m_held.push_back({receiver, std::unique_ptr<QEvent>(event->clone())});
    return true;
}
