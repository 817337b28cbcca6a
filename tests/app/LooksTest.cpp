#include "app/catalogue/Looks.h"
#include "platform/chain/FilterChain.h"
#include "platform/coreimage/CIContext.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

/// Waves of all colors, so that each look has lights, shadows and edges to work on.
CIImage photo(int width, int height)
{
    CIBitmap bitmap(width, height, CIFormat::RGBA8, CIAlpha::Opaque);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < 4; ++c)
                bitmap.mutableRow<unsigned char>(y)[std::size_t(4 * x + c)] = c == 3
                    ? 255
                    : static_cast<unsigned char>(
                        127 + 120 * std::sin(40.0 * x / width * (c + 1)) * std::cos(30.0 * y / height));
    return CIImage::fromBitmap(bitmap);
}

struct Seen {
    double changed = 0, isClear = 0; // shares of the pixels
    double spread = 0; // of the values
};

Seen seen(const CIImage& result, const CIImage& picture)
{
    const CIRect all = picture.extent();
    const CIContext context;
    const CIBitmap now = context.render(result, all, 1, CIFormat::RGBAf, CIAlpha::Premultiplied);
    const CIBitmap before = context.render(picture, all, 1, CIFormat::RGBAf, CIAlpha::Premultiplied);
    Seen seen;
    float least = 1, most = 0;
    const double pixels = now.width() * now.height();
    for (int y = 0; y < now.height(); ++y)
        for (int x = 0; x < now.width(); ++x) {
            const std::span<const float> a = now.row<float>(y).subspan(std::size_t(4 * x), 4);
            const std::span<const float> b = before.row<float>(y).subspan(std::size_t(4 * x), 4);
            seen.changed += (std::abs(a[0] - b[0]) + std::abs(a[1] - b[1]) + std::abs(a[2] - b[2]) > 0.02f) / pixels;
            seen.isClear += (a[3] < 0.99f) / pixels;
            least = std::min(least, a[1]);
            most = std::max(most, a[1]);
        }
    seen.spread = most - least;
    return seen;
}

TEST(Looks, DoWhatTheySayOnPicturesOfAnySize)
{
    EXPECT_EQ(looks().size(), 12u);
    for (const auto& [width, height] : {std::pair(300, 200), std::pair(240, 360), std::pair(1500, 1000)})
        for (const PictureLook& look : looks()) {
            SCOPED_TRACE(testing::Message() << look.name << " at " << width);
            const CIImage picture = photo(width, height);
            const FilterSettings settings = settingsOf(look, picture);
            const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(look.filter);
            ASSERT_TRUE(filter);
            const std::vector<std::string> keys = filter->inputKeys();
            for (const auto& [key, value] : settings.values)
                EXPECT_TRUE(key == "class" || std::ranges::find(keys, key) != keys.end()) << key;
            filter->setDefaults();
            applySettings(settings, *filter);
            const CIImage result = filteredPicture(*filter, picture, {double(width), double(height)});
            const Seen shown = seen(result, picture);
            EXPECT_GT(shown.changed, std::string(look.filter) == "CIDisplacementDistortion" ? 0.1 : 0.15);
            EXPECT_LT(shown.isClear, std::string(look.filter) == "CIDisplacementDistortion" ? 0.1 : 0.001);
            EXPECT_GT(shown.spread, 0.3);
        }
    EXPECT_FALSE(settingsOf(looks().front(), CIImage()).hasClass());
    EXPECT_FALSE(settingsOf(looks().front(), CIImage::fromColor(CIColor(1, 0, 0))).hasClass());
}

TEST(Looks, FrameTheWholePicture)
{
    const CIImage picture = photo(400, 300);
    const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName("CIBlendWithMask");
    filter->setDefaults();
    applySettings(settingsOf(*lookNamed("Frame"), picture), *filter);
    const CIImage framed = filteredPicture(*filter, picture, {400, 300});
    EXPECT_EQ(framed.extent(), picture.extent());
    const CIBitmap bitmap = CIContext().render(framed, picture.extent(), 1, CIFormat::RGBA8, CIAlpha::Opaque);
    const CIBitmap plain = CIContext().render(picture, picture.extent(), 1, CIFormat::RGBA8, CIAlpha::Opaque);
    for (const auto& [x, y] : {std::pair(3, 3), std::pair(396, 150), std::pair(200, 296), std::pair(14, 200)})
        for (int c = 0; c < 3; ++c)
            EXPECT_EQ(bitmap.row<unsigned char>(y)[std::size_t(4 * x + c)], 255) << x << ", " << y;
    for (int c = 0; c < 3; ++c) // 15 px is a twentieth of the shorter side
        EXPECT_EQ(bitmap.row<unsigned char>(17)[std::size_t(4 * 17 + c)],
            plain.row<unsigned char>(17)[std::size_t(4 * 17 + c)]);
}

} // namespace
