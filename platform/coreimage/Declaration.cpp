#include "platform/coreimage/Declaration.h"

#include <map>
#include <mutex>

namespace ci {

namespace {

// Plug-ins may register while another thread lists filters.
struct Registry {
    std::mutex mutex;
    std::map<std::string, Declaration, std::less<>> filters;
};

Registry& registry()
{
    static Registry filters;
    return filters;
}

} // namespace

const CIInputAttributes* Declaration::input(std::string_view key) const
{
    for (const CIInputAttributes& input : inputs)
        if (input.key == key)
            return &input;
    return nullptr;
}

bool registerFilter(Declaration d)
{
    Registry& r = registry();
    const std::lock_guard lock(r.mutex);
    std::string name = d.name;
    return r.filters.try_emplace(std::move(name), std::move(d)).second;
}

std::vector<const Declaration*> declarations()
{
    Registry& r = registry();
    const std::lock_guard lock(r.mutex);
    std::vector<const Declaration*> all;
    for (const auto& [name, declaration] : r.filters)
        all.push_back(&declaration);
    return all;
}

const Declaration* findDeclaration(std::string_view name)
{
    Registry& r = registry();
    const std::lock_guard lock(r.mutex);
    const auto found = r.filters.find(name);
    return found == r.filters.end() ? nullptr : &found->second;
}

CIInputAttributes image(std::string key, std::string displayName)
{
    return {std::move(key), std::move(displayName), InputKind::Image};
}

CIInputAttributes number(std::string key, std::string displayName, InputKind kind, const Range& r)
{
    const auto value = [](std::optional<double> v) { return v ? CIValue(*v) : CIValue(); };
    return {std::move(key), std::move(displayName), kind, value(r.standard), value(r.identity), r.min, r.max,
        r.sliderMin, r.sliderMax};
}

CIInputAttributes vector(std::string key, std::string displayName, CIValue standard, CIValue identity, InputKind kind)
{
    return {std::move(key), std::move(displayName), kind, std::move(standard), std::move(identity)};
}

CIInputAttributes color(std::string key, std::string displayName, std::optional<CIColor> standard, InputKind kind)
{
    return {std::move(key), std::move(displayName), kind, standard ? CIValue(*standard) : CIValue()};
}

CIInputAttributes transform(std::string key, std::string displayName)
{
    const CIAffineTransform identity;
    const auto tilted = CIAffineTransform::translation(-150, -150)
                            .then(CIAffineTransform::rotation(0.3))
                            .then(CIAffineTransform::scaling(0.6, 0.6))
                            .then(CIAffineTransform::translation(150, 150));
    return fitted({std::move(key), std::move(displayName), InputKind::Transform, identity, identity}, tilted);
}

CIInputAttributes object(std::string key, std::string displayName, InputKind kind, CIValue standard)
{
    return {std::move(key), std::move(displayName), kind, std::move(standard)};
}

CIInputAttributes automatic(CIInputAttributes input, CIValue value)
{
    input.automaticValue = std::move(value);
    return input;
}

CIInputAttributes automatic(CIInputAttributes input, Automatic automatic)
{
    input.automatic = automatic;
    return input;
}

CIInputAttributes fitted(CIInputAttributes input, CIValue tellingValue, Meaning meaning)
{
    input.tellingValue = std::move(tellingValue);
    return fitted(std::move(input), meaning);
}

CIInputAttributes fitted(CIInputAttributes input, Meaning meaning)
{
    input.meaning = meaning;
    return input;
}

CIInputAttributes meant(Role role, CIInputAttributes input, int columns)
{
    input.role = role;
    input.columns = columns;
    return input;
}

CIInputAttributes boolean(std::string key, std::string displayName, bool standard, std::optional<double> identity)
{
    return number(std::move(key), std::move(displayName), InputKind::Boolean,
        {.standard = standard ? 1 : 0, .min = 0, .max = 1, .sliderMin = 0, .sliderMax = 1, .identity = identity});
}

} // namespace ci
