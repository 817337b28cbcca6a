#include "platform/imageio/PictureColor.h"

#include "platform/imageio/ImageLog.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <span>
#include <vector>

#include <lcms2.h>

namespace imageio {

namespace {

struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
struct DeleteTransform {
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using ProfilePtr = std::unique_ptr<void, CloseProfile>;
using TransformPtr = std::unique_ptr<void, DeleteTransform>;

ProfilePtr embeddedProfile(VipsImage* image)
{
    const void* bytes = nullptr;
    std::size_t size = 0;
    if (!vips_image_get_typeof(image, VIPS_META_ICC_NAME)
        || vips_image_get_blob(image, VIPS_META_ICC_NAME, &bytes, &size) != 0)
        return nullptr;
    return ProfilePtr(cmsOpenProfileFromMem(bytes, cmsUInt32Number(size)));
}

bool isFloatFormat(VipsBandFormat format) { return format == VIPS_FORMAT_FLOAT || format == VIPS_FORMAT_DOUBLE; }

bool isCmyk(VipsImage* image) { return vips_image_get_interpretation(image) == VIPS_INTERPRETATION_CMYK; }

int colorBands(VipsImage* image) { return vips_image_get_bands(image) - (vips_image_hasalpha(image) ? 1 : 0); }

bool fits(cmsColorSpaceSignature space, VipsImage* image)
{
    switch (space) {
    case cmsSigGrayData:
        return colorBands(image) == 1;
    case cmsSigRgbData:
        return colorBands(image) == 3;
    case cmsSigCmykData:
        return isCmyk(image);
    default:
        return false;
    }
}

/// True when applying the profile would move no color by more than half an 8-bit step (or a 16-bit one of
/// 1/1024): most files carry one of the many spellings of sRGB, and leaving them alone is exact and quick.
bool isSrgbInEffect(cmsHPROFILE profile, bool isDeep)
{
    if (cmsGetColorSpace(profile) != cmsSigRgbData)
        return false;
    const ProfilePtr srgb(cmsCreate_sRGBProfile());
    const TransformPtr transform(cmsCreateTransform(
        profile, TYPE_RGB_16, srgb.get(), TYPE_RGB_16, INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE));
    if (!transform)
        return false;
    constexpr int kSteps = 8;
    const int tolerance = isDeep ? 64 : 128;
    std::vector<std::uint16_t> before;
    for (int red = 0; red <= kSteps; ++red)
        for (int green = 0; green <= kSteps; ++green)
            for (int blue = 0; blue <= kSteps; ++blue)
                for (const int step : {red, green, blue})
                    before.push_back(std::uint16_t(65535 * step / kSteps));
    std::vector<std::uint16_t> after(before.size());
    cmsDoTransform(transform.get(), before.data(), after.data(), cmsUInt32Number(before.size() / 3));
    for (std::size_t i = 0; i < before.size(); ++i)
        if (std::abs(int(before[i]) - int(after[i])) > tolerance)
            return false;
    return true;
}

VipsImagePtr cast(VipsImagePtr image, VipsBandFormat format)
{
    return derive([&](VipsImage** out) { return vips_cast(image.get(), out, format, nullptr); });
}

/// Whole numbers, the lowest of which becomes 0.
VipsImagePtr fromLowest(VipsImagePtr image, double lowest, double divisor, VipsBandFormat format)
{
    image =
        derive([&](VipsImage** out) { return vips_linear1(image.get(), out, 1 / divisor, lowest / divisor, nullptr); });
    return image ? cast(std::move(image), format) : nullptr;
}

/// Whole numbers other than 8 and 16 bits are rare; they become the nearest of the three formats we keep.
VipsImagePtr toKeptFormat(VipsImagePtr image)
{
    switch (vips_image_get_format(image.get())) {
    case VIPS_FORMAT_UCHAR:
    case VIPS_FORMAT_USHORT:
    case VIPS_FORMAT_FLOAT:
        return image;
    case VIPS_FORMAT_DOUBLE:
        return cast(std::move(image), VIPS_FORMAT_FLOAT);
    case VIPS_FORMAT_CHAR:
        return fromLowest(std::move(image), 0x1p7, 1, VIPS_FORMAT_UCHAR);
    case VIPS_FORMAT_SHORT:
        return fromLowest(std::move(image), 0x1p15, 1, VIPS_FORMAT_USHORT);
    case VIPS_FORMAT_INT:
        return fromLowest(std::move(image), 0x1p31, 65536, VIPS_FORMAT_USHORT);
    case VIPS_FORMAT_UINT:
        return fromLowest(std::move(image), 0, 65536, VIPS_FORMAT_USHORT);
    default:
        vips_error("lumivex", "pixels are complex numbers");
        return nullptr;
    }
}

VipsImagePtr transformToSrgb(VipsImage* image, const char* inputProfile)
{
    const int depth = vips_image_get_format(image) == VIPS_FORMAT_UCHAR ? 8 : 16;
    return derive([&](VipsImage** out) {
        return vips_icc_transform(image, out, "srgb", "embedded", gboolean(!inputProfile), "input_profile",
            inputProfile ? inputProfile : "srgb", "intent", VIPS_INTENT_RELATIVE, "black_point_compensation", TRUE,
            "depth", depth, nullptr);
    });
}

VipsImagePtr withoutSpareBands(VipsImagePtr image)
{
    const int bands = vips_image_get_bands(image.get());
    const bool hasAlpha = vips_image_hasalpha(image.get());
    const int kept = bands <= 2 ? (hasAlpha ? bands : 1) : (hasAlpha && bands >= 4 ? 4 : 3);
    if (kept == bands)
        return image;
    return derive([&](VipsImage** out) { return vips_extract_band(image.get(), out, 0, "n", kept, nullptr); });
}

bool isRgbOrGrey(VipsImage* image)
{
    switch (vips_image_get_interpretation(image)) {
    case VIPS_INTERPRETATION_sRGB:
    case VIPS_INTERPRETATION_RGB:
    case VIPS_INTERPRETATION_RGB16:
    case VIPS_INTERPRETATION_scRGB:
    case VIPS_INTERPRETATION_B_W:
    case VIPS_INTERPRETATION_GREY16:
    case VIPS_INTERPRETATION_MULTIBAND:
    case VIPS_INTERPRETATION_HISTOGRAM:
    case VIPS_INTERPRETATION_MATRIX:
        return true;
    default:
        return false;
    }
}

VipsImagePtr withoutProfile(VipsImagePtr image)
{
    if (isCmyk(image.get()))
        return transformToSrgb(image.get(), "cmyk");
    if (isRgbOrGrey(image.get()))
        return image;
    return derive([&](VipsImage** out) {
        const bool isEightBit = vips_image_get_format(image.get()) == VIPS_FORMAT_UCHAR;
        return vips_colourspace(
            image.get(), out, isEightBit ? VIPS_INTERPRETATION_sRGB : VIPS_INTERPRETATION_RGB16, nullptr);
    });
}

VipsImagePtr applyProfile(VipsImagePtr image)
{
    if (!vips_image_get_typeof(image.get(), VIPS_META_ICC_NAME))
        return withoutProfile(std::move(image));
    const ProfilePtr profile = embeddedProfile(image.get());
    if (!profile || !fits(cmsGetColorSpace(profile.get()), image.get())
        || isFloatFormat(vips_image_get_format(image.get()))) {
        imageLog("The embedded color profile doesn't fit the picture and is ignored.");
        return withoutProfile(std::move(image));
    }
    if (isSrgbInEffect(profile.get(), vips_image_get_format(image.get()) != VIPS_FORMAT_UCHAR))
        return image;
    if (VipsImagePtr transformed = transformToSrgb(image.get(), nullptr))
        return transformed;
    imageLog("The embedded color profile can't be applied: " + takeVipsError());
    return withoutProfile(std::move(image));
}

} // namespace

VipsImagePtr toWorkingColor(VipsImagePtr image)
{
    const VipsCoding coding = vips_image_get_coding(image.get());
    if (coding != VIPS_CODING_NONE) // packed Lab
        image = derive(
            [&](VipsImage** out) { return vips_colourspace(image.get(), out, VIPS_INTERPRETATION_RGB16, nullptr); });
    if (image && isRgbOrGrey(image.get()))
        image = toKeptFormat(std::move(image));
    if (image)
        image = applyProfile(std::move(image));
    if (image)
        image = toKeptFormat(std::move(image));
    return image ? withoutSpareBands(std::move(image)) : nullptr;
}

std::string profileName(VipsImage* image)
{
    const ProfilePtr profile = embeddedProfile(image);
    std::array<char, 256> text{};
    if (!profile
        || !cmsGetProfileInfoASCII(profile.get(), cmsInfoDescription, "en", "US", text.data(), text.size() - 1))
        return {};
    return text.data();
}

} // namespace imageio
