#include "platform/coreimage/Fitting.h"
#include "platform/chain/Effect.h"
#include "platform/chain/FilterChain.h"
#include "platform/coreimage/CITextRenderer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace {

/// A meadow under an evening sky, a house wall in the shade: all that photos have, down to the grain of the sensor.
CIImage photo(int width, int height)
{
    CIBitmap bitmap(width, height, CIFormat::RGBA8, CIAlpha::Opaque);
    const float side = float(std::min(width, height));
    std::uint32_t grain = 12345;
    std::vector<float> hills(static_cast<std::size_t>(width)), waves(hills.size());
    for (int x = 0; x < width; ++x) {
        const float u = float(x) / side;
        hills[std::size_t(x)] = 0.45f + 0.06f * std::sin(5 * u) + 0.02f * std::sin(17 * u + 1);
        waves[std::size_t(x)] = 12 * std::sin(90 * u) + 9 * std::sin(411 * u + 2);
    }
    for (int y = 0; y < height; ++y) {
        auto* p = bitmap.mutableRow<std::uint8_t>(y).data();
        const float v = float(y) / side, down = float(y) / float(height), wave = 10 * std::sin(133 * v);
        for (int x = 0; x < width; ++x, p += 4) {
            grain = grain * 1664525u + 1013904223u;
            const float u = float(x) / side, noise = float(grain >> 24) / 16 - 8;
            float r = 90 + 150 * down, g = 130 + 70 * down, b = 215 - 60 * down; // sky
            if (down > hills[std::size_t(x)]) {
                const float grass = waves[std::size_t(x)] + wave;
                r = 95 + grass - 50 * (down - 0.5f), g = 120 + grass, b = 50 + grass / 2;
            }
            if (const float dx = u - 0.7f, dy = v - 0.25f; dx * dx + dy * dy < 0.01f)
                r = 255, g = 240, b = 200; // the sun
            if (u > 0.2f && u < 0.45f && v > 0.4f && v < 0.8f) {
                const bool isWindow = std::fmod(u, 0.1f) < 0.05f && std::fmod(v, 0.16f) < 0.08f;
                r = isWindow ? 25 : 190, g = isWindow ? 30 : 95, b = isWindow ? 40 : 70;
            }
            p[0] = std::uint8_t(std::clamp(r + noise, 0.0f, 255.0f));
            p[1] = std::uint8_t(std::clamp(g + noise, 0.0f, 255.0f));
            p[2] = std::uint8_t(std::clamp(b + noise, 0.0f, 255.0f));
            p[3] = 255;
        }
    }
    return CIImage::fromBitmap(bitmap);
}

/// What no values help.
const std::map<std::string, const char*> kExceptions{
    {"CISampleNearest", "has no inputs, and changes pictures only that are enlarged"},
    {"CIPaletteCentroid", "answers a row of places, not a picture"},
    {"CIDepthToDisparity", "turns depths of meters into their inverses, most of which are beyond white"},
    {"CIDisparityToDepth", "as above"},
    {"CILineOverlay", "draws lines of single pixels, which a small rendering of a large photo doesn't have"},
    {"CICannyEdgeDetector", "draws thin lines on black, which most of the picture is"},
    {"CIEdges", "as above"},
    {"CIGaborGradients", "as above"},
    {"CISobelGradients", "as above"},
    {"CISourceOutCompositing", "shows the second picture only where this one is not, which is nowhere"},
    {"CIClamp", "its extent is the view's; what lies outside isn't in the picture"},
};

struct Counts {
    int unchanged = 0, little = 0, uniform = 0;
    void add(const Effect& e)
    {
        unchanged += e.changed == 0;
        little += e.changed > 0 && e.changed < 0.05;
        uniform += e.isEmpty || e.isFlat;
    }
};

std::string wordFor(const Effect& e)
{
    return e.isEmpty                      ? "empty"
        : e.isFlat                        ? "flat"
        : std::isgreater(e.changed, 0.05) ? std::to_string(int(100 * e.changed)) + " %"
        : e.changed > 0                   ? "little"
                                          : "unchanged";
}

/// Bars where there would be letters.
struct Bars : CITextRenderer {
    CIBitmap render(const CIText& text) const override
    {
        const auto height = int(text.runs.front().fontSize * text.scale);
        CIBitmap bitmap(4 * height, height, CIFormat::RGBA8, CIAlpha::Straight);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < bitmap.width(); x += 2)
                bitmap.mutableRow<std::uint32_t>(y)[std::size_t(x)] = 0xff000000;
        return bitmap;
    }
};

