#include "app/catalogue/OutlineView.h"

#include "app/catalogue/OutlineModel.h"
#include "app/catalogue/Thumbnail.h"
#include "platform/foundation/Appearance.h"
#include "platform/foundation/TintedIcon.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace {

constexpr int kRowHeight = 28; // points
constexpr int kMarkerColumnWidth = 32;
constexpr int kInset = 4; // of the rounded highlight from the list's edges
constexpr int kChevronSize = 12;
constexpr int kMarkerSize = 14;
constexpr int kPictureRowHeight = kFavouriteThumbnail.height() + 11;
constexpr int kPictureGap = 8;
constexpr int kStarSize = 14, kStarPlace = 22;

/// Gives rows their height; everything is painted by the view.
class RowHeight : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    int least = kRowHeight;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return {QStyledItemDelegate::sizeHint(option, index).width(), std::max(least, option.fontMetrics.height() + 8)};
    }
};

bool isGroup(const QModelIndex& index) { return !(index.flags() & Qt::ItemNeverHasChildren); }
bool canBeSelected(const QModelIndex& index) { return index.flags() & Qt::ItemIsSelectable; }

const OutlineItem* itemAt(const QModelIndex& index)
{
    return index.data(OutlineModel::ItemRole).value<const OutlineItem*>();
}

} // namespace

OutlineView::OutlineView(QWidget* parent)
    : QTreeView(parent)
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setIndentation(20);
    setExpandsOnDoubleClick(false); // a click toggles already
    setMouseTracking(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setItemDelegate(new RowHeight(this));
    connect(this, &QTreeView::clicked, this, [this](const QModelIndex& index) {
        if (!canBeSelected(index))
            emit groupClicked(itemAt(index));
    });
}

void OutlineView::setModel(QAbstractItemModel* model)
{
    QTreeView::setModel(model);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(kMarkerColumnWidth);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (int column = 1; column < model->columnCount(); ++column) {
        header()->setSectionResizeMode(column, QHeaderView::Fixed);
        header()->resizeSection(column, kMarkerColumnWidth);
    }
}

void OutlineView::setPictures(Pictures pictures)
{
    m_pictures = std::move(pictures);
    static_cast<RowHeight*>(itemDelegate())->least = m_pictures ? kPictureRowHeight : kRowHeight;
    doItemsLayout();
    if (currentIndex().isValid())
        scrollTo(currentIndex());
}

const OutlineItem* OutlineView::selectedItem() const
{
    const QModelIndexList rows = selectionModel() ? selectionModel()->selectedRows() : QModelIndexList();
    return rows.isEmpty() ? nullptr : itemAt(rows.first());
}

void OutlineView::enter()
{
    const QModelIndex first = model()->index(0, 0, model()->index(0, 0));
    if (!selectedItem() && first.isValid()) {
        selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        scrollTo(first);
    }
    setFocus(Qt::TabFocusReason);
}

QModelIndex OutlineView::indexOfItem(const OutlineItem* item, const QModelIndex& parent) const
{
    for (int row = 0; item && row < model()->rowCount(parent); ++row) {
        const QModelIndex index = model()->index(row, 0, parent);
        if (itemAt(index) == item)
            return index;
        if (const QModelIndex below = indexOfItem(item, index); below.isValid())
            return below;
    }
    return {};
}

void OutlineView::selectItem(const OutlineItem* item)
{
    const QSignalBlocker quiet(this);
    selectRow(indexOfItem(item));
}

void OutlineView::deselectAll()
{
    const QSignalBlocker quiet(this);
    selectionModel()->clearSelection();
}

void OutlineView::selectRow(const QModelIndex& index)
{
    if (!index.isValid() || !canBeSelected(index))
        return;
    setCurrentIndex(index);
    selectionModel()->select(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index);
}

void OutlineView::takeRow(const QModelIndex& index)
{
    if (index.isValid() && !canBeSelected(index))
        emit groupClicked(itemAt(index));
    else
        selectRow(index);
}

