#include "TypedWords.h"

#include "app/catalogue/FilterList.h"
#include "app/catalogue/OutlineModel.h"
#include "controls/panel/FilterNames.h"
#include "effects2d/CustomEffects.h"
#include "effects3d/EvalEffect.h"
#include "effects3d/ObjectEffect.h"
#include "translations/Translations.h"

#include <gmock/gmock.h>
#include <QAbstractItemModelTester>
#include <QApplication>
#include <QTranslator>

#include <algorithm>
#include <set>

namespace {

using testing::IsSupersetOf;
using testing::UnorderedElementsAreArray;

/// Before the rows are made, which ask for their texts only once.
struct Speaking {
    explicit Speaking(const char* language) { EXPECT_TRUE(installTranslations(*qApp, QString::fromLatin1(language))); }
    ~Speaking() { qDeleteAll(qApp->findChildren<QTranslator*>()); }
};

class FilterSearch : Speaking, public testing::Test {
protected:
    explicit FilterSearch(const char* language = "en")
        : Speaking(language)
    {
        effects.push_back(std::make_shared<EvalEffect>());
        effects.push_back(std::make_shared<ObjectEffect>());
        list.addEffects(effects, {});
    }

    Names classesIn(const OutlineItem* group) const
    {
        Names names;
        for (int i = 0; i < list.outlineViewNumberOfChildrenOfItem(group); ++i) {
            const OutlineItem* item = list.outlineViewChildOfItem(i, group);
            if (const auto* row = dynamic_cast<const FilterRow*>(item))
                names.push_back(row->className.mid(2).toStdString());
            else if (const auto* effect = dynamic_cast<const EffectLink*>(item))
                names.push_back(effect->className.toStdString());
        }
        return names;
    }
    Names top(int group) const { return classesIn(list.outlineViewChildOfItem(group, nullptr)); }
    std::string label(int group) const
    {
        const OutlineItem* item = list.outlineViewChildOfItem(group, nullptr);
        return list.outlineViewObjectValueForTableColumnByItem(DataSource::kTitleColumn, item).toString().toStdString();
    }
    /// Effects, whose words stand under their bare name, come in a group below the filters.
    void expectFirst(const std::vector<Typed>& table)
    {
        for (const Typed& typed : table) {
            SCOPED_TRACE(typed.text);
            list.search(QString::fromUtf8(typed.text));
            EXPECT_FALSE(list.isNear());
            Names filters, links;
            for (const std::string& name : typed.first)
                (filterWords(name) ? links : filters).push_back(name);
            const Names found = filters.empty() ? Names() : top(0);
            const std::size_t count = std::min(found.size(), filters.size());
            EXPECT_THAT(Names(found.begin(), found.begin() + std::ptrdiff_t(count)), UnorderedElementsAreArray(filters))
                << testing::PrintToString(found);
            EXPECT_THAT(top(list.outlineViewNumberOfChildrenOfItem(nullptr) - 1), IsSupersetOf(links));
        }
    }

