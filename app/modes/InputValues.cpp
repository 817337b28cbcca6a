#include "app/modes/InputValues.h"

#include "platform/chain/FilterChain.h"
#include "widgets/rows/TransformParts.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

struct SliderRange {
    double low, high;
};

/// As the row's slider has it.
SliderRange sliderRange(const CIInputAttributes& input)
{
    return {input.sliderMin.value_or(input.min.value_or(0)), input.sliderMax.value_or(input.max.value_or(0))};
}

double between(double low, double high, std::mt19937& random)
{
    return low < high ? std::uniform_real_distribution(low, high)(random) : low;
}

CIPoint pointIn(const CIRect& r, std::mt19937& random)
{
    return {between(r.left(), r.right(), random), between(r.bottom(), r.top(), random)};
}

/// At least a quarter as wide and high as the picture, so that there is something to see in it.
CIRect rectangleIn(const CIRect& picture, std::mt19937& random)
{
    const double width = between(picture.width / 4, picture.width, random);
    const double height = between(picture.height / 4, picture.height, random);
    const CIPoint corner = pointIn({picture.x, picture.y, picture.width - width, picture.height - height}, random);
    return {corner.x, corner.y, width, height};
}

double numberFor(const CIInputAttributes& input, std::mt19937& random)
{
    const SliderRange range = sliderRange(input);
    if (input.kind != InputKind::Integer && input.kind != InputKind::Count)
        return between(range.low, range.high, random);
    const int low = int(std::ceil(range.low)), high = int(std::floor(range.high));
    return std::uniform_int_distribution(low, std::max(low, high))(random);
}

/// Narrower than its sliders, whose ends leave nothing of a picture.
CIAffineTransform transformIn(const CIRect& picture, std::mt19937& random)
{
    TransformParts parts;
    parts.scale = float(std::exp2(between(-1, 1, random)));
    parts.angle = float(between(0, 2 * std::numbers::pi, random));
    parts.stretch = float(std::exp2(between(-0.5, 0.5, random)));
    parts.skew = float(between(-0.5, 0.5, random));
    return composedTransform(parts, pointIn(picture, random));
}

/// Weights and offsets have no range; a little beside what they are at first they are of use.
CIVector aroundDefault(const CIVector& standard, std::mt19937& random)
{
    std::vector<double> values = standard.values();
    for (double& value : values) {
        const double reach = std::max(0.25, std::abs(value) / 2);
        value += between(-reach, reach, random);
    }
    return CIVector(std::move(values));
}

std::optional<CIValue> randomVector(
    const CIInputAttributes& input, const CIValue& old, const CIRect& picture, std::mt19937& random)
{
    if (input.isPlace() && picture.isEmpty())
        return {};
    if (input.kind == InputKind::Rectangle)
        return CIVector(rectangleIn(picture, random));
    const CIPoint point = pointIn(picture, random);
    if (input.kind == InputKind::Position)
        return CIVector(point);
    if (input.kind == InputKind::Position3)
        return CIVector{point.x, point.y, old.toVector().Z()};
    return aroundDefault(input.defaultValue.toVector(), random);
}

} // namespace

std::vector<const CIInputAttributes*> usersInputs(const CIFilter& filter)
{
    std::vector<const CIInputAttributes*> inputs;
    for (const std::string& key : filter.inputKeys())
        if (const CIInputAttributes* input = filter.attributesForKey(key);
            input && key != pictureKey(filter) && key != "inputExtent")
            inputs.push_back(input);
    return inputs;
}

bool canBeRandom(const CIInputAttributes& input)
{
    if (input.isNumber()) {
        const SliderRange range = sliderRange(input);
        return input.kind == InputKind::Boolean || range.low < range.high;
    }
    return input.isColor() || input.isVector() || input.kind == InputKind::Transform;
}

std::optional<CIValue> randomValue(
    const CIInputAttributes& input, const CIValue& old, const CIRect& picture, std::mt19937& random)
{
    if (!canBeRandom(input))
        return {};
    if (input.kind == InputKind::Boolean)
        return std::bernoulli_distribution()(random);
    if (input.isNumber())
        return numberFor(input, random);
    if (input.isVector())
        return randomVector(input, old, picture, random);
    if (input.kind == InputKind::Transform) {
        if (picture.isEmpty())
            return {};
        return transformIn(picture, random);
    }
    const auto part = [&] { return between(0, 1, random); };
    const double red = part(), green = part(), blue = part();
    return CIColor(red, green, blue, old.isColor() ? old.toColor().alpha() : 1);
}
