#include "WindowFixture.h"

#include "controls/panel/ParameterView.h"
#include "ui_MainWindow.h"
#include "widgets/ValueSlider.h"

#include <QApplication>
#include <QTest>

namespace {

class InputsTest : public WindowTest {
protected:
    InputsTest() { QApplication::setActiveWindow(&window); }

    void randomize() { QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier); }
    void reset() { QTest::keyClick(&window, Qt::Key_Backspace, Qt::ControlModifier); }

    std::vector<CIValue> values() const
    {
        const std::shared_ptr<CIFilter> filter = controllerFilter();
        std::vector<CIValue> all;
        for (const std::string& key : filter->inputKeys())
            all.push_back(filter->valueForKey(key));
        return all;
    }

    std::shared_ptr<CIFilter> controllerFilter() const { return Controller::mainController()->getCurrentFilter(); }
};

TEST_F(InputsTest, AreAllChangedAndResetAsOneStepEach)
{
    pick("CIBumpDistortion");
    const std::vector<CIValue> standard = values();
    const bool couldUndo = undo.canUndo();
    reset();
    EXPECT_EQ(undo.canUndo(), couldUndo) << "there was nothing to reset";

    randomize();
    const std::vector<CIValue> changed = values();
    EXPECT_EQ(changed[0], standard[0]) << "the picture stays";
    for (std::size_t i = 1; i < standard.size(); ++i)
        EXPECT_FALSE(changed[i] == standard[i]) << controllerFilter()->inputKeys()[i];
    EXPECT_EQ(action("actionUndo")->text(), "Undo Randomize Inputs");
    reset();
    EXPECT_TRUE(values() == standard);
    EXPECT_EQ(action("actionUndo")->text(), "Undo Reset All Inputs");

    undo.undo();
    EXPECT_TRUE(values() == changed);
    undo.undo();
    EXPECT_TRUE(values() == standard);
    EXPECT_EQ(undo.canUndo(), couldUndo);
    undo.redo();
    EXPECT_TRUE(values() == changed);
}

TEST_F(InputsTest, PicturesAreResetButNotChosenByChance)
{
    pick("CIGlassDistortion");
    const CIValue texture = controllerFilter()->valueForKey("inputTexture");
    ASSERT_TRUE(texture.isImage());
    randomize();
    EXPECT_TRUE(controllerFilter()->valueForKey("inputTexture") == texture);
    controller.setFilterValueForKey(*controllerFilter(), controller.backImage(), "inputTexture");
    reset();
    EXPECT_TRUE(controllerFilter()->valueForKey("inputTexture") == texture);
}

TEST_F(InputsTest, NeedAFilterThatHasSome)
{
    const auto enabled = [&](const char* name) { return action(name)->isEnabled(); };
    EXPECT_FALSE(enabled("actionResetInputs") || enabled("actionRandomizeInputs"));
    pick("CIGaussianBlur");
    EXPECT_TRUE(enabled("actionResetInputs") && enabled("actionRandomizeInputs"));
    pick("CIColorInvert");
    EXPECT_FALSE(enabled("actionResetInputs") || enabled("actionRandomizeInputs"));
    controller.addFilterIndex("CIMultiplyBlendMode", 111); // a picture only
    controller.updateMainBtnState();
    EXPECT_TRUE(enabled("actionResetInputs"));
    EXPECT_FALSE(enabled("actionRandomizeInputs"));
    pick("CIGaussianBlur");
    action("actionCustom")->trigger();
    EXPECT_FALSE(enabled("actionResetInputs") || enabled("actionRandomizeInputs"));
}

} // namespace
