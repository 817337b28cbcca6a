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
    made->setValueForKey(30, "inputWidth"); // less than the picture, for those that have one
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
