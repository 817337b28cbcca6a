#include "platform/imageio/PropertyTree.h"

#include <algorithm>

namespace imageio {

namespace {

constexpr std::size_t kLongestValue = 400; // bytes

/// Cut between characters, never inside one.
std::string shortened(std::string text)
{
    if (text.size() <= kLongestValue)
        return text;
    std::size_t end = kLongestValue;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) // a later byte of a UTF-8 character
        --end;
    return text.substr(0, end) + "…";
}

std::string oneLine(std::string text)
{
    std::ranges::replace_if(
        text, [](unsigned char c) { return c < ' ' || c == 127; }, ' ');
    const std::size_t last = text.find_last_not_of(' ');
    text.resize(last == std::string::npos ? 0 : last + 1);
    return text;
}

PictureProperty* find(Properties& properties, std::string_view key)
{
    const auto found = std::ranges::find(properties, key, &PictureProperty::key);
    return found == properties.end() ? nullptr : &*found;
}

} // namespace

PictureProperty& groupIn(Properties& properties, std::string_view key)
{
    if (PictureProperty* group = find(properties, key))
        return *group;
    return properties.emplace_back(PictureProperty{std::string(key), {}, {}});
}

void addValue(Properties& properties, std::string_view key, std::string value)
{
    value = oneLine(std::move(value));
    if (value.empty())
        return;
    PictureProperty* known = find(properties, key);
    if (known && known->children.empty())
        known->value = shortened(known->value + ", " + value);
    else if (!known)
        properties.push_back({std::string(key), shortened(std::move(value)), {}});
}

void sortProperties(Properties& properties)
{
    std::ranges::sort(properties, {}, &PictureProperty::key);
    for (PictureProperty& property : properties)
        sortProperties(property.children);
}

} // namespace imageio
