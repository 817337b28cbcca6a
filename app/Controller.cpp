#include "app/Controller.h"

#include "app/catalogue/OutlineView.h"
#include "app/commands/Commands.h"
#include "app/window/MainWindow.h"
#include "controls/picture/MyImageView.h"
#include "ui_MainWindow.h"

void Controller::showPicture()
{
    for (Mode* mode : m_modes.modes())
        mode->pictureChanged();
    m_zooming.fit(); // the views lay themselves out for what the effects make of it
    m_status.update();
    const CIRect extent = getBgImageExtent();
    ResizePanel::setWHH(float(extent.width), float(extent.height));
    updateView();
    validateMenuItems();
}

void Controller::outlineViewSelectionDidChange(OutlineView& outlineView, const OutlineItem* clicked)
{
    m_modes.current().choose(clicked ? clicked : outlineView.selectedItem());
    showItem();
}

/// The current item, or a favourite, is another one.
void Controller::showItem()
{
    updateView();
    updateMainBtnState();
}

void Controller::escapeEffect()
{
    if (isOpening())
        cancelOpening();
    else
        clearAllAndUpdate();
}

void Controller::applyBtn()
{
    if (m_document.isIdle())
        m_modes.current().apply([this] { clearAllAndUpdate(); });
}

void Controller::onAppearanceChanged()
{
    for (Mode* mode : m_modes.modes())
        mode->appearanceChanged();
    updateView();
}

void Controller::setAutomaticDefaults(CIFilter& filter) { m_filters.setAutomaticDefaults(filter, ciView->bounds()); }

CIImage Controller::coreImageResult(bool overBlack)
{
    const CIImage result = m_standard.coreImageResult();
    return overBlack && !hasMissingImage() ? ::overBlack(result) : result;
}

void Controller::compareOpened()
{
    m_standard.setComparesOpened(m_window.commands().action("actionCompareOpened").isChecked());
    updateMainBtnState();
}

void Controller::splitView() { m_standard.split(m_window.commands().action("actionSplitView").isChecked()); }

void Controller::addFavourite()
{
    m_modes.current().addFavourite();
    validateMenuItems();
}

void Controller::removeSelectedFavourite()
{
    m_modes.current().removeFavourite(m_modes.current().selectedFavourite());
    validateMenuItems();
}

void Controller::saveFavorites()
{
    for (Mode* mode : m_modes.modes())
        mode->favourites().save();
}

void Controller::readFavorites()
{
    for (Mode* mode : m_modes.modes())
        mode->favourites().read();
}
