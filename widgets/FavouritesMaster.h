// What the buttons of the favourites strips need from the controller.
#pragma once

class onlyTextClosedButton;

class FavouritesMaster {
public:
    virtual ~FavouritesMaster() = default;

    /// 0 standard, 1 3D, 2 custom.
    virtual unsigned filerMode() const = 0;
    // Remove the favourite of that button, and the button.
    virtual void removeFavorites(onlyTextClosedButton* sender) = 0;
    virtual void removeFavorites3D(onlyTextClosedButton* sender) = 0;
    virtual void removeFavoritesCustom(onlyTextClosedButton* sender) = 0;
};
