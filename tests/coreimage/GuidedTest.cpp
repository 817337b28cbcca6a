// Small pictures enlarged along the edges of a larger one.
#include "tests/coreimage/Pictures.h"

#include <gtest/gtest.h>

using namespace pictures;

namespace {

/// Dark to the left of `edge`, light from there on.
CIBitmap step(int width, int height, int edge, float dark, float light)
{
    CIBitmap bitmap(width, height, CIFormat::RGBAf, CIAlpha::Opaque, CIColorSpace::LinearSRGB);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < 4; ++c)
                bitmap.mutableRow<float>(y)[std::size_t(4 * x + c)] = c == 3 ? 1 : x < edge ? dark : light;
    return bitmap;
}

} // namespace

TEST(Guided, AnEnlargedEdgeIsAsSharpAsTheGuides)
{
    const CIImage guide = CIImage::fromBitmap(step(160, 80, 83, 0.2f, 0.7f));
    const CIImage small = CIImage::fromBitmap(step(20, 10, 10, 0.9f, 0.1f));
    for (const char* name : {"CIGuidedFilter", "CIEdgePreserveUpsampleFilter"}) {
        SCOPED_TRACE(name);
        const auto filter = CIFilter::filterWithName(name);
        filter->setDefaults();
        const bool guided = filter->attributesForKey("inputGuideImage");
        filter->setValueForKey(guided ? small : guide, "inputImage");
        filter->setValueForKey(guided ? guide : small, guided ? "inputGuideImage" : "inputSmallImage");
        if (!guided)
            filter->setValueForKey(0.02, "inputLumaSigma");
        EXPECT_EQ(filter->outputImage().extent(), guide.extent());
        const CIBitmap out = rendered(filter->outputImage(), guide.extent());
        EXPECT_NEAR(at(out, 5, 40, 0), 0.9f, 0.05f);
        EXPECT_NEAR(at(out, 155, 40, 0), 0.1f, 0.05f);
        EXPECT_GT(at(out, 82, 40, 0) - at(out, 83, 40, 0), 0.5f) << "one step, where the guide has it";
        EXPECT_NEAR(at(out, 82, 40, 3), 1, 1e-4f);
    }
}
