// The favourites of a mode: a list in the user defaults, and a strip of buttons for it.
//
// The three modes have a store each, made with what differs (`FavouritesFamily`). A mode adds with `add`, finds with
// `favouriteOf` what a pressed button brings back, and removes with `remove`.
#pragma once

#include "effects2d/BaseEffect.h"
#include "platform/chain/FilterSettings.h"
#include "platform/foundation/StoredRecords.h"
#include "widgets/onlyTextClosedButton.h"

#include <QPointer>

#include <functional>

class DocPageControl;
class FavouritesMaster;

/// What a button brings back: in standard mode a filter's settings, else an effect.
struct Favourite : FilterSettings {
    /// Null when its thumbnail can't be read: then it can't be pressed, but it is kept.
    QPointer<onlyTextClosedButton> button;
    /// 3D and custom: the effect (under "class"); to be copied, not used. Null when its class is unknown.
    std::shared_ptr<BaseEffect> effect;

    bool hasClass() const { return effect || FilterSettings::hasClass(); }
};

struct FavouritesFamily {
    QString defaultsKey; // "EffectsFavorites", "3DEffectsFavorites", "CustomEffectsFavorites"
    /// 3D and custom: makes an effect of what its `save` told; null of an unknown class. Not set for filters.
    std::function<std::shared_ptr<BaseEffect>(const CIDictionary&)> effectFrom;
    /// The place that `makeVisible` goes by.
    int (QWidget::*place)() const = &QWidget::x;
};

/// Newest last. Additions and removals are in memory until `save`.
class FavouritesStore {
public:
    /// `strip` and `master`, which takes the buttons' presses, must outlive the store; the strip owns the buttons.
    FavouritesStore(FavouritesFamily family, DocPageControl& strip, FavouritesMaster& master);

    bool isEmpty() const { return m_favourites.empty(); }
    const std::vector<Favourite>& favourites() const { return m_favourites; }

    /// Appends a filter's settings: "class" and the input keys are in `values`. The button is not switched on.
    void add(const QImage& thumbnail, const QString& toolTip, CIDictionary values);
    /// Appends a copy of an effect under the effect's tips.
    void add(const QImage& thumbnail, const BaseEffect& effect);

    /// The first one with that button that has a class; null when there is none.
    const Favourite* favouriteOf(const onlyTextClosedButton* button) const;
    bool contains(const onlyTextClosedButton* button) const;
    /// With its button. Nothing when there is none.
    void remove(onlyTextClosedButton* button);
    /// Lets the strip step towards the item at the family's place of the button.
    void makeVisible(const onlyTextClosedButton* button);

    /// Writes the list to the user defaults. Values that can't be archived are logged and left out. False when the list
    /// can't be written; what was stored before then stays.
    bool save() const;
    /// Replaces the list by the stored one; does nothing when none is stored.
    void read();

private:
    onlyTextClosedButton* addButton(const QImage& thumbnail, const QString& toolTip);
    Favourite favouriteFrom(const StoredRecord& record);

    FavouritesFamily m_family;
    DocPageControl& m_strip;
    FavouritesMaster& m_master;
    std::vector<Favourite> m_favourites;
};
