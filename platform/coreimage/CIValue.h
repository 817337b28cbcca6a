// What a filter input can hold, and the dictionaries that describe filters.
#pragma once

#include "platform/coreimage/CIImage.h"
#include "platform/coreimage/CIVector.h"

#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

class CIValue;
using CIData = std::vector<std::byte>;
using CIArray = std::vector<CIValue>;
using CIDictionary = std::map<std::string, CIValue>;

/// A number, boolean, vector, color, transform, image, string, data, array, dictionary, or nothing.
/// Asking for another type than the one held gives that type's zero, never an error.
class CIValue {
public:
    CIValue() = default; // nothing
    CIValue(double v)
        : m_value(v)
    {
    }
    CIValue(float v)
        : m_value(double(v))
    {
    }
    CIValue(int v)
        : m_value(double(v))
    {
    }
    CIValue(bool v)
        : m_value(v)
    {
    }
    CIValue(CIVector v)
        : m_value(std::move(v))
    {
    }
    CIValue(CIColor v)
        : m_value(v)
    {
    }
    CIValue(CIAffineTransform v)
        : m_value(v)
    {
    }
    /// A null image is stored as nothing.
    CIValue(CIImage v);
    CIValue(std::string v)
        : m_value(std::move(v))
    {
    }
    CIValue(const char* v)
        : m_value(std::string(v))
    {
    }
    CIValue(CIData v)
        : m_value(std::make_shared<const CIData>(std::move(v)))
    {
    }
    CIValue(CIArray v)
        : m_value(std::make_shared<const CIArray>(std::move(v)))
    {
    }
    CIValue(CIDictionary v)
        : m_value(std::make_shared<const CIDictionary>(std::move(v)))
    {
    }

    bool isNothing() const { return std::holds_alternative<std::monostate>(m_value); }
    bool isNumber() const { return std::holds_alternative<double>(m_value) || isBoolean(); } // booleans count
    bool isBoolean() const { return std::holds_alternative<bool>(m_value); }
    bool isVector() const { return std::holds_alternative<CIVector>(m_value); }
    bool isColor() const { return std::holds_alternative<CIColor>(m_value); }
    bool isTransform() const { return std::holds_alternative<CIAffineTransform>(m_value); }
    bool isImage() const { return std::holds_alternative<CIImage>(m_value); }
    bool isString() const { return std::holds_alternative<std::string>(m_value); }
    bool isData() const { return std::holds_alternative<std::shared_ptr<const CIData>>(m_value); }
    bool isArray() const { return std::holds_alternative<std::shared_ptr<const CIArray>>(m_value); }
    bool isDictionary() const { return std::holds_alternative<std::shared_ptr<const CIDictionary>>(m_value); }

    double toDouble() const;
    float toFloat() const { return float(toDouble()); }
    bool toBool() const { return toDouble() != 0; }
    CIVector toVector() const;
    CIColor toColor() const;
    CIAffineTransform toTransform() const;
    CIImage toImage() const;
    std::string toString() const;
    const CIData& toData() const;
    const CIArray& toArray() const;
    const CIDictionary& toDictionary() const;

    bool operator==(const CIValue&) const; // images compare by identity

private:
    std::variant<std::monostate, double, bool, CIVector, CIColor, CIAffineTransform, CIImage, std::string,
        std::shared_ptr<const CIData>, std::shared_ptr<const CIArray>, std::shared_ptr<const CIDictionary>>
        m_value;
};
