#include "app/catalogue/OutlineView.h"
#include "app/catalogue/Thumbnail.h"
#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "effects3d/MyOGLView.h"
#include "ui_MainWindow.h"

#include <QScopedValueRollback>

// --- whatever the mode ---

void Controller::addFavourite()
{
    if (filerMode() == Standard)
        addFavorites();
    else if (filerMode() == ThreeD)
        addFavorites3D();
    else
        addFavoritesCustom();
    validateMenuItems();
}

QPointer<onlyTextClosedButton>& Controller::selectedFavourite()
{
    switch (filerMode()) {
    case ThreeD:
        return m_selectes_FavBtn3D;
    case Custom:
        return m_selectes_FavBtnCustom;
    default:
        return m_selectes_FavBtn;
    }
}

void Controller::removeSelectedFavourite()
{
    if (onlyTextClosedButton* button = selectedFavourite())
        button->removeMySelf();
    validateMenuItems();
}

/// It is forgotten, too.
void Controller::switchOff(QPointer<onlyTextClosedButton>& button)
{
    if (button)
        button->setChecked(false);
    button = nullptr;
}

void Controller::removeFavourite(
    FavouritesStore& store, QPointer<onlyTextClosedButton>& selected, onlyTextClosedButton* sender)
{
    if (store.contains(sender)) {
        if (sender == selected)
            clearAll();
        store.remove(sender);
        updateView();
        updateMainBtnState();
    }
    if (store.isEmpty())
        selected = nullptr;
}

void Controller::removeFavorites(onlyTextClosedButton* sender)
{
    removeFavourite(m_favorites, m_selectes_FavBtn, sender);
}

void Controller::removeFavorites3D(onlyTextClosedButton* sender)
{
    removeFavourite(m_favorites3D, m_selectes_FavBtn3D, sender);
}

void Controller::removeFavoritesCustom(onlyTextClosedButton* sender)
{
    removeFavourite(m_favoritesCustom, m_selectes_FavBtnCustom, sender);
}

void Controller::saveFavorites()
{
    saveFavoritesCI();
    saveFavorites3D();
    saveFavoritesCustom();
}

void Controller::readFavorites()
{
    readFavoritesCI();
    readFavorites3D();
    readFavoritesCustom();
}

/// For the modes of effects; which one it is now doesn't matter to strip and list.
void Controller::chooseEffectFavourite(
    FavouritesStore& store, QPointer<onlyTextClosedButton>& selected, OutlineView& list, onlyTextClosedButton* sender)
{
    const bool wasSelected = sender && sender == selected;
    switchOff(selected);
    {
        const QScopedValueRollback ours(m_selectionIsOurs, true);
        list.deselectAll();
    }
    if (!sender || wasSelected) {
        clearAllAndUpdate();
        return;
    }
    if (const Favourite* favourite = store.favouriteOf(sender); favourite && favourite->effect) {
        setCurrentEffect(favourite->effect->mycopy());
        selected = sender;
        store.makeVisible(sender);
        sender->setChecked(true);
        m_document.setWasChanged(true);
    }
    updateView();
    updateMainBtnState();
}

void Controller::addFavorites3D()
{
    if (!current3DEffect)
        return;
    const QImage thumbnail = favouriteThumbnail(openGLView->ogl_shot());
    if (!thumbnail.isNull())
        m_favorites3D.add(thumbnail, *current3DEffect);
}

void Controller::filterChanged3D(onlyTextClosedButton* sender)
{
    chooseEffectFavourite(m_favorites3D, m_selectes_FavBtn3D, *filter3DOutlineView, sender);
}

// --- filters ---

void Controller::addFavorites()
{
    if (!currentFilter)
        return;
    const QImage thumbnail = favouriteThumbnail(coreImageResult(false));
    if (thumbnail.isNull())
        return;
    CIDictionary values{{"class", currentFilter->name()}};
    for (const std::string& key : currentFilter->inputKeys())
        if (CIValue value = currentFilter->valueForKey(key); !value.isNothing())
            values[key] = std::move(value);
    m_favorites.add(thumbnail, QString::fromStdString(currentFilter->displayName()), std::move(values));
}

void Controller::filterChanged(onlyTextClosedButton* sender)
{
    if (!sender || sender == m_selectes_FavBtn) {
        clearAllAndUpdate(); // switches the button off
        return;
    }
    switchOff(m_selectes_FavBtn);
    m_selectes_FavBtn = sender;
    deselectLists();
    if (const Favourite* favourite = m_favorites.favouriteOf(sender)) {
        clearControls();
        addFilterIndex(QString::fromStdString(favourite->valueForKey("class").toString()), 0);
        if (const std::shared_ptr<CIFilter> filter = currentFilter)
            for (const std::string& key : filter->inputKeys())
                if (const CIValue value = favourite->valueForKey(key); !value.isNothing()) {
                    setFilterValueForKey(*filter, value, key);
                    setActionNameForFilterKey(*filter, key);
                }
        updateLayout(); // the rows were made for the filter's own values
        m_favorites.makeVisible(sender);
        sender->setChecked(true);
        m_document.setWasChanged(true);
    }
    updateView();
    updateMainBtnState();
}
