// Finds filters by what is typed.
#pragma once

#include <QSortFilterProxyModel>
#include <QStringList>

/// Lets through the rows of an outline whose title or class name holds every typed word, in any order and letter
/// case, and the groups of such rows. The rows of a group whose label holds them all are all let through.
class CatalogueSearch : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit CatalogueSearch(QObject* parent = nullptr);

    void setText(const QString& text);
    /// The first row that is no group, or an invalid index.
    QModelIndex firstMatch() const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    QStringList m_words;
};
