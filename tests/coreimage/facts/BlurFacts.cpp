// Blurs and sharpening, at a straight edge in the middle of a picture: what of a blur's weight lies beyond it.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

// Normal distribution, up to so many standard deviations.
constexpr double kPhi1 = 0.841345, kPhiHalf = 0.691462;

const CIImage& edge()
{
    static const CIImage image = halves(kBlack, kWhite);
    return image;
}
const CIImage& softEdge() // for what would clip
{
    static const CIImage image = halves(gray(0.2), gray(0.6));
    return image;
}

/// Values of gray at places on the middle row.
Fact atEdge(
    const char* filter, const CIImage& image, CIDictionary inputs, const std::vector<std::pair<double, double>>& values)
{
    inputs["inputImage"] = image;
    std::vector<Seen> seen;
    for (const auto& [x, value] : values)
        seen.push_back({{x, 51}, gray(value)});
    return {filter, std::move(inputs), std::move(seen), 2e-3};
}

/// A single brighter pixel; and what lies around it.
Fact atDot(const char* filter, CIDictionary inputs, const std::vector<Seen>& seen, const Color& ground = gray(0.2),
    const Color& dot = kWhite)
{
    inputs["inputImage"] = dotOn(ground, dot);
    return Fact{filter, std::move(inputs), seen, 1e-5}.atFullSize();
}

} // namespace

