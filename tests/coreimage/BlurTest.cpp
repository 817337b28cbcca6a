#include "platform/coreimage/passes/Blur.h"
#include "tests/coreimage/Neighborhood.h"

namespace {

using namespace pictures;

TEST(BoxBlur, IsTheMeanOfTheSquareWhateverItsWidth)
{
    const CIBitmap source = noise(41, 23);
    for (const double width : {2.0, 3.0, 4.5, 9.0, 16.0, 21.0, 33.3}) {
        const double half = (width - 1) / 2;
        const int reach = int(std::ceil(half));
        const auto share = [&](int d) { return std::clamp(half + 1 - std::abs(d), 0.0, 1.0) / width; };
        const CIBitmap out = rendered(ci::boxBlur(CIImage::fromBitmap(source), width, width), {0, 0, 41, 23});
        expectEach(out, 2e-5, [&](int x, int y, int c) {
            double sum = 0;
            for (int dy = -reach; dy <= reach; ++dy)
                for (int dx = -reach; dx <= reach; ++dx)
                    sum += share(dx) * share(dy) * double(outsideZero(source, x + dx, y + dy, c));
            return sum;
        });
    }
}

TEST(GaussianBlur, IsTheSameInOnePieceAndInMany)
{
    const CIBitmap source = noise(300, 200);
    for (const auto& [radius, scale] : {std::pair{3.0, 1.0}, {25.0, 1.0}, {120.0, 1.0}, {6.0, 3.0}}) {
        const CIImage soft =
            made("CIGaussianBlur", source, {{"inputRadius", radius}}).cropped({0, 0, 300, 200}); // halved as a whole
        const CIBitmap whole = rendered(soft, soft.extent(), scale);
        for (const CIRect& part : {CIRect{0, 0, 30, 20}, CIRect{151, 77, 19, 31}, CIRect{283, 190, 17, 10}})
            expectEach(rendered(soft, part, scale), 2e-5,
                [&, left = int(part.x * scale), low = int(part.y * scale)](
                    int x, int y, int c) { return double(at(whole, x + left, y + low, c)); });
    }
}

TEST(GaussianBlur, OfAnEndlessRimKeepsPlainColorsAndOpacity)
{
    CIBitmap plain(60, 40, CIFormat::RGBA8, CIAlpha::Opaque);
    for (int y = 0; y < 40; ++y)
        for (std::uint8_t& code : plain.mutableRow<std::uint8_t>(y))
            code = 90;
    const CIImage picture = CIImage::fromBitmap(plain);
    const CIBitmap before = rendered(picture, picture.extent());
    for (const double radius : {1.0, 9.0, 60.0, 1500.0, 1e6}) {
        const auto f = filter("CIGaussianBlur", picture.clampedToExtent());
        f->setValueForKey(radius, "inputRadius");
        const CIBitmap out = rendered(f->outputImage(), picture.extent());
        expectEach(out, 1e-5, [&](int x, int y, int c) { return c == 3 ? 1 : double(at(before, x, y, c)); });
    }
}

} // namespace
