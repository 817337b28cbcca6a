// Rows over a value that is just there: no filter, no effect, no controller.
#include "tests/support/Input.h"
#include "widgets/ColorWell.h"
#include "widgets/PanelCheckBox.h"
#include "widgets/PanelPopUp.h"
#include "widgets/ReadoutField.h"
#include "widgets/rows/ChoiceRow.h"
#include "widgets/rows/ColorRow.h"
#include "widgets/rows/NumberRow.h"
#include "widgets/rows/SwitchRow.h"
#include "widgets/rows/TransformRow.h"
#include "widgets/rows/VectorRow.h"
#include "widgets/ValueSlider.h"

#include <gtest/gtest.h>

#include <QTest>

#include <cmath>

namespace {

class RowsTest : public testing::Test {
protected:
    RowsTest()
    {
        window.resize(320, 100);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    ValueBinding binding()
    {
        return {.get = [this] { return value; },
            .set = [this](const CIValue& v) { value = v, log += "set "; },
            .standard = [this] { return standard; },
            .begin = [this] { log += "begin "; },
            .end = [this] { log += "end "; },
            .preview = [this](const CIValue& v) { value = v, log += "try "; }};
    }
    NumberRow& number(const NumberLook& look)
    {
        auto* row = new NumberRow(panel, look, binding());
        row->slider->setGeometry(0, 0, 212, 16); // 200 points of track
        row->readout->setGeometry(220, 0, 80, 20);
        row->slider->show();
        row->readout->show();
        return *row;
    }
    static void type(ReadoutField& field, const QString& text, Qt::Key end = Qt::Key_Return)
    {
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, text);
        QTest::keyClick(&field, end);
    }
    static void drag(ValueSlider& slider, int to, Qt::KeyboardModifiers modifiers = {})
    {
        input::moveMouse(slider, QPointF(to, 8), Qt::LeftButton, modifiers);
    }

    QWidget window;
    QWidget* panel = new QWidget(&window);
    CIValue value, standard;
    std::string log;
};

TEST_F(RowsTest, ADragIsOneStepOfUndo)
{
    value = 50;
    NumberRow& row = number({.max = 100});
    QTest::mousePress(row.slider, Qt::LeftButton, {}, {106, 8});
    QTest::mouseRelease(row.slider, Qt::LeftButton, {}, {106, 8});
    EXPECT_EQ(log, "begin end ") << "pressing the handle is no change";
    log.clear();
    QTest::mousePress(row.slider, Qt::LeftButton, {}, {106, 8});
    drag(*row.slider, 126);
    drag(*row.slider, 146);
    EXPECT_EQ(value.toDouble(), 70);
    drag(*row.slider, 166, Qt::ShiftModifier);
    EXPECT_EQ(value.toDouble(), 71) << "ten times finer";
    QTest::mouseRelease(row.slider, Qt::LeftButton, {}, {146, 8});
    EXPECT_EQ(log, "begin set set set end ");
    EXPECT_EQ(row.readout->text(), "71.00");

    log.clear();
    QTest::mousePress(row.slider, Qt::LeftButton, {}, {146, 8});
    delete panel; // may be built anew at any time
    EXPECT_EQ(log, "begin end ");
}

TEST_F(RowsTest, WhatTakesLongActsWhenTheSliderIsLetGo)
{
    value = 50;
    NumberRow& row = number({.max = 100, .whole = true, .continuous = false, .decimals = 0});
    QTest::mousePress(row.slider, Qt::LeftButton, {}, {106, 8});
    drag(*row.slider, 126);
    EXPECT_EQ(row.readout->text(), "60");
    EXPECT_EQ(log, "begin ");
    QTest::mouseRelease(row.slider, Qt::LeftButton, {}, {126, 8});
    EXPECT_EQ(log, "begin set end ");
    EXPECT_EQ(value, CIValue(60));
}

TEST_F(RowsTest, KeysAndWheelStepTheSlider)
{
    value = 10;
    ValueSlider& slider = *number({.max = 100}).slider;
    slider.setFocus();
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&slider, key, modifiers);
        return value.toDouble();
    };
    const auto turn = [&](int delta, Qt::KeyboardModifiers modifiers = {}) {
        input::turnWheel(slider, delta, modifiers);
        return value.toDouble();
    };
    EXPECT_EQ(press(Qt::Key_Right), 11);
    EXPECT_EQ(press(Qt::Key_Down), 10);
    EXPECT_NEAR(press(Qt::Key_Right, Qt::ShiftModifier), 10.1, 1e-9);
    EXPECT_EQ(press(Qt::Key_Home), 0);
    EXPECT_EQ(turn(120), 1);
    EXPECT_EQ(turn(60), 1) << "half a notch";
    EXPECT_NEAR(turn(60, Qt::ShiftModifier), 1.1, 1e-9);
    press(Qt::Key_End);
    EXPECT_EQ(turn(120), 100);
}

