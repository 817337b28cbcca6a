// The inputs of a filter at the moment its image was asked for.
#pragma once

#include "platform/coreimage/Declaration.h"
#include "platform/coreimage/kernel/Pixel.h"

namespace ci {

/// Input values by key. Numbers are brought into their declared range and are never NaN; what has no value reads as
/// its default, else as zero.
class Values {
public:
    Values(const Declaration&, const CIDictionary& values);

    const Declaration& declaration() const { return *m_declaration; }
    bool has(std::string_view key) const;
    const CIValue& value(std::string_view key) const;
    double number(std::string_view key) const { return value(key).toDouble(); }
    bool flag(std::string_view key) const { return value(key).toBool(); }
    CIVector vector(std::string_view key) const { return value(key).toVector(); }
    CIPoint point(std::string_view key) const { return value(key).toVector().point(); }
    CIRect rect(std::string_view key) const { return value(key).toVector().rect(); }
    CIColor color(std::string_view key) const { return value(key).toColor(); }
    CIAffineTransform transform(std::string_view key) const { return value(key).toTransform(); }
    CIImage image(std::string_view key = "inputImage") const { return value(key).toImage(); }
    /// The images, in the order of the inputs; empty ones are null.
    std::vector<CIImage> images() const;
    /// A copy with one value more under a key of its own, for what a recipe works out once and its kernels read, such
    /// as a table. Copies share data.
    Values with(std::string key, CIValue value) const;

private:
    const Declaration* m_declaration;
    std::vector<CIValue> m_values; // one for each input, in order
    std::vector<std::pair<std::string, CIValue>> m_workedOut;
};

/// What a kernel's constructor reads its inputs from, as numbers spread over all lanes.
template <class V>
class Inputs {
public:
    Inputs(const Values& values, float step)
        : m_values(values)
        , m_step(step)
    {
    }

    const Values& values() const { return m_values; }
    /// The distance of neighboring cells of the render, in picture pixels; 1 at full size.
    V step() const { return V(m_step); }

    V scalar(std::string_view key) const { return V(float(m_values.number(key))); }
    Point<V> point(std::string_view key) const
    {
        const CIPoint p = m_values.point(key);
        return {V(float(p.x)), V(float(p.y))};
    }
    /// A color in linear light, premultiplied.
    Pixel<V> color(std::string_view key) const { return premultiplied(straightColor(key)); }
    Pixel<V> straightColor(std::string_view key) const
    {
        const CIColor c = m_values.color(key);
        return {V(linearFromSRGB(float(c.red()))), V(linearFromSRGB(float(c.green()))),
            V(linearFromSRGB(float(c.blue()))), V(float(c.alpha()))};
    }
    /// Four components of a vector as they stand, say a row of a color matrix.
    Pixel<V> row(std::string_view key) const
    {
        const CIVector v = m_values.vector(key);
        return {V(float(v.X())), V(float(v.Y())), V(float(v.Z())), V(float(v.W()))};
    }

private:
    const Values& m_values;
    float m_step;
};

} // namespace ci
