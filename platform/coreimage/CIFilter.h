// Filters: named sets of inputs that make an image.
#pragma once

#include "platform/coreimage/CIValue.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ci {
struct Declaration;
}

// Keys of the dictionary that `CIFilter::attributes` answers, and of the dictionaries in it, one for each input.
inline const std::string kCIAttributeFilterName = "CIAttributeFilterName";
inline const std::string kCIAttributeFilterDisplayName = "CIAttributeFilterDisplayName";
inline const std::string kCIAttributeFilterCategories = "CIAttributeFilterCategories";
inline const std::string kCIAttributeClass = "CIAttributeClass"; // "NSNumber", "CIVector", "CIColor", "CIImage", …
inline const std::string kCIAttributeType = "CIAttributeType";
inline const std::string kCIAttributeDisplayName = "CIAttributeDisplayName";
inline const std::string kCIAttributeDefault = "CIAttributeDefault";
inline const std::string kCIAttributeIdentity = "CIAttributeIdentity";
inline const std::string kCIAttributeMin = "CIAttributeMin";
inline const std::string kCIAttributeMax = "CIAttributeMax";
inline const std::string kCIAttributeSliderMin = "CIAttributeSliderMin";
inline const std::string kCIAttributeSliderMax = "CIAttributeSliderMax";

inline const std::string kCIAttributeTypeTime = "CIAttributeTypeTime";
inline const std::string kCIAttributeTypeScalar = "CIAttributeTypeScalar";
inline const std::string kCIAttributeTypeDistance = "CIAttributeTypeDistance";
inline const std::string kCIAttributeTypeAngle = "CIAttributeTypeAngle"; // radians
inline const std::string kCIAttributeTypeBoolean = "CIAttributeTypeBoolean";
inline const std::string kCIAttributeTypeInteger = "CIAttributeTypeInteger";
inline const std::string kCIAttributeTypeCount = "CIAttributeTypeCount";
inline const std::string kCIAttributeTypePosition = "CIAttributeTypePosition";
inline const std::string kCIAttributeTypeOffset = "CIAttributeTypeOffset";
inline const std::string kCIAttributeTypePosition3 = "CIAttributeTypePosition3";
inline const std::string kCIAttributeTypeRectangle = "CIAttributeTypeRectangle";
inline const std::string kCIAttributeTypeOpaqueColor = "CIAttributeTypeOpaqueColor";
inline const std::string kCIAttributeTypeColor = "CIAttributeTypeColor";
inline const std::string kCIAttributeTypeGradient = "CIAttributeTypeGradient";
inline const std::string kCIAttributeTypeImage = "CIAttributeTypeImage";
inline const std::string kCIAttributeTypeTransform = "CIAttributeTypeTransform";

inline const std::string kCICategoryGeometryAdjustment = "CICategoryGeometryAdjustment";
inline const std::string kCICategoryDistortionEffect = "CICategoryDistortionEffect";
inline const std::string kCICategoryHalftoneEffect = "CICategoryHalftoneEffect";
inline const std::string kCICategorySharpen = "CICategorySharpen";
inline const std::string kCICategoryBlur = "CICategoryBlur";
inline const std::string kCICategoryStylize = "CICategoryStylize";
inline const std::string kCICategoryGradient = "CICategoryGradient";
inline const std::string kCICategoryColorEffect = "CICategoryColorEffect";
inline const std::string kCICategoryColorAdjustment = "CICategoryColorAdjustment";
inline const std::string kCICategoryTileEffect = "CICategoryTileEffect";
inline const std::string kCICategoryGenerator = "CICategoryGenerator";
inline const std::string kCICategoryCompositeOperation = "CICategoryCompositeOperation";
inline const std::string kCICategoryTransition = "CICategoryTransition";
inline const std::string kCICategoryReduction = "CICategoryReduction";
inline const std::string kCICategoryBuiltIn = "CICategoryBuiltIn";
inline const std::string kCICategoryHighDynamicRange = "CICategoryHighDynamicRange";
inline const std::string kCICategoryInterlaced = "CICategoryInterlaced";
inline const std::string kCICategoryNonSquarePixels = "CICategoryNonSquarePixels";
inline const std::string kCICategoryStillImage = "CICategoryStillImage";
inline const std::string kCICategoryVideo = "CICategoryVideo";
inline const std::string kCICategoryXMPSerializable = "CICategoryXMPSerializable";

