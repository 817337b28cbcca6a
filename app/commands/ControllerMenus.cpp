#include "app/Controller.h"
#include "app/window/AboutWindow.h"
#include "app/window/HelpWindow.h"
#include "app/window/MainWindow.h"
#include "platform/foundation/Appearance.h"
#include "platform/foundation/Pasteboard.h"
#include "platform/foundation/ResourcePaths.h"
#include "ui_MainWindow.h"

void Controller::connectInterface()
{
    connectDocument();
    connectOpening();
    connectActions();
    connectZoom();
    connect(&m_modes, &ModeSwitch::shown, this, &Controller::showZoomOfMode);
    connect(&m_modes, &ModeSwitch::shown, this, &Controller::updateMainBtnState);
    connect(&m_modes, &ModeSwitch::itemChanged, this, &Controller::showItem);
    connect(ui.searchField, &QLineEdit::textChanged, &m_catalogue, &FilterCatalogue::searchFilters);
    connect(ui.searchField, &QLineEdit::returnPressed, &m_catalogue, &FilterCatalogue::takeFirstMatch);
    connect(ui.applyBtn, &QAbstractButton::clicked, this, &Controller::applyBtn);
    connect(ui.openingCancelBtn, &QAbstractButton::clicked, this, &Controller::cancelOpening);
    connect(&m_window, &MainWindow::compareHeld, this, &Controller::compare);
    connect(&m_undoManager, &UndoManager::stateChanged, this, &Controller::validateMenuItems);
    connect(&Pasteboard::generalPasteboard(), &Pasteboard::changed, this, &Controller::updateMainBtnState);
}

void Controller::connectDocument()
{
    connect(&m_document, &Document::pictureChanged, this, &Controller::showPicture);
    connect(&m_document, &Document::pathChanged, this, &Controller::pathChanged);
    connect(&m_document, &Document::changedMarkChanged, this, &Controller::updateWinTitle);
    connect(&m_document, &Document::message, this, &Controller::showMessage);
}

void Controller::connectActions()
{
    const auto on = [this](QAction* action, auto operation) {
        connect(action, &QAction::triggered, this, [this, operation] { (this->*operation)(); });
    };
    on(ui.actionOpen, &Controller::openImg);
    on(ui.actionSave, &Controller::saveImg);
    on(ui.actionSaveAs, &Controller::saveImgAs);
    on(ui.actionQuit, &Controller::terminate);
    on(ui.actionUndo, &Controller::undo);
    on(ui.actionRedo, &Controller::redo);
    on(ui.actionCopy, &Controller::copy);
    on(ui.actionPaste, &Controller::paste);
    on(ui.actionResetInputs, &Controller::resetAllInputs);
    on(ui.actionRandomizeInputs, &Controller::randomizeInputs);
    on(ui.actionRotateLeft, &Controller::rotateLeft);
    on(ui.actionRotateRight, &Controller::rotateRight);
    on(ui.actionFlipHorizont, &Controller::flipHorizont);
    on(ui.actionFlipVert, &Controller::flipVert);
    on(ui.actionInfo, &Controller::showInfoPanel);
    connect(ui.actionResize, &QAction::triggered, this, [this] { showPanel(*m_resizePanel); });
    on(ui.actionApply, &Controller::applyBtn);
    on(ui.actionClearEffect, &Controller::escapeEffect);
    on(ui.actionAddFavourite, &Controller::addFavourite);
    on(ui.actionRemoveFavourite, &Controller::removeSelectedFavourite);
    on(ui.actionZoomIn, &Controller::zoomIn);
    on(ui.actionZoomOut, &Controller::zoomOut);
    on(ui.actionFit, &Controller::zoomToFit);
    on(ui.actionSplitView, &Controller::splitView);
    on(ui.actionThumbnails, &Controller::thumbnailsToggled);
    on(ui.actionHelp, &Controller::displayHelp);
    on(ui.actionAbout, &Controller::orderFrontAboutPanel);
    connect(ui.menuRecent, &QMenu::aboutToShow, this, &Controller::fillRecentMenu);
    connect(ui.menuUndoHistory, &QMenu::aboutToShow, this, &Controller::fillUndoHistoryMenu);
    connect(ui.actionActualSize, &QAction::triggered, this, [this] { zoomTo(1); });

    int tag = 0;
    for (QAction* action : {ui.actionStandard, ui.action3D, ui.actionCustom}) {
        action->setData(++tag);
        connect(action, &QAction::triggered, this, [this, action] {
            selectMenuMode(action);
            validateMenuItems();
        });
    }
    for (const auto& [action, choice] : {std::pair{ui.actionFollowDesktop, Appearance::Choice::System},
             {ui.actionLight, Appearance::Choice::Light}, {ui.actionDark, Appearance::Choice::Dark}})
        connect(action, &QAction::triggered, this, [this, choice = choice] {
            Appearance::shared().setChoice(choice);
            validateMenuItems();
        });
    const QList<QMenu*> menus = ui.menuBar->findChildren<QMenu*>();
    for (QMenu* menu : menus)
        connect(menu, &QMenu::aboutToShow, this, &Controller::validateMenuItems);
    connect(contentMenuOutlet, &QMenu::aboutToShow, this, &Controller::validateMenuItems);
}

