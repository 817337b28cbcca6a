#include "files/ResizePanel.h"

#include <gtest/gtest.h>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <vector>

namespace {

struct Master : ResizeMaster {
    CIRect getBgImageExtent() const override { return {0, 0, 400, 300}; }
    void resizeImageHeight(float width, float height) override { asked.push_back({width, height}); }
    std::vector<std::pair<float, float>> asked;
};

class ResizePanelTest : public testing::Test {
protected:
    ResizePanelTest()
    {
        panel.makeKeyAndOrderFront();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&panel));
    }
    void type(QLineEdit* field, const QString& text)
    {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        emit field->editingFinished(); // the focus may be elsewhere in a display without a window manager
    }
    void choose(int tag) { unit->setCurrentIndex(unit->findData(tag)); }
    double shown(const QLineEdit* field) const { return field->text().toDouble(); }
    void resize() { panel.findChild<QPushButton*>("resizeButton")->click(); }

    Master master;
    ResizePanel panel{nullptr, master};
    QLineEdit *width = panel.findChild<QLineEdit*>("mWidth"), *height = panel.findChild<QLineEdit*>("mHeight");
    QComboBox* unit = panel.findChild<QComboBox*>("mMeasurePopup");
};

TEST_F(ResizePanelTest, ShowsThePictureAndDoesNothingUnedited)
{
    EXPECT_EQ(panel.findChild<QLabel*>("mCaptionInfo")->text(), "400 x 300 pixels");
    EXPECT_EQ(width->text(), "400");
    EXPECT_EQ(height->text(), "300");
    resize();
    EXPECT_TRUE(master.asked.empty());
}

TEST_F(ResizePanelTest, PercentKeepProportions)
{
    choose(ResizePanel::Percent);
    EXPECT_EQ(width->text(), "100");
    type(width, "50");
    EXPECT_EQ(height->text(), "50");
    resize();
    ASSERT_EQ(master.asked.size(), 1u);
    EXPECT_EQ(master.asked[0], std::pair(200.0f, 150.0f));
    EXPECT_EQ(panel.getMeasures(), ResizePanel::Pixels) << "the panel starts over";
    EXPECT_EQ(width->text(), "400");
    resize();
    EXPECT_EQ(master.asked.size(), 1u);
}

TEST_F(ResizePanelTest, UnitsConvertFromThePixelsAndNotFromTheText)
{
    choose(ResizePanel::Inches);
    EXPECT_NEAR(shown(width), 5.5556, 1e-4);
    EXPECT_NEAR(shown(height), 4.1667, 1e-4);
    choose(ResizePanel::Pixels);
    EXPECT_EQ(width->text(), "400");
    choose(ResizePanel::Millimeters);
    EXPECT_NEAR(shown(width), 400 / 2.835, 1e-3);
    choose(ResizePanel::Picas);
    EXPECT_NEAR(shown(height), 25, 1e-4);
    choose(ResizePanel::Percent);
    EXPECT_EQ(width->text(), "100");
    choose(ResizePanel::Centimeters);
    EXPECT_NEAR(shown(width), 400 / 28.35, 1e-4);
}

TEST_F(ResizePanelTest, EditedFieldsAreWhatIsConverted)
{
    choose(ResizePanel::Inches);
    type(width, "2");
    EXPECT_NEAR(shown(height), 1.5, 1e-5);
    choose(ResizePanel::Pixels);
    EXPECT_EQ(width->text(), "144");
    type(height, "54");
    EXPECT_EQ(width->text(), "72");
    panel.findChild<QCheckBox*>("mPropBtn")->setChecked(false);
    type(height, "10,5");
    EXPECT_EQ(width->text(), "72") << "free";
    resize();
    ASSERT_EQ(master.asked.size(), 1u);
    EXPECT_EQ(master.asked[0], std::pair(72.0f, 10.5f)) << "a comma is a decimal mark too";
}

TEST_F(ResizePanelTest, FollowsThePictureAndForgetsEdits)
{
    type(width, "10");
    ResizePanel::setWHH(80.9f, 60);
    EXPECT_EQ(panel.findChild<QLabel*>("mCaptionInfo")->text(), "80 x 60 pixels");
    resize();
    EXPECT_TRUE(master.asked.empty());
    type(width, "10");
    panel.findChild<QPushButton*>("cancelButton")->click();
    EXPECT_FALSE(panel.isVisible());
    panel.makeKeyAndOrderFront();
    EXPECT_EQ(width->text(), "400") << "asks the controller anew";
}

} // namespace
