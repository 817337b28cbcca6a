// Colors through cubes and curves.
#include "tests/coreimage/Colors.h"

#include <cstring>

using namespace pictures;

namespace {

CIData bytes(const std::vector<float>& numbers)
{
    CIData data(numbers.size() * sizeof(float));
    std::memcpy(data.data(), numbers.data(), data.size());
    return data;
}

/// A cube that holds f(color) at each of its corners, premultiplied by an alpha of `alpha`.
template <class F>
CIData cube(int side, F f, float alpha = 1)
{
    std::vector<float> numbers;
    const auto step = float(side - 1);
    for (int b = 0; b < side; ++b)
        for (int g = 0; g < side; ++g)
            for (int r = 0; r < side; ++r) {
                const std::array<float, 3> c = f(float(r) / step, float(g) / step, float(b) / step);
                numbers.insert(numbers.end(), {c[0] * alpha, c[1] * alpha, c[2] * alpha, alpha});
            }
    return bytes(numbers);
}

std::array<float, 3> turned(float r, float g, float b) { return {g, b, r}; }
std::array<float, 3> inverted(float r, float g, float b) { return {1 - r, 1 - g, 1 - b}; }

const Color kTurned{0.25, 0.1, 0.5, 1};

} // namespace

TEST(ColorCube, GoesThroughEveryLinearMapExactly)
{
    const CIImage image = CIImage::fromBitmap(noise(67, 9));
    const auto f = filter("CIColorCube", image);
    EXPECT_LT(difference(rendered(f->outputImage(), image.extent()), rendered(image, image.extent())).largest, 1e-6);
    for (const int side : {2, 5, 33}) {
        const CIDictionary table{{"inputCubeDimension", side}, {"inputCubeData", cube(side, turned)}};
        expectColor(result("CIColorCube", kSome, table), kTurned);
        // All orders of the components, each of which has its own tetrahedron.
        for (const Color& c : {Color{0.3, 0.6, 0.9, 1}, Color{0.3, 0.9, 0.6, 1}, Color{0.6, 0.3, 0.9, 1},
                 Color{0.9, 0.3, 0.6, 1}, Color{0.6, 0.9, 0.3, 1}, Color{1, 1, 1, 1}, Color{0.5, 0.5, 0, 1}})
            expectColor(result("CIColorCube", c, table), {c[1], c[2], c[0], 1});
    }
}

TEST(ColorCube, ClampsOrExtrapolatesAndMultipliesAlpha)
{
    CIDictionary table{{"inputCubeDimension", 3}, {"inputCubeData", cube(3, inverted)}};
    expectColor(result("CIColorCube", {3, -1, 0.5, 1}, table), {0, 1, 0.5, 1});
    table["inputExtrapolate"] = 1;
    expectColor(result("CIColorCube", {3, -1, 0.5, 1}, table), {-2, 2, 0.5, 1});
    table["inputCubeData"] = cube(3, inverted, 0.5f);
    expectColor(result("CIColorCube", kThin, table), {0.5, 0.75, 0.9, 0.25});
    table["inputCubeDimension"] = 64; // more than the data hold
    expectColor(result("CIColorCube", kThin, table), kThin);
}

TEST(ColorCube, WorksOnDisplayValuesInAColorSpace)
{
    const CIDictionary table{{"inputCubeData", cube(2, inverted)}};
    const Color expected{linear(1 - coded(0.5)), linear(1 - coded(0.25)), linear(1 - coded(0.1)), 1};
    expectColor(result("CIColorCubeWithColorSpace", kSome, table), expected, 2e-5);
    CIDictionary light = table;
    light["inputColorSpace"] = "linearSRGB";
    expectColor(result("CIColorCubeWithColorSpace", kSome, light), {0.5, 0.75, 0.9, 1});

    CIDictionary two{{"inputCube0Data", cube(2, turned)}, {"inputCube1Data", cube(2, inverted)},
        {"inputColorSpace", "linearSRGB"}, {"inputMaskImage", flat({0, 0, 0, 1})}};
    expectColor(result("CIColorCubesMixedWithMask", kSome, two), kTurned);
    two["inputMaskImage"] = flat({0.25, 0.25, 0.25, 1});
    expectColor(result("CIColorCubesMixedWithMask", kSome, two),
        {0.75 * 0.25 + 0.125, 0.75 * 0.1 + 0.25 * 0.75, 0.75 * 0.5 + 0.25 * 0.9, 1});
}

