#include "app/modes/ModeSwitch.h"

#include "app/document/SessionFolder.h"
#include "platform/foundation/UndoManager.h"
#include "widgets/DocPageControl.h"
#include "widgets/GradientButton.h"
#include "widgets/ZoomedCanvas.h"

#include <QStackedWidget>

#include <algorithm>

ModeSwitch::ModeSwitch(std::array<Mode*, 3> modes, std::vector<QStackedWidget*> pages, UndoManager& undoManager)
    : m_modes(modes)
    , m_pages(std::move(pages))
    , m_undoManager(undoManager)
{
    m_modes[Standard]->button().setState(true);
    for (Mode* mode : m_modes) {
        connect(mode, &Mode::changed, this, &ModeSwitch::itemChanged);
        connect(mode, &Mode::clearAsked, this, [this] { current().clear(); });
        connect(&mode->button(), &QAbstractButton::clicked, this, [this, mode](bool isOn) {
            if (isOn)
                changeFilterMode(&mode->button());
            else
                mode->button().setState(true); // the mode is on already
        });
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
    if (tag >= 1 && tag <= int(m_modes.size()) && !m_modes[std::size_t(tag - 1)]->isOn())
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

// --- all modes ---

void ModeSwitch::saveFavourites()
{
    for (Mode* mode : m_modes)
        mode->favourites().save();
}

void ModeSwitch::readFavourites()
{
    for (Mode* mode : m_modes)
        mode->favourites().read();
}

void ModeSwitch::pictureChanged()
{
    for (Mode* mode : m_modes)
        mode->pictureChanged();
}

void ModeSwitch::appearanceChanged()
{
    for (Mode* mode : m_modes)
        mode->appearanceChanged();
    current().updateView();
}

void ModeSwitch::windowResized()
{
    for (const Mode* mode : m_modes) {
        mode->strip().liveResizeDone();
        if (ZoomedCanvas* canvas = mode->canvas())
            canvas->resizeViewBoundCenter(true, 3);
    }
}

void ModeSwitch::save(SessionState& state, const CIImage& picture) const
{
    state.values["mode"] = double(filerMode());
    for (const Mode* mode : m_modes)
        mode->save(state, picture);
}

void ModeSwitch::restore(const SessionState& state)
{
    selectMenuMode(1 + int(std::clamp(state.value("mode").toDouble(), 0.0, 2.0)));
    for (Mode* mode : m_modes)
        mode->restore(state);
    showCurrent();
    emit itemChanged();
}