void OutlineView::refill(const std::function<void()>& fill, const OutlineItem* selected)
{
    const QSignalBlocker quiet(this);
    const QModelIndex first = indexAt(QPoint(0, 0));
    const OutlineItem* anchor = first.isValid() ? itemAt(first) : nullptr;
    const int before = visualRect(first).top();
    std::vector<const OutlineItem*> folded;
    for (int row = 0; row < model()->rowCount(); ++row)
        if (const QModelIndex group = model()->index(row, 0); !isExpanded(group))
            folded.push_back(itemAt(group));
    fill();
    expandAll();
    for (const OutlineItem* group : folded)
        collapse(indexOfItem(group));
    selectRow(indexOfItem(selected));
    if (const QModelIndex now = indexOfItem(anchor); now.isValid())
        verticalScrollBar()->setValue(verticalScrollBar()->value() + visualRect(now).top() - before);
}

void OutlineView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    emit selectionDidChange();
}

/// Keys walk over groups without dropping what is selected.
QItemSelectionModel::SelectionFlags OutlineView::selectionCommand(const QModelIndex& index, const QEvent* event) const
{
    const bool byKey = event && event->type() == QEvent::KeyPress;
    if (byKey && index.isValid() && !canBeSelected(index))
        return QItemSelectionModel::NoUpdate;
    return QTreeView::selectionCommand(index, event);
}

void OutlineView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTreeView::currentChanged(current, previous);
    viewport()->update(); // the ring goes around whole rows, also where they have no cells
}

void OutlineView::keyPressEvent(QKeyEvent* event)
{
    const QModelIndex current = currentIndex();
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && current.isValid()) {
        takeRow(current);
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        event->ignore(); // the window's
        return;
    }
    const bool typing = m_typed.isValid() && m_typed.elapsed() < QApplication::keyboardInputInterval();
    if (event->key() == Qt::Key_Space && !typing) {
        event->ignore(); // the picture's
        return;
    }
    if (!event->text().isEmpty() && event->text().front().isPrint())
        m_typed.start();
    QTreeView::keyPressEvent(event);
}

// --- stars ---

void OutlineView::setStars(Stars stars)
{
    m_stars = std::move(stars);
    viewport()->update();
}

std::optional<bool> OutlineView::starOf(const QModelIndex& cell) const
{
    return m_stars && cell.column() == 0 ? m_stars(itemAt(cell)) : std::nullopt;
}

QRect OutlineView::starPlace(const QModelIndex& cell) const
{
    const QRect rect = visualRect(cell.siblingAtColumn(0));
    return QStyle::alignedRect(
        layoutDirection(), Qt::AlignVCenter | Qt::AlignTrailing, QSize(kStarPlace, rect.height()), rect);
}

void OutlineView::mousePressEvent(QMouseEvent* event)
{
    m_marksCurrent = false;
    const QModelIndex row = indexAt(event->position().toPoint()).siblingAtColumn(0);
    if (event->button() == Qt::LeftButton && row.isValid() && starOf(row)
        && starPlace(row).contains(event->position().toPoint()))
        emit starClicked(itemAt(row));
    else
        QTreeView::mousePressEvent(event);
}

void OutlineView::focusInEvent(QFocusEvent* event)
{
    m_marksCurrent = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason
        || event->reason() == Qt::ShortcutFocusReason;
    QTreeView::focusInEvent(event);
}

void OutlineView::drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const Look& look = Appearance::shared().look();
    const bool selected = selectionModel()->isSelected(index);
    const bool isCurrent =
        m_marksCurrent && hasFocus() && index.siblingAtColumn(0) == currentIndex().siblingAtColumn(0);
    const bool hovered = viewport()->underMouse()
        && indexAt(viewport()->mapFromGlobal(QCursor::pos())).siblingAtColumn(0) == index.siblingAtColumn(0);
    QRect row = option.rect;
    row.setLeft(0);
    row.setRight(viewport()->width() - 1);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF highlight = QRectF(row).adjusted(kInset, 1, -kInset, -1);
    if (selected || hovered) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(selected ? look.accent : look.hover);
        painter->drawRoundedRect(highlight, 6, 6);
    }
    if (isCurrent) {
        painter->setPen(QPen(look.accentMark, 1.5));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(highlight.adjusted(0.75, 0.75, -0.75, -0.75), 5, 5);
    }
    for (int column = 0; column < model()->columnCount(index.parent()); ++column)
        paintCell(*painter, index.siblingAtColumn(column), selected, hovered);
    if (isGroup(index))
        drawBranches(painter, row, index);
    painter->restore();
}

