// PNG: what its chunks say about colors and about the way up.
#include "platform/imageio/Exiv2Image.h"
#include "platform/imageio/readers/FileBytes.h"
#include "platform/imageio/readers/Readers.h"

#include <array>
#include <cmath>
#include <functional>
#include <optional>
#include <vector>

#include <lcms2.h>

namespace imageio {

namespace {

struct Chromaticities {
    double white[2], red[2], green[2], blue[2];
};
constexpr Chromaticities kRec709{{0.3127, 0.3290}, {0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}};
constexpr Chromaticities kRec2020{{0.3127, 0.3290}, {0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046}};

/// The numbers of ITU-T H.273.
std::optional<Chromaticities> namedPrimaries(std::uint32_t number)
{
    switch (number) {
    case 1:
        return kRec709;
    case 5:
        return Chromaticities{{0.3127, 0.3290}, {0.64, 0.33}, {0.29, 0.60}, {0.15, 0.06}};
    case 6:
    case 7:
        return Chromaticities{{0.3127, 0.3290}, {0.630, 0.340}, {0.310, 0.595}, {0.155, 0.070}};
    case 9:
        return kRec2020;
    case 11:
        return Chromaticities{{0.314, 0.351}, {0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}};
    case 12:
        return Chromaticities{{0.3127, 0.3290}, {0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}};
    default:
        return std::nullopt;
    }
}

/// A curve of ICC's parametric kind 3, or a power.
using Curve = std::array<double, 5>;
constexpr Curve kSrgbCurve{2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};

Curve power(double gamma) { return {gamma, 1, 0, 0, 0}; }

std::optional<Curve> namedCurve(std::uint32_t number)
{
    switch (number) {
    case 1:
    case 6:
    case 14:
    case 15:
        return Curve{1 / 0.45, 1 / 1.099, 0.099 / 1.099, 1 / 4.5, 0.081};
    case 4:
        return power(2.2);
    case 5:
        return power(2.8);
    case 8:
        return power(1);
    case 13:
        return kSrgbCurve;
    default:
        return std::nullopt;
    }
}

/// The light of a code from 0 to 1, for pictures that are brighter than paper: 1 is the white of paper.
double lightOfPq(double code)
{
    constexpr double kM1 = 0.1593017578125, kM2 = 78.84375, kC1 = 0.8359375, kC2 = 18.8515625, kC3 = 18.6875;
    constexpr double kMost = 10000, kPaper = 203; // candela a square meter, as ITU-R BT.2408 has them
    const double root = std::pow(code, 1 / kM2);
    return std::pow(std::max(root - kC1, 0.0) / (kC2 - kC3 * root), 1 / kM1) * kMost / kPaper;
}

double lightOfHlg(double code)
{
    constexpr double kA = 0.17883277, kB = 0.28466892, kC = 0.55991073;
    constexpr double kMost = 1000, kPaper = 203, kSystemGamma = 1.2; // of a screen of so many candela
    const double scene = code <= 0.5 ? code * code / 3 : (std::exp((code - kC) / kA) + kB) / 12;
    return std::pow(scene, kSystemGamma) * kMost / kPaper;
}

/// What the chunks before the pixels say.
struct ColorChunks {
    bool hasProfile = false, isSrgb = false;
    std::uint32_t gamma = 0; // times 100000, of the codes
    std::optional<Chromaticities> chromaticities{};
    std::optional<std::array<std::uint32_t, 4>> codePoints{}; // primaries, curve, matrix, full range