/// What an input holds: kCIAttributeClass and kCIAttributeType in one.
enum class InputKind {
    Number,
    Scalar,
    Distance,
    Angle,
    Time,
    Integer,
    Count,
    Boolean,
    Vector,
    Position,
    Position3,
    Offset,
    Rectangle,
    Color,
    OpaqueColor,
    Image,
    Gradient,
    Transform,
    String,
    AttributedString,
    Data,
    Array,
    Object
};

/// What an editor puts into an input when the filter is chosen, if that depends on the editor.
enum class Automatic { None, Texture, AlphaEMap, ShadingEMap, Ramp, Mask, ViewCenter };

/// What an input says about the picture, where that doesn't follow from its kind: there, places and areas are parts of
/// the picture, distances grow with it, other numbers don't, and a picture is another one.
enum class Meaning { ByKind, Amount, Length, SamePicture, SmallPicture, SpotMask, Palette };

/// What an input is for, where editors can't tell it from its kind.
enum class Role {
    ByKind,
    Weights, // of neighbors, in a grid of so many columns, read as a page is
    TonePoint, // of a curve: display values from 0 to 1, across and up
    ToneTable, // red, green and blue curves as data
    Polynomial, // of a color component in linear light, from the constant up
    Cube, // a table of colors as data; its side is "inputCubeDimension"
    White, // temperature in kelvin and tint
};

/// One input of a filter, in C++ types; the same facts as its dictionary in `CIFilter::attributes`.
struct CIInputAttributes {
    std::string key; // "inputRadius"
    std::string displayName; // "Radius"
    InputKind kind = InputKind::Object;
    CIValue defaultValue = {}, identity = {};
    std::optional<double> min = {}, max = {}, sliderMin = {}, sliderMax = {};
    /// What an editor puts in instead of the default when the filter is chosen.
    CIValue automaticValue = {};
    Automatic automatic = Automatic::None;
    /// What shows better than the value above what the filter is for; as on a picture of 300 x 300 pixels.
    CIValue tellingValue = {};
    Meaning meaning = Meaning::ByKind;
    Role role = Role::ByKind;
    int columns = 0; // of weights

    bool isNumber() const { return kind <= InputKind::Boolean; }
    bool isVector() const { return kind >= InputKind::Vector && kind <= InputKind::Rectangle; }
    bool isColor() const { return kind == InputKind::Color || kind == InputKind::OpaqueColor; }
    bool isImage() const { return kind == InputKind::Image || kind == InputKind::Gradient; }
    /// True for what lies somewhere on the picture.
    bool isPlace() const
    {
        return kind == InputKind::Position || kind == InputKind::Position3 || kind == InputKind::Rectangle;
    }
};

/// A named set of inputs with attributes that makes a recipe as `outputImage`. Not thread-safe; the images it
/// answers are, and keep the input values of the moment they were asked for.
class CIFilter {
public:
    explicit CIFilter(const ci::Declaration&);

    /// The names of the filters of a category in alphabetical order; of all filters for "".
    static std::vector<std::string> filterNamesInCategory(std::string_view category);
    /// A new filter with no input set, or null when there is no filter of that name.
    static std::shared_ptr<CIFilter> filterWithName(std::string_view name);
    /// The display name ("Gaussian Blur"), or `name` itself when there is no such filter.
    static std::string localizedNameForFilterName(std::string_view name);

    const std::string& name() const;
    const std::string& displayName() const;
    /// The filter's own entries (name, display name, categories) and one dictionary for each input key.
    const CIDictionary& attributes() const;
    std::vector<std::string> inputKeys() const; // in the order in which they should be shown
    /// Null for an unknown key.
    const CIInputAttributes* attributesForKey(std::string_view key) const;

    /// Gives every input that has a default value that value; image inputs become empty.
    void setDefaults();
    /// Nothing when the key is unknown or has no value.
    CIValue valueForKey(std::string_view key) const;
    /// Unknown keys are ignored, save those of notes, which begin with "layer". A number out of its range is kept, and
    /// brought into it when rendering.
    void setValueForKey(const CIValue& value, std::string_view key);

    /// The result, or a null image when an image input that the filter can't do without is empty.
    CIImage outputImage() const;

private:
    const ci::Declaration* m_declaration;
    CIDictionary m_values;
};
