// What the buttons of a favourites strip need from the mode that they belong to.
#pragma once

class onlyTextClosedButton;
class QPoint;
class QString;

class FavouritesMaster {
public:
    virtual ~FavouritesMaster() = default;

    /// The button was pressed.
    virtual void chooseFavourite(onlyTextClosedButton* button) = 0;
    /// Removes the favourite of that button, and the button.
    virtual void removeFavourite(onlyTextClosedButton* button) = 0;
    /// Shows what else can be done with it, at that place of the screen.
    virtual void showFavouriteMenu(onlyTextClosedButton* button, const QPoint& place) = 0;
    /// Something went wrong with the list of favourites.
    virtual void tell(const QString& message) = 0;
};
