#include "tests/controls/ImageViewFixture.h"

namespace {

FrameRequest wholeOf(const CIImage& image, int width, int height) { return {image, 1, 0, height, {width, height}}; }

/// A picture that takes long: turned again and again.
CIImage slow(int turns)
{
    CIImage image = pattern(1200, 900);
    for (int i = 0; i < turns; ++i)
        image = image.transformed(CIAffineTransform::rotation(i % 2 ? 0.01 : -0.01));
    return image;
}

} // namespace

TEST(FrameRenderer, HandsOutEachFrameOnce)
{
    FrameRenderer renderer(std::make_shared<CIContext>());
    const FrameRequest request = wholeOf(pattern(20, 10), 20, 10);
    renderer.request(request);
    ASSERT_TRUE(renderer.waitForFrame(5000));
    const auto frame = renderer.takeFrame();
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->request, request);
    EXPECT_EQ(frame->pixels.size(), QSize(20, 10));
    EXPECT_LE(difference(frame->pixels.pixelColor(3, 9), patternColor(3, 0)), 1) << "the lowest row is row 0";
    EXPECT_FALSE(renderer.takeFrame());
    renderer.request(request);
    EXPECT_FALSE(renderer.takeFrame()) << "the same request isn't rendered again";
}

TEST(FrameRenderer, RendersTheNewestRequestAndDropsTheRest)
{
    FrameRenderer renderer(std::make_shared<CIContext>());
    FrameRequest last;
    for (int i = 0; i < 50; ++i) {
        last = wholeOf(pattern(600, 400 + i), 600, 400 + i);
        renderer.request(last);
    }
    ASSERT_TRUE(renderer.waitForFrame(10000));
    const auto frame = renderer.takeFrame();
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->request, last);
    EXPECT_EQ(frame->divisor, 1);
}

TEST(FrameRenderer, FramesKeepTheirPixelsWhileLaterOnesAreRendered)
{
    FrameRenderer renderer(std::make_shared<CIContext>());
    std::vector<Frame> frames;
    for (int i = 0; i < 6; ++i) {
        const CIImage one = CIImage::fromColor(CIColor(i / 5.0, 0, 0));
        renderer.request(wholeOf(one, 64, 64));
        ASSERT_TRUE(renderer.waitForFrame(5000));
        frames.push_back(*renderer.takeFrame());
    }
    for (int i = 0; i < 6; ++i)
        EXPECT_NEAR(frames[i].pixels.pixelColor(5, 5).red(), 51 * i, 1);
}

TEST(FrameRenderer, ShowsACoarseFrameOfASlowPictureFirst)
{
    FrameRenderer renderer(std::make_shared<CIContext>());
    const CIImage image = slow(20);
    renderer.request(wholeOf(image, 1200, 900));
    std::vector<int> divisors;
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 60000 && (divisors.empty() || divisors.back() > 1)) {
        QTest::qWait(5); // the event loop runs on
        if (const auto frame = renderer.takeFrame()) {
            divisors.push_back(frame->divisor);
            EXPECT_EQ(frame->left, 0);
            EXPECT_GE(frame->pixels.width() * frame->divisor, 1200);
        }
    }
    ASSERT_GE(divisors.size(), 2u);
    EXPECT_GT(divisors.front(), 1);
    EXPECT_EQ(divisors.back(), 1);
}

TEST(FrameRenderer, EndsWhileARenderIsUnderWay)
{
    CIImage image = slow(4000); // minutes, to the end
    const std::weak_ptr<const ci::Node> picture = image.node();
    {
        FrameRenderer renderer(std::make_shared<CIContext>());
        renderer.request(wholeOf(std::exchange(image, {}), 1200, 900));
        QTest::qWait(30);
        EXPECT_FALSE(picture.expired());
    }
    EXPECT_TRUE(picture.expired()) << "nobody works on it any more";
}
