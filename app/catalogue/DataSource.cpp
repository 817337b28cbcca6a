#include "app/catalogue/DataSource.h"

#include "controls/panel/FilterNames.h"
#include "controls/picture/ControlPoints.h"
#include "platform/chain/Layers.h"
#include "platform/foundation/Log.h"
#include "platform/foundation/TintedIcon.h"

#include <QCoreApplication>
#include <QIcon>

#include <algorithm>

namespace {

struct GroupDeclaration {
    const char* label;
    std::vector<std::string> categories;
};

const std::vector<GroupDeclaration>& groupDeclarations()
{
    static const std::vector<GroupDeclaration> groups{
        {QT_TRANSLATE_NOOP("DataSource", "Geometry"), {kCICategoryGeometryAdjustment}},
        {QT_TRANSLATE_NOOP("DataSource", "Distortion"), {kCICategoryDistortionEffect}},
        {QT_TRANSLATE_NOOP("DataSource", "Halftone"), {kCICategoryHalftoneEffect}},
        {QT_TRANSLATE_NOOP("DataSource", "Focus"), {kCICategorySharpen, kCICategoryBlur}},
        {QT_TRANSLATE_NOOP("DataSource", "Stylize"), {kCICategoryStylize}},
        {QT_TRANSLATE_NOOP("DataSource", "Gradient"), {kCICategoryGradient}},
        {QT_TRANSLATE_NOOP("DataSource", "Color"), {kCICategoryColorEffect, kCICategoryColorAdjustment}},
        {QT_TRANSLATE_NOOP("DataSource", "Tile"), {kCICategoryTileEffect}},
        {QT_TRANSLATE_NOOP("DataSource", "Generator"), {kCICategoryGenerator}},
    };
    return groups;
}

/// All that put two pictures together, also those that other groups have.
std::vector<std::string> blendingFilters()
{
    std::vector<std::string> names = CIFilter::filterNamesInCategory({});
    std::erase_if(names, [](const std::string& name) { return !blendsPictures(*CIFilter::filterWithName(name)); });
    return names;
}

const FilterGroup* asGroup(const OutlineItem* item) { return dynamic_cast<const FilterGroup*>(item); }

const FilterRow* asRow(const OutlineItem* item) { return dynamic_cast<const FilterRow*>(item); }

QString logText(const CIValue& value)
{
    return value.isString() ? QString::fromStdString(value.toString()) : QString::number(value.toDouble());
}

void logInput(const std::string& key, const CIDictionary& attributes)
{
    qCInfo(lumivexLog).noquote() << QStringLiteral("             - attribute '%1'").arg(key.c_str());
    for (const auto& [name, value] : attributes) {
        const bool shown = name == kCIAttributeType || name == kCIAttributeDisplayName
            || name == "CIAttributeDescription" || name == kCIAttributeClass;
        QString line = QStringLiteral("                         -  value name '%1'").arg(name.c_str());
        if (shown)
            line += QStringLiteral(" = '%1'").arg(logText(value));
        qCInfo(lumivexLog).noquote() << line;
    }
}

} // namespace

DataSource::DataSource() { buildFilters(); }

void DataSource::buildFilters()
{
    for (const GroupDeclaration& declaration : groupDeclarations()) {
        std::vector<std::string> names;
        for (const std::string& category : declaration.categories) {
            const std::vector<std::string> more = CIFilter::filterNamesInCategory(category);
            names.insert(names.end(), more.begin(), more.end());
        }
        addGroup(declaration.label, names);
    }
    addGroup(QT_TRANSLATE_NOOP("DataSource", "Blending"), blendingFilters());
}

void DataSource::addGroup(const char* label, const std::vector<std::string>& names)
{
    if (names.empty())
        return;
    auto group = std::make_unique<FilterGroup>();
    group->label = QCoreApplication::translate("DataSource", label);
    group->rows = buildFilterDictionary(names);
    m_cifilters.push_back(std::move(group));
}

