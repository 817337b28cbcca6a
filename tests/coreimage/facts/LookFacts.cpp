// Looks, tables and palettes.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

/// The codes that grays of five codes become; a look's curves pass through their points.
void grays(Facts& facts, const char* filter, const std::vector<double>& codes, const std::vector<Color>& become)
{
    for (std::size_t i = 0; i < codes.size(); ++i) {
        const Color& c = become[i];
        facts.push_back(
            of(filter, coded(codes[i], codes[i], codes[i], 0.5), {}, coded(c[0], c[1], c[2], 0.5)).within(2e-4));
    }
}

/// A cube of 2 by 2 by 2 that changes nothing, but yellow to blue.
CIData yellowToBlue()
{
    std::vector<float> v;
    for (int i = 0; i < 8; ++i)
        v.insert(v.end(), {i == 3 ? 0 : float(i & 1), i == 3 ? 0 : float(i >> 1 & 1), i == 3 ? 1 : float(i >> 2), 1});
    return bytes(v);
}
/// Squares of the components, at so many of each.
CIData squared(int side)
{
    std::vector<float> v;
    for (int i = 0; i < side * side * side; ++i)
        for (const int step : {i % side, i / side % side, i / side / side, side - 1})
            v.push_back(float(step * step) / float((side - 1) * (side - 1)));
    return bytes(v);
}
/// One that inverts, for straight colors or half transparent.
CIData inverting(float alpha = 1)
{
    std::vector<float> v;
    for (int i = 0; i < 8; ++i)
        v.insert(
            v.end(), {alpha * float(1 - (i & 1)), alpha * float(1 - (i >> 1 & 1)), alpha * float(1 - (i >> 2)), alpha});
    return bytes(v);
}

CIImage palette(const std::vector<Color>& colors)
{
    return painted(int(colors.size()), 1, [&](double x, double) { return colors[std::size_t(x)]; });
}

} // namespace

