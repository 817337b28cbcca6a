#include "app/catalogue/OutlineModel.h"

#include <QIcon>

#include <utility>

OutlineModel::OutlineModel(const OutlineDataSource& source, QStringList columns, QObject* parent)
    : QAbstractItemModel(parent)
    , m_source(source)
    , m_columns(std::move(columns))
{
}

const OutlineItem* OutlineModel::item(const QModelIndex& index) const
{
    return static_cast<const OutlineItem*>(index.constInternalPointer());
}

void OutlineModel::reloadData()
{
    beginResetModel();
    m_places.clear();
    endResetModel();
}

QModelIndex OutlineModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    const OutlineItem* parentItem = item(parent);
    const OutlineItem* child = m_source.outlineViewChildOfItem(row, parentItem);
    if (!child)
        return {};
    m_places.insert(child, {parentItem, row});
    return createIndex(row, column, child);
}

QModelIndex OutlineModel::parent(const QModelIndex& child) const
{
    const OutlineItem* parentItem = m_places.value(item(child)).parent;
    return parentItem ? createIndex(m_places.value(parentItem).row, 0, parentItem) : QModelIndex();
}

int OutlineModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : m_source.outlineViewNumberOfChildrenOfItem(item(parent));
}

int OutlineModel::columnCount(const QModelIndex&) const { return int(m_columns.size()); }

bool OutlineModel::hasChildren(const QModelIndex& parent) const
{
    return !parent.isValid() || (parent.column() == 0 && m_source.outlineViewIsItemExpandable(item(parent)));
}

QVariant OutlineModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == ItemRole)
        return QVariant::fromValue(item(index));
    if (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole)
        return m_source.outlineViewToolTipOfItem(item(index));
    if (role != Qt::DisplayRole && role != Qt::DecorationRole)
        return {};
    const QVariant value =
        m_source.outlineViewObjectValueForTableColumnByItem(m_columns.at(index.column()), item(index));
    const bool isIcon = value.metaType() == QMetaType::fromType<QIcon>();
    return isIcon == (role == Qt::DecorationRole) ? value : QVariant();
}

Qt::ItemFlags OutlineModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled;
    if (!m_source.outlineViewIsItemExpandable(item(index)))
        flags |= Qt::ItemNeverHasChildren;
    if (m_source.outlineViewIsItemSelectable(item(index)))
        flags |= Qt::ItemIsSelectable;
    if (m_source.outlineViewShouldEditTableColumnItem(m_columns.at(index.column()), item(index)))
        flags |= Qt::ItemIsEditable;
    return flags;
}
