// One of the ways to edit the picture.
#pragma once

#include "app/catalogue/FavouritesStore.h"
#include "effects2d/BaseEffect.h"
#include "widgets/FavouritesMaster.h"

#include <QObject>
#include <QPointer>

#include <functional>

class Document;
class GradientButton;
class OutlineItem;
class OutlineView;
class QLabel;
class ZoomedCanvas;
struct SessionState;

/// What of the window is the mode's own, and the title above the controls, which belongs to the mode that is on.
struct ModeParts {
    GradientButton& button; // on while the mode is
    OutlineView& list;
    DocPageControl& strip;
    QWidget& controls;
    QLabel& name;
    QWidget& nameLine;
    QLabel& hint;
};

/// A list of items, the one of them that is being edited, and the favourites. The current item stays while other modes
/// are on.
class Mode : public QObject, public FavouritesMaster {
    Q_OBJECT

public:
    ~Mode() override;

    GradientButton& button() const { return m_parts.button; }
    QWidget& controls() const { return m_parts.controls; }
    DocPageControl& strip() const { return m_parts.strip; }
    bool isOn() const;

    // --- the current item ---

    virtual bool hasItem() const = 0;
    /// Makes the row's item the current one; nothing is current after a row that has none, or null.
    virtual void choose(const OutlineItem* row) = 0;
    /// Nothing is current and selected any more.
    void clear();
    /// As far as it outlives the program: entries of its own in `state`. `picture` is in there already.
    virtual void save(SessionState& state, const CIImage& picture) const = 0;
    virtual void restore(const SessionState& state) = 0;

    // --- what it makes of the picture ---

    /// Shows the item or the picture as it is now.
    virtual void updateView() = 0;
    /// The view, if it can be zoomed.
    virtual ZoomedCanvas* canvas() const { return nullptr; }
    /// True when the view makes the picture's reduced copies by itself, as it draws: better have them made before.
    virtual bool needsReducedCopies() const { return false; }
    virtual void pictureChanged() = 0;
    /// What the user sees, at full size and with an end: the picture where nothing is made of it.
    CIImage finishedImage();
    /// The same, to be made on another thread. Null when there is nothing.
    virtual BaseEffect::LaterImage laterFinishedImage();
    /// Makes the result the picture, and calls `done` unless the user stops it.
    virtual void apply(const std::function<void()>& done) = 0;

    // --- favourites ---

    FavouritesStore& favourites() { return m_favorites; }
    /// Adds the current item.
    void addFavourite();
    /// Brings back what the button stands for, or nothing when it is null or selected.
    void chooseFavourite(onlyTextClosedButton* button) override;
    void removeFavourite(onlyTextClosedButton* button) override;
    void showFavouriteMenu(onlyTextClosedButton* button, const QPoint& place) override;
    void tell(const QString& message) override;
    /// Null when none is switched on.
    onlyTextClosedButton* selectedFavourite() const;

    /// Says in the title what is current, and what can be done.
    void showTitle();
    virtual void appearanceChanged();

signals:
    /// The current item, or a favourite, is another one.
    void changed();
    /// The current item of the mode that is on must go.
    void clearAsked();

protected:
    struct Title {
        QString name, hint; // empty for none
    };

    Mode(const ModeParts& parts, FavouritesFamily family, Document& document);
    virtual Title title() const = 0;
    /// Makes one of the current item, perhaps later; nothing without an item or when there is nothing to be seen.
    using TakeFavourite = std::function<void(NewFavourite)>;
    virtual void makeFavourite(const TakeFavourite& take) = 0;
    virtual void dropItem() = 0;
    /// Null when there is nothing to be shown. Where nothing is made of the picture it may be that, or null.
    virtual CIImage shownImage() = 0;
    /// False when the favourite, which may be null, brings nothing.
    virtual bool bringBack(const Favourite* favourite) = 0;
    virtual void deselectRows();
    void deselectFavourite();

    OutlineView& list() const { return m_parts.list; }
    void replacePicture(const CIImage& applied);

    Document& m_document;
    FavouritesStore m_favorites;
    QPointer<onlyTextClosedButton> m_selectes_FavBtn; // the one that is shown as selected

private:
    void renameFavourite(onlyTextClosedButton* button);

    ModeParts m_parts;
};
