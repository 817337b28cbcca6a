#include "app/catalogue/Looks.h"

#include "platform/coreimage/Fitting.h"

#include <QCoreApplication>

#include <algorithm>
#include <random>

namespace {

double shorterSide(const CIImage& picture) { return std::min(picture.extent().width, picture.extent().height); }

CIDictionary asItIs(const CIImage&) { return {}; }

/// White, or nearly so, on the borders, which are parts of the shorter side.
CIDictionary bordered(const CIImage& picture, const CIColor& color, double sides, double bottom)
{
    const CIRect all = picture.extent();
    const double side = sides * shorterSide(picture), low = bottom * shorterSide(picture);
    const CIRect inside{all.x + side, all.y + low, all.width - 2 * side, all.height - side - low};
    const CIImage mask = CIImage::fromColor(CIColor(0, 0, 0))
                             .cropped(inside)
                             .compositedOver(CIImage::fromColor(CIColor(1, 1, 1)))
                             .cropped(all);
    return {{"inputImage", CIImage::fromColor(color).cropped(all)}, {"inputMaskImage", mask}};
}

/// Bands of different heights across the picture, most of them gray, which moves nothing.
CIImage bands(const CIRect& extent)
{
    constexpr int kRows = 90;
    constexpr unsigned char kNoMove = 128;
    CIBitmap bitmap(1, kRows, CIFormat::RGBA8, CIAlpha::Opaque);
    std::minstd_rand random(7); // the same bands each time
    const auto upTo = [&](int most) { return int(random() % unsigned(most + 1)); };
    for (int row = 0; row < kRows;) {
        const bool moves = upTo(2) == 0;
        const auto red = static_cast<unsigned char>(moves ? upTo(255) : kNoMove);
        for (const int end = std::min(kRows, row + 1 + upTo(moves ? 3 : 9)); row < end; ++row)
            std::ranges::copy(std::initializer_list<unsigned char>{red, kNoMove, kNoMove, 255},
                bitmap.mutableRow<unsigned char>(row).begin());
    }
    const std::shared_ptr<CIFilter> hard = CIFilter::filterWithName("CISampleNearest");
    hard->setValueForKey(CIImage::fromBitmap(bitmap), "inputImage");
    return hard->outputImage().transformed({extent.width, 0, 0, extent.height / kRows, extent.x, extent.y});
}

CIImage invertedAndBlurred(const CIImage& picture, double radius)
{
    const std::shared_ptr<CIFilter> invert = CIFilter::filterWithName("CIColorInvert");
    const std::shared_ptr<CIFilter> blur = CIFilter::filterWithName("CIGaussianBlur");
    invert->setValueForKey(picture.clampedToExtent(), "inputImage");
    blur->setDefaults();
    blur->setValueForKey(invert->outputImage(), "inputImage");
    blur->setValueForKey(radius, "inputRadius");
    return blur->outputImage().cropped(picture.extent());
}

constexpr PictureLook kLooks[] = {
    {QT_TRANSLATE_NOOP("Look", "Film Grain"), QT_TRANSLATE_NOOP("Look", "The fine grain of analog film."),
        QT_TRANSLATE_NOOP("Look", "grain, film grain, analog, noise"), "CIDither",
        [](const CIImage&) {
            return CIDictionary{{"inputIntensity", 0.22}};
        }},
    {QT_TRANSLATE_NOOP("Look", "Faded Film"), QT_TRANSLATE_NOOP("Look", "Pale colors and open blacks, as after years."),
        QT_TRANSLATE_NOOP("Look", "faded, vintage, old photo, retro, matte"), "CIPhotoEffectFade", asItIs},
    {QT_TRANSLATE_NOOP("Look", "Cross Process"),
        QT_TRANSLATE_NOOP("Look", "Blue shadows and greenish lights, as from film in the wrong bath."),
        QT_TRANSLATE_NOOP("Look", "cross process, lomo, cool, retro"), "CIPhotoEffectProcess", asItIs},
    {QT_TRANSLATE_NOOP("Look", "Soft Portrait"), QT_TRANSLATE_NOOP("Look", "A gentle glow over skin and lights."),
        QT_TRANSLATE_NOOP("Look", "portrait, soft, glow, dreamy, skin, wedding"), "CIBloom",
        [](const CIImage& picture) {
            return CIDictionary{{"inputIntensity", 0.35}, {"inputRadius", 0.02 * shorterSide(picture)}};
        }},
    {QT_TRANSLATE_NOOP("Look", "Dramatic Black and White"),
        QT_TRANSLATE_NOOP("Look", "Deep blacks and bright whites without any color."),
        QT_TRANSLATE_NOOP("Look", "black and white, dramatic, noir, high contrast"), "CIPhotoEffectNoir", asItIs},
    {QT_TRANSLATE_NOOP("Look", "Tilt-Shift"),
        QT_TRANSLATE_NOOP("Look", "A sharp, vivid strip in a blurred scene, which looks like a model."),
        QT_TRANSLATE_NOOP("Look", "tilt shift, miniature, model, toy town"), "CIDepthOfField",
        [](const CIImage& picture) {
            const CIRect all = picture.extent();
            const double level = all.y + 0.42 * all.height;
            return CIDictionary{{"inputPoint0", CIVector{all.x, level}},
                {"inputPoint1", CIVector{all.x + all.width, level}}, {"inputSaturation", 1.35},
                {"inputRadius", 0.018 * shorterSide(picture)}};
        }},
    {QT_TRANSLATE_NOOP("Look", "Frame"), QT_TRANSLATE_NOOP("Look", "A white border inside the picture's edges."),
        QT_TRANSLATE_NOOP("Look", "frame, border, white border, mat"), "CIBlendWithMask",
        [](const CIImage& picture) { return bordered(picture, CIColor(1, 1, 1), 0.05, 0.05); }},
    {QT_TRANSLATE_NOOP("Look", "Instant Print"),
        QT_TRANSLATE_NOOP("Look", "The creamy border of an instant print, wide at the bottom."),
        QT_TRANSLATE_NOOP("Look", "polaroid, instant camera, frame, border, retro"), "CIBlendWithMask",
        [](const CIImage& picture) { return bordered(picture, CIColor(0.965, 0.955, 0.925), 0.055, 0.2); }},
    {QT_TRANSLATE_NOOP("Look", "Duotone"), QT_TRANSLATE_NOOP("Look", "Night blue for dark, warm cream for light."),
        QT_TRANSLATE_NOOP("Look", "duotone, two colors, split tone"), "CIFalseColor",
        [](const CIImage&) {
            return CIDictionary{{"inputColor0", CIColor(0.09, 0.08, 0.36)}, {"inputColor1", CIColor(1, 0.87, 0.62)}};
        }},
    {QT_TRANSLATE_NOOP("Look", "Glitch"),
        QT_TRANSLATE_NOOP("Look", "Bands of the picture slip aside, as in bad reception."),
        QT_TRANSLATE_NOOP("Look", "glitch, broken, television, error, vhs"), "CIDisplacementDistortion",
        [](const CIImage& picture) {
            return CIDictionary{
                {"inputDisplacementImage", bands(picture.extent())}, {"inputScale", 0.16 * picture.extent().width}};
        }},
    {QT_TRANSLATE_NOOP("Look", "Pencil"), QT_TRANSLATE_NOOP("Look", "A drawing in colored pencils."),
        QT_TRANSLATE_NOOP("Look", "pencil, drawing, sketch, colored pencil, crayon"), "CIColorDodgeBlendMode",
        [](const CIImage& picture) {
            return CIDictionary{{"inputImage", invertedAndBlurred(picture, 0.012 * shorterSide(picture))}};
        }},
    {QT_TRANSLATE_NOOP("Look", "Poster"), QT_TRANSLATE_NOOP("Look", "A few flat colors, as from a silk screen."),
        QT_TRANSLATE_NOOP("Look", "poster, pop art, flat colors, screen print"), "CIColorPosterize",
        [](const CIImage&) {
            return CIDictionary{{"inputLevels", 4.0}};
        }},
};

} // namespace

std::span<const PictureLook> looks() { return kLooks; }

const PictureLook* lookNamed(const std::string& name)
{
    const auto found = std::ranges::find_if(kLooks, [&](const PictureLook& look) { return look.name == name; });
    return found == std::end(kLooks) ? nullptr : &*found;
}

QString shownLookText(const char* text) { return QCoreApplication::translate("Look", text); }

FilterSettings settingsOf(const PictureLook& look, const CIImage& picture)
{
    const CIRect extent = picture.extent();
    const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(look.filter);
    if (!filter || extent.isEmpty() || extent.isInfinite())
        return {};
    filter->setDefaults();
    FilterSettings settings;
    settings.values = look.values(picture);
    const CIDictionary fitted = ci::fittedValues(*filter, picture);
    settings.values.insert(fitted.begin(), fitted.end());
    settings.values["class"] = std::string(look.filter);
    return settings;
}