Facts looks()
{
    const Color inverted = coded(1 - 0.6, 1 - 0.3, 1 - 0.8), some = coded(0.6, 0.3, 0.8);
    const std::vector<Color> entries{kBlack, straight(1, 0, 0), kWhite, straight(0.1, 0.2, 0.7)};
    const auto mixedCubes = [&](double mask, const Color& becomes) {
        return of("CIColorCubesMixedWithMask", kThin,
            {{"inputMaskImage", flat(gray(mask))}, {"inputCube0Data", yellowToBlue()}, {"inputCube1Data", inverting()},
                {"inputColorSpace", "linearSRGB"}},
            becomes);
    };
    Facts facts{
        // Red over green over blue: through the corners black, red, yellow and white, not through all eight.
        of("CIColorCube", straight(0.6, 0.4, 0.2, 0.5), {{"inputCubeData", yellowToBlue()}},
            straight(0.4, 0.2, 0.4, 0.5)),
        of("CIColorCube", straight(0.2, 0.4, 0.6), {{"inputCubeData", yellowToBlue()}}, straight(0.2, 0.4, 0.6)),
        of("CIColorCube", straight(0.25, 0.75, 0.5), {{"inputCubeData", squared(3)}, {"inputCubeDimension", 3}},
            straight(0.125, 0.625, 0.25)),
        of("CIColorCube", straight(3, -1, 0.5), {{"inputCubeData", inverting()}}, straight(0, 1, 0.5)),
        of("CIColorCube", straight(3, -1, 0.5), {{"inputCubeData", inverting()}, {"inputExtrapolate", 1}},
            straight(-2, 2, 0.5)),
        of("CIColorCube", kThin, {{"inputCubeData", inverting(0.5f)}}, straight(0.5, 0.75, 0.9, 0.25)),
        of("CIColorCube", kThin, {{"inputCubeData", inverting()}, {"inputCubeDimension", 64}}, kThin), // too few data
        of("CIColorCubeWithColorSpace", some, {{"inputCubeData", inverting()}}, inverted),
        of("CIColorCubeWithColorSpace", kThin, {{"inputCubeData", inverting()}, {"inputColorSpace", "linearSRGB"}},
            straight(0.5, 0.75, 0.9, 0.5)),
        mixedCubes(0, straight(0.35, 0.1, 0.25, 0.5)),
        mixedCubes(1, straight(0.5, 0.75, 0.9, 0.5)),
        mixedCubes(0.25, straight(0.3875, 0.2625, 0.4125, 0.5)),
        of("CIColorCubesMixedWithMask", some,
            {{"inputMaskImage", flat(kWhite)}, {"inputCube0Data", yellowToBlue()}, {"inputCube1Data", inverting()}},
            inverted),
        // Three curves over 0.2 to 0.7; what lies outside stays at their ends.
        of("CIColorCurves", straight(0.45, 0.3, 0.9, 0.5),
            {{"inputCurvesData", bytes(std::vector<float>{0, 1, 0.5f, 1, 0, 0.5f})},
                {"inputCurvesDomain", CIVector{0.2, 0.7}}, {"inputColorSpace", "linearSRGB"}},
            straight(0.5, 0.8, 0.5, 0.5)),
        of("CIColorCurves", coded(0.1, 0.5, 0.25),
            {{"inputCurvesData", bytes(std::vector<float>{0.5f, 1, 0, 0.25f, 0, 0.8f, 1, 0.5f, 1})}},
            coded(0.45, 0, 0.4)),

        of("CIPalettize", straight(0.05, 0.05, 0.3, 0.5), {{"inputPaletteImage", palette(entries)}}, {0, 0, 0, 0.5}),
        of("CIPalettize", straight(0.05, 0.05, 0.3), // to the eye rather blue than black
            {{"inputPaletteImage", palette(entries)}, {"inputPerceptual", 1}}, straight(0.1, 0.2, 0.7)),
        of("CIPalettize", straight(0.9, 0.2, 0.1), {{"inputPaletteImage", palette(entries)}}, straight(1, 0, 0)),
        // The middles of the two halves; no pixel is near red.
        Fact{"CIPaletteCentroid",
            {{"inputImage", halves(kBlack, gray(0.8))},
                {"inputPaletteImage", palette({kWhite, kBlack, straight(1, 0, 0)})}},
            {{{0.5, 0.5}, {75, 50, 0, 1}}, {{1.5, 0.5}, {25, 50, 0, 1}}, {{2.5, 0.5}, {0, 0, 0, 1}}}, 0.01}
            .reaching({0, 0, 3, 1})
            .atFullSize()
            .inPlace(),

        // More or less of each color before the curves: a quarter more for slide film, a quarter less when faded.
        of("CIPhotoEffectTonal", kThin, {}, gray(0.29232, 0.5)),
    };
    const std::vector<double> quarters{0, 0.25, 0.5, 0.75, 1};
    grays(facts, "CIPhotoEffectChrome", quarters,
        {{0, 0, 0.02}, {0.21, 0.22, 0.23}, {0.53, 0.53, 0.52}, {0.81, 0.8, 0.77}, {1, 1, 0.97}});
    grays(facts, "CIPhotoEffectFade", quarters,
        {{0.09, 0.09, 0.11}, {0.29, 0.28, 0.3}, {0.53, 0.52, 0.51}, {0.75, 0.74, 0.72}, {0.95, 0.94, 0.91}});
    grays(facts, "CIPhotoEffectInstant", quarters,
        {{0.05, 0.07, 0.15}, {0.26, 0.28, 0.33}, {0.57, 0.55, 0.52}, {0.84, 0.8, 0.7}, {0.99, 0.96, 0.84}});
    grays(facts, "CIPhotoEffectProcess", quarters,
        {{0, 0.02, 0.12}, {0.18, 0.25, 0.35}, {0.46, 0.54, 0.56}, {0.75, 0.81, 0.75}, {0.97, 1, 0.92}});
    grays(facts, "CIPhotoEffectTransfer", quarters,
        {{0.05, 0.04, 0.06}, {0.32, 0.26, 0.24}, {0.6, 0.53, 0.46}, {0.84, 0.78, 0.67}, {1, 0.97, 0.86}});
    const auto grayly = [](std::initializer_list<double> codes) {
        std::vector<Color> colors;
        for (const double c : codes)
            colors.push_back({c, c, c});
        return colors;
    };
    grays(facts, "CIPhotoEffectMono", quarters, grayly({0.05, 0.28, 0.51, 0.74, 0.96}));
    grays(facts, "CIPhotoEffectNoir", {0, 0.2, 0.5, 0.75, 0.92, 1}, grayly({0, 0.06, 0.47, 0.85, 1, 1}));
    grays(facts, "CIPhotoEffectTonal", quarters, grayly({0, 0.25, 0.5, 0.75, 1}));
    grays(facts, "CIThermal", {0, 0.2, 0.4, 0.6, 0.8, 1},
        {{0, 0, 0.25}, {0.1, 0.02, 0.6}, {0.55, 0.05, 0.6}, {0.93, 0.3, 0.15}, {1, 0.75, 0.1}, {1, 1, 0.85}});
    grays(facts, "CIXRay", {0, 0.3, 0.6, 1},
        {{0.92, 0.97, 1}, {0.58, 0.7, 0.82}, {0.22, 0.34, 0.48}, {0.01, 0.03, 0.08}});
    // Of the codes 0.5 ± 0.1 around a luminance of 0.5 each look leaves its saturation; read where its curve has
    // points.
    struct {
        const char* look;
        double saturation, red, green, blue;
    } const vivid[]{{"Chrome", 1.25, 0.53, 0.53, 0.77}, {"Fade", 0.72, 0.53, 0.52, 0.72},
        {"Instant", 0.88, 0.57, 0.55, 0.7}, {"Process", 1.05, 0.46, 0.54, 0.75}, {"Transfer", 0.95, 0.6, 0.53, 0.67}};
    for (const auto& [look, saturation, red, green, blue] : vivid) {
        // Red and green are the luminance less 0.0722 d, blue more by the rest of d = 0.25 / saturation.
        const double d = 0.25 / saturation, base = 0.5 + 0.0722 * (d * saturation - d);
        facts.push_back(
            of(("CIPhotoEffect" + std::string(look)).c_str(), coded(base, base, base + d), {}, coded(red, green, blue))
                .within(2e-4));
    }
    return facts;
}

} // namespace facts