Facts blurs()
{
    const Color ground = gray(0.2);
    const auto masked = [](double mask) {
        return CIDictionary{{"inputRadius", 10}, {"inputMask", flat(gray(mask), 100, 100)}};
    };
    return {
        atEdge("CIGaussianBlur", edge(), {{"inputRadius", 10}}, {{61, 0.864334}, {45, 1 - kPhiHalf}})
            .reaching({-31, -31, 162, 162}), // the radius is the standard deviation
        atEdge("CIBoxBlur", edge(), {{"inputRadius", 40}}, {{60, 29.5 / 39}, {41, 10.5 / 39}})
            .reaching({-19, -19, 138, 138}), // acts as 39
        atEdge("CIDiscBlur", edge(), {{"inputRadius", 8}}, {{54, 0.804499}}).within(4e-3), // half the radius out
        atEdge("CIDiscBlur", edge(), {{"inputRadius", 20}}, {{60, 0.804499}, {75, 1}}).within(4e-3),
        // A disc of 0.95 of the radius; a ring half as bright again; a Gaussian of 0.04 for each unit of softness.
        atEdge("CIBokehBlur", edge(), {{"inputRadius", 20}, {"inputSoftness", 0}}, {{59.5, 0.804499}, {70, 1}})
            .within(4e-3),
        atEdge("CIBokehBlur", edge(),
            {{"inputRadius", 20}, {"inputRingAmount", 1}, {"inputRingSize", 0.2}, {"inputSoftness", 0}},
            {{59.5, 0.786681}})
            .within(4e-3),
        atEdge("CIBokehBlur", edge(), {{"inputRadius", 20}, {"inputSoftness", 5}}, {{59.5, 0.796601}, {65, 0.925683}})
            .within(4e-3),
        // 1.17 of the radius under white; half of that under gray, as a mix of two blurs; nothing under nearly black.
        atEdge("CIMaskedVariableBlur", edge(), masked(1), {{60, 0.803643}, {45, 0.334545}}).within(4e-3),
        atEdge("CIMaskedVariableBlur", edge(), masked(0.5), {{55, 0.8232}}).within(8e-3),
        atEdge("CIMaskedVariableBlur", edge(), masked(0.028), {{51, 1}, {49, 0}}).atFullSize(),
        // The fifth of nine: single dots go, and so do corners, around which all is transparent.
        atDot("CIMedianFilter", {}, {{{10.5, 10.5}, ground}, {{0.5, 0.5}, kNothing}, {{0.5, 5.5}, ground}}),
        atEdge("CIMedianFilter", edge(), {}, {{49.5, 0}, {50.5, 1}}).atFullSize(),
        // The thirteen pixels within two; half of what they differ.
        atDot("CIMorphologyGradient", {{"inputRadius", 2}},
            {{{12.5, 10.5}, gray(0.4)}, {{11.5, 11.5}, gray(0.4)}, {{12.5, 11.5}, kBlack}, {{5.5, 10.5}, kBlack},
                {{1.5, 10.5}, {0.1, 0.1, 0.1, 1}}}),
        atDot("CIMorphologyMaximum", {{"inputRadius", 2}},
            {{{12.5, 10.5}, kWhite}, {{11.5, 11.5}, kWhite}, {{12.5, 11.5}, ground}, {{10.5, 13.5}, ground}})
            .reaching({-2, -2, 25, 25}),
        atDot("CIMorphologyMinimum", {{"inputRadius", 2}},
            {{{12.5, 10.5}, kBlack}, {{11.5, 11.5}, kBlack}, {{12.5, 11.5}, ground}, {{1.5, 10.5}, kNothing}}, ground,
            kBlack),
        atDot("CIMorphologyRectangleMaximum", {{"inputWidth", 5}, {"inputHeight", 3}},
            {{{12.5, 11.5}, kWhite}, {{13.5, 10.5}, ground}, {{10.5, 12.5}, ground}})
            .reaching({-2, -1, 25, 23}),
        atEdge("CIMorphologyRectangleMaximum", edge(), {{"inputWidth", 7}, {"inputHeight", 1}}, {{47, 0.5}}),
        atDot("CIMorphologyRectangleMinimum", {{"inputWidth", 5}, {"inputHeight", 3}},
            {{{12.5, 11.5}, kBlack}, {{13.5, 10.5}, ground}, {{10.5, 12.5}, ground}}, ground, kBlack),
        // A Gaussian along the angle, six times as far as its deviation.
        atEdge("CIMotionBlur", edge(), {{"inputRadius", 10}}, {{60, kPhi1}, {45, 1 - kPhiHalf}, {70, 0.977250}})
            .reaching({-60, 0, 220, 100})
            .within(8e-3),
        atEdge("CIMotionBlur", edge(), {{"inputRadius", 10}, {"inputAngle", M_PI / 3}}, {{55, kPhi1}, {47, 0.274253}})
            .reaching({-30, -52, 160, 204})
            .within(0.02),
        atEdge("CIMotionBlur", edge(), {{"inputRadius", 5}, {"inputAngle", M_PI / 2}}, {{53, 1}, {47, 0}}),
        // By 30 it picks up what lies from 6/11 of the distance on; a bell, so that the middle counts most.
        Fact{"CIZoomBlur", {{"inputImage", ramp()}, {"inputCenter", at(51, 51)}, {"inputAmount", 30}},
            {{{91, 51}, rampAt(51 + 40 * 17 / 22.0, 51)}, {{51, 71}, rampAt(51, 51 + 20 * 17 / 22.0)}}, 3e-3},
        Fact{"CIZoomBlur", {{"inputImage", ramp()}, {"inputCenter", at(51, 51)}, {"inputAmount", -30}},
            {{{71, 51}, rampAt(51 + 20 * 27 / 22.0, 51)}}, 3e-3},
        atEdge("CIZoomBlur", edge(), {{"inputCenter", at(10, 51)}, {"inputAmount", 30}}, {{70, 0.766033}})
            .within(0.012),
        // What is less than the level becomes the mean by five times five weights, 0.102856 in the middle; what is
        // more than its double stays and is sharpened.
        atDot("CINoiseReduction", {{"inputNoiseLevel", 0.1}}, {{{10.5, 10.5}, gray(0.2 + 0.05 * 0.102856)}}, ground,
            gray(0.25)),
        atDot("CINoiseReduction", {{"inputNoiseLevel", 0.1}}, {{{10.5, 10.5}, gray(0.6 + 0.4 * 0.4 * 0.897144)}},
            ground, gray(0.6)),
        atDot("CINoiseReduction", {{"inputNoiseLevel", 0.1}}, // one component is enough
            {{{10.5, 10.5}, straight(0.6 + 0.4 * 0.4 * 0.897144, 0.2, 0.2)}}, ground, straight(0.6, 0.2, 0.2)),
        atDot("CINoiseReduction", {{"inputNoiseLevel", 0.2}}, // 0.3589 is 0.7943 of the way from one to two levels
            {{{10.5, 10.5}, gray(0.241142 + 0.358858 * 0.794289 * 1.4)}}, ground, gray(0.6)),
        atEdge("CIUnsharpMask", softEdge(), {{"inputRadius", 10}, {"inputIntensity", 0.5}},
            {{60, 0.631731}, {40, 0.168269}}),
        Fact{"CISharpenLuminance",
            {{"inputImage", halves(kBlack, straight(0.6, 0, 0))}, {"inputRadius", 10}, {"inputSharpness", 2}},
            {{{60, 51}, straight(0.640476, 0.040476, 0.040476)}}},
    };
}

} // namespace facts
