// Pictures made of patches of one color.
#include "platform/coreimage/passes/Mosaic.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

#include <numbers>

namespace ci {
namespace {

Declaration scatteredPatches(std::string name, std::string displayName)
{
    return {.name = std::move(name),
        .displayName = std::move(displayName),
        .category = kCICategoryStylize,
        .usage = Video | HighDynamicRange,
        .inputs = {image(),
            fitted(distance("inputRadius", "Radius",
                       {.standard = 20, .min = 1, .sliderMin = 1, .sliderMax = 100, .identity = 1}),
                8),
            center()}};
}

constexpr double kLargest = 2000; // px; a patch then fills any screen

/// The mosaic of an image whose edge colors are not thinned by what lies outside.
CIImage patched(const CIImage& source, const Mosaic& m)
{
    return mosaic(source.clampedToExtent(), m).cropped(source.extent());
}

/// Polygons of about inputRadius, in the mean color around their middles.
const RecipeFilter crystallize{
    scatteredPatches("CICrystallize", "Crystallize"), [](const Values& in) {
        const double size = std::min(in.number("inputRadius"), kLargest);
        return size <= 1
            ? in.image()
            : patched(in.image(), {.origin = in.point("inputCenter"), .across = size, .along = size, .scatter = 0.45});
    }};

/// Dots of paint on white.
const RecipeFilter pointillize{
    scatteredPatches("CIPointillize", "Pointillize"), [](const Values& in) {
        const double size = std::min(in.number("inputRadius"), kLargest);
        return size <= 1
            ? in.image()
            : patched(in.image(),
                {.origin = in.point("inputCenter"), .across = size, .along = size, .scatter = 0.3, .dot = 0.62 * size});
    }};

/// Regular hexagons, inputScale from one to the next, in the mean color around their middles.
const RecipeFilter hexagonalPixellate{
    {.name = "CIHexagonalPixellate",
        .displayName = "Hexagonal Pixelate",
        .category = kCICategoryStylize,
        .usage = Video | HighDynamicRange,
        .inputs = {image(), center(),
            distance(
                "inputScale", "Scale", {.standard = 8, .min = 1, .sliderMin = 1, .sliderMax = 100, .identity = 1})}},
    [](const Values& in) {
        const double size = std::min(in.number("inputScale"), kLargest), along = size * std::numbers::sqrt3 / 2;
        if (along < 1)
            return in.image();
        const CIPoint middle = in.point("inputCenter"); // of a hexagon
        return patched(in.image(),
            {.origin = {middle.x - size / 2, middle.y - along / 2},
                .across = size,
                .along = along,
                .oddRows = size / 2});
    }};

} // namespace
} // namespace ci
