#include "effects3d/OpenGL.h"
#include "tests/effects3d/SceneFixture.h"
#include "widgets/ReadoutField.h"
#include "widgets/ValueSlider.h"

#include <QTest>

namespace {

struct SurfaceTest : SceneTest {
    std::shared_ptr<EvalEffect> surface = select<EvalEffect>();

    /// A flat square from -0.5 to 0.5, seen from the front, at that depth.
    void flatten(double z = 0)
    {
        EvalEffect::Net net = surface->points2();
        for (std::size_t point = 0; point < 6; ++point) {
            net[4 * point + 1] = point < 3 ? -0.5 : 0.5;
            net[4 * point + 2] = z;
        }
        surface->setPoints2(net);
        surface->setRotationE({});
    }
};

TEST_F(SurfaceTest, ShowsThePictureUprightAndOpaque)
{
    flatten();
    const QImage shown = frame();
    EXPECT_EQ(at(shown, -0.45, 0.4), 'r');
    EXPECT_EQ(at(shown, 0.45, 0.1), 'g');
    EXPECT_EQ(at(shown, 0, -0.1), 'b');
    EXPECT_EQ(at(shown, 0.45, -0.4), 'w');
    EXPECT_EQ(at(shown, 0.52, 0), '.');
    EXPECT_EQ(at(shown, 0, 0.52), '.');
    for (int x = 110; x < 290; ++x)
        ASSERT_EQ(qAlpha(shown.pixel(x, 120)), 255) << x;
}

TEST_F(SurfaceTest, BendsWithItsMiddlePoints)
{
    flatten();
    EvalEffect::Net net = surface->points2();
    net[5] = 0.1; // the lower edge passes half way between -0.5 and 0.1
    surface->setPoints2(net);
    const QImage shown = frame();
    EXPECT_EQ(at(shown, 0, -0.17), 'w');
    EXPECT_EQ(at(shown, 0, -0.23), '.');
    EXPECT_EQ(at(shown, -0.48, -0.4), 'w');
}

TEST_F(SurfaceTest, StaysWholeWhenItReachesFarOut)
{
    flatten(-1.7); // as far as sliders and rotation can bring a part of it
    EXPECT_EQ(at(frame(), 0, 0.4), 'r');
}

TEST_F(SurfaceTest, AsANetOfLinesOneSeesThrough)
{
    flatten();
    surface->setFilledMode(false);
    const QImage shown = frame();
    int covered = 0, all = 0;
    for (int y = 105; y < 295; ++y)
        for (int x = 105; x < 295; ++x, ++all)
            covered += qAlpha(shown.pixel(x, y)) > 100;
    EXPECT_GT(covered, all / 20);
    EXPECT_LT(covered, all / 2);
    EXPECT_TRUE(isBlank(shown.copy(0, 0, 90, 400)));
}

TEST_F(SurfaceTest, ColoredLightTakesBlueFromAlpha)
{
    flatten();
    surface->setDecalMode(GL_MODULATE);
    surface->setDecalColor({0, 0, 0, 1});
    QImage shown = frame();
    EXPECT_EQ(at(shown, 0, -0.4), 'b') << "white under blue light";
    EXPECT_EQ(at(shown, 0, -0.1), 'b');
    EXPECT_EQ(at(shown, 0, 0.4), 'k') << "red under blue light";
    surface->setDecalColor({0, 1, 1, 0});
    shown = frame();
    EXPECT_EQ(at(shown, 0, -0.4), 'g') << "the color's own blue doesn't count";
    surface->setDecalMode(GL_DECAL);
    EXPECT_EQ(at(frame(), 0, -0.4), 'w') << "nothing is left of the light";
}

TEST_F(SurfaceTest, IsCheckeredWithoutAPicture)
{
    flatten();
    picture = {};
    const QImage shown = frame();
    EXPECT_EQ(at(shown, -0.25, 0.4), 'w'); // two by four, from the top
    EXPECT_EQ(at(shown, 0.25, 0.4), 'r');
    EXPECT_EQ(at(shown, -0.25, 0.1), 'r');
    EXPECT_EQ(at(shown, 0.25, -0.1), 'r');
    EXPECT_EQ(at(shown, -0.25, -0.1), 'w');
}

TEST_F(SurfaceTest, LeavesNothingBehindForOtherDrawings)
{
    surface->setDecalMode(GL_MODULATE);
    surface->setFilledMode(false);
    frame();
    effect.reset();
    const QImage plain = frame();
    EXPECT_EQ(at(plain, 0, 0.8), 'r');
    EXPECT_EQ(at(plain, 0.8, -0.8), 'w');
}

/// The panel of a surface: two sliders, two check boxes, a color.
struct SurfacePanelTest : SurfaceTest {
    QWidget panel;
    QList<EffectControl*> controls;

