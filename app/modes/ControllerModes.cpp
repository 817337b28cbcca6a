#include "app/catalogue/OutlineView.h"
#include "app/Controller.h"
#include "controls/panel/FilterView.h"
#include "controls/picture/MyImageView.h"
#include "platform/foundation/Appearance.h"
#include "ui_MainWindow.h"
#include "widgets/GradientButton.h"

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
    for (GradientButton* button : {standardBtn, threeDBtn, customBtn})
        button->setState(button == sender);
    for (const void* target : {static_cast<const void*>(this), static_cast<const void*>(&m_document)})
        m_undoManager.removeAllActionsWithTarget(target);
    for (const std::shared_ptr<BaseEffect>& effect : {current3DEffect, currentCustomEffect})
        if (effect)
            m_undoManager.removeAllActionsWithTarget(effect.get());
    adjustViewsAndTabs();
    m_undoManager.registerUndoWithTarget(this, [this, previous] { changeFilterMode(previous); });
    m_undoManager.setActionName(tr("Change Mode"));
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
    favoritesTabView->setCurrentIndex(int(mode));
    mainTabView->setCurrentIndex(int(mode));
    zoomSlider->setEnabled(mode != ThreeD);
    zoomSuperView->setVisible(mode != ThreeD);
    placeCntrlView->setVisible(mode == Standard);
    ui.place3DCntrlView->setVisible(mode == ThreeD);
    ui.placeCustomCntrlView->setVisible(mode == Custom);
    showFilterName(currentFilter && mode == Standard);
    if (mode == ThreeD)
        updateView3D();
    else {
        const float zoom = zoomedView()->getZoom();
        zoomedView()->setZoom(zoom);
        setZoom(zoom);
        showZoom();
    }
}

bool Controller::hasCurrentItem() const
{
    switch (filerMode()) {
    case ThreeD:
        return current3DEffect != nullptr;
    case Custom:
        return currentCustomEffect != nullptr;
    default:
        return currentFilter != nullptr;
    }
}

void Controller::escapeEffect()
{
    if (isOpening())
        cancelOpening();
    else
        clearAllAndUpdate();
}

/// Of the current mode, which is that of 3D effects or of generated ones.
void Controller::setCurrentEffect(const std::shared_ptr<BaseEffect>& effect)
{
    if (filerMode() == ThreeD)
        setCurrent3DEffect(effect);
    else
        setCurrentCustomEffect(effect);
}

/// In the list of the current mode.
void Controller::deselectLists()
{
    const QScopedValueRollback ours(m_selectionIsOurs, true);
    switch (filerMode()) {
    case ThreeD:
        filter3DOutlineView->deselectAll();
        break;
    case Custom:
        filterCustomOutlineView->deselectAll();
        break;
    default:
        m_chosenRow = nullptr;
        listView->deselectAll();
    }
}

void Controller::clearAll()
{
    if (filerMode() == Standard) {
        clearControls();
        currentFilter.reset();
    } else {
        setCurrentEffect({});
    }
    switchOff(selectedFavourite());
    deselectLists();
}

void Controller::clearAllAndUpdate()
{
    clearAll();
    updateView();
    updateMainBtnState();
}

void Controller::onAppearanceChanged()
{
    for (GradientButton* button : {standardBtn, threeDBtn, customBtn}) {
        button->setState(button->isChecked());
    }
    if (m_panel)
        m_panel->setBorderColor(Appearance::shared().look().separator);
    updateView();
}
