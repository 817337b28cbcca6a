// The favourites of a mode: a list in the user defaults, and a strip of buttons for it.
//
// The three modes have a store each, made with what differs (`FavouritesFamily`). A mode adds with `add`, finds with
// `favouriteOf` what a pressed button brings back, and removes with `remove`.
#pragma once

#include "effects2d/BaseEffect.h"
#include "platform/chain/FilterSettings.h"
#include "platform/foundation/StoredRecords.h"
#include "widgets/onlyTextClosedButton.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSet>
#include <QTimer>

#include <functional>
#include <optional>

class DocPageControl;
class FavouritesMaster;

/// What is to become a favourite: a filter's settings ("class" and the input keys), or an effect.
struct NewFavourite {
    QImage thumbnail;
    QString toolTip;
    CIDictionary values{};
    std::shared_ptr<BaseEffect> effect{};
};

/// What a button brings back: in standard mode a filter's settings, else an effect.
struct Favourite : FilterSettings {
    /// Null when its thumbnail can't be read: then it can't be pressed, but it is kept.
    QPointer<onlyTextClosedButton> button;
    /// 3D and custom: the effect (under "class"); to be copied, not used. Null when its class is unknown.
    std::shared_ptr<BaseEffect> effect;
    QString id; // unlike all others, in all windows
    StoredRecord stored; // empty until it is archived
    bool isChanged = false; // by this window, since it was read or written

    bool hasClass() const { return effect || FilterSettings::hasClass(); }
};

struct FavouritesFamily {
    QString defaultsKey; // "EffectsFavorites", "3DEffectsFavorites", "CustomEffectsFavorites"
    /// 3D and custom: makes an effect of what its `save` told; null of an unknown class. Not set for filters.
    std::function<std::shared_ptr<BaseEffect>(const CIDictionary&)> effectFrom;
    /// The place that `makeVisible` goes by.
    int (QWidget::*place)() const = &QWidget::x;
};

/// Newest last, unless the user moves them. Changes are written half a second later, or by `save`.
///
/// Several windows may have the list: what is written is what is stored by then, with this window's changes.
class FavouritesStore {
    Q_DECLARE_TR_FUNCTIONS(FavouritesStore)

public:
    /// `strip` and `master`, which takes the buttons' presses, must outlive the store; the strip owns the buttons.
    FavouritesStore(FavouritesFamily family, DocPageControl& strip, FavouritesMaster& master);

    bool isEmpty() const { return m_favourites.empty(); }
    const std::vector<Favourite>& favourites() const { return m_favourites; }

    /// Appends it. The button is not switched on.
    void add(NewFavourite added);
    /// The button stands for something else from now on; it keeps the name unless it is of another class.
    void replace(const onlyTextClosedButton* button, NewFavourite replacement);
    void rename(const onlyTextClosedButton* button, const QString& name);

    /// The first one with that button that has a class; null when there is none.
    const Favourite* favouriteOf(const onlyTextClosedButton* button) const;
    bool contains(const onlyTextClosedButton* button) const;
    /// With its button. Nothing when there is none.
    void remove(onlyTextClosedButton* button);
    /// Lets the strip step towards the item at the family's place of the button, and then to the button itself.
    void makeVisible(const onlyTextClosedButton* button);

    /// Writes the changes to the user defaults. Values that can't be archived are logged and left out. False when the
    /// list can't be written; what was stored before then stays.
    bool save();
    /// Replaces the list by the stored one; does nothing when none is stored.
    void read();

private:
    Favourite* find(const onlyTextClosedButton* button);
    void change(Favourite& favourite);
    void fill(Favourite& favourite, NewFavourite&& content);
    void takeOrder();
    onlyTextClosedButton* addButton(const QImage& thumbnail, const QString& toolTip);
    QString shownName(const QString& toolTip) const;
    Favourite favouriteFrom(const StoredRecord& record, const QString& id);
    bool archiveChanged();
    StoredRecords merged(const std::optional<StoredRecords>& onDisk) const;
    void setDamagedListAside();

    FavouritesFamily m_family;
    DocPageControl& m_strip;
    FavouritesMaster& m_master;
    std::vector<Favourite> m_favourites;
    QSet<QString> m_known; // the ids that this window has seen in the stored list
    bool m_isReordered = false;
    std::unique_ptr<StoredRecordsUse> m_use;
    QTimer m_soon;
};
