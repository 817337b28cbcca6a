// Every filter with each of its numbers at both ends of its range, on all kinds of pictures, away from the origin.
#include "platform/coreimage/Declaration.h"
#include "tests/coreimage/Pictures.h"

#include <gtest/gtest.h>

using namespace pictures;

namespace {

constexpr double kX = 200, kY = -300; // where pictures lie; even, so that halved cells cover whole ones

struct Source {
    const char* name;
    CIImage image;
    CIRect view; // beyond it on all sides
};

Source source(const char* name, const CIBitmap& bitmap)
{
    const CIImage image = CIImage::fromBitmap(bitmap).transformed(CIAffineTransform::translation(kX, kY));
    return {name, image, image.extent().grown(9)};
}

std::vector<Source> sources()
{
    Source empty = source("empty", noise(40, 28)), infinite = source("infinite", noise(40, 28));
    empty.image = empty.image.cropped({0, 0, 0, 0});
    infinite.image = CIImage::fromColor(CIColor(0.8, 0.5, 0.2, 0.5));
    return {source("opaque", smooth(40, 28)), source("half transparent", noise(40, 28)), empty, infinite};
}

/// The filter on a picture, with what lies on pictures in its middle.
std::shared_ptr<CIFilter> onPicture(const std::string& name, const CIImage& image, CIPoint middle)
{
    const auto made = filter(name, image);
    for (const std::string& key : made->inputKeys())
        if (made->attributesForKey(key)->kind == InputKind::Position && key == "inputCenter")
            made->setValueForKey(CIVector(middle), key);
    return made;
}

/// Calls `look` with the defaults, and with each number at its least and its greatest.
template <class Look>
void atEnds(CIFilter& filter, Look look)
{
    look("defaults");
    for (const std::string& key : filter.inputKeys()) {
        const CIInputAttributes& input = *filter.attributesForKey(key);
        if (!input.isNumber())
            continue;
        const CIValue before = filter.valueForKey(key);
        for (const auto& end : {input.min ? input.min : input.sliderMin, input.max ? input.max : input.sliderMax})
            if (end) {
                filter.setValueForKey(*end, key);
                look(key + " " + std::to_string(*end));
            }
        filter.setValueForKey(before, key);
    }
}

/// Empty when all numbers are finite and no cell outside the extent is seen.
std::string faultOf(const CIBitmap& out, const CIRect& view, const CIRect& extent, double scale)
{
    const double left = std::floor(view.left() * scale), low = std::floor(view.bottom() * scale);
    for (int y = 0; y < out.height(); ++y)
        for (int x = 0; x < out.width(); ++x)
            for (int c = 0; c < 4; ++c) {
                const CIRect cell{(left + x) / scale, (low + y) / scale, 1 / scale, 1 / scale};
                const float v = at(out, x, y, c);
                const std::string place = " at " + std::to_string(x) + ", " + std::to_string(y);
                if (!std::isfinite(v))
                    return "not finite" + place;
                if (v != 0 && cell.intersected(extent).isEmpty())
                    return "outside the extent" + place;
            }
    return {};
}

class Ends : public testing::TestWithParam<std::string> { };

TEST_P(Ends, OfRangesLeaveNumbersWithinTheExtentAndAlikeInBatches)
{
    const float tolerance = ci::findDeclaration(GetParam())->tolerance;
    for (const Source& s : sources()) {
        const auto f = onPicture(GetParam(), s.image, s.view.center());
        atEnds(*f, [&](const std::string& which) {
            SCOPED_TRACE(std::string(s.name) + ", " + which);
            const CIImage image = f->outputImage();
            if (image.isNull())
                return;
            for (const double scale : {1.0, 0.5, 0.1}) {
                const CIBitmap out = rendered(image, s.view, scale);
                EXPECT_EQ(faultOf(out, s.view, image.extent(), scale), "") << "scale " << scale;
                if (scale == 0.5) {
                    const Difference apart =
                        difference(out, rendered(image, s.view, scale, CIContext::Arithmetic::Floats));
                    EXPECT_LE(apart.mean, 5 * tolerance);
                }
            }
        });
    }
}

TEST_P(Ends, OfRangesLookAlikeAtHalfTheScale)
{
    if (ci::findDeclaration(GetParam())->boundToPixelGrid)
        GTEST_SKIP() << "tied to the pixel grid";
    // A parallelogram that its angle has closed is a pixel high: at half the scale less than one is left of it.
    const bool closes = filter(GetParam(), {})->attributesForKey("inputAcuteAngle") != nullptr;
    const double bound = closes ? 0.25 : 0.045;
    const Source s = source("opaque", smooth(160, 120));
    const auto f = onPicture(GetParam(), s.image, s.image.extent().center());
    const CIRect rect = s.image.extent().grown(-10);
    atEnds(*f, [&](const std::string& which) {
        const CIImage image = f->outputImage();
        if (image.isNull())
            return;
        const CIBitmap full = rendered(image, rect), half = rendered(image, rect, 0.5);
        double sum = 0, largest = 1;
        for (int y = 0; y < half.height(); ++y)
            for (int x = 0; x < half.width(); ++x)
                for (int c = 0; c < 4; ++c) {
                    double mean = 0;
                    for (int i = 0; i < 4; ++i)
                        mean += double(at(full, 2 * x + i % 2, 2 * y + i / 2, c)) / 4;
                    sum += std::abs(mean - double(at(half, x, y, c)));
                    largest = std::max(largest, std::abs(mean));
                }
        EXPECT_LT(sum / (4.0 * half.width() * half.height()) / largest, bound) << which;
    });
}

INSTANTIATE_TEST_SUITE_P(
    All, Ends, testing::ValuesIn(CIFilter::filterNamesInCategory("")), [](const auto& info) { return info.param; });

} // namespace