    SurfacePanelTest()
    {
        surface->setTopControlsView(&panel);
        surface->setUpControlsView();
        controls = panel.findChildren<EffectControl*>();
    }
    EffectControl& control(const char* name) const
    {
        for (EffectControl* candidate : controls)
            if (candidate->focusProxy()->accessibleName() == QLatin1String(name))
                return *candidate;
        throw std::runtime_error(name);
    }
    /// Gives a control a value as the user does.
    void change(const char* name, const CIValue& value)
    {
        control(name).setValue(value);
        emit control(name).changed();
    }
};

TEST_F(SurfacePanelTest, SlidersStartAtTheWholePartOfTheirValue)
{
    for (const auto& [name, index, value] :
        {std::tuple("First Curve:", 5, 0.6), std::tuple("Second Curve:", 17, -0.6)}) {
        auto* slider = control(name).findChild<ValueSlider*>();
        auto* readout = control(name).findChild<ReadoutField*>();
        EXPECT_EQ(slider->value(), 0);
        EXPECT_EQ(readout->text(), value > 0 ? "0.60" : "-0.60") << "the value in force";
        EXPECT_EQ(surface->points2()[std::size_t(index)], value);
        readout->selectAll();
        QTest::keyClicks(readout, "0");
        QTest::keyClick(readout, Qt::Key_Return);
        EXPECT_EQ(surface->points2()[std::size_t(index)], 0) << "though the slider stands there";
        QTest::keyClick(slider, Qt::Key_Delete);
        EXPECT_EQ(surface->points2()[std::size_t(index)], value) << "where it started";
    }
}

TEST_F(SurfacePanelTest, EveryControlIsUndoneAndRedone)
{
    const std::vector<std::pair<const char*, CIValue>> changes{{"First Curve:", -1.0}, {"Second Curve:", 0.5},
        {"Filled Poly:", false}, {"Colored Light:", true}, {"Light color", CIColor(1, 0, 1, 0)},
        {"Background Color:", CIColor(0, 0.5, 1, 1)}};
    ASSERT_EQ(std::size_t(controls.size()), changes.size() + 1) << "and the size to apply, which isn't stored";
    const CIDictionary start = surface->save();
    for (const auto& [name, value] : changes) {
        SCOPED_TRACE(name);
        const CIDictionary before = surface->save();
        change(name, value);
        const CIDictionary after = surface->save();
        EXPECT_NE(before, after);
        EXPECT_TRUE(undo.undoActionName().startsWith("Change to ")) << undo.undoActionName().toStdString();
        undo.undo();
        EXPECT_EQ(surface->save(), before);
        undo.redo();
        EXPECT_EQ(surface->save(), after);
        EXPECT_EQ(control(name).value(), value);
    }
    EXPECT_EQ(surface->decalColor(), (EvalEffect::Color{1, 0, 1, 0}));
    EXPECT_EQ(surface->decal(), float(GL_MODULATE));
    while (undo.canUndo())
        undo.undo();
    EXPECT_EQ(surface->save(), start);
    EXPECT_EQ(surface->points2()[5], 0.6) << "not rounded by the slider";
    EXPECT_EQ(control("First Curve:").value().toDouble(), 0.6);
}

TEST_F(SurfaceTest, ParametersAreRestoredByTheirOwnOperations)
{
    const CIDictionary start = surface->save();
    surface->setPointsIdxSender(0.25, 5, nullptr);
    surface->setPointsIdxSender(-0.25, 17, nullptr);
    surface->setpolygonFilledSender(false, nullptr);
    surface->changeM_DecalSender(float(GL_MODULATE), nullptr);
    surface->setDecalColorSender({0.1f, 0.2f, 0.3f, 0.4f}, nullptr);
    EXPECT_EQ(surface->points2()[5], 0.25);
    EXPECT_EQ(surface->points2()[17], -0.25);
    EXPECT_FALSE(surface->polygonFilled());
    EXPECT_EQ(surface->decal(), float(GL_MODULATE));
    EXPECT_EQ(surface->decalColor(), (EvalEffect::Color{0.1f, 0.2f, 0.3f, 0.4f}));
    EXPECT_EQ(undo.undoActionNames(),
        (QStringList{"Change to Light Color", "Change to Colored Light", "Change to Filled Poly",
            "Change to Second Curve", "Change to First Curve"}));
    while (undo.canUndo())
        undo.undo();
    EXPECT_EQ(surface->save(), start);
    EXPECT_EQ(surface->decalColor()[3], 0);
}

TEST_F(SurfaceTest, AFavouriteKeepsFloatsAndTheFourthColorElement)
{
    EvalEffect::Net net = surface->points2();
    for (std::size_t i = 0; i < net.size(); ++i)
        net[i] += double(i) / 7;
    surface->setPoints2(net);
    surface->setRotationE({12.5f, -3.25f, 1, 2});
    surface->setFilledMode(false);
    surface->setDecalMode(GL_MODULATE);
    surface->setDecalColor({0.1f, 0.2f, 0.3f, 0.4f});
    const CIDictionary saved = surface->save();
    EXPECT_EQ(saved.at("class").toString(), "EvalEffect");
    EXPECT_FALSE(saved.contains("decalColor3"));

    const auto again = select<EvalEffect>();
    again->setDecalColor({0, 0, 0, 0.9f});
    again->read(saved);
    EXPECT_EQ(again->save(), saved);
    EXPECT_EQ(again->decalColor(), (EvalEffect::Color{0.1f, 0.2f, 0.3f, 0.9f}));
    for (std::size_t i = 0; i < net.size(); ++i)
        EXPECT_EQ(again->points2()[i], double(float(net[i])));
    EXPECT_EQ(again->objectRotation(), surface->objectRotation());
    EXPECT_FALSE(again->polygonFilled());

    again->read({{"decal", 1e30}, {"point25", "text"}, {"borderSize", -1e300}, {"drawObj", 3}});
    EXPECT_FALSE(frame().isNull()) << "whatever was stored, it can be drawn";
}

} // namespace
