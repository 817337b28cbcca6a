// Bitmaps in the colors of a profile.
#include "platform/coreimage/CIColorProfile.h"
#include "platform/coreimage/CIContext.h"
#include "platform/coreimage/CIFilter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

/// Display P3's colors with a plain power as the curve.
CIColorProfile wideProfile(double gamma = 1.8)
{
    CIColorProfile profile{.name = "wide", .light = {}, .icc = std::vector<std::byte>(5, std::byte(7))};
    profile.toLinearSRGB = {1.2249f, -0.2247f, 0, -0.0420f, 1.0419f, 0, -0.0197f, -0.0786f, 1.0979f};
    for (int code = 0; code < 65536; ++code)
        profile.light.push_back(float(std::pow(code / 65535.0, gamma)));
    return profile;
}

CIColorSpace wideSpace() { return colorSpaceOf(wideProfile()); }

CIBitmap rendered(const CIImage& image, const CIRect& part, CIFormat format, CIAlpha alpha = CIAlpha::Straight)
{
    CIBitmap bitmap(int(part.width), int(part.height), format, alpha, wideSpace());
    CIContext().renderInto(bitmap, int(part.x), int(part.top()), image);
    return bitmap;
}

/// Ramps of each color and of mixtures, over all codes or 4096 of them.
template <class T>
CIBitmap ramps(CIFormat format, CIAlpha alpha)
{
    constexpr int kFull = std::numeric_limits<T>::max(), kWidth = kFull == 255 ? 256 : 4096;
    CIBitmap bitmap(kWidth, 5, format, alpha, wideSpace());
    for (int y = 0; y < 5; ++y) {
        const std::span<T> row = bitmap.mutableRow<T>(y);
        for (std::size_t x = 0; x < kWidth; ++x) {
            const auto code = T(x * kFull / (kWidth - 1));
            for (std::size_t c = 0; c < 3; ++c)
                row[4 * x + c] = y < 3 ? (int(c) == y ? code : T(0)) : y == 3 ? code : T(c == 1 ? kFull - code : code);
            row[4 * x + 3] = alpha == CIAlpha::Opaque ? T(kFull) : T(kFull - code / 2);
        }
    }
    return bitmap;
}

template <class T>
void expectKept(CIFormat format, CIAlpha alpha)
{
    const CIBitmap bitmap = ramps<T>(format, alpha);
    const CIImage image = CIImage::fromBitmap(bitmap);
    const CIBitmap back = rendered(image, image.extent(), format, alpha);
    const std::vector<float>& light = profiledSpace(wideSpace())->profile().light;
    for (int y = 0; y < bitmap.height(); ++y)
        for (std::size_t i = 0; i < bitmap.row<T>(y).size(); ++i)
            if (const T code = bitmap.row<T>(y)[i], again = back.row<T>(y)[i]; sizeof(T) == 1 || i % 4 == 3) {
                ASSERT_EQ(again, code) << "row " << y << ", value " << i;
            } else { // beside bright colors the darkest of 16 bits differ by less than floats tell apart
                ASSERT_NEAR(light.at(again), light.at(code), 5e-7) << "row " << y << ", value " << i;
            }
}

TEST(ColorSpaces, EveryCodeComesBack)
{
    for (const CIAlpha alpha : {CIAlpha::Opaque, CIAlpha::Straight}) {
        expectKept<std::uint8_t>(CIFormat::RGBA8, alpha);
        expectKept<std::uint8_t>(CIFormat::BGRA8, alpha);
        expectKept<std::uint16_t>(CIFormat::RGBA16, alpha);
    }
}

TEST(ColorSpaces, LightLiesBeyondThatOfSrgbAtEveryScale)
{
    CIBitmap red(200, 200, CIFormat::RGBA8, CIAlpha::Opaque, wideSpace());
    for (int y = 0; y < 200; ++y)
        for (std::size_t x = 0; x < 200; ++x)
            red.mutableRow<std::uint8_t>(y)[4 * x] = 255;
    const CIImage image = CIImage::fromBitmap(red);
    for (const double scale : {1.0, 0.7, 0.25}) {
        const CIBitmap light = CIContext().render(image, {40, 40, 80, 80}, scale, CIFormat::RGBAf);
        EXPECT_NEAR(light.row<float>(5)[20], 1.2249, 1e-4) << scale;
        EXPECT_NEAR(light.row<float>(5)[21], -0.0420, 1e-4) << scale;
        EXPECT_NEAR(light.row<float>(5)[22], -0.0197, 1e-4) << scale;
    }
    const CIBitmap narrow = CIContext().render(image, {0, 0, 1, 1});
    EXPECT_EQ(narrow.row<std::uint8_t>(0)[0], 255);
    EXPECT_EQ(narrow.row<std::uint8_t>(0)[1], 0);
}

TEST(ColorSpaces, FiltersOfCodesWorkOnLight)
{
    // What only chooses among values works on codes where these are light: here they aren't.
    const CIBitmap wide = ramps<std::uint8_t>(CIFormat::RGBA8, CIAlpha::Opaque);
    const CIBitmap plain(wide.row(0), 256, 5, wide.bytesPerRow(), CIFormat::RGBA8, CIAlpha::Opaque, CIColorSpace::SRGB,
        std::make_shared<const CIBitmap>(wide));
    for (const auto& [name, source] :
        {std::pair("CIMedianFilter", wide), {"CIColorInvert", wide}, {"CIColorInvert", plain}}) {
        const CIImage image = CIImage::fromBitmap(source);
        const auto filter = CIFilter::filterWithName(name);
        filter->setDefaults();
        filter->setValueForKey(image, "inputImage");
        const CIRect part{10, 1, 100, 3};
        const CIBitmap codes = rendered(filter->outputImage(), part, CIFormat::RGBA8);
        const CIBitmap light = CIContext().render(filter->outputImage(), part, 1, CIFormat::RGBAf);
        const CIBitmap again = rendered(CIImage::fromBitmap(light), {0, 0, 100, 3}, CIFormat::RGBA8);
        for (int y = 0; y < 3; ++y)
            for (std::size_t i = 0; i < 400; ++i)
                ASSERT_EQ(codes.row<std::uint8_t>(y)[i], again.row<std::uint8_t>(y)[i]) << name << ", " << i;
    }
}

TEST(ColorSpaces, ArePackedAndChecked)
{
    for (const CIColorSpace space : {wideSpace(), CIColorSpace::SRGB, CIColorSpace::LinearSRGB})
        EXPECT_EQ(unpackedSpace(packedSpace(space)), space);
    EXPECT_NE(wideSpace(), colorSpaceOf(wideProfile(2.2)));
    EXPECT_EQ(profiledSpace(CIColorSpace(9999)), nullptr);
    const std::string bytes = packedSpace(wideSpace());
    for (const std::size_t size : {std::size_t(0), std::size_t(1), std::size_t(4), std::size_t(30), bytes.size() - 1})
        EXPECT_THROW(static_cast<void>(unpackedSpace(std::string_view(bytes).substr(0, size))), std::invalid_argument);
    CIColorProfile falls = wideProfile();
    falls.light[70] = 0;
    EXPECT_THROW(colorSpaceOf(std::move(falls)), std::invalid_argument);
    CIColorProfile grey = wideProfile();
    grey.toLinearSRGB = {1, 1, 1, 1, 1, 1, 1, 1, 1};
    EXPECT_THROW(colorSpaceOf(std::move(grey)), std::invalid_argument);
}

} // namespace
