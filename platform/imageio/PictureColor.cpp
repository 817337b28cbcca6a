#include "platform/imageio/PictureColor.h"

#include "platform/imageio/ImageLog.h"
#include "platform/imageio/ProfileSpaces.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include <lcms2.h>

namespace imageio {

namespace {

struct DeleteTransform {
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using TransformPtr = std::unique_ptr<void, DeleteTransform>;

/// As the file holds it; empty when there is none.
std::span<const std::byte> embeddedBytes(VipsImage* image)
{
    const void* bytes = nullptr;
    std::size_t size = 0;
    if (!vips_image_get_typeof(image, VIPS_META_ICC_NAME)
        || vips_image_get_blob(image, VIPS_META_ICC_NAME, &bytes, &size) != 0)
        return {};
    return {static_cast<const std::byte*>(bytes), size};
}

ProfilePtr embeddedProfile(VipsImage* image)
{
    const auto bytes = embeddedBytes(image);
    return ProfilePtr(bytes.empty() ? nullptr : cmsOpenProfileFromMem(bytes.data(), cmsUInt32Number(bytes.size())));
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

/// The one that files of ours carry, whose primaries are rounded. Null when libvips has none.
ProfilePtr writtenSrgb()
{
    VipsBlob* loaded = nullptr;
    if (vips_profile_load("srgb", &loaded, nullptr) != 0) {
        vips_error_clear();
        return nullptr;
    }
    std::size_t size = 0;
    const void* bytes = vips_blob_get(loaded, &size);
    ProfilePtr profile(cmsOpenProfileFromMem(bytes, cmsUInt32Number(size)));
    vips_area_unref(VIPS_AREA(loaded));
    return profile;
}

/// True when going over to the other profile would move no color by more than half an 8-bit step (or a 16-bit one of
/// 1/1024).
bool areAlike(cmsHPROFILE profile, cmsHPROFILE other, bool isDeep)
{
    const TransformPtr transform(other ? cmsCreateTransform(profile, TYPE_RGB_16, other, TYPE_RGB_16,
                                     INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE)
                                       : nullptr);
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

/// Most files carry one of the many spellings of sRGB, and leaving them alone is exact and quick.
bool isSrgbInEffect(cmsHPROFILE profile, bool isDeep)
{
    return cmsGetColorSpace(profile) == cmsSigRgbData
        && (areAlike(profile, ProfilePtr(cmsCreate_sRGBProfile()).get(), isDeep)
            || areAlike(profile, writtenSrgb().get(), isDeep));
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

// --- through Little CMS ---

/// Of a picture's rows; alpha is kept.
cmsUInt32Number layoutOf(VipsImage* image, int colorModel)
{
    const VipsBandFormat format = vips_image_get_format(image);
    const int colors = colorBands(image);
    return cmsUInt32Number(COLORSPACE_SH(colorModel) | CHANNELS_SH(colors)
        | EXTRA_SH(vips_image_get_bands(image) - colors) | BYTES_SH(int(vips_format_sizeof(format)))
        | FLOAT_SH(int(isFloatFormat(format))));
}

int transformRows(VipsRegion* target, void* source, void*, void* transform, gboolean*)
{
    auto* const from = static_cast<VipsRegion*>(source);
    const VipsRect area = target->valid;
    if (vips_region_prepare(from, &area) != 0)
        return -1;
    for (int y = area.top; y < area.top + area.height; ++y)
        cmsDoTransform(transform, VIPS_REGION_ADDR(from, area.left, y), VIPS_REGION_ADDR(target, area.left, y),
            cmsUInt32Number(area.width));
    return 0;
}

constexpr cmsUInt32Number kIntent = INTENT_RELATIVE_COLORIMETRIC;
constexpr cmsUInt32Number kFlags = cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOCACHE | cmsFLAGS_COPY_ALPHA;

/// As red, green and blue of that format, in the colors of `to`. Null with a pending libvips error.
VipsImagePtr transformed(VipsImagePtr image, cmsHPROFILE from, cmsHPROFILE to, VipsBandFormat format)
{
    const int bands = 3 + vips_image_get_bands(image.get()) - colorBands(image.get());
    VipsImagePtr result(vips_image_new());
    if (vips_image_pipelinev(result.get(), VIPS_DEMAND_STYLE_THINSTRIP, image.get(), nullptr) != 0)
        return nullptr;
    vips_image_init_fields(result.get(), vips_image_get_width(image.get()), vips_image_get_height(image.get()), bands,
        format, VIPS_CODING_NONE, format == VIPS_FORMAT_FLOAT ? VIPS_INTERPRETATION_scRGB : VIPS_INTERPRETATION_RGB16,
        1, 1);
    const int model = cmsGetColorSpace(from) == cmsSigCmykData ? PT_CMYK
        : cmsGetColorSpace(from) == cmsSigGrayData             ? PT_GRAY
                                                               : PT_RGB;
    TransformPtr transform(
        cmsCreateTransform(from, layoutOf(image.get(), model), to, layoutOf(result.get(), PT_RGB), kIntent, kFlags));
    if (!transform) {
        vips_error("lumivex", "the color profile can't be applied");
        return nullptr;
    }
    void* const held = transform.release();
    g_object_set_data_full(
        G_OBJECT(result.get()), "lumivex-transform", held, [](void* owned) { cmsDeleteTransform(owned); });
    VipsImage* const source = image.release(); // lives as long as what is made of it
    g_object_set_data_full(G_OBJECT(result.get()), "lumivex-source", source, g_object_unref);
    return vips_image_generate(result.get(), vips_start_one, transformRows, vips_stop_one, source, held) == 0
        ? std::move(result)
        : nullptr;
}

/// Linear sRGB.
ProfilePtr lightProfile()
{
    const cmsCIExyY white{0.3127, 0.3290, 1};
    const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1}, {0.30, 0.60, 1}, {0.15, 0.06, 1}};
    const std::unique_ptr<cmsToneCurve, void (*)(cmsToneCurve*)> line(cmsBuildGamma(nullptr, 1), cmsFreeToneCurve);
    cmsToneCurve* const lines[] = {line.get(), line.get(), line.get()};
    return ProfilePtr(cmsCreateRGBProfile(&white, &primaries, lines));
}

/// What a profile can show, in linear sRGB: a grid of its colors.
std::vector<float> colorsOf(cmsHPROFILE profile)
{
    const bool hasInks = cmsGetColorSpace(profile) == cmsSigCmykData;
    constexpr int kSteps = 8;
    std::vector<std::uint16_t> grid;
    for (int last = 0; last <= (hasInks ? 1 : 0); ++last) // without black, and with all of it
        for (int a = 0; a <= kSteps; ++a)
            for (int b = 0; b <= kSteps; ++b)
                for (int c = 0; c <= kSteps; ++c) {
                    for (const int step : {a, b, c})
                        grid.push_back(std::uint16_t(65535 * step / kSteps));
                    if (hasInks)
                        grid.push_back(std::uint16_t(65535 * last));
                }
    const std::size_t channels = hasInks ? 4 : 3;
    std::vector<float> colors(grid.size() / channels * 3);
    const ProfilePtr light = lightProfile();
    const TransformPtr transform(
        cmsCreateTransform(profile, hasInks ? TYPE_CMYK_16 : TYPE_RGB_16, light.get(), TYPE_RGB_FLT, kIntent, kFlags));
    if (transform)
        cmsDoTransform(transform.get(), grid.data(), colors.data(), cmsUInt32Number(grid.size() / channels));
    return colors;
}

/// 16 bits in the smallest space that holds what the profile can show.
WorkingColor toSmallestSpace(VipsImagePtr image, cmsHPROFILE profile)
{
    const std::vector<float> colors = colorsOf(profile);
    const ProfilePtr srgb(cmsCreate_sRGBProfile());
    if (holds(CIColorSpace::SRGB, colors))
        return {transformed(std::move(image), profile, srgb.get(), VIPS_FORMAT_USHORT), CIColorSpace::SRGB};
    const std::vector<CIColorSpace>& spaces = wideSpaces();
    const auto fitting = std::ranges::find_if(spaces, [&](CIColorSpace space) { return holds(space, colors); });
    const CIColorSpace space = fitting == spaces.end() ? spaces.back() : *fitting;
    const ProfilePtr to = profileOf(space);
    return {transformed(std::move(image), profile, to.get(), VIPS_FORMAT_USHORT), space};
}

/// Of a press, for inks that say nothing about themselves.
ProfilePtr usualInks()
{
    VipsBlob* blob = nullptr;
    if (vips_profile_load("cmyk", &blob, nullptr) != 0)
        return nullptr;
    std::size_t size = 0;
    const void* const bytes = vips_blob_get(blob, &size);
    ProfilePtr profile(cmsOpenProfileFromMem(bytes, cmsUInt32Number(size)));
    vips_area_unref(VIPS_AREA(blob));
    return profile;
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

WorkingColor withoutProfile(VipsImagePtr image)
{
    if (isCmyk(image.get())) {
        const ProfilePtr inks = usualInks();
        return inks ? toSmallestSpace(std::move(image), inks.get()) : WorkingColor{nullptr, CIColorSpace::SRGB};
    }
    if (isRgbOrGrey(image.get()))
        return {std::move(image), CIColorSpace::SRGB};
    const bool isEightBit = vips_image_get_format(image.get()) == VIPS_FORMAT_UCHAR;
    return {derive([&](VipsImage** out) {
                return vips_colourspace(
                    image.get(), out, isEightBit ? VIPS_INTERPRETATION_sRGB : VIPS_INTERPRETATION_RGB16, nullptr);
            }),
        CIColorSpace::SRGB};
}

WorkingColor applyProfile(VipsImagePtr image)
{
    if (!vips_image_get_typeof(image.get(), VIPS_META_ICC_NAME))
        return withoutProfile(std::move(image));
    const ProfilePtr profile = embeddedProfile(image.get());
    if (!profile || !fits(cmsGetColorSpace(profile.get()), image.get())) {
        imageLog("The embedded color profile doesn't fit the picture and is ignored.");
        return withoutProfile(std::move(image));
    }
    const VipsBandFormat format = vips_image_get_format(image.get());
    if (format == VIPS_FORMAT_FLOAT) {
        const ProfilePtr light = lightProfile();
        return {transformed(std::move(image), profile.get(), light.get(), format), CIColorSpace::LinearSRGB};
    }
    if (isSrgbInEffect(profile.get(), format != VIPS_FORMAT_UCHAR))
        return {std::move(image), CIColorSpace::SRGB};
    const auto icc = embeddedBytes(image.get());
    if (const std::optional<CIColorSpace> space = spaceOf(profile.get(), {icc.begin(), icc.end()}))
        return {std::move(image), *space};
    VipsImage* const source = image.get();
    g_object_ref(source);
    VipsImagePtr again(source);
    if (WorkingColor color = toSmallestSpace(std::move(image), profile.get()); color.image)
        return color;
    imageLog("The embedded color profile can't be applied: " + takeVipsError());
    return withoutProfile(std::move(again));
}

} // namespace

WorkingColor toWorkingColor(VipsImagePtr image)
{
    const VipsCoding coding = vips_image_get_coding(image.get());
    if (coding != VIPS_CODING_NONE) // packed Lab
        image = derive(
            [&](VipsImage** out) { return vips_colourspace(image.get(), out, VIPS_INTERPRETATION_RGB16, nullptr); });
    if (image && isRgbOrGrey(image.get()))
        image = toKeptFormat(std::move(image));
    if (!image)
        return {nullptr, CIColorSpace::SRGB};
    WorkingColor color = applyProfile(std::move(image));
    if (color.image)
        color.image = toKeptFormat(std::move(color.image));
    if (color.image)
        color.image = withoutSpareBands(std::move(color.image));
    return color;
}

std::string profileName(VipsImage* image)
{
    const ProfilePtr profile = embeddedProfile(image);
    return profile ? descriptionOf(profile.get()) : std::string();
}

} // namespace imageio
