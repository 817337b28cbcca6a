// Geometry: where corners go, and how pictures are resized.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

Fact ofRamp(const char* filter, CIDictionary inputs, std::vector<Seen> seen)
{
    inputs["inputImage"] = ramp();
    return {filter, std::move(inputs), std::move(seen)};
}

/// Corners of a trapezoid of 80 px below and 40 above; its sides meet at (50, 170).
CIDictionary trapezoid(CIDictionary more = {})
{
    more.insert({{"inputBottomLeft", at(10, 10)}, {"inputBottomRight", at(90, 10)}, {"inputTopRight", at(70, 90)},
        {"inputTopLeft", at(30, 90)}});
    return more;
}

/// Upright sides that lean by 1 in 6, or level ones.
CIDictionary leaning(bool upright)
{
    return {{"inputBottomLeft", at(20, 20)}, {"inputTopLeft", upright ? at(30, 80) : at(20, 80)},
        {"inputTopRight", upright ? at(70, 80) : at(80, 70)}, {"inputBottomRight", upright ? at(80, 20) : at(80, 30)}};
}

/// An edge between columns, enlarged: a quarter of a pixel before it.
Fact edge(const char* filter, CIDictionary inputs, double value)
{
    inputs["inputImage"] = halves(kBlack, kWhite);
    inputs["inputScale"] = 2;
    return Fact{filter, std::move(inputs), {{{99.5, 100.5}, gray(value)}}}.atFullSize().inPlace();
}

/// One edge in a guide and in a picture, along which the picture is 1.6 times the guide, falling.
Fact guided(
    const char* filter, const CIImage& picture, const CIImage& guide, CIDictionary inputs, double x, double becomes)
{
    const bool isGuided = std::string(filter) == "CIGuidedFilter";
    inputs["inputImage"] = isGuided ? picture : guide;
    inputs[isGuided ? "inputGuideImage" : "inputSmallImage"] = isGuided ? guide : picture;
    return Fact{filter, std::move(inputs), {{{x, 50.5}, gray(becomes)}}, 3e-3}.atFullSize();
}

} // namespace

