// The list of filters in the window.
#pragma once

#include "app/catalogue/CataloguePictures.h"
#include "app/catalogue/CatalogueSearch.h"
#include "app/catalogue/DataSource.h"
#include "app/catalogue/OutlineModel.h"

class FilterGrid;
class FilterMaker;
class OutlineView;
class QAction;

/// Fills the list, searches in it, and shows in it what each filter makes of the picture if `thumbnails` is checked, or
/// in columns in its place if `columns` is; both are remembered.
class FilterCatalogue : public QObject {
    Q_OBJECT

public:
    struct Choices {
        QAction &thumbnails, &columns;
    };
    FilterCatalogue(OutlineView& list, FilterGrid& grid, Choices choices, FilterMaker& filters);

    void setPicture(const CIImage& picture);
    /// The row whose filter is the current one, which the search may hide; null for none. Selects nothing by itself.
    void setChosenRow(const OutlineItem* row) { m_chosenRow = row; }
    /// Chooses and selects the first row of that class. Nobody is told.
    void selectClass(const QString& className);
    /// Folds the group, or unfolds it.
    void toggle(const OutlineItem* group);

    /// Shows only the filters that match; the current filter stays, seen or not.
    void searchFilters(const QString& text);
    /// Picks the first filter that is shown.
    void takeFirstMatch();
    void thumbnailsToggled();
    void columnsToggled();
    /// Filters start with other values.
    void renewPictures() { setPicture(m_picture); }

private:
    CIImage pictureOf(const QString& filterName, const CIImage& picture, bool isFitted);
    void showThumbnails();

    OutlineView& m_list;
    FilterGrid& m_grid;
    Choices m_choices;
    FilterMaker& m_filters;
    DataSource m_dataSource;
    OutlineModel m_rows;
    CatalogueSearch m_search;
    CataloguePictures m_pictures;
    CIImage m_picture;
    const OutlineItem* m_chosenRow = nullptr;
};
