#include "effects2d/hilbertLinesEffect.h"
#include "effects2d/linesEffect.h"
#include "effects2d/patMorphingEffect.h"
#include "effects2d/simpleEffects.h"
#include "tests/effects2d/EffectFixture.h"

#include <cmath>

namespace {

using quartz::Figure;

int count(const std::vector<Figure>& figures, Figure::Kind kind)
{
    return int(std::ranges::count(figures, kind, &Figure::kind));
}

void expectColor(const QColor& color, const double* u)
{
    EXPECT_NEAR(color.redF(), u[0], 1e-4);
    EXPECT_NEAR(color.greenF(), u[1], 1e-4);
    EXPECT_NEAR(color.blueF(), u[2], 1e-4);
    EXPECT_NEAR(color.alphaF(), u[3], 1e-4);
}

TEST(SimpleObjects, TakeTheirRandomNumbersAndDrawTheirFigures)
{
    struct {
        int kind, objects;
        long calls;
        int figures;
    } const cases[] = {
        {0, 30, 255, 30}, // 8 numbers a rectangle, one more for each that is stroked
        {1, 30, 255, 30},
        {3, 30, 315, 30}, // 10 numbers a triangle
        {4, 30, 1200, 720}, // 4 flowers an object, with 5 petals and a heart
        {5, 30, 1920, 240}, // 8 balls an object
        {6, 30, 60, 150}, // a ray of 10 lights for two objects
        {6, 10, 20, 50},
        {6, 1, 0, 0},
        {7, 30, 180, 60}, // a square and its frame
        {8, 30, 0, 0}, // unknown kinds
        {-1, 30, 0, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.kind);
        Working<simpleEffects> effect(kSimple);
        effect->setObjectMode(c.kind);
        effect->seObjectCount(c.objects);
        EXPECT_EQ(randomCalls([&] { effect->initEffect(); }), c.calls);
        EXPECT_EQ(int(effect.figures().size()), c.figures);
        EXPECT_EQ(effect->effectImage()->size(), QSizeF(726, 544));
    }
}

TEST(SimpleObjects, FillAndStrokeRectanglesInTurn)
{
    Working<simpleEffects> effect(kSimple);
    effect.draw();
    const std::vector<double> u = firstUniforms(17);
    std::srand(1);
    for (int i = 0; i < 12; ++i)
        std::rand();
    const int width = std::rand() % 10 + 2;

    const Figure& filled = effect.figures()[0];
    EXPECT_EQ(filled.kind, Figure::Kind::FillRect);
    expectColor(QColor(filled.color), &u[0]);
    EXPECT_EQ(filled.rect,
        QRectF(QPointF(726 * u[4], 544 * u[5]), QSizeF(726 * (u[6] - u[4]), 544 * (u[7] - u[5]))).normalized());
    const Figure& stroked = effect.figures()[1];
    EXPECT_EQ(stroked.kind, Figure::Kind::StrokePath);
    expectColor(QColor(stroked.color), &u[8]);
    EXPECT_EQ(stroked.lineWidth, width);
    EXPECT_EQ(count(effect.figures(), Figure::Kind::StrokePath), 15);
}

TEST(SimpleObjects, TakeTheEndsOfCurvesYFirst)
{
    Working<simpleEffects> effect(kSimple);
    effect->setObjectMode(2);
    effect.draw();
    std::srand(1);
    const int last = std::rand() % 8;
    const std::vector<double> u = firstUniforms(11);
    const QPainterPath& path = effect.figures()[0].path;
    EXPECT_EQ(QPointF(path.elementAt(0)), QPointF(726 * u[1], 544 * u[2]));
    EXPECT_EQ(QPointF(path.elementAt(1)), QPointF(726 * u[4], 544 * u[3])); // a line
    ASSERT_GE(last, 1);
    EXPECT_EQ(QPointF(path.elementAt(2)), QPointF(726 * u[7], 544 * u[8])); // first control point
    EXPECT_EQ(QPointF(path.elementAt(3)), QPointF(726 * u[9], 544 * u[10]));
    EXPECT_EQ(QPointF(path.elementAt(4)), QPointF(726 * u[6], 544 * u[5]));
    EXPECT_EQ(path.fillRule(), Qt::WindingFill);
}

TEST(SimpleObjects, LetCirclesReachBeyondTheirRectangle)
{
    Working<simpleEffects> effect(kSimple);
    effect->setObjectMode(1);
    effect.draw();
    const std::vector<double> u = firstUniforms(4);
    const double radius = std::min(726 * std::abs(u[2] - u[0]), 544 * std::abs(u[3] - u[1]));
    const QRectF bounds = effect.figures()[0].path.boundingRect();
    EXPECT_NEAR(bounds.width(), 2 * radius, 0.01 * radius);
    EXPECT_NEAR(bounds.center().x(), 726 * (u[0] + u[2]) / 2, 0.01);
}

TEST(SimpleObjects, LeaveAGapBetweenPetals)
{
    Working<simpleEffects> effect(kSimple);
    effect->setObjectMode(4);
    effect.draw();
    const std::vector<double> u = firstUniforms(10);
    const QPointF center(726 * u[0], 544 * u[1]);
    const auto petal = [&](int i) { return effect.figures()[std::size_t(i)].path.boundingRect(); };
    EXPECT_NEAR(petal(0).left() - center.x(), 7.26, 1e-4);
    EXPECT_NEAR(petal(4).top() - center.y(), 7.26 * std::sin(300 * M_PI / 180), 1e-4);
    EXPECT_NEAR(petal(5).left(), center.x(), 1e-4);
    EXPECT_NEAR(petal(5).width(), 7.26, 1e-4);
    expectColor(QColor(effect.figures()[4].color), &u[2]);
    expectColor(QColor(effect.figures()[5].color), &u[6]);
}

TEST(SimpleObjects, GrowBallsWithTheirDistance)
{
    Working<simpleEffects> effect(kSimple);
    effect->setObjectMode(5);
    effect.draw();
    const std::vector<double> u = firstUniforms(2);
    std::srand(1);
    for (int i = 0; i < 6; ++i)
        std::rand();
    const double x = double(random() % 726), y = double(random() % 726);
    const double distance = std::hypot(x - 726 * u[0], y - 544 * u[1]);
    EXPECT_NEAR(effect.figures()[0].path.boundingRect().width(), distance / 10, 1e-3);
}

TEST(SimpleObjects, AddUpTheTurnsOfSquares)
{
    Working<simpleEffects> effect(kSimple);
    effect->setObjectMode(7);
    effect.draw();
    const Figure& fourth = effect.figures()[6];
    EXPECT_NEAR(fourth.transform.m12(), std::sin(6 * M_PI / 180), 1e-9); // 0 + 1 + 2 + 3 degrees
    EXPECT_NEAR(fourth.transform.map(QPointF(363, 272)).x(), 363, 1e-9);
    EXPECT_EQ(effect.figures()[0].rect, QRectF(363 - 726, 272 - 726, 1452, 1452));
    EXPECT_NEAR(effect.figures()[58].rect.width(), 1452 - 29 * 2 * 721.0 / 30, 0.01);
    const QImage drawn = effect->effectImage()->rendered(quartz::Part::whole({726, 544}));
    EXPECT_EQ(drawn.pixelColor(363, 272), QColor(effect.figures()[58].color));
}

TEST(Lines, StartAtTheAnchorOfTheReducedCanvas)
{
    Working<linesEffect> effect(kLines);
    EXPECT_EQ(randomCalls([&] { effect->initEffect(); }), 3000);
    EXPECT_EQ(effect->imageZoom(), 200.0f / 544.0f);
    EXPECT_EQ(effect.image().size(), QSize(266, 199));
    EXPECT_EQ(effect.figures()[0].rect, QRectF(0, 0, 726, 544));
    EXPECT_EQ(effect->startPoint(), (CIPoint{133, 99.5}));

    quartz::Drawing small(QSizeF(266, 199));
    quartz::Context context(small);
    const std::vector<double> u = firstUniforms(6);
    std::srand(1);
    effect->drawMyself(context, {0, 0, 266, 199});
    ASSERT_EQ(small.figures().size(), 500u);
    const Figure& line = small.figures()[0];
    EXPECT_EQ(line.kind, Figure::Kind::StrokeLine);
    expectColor(QColor(line.color), u.data());
    const double z = effect->imageZoom();
    EXPECT_EQ(line.line, QLineF(133 * z, 99.5 * z, int(266 * u[4]), int(199 * u[5])));
    EXPECT_EQ(line.lineWidth, 1);
}

TEST(Lines, KeepTheScaleOfALargerPictureForASmallOne)
{
    FakeEffectMaster master;
    Working<linesEffect> effect(kLines);
    master.picture = plainPicture(150, 180, 0xff808080);
    effect->initEffect();
    EXPECT_EQ(effect.image().size(), QSize(150, 180));
    master.picture = plainPicture(400, 800, 0xff808080);
    effect->reloadImage();
    EXPECT_EQ(effect.image().size(), QSize(200, 400));
    master.picture = plainPicture(150, 180, 0xff808080);
    effect->reloadImage();
    EXPECT_EQ(effect.image().size(), QSize(75, 90));
    EXPECT_EQ(effect->effectImage()->size(), QSizeF(150, 180));
}

TEST(HilbertLines, FoldOneUnbrokenCurve)
{
    Working<hilbertLinesEffect> effect(kHilbert);
    EXPECT_EQ(randomCalls([&] { effect->initEffect(); }), 21844);
    const auto& figures = effect.figures();
    ASSERT_EQ(figures.size(), 16383u);
    EXPECT_EQ(figures[0].line.p1(), QPointF(-494, -585)); // half a step inside a square of 1726 around the canvas
    for (std::size_t i = 0; i < figures.size(); ++i) {
        ASSERT_EQ(figures[i].line.length(), 13);
        ASSERT_TRUE(i == 0 || figures[i].line.p1() == figures[i - 1].line.p2()) << i;
    }
    EXPECT_EQ(figures.back().line.p2(), QPointF(-494 + 127 * 13, -585));
    EXPECT_EQ(figures[0].lineWidth, 7.5);
    // Seven nested calls have picked a color before the first segment, the eighth runs before the fourth.
    const std::vector<double> u = firstUniforms(32);
    expectColor(QColor(figures[0].color), &u[24]);
    expectColor(QColor(figures[2].color), &u[24]);
    expectColor(QColor(figures[3].color), &u[24]);
    expectColor(QColor(figures[4].color), &u[28]);
}

TEST(HilbertLines, DrawAsManySegmentsAsTheLevelAsks)
{
    Working<hilbertLinesEffect> effect(kHilbert);
    effect->setLinesLevel(3);
    effect->initEffect();
    EXPECT_EQ(effect.figures().size(), 63u);
    EXPECT_EQ(effect.figures()[0].line.length(), 1726 / 8);
    effect->setLinesLevel(0);
    effect->makeImageEffect();
    EXPECT_TRUE(effect.figures().empty());
}

TEST(PatternMorphing, TurnsEllipsesAroundTheAnchor)
{
    Working<patMorphingEffect> effect(kMorphing); // its springs rest where the first four numbers put them
    EXPECT_EQ(effect->proportion(), 0);
    const std::vector<double> u = firstUniforms(8);
    const float height = float(u[1] * 195 + 25), offsetX = float(u[2] * 20), offsetY = float(u[3] * 20);
    effect->setProportin(0.5);
    effect->setPatCount(4);
    EXPECT_EQ(randomCalls([&] { effect->initEffect(); }), 0);
    ASSERT_EQ(effect.figures().size(), 4u);
    EXPECT_EQ(effect->startPoint(), (CIPoint{363, 272}));
    const Figure& first = effect.figures()[0];
    const QRectF ellipse = first.path.boundingRect();
    EXPECT_NEAR(ellipse.left(), offsetX, 1e-6);
    EXPECT_NEAR(ellipse.top(), offsetY, 1e-6);
    EXPECT_NEAR(ellipse.width(), height / 2, 1e-6);
    EXPECT_NEAR(ellipse.height(), height, 1e-6);
    EXPECT_EQ(first.transform, QTransform::fromTranslate(363, 272));
    const QRectF quarterTurn = effect.figures()[1].path.boundingRect();
    EXPECT_NEAR(quarterTurn.right(), -offsetY, 1e-6);
    EXPECT_NEAR(quarterTurn.top(), offsetX, 1e-6);

    // A spring at rest moves to three quarters of (half of) the way, and on by three quarters of its speed.
    std::srand(1);
    effect->regenerate(nullptr);
    const float target = float(u[1] * 495 + 25);
    const float moved = height + (target - height) * 0.5f * 0.75f;
    EXPECT_NEAR(effect.figures()[0].path.boundingRect().height(), moved, 1e-3);
    EXPECT_EQ(randomCalls([&] { effect->regenerate(nullptr); }), 4);

    // The springs are shared: another copy resets them.
    std::srand(1);
    const std::shared_ptr<BaseEffect> other = effect->mycopy();
    effect->makeImageEffect();
    EXPECT_NEAR(effect.figures()[0].path.boundingRect().height(), height, 1e-3);
}

} // namespace
