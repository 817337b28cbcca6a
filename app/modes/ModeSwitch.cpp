#include "app/modes/ModeSwitch.h"

#include "platform/foundation/UndoManager.h"
#include "widgets/GradientButton.h"

#include <QStackedWidget>

ModeSwitch::ModeSwitch(std::array<Mode*, 3> modes, std::vector<QStackedWidget*> pages, UndoManager& undoManager)
    : m_modes(modes)
    , m_pages(std::move(pages))
    , m_undoManager(undoManager)
{
    m_modes[Standard]->button().setState(true);
    for (Mode* mode : m_modes) {
        connect(mode, &Mode::changed, this, &ModeSwitch::itemChanged);
        connect(mode, &Mode::clearAsked, this, [this] { current().clear(); });
        connect(&mode->button(), &QAbstractButton::clicked, this, [this, mode] { changeFilterMode(&mode->button()); });
    }
}

unsigned ModeSwitch::filerMode() const
{
    if (m_modes[ThreeD]->isOn())
        return ThreeD;
    return m_modes[Custom]->isOn() ? Custom : Standard;
}

void ModeSwitch::changeFilterMode(QAbstractButton* sender)
{
    QAbstractButton* previous = &m_modes[Standard]->button();
    for (const FilterMode mode : {Custom, ThreeD})
        if (m_modes[mode]->isOn() && &m_modes[mode]->button() != sender)
            previous = &m_modes[mode]->button();
    for (const Mode* mode : m_modes)
        mode->button().setState(&mode->button() == sender);
    m_undoManager.removeAllActions();
    showCurrent();
    m_undoManager.registerUndoWithTarget(this, [this, previous] { changeFilterMode(previous); });
    m_undoManager.setActionName(tr("Change Mode"));
}

void ModeSwitch::selectMenuMode(int tag)
{
    if (tag >= 1 && tag <= int(m_modes.size()))
        changeFilterMode(&m_modes[std::size_t(tag - 1)]->button());
}

void ModeSwitch::showCurrent()
{
    for (QStackedWidget* stack : m_pages)
        stack->setCurrentIndex(int(filerMode()));
    for (const Mode* mode : m_modes)
        mode->controls().setVisible(mode->isOn());
    current().showTitle();
    emit shown();
}

void ModeSwitch::clearAllAndUpdate()
{
    current().clear();
    emit itemChanged();
}
