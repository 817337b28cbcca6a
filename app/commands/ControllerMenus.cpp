#include "app/commands/Commands.h"
#include "app/Controller.h"
#include "app/window/AboutWindow.h"
#include "app/window/HelpWindow.h"
#include "app/window/MainWindow.h"
#include "platform/foundation/Pasteboard.h"
#include "ui_MainWindow.h"

void Controller::connectInterface()
{
    connectDocument();
    connectOpening();
    connect(&m_zooming, &Zooming::zoomed, this, &Controller::updateView);
    connect(&m_modes, &ModeSwitch::shown, this, &Controller::showZoomOfMode);
    connect(&m_modes, &ModeSwitch::shown, this, &Controller::updateMainBtnState);
    connect(&m_modes, &ModeSwitch::itemChanged, this, &Controller::showItem);
    connect(ui.searchField, &QLineEdit::textChanged, &m_catalogue, &FilterCatalogue::searchFilters);
    connect(ui.searchField, &QLineEdit::returnPressed, &m_catalogue, &FilterCatalogue::takeFirstMatch);
    connect(ui.openingCancelBtn, &QAbstractButton::clicked, this, &Controller::cancelOpening);
    connect(&m_window, &MainWindow::compareHeld, this, &Controller::compare);
    connect(&m_undoManager, &UndoManager::stateChanged, this, &Controller::validateMenuItems);
    connect(&m_undoManager, &UndoManager::stateChanged, &m_status, &StatusRow::endOffer); // it was about another step
    connect(&Pasteboard::generalPasteboard(), &Pasteboard::changed, this, &Controller::updateMainBtnState);
}

void Controller::connectDocument()
{
    connect(&m_document, &Document::pictureChanged, this, [this] {
        showPicture();
        if (!isOpening())
            updateWinTitle();
    });
    connect(&m_document, &Document::pathChanged, this, &Controller::pathChanged);
    connect(&m_document, &Document::changedMarkChanged, this, &Controller::updateWinTitle);
}

void Controller::updateMainBtnState()
{
    ui.compareBtn->setEnabled(!m_opening.isShown() && canCompare());
    splitView();
    updateWinTitle();
    validateMenuItems();
}

bool Controller::validateMenuItem(QAction& item) { return m_window.commands().validate(item); }

void Controller::validateMenuItems() { m_window.commands().validateAll(); }

void Controller::showInfoPanel() { showPanel(*infoPanel); }

void Controller::showResizePanel() { showPanel(*m_resizePanel); }

bool Controller::isInfoPanelShown() const { return infoPanel && infoPanel->isVisible(); }

bool Controller::isResizePanelShown() const { return m_resizePanel && m_resizePanel->isVisible(); }

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
