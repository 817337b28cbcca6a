// The program's list with groups.
#pragma once

#include "app/catalogue/OutlineDataSource.h"

#include <QElapsedTimer>
#include <QTreeView>

#include <functional>
#include <optional>

/// A tree view of an OutlineModel, straight or through a proxy, in the program's own look. Groups can be walked over
/// and opened with the keyboard (Left, Right, Return) but not selected.
class OutlineView : public QTreeView {
    Q_OBJECT

public:
    explicit OutlineView(QWidget* parent = nullptr);

    /// Null when no row is selected.
    const OutlineItem* selectedItem() const;
    /// Gives the list the keyboard, at its selected row or else at the first that can be chosen, which it isn't yet.
    void enter();
    /// Selects and shows the row, if the list has it just now. It is no choice of the user: nobody is told.
    void selectItem(const OutlineItem* item);
    /// Selects the row; for rows that can't be selected and invalid indexes nothing.
    void selectRow(const QModelIndex& index);
    /// As Return does: selects the row, or tells that it was clicked.
    void takeRow(const QModelIndex& index);
    /// Nobody is told of this, either.
    void deselectAll();
    /// Has the model filled anew, with that item selected, without moving what is seen or unfolding what is folded.
    /// Nobody is told.
    void refill(const std::function<void()>& fill, const OutlineItem* selected);

    bool isItemExpanded(const OutlineItem* item) const { return isExpanded(indexOfItem(item)); }
    void setItemExpanded(const OutlineItem* item, bool expanded) { setExpanded(indexOfItem(item), expanded); }

    /// Little pictures of `kFavouriteThumbnail` points before the rows' titles, asked for as rows are drawn; null
    /// images leave their place free. Without a function there are none.
    using Pictures = std::function<QImage(const OutlineItem*)>;
    void setPictures(Pictures pictures);

    /// Stars at the end of rows: whether one is lit, or nothing for rows without. Dark ones are seen under the mouse
    /// only.
    using Stars = std::function<std::optional<bool>(const OutlineItem*)>;
    void setStars(Stars stars);

    void setModel(QAbstractItemModel* model) override;

signals:
    /// By the user, or by `selectRow`.
    void selectionDidChange();
    /// A click, or Return, on a row that can't be selected.
    void groupClicked(const OutlineItem* item);
    void starClicked(const OutlineItem* item);

protected:
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    QModelIndex indexOfItem(const OutlineItem* item, const QModelIndex& parent = {}) const;
    void paintCell(QPainter& painter, const QModelIndex& cell, bool selected, bool hovered) const;
    std::optional<bool> starOf(const QModelIndex& cell) const;
    QRect starPlace(const QModelIndex& cell) const;
    QRect paintPicture(QPainter& painter, const QModelIndex& cell, const QRect& place) const;

    bool m_marksCurrent = false; // since keys are used here
    QElapsedTimer m_typed; // since the last letter that looks for a row
    Pictures m_pictures;
    Stars m_stars;
};
