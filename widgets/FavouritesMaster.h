// What the buttons of a favourites strip need from the mode that they belong to.
#pragma once

class onlyTextClosedButton;

class FavouritesMaster {
public:
    virtual ~FavouritesMaster() = default;

    /// The button was pressed.
    virtual void chooseFavourite(onlyTextClosedButton* button) = 0;
    /// Removes the favourite of that button, and the button.
    virtual void removeFavourite(onlyTextClosedButton* button) = 0;
};
