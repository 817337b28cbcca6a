// The list of effects of a mode.
#pragma once

#include "app/catalogue/OutlineDataSource.h"
#include "effects2d/BaseEffect.h"

#include <memory>
#include <vector>

/// An effect that can be picked: the prototype that copies are made of.
class EffectRow : public OutlineItem {
public:
    std::shared_ptr<BaseEffect> effect;
};

/// One row for each prototype, without groups.
class EffectList : public OutlineDataSource {
public:
    static inline const QString kTitleColumn = QStringLiteral("1");
    static inline const QString kMarkerColumn = QStringLiteral("0"); // marks effects that are dragged on the picture

    enum class Marks {
        Mousing, // effects with an anchor
        All, // in space, each is turned with the mouse
    };
    EffectList(std::vector<std::shared_ptr<BaseEffect>> prototypes, Marks marks);

    const std::vector<std::shared_ptr<BaseEffect>>& prototypes() const { return m_prototypes; }

    int outlineViewNumberOfChildrenOfItem(const OutlineItem* item) const override;
    bool outlineViewIsItemExpandable(const OutlineItem*) const override { return false; }
    const OutlineItem* outlineViewChildOfItem(int index, const OutlineItem* item) const override;
    QVariant outlineViewObjectValueForTableColumnByItem(const QString& column, const OutlineItem* item) const override;
    bool outlineViewShouldEditTableColumnItem(const QString&, const OutlineItem*) const override { return false; }
    QString outlineViewToolTipOfItem(const OutlineItem* item) const override;

private:
    std::vector<std::shared_ptr<BaseEffect>> m_prototypes;
    std::vector<std::unique_ptr<EffectRow>> m_rows;
    Marks m_marks;
};
