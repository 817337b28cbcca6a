#include "app/catalogue/DataSource.h"

#include <gtest/gtest.h>

namespace {

TEST(Catalogue, SkipsNamesWithoutAFilterAndTellsDisplayNames)
{
    const auto rows = DataSource::buildFilterDictionary({"CIGaussianBlur", "CINoSuchFilter", "CIGaussianBlur"});
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0]->className, "CIGaussianBlur");
    EXPECT_EQ(rows[1]->name, "Gaussian Blur");
    EXPECT_TRUE(DataSource::buildFilterDictionary({}).empty());
}

TEST(Catalogue, DescribesEachSetOfAttributesOnce)
{
    const auto described = DataSource::buildFilterDictionaryFull({"CICrop", "CINoSuchFilter", "CICrop"});
    EXPECT_EQ(described.size(), CIFilter::filterWithName("CICrop")->inputKeys().size());
    for (const auto& input : described)
        EXPECT_EQ(input.entry.at("class").toString(), "CICrop");
}

} // namespace
