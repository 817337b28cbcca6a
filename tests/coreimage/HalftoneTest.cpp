// Halftone screens: ink in the right amount, at any scale.
#include "tests/coreimage/Colors.h"

using namespace pictures;

namespace {

const std::vector<std::string> kScreens{
    "CIDotScreen", "CILineScreen", "CIHatchedScreen", "CICircularScreen", "CICMYKHalftone"};

double meanLight(const CIBitmap& picture)
{
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            sum += double(at(picture, x, y, 0) + at(picture, x, y, 1) + at(picture, x, y, 2)) / 3;
    return sum / (picture.width() * picture.height());
}

} // namespace

TEST(Halftones, KeepTheMeanLightOfGrays)
{
    for (const std::string& name : kScreens)
        for (const double gray : {0.1, 0.35, 0.7, 0.95}) {
            SCOPED_TRACE(name + " " + std::to_string(gray));
            const auto f = filter(name, flat({gray, gray, gray, 1}, 240, 240));
            f->setValueForKey(1.0, "inputSharpness");
            f->setValueForKey(8.0, "inputWidth");
            for (const double scale : {1.0, 0.3})
                EXPECT_NEAR(meanLight(rendered(f->outputImage(), {0, 0, 240, 240}, scale)), gray, 0.04) << scale;
        }
}