    std::vector<std::shared_ptr<BaseEffect>> effects = customEffectPrototypes();
    DataSource source;
    FilterList list{source};
};

struct GermanFilterSearch : FilterSearch {
    GermanFilterSearch()
        : FilterSearch("de")
    {
    }
};
struct FrenchFilterSearch : FilterSearch {
    FrenchFilterSearch()
        : FilterSearch("fr")
    {
    }
};

TEST_F(FilterSearch, PutsFirstWhatPeopleMean) { expectFirst(kTyped); }
TEST_F(GermanFilterSearch, PutsFirstWhatPeopleMean) { expectFirst(kTypedInGerman); }
TEST_F(FrenchFilterSearch, PutsFirstWhatPeopleMean) { expectFirst(kTypedInFrench); }

/// The German and French texts are held by the test of translations.
TEST_F(FilterSearch, EveryFilterAndEffectHasItsWords)
{
    std::set<std::string> classes;
    for (const std::string& name : CIFilter::filterNamesInCategory(""))
        classes.insert(name);
    for (const std::shared_ptr<BaseEffect>& effect : effects)
        classes.insert(effect->className());
    for (const std::string& name : classes) {
        SCOPED_TRACE(name);
        const FilterWords* words = filterWords(name);
        ASSERT_TRUE(words) << "resources/filter_words.txt needs a line";
        EXPECT_TRUE(words->description.ends_with("."));
        EXPECT_LT(words->description.size(), 110u) << "a line";
        EXPECT_FALSE(words->searchWords.empty());
        EXPECT_EQ(words->searchWords, QString::fromStdString(words->searchWords).toLower().simplified().toStdString());
    }
    for (const auto& [name, words] : allFilterWords())
        EXPECT_TRUE(classes.contains(name)) << name << " is no filter";
}

TEST_F(FilterSearch, EveryInputSaysWhatItIsFor)
{
    for (const std::string& name : CIFilter::filterNamesInCategory(""))
        for (const std::string& key : CIFilter::filterWithName(name)->inputKeys())
            EXPECT_TRUE(inputDescription(name, key).ends_with(".")) << name << " " << key;
    EXPECT_NE(inputDescription("CIToneCurve", "inputPoint3"), inputDescription("CIDepthOfField", "inputPoint1"));
}

TEST_F(FilterSearch, FindsNamesAndClassesInGroupsOfWhatFits)
{
    list.search("gauss");
    EXPECT_EQ(top(0), (Names{"GaussianBlur", "GaussianGradient"}));
    list.search("  BLUR gauss ");
    EXPECT_EQ(top(0).front(), "GaussianBlur");
    list.search("CIGaussianBlur");
    EXPECT_EQ(top(0), Names{"GaussianBlur"});
    list.search("focus");
    EXPECT_GE(top(0).size(), CIFilter::filterNamesInCategory(kCICategoryBlur).size()) << "a whole category";
    list.search("lut"); // "convolution" has the letters, too
    const Names found = top(0);
    EXPECT_TRUE(found.front().starts_with("ColorCube"));
    EXPECT_GT(std::ranges::find(found, "Convolution3X3") - found.begin(), 2);
}

TEST_F(FilterSearch, OffersTheNearestWhereNothingFits)
{
    list.search("sharpen unicorn");
    EXPECT_TRUE(list.isNear());
    EXPECT_EQ(label(0), "Nothing found. Nearest:");
    EXPECT_THAT(top(0), IsSupersetOf(Names{"SharpenLuminance", "UnsharpMask"}));
    list.search("qqqqqqqq");
    EXPECT_EQ(label(0), "Nothing found");
    EXPECT_TRUE(top(0).empty());
    list.search("!?");
    EXPECT_EQ(label(0), "Nothing found");
}

TEST_F(FilterSearch, KeepsTheGroupsBelowWhatIsPinnedAndUsed)
{
    const int groups = int(source.groups().size());
    ASSERT_EQ(list.outlineViewNumberOfChildrenOfItem(nullptr), groups);
    OutlineModel model(list, {"1", "0"});
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    list.setOnTop({"CIVignette", "CINoSuchFilter"}, {"CICrop", "CIVignette"});
    model.reloadData();
    ASSERT_EQ(model.rowCount(), groups + 2);
    EXPECT_EQ(top(0), Names{"Vignette"});
    EXPECT_EQ(top(1), Names{"Crop"});
    EXPECT_EQ(list.outlineViewChildOfItem(2, nullptr), source.groups().front().get());
    EXPECT_EQ(list.rowInGroup(model.item(model.index(0, 0, model.index(1, 0)))), source.rowForClass("CICrop"));
    list.search("plasma");
    model.reloadData();
    const QModelIndex effect = model.index(0, 0, model.index(0, 0));
    EXPECT_EQ(effect.data().toString(), "Plasma Effect");
    EXPECT_FALSE(effect.flags() & Qt::ItemIsSelectable) << "walking over it changes no mode";
}

} // namespace
