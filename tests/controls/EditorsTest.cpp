// Editors under the rows of a panel, driven as a user does.
#include "PanelFixture.h"

#include "controls/editors/EditorFold.h"
#include "controls/editors/KernelEditor.h"
#include "widgets/PanelPopUp.h"

#include <QPushButton>

#include <algorithm>
#include <numeric>

namespace {

class EditorsTest : public testing::Test {
protected:
    void show(const char* filterName, int width = 240)
    {
        filter = filterNamed(filterName);
        for (const std::string& key : filter->inputKeys())
            master.standard[key] = filter->valueForKey(key);
        window.resize(width, 600);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        build();
    }
    void build()
    {
        delete panel;
        panel = new FilterView(&window, openFolds);
        panel->setFilter(filter);
        panel->setMaster(master);
        panel->tryRows();
        panel->trimBox();
        panel->addFilterHeaderTagEnabled(filter, 0, true);
        panel->addRows();
        panel->show();
        QCoreApplication::sendPostedEvents();
    }
    template <class T>
    T& part(const char* name = "")
    {
        T* found = *name ? panel->findChild<T*>(QLatin1String(name)) : panel->findChild<T*>();
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }
    void openFold()
    {
        part<FoldButton>().setFocus();
        QTest::keyClick(&part<FoldButton>(), Qt::Key_Space);
        QTest::qWait(0);
    }
    std::ptrdiff_t steps() const { return std::count(master.log.begin(), master.log.end(), "begin"); }
    std::vector<double> weights() const { return filter->valueForKey("inputWeights").toVector().values(); }

    FakeParameterMaster master;
    QWidget window;
    OpenFolds openFolds = std::make_shared<std::set<std::string>>();
    FilterView* panel = nullptr;
    std::shared_ptr<CIFilter> filter;
};

TEST_F(EditorsTest, AFoldOpensUnderItsRowAndStaysOpenWhenThePanelIsBuiltAnew)
{
    show("CIConvolution3X3");
    const auto rows = panel->findChildren<ParameterView*>();
    ASSERT_EQ(rows.size(), 2);
    const int closed = panel->contentHeight();
    EXPECT_FALSE(panel->findChild<InputEditor*>()) << "made when it is needed";
    const QRect bias = rows[1]->geometry();

    openFold();
    EXPECT_GT(panel->contentHeight(), closed + 60);
    EXPECT_GT(rows[1]->y(), bias.y() + 60) << "the next row makes room";
    EXPECT_GE(panel->minimumHeight(), panel->contentHeight()) << "the panel is scrolled if need be";
    const EditorFold& fold = part<EditorFold>();
    EXPECT_GE(fold.y(), rows[0]->geometry().bottom());
    EXPECT_LE(fold.geometry().right(), panel->width());

    build();
    EXPECT_TRUE(part<EditorFold>().isOpen());
    QTest::mouseClick(&part<FoldButton>(), Qt::LeftButton);
    EXPECT_EQ(panel->contentHeight(), closed);
    build();
    EXPECT_FALSE(part<EditorFold>().isOpen());
}

TEST_F(EditorsTest, WeightsAreTypedChosenAndNormalized)
{
    show("CIConvolution3X3");
    openFold();
    auto& middle = part<ReadoutField>("weight4");
    EXPECT_EQ(middle.text(), "1");
    middle.setFocus();
    middle.selectAll();
    QTest::keyClicks(&middle, "2.5");
    EXPECT_EQ(weights()[4], 2.5) << "while it is typed";
    QTest::keyClick(&middle, Qt::Key_Down);
    EXPECT_TRUE(part<ReadoutField>("weight7").hasFocus());
    EXPECT_EQ(steps(), 1) << "all keys are one step";
    EXPECT_EQ(master.openChanges, 0);
    EXPECT_EQ(weights().size(), 9u);

    auto& first = part<ReadoutField>("weight0");
    first.setFocus();
    first.selectAll();
    QTest::keyClicks(&first, "-7");
    EXPECT_EQ(part<ReadoutField>("readout1TextField").text(), "-7.000") << "the row shows it";
    QTest::keyClick(&first, Qt::Key_Escape);
    EXPECT_EQ(weights()[0], 0);

    auto& normalize = part<QPushButton>();
    ASSERT_TRUE(normalize.isEnabled());
    QTest::mouseClick(&normalize, Qt::LeftButton);
    EXPECT_EQ(weights()[4], 1);
    EXPECT_FALSE(normalize.isEnabled());

    auto& presets = part<PanelPopUp>();
    presets.setFocus();
    EXPECT_EQ(presets.currentIndex(), 1) << "the identity is known";
    QTest::keyClick(&presets, Qt::Key_Down);
    EXPECT_EQ(weights(), std::vector<double>(9, 1 / 9.0)) << "a box";
    EXPECT_EQ(middle.text(), ".111");

    auto& row = part<ReadoutField>("readout2TextField");
    row.setFocus();
    row.selectAll();
    QTest::keyClicks(&row, "4");
    QTest::keyClick(&row, Qt::Key_Return);
    EXPECT_EQ(part<ReadoutField>("weight1").text(), "4") << "the grid shows what the row sets";
    EXPECT_EQ(presets.currentIndex(), 0);
}

TEST(KernelPresetTest, AllShapesHaveWeightsThatDoWhatTheirNameSays)
{
    for (const auto& [columns, rows] : {std::pair(3, 3), {5, 5}, {7, 7}, {9, 1}, {1, 9}})
        for (const KernelPreset& preset : kernelPresets()) {
            if (!preset.isFor(columns, rows))
                continue;
            SCOPED_TRACE(std::string(preset.name) + " " + std::to_string(columns));
            const KernelWeights weights = preset.weights(columns, rows);
            ASSERT_EQ(weights.size(), std::size_t(columns * rows));
            const double sum = std::accumulate(weights.begin(), weights.end(), 0.0);
            const bool findsEdges = std::string(preset.name).find("dges") != std::string::npos;
            EXPECT_NEAR(sum, findsEdges ? 0 : 1, 1e-9) << "keeps even areas, or blackens them";
        }
    EXPECT_FALSE(normalized({1, -1}));
    EXPECT_EQ(normalized({1, 3}), (KernelWeights{0.25, 0.75}));
}

} // namespace
