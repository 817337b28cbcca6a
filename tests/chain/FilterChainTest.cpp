#include "platform/chain/FilterChain.h"
#include "platform/chain/Baking.h"
#include "platform/chain/PictureFormats.h"
#include "platform/coreimage/CIContext.h"

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr int kWidth = 6, kHeight = 4;

/// Opaque, every pixel another.
CIBitmap testBitmap()
{
    CIBitmap bitmap(kWidth, kHeight);
    for (int y = 0; y < kHeight; ++y) {
        const auto row = bitmap.mutableRow<std::uint8_t>(y);
        for (int x = 0; x < kWidth; ++x) {
            row[std::size_t(x) * 4] = std::uint8_t(40 * x);
            row[std::size_t(x) * 4 + 1] = std::uint8_t(60 * y);
            row[std::size_t(x) * 4 + 2] = 100;
            row[std::size_t(x) * 4 + 3] = 255;
        }
    }
    return bitmap;
}

CIImage testPicture() { return CIImage::fromBitmap(testBitmap()); }

using Color = std::array<int, 4>;

/// The color of the picture pixel (x, y), y up.
Color colorAt(const CIImage& image, double x, double y)
{
    const CIBitmap pixel = CIContext().render(image, {x, y, 1, 1});
    if (pixel.isNull())
        return {-1, -1, -1, -1};
    const auto row = pixel.row<std::uint8_t>(0);
    return {row[0], row[1], row[2], row[3]};
}

std::shared_ptr<CIFilter> filterCalled(const char* name)
{
    const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(name);
    if (filter)
        filter->setDefaults();
    return filter;
}

TEST(FilterChain, FeedsThePictureToTheBackgroundWhereThereIsOne)
{
    const CIImage picture = testPicture();
    const auto blur = filterCalled("CIGaussianBlur");
    const auto over = filterCalled("CISourceOverCompositing");
    EXPECT_STREQ(pictureKey(*blur), "inputImage");
    EXPECT_STREQ(pictureKey(*over), "inputBackgroundImage");

    setupAllImageInputsToNotNil(*over, picture);
    EXPECT_TRUE(over->valueForKey("inputImage").toImage().isSameAs(picture));
    EXPECT_TRUE(over->valueForKey("inputBackgroundImage").toImage().isSameAs(picture));

    const CIImage other = picture.cropped({0, 0, 2, 2});
    filteredPicture(*over, other, {});
    EXPECT_TRUE(over->valueForKey("inputBackgroundImage").toImage().isSameAs(other)) << "fed anew by each render";
    EXPECT_TRUE(over->valueForKey("inputImage").toImage().isSameAs(picture)) << "left as it was";
}

TEST(FilterChain, MissesImagesOnlyInInputsThatAreNotFed)
{
    const auto blur = filterCalled("CIGaussianBlur");
    EXPECT_FALSE(filterHasMissingImage(*blur));
    const auto over = filterCalled("CISourceOverCompositing");
    EXPECT_TRUE(filterHasMissingImage(*over)) << "the image to lay over the picture";
    over->setValueForKey(testPicture(), "inputImage");
    EXPECT_FALSE(filterHasMissingImage(*over));
    EXPECT_FALSE(filterHasMissingImage(*filterCalled("CIConstantColorGenerator")));
}

TEST(FilterChain, LaysGeneratorsOverThePictureAndCutsThemToIt)
{
    const CIImage picture = testPicture();
    const auto color = filterCalled("CIConstantColorGenerator");
    color->setValueForKey(CIColor(1, 0, 0, 1), "inputColor");
    const CIImage opaque = filteredPicture(*color, picture, {});
    EXPECT_EQ(opaque.extent(), picture.extent());
    EXPECT_EQ(colorAt(opaque, 2, 1), (Color{255, 0, 0, 255}));

    color->setValueForKey(CIColor(1, 0, 0, 0), "inputColor");
    EXPECT_EQ(colorAt(filteredPicture(*color, picture, {}), 2, 1), colorAt(picture, 2, 1));

    EXPECT_TRUE(filteredPicture(*color, {}, {}).extent().isEmpty()) << "without a picture everything is cut away";
}