Facts geometry()
{
    const CIImage guide = halves(gray(0.2), gray(0.7)), falling = halves(gray(0.9), gray(0.1));
    const CIImage small = painted(20, 20, [](double x, double) { return gray(x < 10 ? 0.9 : 0.1); });
    const double side = std::hypot(20, 80);
    const double focal = 28 * std::sqrt(2) * 100 / std::hypot(24, 36); // px: the picture's diagonal is that of the film
    // Upright sides that meet 150 px above the middle: the camera looks up by the angle whose tangent is focal / 150.
    const double tilt = std::atan(focal / 150), high = focal * std::tan(tilt), wide = 10 / std::cos(tilt);
    return {
        ofRamp("CIAffineTransform", {{"inputTransform", CIAffineTransform{0, 1, -1, 0, 100, 0}}},
            {{{31, 21}, rampAt(21, 69)}})
            .reaching({0, 0, 100, 100})
            .inPlace(),
        ofRamp("CIAffineTransform", {{"inputTransform", CIAffineTransform{2, 0, 0.5, 3, 0, 0}}},
            {{{51, 31}, rampAt((51 - 31 / 6.0) / 2, 31 / 3.0)}})
            .inPlace(),
        ofRamp("CICrop", {{"inputRectangle", CIVector{20, 30, 40, 50}}},
            {{{31, 41}, rampAt(31, 41)}, {{11, 41}, kNothing}, {{31, 25}, kNothing}})
            .reaching({20, 30, 40, 50}),
        ofRamp(
            "CIBicubicScaleTransform", {{"inputScale", 2}, {"inputAspectRatio", 0.5}}, {{{41, 61}, rampAt(41, 30.5)}})
            .reaching({0, 0, 100, 200})
            .inPlace(),
        // The cubic windows of Mitchell and Netravali at 0.75 and 1.75.
        edge("CIBicubicScaleTransform", {{"inputC", 0.5}}, 0.203125),
        edge("CIBicubicScaleTransform", {}, 0.226563),
        edge("CIBicubicScaleTransform", {{"inputB", 1}, {"inputC", 0}}, 0.317708),
        ofRamp(
            "CILanczosScaleTransform", {{"inputScale", 2}, {"inputAspectRatio", 0.5}}, {{{41, 61}, rampAt(41, 30.5)}})
            .reaching({0, 0, 100, 200})
            .inPlace(),
        edge("CILanczosScaleTransform", {}, 0.210392), // a window of three lobes
        ofRamp("CILanczosScaleTransform", {{"inputScale", 0.5}}, {{{21, 31}, rampAt(42, 62)}})
            .reaching({0, 0, 50, 50})
            .inPlace(),
        ofRamp("CIMaximumScaleTransform", {{"inputScale", 0.5}, {"inputAspectRatio", 0.5}},
            {{{10.5, 10.5}, rampAt(43.5, 21.5)}})
            .reaching({0, 0, 25, 50})
            .atFullSize()
            .inPlace(),
        // Turned by 30 degrees and enlarged by cos + sin, so that the frame stays full.
        ofRamp("CIStraightenFilter", {{"inputAngle", M_PI / 6}}, {{{61, 71}, rampAt(64.659, 59.385)}})
            .reaching({0, 0, 100, 100})
            .within(2e-3),
        // The diagonals cross where the picture's middle goes; a third of the way up lies 40 of 120 px below the
        // horizon.
        ofRamp(
            "CIPerspectiveTransform", trapezoid(), {{{50, 190 / 3.0}, rampAt(50, 50)}, {{35, 50}, rampAt(25, 33.333)}})
            .reaching({10, 10, 80, 80}),
        ofRamp("CIPerspectiveTransformWithExtent", trapezoid({{"inputExtent", CIVector{20, 20, 60, 60}}}),
            {{{35, 50}, rampAt(35, 40)}, {{50, 190 / 3.0}, rampAt(50, 50)}}),
        // As wide and as high as the longer sides.
        ofRamp("CIPerspectiveCorrection", trapezoid(), {{{20, side / 3}, rampAt(35, 50)}})
            .reaching({0, 0, 80, side})
            .answered(),
        ofRamp("CIPerspectiveCorrection", // the same, turned to the left
            {{"inputBottomLeft", at(10, 30)}, {"inputTopLeft", at(10, 70)}, {"inputTopRight", at(90, 90)},
                {"inputBottomRight", at(90, 10)}},
            {{{side * 2 / 3, 20}, rampAt(50, 35)}})
            .reaching({0, 0, side, 80})
            .answered(),
        ofRamp("CIPerspectiveCorrection", trapezoid({{"inputCrop", false}}),
            {{{20, side / 3}, rampAt(35, 50)}, {{84, side / 2}, rampAt(50 + 0.55 * (170 - 190 / 3.0) / 2, 190 / 3.0)}})
            .answered(),
        // Looking up or right by 0.2, the middle shows what lies tan(0.2) focal lengths away.
        ofRamp("CIPerspectiveRotate", {{"inputYaw", 0.2}}, {{{50, 50}, rampAt(50 + focal * std::tan(0.2), 50)}}),
        ofRamp("CIPerspectiveRotate", {{"inputPitch", 0.2}}, {{{50, 50}, rampAt(50, 50 + focal * std::tan(0.2))}}),
        ofRamp("CIPerspectiveRotate", {{"inputRoll", M_PI / 2}}, {{{70, 60}, rampAt(60, 30)}}),
        ofRamp("CIPerspectiveRotate", {{"inputYaw", 0.2}, {"inputFocalLength", 14}},
            {{{50, 50}, rampAt(50 + focal / 2 * std::tan(0.2), 50)}}),
        ofRamp("CIKeystoneCorrectionVertical", leaning(true),
            {{{50, 50 + high}, rampAt(50, 50)}, {{50 + wide, 50 + high}, rampAt(60, 50)}}),
        ofRamp("CIKeystoneCorrectionHorizontal", leaning(false),
            {{{50 + high, 50}, rampAt(50, 50)}, {{50 + high, 50 + wide}, rampAt(50, 60)}}),
        ofRamp("CIKeystoneCorrectionCombined", leaning(true), {{{50 + wide, 50 + high}, rampAt(60, 50)}}),
        ofRamp("CIKeystoneCorrectionCombined", leaning(false), {{{50 + high, 50 + wide}, rampAt(50, 60)}}),

        // With an epsilon as large as the variance around the edge, 2/9 of a quarter, lines rise half as steeply.
        guided("CIGuidedFilter", falling, guide, {{"inputRadius", 1}, {"inputEpsilon", 1 / 18.0}}, 49.5, 0.766667),
        guided("CIGuidedFilter", falling, guide, {{"inputRadius", 1}, {"inputEpsilon", 1e-6}}, 49.5, 0.9),
        guided("CIGuidedFilter", falling, guide, {{"inputRadius", 3}, {"inputEpsilon", 1e-6}}, 47.5, 0.9),
        guided("CIGuidedFilter", small, guide, {{"inputRadius", 1}, {"inputEpsilon", 1e-6}}, 49.5, 0.9).within(0.1),
        // The same with Gaussian weights of 1 px instead of nine equal ones, and a variance of 0.2 squared.
        guided("CIEdgePreserveUpsampleFilter", falling, guide, {{"inputSpatialSigma", 1}, {"inputLumaSigma", 0.2}},
            49.5, 0.757623),
        guided("CIEdgePreserveUpsampleFilter", falling, guide, {{"inputSpatialSigma", 1}, {"inputLumaSigma", 0.001}},
            49.5, 0.9),
        guided("CIEdgePreserveUpsampleFilter", falling, flat(gray(0.5), 100, 100), {}, 50.5, 0.46248),
        guided("CIEdgePreserveUpsampleFilter", small, guide, {{"inputLumaSigma", 0.001}}, 49.5, 0.9).within(0.02),
    };
}

} // namespace facts
