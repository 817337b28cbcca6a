#include "platform/coreimage/CIFilter.h"

#include "platform/coreimage/Declaration.h"
#include "platform/coreimage/Values.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <mutex>

namespace {

std::vector<std::string> categoriesOf(const ci::Declaration& d)
{
    std::vector<std::string> all{d.category, kCICategoryBuiltIn};
    if (d.usage & ci::HighDynamicRange)
        all.push_back(kCICategoryHighDynamicRange);
    if (d.usage & ci::Interlaced)
        all.push_back(kCICategoryInterlaced);
    if (d.usage & ci::NonSquarePixels)
        all.push_back(kCICategoryNonSquarePixels);
    all.push_back(kCICategoryStillImage);
    if (d.usage & ci::Video)
        all.push_back(kCICategoryVideo);
    if (d.usage & ci::XMPSerializable)
        all.push_back(kCICategoryXMPSerializable);
    return all;
}

/// What stands under kCIAttributeClass and kCIAttributeType; the latter may be empty.
const std::pair<std::string, std::string>& namesOf(InputKind kind)
{
    static const std::pair<std::string, std::string> names[]{// in the order of InputKind
        {"NSNumber", {}}, {"NSNumber", kCIAttributeTypeScalar}, {"NSNumber", kCIAttributeTypeDistance},
        {"NSNumber", kCIAttributeTypeAngle}, {"NSNumber", kCIAttributeTypeTime}, {"NSNumber", kCIAttributeTypeInteger},
        {"NSNumber", kCIAttributeTypeCount}, {"NSNumber", kCIAttributeTypeBoolean}, {"CIVector", {}},
        {"CIVector", kCIAttributeTypePosition}, {"CIVector", kCIAttributeTypePosition3},
        {"CIVector", kCIAttributeTypeOffset}, {"CIVector", kCIAttributeTypeRectangle},
        {"CIColor", kCIAttributeTypeColor}, {"CIColor", kCIAttributeTypeOpaqueColor},
        {"CIImage", kCIAttributeTypeImage}, {"CIImage", kCIAttributeTypeGradient},
        {"NSAffineTransform", kCIAttributeTypeTransform}, {"NSString", {}}, {"NSAttributedString", {}}, {"NSData", {}},
        {"NSArray", {}}, {"NSObject", {}}};
    static_assert(std::size(names) == std::size_t(InputKind::Object) + 1);
    return names[std::size_t(kind)];
}

CIDictionary dictionaryOf(const CIInputAttributes& input)
{
    const auto& [className, type] = namesOf(input.kind);
    CIDictionary entries{{kCIAttributeClass, className}, {kCIAttributeDisplayName, input.displayName}};
    const auto add = [&](const std::string& key, const CIValue& value) {
        if (!value.isNothing())
            entries[key] = value;
    };
    const auto addNumber = [&](const std::string& key, std::optional<double> value) {
        if (value)
            entries[key] = *value;
    };
    if (!type.empty())
        entries[kCIAttributeType] = type;
    add(kCIAttributeDefault, input.defaultValue);
    add(kCIAttributeIdentity, input.identity);
    addNumber(kCIAttributeMin, input.min);
    addNumber(kCIAttributeMax, input.max);
    addNumber(kCIAttributeSliderMin, input.sliderMin);
    addNumber(kCIAttributeSliderMax, input.sliderMax);
    return entries;
}

CIDictionary dictionaryOf(const ci::Declaration& d)
{
    CIArray categories;
    for (const std::string& category : categoriesOf(d))
        categories.emplace_back(category);
    CIDictionary entries{{kCIAttributeFilterName, d.name}, {kCIAttributeFilterDisplayName, d.displayName},
        {kCIAttributeFilterCategories, std::move(categories)}};
    for (const CIInputAttributes& input : d.inputs)
        entries[input.key] = dictionaryOf(input);
    return entries;
}

} // namespace

CIFilter::CIFilter(const ci::Declaration& d)
    : m_declaration(&d)
{
}

std::vector<std::string> CIFilter::filterNamesInCategory(std::string_view category)
{
    std::vector<std::string> names;
    for (const ci::Declaration* d : ci::declarations()) {
        const std::vector<std::string> categories = categoriesOf(*d);
        if (category.empty() || std::ranges::find(categories, category) != categories.end())
            names.push_back(d->name);
    }
    return names;
}

std::shared_ptr<CIFilter> CIFilter::filterWithName(std::string_view name)
{
    const ci::Declaration* d = ci::findDeclaration(name);
    return d ? std::make_shared<CIFilter>(*d) : nullptr;
}

std::string CIFilter::localizedNameForFilterName(std::string_view name)
{
    const ci::Declaration* d = ci::findDeclaration(name);
    return d ? d->displayName : std::string(name);
}

