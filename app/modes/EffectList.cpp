#include "app/modes/EffectList.h"

#include "controls/panel/FilterNames.h"
#include "platform/foundation/TintedIcon.h"

#include <QCoreApplication>
#include <QIcon>

namespace {

const BaseEffect* effectOf(const OutlineItem* item)
{
    const auto* row = dynamic_cast<const EffectRow*>(item);
    return row ? row->effect.get() : nullptr;
}

QString translated(const std::string& text) { return QCoreApplication::translate("BaseEffect", text.c_str()); }

} // namespace

EffectList::EffectList(std::vector<std::shared_ptr<BaseEffect>> prototypes, Marks marks)
    : m_prototypes(std::move(prototypes))
    , m_marks(marks)
{
    for (const std::shared_ptr<BaseEffect>& prototype : m_prototypes) {
        m_rows.push_back(std::make_unique<EffectRow>());
        m_rows.back()->effect = prototype;
    }
}

int EffectList::outlineViewNumberOfChildrenOfItem(const OutlineItem* item) const
{
    return item ? 0 : int(m_rows.size());
}

const OutlineItem* EffectList::outlineViewChildOfItem(int index, const OutlineItem* item) const
{
    const bool exists = !item && index >= 0 && index < int(m_rows.size());
    return exists ? m_rows[std::size_t(index)].get() : nullptr;
}

QVariant EffectList::outlineViewObjectValueForTableColumnByItem(const QString& column, const OutlineItem* item) const
{
    const BaseEffect* effect = effectOf(item);
    if (!effect)
        return {};
    if (column == kMarkerColumn)
        return m_marks == Marks::All || effect->isMousing()
            ? QVariant::fromValue(tintedIcon(QStringLiteral("marker"), IconTint::Accent))
            : QVariant();
    return translated(effect->myname());
}

QString EffectList::outlineViewToolTipOfItem(const OutlineItem* item) const
{
    const BaseEffect* effect = effectOf(item);
    return effect ? shownFilterDescription(effect->className()) : QString();
}
