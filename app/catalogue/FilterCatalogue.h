// The list of filters in the window.
#pragma once

#include "app/catalogue/CataloguePictures.h"
#include "app/catalogue/FilterList.h"
#include "app/catalogue/OutlineModel.h"

class FilterGrid;
class FilterMaker;
class OutlineView;
class QAction;

/// Fills the list, searches in it, and shows in it what each filter makes of the picture if `thumbnails` is checked, or
/// in columns in its place if `columns` is; both are
/// remembered. So are the filters that are pinned and those that were used.
class FilterCatalogue : public QObject {
    Q_OBJECT

public:
    struct Choices {
        QAction &thumbnails, &columns;
    };
    FilterCatalogue(OutlineView& list, FilterGrid& grid, Choices choices, FilterMaker& filters);
    /// That can be found, too. `icon` is that of their mode.
    void addEffects(const std::vector<std::shared_ptr<BaseEffect>>& prototypes, const QIcon& icon)
    {
        m_shown.addEffects(prototypes, icon);
    }

    void setPicture(const CIImage& picture);
    /// The row whose filter is the current one, which the search may hide; null for none. Selects nothing by itself.
    void setChosenRow(const OutlineItem* row) { m_chosenRow = m_shown.rowInGroup(row); }
    const OutlineItem* chosenRow() const { return m_chosenRow; }
    /// Chooses and selects the first row of that class. Nobody is told.
    void selectClass(const QString& className);
    /// Of a row that can't be chosen: folds or unfolds a group, or asks for an effect. True when it was an effect.
    bool clicked(const OutlineItem* row);

    /// Shows only what is found; the current filter stays, seen or not.
    void searchFilters(const QString& text);
    /// Picks the first that was found. What is only near just gets the keyboard.
    void takeFirstMatch();
    void thumbnailsToggled();
    void columnsToggled();
    /// Filters start with other values.
    void renewPictures() { setPicture(m_picture); }

    /// The filter of that class stands on top of the list from now on, or no longer.
    void togglePinned(const QString& className);
    /// It is among those last used.
    void noteUsed(const QString& className);

signals:
    void effectAsked(const QString& className);
    void lookAsked(const PictureLook* look);

private:
    void showContextMenu(const QPoint& place);
    void showOnTop();
    CIImage pictureOf(const QString& filterName, const CIImage& picture, bool isFitted);
    void showThumbnails();

    OutlineView& m_list;
    FilterGrid& m_grid;
    Choices m_choices;
    FilterMaker& m_filters;
    DataSource m_dataSource;
    FilterList m_shown;
    OutlineModel m_rows;
    CataloguePictures m_pictures;
    CIImage m_picture;
    const OutlineItem* m_chosenRow = nullptr;
    QStringList m_pinned, m_recent; // classes; the last used first
};
