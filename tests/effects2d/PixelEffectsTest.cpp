#include "effects2d/flareEffect.h"
#include "effects2d/patchWorkEffect.h"
#include "effects2d/plasmaEffect.h"
#include "effects2d/sketchEffect.h"
#include "platform/coreimage/CIContext.h"
#include "tests/effects2d/EffectFixture.h"

#include <cmath>

namespace {

double uniform() { return (std::rand() & 0x7FFF) / 32767.0; }

/// The same patches, byte by byte, with the random numbers taken as they come.
std::vector<std::uint8_t> slowPatches(int side)
{
    std::vector<std::uint8_t> bytes(std::size_t(side) * side * 3);
    bytes[2] = 255;
    for (int i = 1; i < side * side; ++i) {
        const int c = ~int(uniform() * 16777216.0);
        for (int k = 0; k < 3; ++k)
            bytes[std::size_t(i) * 3 + k] = std::uint8_t(c >> (16 - 8 * k));
    }
    const int passes = int(uniform() * 13000.0 + 7000.0);
    int column = 0;
    for (long step = 0; step < long(passes) * (side - 1); ++step) {
        const int row = int(uniform() * (side - 3));
        const int toColumn = column + int(uniform() * 3.0);
        const int toRow = row + int(uniform() * 3.0);
        for (int k = 0; k < 3; ++k)
            bytes[std::size_t(toRow * side + toColumn) * 3 + k] = bytes[std::size_t(row * side + column) * 3 + k];
        column = row;
    }
    return bytes;
}

TEST(PatchWorks, SpreadExactlyTheirNoise)
{
    FakeEffectMaster master;
    for (const auto& [size, side] : {std::pair(QSize(31, 90), 31), std::pair(QSize(726, 544), 200)}) {
        SCOPED_TRACE(side);
        master.picture = plainPicture(size.width(), size.height(), 0xff808080);
        Working<patchWorkEffect> effect(kPatchWork);
        effect.draw();
        EXPECT_EQ(effect->effectImage()->size(), QSizeF(size));
        EXPECT_EQ(effect.figures()[0].rect, QRectF(QPointF(0, 0), size));
        const QImage image = effect.image();
        ASSERT_EQ(image.size(), QSize(side, side));
        EXPECT_EQ(image.pixel(0, 0), 0xff0000ffu);
        std::srand(1);
        const std::vector<std::uint8_t> twin = slowPatches(side);
        int different = 0;
        for (int i = 0; i < side * side; ++i)
            different += image.pixel(i % side, i / side)
                != qRgb(twin[std::size_t(i) * 3], twin[std::size_t(i) * 3 + 1], twin[std::size_t(i) * 3 + 2]);
        EXPECT_EQ(different, 0);
    }
}

TEST(PatchWorks, StayInsideTinySquares)
{
    FakeEffectMaster master;
    for (int side = 1; side <= 4; ++side) {
        master.picture = plainPicture(side, side, 0xff808080);
        Working<patchWorkEffect> effect(kPatchWork);
        effect.draw();
        EXPECT_EQ(effect.image().size(), QSize(side, side));
    }
}

TEST(Plasma, SumsFourWavesAChannel)
{
    Working<plasmaEffect> effect(kPlasma);
    EXPECT_EQ(randomCalls([&] { (void)effect->mycopy(); }), 12);
    EXPECT_EQ(randomCalls([&] { effect->initEffect(); }), 24);
    const QImage image = effect.image();
    ASSERT_EQ(image.size(), QSize(544, 544));
    EXPECT_EQ(effect.figures()[0].rect, QRectF(0, 0, 726, 544));

    // Phases: all twelve are set, then all move, two of the four waves backwards.
    int phase[3][2][2];
    const std::vector<double> u = firstUniforms(24);
    for (int i = 0; i < 12; ++i) {
        const int wave = i / 6, axis = i / 3 % 2, channel = i % 3;
        const int step = int(std::lround(2 * u[std::size_t(i) + 12])) + 2;
        const int start = int(std::lround(512 * u[std::size_t(i)]));
        phase[channel][axis][wave] = wave == axis ? (start - step + 720) % 720 : (start + step) % 720;
    }
    const auto height = [](int i, double amplitude, int period) {
        return int(std::sin(i * 6.28318531 / period) * amplitude + amplitude);
    };
    const auto component = [&](int channel, int x, int y) {
        const auto& p = phase[channel];
        int v = height(p[0][0] + x, 100, 720) + height(p[0][1] + x, 64, 360) + height(p[1][0] + y, 100, 720)
            + height(p[1][1] + y, 64, 360);
        while (v > 255)
            v = v >= 511 ? v - 511 : 511 - v;
        return (v < 202 ? v : 4 * v - 603) * 255 / 417;
    };
    for (const QPoint p : {QPoint(0, 0), QPoint(543, 0), QPoint(17, 400), QPoint(300, 301), QPoint(543, 543)})
        EXPECT_EQ(
            image.pixel(p), qRgb(component(0, p.x(), p.y()), component(1, p.x(), p.y()), component(2, p.x(), p.y())))
            << p.x() << ' ' << p.y();
    const QImage before = image.copy();
    effect->regenerate(nullptr);
    EXPECT_NE(effect.image(), before);
}

TEST(Plasma, IsAtMost600PixelsWide)
{
    FakeEffectMaster master;
    master.picture = plainPicture(2000, 1500, 0xff808080);
    Working<plasmaEffect> effect(kPlasma);
    effect.draw();
    EXPECT_EQ(effect.image().size(), QSize(600, 600));
    EXPECT_EQ(effect->effectImage()->size(), QSizeF(2000, 1500));
}

TEST(Flare, IsWhiteAtItsAnchorAndFadesOut)
{
    Working<flareEffect> effect(kFlare);
    EXPECT_EQ(randomCalls([&] { effect->initEffect(); }), 60);
    ASSERT_EQ(effect.image().size(), QSize(200, 149));
    EXPECT_EQ(effect->startPoint(), (CIPoint{100, 74.5}));
    effect->setStartPoint({363, 272});
    std::srand(1);
    effect->makeImageEffect();
    const QImage image = effect.image();
    EXPECT_EQ(image.pixel(100, 148 - 74), 0xffffffffu); // 363 x 150 / 544, 272 x 150 / 544, down to whole pixels
    // On the line of a spike, halfway along it: a quarter of white, and what the next spike adds.
    const std::vector<int> r = [] {
        std::srand(1);
        std::vector<int> numbers(60);
        for (int& n : numbers)
            n = int(random());
        return numbers;
    }();
    int longest = 0;
    for (int k = 1; k < 29; ++k)
        longest = r[std::size_t(2 * k + 1)] > r[std::size_t(2 * longest + 1)] ? k : longest;
    const double sector = 2 * M_PI / 30;
    const double angle = longest * sector + sector / 2 * (r[std::size_t(2 * longest)] / 2147483647.0);
    const double length = std::min(149.0, (r[std::size_t(2 * longest + 1)] / 2147483647.0 + 0.2) * 149);
    const int x = 100 + int(std::lround(length / 2 * std::cos(angle)));
    const int y = 74 + int(std::lround(length / 2 * std::sin(angle)));
    if (image.rect().contains(x, 148 - y)) {
        EXPECT_GT(qRed(image.pixel(x, 148 - y)), 45);
        EXPECT_LT(qRed(image.pixel(x, 148 - y)), 135);
    }
}

TEST(Flare, IsBlackFartherAwayThanTheShorterSide)
{
    Working<flareEffect> effect(kFlare);
    effect->setStartPoint({0, 0});
    effect.draw();
    EXPECT_EQ(effect.image().pixel(0, 148), 0xffffffffu);
    EXPECT_EQ(effect.image().pixel(199, 0), 0xff000000u);
}

TEST(Flare, KeepsItsPixelsWhenDrawnOnItsCanvas)
{
    Working<flareEffect> effect(kFlare);
    effect.draw();
    quartz::Drawing small(QSizeF(200, 149));
    quartz::Context context(small);
    std::srand(1);
    effect->drawMyself(context, {0, 0, 200, 149});
    EXPECT_EQ(small.rendered(quartz::Part::whole(small.size())).convertToFormat(QImage::Format_RGB32),
        effect.image().convertToFormat(QImage::Format_RGB32));
    EXPECT_EQ(small.figures()[0].image, effect.image().convertToFormat(QImage::Format_RGB32));
    effect->setLinesCount(0); // from a damaged favourite
    effect->makeImageEffect();
    EXPECT_EQ(effect.image().size(), QSize(200, 149));
}

TEST(Sketch, IsWhiteWhereNothingChangesAndDarkAtEdges)
{
    FakeEffectMaster master;
    Working<sketchEffect> effect(kSketch);
    EXPECT_TRUE(effect->getDrawImage().isNull());
    EXPECT_TRUE(effect->drawPart(quartz::Part::whole({20, 20})).isNull());

    CIBitmap bitmap(200, 120, CIFormat::BGRA8, CIAlpha::Opaque);
    for (int y = 0; y < 120; ++y)
        for (int x = 0; x < 200; ++x)
            bitmap.mutableRow<std::uint32_t>(y)[std::size_t(x)] = x < 100 ? 0xff402010 : 0xffe0c0a0;
    master.picture = CIImage::fromBitmap(bitmap);
    EXPECT_EQ(randomCalls([&] { effect->reloadImage(); }), 0);
    const CIImage sketch = effect->getDrawImage();
    EXPECT_EQ(sketch.extent(), (CIRect{0, 0, 200, 120}));
    const QImage shown = effect->drawPart(quartz::Part::whole({200, 120}));
    EXPECT_GT(qGreen(shown.pixel(160, 60)), 245);
    EXPECT_LT(qGreen(shown.pixel(97, 60)), 160); // the dark side of the edge
    EXPECT_NEAR(qRed(shown.pixel(97, 60)), qBlue(shown.pixel(97, 60)), 1);
}

} // namespace
