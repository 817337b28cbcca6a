#include "app/catalogue/FilterGrid.h"

#include "app/catalogue/CataloguePictures.h"
#include "app/catalogue/OutlineModel.h"
#include "app/catalogue/OutlineView.h"
#include "platform/foundation/Appearance.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace {

constexpr int kGap = 4; // points around a picture
constexpr int kCorner = 4;
constexpr QSize kPicture = CataloguePictures::kSize;

bool isGroup(const QModelIndex& index) { return !(index.flags() & Qt::ItemIsSelectable); }

const OutlineItem* itemOf(const QModelIndex& index)
{
    return index.data(OutlineModel::ItemRole).value<const OutlineItem*>();
}

} // namespace

/// Groups and their rows, one after the other.
class FilterGrid::Rows : public QAbstractListModel {
public:
    Rows(QAbstractItemModel& tree, QObject* parent)
        : QAbstractListModel(parent)
        , m_tree(tree)
    {
        const auto renew = [this] {
            beginResetModel();
            read();
            endResetModel();
        };
        connect(&tree, &QAbstractItemModel::rowsInserted, this, renew);
        connect(&tree, &QAbstractItemModel::rowsRemoved, this, renew);
        connect(&tree, &QAbstractItemModel::layoutChanged, this, renew);
        connect(&tree, &QAbstractItemModel::modelReset, this, renew);
        read();
    }
    QModelIndex inTree(const QModelIndex& row) const { return m_rows.value(row.row()); }
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : int(m_rows.size()); }
    QVariant data(const QModelIndex& row, int role) const override { return inTree(row).data(role); }
    Qt::ItemFlags flags(const QModelIndex& row) const override { return inTree(row).flags(); }

private:
    void read()
    {
        m_rows.clear();
        for (int g = 0; g < m_tree.rowCount(); ++g) {
            const QModelIndex group = m_tree.index(g, 0);
            m_rows.append(group);
            for (int row = 0; row < m_tree.rowCount(group); ++row)
                m_rows.append(m_tree.index(row, 0, group));
        }
    }

    QAbstractItemModel& m_tree;
    QList<QPersistentModelIndex> m_rows;
};

class FilterGrid::Cell : public QStyledItemDelegate {
public:
    explicit Cell(FilterGrid& grid)
        : QStyledItemDelegate(&grid)
        , m_grid(grid)
    {
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const int line = option.fontMetrics.height();
        return isGroup(index) ? QSize(m_grid.viewport()->width() - 1, line + 3 * kGap)
                              : QSize(kPicture.width() + 2 * kGap, kPicture.height() + line + 3 * kGap);
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const Look& look = Appearance::shared().look();
        const QString text = index.data(Qt::DisplayRole).toString();
        painter->save();
        painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        if (isGroup(index)) {
            QFont bold = option.font;
            bold.setWeight(QFont::DemiBold);
            painter->setFont(bold);
            painter->setPen(look.secondaryText);
            painter->drawText(option.rect.adjusted(2 * kGap, kGap, 0, 0), Qt::AlignVCenter | Qt::AlignLeading, text);
        } else {
            paintFilter(*painter, option, index, text);
        }
        painter->restore();
    }

private:
    void paintFilter(
        QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index, const QString& text) const
    {
        const Look& look = Appearance::shared().look();
        const bool isSelected = option.state & QStyle::State_Selected;
        const QRectF ground = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
        painter.setPen(Qt::NoPen);
        painter.setBrush(isSelected ? look.accent : option.state & QStyle::State_MouseOver ? look.hover : look.panel);
        painter.drawRoundedRect(ground, kCorner + 2, kCorner + 2);
        if (m_grid.hasFocus() && index == m_grid.currentIndex()) {
            painter.setPen(QPen(look.accentMark, 1.5));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(ground.adjusted(0.5, 0.5, -0.5, -0.5), kCorner + 1, kCorner + 1);
        }
        const QRect spot(option.rect.topLeft() + QPoint(kGap, kGap), kPicture);
        QPainterPath outline;
        outline.addRoundedRect(spot, kCorner, kCorner);
        painter.save();
        painter.setClipPath(outline);
        painter.fillRect(spot, look.hover);
        if (m_grid.m_pictures)
            painter.drawImage(spot, m_grid.m_pictures(itemOf(index)));
        painter.restore();
        const QRect line(spot.left(), spot.bottom() + 1, spot.width(), option.rect.bottom() - spot.bottom() - 1);
        painter.setPen(isSelected ? look.accentText : look.text);
        painter.drawText(
            line, Qt::AlignCenter, QFontMetrics(option.font).elidedText(text, Qt::ElideRight, line.width()));
    }

    const FilterGrid& m_grid;
};

int FilterGrid::wantedWidth() { return kColumns * (kPicture.width() + 2 * kGap) + 24; } // and the scroller

FilterGrid::FilterGrid(QWidget* parent)
    : QListView(parent)
{
    setViewMode(ListMode);
    setFlow(LeftToRight);
    setWrapping(true);
    setResizeMode(Adjust);
    setMouseTracking(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setItemDelegate(new Cell(*this));
    connect(this, &QListView::clicked, this, [this](const QModelIndex& row) {
        const QModelIndex found = m_rows->inTree(row);
        if (!(found.flags() & Qt::ItemIsSelectable) && !m_list->model()->hasChildren(found))
            m_list->takeRow(found); // a look or an effect of another mode
    });
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    setFont(small);
}

void FilterGrid::follow(OutlineView& list)
{
    m_list = &list;
    m_rows = new Rows(*list.model(), this);
    setModel(m_rows);
    connect(list.selectionModel(), &QItemSelectionModel::selectionChanged, this, &FilterGrid::showSelection);
    connect(m_rows, &QAbstractItemModel::modelReset, this, &FilterGrid::showSelection);
}

void FilterGrid::setPictures(Pictures pictures)
{
    m_pictures = std::move(pictures);
    viewport()->update();
}

void FilterGrid::showSelection()
{
    const OutlineItem* chosen = m_list->selectedItem();
    if (selectionModel()->hasSelection() && itemOf(currentIndex()) == chosen)
        return;
    const QScopedValueRollback following(m_isFollowing, true);
    clearSelection();
    for (int row = 0; chosen && row < m_rows->rowCount(); ++row)
        if (const QModelIndex index = m_rows->index(row); itemOf(index) == chosen) {
            selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
            scrollTo(index);
            return;
        }
}

void FilterGrid::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    if (!m_isFollowing && !selected.isEmpty())
        m_list->selectRow(m_rows->inTree(selected.indexes().first()));
}

/// Keys walk over groups without dropping what is selected, as in the list.
QItemSelectionModel::SelectionFlags FilterGrid::selectionCommand(const QModelIndex& index, const QEvent* event) const
{
    if (!index.isValid() || isGroup(index))
        return QItemSelectionModel::NoUpdate;
    return QListView::selectionCommand(index, event);
}

void FilterGrid::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Space)
        return event->ignore(); // the window's, and the picture's
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentIndex().isValid())
        return m_list->selectRow(m_rows->inTree(currentIndex()));
    QListView::keyPressEvent(event);
}

/// Groups are as wide as the grid.
void FilterGrid::resizeEvent(QResizeEvent* event)
{
    QListView::resizeEvent(event);
    scheduleDelayedItemsLayout();
}
