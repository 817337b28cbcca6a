// What the list of filters shows just now.
#pragma once

#include "app/catalogue/DataSource.h"
#include "app/catalogue/FilterIndex.h"
#include "app/catalogue/Looks.h"
#include "effects2d/BaseEffect.h"

#include <QIcon>

/// An effect of another mode or a look, among what was found.
class EffectLink : public OutlineItem {
public:
    QString className; // "sketchEffect"; empty for a look
    QString name, englishName, description;
    QIcon icon; // of its mode
    const PictureLook* look = nullptr;
};

/// All filters in their groups, below those that are pinned and those that were used; or else what a search found,
/// which may be effects as well. Whoever changes it has the model reloaded.
class FilterList : public OutlineDataSource {
public:
    /// `filters` must outlive the list.
    explicit FilterList(const DataSource& filters);
    /// Before the first search. Looks are there by themselves.
    void addEffects(const std::vector<std::shared_ptr<BaseEffect>>& prototypes, const QIcon& icon);

    /// Shows what is found; all filters for an empty text.
    void search(const QString& text);
    bool isSearching() const { return m_isSearching; }
    /// Nothing was found; what is shown is only near.
    bool isNear() const { return m_isNear; }
    /// By class; names that are no filter's are left out, and of `recent` also those that are pinned.
    void setOnTop(const QStringList& pinned, const QStringList& recent);
    /// The row in its group of a row that may stand on top.
    const OutlineItem* rowInGroup(const OutlineItem* row) const;

    int outlineViewNumberOfChildrenOfItem(const OutlineItem* item) const override;
    bool outlineViewIsItemExpandable(const OutlineItem* item) const override;
    bool outlineViewIsItemSelectable(const OutlineItem* item) const override;
    const OutlineItem* outlineViewChildOfItem(int index, const OutlineItem* item) const override;
    QVariant outlineViewObjectValueForTableColumnByItem(const QString& column, const OutlineItem* item) const override;
    bool outlineViewShouldEditTableColumnItem(const QString&, const OutlineItem*) const override { return false; }
    QString outlineViewToolTipOfItem(const OutlineItem* item) const override;

private:
    /// Rows that belong to others.
    struct RowGroup : OutlineItem {
        QString label;
        std::vector<const OutlineItem*> rows;
    };
    void fill(RowGroup& group, const QStringList& classNames);
    void addLooks();
    void buildIndex();
    void arrange();

    const DataSource& m_filters;
    FilterIndex m_index;
    bool m_isIndexed = false;
    std::vector<std::unique_ptr<EffectLink>> m_effects;
    std::vector<std::unique_ptr<FilterRow>> m_copies; // a row has one place only
    RowGroup m_pinned, m_recent, m_found, m_foundEffects;
    bool m_isSearching = false, m_isNear = false;
    std::vector<const OutlineItem*> m_shown; // the top rows
};
