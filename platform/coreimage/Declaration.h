// How a filter is declared: its name, its inputs with their ranges, and how they become an image.
#pragma once

#include "platform/coreimage/CIFilter.h"

#include <functional>
#include <span>

namespace ci {

class Values;

/// The usage categories of a filter beyond built-in and still image, which all have.
enum Usage : unsigned {
    StillOnly = 0,
    Video = 1,
    HighDynamicRange = 2,
    Interlaced = 4,
    NonSquarePixels = 8,
    XMPSerializable = 16,
    AnyVideo = Video | Interlaced | NonSquarePixels,
    Anything = AnyVideo | HighDynamicRange,
};

struct Declaration {
    std::string name; // "CIGaussianBlur"
    std::string displayName; // "Gaussian Blur"
    std::string category; // kCICategoryBlur
    unsigned usage = StillOnly;
    std::vector<CIInputAttributes> inputs;

    /// Makes the recipe. Image inputs that are not `optional` are there when it is called.
    std::function<CIImage(const Values&)> output = {};
    /// Image inputs that may stay empty.
    std::vector<std::string> optional = {};
    /// The most by which batches may differ from floats, for values around 1.
    float tolerance = 1e-4f;
    /// The result depends on the pixel grid itself, so a reduced render does not resemble the reduced full one.
    bool boundToPixelGrid = false;

    const CIInputAttributes* input(std::string_view key) const;
};

/// Adds a filter to the ones that CIFilter knows. A second filter of the same name is refused.
bool registerFilter(Declaration);
/// All filters, by name.
std::vector<const Declaration*> declarations();
const Declaration* findDeclaration(std::string_view name);

/// A static object of this type registers a filter when the library is loaded.
struct FilterRegistration {
    explicit FilterRegistration(Declaration d) { registerFilter(std::move(d)); }
};

// One line per input in a declaration.

struct Range {
    std::optional<double> standard = {}, min = {}, max = {}, sliderMin = {}, sliderMax = {}, identity = {};
};

CIInputAttributes image(std::string key = "inputImage", std::string displayName = "Image");
CIInputAttributes number(std::string key, std::string displayName, InputKind, const Range&);
CIInputAttributes vector(
    std::string key, std::string displayName, CIValue standard, CIValue identity = {}, InputKind = InputKind::Vector);
CIInputAttributes color(
    std::string key, std::string displayName, std::optional<CIColor> standard, InputKind = InputKind::Color);
CIInputAttributes transform(std::string key = "inputTransform", std::string displayName = "Transform");
/// Text, data, arrays, …
CIInputAttributes object(std::string key, std::string displayName, InputKind, CIValue standard = {});
/// The same input with a mark for editors.
CIInputAttributes automatic(CIInputAttributes, CIValue);
CIInputAttributes automatic(CIInputAttributes, Automatic);
/// The same input with what `fittedValues` can't know from its kind.
CIInputAttributes fitted(CIInputAttributes, CIValue tellingValue, Meaning = Meaning::ByKind);
CIInputAttributes fitted(CIInputAttributes, Meaning);

/// The same input with what it is for.
CIInputAttributes meant(Role, CIInputAttributes, int columns = 0);

inline CIInputAttributes scalar(std::string k, std::string n, const Range& r)
{
    return number(k, n, InputKind::Scalar, r);
}
inline CIInputAttributes distance(std::string k, std::string n, const Range& r)
{
    return number(k, n, InputKind::Distance, r);
}
inline CIInputAttributes angle(std::string k, std::string n, const Range& r)
{
    return number(k, n, InputKind::Angle, r);
}
inline CIInputAttributes time(std::string k, std::string n, const Range& r) { return number(k, n, InputKind::Time, r); }
inline CIInputAttributes integer(std::string k, std::string n, const Range& r)
{
    return number(k, n, InputKind::Integer, r);
}
inline CIInputAttributes count(std::string k, std::string n, const Range& r)
{
    return number(k, n, InputKind::Count, r);
}
/// A number 0 or 1.
CIInputAttributes boolean(std::string key, std::string displayName, bool standard, std::optional<double> identity = {});
inline CIInputAttributes position(std::string k, std::string n, CIVector v)
{
    return vector(k, n, v, {}, InputKind::Position);
}
inline CIInputAttributes position3(std::string k, std::string n, CIVector v)
{
    return vector(k, n, v, {}, InputKind::Position3);
}
inline CIInputAttributes offset(std::string k, std::string n, CIVector v, CIValue identity = {})
{
    return vector(k, n, v, identity, InputKind::Offset);
}
inline CIInputAttributes rectangle(std::string k, std::string n, CIVector v)
{
    return vector(k, n, v, {}, InputKind::Rectangle);
}
inline CIInputAttributes center(CIVector v = {150, 150}) { return position("inputCenter", "Center", v); }

} // namespace ci
