#include "effects2d/EffectPanel.h"
#include "effects2d/simpleEffects.h"
#include "tests/effects2d/EffectFixture.h"
#include "widgets/ColorWell.h"
#include "widgets/ReadoutField.h"
#include "widgets/ValueSlider.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
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

    QPushButton* generate() const { return window.findChild<QPushButton*>(); }

    /// Changes a control as the user does.
    static void change(EffectControl* control)
    {
        QWidget* widget = control->focusProxy();
        if (auto* slider = qobject_cast<ValueSlider*>(widget)) {
            QTest::keyClick(slider, slider->value() == slider->maximum() ? Qt::Key_Home : Qt::Key_End);
        } else if (qobject_cast<QCheckBox*>(widget)) {
            QTest::keyClick(widget, Qt::Key_Space);
        } else if (qobject_cast<QComboBox*>(widget)) {
            QTest::keyClick(widget, Qt::Key_Down);
        } else if (auto* well = qobject_cast<ColorWell*>(widget)) {
            well->pick(QColor(10, 20, 30, 40));
        }
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
            change(control);
            const CIDictionary after = effect->save();
            EXPECT_NE(before, after);
            EXPECT_TRUE(master.undo.canUndo());
            const QString name = "Change to " + control->focusProxy()->accessibleName().chopped(1);
            EXPECT_EQ(master.undo.undoActionName(), name);
            master.undo.undo();
            EXPECT_EQ(master.undo.redoActionName(), name);
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
            change(control);
            const bool composites = label.startsWith("Background") || label.endsWith("opacity:");
            EXPECT_EQ(effect->effectImage() == layer, composites);
            EXPECT_EQ(posted, QStringList{"custom"});
        }
        const quartz::Drawing before = *effect->effectImage();
        const quartz::Drawing* layer = effect->effectImage();
        QTest::mouseClick(generate(), Qt::LeftButton);
        EXPECT_NE(effect->effectImage(), layer);
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
    auto* slider = qobject_cast<ValueSlider*>(controls[4]->focusProxy());
    ASSERT_TRUE(slider);
    EXPECT_EQ(slider->minimum(), 10);
    EXPECT_EQ(slider->maximum(), 200);
    auto* readout = controls[4]->findChild<ReadoutField*>();
    const CIValue before = effect->save().at("object_count");
    const QPoint middle = slider->rect().center();
    QTest::mousePress(slider, Qt::LeftButton, {}, middle);
    QTest::mouseMove(slider, middle + QPoint(10, 0));
    EXPECT_TRUE(posted.isEmpty());
    EXPECT_EQ(readout->text(), QString::number(slider->value()));
    EXPECT_GT(slider->value(), 105);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, middle + QPoint(10, 0));
    EXPECT_EQ(posted.size(), 1);
    EXPECT_EQ(effect->save().at("object_count"), CIValue(slider->value()));
    master.undo.undo();
    EXPECT_EQ(effect->save().at("object_count"), before);
    EXPECT_FALSE(master.undo.canUndo());
}

TEST_F(EffectControlsTest, PanelsCenterTheirButtonAndGoAway)
{
    select(kMorphing);
    QCoreApplication::processEvents(); // lays the panel out
    ASSERT_TRUE(generate());
    EXPECT_NEAR(generate()->mapTo(&window, generate()->rect().center()).x(), window.width() / 2, 1);
    for (EffectControl* control : controls) {
        EXPECT_FALSE(control->focusProxy()->accessibleName().isEmpty());
        EXPECT_FALSE(control->focusProxy()->toolTip().isEmpty());
    }
    effect->clearEffect();
    EXPECT_TRUE(window.findChildren<QWidget*>().isEmpty());
    select(kSketch);
    EXPECT_TRUE(controls.empty());
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
