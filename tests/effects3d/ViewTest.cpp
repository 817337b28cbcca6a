#include "effects3d/ThreeDStage.h"
#include "tests/effects3d/SceneFixture.h"

#include <QLabel>

namespace {

using ViewTest = SceneTest;

/// The letter at a place given in tenths of the picture's size from its upper left corner.
char at10(const QImage& shot, int x, int y)
{
    return letterOf(shot.pixel(shot.width() * x / 10, shot.height() * y / 10));
}

TEST_F(ViewTest, ThePlainPictureFillsNineTenthsUpright)
{
    const QImage shown = frame({400, 200});
    EXPECT_EQ(letterOf(shown.pixel(22, 12)), 'r');
    EXPECT_EQ(letterOf(shown.pixel(377, 187)), 'w');
    EXPECT_EQ(letterOf(shown.pixel(200, 85)), 'g');
    for (const QPoint margin : {QPoint(18, 100), QPoint(381, 100), QPoint(200, 8), QPoint(200, 191)})
        EXPECT_EQ(shown.pixel(margin), 0u);
    picture = {};
    EXPECT_TRUE(isBlank(frame()));
}

TEST_F(ViewTest, ShotsAreUprightAndAsFineAsTheScreen)
{
    const qreal scale = view.devicePixelRatioF();
    const QImage shot = view.ogl_shot();
    EXPECT_EQ(shot.size(), QSize(400, 300) * scale);
    EXPECT_EQ(shot.devicePixelRatio(), scale);
    EXPECT_EQ(at10(shot, 5, 1), 'r');
    EXPECT_EQ(at10(shot, 5, 4), 'g');
    EXPECT_EQ(at10(shot, 5, 9), 'w');
    EXPECT_EQ(shot.pixel(3, 3), 0u);

    const CIImage image = view.ogl_shot_CI();
    EXPECT_EQ(image.extent(), (CIRect{0, 0, 400, 300})) << "one pixel a point";
    quartz::Part part;
    part.size = {400, 300};
    part.scale = 1;
    part.left = 0;
    part.top = 300;
    const QImage whole = BaseEffect::renderedPart(image, part);
    EXPECT_EQ(at10(whole, 5, 1), 'r');
    EXPECT_EQ(at10(whole, 5, 9), 'w');
    EXPECT_EQ(whole.pixel(3, 3), 0u);
}

TEST_F(ViewTest, LargeFramesAreDrawnInTilesThatMeet)
{
    select<ObjectEffect>();
    const QSize size(1440, 1080);
    const QImage small = frame(size);
    const QImage large = frame(size * 3).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    ASSERT_EQ(large.size(), size);
    int apart = 0, covered = 0;
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const QRgb a = small.pixel(x, y), b = large.pixel(x, y);
            covered += qAlpha(a) > 128;
            apart += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) > 90;
        }
    EXPECT_GT(covered, size.width() * size.height() / 4);
    EXPECT_LT(apart, covered / 100) << "edges of bands alone";
}

TEST_F(ViewTest, ADragOf100PointsTurnsBy50DegreesAndIsOneUndoStep)
{
    const auto object = select<ObjectEffect>();
    QTest::mousePress(&view, Qt::LeftButton, {}, {150, 150});
    for (int x = 160; x <= 250; x += 10)
        QTest::mouseMove(&view, {x, 150});
    QTest::mouseRelease(&view, Qt::LeftButton, {}, {250, 150});
    EXPECT_EQ(object->objectRotation()[0], 100);
    EXPECT_EQ(object->objectRotation()[1], 0);
    EXPECT_EQ(at(frame(), 0.613, 0), 'w') << "the pole, 50 degrees to the right";
    QTest::mouseMove(&view, {300, 150});
    EXPECT_EQ(object->objectRotation()[0], 100) << "only while the button is held";

    EXPECT_EQ(undo.undoActionName(), "Rotate");
    undo.undo();
    EXPECT_EQ(object->objectRotation()[0], 0);
    EXPECT_FALSE(undo.canUndo());
    undo.redo();
    EXPECT_EQ(object->objectRotation()[0], 100);

    QTest::mousePress(&view, Qt::LeftButton, {}, {150, 100});
    QTest::mouseMove(&view, {150, 140}); // down
    QTest::mouseRelease(&view, Qt::LeftButton, {}, {150, 140});
    EXPECT_EQ(object->objectRotation()[1], 40);
}

