#include "platform/coreimage/Fitting.h"

#include "platform/coreimage/Declaration.h"

#include <algorithm>
#include <cmath>

namespace ci {

namespace {

constexpr double kStandardSide = 300; // px, of the picture that standard values are made for
/// Blurs and sharpeners are used on photographs as they are; a thirtieth of the side would leave nothing of one.
constexpr double kStandardSideOfBlurs = 1000;

double shorterSide(const CIRect& r) { return std::min(r.width, r.height); }

bool isLength(const CIInputAttributes& input)
{
    return input.meaning == Meaning::Length || (input.meaning == Meaning::ByKind && input.kind == InputKind::Distance);
}

CIPoint placeIn(const CIRect& extent, double x, double y)
{
    return {extent.x + x / kStandardSide * extent.width, extent.y + y / kStandardSide * extent.height};
}

CIValue placedVector(InputKind kind, const CIVector& v, const CIRect& extent)
{
    const CIPoint p = placeIn(extent, v.X(), v.Y());
    if (kind == InputKind::Position)
        return CIVector(p);
    if (kind == InputKind::Position3)
        return CIVector{p.x, p.y, v.Z() * shorterSide(extent) / kStandardSide};
    const CIRect r = v.rect();
    if (r.isInfinite())
        return CIVector(extent);
    const CIPoint end = placeIn(extent, r.right(), r.top());
    return CIVector(CIRect{p.x, p.y, end.x - p.x, end.y - p.y});
}

/// Lines, each from one place to another.
CIArray placedLines(const CIArray& lines, const CIRect& extent)
{
    CIArray placed;
    for (const CIValue& line : lines) {
        const CIVector v = line.toVector();
        const CIPoint from = placeIn(extent, v.X(), v.Y()), to = placeIn(extent, v.Z(), v.W());
        placed.emplace_back(CIVector{from.x, from.y, to.x, to.y});
    }
    return placed;
}

/// Does about the picture's middle what it does about that of the standard one.
CIAffineTransform placedTransform(const CIAffineTransform& t, const CIRect& extent)
{
    const double growth = shorterSide(extent) / kStandardSide, half = kStandardSide / 2;
    const CIPoint middle = extent.center();
    const auto place = CIAffineTransform::translation(-half, -half)
                           .then(CIAffineTransform::scaling(growth, growth))
                           .then(CIAffineTransform::translation(middle.x, middle.y));
    return place.inverted()->then(t).then(place);
}

CIValue grown(const CIInputAttributes& input, const CIValue& value, double growth)
{
    if (value.isVector()) {
        std::vector<double> components = value.toVector().values();
        for (double& c : components)
            c *= growth;
        return CIVector(std::move(components));
    }
    double number = value.toDouble() * growth;
    if (input.kind == InputKind::Integer || input.kind == InputKind::Count)
        number = std::round(number);
    return std::min(std::max(number, input.min.value_or(number)), input.max.value_or(number));
}

CIImage made(const char* filterName, const CIDictionary& values)
{
    const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(filterName);
    filter->setDefaults();
    for (const auto& [key, value] : values)
        filter->setValueForKey(value, key);
    return filter->outputImage();
}

CIImage secondPicture(Meaning meaning, const CIImage& picture)
{
    const CIRect extent = picture.extent();
    const CIPoint middle = extent.center();
    constexpr double kReduced = 1 / 8.0;
    switch (meaning) {
    case Meaning::SamePicture:
        return picture;
    case Meaning::SmallPicture:
        return picture.transformed(CIAffineTransform::scaling(kReduced, kReduced));
    case Meaning::SpotMask:
        return made("CIRadialGradient",
            {{"inputCenter", CIVector(middle)}, {"inputRadius0", 0.2 * shorterSide(extent)},
                {"inputRadius1", 0.5 * shorterSide(extent)}, {"inputColor0", CIColor(1, 1, 1, 1)},
                {"inputColor1", CIColor(0, 0, 0, 0)}})
            .cropped(extent);
    case Meaning::Palette:
        return made("CIKMeans", {{"inputImage", picture}, {"inputExtent", CIVector(extent)}, {"inputCount", 6}});
    default: // upside down
        return picture.transformed(CIAffineTransform::translation(-middle.x, -middle.y)
                                       .then(CIAffineTransform::scaling(-1, -1))
                                       .then(CIAffineTransform::translation(middle.x, middle.y)));
    }
}

CIValue fittedValue(const CIFilter& filter, const CIInputAttributes& input, const CIImage& picture)
{
    if (input.isImage())
        return input.automatic == Automatic::None ? CIValue(secondPicture(input.meaning, picture)) : CIValue();
    const CIValue& value = !input.tellingValue.isNothing() ? input.tellingValue
        : !input.automaticValue.isNothing()                ? input.automaticValue
                                                           : input.defaultValue;
    const CIRect extent = picture.extent();
    if (value.isNothing())
        return value;
    if (isLength(input))
        return grown(input, value, fittedGrowth(filter, input, extent));
    if (input.meaning == Meaning::ByKind && input.isPlace())
        return placedVector(input.kind, value.toVector(), extent);
    if (input.kind == InputKind::Array)
        return placedLines(value.toArray(), extent);
    if (input.kind == InputKind::Transform)
        return placedTransform(value.toTransform(), extent);
    return value;
}

} // namespace

double fittedGrowth(const CIFilter& filter, const CIInputAttributes& input, const CIRect& extent)
{
    if (!isLength(input) || extent.isEmpty() || extent.isInfinite())
        return 1;
    const Declaration* declaration = findDeclaration(filter.name());
    const bool isBlur =
        declaration && (declaration->category == kCICategoryBlur || declaration->category == kCICategorySharpen);
    return shorterSide(extent) / (isBlur ? kStandardSideOfBlurs : kStandardSide);
}

CIDictionary fittedValues(const CIFilter& filter, const CIImage& picture)
{
    CIDictionary values;
    if (picture.extent().isEmpty() || picture.extent().isInfinite())
        return values;
    for (const std::string& key : filter.inputKeys())
        if (CIValue value = fittedValue(filter, *filter.attributesForKey(key), picture); !value.isNothing())
            values[key] = std::move(value);
    return values;
}

} // namespace ci
