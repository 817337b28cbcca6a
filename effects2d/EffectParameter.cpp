#include "effects2d/EffectParameter.h"

namespace {

CIColor colorOf(const CIVector& v) { return {v.X(), v.Y(), v.Z(), v.W()}; }

CIVector vectorOf(const CIColor& c) { return {c.red(), c.green(), c.blue(), c.alpha()}; }

} // namespace

void EffectParameter::take(int& field, const CIValue& value)
{
    constexpr double kMost = 100'000;
    const double number = value.toDouble();
    field = number > kMost ? int(kMost) : number > -kMost ? int(number) : 0;
}

void EffectParameter::read(BaseEffect& effect, const CIDictionary& dictionary) const
{
    if (facts.storage == ParameterFacts::NotStored)
        return;
    if (!facts.start.isVector()) {
        if (const auto found = dictionary.find(m_key); found != dictionary.end())
            setValue(effect, found->second);
        return;
    }
    std::vector<double> numbers = value(effect).toVector().values();
    for (std::size_t i = 0; i < std::min(numbers.size(), std::size_t(facts.storage)); ++i)
        if (const auto found = dictionary.find(m_key + std::to_string(i)); found != dictionary.end())
            numbers[i] = found->second.toDouble();
    setValue(effect, CIVector(std::move(numbers)));
}

void EffectParameter::save(const BaseEffect& effect, CIDictionary& dictionary) const
{
    const CIValue current = value(effect);
    if (facts.storage == ParameterFacts::NotStored)
        return;
    if (!current.isVector()) {
        dictionary[m_key] = facts.states ? CIValue(current.toDouble()) : current;
        return;
    }
    const std::vector<double> numbers = current.toVector().values();
    for (std::size_t i = 0; i < std::min(numbers.size(), std::size_t(facts.storage)); ++i)
        dictionary[m_key + std::to_string(i)] = float(numbers[i]);
}

EffectParameter::Kind EffectParameter::kind() const
{
    if (facts.states || facts.start.isBoolean())
        return Kind::Switch;
    if (facts.start.isColor() || facts.start.isVector())
        return Kind::ColorWell;
    return facts.titles.empty() ? Kind::Slider : Kind::PopUp;
}

CIValue EffectParameter::shown(const CIValue& value) const
{
    if (facts.states)
        return value.toDouble() != facts.states->off;
    return value.isVector() ? CIValue(colorOf(value.toVector())) : value;
}

CIValue EffectParameter::chosen(const CIValue& shown) const
{
    if (facts.states)
        return shown.toBool() ? facts.states->on : facts.states->off;
    return facts.start.isVector() ? CIValue(vectorOf(shown.toColor())) : shown;
}
