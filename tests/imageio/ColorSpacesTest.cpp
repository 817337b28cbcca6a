// Pictures keep their colors from the file they come from to the file they go to.
#include "tests/imageio/PictureFiles.h"

#include "platform/coreimage/CIColorProfile.h"
#include "platform/coreimage/CIContext.h"
#include "platform/coreimage/CIFilter.h"
#include "platform/imageio/PictureReader.h"
#include "platform/imageio/PictureWriter.h"
#include "platform/imageio/ProfileSpaces.h"
#include "platform/imageio/reader_process/ReaderProcess.h"

#include <set>

#include <gmock/gmock.h>
#include <lcms2.h>

namespace {

using imageio::wideSpaces;

const CIColorProfile& profileOf(CIColorSpace space)
{
    static const CIColorProfile none;
    const CIProfiledSpace* const profiled = profiledSpace(space);
    EXPECT_TRUE(profiled);
    return profiled ? profiled->profile() : none;
}

Bytes profileBytes(CIColorSpace space)
{
    const auto& icc = profileOf(space).icc;
    return {icc.begin(), icc.end()};
}

constexpr int kCodes = 256;

/// Every step of red, and below of grey.
Bytes rampFile(CIColorSpace space)
{
    Bytes rows;
    for (int code = 0; code < kCodes; ++code)
        append(rows, bytesOf({code, 0, 0}));
    for (int code = 0; code < kCodes; ++code)
        append(rows, bytesOf({code, code, code}));
    return pngFile(kCodes, 2, 8, 2, rows, {profileChunk(profileBytes(space))});
}

CIBitmap read(const Bytes& file)
{
    const Result<CIBitmap> result = ReaderProcess(file).readPicture();
    EXPECT_TRUE(result) << result.message();
    return result ? *result : CIBitmap(9, 9);
}

/// As a filter of no effect is applied.
CIBitmap applied(const CIBitmap& bitmap)
{
    const auto filter = CIFilter::filterWithName("CIExposureAdjust");
    filter->setDefaults();
    filter->setValueForKey(CIImage::fromBitmap(bitmap), "inputImage");
    filter->setValueForKey(1e-9, "inputEV");
    CIBitmap result(bitmap.width(), bitmap.height(), bitmap.format(), CIAlpha::Opaque, bitmap.colorSpace());
    CIContext().renderInto(result, 0, bitmap.height(), filter->outputImage());
    return result;
}

void expectRamp(const CIBitmap& bitmap, CIColorSpace space, double tolerance)
{
    ASSERT_EQ(bitmap.width(), kCodes);
    EXPECT_EQ(profileOf(bitmap.colorSpace()).name, profileOf(space).name);
    EXPECT_EQ(profileOf(bitmap.colorSpace()).icc, profileOf(space).icc);
    for (int code = 0; code < kCodes; ++code) {
        EXPECT_NEAR(pixelAt(bitmap, code, 0)[0], code, tolerance);
        EXPECT_NEAR(pixelAt(bitmap, code, 0)[1], 0, tolerance);
        EXPECT_NEAR(pixelAt(bitmap, code, 1)[2], code, tolerance);
    }
}

TEST(ColorSpacesOfFiles, StayThroughFiltersAndSaving)
{
    ASSERT_EQ(wideSpaces().size(), 4u);
    for (const CIColorSpace space : wideSpaces()) {
        SCOPED_TRACE(profileOf(space).name);
        const CIBitmap opened = read(rampFile(space));
        expectRamp(opened, space, 0);
        const CIBitmap result = applied(opened);
        expectRamp(result, space, 0);
        for (const PictureFormat format : {PictureFormat::Png, PictureFormat::Tiff})
            expectRamp(read(*encodePicture(result, {.format = format})), space, 0);
        expectRamp(read(*encodePicture(result, {.format = PictureFormat::WebP, .isLossless = true})), space, 0);
        const Bytes jpeg = *encodePicture(result, {.format = PictureFormat::Jpeg, .quality = 1, .hasFullChroma = true});
        expectRamp(read(jpeg), space, 4);
        const CIBitmap deep = read(*encodePicture(result, {.format = PictureFormat::Png, .bitsPerComponent = 16}));
        EXPECT_EQ(deep.format(), CIFormat::RGBA16);
        EXPECT_EQ(profileOf(deep.colorSpace()).name, profileOf(space).name);
        EXPECT_EQ(pixelAt(deep, 77, 0)[0], 77 * 257);
        EXPECT_EQ(pixelAt(applied(deep), 77, 0)[0], 77 * 257);
    }
}

TEST(ColorSpacesOfFiles, BecomeSrgbWhereAFormatHasNoProfiles)
{
    const CIBitmap opened = read(rampFile(wideSpaces().front()));
    for (const PictureFormat format : {PictureFormat::Bmp, PictureFormat::Jpeg2000}) {
        const CIBitmap plain = read(*encodePicture(opened, {.format = format, .isLossless = true}));
        EXPECT_EQ(plain.colorSpace(), CIColorSpace::SRGB);
        for (const int code : {0, 50, 200})
            for (const int y : {0, 1})
                EXPECT_NEAR(pixelAt(plain, code, y)[0], pixelAt(inSrgb(opened), code, y)[0], 1);
    }
}

TEST(ColorSpacesOfFiles, AreThoseOfTheirProfiles)
{
    const CIColorProfile& adobe = profileOf(wideSpaces()[1]);
    const CIBitmap grey = read(pngFile(1, 1, 8, 0, bytesOf({100}), {{"gAMA", bytesOf({0, 1, 0x86, 0xa0})}}));
    EXPECT_NEAR(double(profileOf(grey.colorSpace()).light.at(32768)), 0.5, 1e-4) << "a curve for grey";
    // Between linear light and codes, by the numbers of the standard: red of Adobe RGB in linear sRGB.
    EXPECT_NEAR(double(adobe.toLinearSRGB[0]), 1.39836, 2e-4);
    EXPECT_NEAR(double(adobe.toLinearSRGB[1]), -0.39836, 2e-4);
    EXPECT_NEAR(double(adobe.light[30000]), std::pow(30000 / 65535.0, 563.0 / 256), 1e-5);
}

TEST(ColorSpacesOfFiles, FloatsHeedTheirProfile)
{
    const Bytes profile = profileBytes(wideSpaces().front());
    std::vector<std::int64_t> values;
    for (const std::byte byte : profile)
        values.push_back(std::to_integer<std::int64_t>(byte));
    const Bytes file = tiffFile(1, 1, 3, 32, 2, floatsOf({1, 0, 0}), {{339, 3, {3, 3, 3}}, {34675, 7, values}});
    const CIBitmap bitmap = read(file);
    ASSERT_EQ(bitmap.format(), CIFormat::RGBAf);
    EXPECT_NEAR(pixelAt(bitmap, 0, 0)[0], 1.2249, 2e-3);
    EXPECT_NEAR(pixelAt(bitmap, 0, 0)[1], -0.0420, 2e-3);
}

TEST(ColorSpacesOfFiles, InksGoWhereTheirColorsFit)
{
    const CIBitmap inks = read(inksFile());
    EXPECT_EQ(inks.format(), CIFormat::RGBA16);
    const CIBitmap light = CIContext().render(CIImage::fromBitmap(inks), {2, 0, 1, 1}, 1, CIFormat::RGBAf);
    EXPECT_LT(light.row<float>(0)[0], -0.02) << "printed cyan is more than sRGB can show";
}

} // namespace
