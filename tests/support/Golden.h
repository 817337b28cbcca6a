// Reference renderings, and how near the engine comes to them.
#pragma once

#include "platform/coreimage/CIBitmap.h"
#include "platform/coreimage/CIFilter.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

struct GoldenCase {
    std::string filter;
    nlohmann::json parameters; // input key -> value
    std::vector<std::pair<std::string, std::filesystem::path>> images; // input key and file
    std::filesystem::path reference;
    CIRect rect; // picture pixels
    std::optional<double> floor; // dB that a faithful filter reaches; none where only the look can be compared
};

/// All cases, by filter; empty where the renderings are absent.
std::vector<GoldenCase> goldenCases();

/// The filter with the inputs of the case. Null when the engine has no such filter. Throws std::runtime_error for
/// an input that it lacks and for an unreadable picture.
std::shared_ptr<CIFilter> filterOfCase(const GoldenCase&);

/// Peak signal-to-noise ratio over red, green and blue times alpha, in 8-bit sRGB; 120 for equal pixels.
/// Both bitmaps are RGBA8 of one size.
double psnr(const CIBitmap&, const CIBitmap&);

/// Renders the case and compares it with its reference.
double psnrOfCase(const GoldenCase&, const CIFilter&);
