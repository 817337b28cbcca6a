#include "app/catalogue/DataSource.h"
#include "app/catalogue/OutlineModel.h"

#include <gtest/gtest.h>
#include <QAbstractItemModelTester>

namespace {

TEST(Catalogue, SkipsNamesWithoutAFilterAndTellsDisplayNames)
{
    const auto rows = DataSource::buildFilterDictionary({"CIGaussianBlur", "CINoSuchFilter", "CIGaussianBlur"});
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0]->className, "CIGaussianBlur");
    EXPECT_EQ(rows[1]->name, "Gaussian Blur");
    EXPECT_TRUE(DataSource::buildFilterDictionary({}).empty());
}

TEST(Catalogue, KnowsWhichFiltersHavePointsOnThePicture)
{
    EXPECT_FALSE(DataSource::isControlsPresent("CIGaussianBlur"));
    EXPECT_FALSE(DataSource::isControlsPresent("CINoSuchFilter"));
    EXPECT_TRUE(DataSource::isControlsPresent("CICrop"));
    EXPECT_TRUE(DataSource::isControlsPresent("CIAffineTransform"));
}

TEST(Catalogue, DescribesEachSetOfAttributesOnce)
{
    const auto described = DataSource::buildFilterDictionaryFull({"CICrop", "CINoSuchFilter", "CICrop"});
    EXPECT_EQ(described.size(), CIFilter::filterWithName("CICrop")->inputKeys().size());
    for (const auto& input : described)
        EXPECT_EQ(input.entry.at("class").toString(), "CICrop");
}

TEST(Catalogue, AnswersAsAnOutline)
{
    const DataSource source;
    ASSERT_FALSE(source.groups().empty());
    const FilterGroup* group = source.groups().front().get();
    const FilterRow* row = group->rows.front().get();
    EXPECT_EQ(source.outlineViewNumberOfChildrenOfItem(nullptr), int(source.groups().size()));
    EXPECT_EQ(source.outlineViewChildOfItem(0, nullptr), group);
    EXPECT_EQ(source.outlineViewChildOfItem(0, group), row);
    EXPECT_EQ(source.outlineViewChildOfItem(1000, group), nullptr);
    EXPECT_EQ(source.outlineViewNumberOfChildrenOfItem(row), 0);
    EXPECT_TRUE(source.outlineViewIsItemExpandable(group));
    EXPECT_FALSE(source.outlineViewIsItemExpandable(row));
    EXPECT_FALSE(source.outlineViewIsItemExpandable(nullptr));
    EXPECT_FALSE(source.outlineViewShouldEditTableColumnItem("1", row));
    EXPECT_EQ(source.outlineViewObjectValueForTableColumnByItem("1", group), group->label);
    EXPECT_EQ(source.outlineViewObjectValueForTableColumnByItem("1", row), row->name);
    EXPECT_FALSE(source.outlineViewObjectValueForTableColumnByItem("0", group).isValid());

    FilterRow crop, blur;
    crop.className = "CICrop";
    blur.className = "CIGaussianBlur";
    EXPECT_TRUE(source.outlineViewObjectValueForTableColumnByItem("0", &crop).isValid());
    EXPECT_FALSE(source.outlineViewObjectValueForTableColumnByItem("0", &blur).isValid());
}

TEST(Catalogue, IsAModelWhoseGroupsCanNotBeSelected)
{
    const DataSource source;
    OutlineModel model(source, {"1", "0"});
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QModelIndex group = model.index(1, 0);
    const QModelIndex row = model.index(2, 0, group);
    EXPECT_EQ(row.parent(), group);
    EXPECT_FALSE(group.flags() & Qt::ItemIsSelectable);
    EXPECT_TRUE(row.flags() & Qt::ItemIsSelectable);
    EXPECT_EQ(row.data(OutlineModel::ItemRole).value<const OutlineItem*>(), source.groups()[1]->rows[2].get());
}

} // namespace
