// Filters that look at the pixels around: slow twins, identities and values worked out by hand.
#include "tests/coreimage/Neighborhood.h"

using namespace pictures;

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
                nine.push_back(outsideZero(source, x + dx, y + dy, c));
        std::ranges::sort(nine);
        return double(nine[4]);
    });
}

/// 8-bit pictures are not converted for these filters; the float twin converts them.
TEST(Rank, OfCodesIsTheRankOfTheirLight)
{
    CIBitmap source = noise8(700, 180);
    for (int y = 0; y < source.height(); ++y)
        for (std::size_t x = 3; x < source.row<std::uint8_t>(y).size(); x += 4)
            source.mutableRow<std::uint8_t>(y)[x] = std::uint8_t(x); // nobody's business in an opaque bitmap
    const CIImage picture = CIImage::fromBitmap(source);
    const CIImage moved = picture.transformed(CIAffineTransform::translation(-11, 7)).cropped({3, 20, 600, 111});
    const auto ranked = [](const char* name, const CIImage& image, const CIDictionary& inputs) {
        const auto f = filter(name, image);
        for (const auto& [key, value] : inputs)
            f->setValueForKey(value, key);
        return f->outputImage();
    };
    const std::vector<CIImage> images = {ranked("CIMedianFilter", picture, {}), ranked("CIMedianFilter", moved, {}),
        ranked("CIMorphologyMaximum", moved, {{"inputRadius", 6.3}}),
        ranked("CIMorphologyMinimum", moved.clampedToExtent(), {{"inputRadius", 2}}).cropped({-20, 0, 700, 160}),
        ranked("CIMorphologyRectangleMaximum", moved, {{"inputWidth", 7}, {"inputHeight", 20}}),
        ranked("CIMorphologyRectangleMinimum", ranked("CIMedianFilter", moved, {}), {{"inputWidth", 3}}),
        ranked("CIColorInvert", ranked("CIMorphologyRectangleMaximum", moved, {}), {})};
    const CIContext quick, slow(CIContext::Arithmetic::Floats);
    for (std::size_t i = 0; i < images.size(); ++i) {
        const int apart = i + 1 < images.size() ? 0 : 1; // the last one calculates
        const auto isAlike = [apart](int a, int b) { return std::abs(a - b) <= apart; };
        for (const CIRect& part : {images[i].extent(), CIRect{60, 33, 301, 57}})
            for (const CIFormat format : {CIFormat::RGBA8, CIFormat::BGRA8}) {
                const CIBitmap out = quick.render(images[i], part, 1, format, CIAlpha::Premultiplied);
                const CIBitmap twin = slow.render(images[i], part, 1, format, CIAlpha::Premultiplied);
                ASSERT_EQ(out.height(), int(part.height));
                for (int y = 0; y < out.height(); ++y)
                    ASSERT_TRUE(std::ranges::equal(out.row<std::uint8_t>(y), twin.row<std::uint8_t>(y), isAlike))
                        << "image " << i << ", row " << y;
            }
    }
}

TEST(Mosaic, PatchesAreOfOneColorAndKeepTheMean)
{
    const CIBitmap source = smooth(200, 160);
    const CIBitmap out = result("CICrystallize", source, {{"inputRadius", 20}});
    int edges = 0;
    double sum = 0, whole = 0;
    for (int y = 0; y < 160; ++y)
        for (int x = 1; x < 200; ++x) {
            edges += at(out, x, y, 0) != at(out, x - 1, y, 0);
            sum += double(at(out, x, y, 0)), whole += double(at(source, x, y, 0));
        }
    EXPECT_GT(edges, 160 * 6);
    EXPECT_LT(edges, 160 * 14); // about one for each patch across
    EXPECT_NEAR(sum / whole, 1, 0.02);
}
