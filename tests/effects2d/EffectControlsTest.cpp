#include "effects2d/EffectPanel.h"
#include "effects2d/simpleEffects.h"
#include "tests/effects2d/EffectFixture.h"
#include "widgets/ColorSwatch.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTest>

namespace {

struct EffectControlsTest : testing::Test {
    FakeEffectMaster master;
    QWidget window;
    std::shared_ptr<GeneratedEffect> effect;
    std::vector<EffectControl*> controls;
    QStringList posted;

    EffectControlsTest()
    {
        auto& center = NotificationCenter::defaultCenter();
        QObject::connect(&center, &NotificationCenter::UpdateCustomView, &window, [this] { posted << "custom"; });
        QObject::connect(&center, &NotificationCenter::UpdateOpenGLView, &window, [this] { posted << "3D"; });
        window.resize(320, 400);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    void select(int row)
    {
        if (effect)
            effect->clearEffect();
        const auto prototypes = customEffectPrototypes();
        prototypes[std::size_t(row)]->setTopControlsView(&window);
        effect = std::static_pointer_cast<GeneratedEffect>(prototypes[std::size_t(row)]->mycopy());
        effect->setUpControlsView();
        const QList<EffectControl*> found = window.findChildren<EffectControl*>();
        controls.assign(found.begin(), found.end());
        master.undo.removeAllActions();
        posted.clear();
    }

    /// Changes a control as the user does. False for one without a value.
    static bool change(EffectControl* control)
    {
        QWidget* widget = control->focusProxy();
        if (auto* slider = qobject_cast<QSlider*>(widget)) {
            QTest::keyClick(slider, slider->value() == slider->maximum() ? Qt::Key_Home : Qt::Key_End);
        } else if (qobject_cast<QCheckBox*>(widget)) {
            QTest::keyClick(widget, Qt::Key_Space);
        } else if (qobject_cast<QComboBox*>(widget)) {
            QTest::keyClick(widget, Qt::Key_Down);
        } else if (auto* well = qobject_cast<ColorSwatch*>(widget)) {
            well->setColor(QColor(10, 20, 30, 40));
            emit well->colorChanged(well->color());
        } else {
            return false;
        }
        return true;
    }
};

TEST_F(EffectControlsTest, EveryControlCanBeUndoneAndRedone)
{
    for (int row = kSimple; row <= kMorphing; ++row) {
        select(row);
        effect->initEffect();
        for (EffectControl* control : controls) {
            SCOPED_TRACE(effect->className() + " " + control->focusProxy()->accessibleName().toStdString());
            const CIDictionary before = effect->save();
            const CIValue shown = control->value();
            if (!change(control))
                continue;
            const CIDictionary after = effect->save();
            EXPECT_NE(before, after);
            EXPECT_TRUE(master.undo.canUndo());
            master.undo.undo();
            EXPECT_EQ(effect->save(), before);
            EXPECT_EQ(control->value(), shown);
            EXPECT_FALSE(master.undo.canUndo());
            master.undo.redo();
            EXPECT_EQ(effect->save(), after);
            master.undo.undo();
            EXPECT_EQ(effect->save(), before);
        }
    }
}

TEST_F(EffectControlsTest, OnlyParametersOfTheDrawingDrawAnew)
{
    for (int row = kSimple; row <= kMorphing; ++row) {
        select(row);
        effect->initEffect();
        for (EffectControl* control : controls) {
            const QString label = control->focusProxy()->accessibleName();
            SCOPED_TRACE(effect->className() + " " + label.toStdString());
            // Kept, so that a new layer can't come to lie in the same place.
            const quartz::Drawing before = *effect->effectImage();
            const quartz::Drawing* layer = effect->effectImage();
            posted.clear();
            if (!change(control))
                QTest::mouseClick(control->focusProxy(), Qt::LeftButton);
            const bool composites = label.startsWith("Background") || label.endsWith("opacity:");
            EXPECT_EQ(effect->effectImage() == layer, composites);
            EXPECT_EQ(posted, QStringList{"custom"});
        }
    }
}

TEST_F(EffectControlsTest, AnUndoneColorOfSimpleObjectsTellsTheOtherView)
{
    for (const int row : {int(kSimple), int(kLines)}) {
        select(row);
        for (EffectControl* control : controls)
            if (control->focusProxy()->accessibleName() == "Background Color:")
                change(control);
        EXPECT_EQ(posted, QStringList{"custom"});
        master.undo.undo();
        EXPECT_EQ(posted.last(), row == kSimple ? "3D" : "custom");
        EXPECT_EQ(effect->bgColor(), CIColor(1, 1, 1, 0.5));
    }
}

TEST_F(EffectControlsTest, SlidersThatDrawForLongActWhenLetGo)
{
    select(kSimple);
    auto* slider = qobject_cast<QSlider*>(controls[4]->focusProxy());
    ASSERT_TRUE(slider);
    EXPECT_EQ(slider->minimum(), 10);
    EXPECT_EQ(slider->maximum(), 200);
    EXPECT_FALSE(slider->hasTracking());
    auto* readout = controls[4]->findChild<QLineEdit*>();
    slider->setSliderDown(true);
    slider->setSliderPosition(120);
    EXPECT_TRUE(posted.isEmpty());
    EXPECT_EQ(readout->text(), "120");
    slider->setSliderDown(false);
    EXPECT_EQ(posted.size(), 1);
    EXPECT_EQ(effect->save().at("object_count"), CIValue(120));

    readout->setFocus();
    readout->selectAll();
    QTest::keyClicks(readout, "35");
    QTest::keyClick(readout, Qt::Key_Return);
    EXPECT_EQ(slider->value(), 35);
    EXPECT_EQ(effect->save().at("object_count"), CIValue(35));
    QTest::keyClick(readout, Qt::Key_Return); // the same number is no change
    EXPECT_EQ(posted.size(), 2);
}

TEST_F(EffectControlsTest, PanelsShowTheirControlsInOrderAndGoAway)
{
    select(kMorphing);
    QStringList labels;
    for (const QLabel* label : window.findChildren<QLabel*>())
        labels << label->text();
    EXPECT_EQ(labels,
        (QStringList{"Background Color:", "Background Image:", "Pattern opacity:", "Objects count:", "Pattern Color:",
            "Line width:", "Proportion:"}));
    QCoreApplication::processEvents(); // lays the panel out
    auto* generate = qobject_cast<QPushButton*>(controls.back()->focusProxy());
    ASSERT_TRUE(generate);
    EXPECT_EQ(generate->text(), "Generate");
    EXPECT_EQ(generate->size(), QSize(96, 24));
    EXPECT_NEAR(generate->mapTo(&window, generate->rect().center()).x(), window.width() / 2, 1);
    for (EffectControl* control : controls) {
        EXPECT_FALSE(control->focusProxy()->accessibleName().isEmpty());
        EXPECT_FALSE(control->focusProxy()->toolTip().isEmpty());
    }
    effect->clearEffect();
    EXPECT_TRUE(window.findChildren<QWidget*>().isEmpty());
    select(kSketch);
    EXPECT_TRUE(controls.empty());
}

TEST_F(EffectControlsTest, ColorWellsChangeWhileTheirPanelIsOpen)
{
    select(kFlare);
    auto* well = qobject_cast<ColorSwatch*>(controls[0]->focusProxy());
    ASSERT_TRUE(well);
    QTest::keyClick(well, Qt::Key_Space);
    QPointer<QColorDialog> panel = well->findChild<QColorDialog*>();
    ASSERT_TRUE(panel && panel->isVisible());
    panel->setCurrentColor(QColor(255, 0, 51, 102));
    EXPECT_EQ(effect->bgColor().red(), 1);
    EXPECT_NEAR(effect->bgColor().blue(), 0.2, 1e-4);
    EXPECT_NEAR(effect->bgColor().alpha(), 0.4, 1e-4);
    while (master.undo.canUndo())
        master.undo.undo();
    EXPECT_EQ(panel->currentColor().alpha(), 0);
    posted.clear();
    effect->clearEffect();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(panel);
    EXPECT_TRUE(posted.isEmpty());
}

TEST_F(EffectControlsTest, WorkWithoutAController)
{
    select(kSimple);
    EffectMaster::setMainController(nullptr);
    change(controls[0]);
    EXPECT_EQ(effect->save().at("drawObj"), CIValue(1));
    EXPECT_FALSE(master.undo.canUndo());
}

TEST_F(EffectControlsTest, UndoOutlivesThePanel)
{
    select(kSimple);
    change(controls[0]);
    effect->clearEffect();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const CIDictionary changed = effect->save();
    master.undo.undo();
    EXPECT_NE(effect->save(), changed);
}

} // namespace