TEST_F(ViewTest, TheSurfaceCountsADragLikeTheBodies)
{
    const auto surface = select<EvalEffect>();
    QTest::mousePress(&view, Qt::LeftButton, {}, {150, 150});
    QTest::mouseMove(&view, {250, 150});
    QTest::mouseRelease(&view, Qt::LeftButton, {}, {250, 150});
    EXPECT_EQ(surface->objectRotation()[0], 190);
    EXPECT_EQ(surface->objectRotation()[1], -45);
    undo.undo();
    EXPECT_EQ(surface->objectRotation()[0], 90);
}

TEST_F(ViewTest, ArrowKeysTurnInOneUndoStepAsLongAsTheyAreHeld)
{
    const auto object = select<ObjectEffect>();
    QTest::keyPress(&view, Qt::Key_Right);
    QTest::keyPress(&view, Qt::Key_Right);
    QTest::keyPress(&view, Qt::Key_Down);
    QTest::keyRelease(&view, Qt::Key_Down);
    EXPECT_EQ(object->objectRotation()[0], 20);
    EXPECT_EQ(object->objectRotation()[1], 10);
    QTest::keyClick(&view, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(object->objectRotation()[0], -70);
    undo.undo();
    EXPECT_EQ(object->objectRotation()[0], 20);
    undo.undo();
    EXPECT_EQ(object->objectRotation()[0], 0);
    EXPECT_FALSE(undo.canUndo());
}

TEST_F(ViewTest, WithoutAnEffectMouseAndKeysDoNothing)
{
    QTest::mouseClick(&view, Qt::LeftButton);
    QTest::mouseClick(&view, Qt::RightButton);
    QTest::keyClick(&view, Qt::Key_Left);
    EXPECT_FALSE(undo.canUndo());
    EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ViewTest, ShowsAChangeThatIsAnnounced)
{
    const auto object = select<ObjectEffect>();
    view.redraw();
    const auto middle = [this] {
        const QImage grabbed = view.grab().toImage();
        return letterOf(grabbed.pixel(grabbed.rect().center()));
    };
    EXPECT_EQ(middle(), 'w');
    object->setPositionUNDO(0, 180); // posts the notification
    EXPECT_NE(middle(), 'w');
}

TEST_F(ViewTest, TheSheetHasThePicturesProportions)
{
    ThreeDStage stage;
    stage.resize(832, 632);
    const MyOGLView& sheet = *stage.openGLView();
    stage.setProportions({4000, 1000}, false);
    EXPECT_EQ(sheet.size(), QSize(800, 200));
    stage.setProportions({4000, 1000}, true);
    EXPECT_EQ(sheet.size(), QSize(800, 400)) << "room for a body";
    stage.setProportions({100, 1000}, true);
    EXPECT_EQ(sheet.size(), QSize(300, 600));
    stage.setProportions({}, false);
    EXPECT_EQ(sheet.size(), QSize(800, 599));
}

TEST(StageTest, WithoutOpenGLSaysSoAndTheRestWorks)
{
    ThreeDStage stage;
    MyOGLView& view = *stage.openGLView();
    if (view.isUsable())
        GTEST_SKIP() << "this machine has OpenGL";
    stage.resize(400, 300);
    stage.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&stage));
    const auto* note = stage.findChild<QLabel*>();
    ASSERT_TRUE(note);
    EXPECT_TRUE(note->isVisible());
    EXPECT_FALSE(view.isVisible());
    EXPECT_TRUE(view.ogl_shot().isNull());
    EXPECT_TRUE(view.ogl_shot_CI().isNull());
    view.redraw();
    EXPECT_FALSE(stage.grab().toImage().isNull());
}

} // namespace
