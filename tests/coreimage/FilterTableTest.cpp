#include "tests/support/SharedTables.h"

#include "platform/coreimage/CIFilter.h"

#include <cmath>
#include <set>

#include <gmock/gmock.h>

namespace {

using nlohmann::json;
using ::testing::ElementsAreArray;

std::vector<double> numbersOf(const CIValue& value)
{
    if (value.isVector())
        return value.toVector().values();
    if (value.isColor()) {
        const CIColor c = value.toColor();
        return {c.red(), c.green(), c.blue(), c.alpha()};
    }
    if (value.isTransform()) {
        const CIAffineTransform t = value.toTransform();
        return {t.a, t.b, t.c, t.d, t.tx, t.ty};
    }
    return value.isNumber() ? std::vector{value.toDouble()} : std::vector<double>();
}

bool isNear(double a, double b) { return std::abs(a - b) <= 1e-6 * std::max(1.0, std::abs(b)); }

bool isSame(const CIValue& ours, const CIValue& table)
{
    const std::vector<double> a = numbersOf(ours), b = numbersOf(table);
    if (a.empty() && b.empty())
        return ours == table;
    return std::ranges::equal(a, b, isNear) && ours.isNumber() == table.isNumber() && ours.isColor() == table.isColor();
}

CIValue tableValue(const json& input, const char* field)
{
    return input.contains(field) ? valueOfJson(input[field], input["class"].get<std::string>()) : CIValue();
}

void expectLimit(const std::optional<double>& ours, const json& input, const char* field)
{
    if (input.contains(field)) {
        EXPECT_TRUE(ours && isNear(*ours, input[field].get<double>())) << field << " should be " << input[field];
    }
}

/// The table's default of one input is known to be wrong there.
bool hasDefaultOfOurOwn(const std::string& filter, const std::string& key)
{
    return filter == "CIColorCurves" && key == "inputCurvesData";
}

void expectSameInput(const CIFilter& filter, const CIInputAttributes& ours, const json& table)
{
    SCOPED_TRACE(ours.key);
    const std::string className = table["class"] == "NSValue" ? "NSAffineTransform" : table["class"];
    EXPECT_EQ(ours.displayName, table["displayName"].get<std::string>());
    const CIDictionary& entries = filter.attributes().at(ours.key).toDictionary();
    EXPECT_EQ(entries.at(kCIAttributeClass).toString(), className);
    EXPECT_EQ(entries.contains(kCIAttributeType), table.contains("type"));
    if (entries.contains(kCIAttributeType)) {
        EXPECT_EQ(entries.at(kCIAttributeType).toString(), table.value("type", ""));
    }
    EXPECT_TRUE(hasDefaultOfOurOwn(filter.name(), ours.key) || isSame(ours.defaultValue, tableValue(table, "default")))
        << "default: " << table.value("default", json());
    EXPECT_TRUE(isSame(ours.identity, tableValue(table, "identity")))
        << "identity: " << table.value("identity", json());
    EXPECT_EQ(ours.min.has_value(), table.contains("min"));
    EXPECT_EQ(ours.max.has_value(), table.contains("max"));
    expectLimit(ours.min, table, "min");
    expectLimit(ours.max, table, "max");
    expectLimit(ours.sliderMin, table, "sliderMin"); // where the table has none, a slider still needs a range
    expectLimit(ours.sliderMax, table, "sliderMax");
}

std::vector<std::string> categoriesOf(const CIFilter& filter)
{
    std::vector<std::string> categories;
    const CIDictionary& attributes = filter.attributes();
    if (const auto found = attributes.find(kCIAttributeFilterCategories); found != attributes.end())
        for (const CIValue& category : found->second.toArray())
            categories.push_back(category.toString());
    return categories;
}

void expectSameFilter(const CIFilter& ours, const json& table)
{
    EXPECT_EQ(ours.displayName(), table["displayName"].get<std::string>());
    EXPECT_THAT(categoriesOf(ours), ElementsAreArray(table["categories"].get<std::vector<std::string>>()));
    std::vector<std::string> keys;
    for (const json& input : table["inputs"])
        keys.push_back(input["key"]);
    EXPECT_THAT(ours.inputKeys(), ElementsAreArray(keys));
    for (const json& input : table["inputs"])
        if (const CIInputAttributes* attributes = ours.attributesForKey(input["key"].get<std::string>()))
            expectSameInput(ours, *attributes, input);
}

TEST(FilterTable, DeclarationsAgreeWithIt)
{
    const auto tables = coreImageTables();
    if (!tables)
        GTEST_SKIP() << "no table of filters here";
    const json table = jsonOfFile(*tables / "filters.json");
    std::size_t present = 0;
    for (const json& entry : table)
        if (const auto filter = CIFilter::filterWithName(entry["name"].get<std::string>())) {
            SCOPED_TRACE(filter->name());
            ++present;
            expectSameFilter(*filter, entry);
        }
    std::printf("%zu of %zu filters of the table\n", present, table.size());
    EXPECT_GT(present, 0u);
}

} // namespace
