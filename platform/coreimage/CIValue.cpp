#include "platform/coreimage/CIValue.h"

CIValue::CIValue(CIImage v)
{
    if (v)
        m_value = std::move(v);
}

double CIValue::toDouble() const
{
    if (const auto* number = std::get_if<double>(&m_value))
        return *number;
    const auto* flag = std::get_if<bool>(&m_value);
    return flag && *flag ? 1 : 0;
}

namespace {

template <class T, class Variant>
T heldOr(const Variant& value, const T& otherwise)
{
    const T* held = std::get_if<T>(&value);
    return held ? *held : otherwise;
}

template <class T, class Variant>
const T& sharedOrEmpty(const Variant& value)
{
    static const T empty;
    const auto* held = std::get_if<std::shared_ptr<const T>>(&value);
    return held ? **held : empty;
}

} // namespace

CIVector CIValue::toVector() const { return heldOr(m_value, CIVector()); }
CIColor CIValue::toColor() const { return heldOr(m_value, CIColor(0, 0, 0, 0)); }
CIAffineTransform CIValue::toTransform() const { return heldOr(m_value, CIAffineTransform()); }
CIImage CIValue::toImage() const { return heldOr(m_value, CIImage()); }
std::string CIValue::toString() const { return heldOr(m_value, std::string()); }
const CIData& CIValue::toData() const { return sharedOrEmpty<CIData>(m_value); }
const CIArray& CIValue::toArray() const { return sharedOrEmpty<CIArray>(m_value); }
const CIDictionary& CIValue::toDictionary() const { return sharedOrEmpty<CIDictionary>(m_value); }

bool CIValue::operator==(const CIValue& other) const
{
    if (isData() && other.isData())
        return toData() == other.toData();
    if (isArray() && other.isArray())
        return toArray() == other.toArray();
    if (isDictionary() && other.isDictionary())
        return toDictionary() == other.toDictionary();
    return m_value == other.m_value;
}