/// As when it is chosen: with the picture in all inputs, and a ramp for pictures of the editor's own.
std::shared_ptr<CIFilter> chosen(const std::string& name, const CIImage& picture, const CIImage& ramp)
{
    const auto filter = CIFilter::filterWithName(name);
    filter->setDefaults();
    setupAllImageInputsToNotNil(*filter, picture);
    for (const std::string& key : filter->inputKeys()) {
        const CIInputAttributes& input = *filter->attributesForKey(key);
        if (!input.automaticValue.isNothing())
            filter->setValueForKey(input.automaticValue, key);
        else if (input.isImage() && input.automatic != Automatic::None)
            filter->setValueForKey(ramp, key);
    }
    return filter;
}

/// Those that the editor's list has.
std::vector<std::string> listed()
{
    std::vector<std::string> names = CIFilter::filterNamesInCategory("");
    for (const std::string& category : {kCICategoryTransition, kCICategoryReduction})
        for (const std::string& name : CIFilter::filterNamesInCategory(category))
            std::erase(names, name);
    return names;
}

} // namespace

TEST(Fitting, EveryFilterShowsSomethingOnEveryPhoto)
{
    CITextRenderer::install(std::make_shared<Bars>());
    const CIImage ramp = photo(256, 64);
    const bool isTold = std::getenv("LUMIVEX_FITTING_TABLE") != nullptr;
    for (const auto& [width, height, name] :
        {std::tuple(6000, 4000, "landscape"), std::tuple(4000, 6000, "portrait"), std::tuple(400, 300, "small")}) {
        const CIImage picture = photo(width, height);
        Counts before, after;
        for (const std::string& filterName : listed()) {
            const auto filter = chosen(filterName, picture, ramp);
            const auto effect = [&] {
                return effectOn(picture, filteredPicture(*filter, picture, {double(width), double(height)}));
            };
            const Effect standard = isTold ? effect() : Effect();
            fitToPicture(*filter, picture);
            const Effect fitted = effect();
            before.add(standard), after.add(fitted);
            if (isTold)
                std::printf(
                    "%s\t%s\t%s\t%s\n", name, filterName.c_str(), wordFor(standard).c_str(), wordFor(fitted).c_str());
            EXPECT_TRUE(fitted.tells() || kExceptions.contains(filterName))
                << filterName << " on " << name << ": " << wordFor(fitted);
        }
        if (isTold)
            std::printf("%s: unchanged %d -> %d, less than 5 %% changed %d -> %d, empty or uniform %d -> %d\n", name,
                before.unchanged, after.unchanged, before.little, after.little, before.uniform, after.uniform);
    }
}

TEST(Fitting, PlacesAndLengthsArePartsOfThePicture)
{
    const CIImage picture = CIImage::fromColor(CIColor(0, 0, 0, 1)).cropped({100, 50, 6000, 3000});
    const auto fitted = [&](const char* name) { return ci::fittedValues(*CIFilter::filterWithName(name), picture); };
    const auto twirl = fitted("CITwirlDistortion");
    EXPECT_EQ(twirl.at("inputCenter"), CIValue(CIVector{3100, 1550}));
    EXPECT_EQ(twirl.at("inputRadius").toDouble(), 3000) << "as 300 is of 300";
    EXPECT_EQ(twirl.at("inputAngle").toDouble(), M_PI) << "angles don't grow";
    EXPECT_EQ(fitted("CIMorphologyMaximum").at("inputRadius").toDouble(), 30) << "10 px of 1000";
    EXPECT_EQ(fitted("CIBokehBlur").at("inputRadius").toDouble(), 60);
    EXPECT_EQ(fitted("CICrop").at("inputRectangle"), CIValue(CIVector{700, 350, 4800, 2400}));
    EXPECT_EQ(fitted("CISpotLight").at("inputBrightness").toDouble(), 3) << "no distance, whatever it is called";
    EXPECT_EQ(fitted("CIMix").at("inputImage").toImage().extent(), picture.extent());
    EXPECT_FALSE(fitted("CIGlassDistortion").contains("inputTexture")) << "the editor has one of its own";
    const CIPoint middle = fitted("CIAffineTransform").at("inputTransform").toTransform().map({3100, 1550});
    EXPECT_NEAR(std::hypot(middle.x - 3100, middle.y - 1550), 0, 1e-9);
    EXPECT_TRUE(
        ci::fittedValues(*CIFilter::filterWithName("CIVignette"), CIImage::fromColor(CIColor(1, 0, 0, 1))).empty());

    // On the picture that standard values are made for, nothing but what tells more differs from them.
    const CIImage standard = CIImage::fromColor(CIColor(0, 0, 0, 1)).cropped({0, 0, 300, 300});
    for (const std::string& name : CIFilter::filterNamesInCategory(kCICategoryDistortionEffect)) {
        const auto filter = CIFilter::filterWithName(name);
        for (const auto& [key, value] : ci::fittedValues(*filter, standard))
            if (const CIInputAttributes& input = *filter->attributesForKey(key);
                input.tellingValue.isNothing() && !input.isImage()) {
                EXPECT_EQ(value, input.defaultValue) << name << " " << key;
            }
    }
}