std::vector<std::unique_ptr<FilterRow>> DataSource::buildFilterDictionary(const std::vector<std::string>& names)
{
    std::vector<std::unique_ptr<FilterRow>> rows;
    for (const std::string& name : names) {
        const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(name);
        if (!filter)
            continue;
        const CIDictionary& attributes = filter->attributes();
        const auto displayName = attributes.find(kCIAttributeFilterDisplayName);
        auto row = std::make_unique<FilterRow>();
        row->className = QString::fromStdString(name);
        if (displayName != attributes.end())
            row->name = shownFilterName(displayName->second.toString());
        rows.push_back(std::move(row));
    }
    return rows;
}

std::vector<DataSource::DescribedInput> DataSource::buildFilterDictionaryFull(const std::vector<std::string>& names)
{
    std::vector<DescribedInput> result;
    for (const std::string& name : names) {
        qCInfo(lumivexLog).noquote() << " ------------------------------------------------";
        qCInfo(lumivexLog).noquote() << QStringLiteral(" Creating '%1' filter").arg(name.c_str());
        const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(name);
        if (!filter) {
            qCInfo(lumivexLog).noquote() << QStringLiteral(" could not create '%1' filter").arg(name.c_str());
            continue;
        }
        for (const std::string& key : filter->inputKeys()) {
            const auto found = filter->attributes().find(key);
            const CIDictionary attributes =
                found == filter->attributes().end() ? CIDictionary() : found->second.toDictionary();
            logInput(key, attributes);
            std::erase_if(result, [&](const DescribedInput& known) { return known.attributes == attributes; });
            result.push_back({attributes, {{"class", name}}});
        }
    }
    return result;
}

bool DataSource::isControlsPresent(const QString& filterName)
{
    const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(filterName.toStdString());
    if (!filter)
        return false;
    const std::vector<std::string> keys = filter->inputKeys();
    return std::any_of(keys.begin(), keys.end(), [&](const std::string& key) {
        const CIInputAttributes* input = filter->attributesForKey(key);
        return input && hasControlPoint(*input);
    });
}

const FilterRow* DataSource::rowForClass(const QString& className) const
{
    for (const auto& group : m_cifilters)
        for (const auto& row : group->rows)
            if (row->className == className)
                return row.get();
    return nullptr;
}

int DataSource::outlineViewNumberOfChildrenOfItem(const OutlineItem* item) const
{
    if (!item)
        return int(m_cifilters.size());
    const FilterGroup* group = asGroup(item);
    return group ? int(group->rows.size()) : 0;
}

bool DataSource::outlineViewIsItemExpandable(const OutlineItem* item) const { return asGroup(item) != nullptr; }

const OutlineItem* DataSource::outlineViewChildOfItem(int index, const OutlineItem* item) const
{
    if (index < 0 || index >= outlineViewNumberOfChildrenOfItem(item))
        return nullptr;
    if (!item)
        return m_cifilters[std::size_t(index)].get();
    return asGroup(item)->rows[std::size_t(index)].get();
}

QVariant DataSource::outlineViewObjectValueForTableColumnByItem(const QString& column, const OutlineItem* item) const
{
    const FilterRow* row = asRow(item);
    if (column == kMarkerColumn)
        return row && isControlsPresent(row->className)
            ? QVariant::fromValue(tintedIcon(QStringLiteral("marker"), IconTint::Accent))
            : QVariant();
    if (row)
        return row->name;
    const FilterGroup* group = asGroup(item);
    return group ? QVariant(group->label) : QVariant();
}

bool DataSource::outlineViewShouldEditTableColumnItem(const QString&, const OutlineItem*) const { return false; }

QString DataSource::outlineViewToolTipOfItem(const OutlineItem* item) const
{
    const FilterRow* row = asRow(item);
    return row ? shownFilterDescription(row->className.toStdString()) : QString();
}