TEST_F(RowsTest, CommaAndPointMeanTheSameInEveryLanguage)
{
    const QLocale before;
    for (const char* language : {"en", "de", "ar_EG"}) {
        SCOPED_TRACE(language);
        QLocale::setDefault(QLocale(QLatin1String(language)));
        for (const std::optional<int> decimals : {std::optional<int>(), std::optional<int>(1)})
            for (const char* text : {"1.5", "1,5"}) {
                value = 0;
                NumberRow& row = number({.max = 100, .decimals = decimals});
                type(*row.readout, text);
                EXPECT_EQ(value, CIValue(1.5)) << text;
                QTest::keyClick(row.readout, Qt::Key_End);
                QTest::keyClick(row.readout, '0');
                QTest::keyClick(row.readout, Qt::Key_Return);
                EXPECT_EQ(value, CIValue(1.5)) << "what is shown can be typed on";
            }
    }
    QLocale::setDefault(before);
}

TEST_F(RowsTest, TypedNumbersAreTakenAsTheyAreUnlessThereAreSteps)
{
    value = 10;
    NumberRow& plain = number({.max = 100});
    type(*plain.readout, "250,5");
    EXPECT_EQ(value.toFloat(), 250.5f) << "beyond the slider";
    EXPECT_EQ(plain.readout->text(), "250,5") << "and stays as typed";
    for (const char* bad : {"abc", "nan", "1e300", "-inf", " "}) {
        type(*plain.readout, bad, Qt::Key_Tab);
        EXPECT_EQ(plain.readout->text(), "250,5") << bad;
    }
    EXPECT_EQ(log, "set ");

    NumberRow& stepped = number({.max = 100, .decimals = 1});
    type(*stepped.readout, "99.96");
    EXPECT_EQ(value, CIValue(100));
    type(*stepped.readout, "7.25");
    EXPECT_EQ(value, CIValue(7.3));
    EXPECT_EQ(stepped.readout->text(), "7.3");
    type(*stepped.readout, "5000");
    EXPECT_EQ(stepped.readout->text(), "100.0");
}

TEST_F(RowsTest, ADoubleClickSelectsTheWholeNumber)
{
    value = -0.25;
    ReadoutField& field = *number({.min = -1, .max = 1}).readout;
    const QPoint decimals(field.width() / 2, field.height() / 2);
    QTest::mouseDClick(&field, Qt::LeftButton, {}, decimals);
    QCoreApplication::processEvents();
    EXPECT_EQ(field.selectedText(), "-0.25");
    QTest::keyClicks(&field, "0.5\r");
    EXPECT_EQ(value.toDouble(), 0.5);
}

TEST_F(RowsTest, RefusedNumbersAreNotShown)
{
    value = 1;
    ValueBinding stubborn = binding();
    stubborn.set = [](const CIValue&) {};
    auto* row = new NumberRow(panel, {.min = -2, .max = 2, .isFactor = true}, stubborn);
    EXPECT_EQ(row->slider->value(), 0) << "the power of ten";
    row->slider->moveTo(1);
    EXPECT_EQ(row->slider->value(), 0);
    type(*row->readout, "5");
    EXPECT_EQ(row->readout->text(), "1.00");
}

TEST_F(RowsTest, TheStandardValueComesBack)
{
    value = 10;
    NumberRow& row = number({.max = 100});
    QTest::keyClick(row.slider, Qt::Key_Delete);
    EXPECT_FALSE(row.canReset()) << "it has none";
    standard = 25;
    EXPECT_TRUE(row.canReset());
    QTest::keyClick(row.slider, Qt::Key_Delete);
    EXPECT_EQ(row.readout->text(), "25.00");
    QTest::keyClick(row.slider, Qt::Key_Delete);
    EXPECT_EQ(log, "set ") << "it is there";
}

