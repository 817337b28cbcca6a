// Color filters: values worked out by hand, on single pixels.
#include "tests/coreimage/Colors.h"

using namespace pictures;

TEST(Color, AmountsThatChangeNothingKeepEveryBit)
{
    const struct {
        const char* name;
        CIDictionary inputs;
    } cases[] = {{"CIColorMatrix", {}}, {"CIHueAdjust", {}}, {"CIGammaAdjust", {}}, {"CIWhitePointAdjust", {}},
        {"CISepiaTone", {{"inputIntensity", 0}}}, {"CIColorMonochrome", {{"inputIntensity", 0}}},
        {"CIVignette", {{"inputIntensity", 0}}}, {"CIVignetteEffect", {{"inputIntensity", 0}}},
        {"CIColorPolynomial", {}}, {"CIColorCrossPolynomial", {}}, {"CIColorClamp", {}}, {"CIToneCurve", {}},
        {"CIUnsharpMask", {{"inputIntensity", 0}}}, {"CISharpenLuminance", {{"inputRadius", 0}}},
        {"CIHighlightShadowAdjust", {}}, {"CIConvolution7X7", {}}, {"CIDocumentEnhancer", {{"inputAmount", 0}}},
        {"CIGaussianBlur", {{"inputRadius", 0}}}, {"CIBoxBlur", {{"inputRadius", 1}}}, {"CIColorControls", {}},
        {"CIExposureAdjust", {}}, {"CIColorCube", {}}, {"CIBumpDistortion", {{"inputScale", 0}}},
        {"CIGlassDistortion", {{"inputScale", 0}}}, {"CICrop", {}}, {"CIAffineTransform", {}},
        {"CIPixellate", {{"inputScale", 1}}}, {"CIZoomBlur", {{"inputAmount", 0}}},
        {"CIDisintegrateWithMaskTransition", {{"inputTime", 0}}}};
    for (const bool opaque : {true, false}) {
        const CIBitmap source = opaque ? smooth(37, 9) : noise(37, 9);
        const CIImage image = CIImage::fromBitmap(source);
        for (const auto& [name, inputs] : cases) {
            const auto f = filter(name, image);
            for (const auto& [key, value] : inputs)
                f->setValueForKey(value, key);
            const double apart =
                difference(rendered(f->outputImage(), image.extent()), rendered(image, image.extent())).largest;
            EXPECT_LE(apart, opaque ? 0 : 1e-6) << name; // dividing by alpha and multiplying again rounds
        }
    }
}
