#include "tests/effects3d/SceneFixture.h"

#include <limits>

#include <QWheelEvent>

namespace {

using BodiesTest = SceneTest;

struct Place {
    double x, y;
    char color;
};
struct Body {
    const char* name;
    ObjectEffect::ObjectType type;
    std::array<float, 4> rotation;
    std::vector<Place> places;
};

// Worked out by hand from the bodies' measures. A turn of 180 half degrees stands z upright.
const std::vector<Body>& bodies()
{
    static const std::vector<Body> all{
        // One looks at the pole where the picture ends; the outline is the equator.
        {"sphere", ObjectEffect::Sphere, {}, {{0, 0, 'w'}, {0.77, 0, 'b'}, {0, -0.77, 'b'}, {0.82, 0, '.'}}},
        {"sphere upright", ObjectEffect::Sphere, {0, 180, 0, 0},
            {{0, 0.75, 'r'}, {0, 0.3, 'g'}, {0, -0.3, 'b'}, {0, -0.75, 'w'}, {0, 0.82, '.'}}},
        {"cylinder from its open side", ObjectEffect::Cylinder, {}, {{0, 0, '.'}, {0.39, 0, '.'}}},
        {"cylinder", ObjectEffect::Cylinder, {0, 180, 0, 0},
            {{0, 0.45, 'r'}, {0, 0.12, 'g'}, {0.3, -0.12, 'b'}, {-0.38, -0.45, 'w'}, {0.42, 0, '.'}, {0, 0.52, '.'}}},
        {"torus", ObjectEffect::Torus, {},
            {{0, 0, '.'}, {0.38, 0, '.'}, {0.45, 0, 'b'}, {0.75, 0, 'w'}, {0, -0.75, 'w'}, {0.82, 0, '.'}}},
        // Each coordinate belongs to the corner after it, so the picture lies on its side.
        {"cube", ObjectEffect::Cube, {},
            {{-0.45, 0, 'w'}, {-0.12, 0.4, 'b'}, {0.12, -0.4, 'g'}, {0.45, 0, 'r'}, {0.52, 0, '.'}, {0, 0.52, '.'}}},
        {"cone", ObjectEffect::Cone, {0, 180, 0, 0},
            {{0, 0.9, 'w'}, {0, 0.6, 'b'}, {0, 0.4, 'g'}, {0.5, 0.04, 'r'}, {0.5, 0.5, '.'}, {0, -0.05, '.'}}},
        {"pyramid", ObjectEffect::Pyramid, {},
            {{0, 0.5, 'w'}, {0, 0.1, 'b'}, {0.2, -0.1, 'g'}, {-0.5, -0.55, 'r'}, {0.4, 0.4, '.'}, {0, -0.62, '.'}}},
        {"disk from its back", ObjectEffect::Disk, {}, {{0.5, 0, '.'}}},
        {"disk", ObjectEffect::Disk, {360, 0, 0, 0},
            {{0, 0.9, 'w'}, {0.3, 0.3, 'b'}, {0.3, -0.3, 'g'}, {0, -0.9, 'r'}, {0, 0.15, '.'}, {0.8, 0.8, '.'}}},
    };
    return all;
}

TEST_F(BodiesTest, WearThePicture)
{
    const auto object = select<ObjectEffect>();
    for (const Body& body : bodies()) {
        object->setObjectMode(body.type);
        object->setRotationO(body.rotation);
        const QImage shown = frame();
        for (const Place& place : body.places)
            EXPECT_EQ(at(shown, place.x, place.y), place.color) << body.name << " at " << place.x << ", " << place.y;
    }
}

TEST_F(BodiesTest, KeepTheirShapeInViewsOfAnyShape)
{
    select<ObjectEffect>();
    for (const QSize size : {QSize(600, 300), QSize(300, 600)}) {
        const QImage shown = frame(size);
        EXPECT_EQ(at(shown, 0.77, 0), 'b');
        EXPECT_EQ(at(shown, 0.82, 0), '.');
        EXPECT_EQ(at(shown, 0, 0.77), 'b');
        EXPECT_EQ(at(shown, 0, 0.82), '.');
    }
}

TEST_F(BodiesTest, HaveSmoothEdges)
{
    select<ObjectEffect>();
    const QImage shown = frame();
    int partial = 0;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x) {
            const int alpha = qAlpha(shown.pixel(x, y));
            partial += alpha > 0 && alpha < 255;
        }
    EXPECT_GT(partial, 400); // half of the pixels that the outline passes
}