TEST_F(RowsTest, SwitchesAndMenusTellWhatTheUserChose)
{
    value = true;
    SwitchRow row(panel, binding());
    EXPECT_TRUE(row.box->isChecked());
    row.box->click();
    EXPECT_TRUE(value.isBoolean() && !value.toBool());

    value = 1;
    ChoiceRow choice(panel, {"one", "two", "three"}, binding());
    EXPECT_EQ(choice.menu->currentText(), "two");
    log.clear();
    choice.menu->show();
    QTest::keyClick(choice.menu, Qt::Key_Down);
    EXPECT_EQ(value, CIValue(2));
    emit choice.menu->activated(2);
    EXPECT_EQ(log, "set ") << "chosen again";
}

TEST_F(RowsTest, VectorsFollowEveryKeyAndAreOneStep)
{
    value = CIVector{0, 1, 0};
    ReadoutField& y = *(new VectorRow(panel, 4, binding()))->readouts()[1];
    EXPECT_EQ(y.text(), "1.000");
    y.show();
    y.setFocus();
    y.selectAll();
    QTest::keyClicks(&y, "0,5");
    EXPECT_EQ(value.toVector(), (CIVector{0, 0.5, 0, 0}));
    QTest::keyClick(&y, Qt::Key_Return);
    EXPECT_EQ(log, "begin set set set set end ") << "three keys and the end";

    type(y, "x");
    EXPECT_EQ(y.text(), "0.500");
    y.selectAll();
    QTest::keyClicks(&y, "3");
    QTest::keyClick(&y, Qt::Key_Escape);
    EXPECT_EQ(value.toVector(), (CIVector{0, 0.5, 0, 0})) << "given up";
    EXPECT_EQ(y.text(), "0.500");
}

TEST_F(RowsTest, TransformsKeepTheirTranslation)
{
    value = CIAffineTransform::translation(7, 8);
    auto* row = new TransformRow(panel, binding());
    const auto readout = [&](TransformRow::Line line) -> ReadoutField& { return *row->line(line).readout; };
    EXPECT_EQ(readout(TransformRow::Scale).text(), "1.00");
    EXPECT_EQ(readout(TransformRow::Angle).text(), "0.0");
    row->line(TransformRow::Scale).slider->moveTo(1);
    EXPECT_EQ(value.toTransform(), (CIAffineTransform{10, 0, 0, 10, 7, 8}));
    type(readout(TransformRow::Angle), "90");
    const CIAffineTransform turned = value.toTransform();
    EXPECT_NEAR(turned.b, 10, 1e-5);
    EXPECT_NEAR(turned.c, -10, 1e-5);
    type(readout(TransformRow::Stretch), "999999");
    EXPECT_EQ(readout(TransformRow::Stretch).text(), "1.00") << "a million times ten is out of reason";
    EXPECT_EQ(value.toTransform(), turned);
    type(readout(TransformRow::Scale), "0");
    EXPECT_TRUE(std::isfinite(value.toTransform().a));

    value = CIVector{2, 0, 0, 2, 5, 6};
    row->show();
    type(readout(TransformRow::Scale), "3");
    EXPECT_EQ(value.toVector(), (CIVector{3, 0, 0, 3, 5, 6})) << "stays a vector";
}

TEST_F(RowsTest, ColorsAreTriedBeforeTheyArePicked)
{
    const CIColor before(1, 0.5, 0.25, 0.5);
    value = before;
    auto* row = new ColorRow(panel, binding());
    for (const bool accepted : {false, true}) {
        log.clear();
        row->well->openPanel();
        row->well->panel()->setCurrentColor(QColor(0, 255, 0, 128));
        EXPECT_EQ(value.toColor().green(), 1) << "seen at once";
        accepted ? row->well->panel()->accept() : row->well->panel()->reject();
        EXPECT_EQ(log.ends_with("try set "), accepted);
        EXPECT_EQ(log.ends_with("try "), !accepted);
        EXPECT_EQ(value.toColor() == before, !accepted);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    const CIValue picked = value;
    row->well->openPanel();
    row->well->panel()->setCurrentColor(QColor(0, 0, 255));
    EXPECT_FALSE(value == picked);
    delete panel;
    EXPECT_EQ(value, picked);
}

} // namespace
