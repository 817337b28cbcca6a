// The filters as pictures in columns.
#pragma once

#include <QListView>

#include <functional>

class OutlineItem;
class OutlineView;

/// Shows what an OutlineView shows, three pictures beside each other, and chooses in it. The view has the model, and
/// the selection.
class FilterGrid : public QListView {
    Q_OBJECT

public:
    static constexpr int kColumns = 3;
    /// The width in which as many columns have room.
    static int wantedWidth();

    explicit FilterGrid(QWidget* parent = nullptr);

    /// Once, when the list has its model.
    void follow(OutlineView& list);
    /// As those of the list, of `CataloguePictures::kSize`; asked for as they are drawn.
    using Pictures = std::function<QImage(const OutlineItem*)>;
    void setPictures(Pictures pictures);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Rows;
    class Cell;
    void showSelection();

    OutlineView* m_list = nullptr;
    Rows* m_rows = nullptr;
    Pictures m_pictures;
    bool m_isFollowing = false; // what is selected here comes from the list
};