    explicit ColorChunks(const BigEndian& file)
    {
        constexpr int kMostChunks = 4096;
        std::size_t at = 8;
        for (int i = 0; i < kMostChunks && at + 12 <= file.size(); ++i) {
            const std::string_view name = file.text(at + 4, 4);
            if (name == "IDAT")
                break;
            take(name, file, at + 8);
            at += 12 + std::size_t(file.u32(at));
        }
    }

private:
    void take(std::string_view name, const BigEndian& file, std::size_t at)
    {
        if (name == "iCCP")
            hasProfile = true;
        else if (name == "sRGB")
            isSrgb = true;
        else if (name == "gAMA")
            gamma = file.u32(at);
        else if (name == "cICP")
            codePoints = {file.u8(at), file.u8(at + 1), file.u8(at + 2), file.u8(at + 3)};
        else if (name == "cHRM") {
            std::array<double, 8> all{};
            for (std::size_t i = 0; i < all.size(); ++i)
                all[i] = file.u32(at + 4 * i) / 100000.0;
            chromaticities = {{all[0], all[1]}, {all[2], all[3]}, {all[4], all[5]}, {all[6], all[7]}};
        }
    }
};

/// As the embedded profile of the image.
void setProfile(VipsImage* image, const Chromaticities& colors, const Curve& curve)
{
    const std::unique_ptr<cmsToneCurve, void (*)(cmsToneCurve*)> tone(
        cmsBuildParametricToneCurve(nullptr, curve[4] > 0 ? 4 : 1, curve.data()), cmsFreeToneCurve);
    const cmsCIExyY white{colors.white[0], colors.white[1], 1};
    const cmsCIExyYTRIPLE primaries{
        {colors.red[0], colors.red[1], 1}, {colors.green[0], colors.green[1], 1}, {colors.blue[0], colors.blue[1], 1}};
    cmsToneCurve* const curves[] = {tone.get(), tone.get(), tone.get()};
    const std::unique_ptr<void, int (*)(void*)> profile(vips_image_get_bands(image) <= 2
            ? cmsCreateGrayProfile(&white, tone.get())
            : cmsCreateRGBProfile(&white, &primaries, curves),
        cmsCloseProfile);
    cmsUInt32Number size = 0;
    if (!profile || !cmsSaveProfileToMem(profile.get(), nullptr, &size))
        return; // of no colors that there are
    std::vector<std::byte> bytes(size);
    if (cmsSaveProfileToMem(profile.get(), bytes.data(), &size))
        vips_image_set_blob_copy(image, VIPS_META_ICC_NAME, bytes.data(), size);
}

/// To linear Rec. 709 from Rec. 2020, by ITU-R BT.2087.
constexpr double kNarrower[9] = {
    1.660491, -0.587641, -0.072850, -0.124550, 1.132900, -0.008349, -0.018151, -0.100579, 1.118730};

/// Floats, whatever their brightness. Null with a pending libvips error when that fails.
VipsImagePtr lightOf(VipsImage* image, double (*curve)(double), bool isWide)
{
    const bool isDeep = vips_image_get_format(image) == VIPS_FORMAT_USHORT, hasAlpha = vips_image_hasalpha(image);
    const int codes = isDeep ? 65536 : 256, bands = vips_image_get_bands(image) - (hasAlpha ? 1 : 0);
    std::vector<float> light;
    for (int code = 0; code < codes; ++code)
        light.push_back(float(curve(double(code) / (codes - 1))));
    const VipsImagePtr table(
        vips_image_new_from_memory_copy(light.data(), light.size() * sizeof(float), codes, 1, 1, VIPS_FORMAT_FLOAT));
    VipsImagePtr colors =
        derive([&](VipsImage** out) { return vips_extract_band(image, out, 0, "n", bands, nullptr); });
    if (colors)
        colors = derive([&](VipsImage** out) { return vips_maplut(colors.get(), out, table.get(), nullptr); });
    if (colors && isWide && bands == 3) {
        const VipsImagePtr matrix(vips_image_new_matrix_from_array(3, 3, kNarrower, 9));
        colors = derive([&](VipsImage** out) { return vips_recomb(colors.get(), out, matrix.get(), nullptr); });
    }
    if (colors && hasAlpha) {
        const VipsImagePtr alpha =
            derive([&](VipsImage** out) { return vips_extract_band(image, out, bands, nullptr); });
        const VipsImagePtr shares = alpha
            ? derive([&](VipsImage** out) { return vips_linear1(alpha.get(), out, 1.0 / (codes - 1), 0, nullptr); })
            : nullptr;
        colors = shares
            ? derive([&](VipsImage** out) { return vips_bandjoin2(colors.get(), shares.get(), out, nullptr); })
            : nullptr;
    }
    return colors ? derive([&](VipsImage** out) {
        return vips_copy(colors.get(), out, "interpretation", VIPS_INTERPRETATION_scRGB, nullptr);
    })
                  : nullptr;
}

/// The first that is there counts: code points, a profile, the mark of sRGB, gamma.
void applyColors(VipsImagePtr& image, const ColorChunks& chunks)
{
    constexpr std::uint32_t kPq = 16, kHlg = 18, kRec2020Number = 9;
    if (chunks.codePoints && (*chunks.codePoints)[2] == 0 && (*chunks.codePoints)[3] == 1) {
        const std::uint32_t number = (*chunks.codePoints)[1];
        const auto primaries = namedPrimaries((*chunks.codePoints)[0]);
        if (primaries && (number == kPq || number == kHlg)) {
            vips_image_remove(image.get(), VIPS_META_ICC_NAME);
            image =
                lightOf(image.get(), number == kPq ? lightOfPq : lightOfHlg, (*chunks.codePoints)[0] == kRec2020Number);
            return;
        }
        if (const auto curve = namedCurve(number); curve && primaries)
            return setProfile(image.get(), *primaries, *curve);
    }
    constexpr std::uint32_t kOfSrgb = 45455, kNearly = 500;
    const bool isUsual = chunks.gamma > kOfSrgb - kNearly && chunks.gamma < kOfSrgb + kNearly;
    if (chunks.hasProfile || chunks.isSrgb || chunks.gamma == 0 || (isUsual && !chunks.chromaticities))
        return;
    setProfile(
        image.get(), chunks.chromaticities.value_or(kRec709), isUsual ? kSrgbCurve : power(100000.0 / chunks.gamma));
}

/// 0 when it says nothing.
int orientationInXmp(VipsImage* image)
{
    const void* bytes = nullptr;
    std::size_t size = 0;
    if (!vips_image_get_typeof(image, VIPS_META_XMP_NAME)
        || vips_image_get_blob(image, VIPS_META_XMP_NAME, &bytes, &size) != 0)
        return 0;
    prepareExiv2();
    try {
        Exiv2::XmpData xmp;
        if (Exiv2::XmpParser::decode(xmp, std::string(static_cast<const char*>(bytes), size)) != 0)
            return 0;
        const auto found = xmp.findKey(Exiv2::XmpKey("Xmp.tiff.Orientation"));
        const std::string text = found == xmp.end() ? "" : found->toString();
        return text.size() == 1 && text[0] >= '1' && text[0] <= '8' ? text[0] - '0' : 0;
    } catch (const std::exception&) {
        return 0; // a broken packet
    }
}

} // namespace

void openPng(OpenPicture& picture, const PictureInput&, int)
{
    const BigEndian file(PictureInput::wholeContent(picture.source.get()));
    picture.image = load("pngload_source", picture.source.get());
    if (!picture.image)
        return;
    const bool isTurned = vips_image_get_typeof(picture.image.get(), VIPS_META_ORIENTATION);
    const int orientation = isTurned ? 0 : orientationInXmp(picture.image.get());
    applyColors(picture.image, ColorChunks(file));
    if (picture.image && orientation > 0)
        vips_image_set_int(picture.image.get(), VIPS_META_ORIENTATION, orientation);
}

} // namespace imageio
