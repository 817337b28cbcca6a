// Shows what an outline data source tells in a QTreeView.
#pragma once

#include "app/catalogue/OutlineDataSource.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QStringList>

/// The model of an outline whose content does not change while it is shown, except by `reloadData`.
class OutlineModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Role { ItemRole = Qt::UserRole }; // a const OutlineItem*

    /// `columns` are the identifiers that the data source is asked with. `source` must outlive the model.
    OutlineModel(const OutlineDataSource& source, QStringList columns, QObject* parent = nullptr);

    const OutlineItem* item(const QModelIndex& index) const; // null for the invalid index
    void reloadData();

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Place {
        const OutlineItem* parent = nullptr;
        int row = 0;
    };

    const OutlineDataSource& m_source;
    QStringList m_columns;
    mutable QHash<const OutlineItem*, Place> m_places; // of every row that was ever asked for
};
