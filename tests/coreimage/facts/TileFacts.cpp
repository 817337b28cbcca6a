// Tiles: which place of the picture each place of the plane repeats.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

/// `from` counted from the center at (30, 30); the tiles are 40 px wide.
struct Look {
    CIPoint from, shown;
};
Fact tiled(const char* filter, const std::vector<Look>& looks, CIDictionary inputs = {})
{
    inputs.insert({{"inputImage", ramp()}, {"inputCenter", at(30, 30)}, {"inputWidth", 40}});
    std::vector<Seen> seen;
    for (const Look& l : looks)
        seen.push_back({{30 + l.from.x, 30 + l.from.y}, rampAt(30 + l.shown.x, 30 + l.shown.y)});
    return Fact{filter, std::move(inputs), std::move(seen), 2e-3};
}

CIPoint polar(double degrees, double radius = 20, CIPoint from = {0, 0})
{
    return {from.x + radius * std::cos(degrees * M_PI / 180), from.y + radius * std::sin(degrees * M_PI / 180)};
}

constexpr double kAcute = M_PI / 3, kHigh = 40 * 0.8660254; // of a parallelogram of 60 degrees

} // namespace

Facts tiles()
{
    const CIPoint next{80 * 0.8660254, 0}; // the middle of the hexagon to the right
    // From the middle of the triangle its corner at angle 0 lies 23.09 px away; mirrored in the side opposite to it.
    const double corner = 40 / std::sqrt(3.0), light = std::pow(0.85, 0.75);
    const Color beyond = rampAt(51 + 0.75 * corner, 51);
    const CIDictionary slanted{{"inputAcuteAngle", kAcute}}, turned{{"inputAngle", M_PI / 2}};
    return {
        Fact{"CIAffineClamp", {{"inputImage", ramp()}, {"inputTransform", CIAffineTransform::scaling(2, 2)}},
            {{{41, 61}, rampAt(20.5, 30.5)}, {{251, 61}, rampAt(99.5, 30.5)}}}
            .inPlace()
            .atFullSize(),
        Fact{"CIAffineTile", {{"inputImage", ramp()}, {"inputTransform", CIAffineTransform::translation(30, 10)}},
            {{{141, 31}, rampAt(11, 21)}, {{21, 131}, rampAt(91, 21)}}}
            .inPlace(),
        Fact{"CIAffineTile", {{"inputImage", ramp()}, {"inputTransform", CIAffineTransform{2, 0, 0.5, 3, 0, 0}}},
            {{{251, 31}, rampAt((251 - 31 / 6.0) / 2 - 100, 31 / 3.0)}}}
            .inPlace(),
        Fact{"CIClamp", {{"inputImage", ramp()}, {"inputExtent", CIVector{20, 20, 40, 40}}},
            {{{81, 31}, rampAt(59.5, 31)}, {{31, 11}, rampAt(31, 20.5)}, {{31, 41}, rampAt(31, 41)}}}
            .atFullSize(),
        tiled("CIEightfoldReflectedTile", {{{10, 20}, {20, 10}}, {{50, 20}, {30, 20}}, {{-20, 10}, {20, 10}}}),
        tiled("CIFourfoldReflectedTile", {{{50, 20}, {30, 20}}, {{-10, 50}, {10, 30}}}),
        tiled("CIFourfoldReflectedTile", {{{60, kHigh / 2}, {40, kHigh / 2}}}, slanted),
        tiled("CIFourfoldReflectedTile", {{{-20, 50}, {-20, 30}}}, turned),
        tiled("CIParallelogramTile", {{{60, kHigh / 2}, {40, kHigh / 2}}}, slanted),
        tiled("CIFourfoldTranslatedTile", {{{60, kHigh / 2}, {20, kHigh / 2}}, {{-15, kHigh / 2}, {25, kHigh / 2}}},
            slanted),
        tiled("CIFourfoldTranslatedTile", {{{50, 20}, {10, 20}}, {{-10, -10}, {30, 30}}}),
        tiled("CIFourfoldRotatedTile",
            {{{10, 20}, {10, 20}}, {{-10, 20}, {20, 10}}, {{10, -20}, {20, 10}}, {{-10, -20}, {10, 20}},
                {{90, 20}, {10, 20}}}),
        tiled("CIGlideReflectedTile", {{{50, 20}, {10, 20}}, {{10, 50}, {30, 30}}, {{10, 90}, {10, 10}}}),
        // Three sectors of 60 degrees, mirrored: 75 degrees show 45; turned by 20, 75 show 65.
        Fact{"CIKaleidoscope", {{"inputImage", ramp()}, {"inputCenter", at(51, 51)}, {"inputCount", 3}},
            {{{56.1764, 70.3185}, rampAt(65.1421, 65.1421)}, {{71, 53}, rampAt(71, 53)}, {{71, 49}, rampAt(71, 53)}}}
            .reaching({-22, -22, 146, 146}),
        Fact{"CIKaleidoscope",
            {{"inputImage", ramp()}, {"inputCenter", at(51, 51)}, {"inputCount", 3}, {"inputAngle", M_PI / 9}},
            {{polar(90, 20, {51, 51}), rampAt(polar(70, 20, {51, 51}).x, polar(70, 20, {51, 51}).y)}}},
        // Squares of 40 px show what lies around their middles, half as large.
        Fact{"CIOpTile", {{"inputImage", ramp()}, {"inputCenter", at(51, 51)}, {"inputWidth", 40}, {"inputScale", 2}},
            {{{81, 56}, rampAt(71, 61)}, {{57, 53}, rampAt(63, 55)}, {{51, 25}, rampAt(51, 39)}}},
        Fact{"CIOpTile",
            {{"inputImage", ramp()}, {"inputCenter", at(51, 51)}, {"inputWidth", 40}, {"inputScale", 2},
                {"inputAngle", M_PI / 2}},
            {{{81, 56}, rampAt(81, 31)}}},
        Fact{"CIPerspectiveTile",
            {{"inputImage", ramp()}, {"inputBottomLeft", at(10, 10)}, {"inputBottomRight", at(90, 10)},
                {"inputTopRight", at(70, 90)}, {"inputTopLeft", at(30, 90)}},
            {{{35, 50}, rampAt(25, 100 / 3.0)}, {{95, 50}, rampAt(25, 100 / 3.0)}}}
            .within(3e-3),
        // The triangle between 30 and 90 degrees, mirrored at its sides.
        tiled("CISixfoldReflectedTile",
            {{polar(70), polar(70)}, {polar(10), polar(50)}, {polar(-50), polar(70)},
                {polar(70, 20, next), polar(70)}}),
        tiled("CISixfoldRotatedTile",
            {{polar(20), polar(20)}, {polar(100), polar(40)}, {polar(160), polar(40)}, {polar(200), polar(20)},
                {polar(20, 20, next), polar(20)}}),
        tiled("CITwelvefoldReflectedTile",
            {{polar(20), polar(20)}, {polar(50), polar(10)}, {polar(80), polar(20)}, {polar(-160), polar(20)},
                {polar(20, 20, next), polar(20)}}),
        // Up and down in turn.
        tiled("CITriangleTile", {{{15, 8.66}, {15, 8.66}}, {{45, 25.98}, {15, 8.66}}, {{55, 8.66}, {15, 8.66}}}),
        Fact{"CITriangleKaleidoscope",
            {{"inputImage", ramp()}, {"inputPoint", at(51, 51)}, {"inputSize", 40}, {"inputRotation", 0}},
            {{{55, 53}, rampAt(55, 53)},
                {{51 - 1.75 * corner, 51}, {beyond[0] * light, beyond[1] * light, 0.25 * light, 1}}},
            2e-3},
        Fact{"CITriangleKaleidoscope",
            {{"inputImage", ramp()}, {"inputPoint", at(51, 51)}, {"inputSize", 40}, {"inputRotation", M_PI / 2},
                {"inputDecay", 1}},
            {{{51, 51 - 1.75 * corner}, rampAt(51, 51 + 0.75 * corner)}}, 2e-3},
    };
}

} // namespace facts
