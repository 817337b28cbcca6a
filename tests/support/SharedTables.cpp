#include "tests/support/SharedTables.h"

#include <cstring>
#include <fstream>

namespace {

/// A color cube of 2 x 2 x 2 RGBA floats, red running fastest, that changes nothing.
CIData identityCube()
{
    CIData data;
    for (int corner = 0; corner < 8; ++corner)
        for (const float component : {float(corner & 1), float(corner >> 1 & 1), float(corner >> 2), 1.0f}) {
            std::byte bytes[sizeof component];
            std::memcpy(bytes, &component, sizeof component);
            data.insert(data.end(), std::begin(bytes), std::end(bytes));
        }
    return data;
}

CIValue valueOfNumbers(const std::vector<double>& n, std::string_view className)
{
    if (className == "CIColor")
        return CIColor(n.at(0), n.at(1), n.at(2), n.at(3));
    if (className == "NSValue" || className == "NSAffineTransform")
        return CIAffineTransform{n.at(0), n.at(1), n.at(2), n.at(3), n.at(4), n.at(5)};
    return CIVector(n);
}

} // namespace

std::optional<std::filesystem::path> coreImageTables()
{
    const std::filesystem::path folder = std::filesystem::path(LUMIVEX_SHARED_DIR) / "coreimage";
    return std::filesystem::exists(folder / "filters.json") ? std::optional(folder) : std::nullopt;
}

nlohmann::json jsonOfFile(const std::filesystem::path& file)
{
    std::ifstream stream(file);
    return nlohmann::json::parse(stream);
}

CIValue valueOfJson(const nlohmann::json& json, std::string_view className)
{
    if (json.is_boolean())
        return json.get<bool>();
    if (json.is_number())
        return json.get<double>();
    if (json.is_array())
        return valueOfNumbers(json.get<std::vector<double>>(), className);
    if (json.is_object())
        return identityCube();
    const std::string text = json.get<std::string>();
    if (className != "NSData")
        return text;
    const auto* first = reinterpret_cast<const std::byte*>(text.data());
    return CIData(first, first + text.size());
}