void OutlineView::paintCell(QPainter& painter, const QModelIndex& cell, bool selected, bool hovered) const
{
    const Look& look = Appearance::shared().look();
    const QRect rect = visualRect(cell);
    if (const QIcon icon = cell.data(Qt::DecorationRole).value<QIcon>(); !icon.isNull()) {
        const QRect place(rect.center() - QPoint(kMarkerSize / 2, kMarkerSize / 2), QSize(kMarkerSize, kMarkerSize));
        icon.paint(&painter, place, Qt::AlignCenter, selected ? QIcon::Selected : QIcon::Normal);
    }
    const QString text = cell.data(Qt::DisplayRole).toString();
    if (text.isEmpty())
        return;
    QFont drawnFont = font();
    if (isGroup(cell))
        drawnFont.setWeight(QFont::DemiBold);
    const QColor color = isGroup(cell) ? look.secondaryText : look.text;
    painter.setFont(drawnFont);
    painter.setPen(selected ? look.accentText : color);
    QRect place = rect.adjusted(4, 0, -4, 0);
    if (m_pictures && cell.column() == 0 && !isGroup(cell))
        place = paintPicture(painter, cell,
            layoutDirection() == Qt::RightToLeft ? place.adjusted(0, 0, indentation(), 0)
                                                 : place.adjusted(-indentation(), 0, 0, 0)); // names need the room
    if (const std::optional<bool> star = starOf(cell); star && (*star || hovered)) {
        const QString name = *star ? QStringLiteral("favourite-filled") : QStringLiteral("favourite");
        const QRect around = starPlace(cell);
        const QRect spot(around.center() - QPoint(kStarSize / 2, kStarSize / 2), QSize(kStarSize, kStarSize));
        tintedIcon(name, *star && !selected ? IconTint::Accent : IconTint::Text)
            .paint(&painter, spot, Qt::AlignCenter, selected ? QIcon::Selected : QIcon::Normal);
        place = layoutDirection() == Qt::RightToLeft ? place.adjusted(kStarPlace, 0, 0, 0)
                                                     : place.adjusted(0, 0, -kStarPlace, 0);
    }
    painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeading,
        QFontMetrics(drawnFont).elidedText(text, Qt::ElideRight, place.width()));
}

/// Answers the place that is left for the title.
QRect OutlineView::paintPicture(QPainter& painter, const QModelIndex& cell, const QRect& place) const
{
    const QSize size = kFavouriteThumbnail;
    const QRect spot = QStyle::alignedRect(layoutDirection(), Qt::AlignVCenter | Qt::AlignLeading, size, place);
    const QImage picture = m_pictures(itemAt(cell));
    painter.save();
    QPainterPath outline;
    outline.addRoundedRect(spot, 3, 3);
    painter.setClipPath(outline);
    painter.fillRect(spot, Appearance::shared().look().hover);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(spot, picture);
    painter.restore();
    const int used = size.width() + kPictureGap;
    return layoutDirection() == Qt::RightToLeft ? place.adjusted(0, 0, -used, 0) : place.adjusted(used, 0, 0, 0);
}

void OutlineView::drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const
{
    if (!model()->hasChildren(index))
        return;
    const QRect text = visualRect(index);
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const int center = mirrored ? text.right() + indentation() / 2 : text.left() - indentation() / 2;
    const QRect place(center - kChevronSize / 2 + (mirrored ? -2 : 2), rect.center().y() - kChevronSize / 2,
        kChevronSize, kChevronSize);
    const char* folded = mirrored ? "chevron-left" : "chevron-right";
    tintedIcon(QLatin1String(isExpanded(index) ? "chevron-down" : folded)).paint(painter, place);
}
