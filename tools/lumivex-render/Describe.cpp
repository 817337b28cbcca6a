#include "tools/lumivex-render/Describe.h"

#include <algorithm>

#include <nlohmann/json.hpp>

namespace {

using Json = nlohmann::ordered_json;

std::string base64(const CIData& data)
{
    constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < data.size(); i += 3) {
        unsigned group = 0;
        const std::size_t count = std::min<std::size_t>(3, data.size() - i);
        for (std::size_t j = 0; j < 3; ++j)
            group = group << 8 | (j < count ? std::to_integer<unsigned>(data[i + j]) : 0);
        for (std::size_t j = 0; j < 4; ++j)
            text += j <= count ? kDigits[group >> (18 - 6 * j) & 63] : '=';
    }
    return text;
}

/// Whole numbers without a fraction, as people write them.
Json number(double value)
{
    constexpr double kExact = 9007199254740992.0; // 2^53
    if (value == std::int64_t(std::clamp(value, -kExact, kExact)))
        return std::int64_t(value);
    return value;
}

Json numbers(std::initializer_list<double> values)
{
    Json array = Json::array();
    for (const double value : values)
        array.push_back(number(value));
    return array;
}

Json toJson(const CIValue& value);

Json toJson(const CIVector& vector)
{
    Json array = Json::array();
    for (const double component : vector.values())
        array.push_back(number(component));
    return array;
}

Json toJson(const CIDictionary& dictionary)
{
    Json object = Json::object();
    for (const auto& [key, value] : dictionary)
        object[key] = toJson(value);
    return object;
}

Json toJson(const CIArray& values)
{
    Json array = Json::array();
    for (const CIValue& value : values)
        array.push_back(toJson(value));
    return array;
}

Json toJson(const CIColor& color) { return numbers({color.red(), color.green(), color.blue(), color.alpha()}); }

Json toJson(const CIAffineTransform& t) { return numbers({t.a, t.b, t.c, t.d, t.tx, t.ty}); }

Json toJson(const CIValue& value)
{
    if (value.isBoolean())
        return value.toBool();
    if (value.isNumber())
        return number(value.toDouble());
    if (value.isVector())
        return toJson(value.toVector());
    if (value.isColor())
        return toJson(value.toColor());
    if (value.isTransform())
        return toJson(value.toTransform());
    if (value.isString())
        return value.toString();
    if (value.isData())
        return Json{{"base64", base64(value.toData())}};
    if (value.isArray())
        return toJson(value.toArray());
    if (value.isDictionary())
        return toJson(value.toDictionary());
    return nullptr;
}

} // namespace

std::string describeFilter(const CIFilter& filter)
{
    const CIDictionary& attributes = filter.attributes();
    const std::vector<std::string> keys = filter.inputKeys();
    Json object = Json::object();
    for (const auto& [key, value] : attributes)
        if (std::ranges::find(keys, key) == keys.end())
            object[key] = toJson(value);
    for (const std::string& key : keys)
        if (const auto found = attributes.find(key); found != attributes.end())
            object[key] = toJson(found->second);
    return object.dump(2, ' ', false, Json::error_handler_t::replace);
}
