#include "app/catalogue/CatalogueSearch.h"

#include <algorithm>

CatalogueSearch::CatalogueSearch(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setRecursiveFilteringEnabled(true);
}

void CatalogueSearch::setText(const QString& text)
{
    m_words = text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    invalidateFilter();
}

bool CatalogueSearch::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const auto holdsAll = [this](const QModelIndex& index) {
        const QString text =
            index.data(Qt::DisplayRole).toString() + QLatin1Char('\n') + index.data(Qt::ToolTipRole).toString();
        return std::all_of(m_words.begin(), m_words.end(),
            [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
    };
    return holdsAll(sourceModel()->index(row, 0, parent)) || (parent.isValid() && holdsAll(parent));
}

QModelIndex CatalogueSearch::firstMatch() const
{
    for (int group = 0; group < rowCount(); ++group)
        if (const QModelIndex row = index(0, 0, index(group, 0)); row.isValid())
            return row;
    return {};
}
