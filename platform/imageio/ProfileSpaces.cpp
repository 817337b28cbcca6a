#include "platform/imageio/ProfileSpaces.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

#include <lcms2.h>

namespace imageio {

namespace {

constexpr std::size_t kCodes = 65536;

using CurvePtr = std::unique_ptr<cmsToneCurve, void (*)(cmsToneCurve*)>;
using Matrix = std::array<double, 9>;

/// Points between those of a table are not rounded to 16 bits, so that dark codes stay apart.
float lightAt(const cmsToneCurve* curve, double code)
{
    if (cmsGetToneCurveParametricType(curve) != 0)
        return cmsEvalToneCurveFloat(curve, float(code));
    const std::uint16_t* const table = cmsGetToneCurveEstimatedTable(curve);
    const auto last = std::size_t(cmsGetToneCurveEstimatedTableEntries(curve) - 1);
    const double place = code * double(last);
    const std::size_t below = std::min(std::size_t(place), last), above = std::min(below + 1, last);
    const double share = place - double(below);
    return float((table[below] * (1 - share) + table[above] * share) / 65535);
}

/// Colorants as columns.
std::optional<Matrix> colorantsOf(cmsHPROFILE profile)
{
    Matrix matrix{};
    std::size_t column = 0;
    for (const cmsTagSignature tag : {cmsSigRedColorantTag, cmsSigGreenColorantTag, cmsSigBlueColorantTag}) {
        const auto* color = static_cast<const cmsCIEXYZ*>(cmsReadTag(profile, tag));
        if (!color)
            return std::nullopt;
        matrix[column] = color->X;
        matrix[3 + column] = color->Y;
        matrix[6 + column] = color->Z;
        ++column;
    }
    return matrix;
}

/// By Gauss' elimination of the three columns of `to` for the nine numbers of `from`: to⁻¹ from.
std::array<float, 9> between(const Matrix& from, const Matrix& to)
{
    std::array<std::array<double, 6>, 3> rows{};
    for (std::size_t y = 0; y < 3; ++y)
        for (std::size_t x = 0; x < 3; ++x) {
            rows[y][x] = to[3 * y + x];
            rows[y][3 + x] = from[3 * y + x];
        }
    for (std::size_t i = 0; i < 3; ++i) {
        std::swap(rows[i],
            *std::max_element(rows.begin() + std::ptrdiff_t(i), rows.end(),
                [i](const auto& a, const auto& b) { return std::abs(a[i]) < std::abs(b[i]); }));
        const double pivot = rows[i][i];
        for (double& value : rows[i])
            value /= pivot;
        for (std::size_t y = 0; y < 3; ++y)
            if (const double factor = rows[y][i]; y != i)
                for (std::size_t x = 0; x < 6; ++x)
                    rows[y][x] -= factor * rows[i][x];
    }
    std::array<float, 9> result{};
    for (std::size_t i = 0; i < 9; ++i)
        result[i] = float(rows[i / 3][3 + i % 3]);
    return result;
}

std::vector<std::byte> savedProfile(cmsHPROFILE profile)
{
    cmsUInt32Number size = 0;
    std::vector<std::byte> bytes;
    if (!cmsSaveProfileToMem(profile, nullptr, &size))
        return bytes;
    bytes.resize(size);
    if (!cmsSaveProfileToMem(profile, bytes.data(), &size))
        bytes.clear();
    return bytes;
}

/// Of a profile that was made here: without the time of that, so that every process makes the same.
std::vector<std::byte> timeless(std::vector<std::byte> icc)
{
    constexpr std::size_t kTime = 24, kTimeBytes = 12;
    if (icc.size() >= kTime + kTimeBytes)
        std::ranges::fill_n(icc.begin() + kTime, kTimeBytes, std::byte(0));
    return icc;
}

std::optional<CIColorSpace> spaceWith(
    std::vector<std::byte> icc, const cmsToneCurve* curve, const std::array<float, 9>& matrix, std::string name)
{
    CIColorProfile colors{.name = std::move(name), .light = {}, .toLinearSRGB = matrix, .icc = std::move(icc)};
    colors.light.reserve(kCodes);
    float before = 0;
    for (std::size_t code = 0; code < kCodes; ++code) // a falling curve is flat there: rounding makes some
        colors.light.push_back(before = std::clamp(lightAt(curve, double(code) / (kCodes - 1)), before, 1.0f));
    if (colors.icc.empty())
        return std::nullopt;
    try {
        return colorSpaceOf(std::move(colors));
    } catch (const std::invalid_argument&) {
        return std::nullopt;
    }
}

ProfilePtr rgbProfile(const cmsCIExyY& white, const cmsCIExyYTRIPLE& primaries, cmsToneCurve* curve)
{
    cmsToneCurve* const curves[] = {curve, curve, curve};
    return ProfilePtr(cmsCreateRGBProfile(&white, &primaries, curves));
}

constexpr cmsCIExyY kDaylight{0.3127, 0.3290, 1};
constexpr cmsCIExyYTRIPLE kRec709{{0.64, 0.33, 1}, {0.30, 0.60, 1}, {0.15, 0.06, 1}};

std::optional<CIColorSpace> greySpace(cmsHPROFILE profile)
{
    const auto* curve = static_cast<const cmsToneCurve*>(cmsReadTag(profile, cmsSigGrayTRCTag));
    if (!curve)
        return std::nullopt;
    const CurvePtr copy(cmsDupToneCurve(curve), cmsFreeToneCurve);
    const ProfilePtr asColor = rgbProfile(kDaylight, kRec709, copy.get());
    return asColor
        ? spaceWith(timeless(savedProfile(asColor.get())), curve, {1, 0, 0, 0, 1, 0, 0, 0, 1}, descriptionOf(profile))
        : std::nullopt;
}

bool areAlike(const cmsToneCurve* a, const cmsToneCurve* b)
{
    constexpr int kSteps = 256;
    for (int i = 0; i <= kSteps; ++i)
        if (std::abs(lightAt(a, double(i) / kSteps) - lightAt(b, double(i) / kSteps)) > 1e-5f)
            return false;
    return true;
}

void setDescription(cmsHPROFILE profile, const char* name)
{
    const std::unique_ptr<cmsMLU, void (*)(cmsMLU*)> text(cmsMLUalloc(nullptr, 1), cmsMLUfree);
    cmsMLUsetASCII(text.get(), "en", "US", name);
    cmsWriteTag(profile, cmsSigProfileDescriptionTag, text.get());
}

CIColorSpace namedSpace(
    const char* name, const cmsCIExyY& white, const cmsCIExyYTRIPLE& primaries, const std::array<double, 5>& curve)
{
    const CurvePtr tone(cmsBuildParametricToneCurve(nullptr, curve[4] > 0 ? 4 : 1, curve.data()), cmsFreeToneCurve);
    const ProfilePtr profile = rgbProfile(white, primaries, tone.get());
    setDescription(profile.get(), name);
    return spaceOf(profile.get(), timeless(savedProfile(profile.get()))).value();
}

} // namespace

void CloseProfile::operator()(void* profile) const { cmsCloseProfile(profile); }

std::string descriptionOf(void* profile)
{
    std::array<char, 256> text{};
    cmsGetProfileInfoASCII(profile, cmsInfoDescription, "en", "US", text.data(), text.size() - 1);
    return text.data();
}

std::optional<CIColorSpace> spaceOf(void* profile, std::vector<std::byte> icc)
{
    if (cmsGetColorSpace(profile) == cmsSigGrayData)
        return greySpace(profile);
    if (cmsGetColorSpace(profile) != cmsSigRgbData || cmsGetPCS(profile) != cmsSigXYZData
        || cmsIsTag(profile, cmsSigAToB0Tag) || cmsIsTag(profile, cmsSigAToB1Tag) || cmsIsTag(profile, cmsSigDToB1Tag))
        return std::nullopt;
    std::array<const cmsToneCurve*, 3> curves{};
    std::size_t color = 0;
    for (const cmsTagSignature tag : {cmsSigRedTRCTag, cmsSigGreenTRCTag, cmsSigBlueTRCTag})
        curves[color++] = static_cast<const cmsToneCurve*>(cmsReadTag(profile, tag));
    if (!curves[0] || !curves[1] || !curves[2] || !areAlike(curves[0], curves[1]) || !areAlike(curves[0], curves[2]))
        return std::nullopt;
    const ProfilePtr srgb(cmsCreate_sRGBProfile());
    const auto from = colorantsOf(profile), to = colorantsOf(srgb.get());
    return from && to ? spaceWith(std::move(icc), curves[0], between(*from, *to), descriptionOf(profile))
                      : std::nullopt;
}

const std::vector<CIColorSpace>& wideSpaces()
{
    constexpr cmsCIExyYTRIPLE kP3{{0.680, 0.320, 1}, {0.265, 0.690, 1}, {0.150, 0.060, 1}};
    constexpr cmsCIExyYTRIPLE kAdobe{{0.64, 0.33, 1}, {0.21, 0.71, 1}, {0.15, 0.06, 1}};
    constexpr cmsCIExyYTRIPLE kRec2020{{0.708, 0.292, 1}, {0.170, 0.797, 1}, {0.131, 0.046, 1}};
    constexpr cmsCIExyYTRIPLE kProPhoto{{0.7347, 0.2653, 1}, {0.1596, 0.8404, 1}, {0.0366, 0.0001, 1}};
    constexpr cmsCIExyY kWarmLight{0.3457, 0.3585, 1};
    constexpr std::array<double, 5> kSrgbCurve{2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    constexpr std::array<double, 5> kRec709Curve{1 / 0.45, 1 / 1.099, 0.099 / 1.099, 1 / 4.5, 0.081};
    static const std::vector<CIColorSpace> spaces{namedSpace("Display P3", kDaylight, kP3, kSrgbCurve),
        namedSpace("Adobe RGB (1998)", kDaylight, kAdobe, {563.0 / 256, 1, 0, 0, 0}),
        namedSpace("Rec. 2020", kDaylight, kRec2020, kRec709Curve),
        namedSpace("ProPhoto RGB", kWarmLight, kProPhoto, {1.8, 1, 0, 0, 0})};
    return spaces;
}

ProfilePtr profileOf(CIColorSpace space)
{
    const std::vector<std::byte>& icc = profiledSpace(space)->profile().icc;
    return ProfilePtr(cmsOpenProfileFromMem(icc.data(), cmsUInt32Number(icc.size())));
}

bool holds(CIColorSpace space, std::span<const float> colors)
{
    constexpr float kUnseen = 0.002f;
    const auto inside = [](float value) { return value > -kUnseen && value < 1 + kUnseen; };
    constexpr std::array<float, 9> kSame{1, 0, 0, 0, 1, 0, 0, 0, 1};
    const CIProfiledSpace* const profiled = profiledSpace(space);
    const auto& m = profiled ? profiled->fromLinearSRGB() : kSame;
    for (std::size_t i = 0; i + 3 <= colors.size(); i += 3)
        for (std::size_t row = 0; row < 9; row += 3)
            if (!inside(m[row] * colors[i] + m[row + 1] * colors[i + 1] + m[row + 2] * colors[i + 2]))
                return false;
    return true;
}

} // namespace imageio
