// Filters that look at the pixels around: slow twins, identities and values worked out by hand.
#include "tests/coreimage/Pictures.h"

#include <functional>
#include <gtest/gtest.h>

using namespace pictures;

namespace {

CIImage made(const std::string& name, const CIBitmap& source, const CIDictionary& inputs)
{
    const auto f = filter(name, CIImage::fromBitmap(source));
    for (const auto& [key, value] : inputs)
        f->setValueForKey(value, key);
    return f->outputImage();
}

CIBitmap result(const std::string& name, const CIBitmap& source, const CIDictionary& inputs)
{
    return rendered(made(name, source, inputs), CIImage::fromBitmap(source).extent());
}

float outsideZero(const CIBitmap& b, int x, int y, int c)
{
    return x < 0 || y < 0 || x >= b.width() || y >= b.height() ? 0 : at(b, x, y, c);
}

/// One bright opaque pixel on opaque black.
CIBitmap dot(int width, int height, int x, int y)
{
    CIBitmap bitmap(width, height, CIFormat::RGBAf, CIAlpha::Opaque, CIColorSpace::LinearSRGB);
    for (int line = 0; line < height; ++line)
        for (std::size_t i = 3; i < bitmap.mutableRow<float>(line).size(); i += 4)
            bitmap.mutableRow<float>(line)[i] = 1;
    for (std::size_t c = 0; c < 3; ++c)
        bitmap.mutableRow<float>(height - 1 - y)[std::size_t(4 * x) + c] = 1;
    return bitmap;
}

/// Compares each component of each pixel with what `expected(x, y, c)` says.
void expectEach(const CIBitmap& out, double tolerance, const std::function<double(int, int, int)>& expected)
{
    for (int y = 0; y < out.height(); ++y)
        for (int x = 0; x < out.width(); ++x)
            for (int c = 0; c < 4; ++c)
                ASSERT_NEAR(double(at(out, x, y, c)), expected(x, y, c), tolerance) << x << ", " << y << ", " << c;
}

} // namespace

TEST(Morphology, EqualsASearchThroughTheNeighborhood)
{
    const CIBitmap source = noise(53, 37);
    const auto search = [&](int x, int y, int c, bool greatest, int across, int along, double radius) {
        float best = outsideZero(source, x, y, c);
        for (int dy = -along; dy <= along; ++dy)
            for (int dx = -across; dx <= across; ++dx)
                if (radius <= 0 || dx * dx + dy * dy <= radius * radius) {
                    const float v = outsideZero(source, x + dx, y + dy, c);
                    best = greatest ? std::max(best, v) : std::min(best, v);
                }
        return double(best);
    };
    for (const double radius : {1.0, 2.0, 3.7, 11.0, 40.0}) {
        const int reach = int(radius);
        expectEach(result("CIMorphologyMaximum", source, {{"inputRadius", radius}}), 0,
            [&](int x, int y, int c) { return search(x, y, c, true, reach, reach, radius); });
        expectEach(result("CIMorphologyMinimum", source, {{"inputRadius", radius}}), 0,
            [&](int x, int y, int c) { return search(x, y, c, false, reach, reach, radius); });
    }
    for (const auto& [width, height] : {std::pair{1, 9}, {3, 1}, {5, 7}, {41, 16}}) {
        const CIDictionary sides{{"inputWidth", width}, {"inputHeight", height}};
        const int across = width / 2, along = height / 2;
        expectEach(result("CIMorphologyRectangleMaximum", source, sides), 0,
            [&](int x, int y, int c) { return search(x, y, c, true, across, along, 0); });
        expectEach(result("CIMorphologyRectangleMinimum", source, sides), 0,
            [&](int x, int y, int c) { return search(x, y, c, false, across, along, 0); });
    }
    EXPECT_EQ(made("CIMorphologyMaximum", source, {{"inputRadius", 2.5}}).extent(), (CIRect{-2, -2, 57, 41}));
}

TEST(Median, IsTheFifthOfNine)
{
    const CIBitmap source = noise(35, 21);
    expectEach(result("CIMedianFilter", source, {}), 0, [&](int x, int y, int c) {
        std::vector<float> nine;
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx)
                nine.push_back(at(source, std::clamp(x + dx, 0, 34), std::clamp(y + dy, 0, 20), c));
        std::ranges::sort(nine);
        return double(nine[4]);
    });
}
