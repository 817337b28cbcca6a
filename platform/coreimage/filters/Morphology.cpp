// Morphology and the median: each pixel takes a value that a neighbor has.
#include "platform/coreimage/passes/Morphology.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

Declaration ofDisc(std::string name, std::string displayName)
{
    return {.name = std::move(name),
        .displayName = std::move(displayName),
        .category = kCICategoryBlur,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            fitted(distance("inputRadius", "Radius", {.standard = 0, .sliderMin = 0, .sliderMax = 50, .identity = 0}),
                10)}};
}

const RecipeFilter morphologyMaximum{ofDisc("CIMorphologyMaximum", "Morphology Maximum"),
    [](const Values& in) { return extremeOfDisc(in.image(), Extreme::Greatest, in.number("inputRadius")); }};

const RecipeFilter morphologyMinimum{ofDisc("CIMorphologyMinimum", "Morphology Minimum"),
    [](const Values& in) { return extremeOfDisc(in.image(), Extreme::Least, in.number("inputRadius")); }};

Declaration ofRectangle(std::string name, std::string displayName)
{
    const Range side{.standard = 5, .min = 1, .sliderMin = 1, .sliderMax = 49, .identity = 1};
    return {.name = std::move(name),
        .displayName = std::move(displayName),
        .category = kCICategoryBlur,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), fitted(integer("inputWidth", "Width", side), 10, Meaning::Length),
            fitted(integer("inputHeight", "Height", side), 10, Meaning::Length)}};
}

CIImage rectangleImage(const Values& in, Extreme which)
{
    return extremeOfRectangle(in.image(), which, in.number("inputWidth"), in.number("inputHeight"));
}

const RecipeFilter morphologyRectangleMaximum{
    ofRectangle("CIMorphologyRectangleMaximum", "Morphology Rectangle Maximum"),
    [](const Values& in) { return rectangleImage(in, Extreme::Greatest); }};

const RecipeFilter morphologyRectangleMinimum{
    ofRectangle("CIMorphologyRectangleMinimum", "Morphology Rectangle Minimum"),
    [](const Values& in) { return rectangleImage(in, Extreme::Least); }};

/// Half the distance of the greatest and least values, as opaque as the former.
template <class V>
struct HalfDistance {
    explicit HalfDistance(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& most, const Pixel<V>& least) const
    {
        const V half(0.5f);
        return {(most.r - least.r) * half, (most.g - least.g) * half, (most.b - least.b) * half, most.a};
    }
};

const RecipeFilter morphologyGradient{
    {.name = "CIMorphologyGradient",
        .displayName = "Morphology Gradient",
        .category = kCICategoryBlur,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            distance(
                "inputRadius", "Radius", {.standard = 5, .min = 0, .sliderMin = 0, .sliderMax = 50, .identity = 0})}},
    [](const Values& in) {
        const CIImage source = in.image();
        const double radius = in.number("inputRadius");
        return pointwise<HalfDistance>(in,
            {extremeOfDisc(source, Extreme::Greatest, radius), extremeOfDisc(source, Extreme::Least, radius)},
            source.extent());
    }};

/// All is transparent around a picture: of opaque ones the corners become so, too (measured).
const RecipeFilter medianFilter{{.name = "CIMedianFilter",
                                    .displayName = "Median",
                                    .category = kCICategoryBlur,
                                    .usage = Video | HighDynamicRange,
                                    .inputs = {image()},
                                    .boundToPixelGrid = true},
    [](const Values& in) { return medianOfNine(in.image()); }};

} // namespace
} // namespace ci