TEST_F(BodiesTest, NothingWithoutAPictureOrOfAnUnknownType)
{
    const auto object = select<ObjectEffect>();
    for (const int type : {-1, 7, std::numeric_limits<int>::max()}) {
        object->setObjectMode(type);
        EXPECT_TRUE(isBlank(frame())) << type;
    }
    picture = {};
    for (const Body& body : bodies()) {
        object->setObjectMode(body.type);
        object->setRotationO(body.rotation);
        EXPECT_TRUE(isBlank(frame())) << body.name;
    }
}

TEST_F(BodiesTest, ShowAnotherPictureAtOnce)
{
    const auto object = select<ObjectEffect>();
    EXPECT_EQ(at(frame(), 0, 0), 'w');
    picture = picture.transformed(CIAffineTransform::scaling(1, -1));
    object->reloadImage();
    EXPECT_EQ(at(frame(), 0, 0), 'r');
}

TEST_F(BodiesTest, TurnAgainstTheSurface)
{
    // 50 degrees bring the pole, which is in front, to 0.8 sin(50°) on one side.
    const auto object = select<ObjectEffect>();
    object->setRotationO({100, 0, 0, 0});
    QImage shown = frame();
    EXPECT_EQ(at(shown, 0.613, 0), 'w');
    EXPECT_NE(at(shown, -0.613, 0), 'w');

    const auto surface = select<EvalEffect>();
    EvalEffect::Net small = surface->points2();
    for (std::size_t point = 0; point < 6; ++point) {
        small[4 * point] *= 0.2;
        small[4 * point + 1] = point < 3 ? -0.1 : 0.1;
        small[4 * point + 2] = -0.8; // in front, too
    }
    surface->setPoints2(small);
    surface->setRotationE({100, 0, 0, 0});
    shown = frame();
    EXPECT_NE(at(shown, -0.613, 0.08), '.');
    EXPECT_EQ(at(shown, 0.613, 0.08), '.');
}

TEST_F(BodiesTest, ATypeIsUndoneAndRedoneWithItsMenu)
{
    QWidget panel;
    const auto object = select<ObjectEffect>();
    object->setTopControlsView(&panel);
    object->setUpControlsView();
    auto* menu = panel.findChild<EffectControl*>();
    ASSERT_TRUE(menu);
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(menu->focusProxy(), &wheel);
    EXPECT_EQ(object->objectMode(), ObjectEffect::Sphere) << "the wheel is for the panel while the menu has no focus";
    QTest::keyClick(menu->focusProxy(), Qt::Key_End);
    EXPECT_EQ(object->objectMode(), ObjectEffect::Disk);
    undo.undo();
    EXPECT_EQ(object->objectMode(), ObjectEffect::Sphere);
    EXPECT_EQ(menu->value().toDouble(), ObjectEffect::Sphere);
    undo.redo();
    EXPECT_EQ(object->objectMode(), ObjectEffect::Disk);
    EXPECT_EQ(menu->value().toDouble(), ObjectEffect::Disk);
    object->clearEffect();
    EXPECT_TRUE(panel.findChildren<EffectControl*>().isEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    undo.undo(); // its menu is gone
    EXPECT_EQ(object->objectMode(), ObjectEffect::Sphere);
}

TEST_F(BodiesTest, AFavouriteBringsTypeAndRotationBack)
{
    const auto object = select<ObjectEffect>();
    object->setObjectMode(ObjectEffect::Disk);
    object->setRotationO({360.1f, -7.3f, 0.5f, 0.25f});
    const CIDictionary saved = object->save();
    EXPECT_EQ(saved.at("class").toString(), "ObjectEffect");
    const auto again = select<ObjectEffect>();
    again->read(saved);
    EXPECT_EQ(again->objectMode(), ObjectEffect::Disk);
    EXPECT_EQ(again->objectRotation(), object->objectRotation());
    EXPECT_EQ(again->myname(), "3D Objects");
    const auto copy = std::static_pointer_cast<ObjectEffect>(again->mycopy());
    EXPECT_EQ(copy->save(), saved);
}

} // namespace
