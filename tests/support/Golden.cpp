#include "tests/support/Golden.h"

#include "tests/support/SharedTables.h"

#include "platform/coreimage/CIContext.h"
#include "platform/imageio/PictureReader.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace {

constexpr double kEqual = 120; // dB

GoldenCase caseOfFile(const std::filesystem::path& file)
{
    const nlohmann::json json = jsonOfFile(file);
    const std::filesystem::path folder = file.parent_path();
    GoldenCase result;
    result.filter = json.at("filter");
    result.parameters = json.at("parameters");
    result.reference = folder / json.at("output").get<std::string>();
    result.rect = {json.at("originX"), json.at("originY"), json.at("width"), json.at("height")};
    for (const auto& [key, image] : json.at("images").items())
        result.images.emplace_back(key, folder / image.get<std::string>());
    if (json.contains("psnrFloor"))
        result.floor = json.at("psnrFloor").get<double>();
    return result;
}

CIBitmap bitmapOf(const std::filesystem::path& file)
{
    const Result<CIBitmap> bitmap = readPicture(file);
    if (!bitmap)
        throw std::runtime_error(bitmap.message());
    return *bitmap;
}

} // namespace

std::vector<GoldenCase> goldenCases()
{
    std::vector<GoldenCase> cases;
    const auto tables = coreImageTables();
    if (!tables || !std::filesystem::exists(*tables / "golden"))
        return cases;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(*tables / "golden"))
        if (entry.path().filename() == "case.json")
            cases.push_back(caseOfFile(entry.path()));
    std::ranges::sort(cases, {}, &GoldenCase::reference);
    return cases;
}

std::shared_ptr<CIFilter> filterOfCase(const GoldenCase& golden)
{
    auto filter = CIFilter::filterWithName(golden.filter);
    if (!filter)
        return nullptr;
    const auto classOf = [&](const std::string& key) {
        if (const auto found = filter->attributes().find(key); found != filter->attributes().end())
            return found->second.toDictionary().at(kCIAttributeClass).toString();
        throw std::runtime_error(golden.filter + " has no input " + key);
    };
    filter->setDefaults();
    for (const auto& [key, json] : golden.parameters.items())
        filter->setValueForKey(valueOfJson(json, classOf(key)), key);
    for (const auto& [key, file] : golden.images) {
        classOf(key);
        filter->setValueForKey(CIImage::fromBitmap(bitmapOf(file)), key);
    }
    return filter;
}

double psnr(const CIBitmap& a, const CIBitmap& b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        const auto rowA = a.row<std::uint8_t>(y), rowB = b.row<std::uint8_t>(y);
        for (std::size_t at = 0; at < rowA.size(); at += 4)
            for (std::size_t i = 0; i < 3; ++i) {
                const double difference = (rowA[at + i] * rowA[at + 3] - rowB[at + i] * rowB[at + 3]) / 255.0;
                sum += difference * difference;
            }
    }
    const double mean = sum / (3.0 * a.width() * a.height());
    return mean > 0 ? std::min(kEqual, 10 * std::log10(255.0 * 255.0 / mean)) : kEqual;
}

double psnrOfCase(const GoldenCase& golden, const CIFilter& filter)
{
    const CIBitmap reference = bitmapOf(golden.reference);
    const CIBitmap rendering = CIContext().render(filter.outputImage(), golden.rect);
    if (rendering.width() != reference.width() || rendering.height() != reference.height())
        throw std::runtime_error(golden.filter + " was rendered in another size than its reference");
    return psnr(rendering, reference);
}
