// The catalogue of filters.
#pragma once

#include "app/catalogue/OutlineDataSource.h"
#include "platform/coreimage/CIFilter.h"

#include <QString>

#include <memory>
#include <vector>

/// A filter that can be picked.
class FilterRow : public OutlineItem {
public:
    QString className; // "CIGaussianBlur"
    QString name; // "Gaussian Blur"
};

/// A group of filters, under one label.
class FilterGroup : public OutlineItem {
public:
    QString label;
    std::vector<std::unique_ptr<FilterRow>> rows;
};

/// The filters that the engine knows, in nine groups by what they do to a picture and a tenth of those that blend two.
/// Built once; rows stand in the order in which the engine lists the filters of a category, and a filter that belongs
/// in two places is listed in both.
class DataSource : public OutlineDataSource {
public:
    /// Column identifiers of the list.
    static inline const QString kTitleColumn = QStringLiteral("1");
    static inline const QString kMarkerColumn = QStringLiteral("0"); // marks filters with points on the picture

    DataSource();

    /// True when the filter has an input that is edited on the picture: a position, a rectangle or a transform.
    static bool isControlsPresent(const QString& filterName);

    /// One row for each name of an existing filter, in the order of the names.
    static std::vector<std::unique_ptr<FilterRow>> buildFilterDictionary(const std::vector<std::string>& names);

    /// The class of a filter under the attributes of one of its inputs.
    struct DescribedInput {
        CIDictionary attributes;
        CIDictionary entry; // {"class": filter name}
    };
    /// For developers: writes the attributes of the filters' inputs to the log and answers one entry for each
    /// different set of attributes, of the last filter that has it.
    static std::vector<DescribedInput> buildFilterDictionaryFull(const std::vector<std::string>& names);

    const std::vector<std::unique_ptr<FilterGroup>>& groups() const { return m_cifilters; }
    /// The first row of that class, or null.
    const FilterRow* rowForClass(const QString& className) const;

    int outlineViewNumberOfChildrenOfItem(const OutlineItem* item) const override;
    bool outlineViewIsItemExpandable(const OutlineItem* item) const override;
    const OutlineItem* outlineViewChildOfItem(int index, const OutlineItem* item) const override;
    QVariant outlineViewObjectValueForTableColumnByItem(const QString& column, const OutlineItem* item) const override;
    bool outlineViewShouldEditTableColumnItem(const QString& column, const OutlineItem* item) const override;
    QString outlineViewToolTipOfItem(const OutlineItem* item) const override;

private:
    void buildFilters();
    void addGroup(const char* label, const std::vector<std::string>& names);

    std::vector<std::unique_ptr<FilterGroup>> m_cifilters; // in the order in which buildFilters adds them
};
