// Transitions: where they start and end, and their laws in between.
#include "tests/coreimage/Colors.h"

using namespace pictures;

namespace {

const CIRect kPicture{0, 0, 90, 60};

CIBitmap picture() { return noise8(90, 60); }
CIImage target()
{
    CIBitmap other(90, 60, CIFormat::RGBA8, CIAlpha::Opaque);
    for (int y = 0; y < 60; ++y) {
        const auto row = other.mutableRow<std::uint8_t>(y);
        for (std::size_t i = 0; i < row.size(); ++i)
            row[i] = i % 4 == 3 ? 255 : std::uint8_t(2 * i + std::size_t(y));
    }
    return CIImage::fromBitmap(other);
}

std::shared_ptr<CIFilter> transition(const std::string& name, double time)
{
    auto made = filter(name, CIImage::fromBitmap(picture()));
    made->setValueForKey(target(), "inputTargetImage");
    made->setValueForKey(time, "inputTime");
    if (made->attributesForKey("inputExtent"))
        made->setValueForKey(CIVector(kPicture), "inputExtent");
    return made;
}

} // namespace

TEST(Transitions, LeadFromOnePictureToTheOther)
{
    const CIBitmap first = rendered(CIImage::fromBitmap(picture()), kPicture), last = rendered(target(), kPicture);
    for (const std::string name : {"Dissolve", "Swipe", "CopyMachine", "BarsSwipe", "Mod", "Flash", "Ripple",
             "PageCurl", "PageCurlWithShadow", "AccordionFold", "DisintegrateWithMask"}) {
        SCOPED_TRACE(name);
        const auto at = [&](double time) {
            const auto f = transition("CI" + name + "Transition", time);
            if (f->attributesForKey("inputShadingImage"))
                f->setValueForKey(CIValue(), "inputShadingImage");
            return rendered(f->outputImage(), kPicture);
        };
        EXPECT_LT(difference(at(0), first).largest, 1e-4);
        EXPECT_LT(difference(at(1), last).largest, 1e-4);
        const CIBitmap middle = at(0.5);
        EXPECT_GT(difference(middle, first).mean, 1e-3);
        EXPECT_GT(difference(middle, last).mean, 1e-3);
    }
}

TEST(BarsSwipe, SlidesEachBarByTheSquareOfItsLead)
{
    // Angle 0: bars side by side, 30 px wide, three of them; sliding up the picture shows what lies above.
    const auto f = transition("CIBarsSwipeTransition", 0.5);
    f->setValueForKey(0.0, "inputAngle");
    f->setValueForKey(2.0, "inputBarOffset");
    const double lead = 0.5 * (2 * 2 + std::sqrt(60)); // of the last bar's, which has to clear 60 px
    const CIBitmap source = rendered(CIImage::fromBitmap(picture()), kPicture),
                   out = rendered(f->outputImage(), kPicture);
    for (const int bar : {0, 1}) {
        const double shift = (lead - 2 * bar) * (lead - 2 * bar), part = shift - std::floor(shift);
        const int x = 30 * bar + 7, y = 4, from = y + int(shift);
        const double expected = (1 - part) * double(at(source, x, from, 1)) + part * double(at(source, x, from + 1, 1));
        EXPECT_NEAR(at(out, x, y, 1), expected, 1e-3) << bar;
    }
}

TEST(PageCurl, RollsThePageOverACylinder)
{
    // Angle 0, the line at x = 60: rolled paper up to 40 px beyond, its end upside down on the flat part.
    CIBitmap page = picture();
    const auto f = transition("CIPageCurlTransition", 0.6);
    f->setValueForKey(10.0, "inputRadius");
    f->setValueForKey(CIValue(), "inputShadingImage");
    f->setValueForKey(CIImage::fromBitmap(page), "inputBacksideImage");
    const CIBitmap source = rendered(CIImage::fromBitmap(page), kPicture), out = rendered(f->outputImage(), kPicture);
    const CIBitmap below = rendered(target(), kPicture);
    for (int c = 0; c < 3; ++c)
        EXPECT_NEAR(at(out, 30, 20, c), at(below, 30, 20, c), 1e-5); // passed
    const double place = 60 - (10 * M_PI + (70.5 - 60)); // of the sheet that lies on x = 70.5
    const int left = int(std::floor(place - 0.5));
    const double part = place - 0.5 - left;
    const double expected = (1 - part) * double(at(source, left, 20, 0)) + part * double(at(source, left + 1, 20, 0));
    EXPECT_NEAR(at(out, 70, 20, 0), expected, 1e-3);
}