TEST(FilterChain, CutsOnlyWhatIsMuchLargerBothWays)
{
    const CIImage picture = testPicture();
    const auto scaledBy = [&](double sx, double sy) {
        const auto transform = filterCalled("CIAffineTransform");
        transform->setValueForKey(CIAffineTransform::scaling(sx, sy), "inputTransform");
        return filteredPicture(*transform, picture, {}).extent();
    };
    EXPECT_EQ(scaledBy(2, 2), picture.extent());
    EXPECT_GE(scaledBy(2, 1.25).width, 2.0 * kWidth) << "larger in one direction only";
    EXPECT_GE(scaledBy(1.25, 2).height, 2.0 * kHeight);
    EXPECT_GE(scaledBy(1.25, 1.25).width, 1.25 * kWidth);
}

TEST(FilterChain, GivesTheViewsSizeToFiltersThatAskForAnExtent)
{
    for (const std::string& name : CIFilter::filterNamesInCategory("")) {
        const auto filter = filterCalled(name.c_str());
        const CIInputAttributes* extent = filter->attributesForKey("inputExtent");
        if (!extent || !extent->isVector())
            continue;
        filteredPicture(*filter, testPicture(), {30, 20});
        EXPECT_EQ(filter->valueForKey("inputExtent").toVector(), (CIVector{0, 0, 30, 20})) << name;
    }
}

TEST(FilterChain, FoldsLayersAndBlack)
{
    EXPECT_TRUE(foldedLayers({}).isNull());
    const CIImage picture = testPicture();
    const CIImage green = CIImage::fromColor(CIColor(0, 1, 0)).cropped({0, 0, 2, 2});
    EXPECT_TRUE(foldedLayers({picture}).isSameAs(picture));
    const CIImage folded = foldedLayers({picture, green});
    EXPECT_EQ(colorAt(folded, 1, 1), (Color{0, 255, 0, 255}));
    EXPECT_EQ(colorAt(folded, 4, 1), colorAt(picture, 4, 1));

    EXPECT_TRUE(overBlack({}).extent().isInfinite());
    EXPECT_EQ(colorAt(overBlack(green), 1, 1), (Color{0, 255, 0, 255}));
    EXPECT_EQ(colorAt(overBlack(green), 5, 3), (Color{0, 0, 0, 255}));
}

TEST(Baking, KeepsPixelsDepthAndOpacityAndMovesToTheOrigin)
{
    const CIContext context;
    const CIImage part = testPicture().cropped({2, 1, 3, 2});
    for (CIFormat format : {CIFormat::RGBA8, CIFormat::RGBA16, CIFormat::RGBAf}) {
        const CIImage baked = bakedImage(context, part, format);
        EXPECT_EQ(baked.extent(), (CIRect{0, 0, 3, 2}));
        EXPECT_EQ(colorAt(baked, 0, 0), colorAt(testPicture(), 2, 1));
        EXPECT_EQ(colorAt(baked, 2, 1), colorAt(testPicture(), 4, 2));
    }
    EXPECT_TRUE(bakedImage(context, CIImage::fromColor({}), CIFormat::RGBA8).isNull()) << "no end";
    EXPECT_TRUE(bakedImage(context, {}, CIFormat::RGBA8).isNull());
}

TEST(PictureFormats, AreKnownWhileThePictureLives)
{
    PictureFormats formats;
    CIImage deep = testPicture();
    formats.remember(deep, CIFormat::RGBA16);
    EXPECT_EQ(formats.formatOf(deep, CIFormat::RGBA8), CIFormat::RGBA16);
    EXPECT_EQ(formats.formatOf(testPicture(), CIFormat::RGBA8), CIFormat::RGBA8);
    EXPECT_EQ(formats.formatOf({}, CIFormat::RGBAf), CIFormat::RGBAf);
    deep = {};
    EXPECT_EQ(formats.formatOf({}, CIFormat::RGBA8), CIFormat::RGBA8);
}

} // namespace
