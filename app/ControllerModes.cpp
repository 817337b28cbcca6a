#include "app/Controller.h"
#include "app/OutlineView.h"
#include "controls/FilterView.h"
#include "controls/MyImageView.h"
#include "platform/foundation/Appearance.h"
#include "ui_MainWindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QScopedValueRollback>
#include <QSlider>
#include <QStackedWidget>

unsigned Controller::filerMode() const
{
    if (threeDBtn->isChecked())
        return ThreeD;
    return customBtn->isChecked() ? Custom : Standard;
}

void Controller::changeFilterMode(QAbstractButton* sender)
{
    QAbstractButton* previous = standardBtn;
    if (threeDBtn->isChecked() && sender != threeDBtn)
        previous = threeDBtn;
    else if (customBtn->isChecked() && sender != customBtn)
        previous = customBtn;
    for (QAbstractButton* button : {standardBtn, threeDBtn, customBtn})
        button->setChecked(button == sender);
    m_undoManager.removeAllActionsWithTarget(this);
    if (current3DEffect)
        m_undoManager.removeAllActionsWithTarget(current3DEffect.get());
    adjustViewsAndTabs();
    m_undoManager.registerUndoWithTarget(this, [this, previous] { changeFilterMode(previous); });
    updateMainBtnState();
}

void Controller::selectMenuMode(const QAction* sender)
{
    switch (sender->data().toInt()) {
    case 1:
        changeFilterMode(standardBtn);
        break;
    case 2:
        changeFilterMode(threeDBtn);
        break;
    case 3:
        changeFilterMode(customBtn);
        break;
    default:
        break;
    }
}

void Controller::adjustViewsAndTabs()
{
    const unsigned mode = filerMode();
    filterTabView->setCurrentIndex(int(mode));
    mainTabView->setCurrentIndex(int(mode));
    zoomSlider->setEnabled(mode != ThreeD);
    zoomSuperView->setVisible(mode != ThreeD);
    placeCntrlView->setVisible(mode == Standard);
    ui.place3DCntrlView->setVisible(mode == ThreeD);
    showFilterName(currentFilter && mode == Standard);
    if (mode == ThreeD)
        updateView3D();
    if (mode == Standard) {
        const float zoom = ciView->getZoom();
        ciView->setZoom(zoom);
        setZoom(zoom);
    }
}

bool Controller::hasCurrentItem() const
{
    const unsigned mode = filerMode();
    return (mode == Standard && currentFilter) || (mode == ThreeD && current3DEffect);
}

void Controller::escapeEffect() { clearAllAndUpdate(); }

void Controller::clearAll()
{
    if (filerMode() == ThreeD)
        clearAll3D();
    if (filerMode() != Standard)
        return;
    clearControls();
    currentFilter.reset();
    m_chosenRow = nullptr;
    const QScopedValueRollback ours(m_selectionIsOurs, true);
    listView->deselectAll();
}

void Controller::clearAllAndUpdate()
{
    clearAll();
    updateView();
    updateMainBtnState();
}

void Controller::onAppearanceChanged()
{
    for (QAbstractButton* button : {standardBtn, threeDBtn, customBtn}) {
        button->setChecked(button->isChecked());
        button->update();
    }
    if (m_panel)
        m_panel->setBorderColor(Appearance::shared().look().separator);
    updateView();
}
