// Lights: halo, star and sun.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

const CIColor kLamp(1, 0.5, 0); // 1, 0.21404 and 0 of light

CIDictionary at51(CIDictionary inputs)
{
    inputs.insert({{"inputCenter", at(51, 51)}, {"inputColor", kLamp}});
    return inputs;
}
/// Centered on a pixel, since rays are narrow.
CIDictionary onPixel(CIDictionary inputs)
{
    inputs["inputCenter"] = at(51.5, 51.5);
    return at51(std::move(inputs));
}

CIDictionary halo(double overlap)
{
    return {{"inputHaloRadius", 50}, {"inputHaloWidth", 40}, {"inputHaloOverlap", overlap},
        {"inputStriationStrength", 0}, {"inputColor", CIColor(1, 1, 1, 0.5)}};
}

} // namespace

Facts lights()
{
    const double half = light(0.5), u = std::cos(0.6), v = std::sin(0.6);
    const Color ring{0.245, 0.245, 0.245, 0.245}, slope{0.1225, 0.1225, 0.1225, 0.1225};
    const CIDictionary thin{{"inputRadius", 5}, {"inputCrossAngle", 0}};
    return {
        // A sine squared of 0.49 across the ring; with less overlap blue lies inside and red outside.
        Fact{"CILenticularHaloGenerator", at51(halo(1)), {{{121, 51}, ring}, {{51, 111}, slope}, {{61, 51}, kNothing}}}
            .reaching({-39, -39, 180, 180})
            .within(4e-3),
        Fact{"CILenticularHaloGenerator", at51(halo(0.5)),
            {{{114, 51}, {0, 0.050497, 0.194503, 0.194503}}, {{128, 51}, {0.194503, 0.050497, 0, 0.194503}},
                {{51, 108}, {0, 0, 0.194503, 0.194503}}}}
            .within(4e-3),
        // Ten waves around the circle.
        Fact{"CILenticularHaloGenerator",
            onPixel({{"inputHaloRadius", 80}, {"inputHaloWidth", 40}, {"inputHaloOverlap", 1},
                {"inputStriationStrength", 1}, {"inputTime", 0.5}}),
            {{{-48.5, 51.5}, {0.85491, 0.85491 * half, 0, 0.85491}},
                {{151.5, 51.5}, {0.12509, 0.12509 * half, 0, 0.12509}},
                {{111.5, 131.5}, {0.43938, 0.43938 * half, 0, 0.43938}}}}
            .atFullSize(),
        Fact{"CILenticularHaloGenerator",
            onPixel({{"inputHaloRadius", 80}, {"inputHaloWidth", 40}, {"inputHaloOverlap", 1},
                {"inputStriationContrast", 2}, {"inputTime", 0.5}}),
            {{{-48.5, 51.5}, {0.79763, 0.79763 * half, 0, 0.79763}}}}
            .atFullSize(),
        // The glow falls with the square of the distance.
        {"CIStarShineGenerator", at51({{"inputRadius", 10}, {"inputCrossOpacity", -8}}),
            {{{71, 51}, {0.25, 0.25 * half, 0, 0.25}}, {{51, 91}, {0.0625, 0.0625 * half, 0, 0.0625}},
                {{53, 51}, straight(1, 1, 0)}},
            3e-3},
        // The cross is white: 2.65 tenths that fall by e over 36 px.
        {"CIStarShineGenerator",
            at51({{"inputRadius", 50}, {"inputCrossScale", 3}, {"inputCrossAngle", 0}, {"inputCrossWidth", 20},
                {"inputCrossOpacity", 1}, {"inputEpsilon", 2}}),
            {{{151, 51}, {0.266477, 0.25 * half + 0.016477, 0.016477, 0.266477}}}},
        // Beside an arm, and on it.
        Fact{"CIStarShineGenerator", at51(thin),
            {{{91, 56}, {0.046646, 0.015385 * half + 0.031261, 0.031261, 0.046646}}}}
            .atFullSize(),
        Fact{"CIStarShineGenerator", onPixel(thin),
            {{{91.5, 51.5}, {0.294761, 0.015625 * half + 0.279136, 0.279136, 0.294761}}}}
            .atFullSize(),
        Fact{"CIStarShineGenerator", at51({{"inputRadius", 5}, {"inputCrossAngle", 0.6}}),
            {{{51 + 40 * u - 5 * v, 51 + 40 * v + 5 * u}, {0.046646, 0.015385 * half + 0.031261, 0.031261, 0.046646}}}}
            .atFullSize(),
        // A colored glow and white rays, 0.5 in the mean, that both end at five radii.
        Fact{"CISunbeamsGenerator",
            at51({{"inputSunRadius", 20}, {"inputMaxStriationRadius", 5}, {"inputStriationStrength", 0},
                {"inputColor", CIColor(1, 0.5, 0, 0.5)}}),
            {{{101, 51}, {0.165, 0.125 + 0.04 * half, 0.125, 0.165}}, {{51, 151}, kNothing},
                {{53, 51}, {0.5, 0.5, 0.245, 0.5}}}}
            .reaching({-49, -49, 200, 200}),
        Fact{"CISunbeamsGenerator",
            onPixel({{"inputSunRadius", 40}, {"inputMaxStriationRadius", 5}, {"inputStriationStrength", 1},
                {"inputStriationContrast", 1}, {"inputTime", 0.5}}),
            {{{-48.5, 51.5}, {0.516178, 0.08 * half + 0.436178, 0.436178, 0.516178}},
                {{151.5, 51.5}, {0.143823, 0.08 * half + 0.063823, 0.063823, 0.143823}}}}
            .atFullSize(),
    };
}

} // namespace facts