const std::string& CIFilter::name() const { return m_declaration->name; }
const std::string& CIFilter::displayName() const { return m_declaration->displayName; }

const CIDictionary& CIFilter::attributes() const
{
    static std::mutex mutex;
    static std::map<const ci::Declaration*, CIDictionary> made; // once per filter, on first use
    const std::lock_guard lock(mutex);
    auto found = made.find(m_declaration);
    if (found == made.end())
        found = made.emplace(m_declaration, dictionaryOf(*m_declaration)).first;
    return found->second;
}

std::vector<std::string> CIFilter::inputKeys() const
{
    std::vector<std::string> keys;
    for (const CIInputAttributes& input : m_declaration->inputs)
        keys.push_back(input.key);
    return keys;
}

const CIInputAttributes* CIFilter::attributesForKey(std::string_view key) const { return m_declaration->input(key); }

void CIFilter::setDefaults()
{
    m_values.clear();
    for (const CIInputAttributes& input : m_declaration->inputs)
        if (!input.defaultValue.isNothing())
            m_values[input.key] = input.defaultValue;
}

CIValue CIFilter::valueForKey(std::string_view key) const
{
    const auto found = m_values.find(std::string(key));
    return found == m_values.end() ? CIValue() : found->second;
}

void CIFilter::setValueForKey(const CIValue& value, std::string_view key)
{
    // An editor's notes on layers, which no formula sees, go wherever the values go.
    if (!m_declaration->input(key) && !key.starts_with("layer"))
        return;
    if (value.isNothing())
        m_values.erase(std::string(key));
    else
        m_values[std::string(key)] = value;
}

CIImage CIFilter::outputImage() const
{
    const auto& optional = m_declaration->optional;
    for (const CIInputAttributes& input : m_declaration->inputs)
        if (input.isImage() && !m_values.contains(input.key)
            && std::ranges::find(optional, input.key) == optional.end())
            return {};
    return m_declaration->output(ci::Values(*m_declaration, m_values));
}

namespace ci {

namespace {

CIValue inRange(const CIInputAttributes& input, const CIValue& given)
{
    static constexpr double kLargest = 1e9; // far beyond any picture, still exact enough as a float
    const auto finite = [](double v, double otherwise) {
        return std::isfinite(v) ? std::clamp(v, -kLargest, kLargest) : otherwise;
    };
    if (input.isNumber() && given.isNumber()) {
        const double v = finite(given.toDouble(), input.defaultValue.toDouble());
        return std::min(std::max(v, input.min.value_or(-kLargest)), input.max.value_or(kLargest));
    }
    if (given.isVector()) {
        std::vector<double> values = given.toVector().values();
        if (input.kind != InputKind::Rectangle) // these may be infinite
            for (double& v : values)
                v = finite(v, 0);
        return CIVector(std::move(values));
    }
    if (given.isColor()) {
        const CIColor c = given.toColor();
        return CIColor(
            finite(c.red(), 0), finite(c.green(), 0), finite(c.blue(), 0), std::clamp(finite(c.alpha(), 1), 0.0, 1.0));
    }
    if (given.isTransform()) {
        const CIAffineTransform t = given.toTransform();
        return CIAffineTransform{
            finite(t.a, 1), finite(t.b, 0), finite(t.c, 0), finite(t.d, 1), finite(t.tx, 0), finite(t.ty, 0)};
    }
    return given;
}

} // namespace

Values::Values(const Declaration& declaration, const CIDictionary& values)
    : m_declaration(&declaration)
{
    m_values.reserve(declaration.inputs.size());
    for (const CIInputAttributes& input : declaration.inputs) {
        const auto found = values.find(input.key);
        m_values.push_back(inRange(input, found == values.end() ? input.defaultValue : found->second));
    }
}

bool Values::has(std::string_view key) const { return !value(key).isNothing(); }

const CIValue& Values::value(std::string_view key) const
{
    for (std::size_t i = 0; i < m_values.size(); ++i)
        if (m_declaration->inputs[i].key == key)
            return m_values[i];
    for (const auto& [name, worked] : m_workedOut)
        if (name == key)
            return worked;
    static const CIValue nothing;
    return nothing;
}

Values Values::with(std::string key, CIValue value) const
{
    Values copy = *this;
    copy.m_workedOut.emplace_back(std::move(key), std::move(value));
    return copy;
}

std::vector<CIImage> Values::images() const
{
    std::vector<CIImage> all;
    for (std::size_t i = 0; i < m_values.size(); ++i)
        if (m_declaration->inputs[i].isImage())
            all.push_back(m_values[i].toImage());
    return all;
}

} // namespace ci
