#include "app/catalogue/FilterList.h"

#include "controls/panel/FilterNames.h"
#include "platform/foundation/TintedIcon.h"

#include <algorithm>
#include <utility>

FilterList::FilterList(const DataSource& filters)
    : m_filters(filters)
{
    m_pinned.label = QCoreApplication::translate("FilterList", "Pinned");
    m_recent.label = QCoreApplication::translate("FilterList", "Recently Used");
    m_foundEffects.label = QCoreApplication::translate("FilterList", "Looks and Effects");
    arrange();
}

void FilterList::addEffects(const std::vector<std::shared_ptr<BaseEffect>>& prototypes, const QIcon& icon)
{
    for (const std::shared_ptr<BaseEffect>& effect : prototypes) {
        EffectLink& link = *m_effects.emplace_back(std::make_unique<EffectLink>());
        link.className = QString::fromStdString(effect->className());
        link.englishName = QString::fromStdString(effect->myname());
        link.name = QCoreApplication::translate("BaseEffect", effect->myname().c_str());
        link.description = shownFilterDescription(effect->className());
        link.icon = icon;
    }
}

void FilterList::addLooks()
{
    for (const PictureLook& look : looks()) {
        EffectLink& link = *m_effects.emplace_back(std::make_unique<EffectLink>());
        link.englishName = QString::fromLatin1(look.name);
        link.name = shownLookText(look.name);
        link.description = shownLookText(look.description);
        link.icon = tintedIcon(QStringLiteral("looks"));
        link.look = &look;
    }
}

/// At the first search, since the start must not wait for it. English finds everything in all languages, but
/// categories, which few know in another one than they see.
void FilterList::buildIndex()
{
    if (std::exchange(m_isIndexed, true))
        return;
    const auto index = [this](const OutlineItem* row, const std::string& className, const QString& english,
                           IndexedTexts shown, bool isSpecial = false) {
        std::vector<IndexedTexts> languages{{.name = english}};
        if (const FilterWords* words = filterWords(className)) {
            languages[0].searchWords = QString::fromStdString(words->searchWords);
            languages[0].description = QString::fromStdString(words->description);
            shown.searchWords = shownSearchWords(words->searchWords);
            shown.description = shownFilterDescription(className);
        }
        languages.push_back(std::move(shown));
        m_index.add(row, QString::fromStdString(className), languages, isSpecial);
    };
    for (const auto& group : m_filters.groups())
        for (const auto& row : group->rows) {
            const std::string className = row->className.toStdString();
            const QString english = QString::fromStdString(CIFilter::localizedNameForFilterName(className));
            // Who wants two pictures blended says so.
            index(row.get(), className, english, {.name = row->name, .category = group->label},
                group == m_filters.groups().back());
        }
    for (const auto& link : m_effects)
        index(link.get(), link->className.toStdString(), link->englishName, {.name = link->name});
    addLooks();
    for (const auto& link : m_effects)
        if (const PictureLook* look = link->look) {
            const IndexedTexts english{
                .name = link->englishName, .searchWords = QString::fromLatin1(look->searchWords)};
            m_index.add(
                link.get(), {}, {english, {.name = link->name, .searchWords = shownLookText(look->searchWords)}});
        }
}

// --- what is shown ---

void FilterList::search(const QString& text)
{
    m_isSearching = !text.trimmed().isEmpty();
    m_isNear = false;
    m_found.rows.clear();
    m_foundEffects.rows.clear();
    if (m_isSearching) {
        buildIndex();
        const FilterIndex::Found found = m_index.find(text);
        m_isNear = found.isNear;
        m_found.label = !found.isNear ? QCoreApplication::translate("FilterList", "Found")
            : found.rows.empty()      ? QCoreApplication::translate("FilterList", "Nothing found")
                                      : QCoreApplication::translate("FilterList", "Nothing found. Nearest:");
        for (const OutlineItem* row : found.rows)
            (dynamic_cast<const EffectLink*>(row) ? m_foundEffects : m_found).rows.push_back(row);
    }
    arrange();
}

void FilterList::setOnTop(const QStringList& pinned, const QStringList& recent)
{
    QStringList others = recent;
    others.removeIf([&](const QString& name) { return pinned.contains(name); });
    m_copies.clear();
    fill(m_pinned, pinned);
    fill(m_recent, others);
    arrange();
}

void FilterList::fill(RowGroup& group, const QStringList& classNames)
{
    group.rows.clear();
    for (const QString& className : classNames)
        if (const FilterRow* row = m_filters.rowForClass(className)) {
            m_copies.push_back(std::make_unique<FilterRow>(*row));
            group.rows.push_back(m_copies.back().get());
        }
}

void FilterList::arrange()
{
    m_shown.clear();
    if (m_isSearching) {
        if (!m_found.rows.empty() || m_foundEffects.rows.empty())
            m_shown.push_back(&m_found);
        if (!m_foundEffects.rows.empty())
            m_shown.push_back(&m_foundEffects);
        return;
    }
    for (const RowGroup* group : {&m_pinned, &m_recent})
        if (!group->rows.empty())
            m_shown.push_back(group);
    for (const auto& group : m_filters.groups())
        m_shown.push_back(group.get());
}

const OutlineItem* FilterList::rowInGroup(const OutlineItem* row) const
{
    const auto copy = std::ranges::find_if(m_copies, [&](const auto& known) { return known.get() == row; });
    return copy == m_copies.end() ? row : m_filters.rowForClass((*copy)->className);
}

// --- as an outline ---

int FilterList::outlineViewNumberOfChildrenOfItem(const OutlineItem* item) const
{
    if (!item)
        return int(m_shown.size());
    const auto* group = dynamic_cast<const RowGroup*>(item);
    return group ? int(group->rows.size()) : m_filters.outlineViewNumberOfChildrenOfItem(item);
}

bool FilterList::outlineViewIsItemExpandable(const OutlineItem* item) const
{
    return dynamic_cast<const RowGroup*>(item) || m_filters.outlineViewIsItemExpandable(item);
}

/// Walking over an effect's row must not change the mode.
bool FilterList::outlineViewIsItemSelectable(const OutlineItem* item) const
{
    return dynamic_cast<const FilterRow*>(item);
}

const OutlineItem* FilterList::outlineViewChildOfItem(int index, const OutlineItem* item) const
{
    if (index < 0 || index >= outlineViewNumberOfChildrenOfItem(item))
        return nullptr;
    if (!item)
        return m_shown[std::size_t(index)];
    const auto* group = dynamic_cast<const RowGroup*>(item);
    return group ? group->rows[std::size_t(index)] : m_filters.outlineViewChildOfItem(index, item);
}

QVariant FilterList::outlineViewObjectValueForTableColumnByItem(const QString& column, const OutlineItem* item) const
{
    const bool isMarker = column == DataSource::kMarkerColumn;
    if (const auto* group = dynamic_cast<const RowGroup*>(item))
        return isMarker ? QVariant() : QVariant(group->label);
    if (const auto* effect = dynamic_cast<const EffectLink*>(item))
        return isMarker ? QVariant::fromValue(effect->icon) : QVariant(effect->name);
    return m_filters.outlineViewObjectValueForTableColumnByItem(column, item);
}

QString FilterList::outlineViewToolTipOfItem(const OutlineItem* item) const
{
    const auto* effect = dynamic_cast<const EffectLink*>(item);
    return effect ? effect->description : m_filters.outlineViewToolTipOfItem(item);
}