void Controller::updateMainBtnState()
{
    const bool isFree = !m_opening.isShown();
    pasteBtn->setEnabled(isFree && Pasteboard::generalPasteboard().offersTIFF());
    ui.applyBtn->setEnabled(isFree && hasCurrentItem());
    ui.compareBtn->setEnabled(isFree && canCompare());
    splitView();
    updateWinTitle();
    validateMenuItems();
}

bool Controller::validateMenuItem(QAction& item)
{
    bool enabled = true;
    if (&item == ui.actionUndo) {
        enabled = m_undoManager.canUndo();
        item.setText(m_undoManager.undoMenuItemTitle());
    } else if (&item == ui.actionRedo) {
        enabled = m_undoManager.canRedo();
        ui.menuUndoHistory->setEnabled(isFree(item) && (enabled || m_undoManager.canUndo()));
        item.setText(m_undoManager.redoMenuItemTitle());
    } else if (&item == ui.actionCopy) {
        enabled = bool(m_document.picture());
    } else if (&item == ui.actionInfo) {
        item.setChecked(infoPanel && infoPanel->isVisible());
    } else if (&item == ui.actionResize) {
        item.setChecked(m_resizePanel && m_resizePanel->isVisible());
    } else if (&item == ui.actionPaste) {
        enabled = isFree(item) && Pasteboard::generalPasteboard().offersTIFF();
        pasteBtn->setEnabled(enabled);
    } else if (&item == ui.actionClearEffect || &item == ui.actionApply || &item == ui.actionAddFavourite) {
        enabled = hasCurrentItem();
    } else if (&item == ui.actionResetInputs || &item == ui.actionRandomizeInputs) {
        enabled = hasInputsToSet(&item == ui.actionRandomizeInputs);
    } else if (&item == ui.actionRemoveFavourite) {
        enabled = hasSelectedFavourite();
    } else if (&item == ui.actionStandard || &item == ui.action3D || &item == ui.actionCustom) {
        item.setChecked(item.data().toUInt() - 1 == filerMode());
    } else if (&item == ui.actionFollowDesktop || &item == ui.actionLight || &item == ui.actionDark) {
        const QAction* const choices[] = {ui.actionFollowDesktop, ui.actionLight, ui.actionDark};
        item.setChecked(&item == choices[int(Appearance::shared().choice())]);
    } else if (&item == ui.actionZoomIn || &item == ui.actionZoomOut || &item == ui.actionFit
        || &item == ui.actionActualSize) {
        enabled = canZoom();
    } else if (&item == ui.actionSplitView) {
        enabled = canCompare();
    } else if (&item == ui.actionFullScreen) {
        item.setChecked(m_window.isFullScreen());
    } else if (&item == ui.actionHelp) {
        item.setVisible(!HelpWindow::firstPage().isEmpty());
    }
    enabled = enabled && isFree(item);
    item.setEnabled(enabled);
    return enabled;
}

void Controller::validateMenuItems()
{
    const QList<QAction*> items = m_window.findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly);
    for (QAction* item : items)
        validateMenuItem(*item);
}

/// Or hides it, when it is there already.
void Controller::showPanel(QWidget& panel)
{
    if (panel.isVisible()) {
        panel.close();
    } else {
        panel.show();
        panel.raise();
        panel.activateWindow();
    }
    validateMenuItems();
}

void Controller::displayHelp()
{
    if (!HelpWindow::firstPage().isEmpty())
        HelpWindow::show(m_window);
}

void Controller::orderFrontAboutPanel()
{
    AboutWindow about(&m_window);
    about.exec();
}