TEST(ColorCurves, ReadTheirOwnDomain)
{
    const CIDictionary steep{{"inputCurvesData", bytes({0, 1, 0.5f, 1, 0, 0.5f})},
        {"inputCurvesDomain", CIVector{0.2, 0.7}}, {"inputColorSpace", "linearSRGB"}};
    expectColor(result("CIColorCurves", {0.45, 0.3, 0.9, 0.5}, steep), {0.5, 0.8, 0.5, 0.5});
    expectColor(result("CIColorCurves", {0.1, 0.9, 0, 1}, steep), {0, 0, 0.5, 1});
    expectColor(result("CIColorCurves", kSome, {{"inputCurvesDomain", CIVector{1, 1}}}), {0, 0, 0, 1}); // no NaN
}

TEST(ToneCurve, PassesThroughItsPointsWithoutSwinging)
{
    CIDictionary points{{"inputPoint1", CIVector{0.25, 0.05}}, {"inputPoint2", CIVector{0.5, 0.05}},
        {"inputPoint3", CIVector{0.75, 0.95}}};
    const auto curve = [&](double at) { return coded(result("CIToneCurve", {linear(at), 0, 0, 1}, points)[0]); };
    EXPECT_NEAR(curve(0.25), 0.05, 1e-4);
    EXPECT_NEAR(curve(0.5), 0.05, 1e-4);
    EXPECT_NEAR(curve(0.375), 0.05, 1e-4);
    EXPECT_NEAR(curve(0.75), 0.95, 1e-4);
    EXPECT_NEAR(curve(0.625), 0.5, 0.03);
    EXPECT_NEAR(curve(1.3), 1, 1e-4);
    points["inputExtrapolate"] = 1;
    EXPECT_GT(curve(1.3), 1.02);
    points["inputPoint2"] = CIVector{0.25, 0.5}; // above another
    EXPECT_NEAR(curve(0.25), 0.5, 1e-4);

    const CIImage image = CIImage::fromBitmap(noise(37, 9));
    EXPECT_EQ(difference(rendered(filter("CIToneCurve", image)->outputImage(), image.extent()),
                  rendered(image, image.extent()))
                  .largest,
        0);
}

TEST(PhotoEffects, DoWhatTheirNamesSay)
{
    for (const char* gray : {"Mono", "Noir", "Tonal"}) {
        const Color c = result(std::string("CIPhotoEffect") + gray, kThin);
        expectColor(c, {c[0], c[0], c[0], 0.5});
    }
    EXPECT_NEAR(result("CIPhotoEffectTonal", kSome)[0], luma(kSome), 1e-4);
    const auto contrast = [](const char* name) {
        return result(name, {0.6, 0.6, 0.6, 1})[0] - result(name, {0.02, 0.02, 0.02, 1})[0];
    };
    EXPECT_GT(contrast("CIPhotoEffectNoir"), contrast("CIPhotoEffectTonal"));
    EXPECT_GT(contrast("CIPhotoEffectTonal"), contrast("CIPhotoEffectMono"));
    const auto warmth = [](const char* name) {
        const Color c = result(name, {0.3, 0.3, 0.3, 1});
        return c[0] - c[2];
    };
    EXPECT_GT(warmth("CIPhotoEffectTransfer"), 0.02);
    EXPECT_LT(warmth("CIPhotoEffectProcess"), -0.02);
    EXPECT_GT(luma(result("CIPhotoEffectFade", {0, 0, 0, 1})), 0.005);
    const auto vivid = [](const char* name) {
        const Color c = result(name, {0.5, 0.3, 0.2, 1});
        return (c[0] - c[2]) / c[0];
    };
    EXPECT_GT(vivid("CIPhotoEffectChrome"), 0.6);
    EXPECT_LT(vivid("CIPhotoEffectFade"), 0.6);
    EXPECT_GT(luma(result("CIXRay", {0, 0, 0, 1})), 0.8);
    EXPECT_LT(luma(result("CIXRay", {1, 1, 1, 1})), 0.1);
    const Color hot = result("CIThermal", {0.4, 0.4, 0.4, 1}), cold = result("CIThermal", {0.01, 0.01, 0.01, 1});
    EXPECT_GT(hot[0], 4 * hot[2]);
    EXPECT_GT(cold[2], 4 * cold[0]);
}
