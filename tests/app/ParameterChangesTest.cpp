#include "app/modes/ParameterChanges.h"
#include "app/catalogue/FilterMaker.h"
#include "platform/foundation/UndoManager.h"

#include <gtest/gtest.h>

namespace {

class ParameterChangesTest : public testing::Test {
protected:
    const CIImage picture = CIImage::fromBitmap(CIBitmap(40, 30));
    UndoManager undo;
    ParameterChanges changes{undo};
    FilterMaker maker;
};

TEST_F(ParameterChangesTest, OfSettingsCanBeUndoneToo)
{
    const auto settings = std::make_shared<CIDictionary>();
    changes.setDictValueForKey(settings, 5, "Size");
    changes.setDictValueForKey(settings, 7, "Size");
    undo.undo();
    EXPECT_EQ(settings->at("Size").toDouble(), 5);
    undo.redo();
    EXPECT_EQ(settings->at("Size").toDouble(), 7);
}

TEST_F(ParameterChangesTest, NewFiltersHaveThePictureOrAnImageOfTheProgram)
{
    struct {
        const char *filter, *key;
        DefaultImage& image;
    } const cases[] = {{"CIGlassDistortion", "inputTexture", maker.texture},
        {"CIRippleTransition", "inputShadingImage", maker.alphaemap},
        {"CIPageCurlTransition", "inputShadingImage", maker.alphaemap},
        {"CIShadedMaterial", "inputShadingImage", maker.shadingemap}, {"CIColorMap", "inputGradientImage", maker.ramp},
        {"CIDisintegrateWithMaskTransition", "inputMaskImage", maker.mask}};
    for (const auto& [name, key, image] : cases) {
        SCOPED_TRACE(name);
        const auto filter = maker.newFilter(name, picture, picture.extent());
        ASSERT_TRUE(filter);
        EXPECT_FALSE(image.path().isEmpty());
        EXPECT_TRUE(image.image());
        EXPECT_TRUE(filter->valueForKey(key).toImage().isSameAs(image.image()));
        for (const char* other : {"inputImage", "inputTargetImage"})
            if (filter->attributesForKey(other)) {
                EXPECT_TRUE(filter->valueForKey(other).toImage().isSameAs(picture)) << other;
            }
    }
    EXPECT_FALSE(maker.newFilter("CINoSuchFilter", picture, {}));
}

TEST_F(ParameterChangesTest, NewFiltersHaveColorsAndPlacesThatShowSomething)
{
    for (const char* name : {"CIGaussianGradient", "CILinearGradient", "CIRadialGradient", "CIStripesGenerator",
             "CICheckerboardGenerator"}) {
        const auto filter = maker.newFilter(name, picture, {});
        ASSERT_TRUE(filter) << name;
        EXPECT_EQ(filter->valueForKey("inputColor0").toColor(), CIColor(1, 1, 1, 0.5)) << name;
        EXPECT_EQ(filter->valueForKey("inputColor1").toColor(), CIColor(0, 0, 0, 0.5)) << name;
    }
    EXPECT_EQ(maker.newFilter("CIConstantColorGenerator", picture, {})->valueForKey("inputColor").toColor(),
        CIColor(1, 0.5, 0, 0.5));
    EXPECT_EQ(maker.newFilter("CIPageCurlTransition", picture, {})->valueForKey("inputAngle").toFloat(), -0.7853982f);
    EXPECT_EQ(maker.newFilter("CICircularWrap", picture, {10, 20, 100, 50})->valueForKey("inputCenter").toVector(),
        (CIVector{60, 45}));
}

} // namespace
