// Blend modes by the W3C's "Compositing and Blending", operations by Porter and Duff, and masks.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

/// What an image makes with the background under it.
Fact over(const std::string& filter, const Color& image, const Color& background, const Color& becomes)
{
    return of(filter.c_str(), image, {{"inputBackgroundImage", flat(background)}}, becomes);
}

struct Pair {
    double image, background, becomes;
};
/// A mode that treats each channel alone: three cases at once.
Fact mode(const std::string& name, Pair r, Pair g, Pair b)
{
    return over("CI" + name + "BlendMode", straight(r.image, g.image, b.image),
        straight(r.background, g.background, b.background), straight(r.becomes, g.becomes, b.becomes));
}

/// Both half transparent or less; the background lies 10 px to the right of the image.
Fact shares(const std::string& name, const Color& becomes, const CIRect& extent)
{
    return Fact{"CI" + name + "Compositing",
        {{"inputImage", flat(straight(0.8, 0.4, 0.2, 0.5), 20, 20)},
            {"inputBackgroundImage", moved(flat(straight(0.2, 0.6, 0.9, 0.4), 20, 20), 10, 0)}},
        {{{15, 11}, becomes}}, 1e-5}
        .reaching(extent);
}

/// The image where the mask's value, premultiplied (0.4, 0.2, 0.1, 0.5), says so.
Fact masked(const std::string& name, double share)
{
    return of(("CIBlendWith" + name).c_str(), straight(1, 0, 0),
        {{"inputBackgroundImage", flat(straight(0, 0, 1))}, {"inputMaskImage", flat(straight(0.8, 0.4, 0.2, 0.5))}},
        straight(share, 0, 1 - share));
}

const Color kImage = straight(0.6, 0.3, 0.2), kUnder = straight(0.3, 0.5, 0.45); // lightness 0.379 and 0.4345

} // namespace

Facts blends()
{
    return {
        mode("ColorDodge", {0.6, 0.2, 0.5}, {1, 0.01, 1}, {1, 0, 0}),
        mode("ColorDodge", {0.8, 0.5, 1}, {0, 0.3, 0.3}, {0.5, 0, 0}),
        mode("ColorBurn", {0.5, 0.8, 0.6}, {0, 0.9, 0}, {0, 1, 1}),
        mode("Multiply", {0.5, 0.4, 0.2}, {1, 0.3, 0.3}, {0, 0.7, 0}),
        mode("Screen", {0.5, 0.4, 0.7}, {0, 0.3, 0.3}, {1, 0.2, 1}),
        mode("Darken", {0.6, 0.2, 0.2}, {0.1, 0.5, 0.1}, {0, 1, 0}),
        mode("Lighten", {0.6, 0.2, 0.6}, {0.1, 0.5, 0.5}, {0, 1, 1}),
        mode("Difference", {0.6, 0.2, 0.4}, {0.1, 0.5, 0.4}, {1, 1, 0}),
        mode("Exclusion", {0.25, 0.5, 0.5}, {0.6, 0.2, 0.56}, {1, 1, 0}),
        mode("HardLight", {0.25, 0.6, 0.3}, {0.75, 0.6, 0.8}, {0.5, 0.3, 0.3}),
        mode("Overlay", {0.6, 0.25, 0.3}, {0.6, 0.75, 0.8}, {0.3, 0.5, 0.3}),
        mode("LinearBurn", {0.7, 0.6, 0.3}, {0.2, 0.3, 0}, {1, 0.4, 0.4}),
        mode("LinearDodge", {0.3, 0.4, 0.7}, {0.7, 0.6, 1}, {0.8, 0.9, 1}),
        mode("LinearLight", {0.7, 0.2, 0.6}, {0.2, 0.3, 0}, {0.9, 0.6, 1}),
        mode("PinLight", {0.2, 0.6, 0.4}, {0.9, 0.6, 0.8}, {0.5, 0.3, 0.3}),
        mode("VividLight", {0.25, 0.8, 0.6}, {0.8, 0.2, 0.5}, {0.5, 0.4, 0.4}),
        mode("VividLight", {0.6, 0.2, 0.25}, {0.4, 0.5, 0.375}, {0, 0.5, 0}),
        mode("Subtract", {0.7, 0.2, 0.5}, {0.2, 0.7, 0}, {0.5, 0.1, 0.4}),
        mode("Divide", {0.2, 0.5, 0.4}, {0.8, 0.4, 1}, {0, 0.3, 0}),
        mode("Divide", {0.2, 0, 1}, {0, 0, 0}, {0.3, 0.6, 0.5}),
        mode("SoftLight", {0.75, 0.36, 0.48}, {0.25, 0.36, 0.2448}, {1, 0.16, 0.398336}),
        mode("SoftLight", {1, 0.3, 0.547723}, {1, 0.25, 0.5}, {1, 0.2, 0.448}),
        // Half covered: a quarter of each alone, a quarter of the product.
        over("CIMultiplyBlendMode", gray(0.8, 0.5), gray(0.4, 0.5), {0.38, 0.38, 0.38, 0.75}),
        over("CIScreenBlendMode", kThin, kNothing, kThin),
        over("CIScreenBlendMode", kNothing, kThin, kThin),

        // The image's hue at the background's saturation 0.2: (0.2, 0.05, 0), then 0.345 lighter. And so on.
        over("CIHueBlendMode", kImage, kUnder, straight(0.545, 0.395, 0.345)),
        over("CISaturationBlendMode", kImage, kUnder, straight(0.1655, 0.5655, 0.4655)),
        over("CISaturationBlendMode", gray(0.5), kUnder, gray(0.4345)),
        over("CIColorBlendMode", kImage, kUnder, straight(0.6555, 0.3555, 0.2555)),
        over("CILuminosityBlendMode", kImage, kUnder, straight(0.2445, 0.4445, 0.3945)),
        // What can't be that light or dark is drawn towards gray.
        over("CIColorBlendMode", straight(1, 0, 0), gray(0.9), straight(1, 6 / 7.0, 6 / 7.0)),
        over("CIColorBlendMode", straight(0, 0, 1), gray(0.05), straight(0, 0, 5 / 11.0)),
        over(
            "CIHueBlendMode", straight(1, 0, 0, 0.5), gray(0.4, 0.5), {0.45, 0.2, 0.2, 0.75}), // gray has no saturation

        shares("SourceOver", {0.44, 0.32, 0.28, 0.7}, {0, 0, 30, 20}),
        shares("SourceIn", {0.16, 0.08, 0.04, 0.2}, {10, 0, 10, 20}),
        shares("SourceOut", {0.24, 0.12, 0.06, 0.3}, {0, 0, 20, 20}),
        shares("SourceAtop", {0.2, 0.2, 0.22, 0.4}, {10, 0, 20, 20}),
        shares("Addition", {0.48, 0.44, 0.46, 0.9}, {0, 0, 30, 20}),
        shares("Multiply", {0.032, 0.048, 0.036, 0.2}, {10, 0, 10, 20}),
        shares("Maximum", {0.4, 0.24, 0.36, 0.5}, {0, 0, 30, 20}),
        shares("Minimum", {0.08, 0.2, 0.1, 0.4}, {10, 0, 10, 20}),
        over("CIAdditionCompositing", gray(0.3), gray(0.4), gray(0.7)), // light adds up, alpha stays 1

        masked("Mask", 0.2353), // luminance
        masked("AlphaMask", 0.5),
        masked("RedMask", 0.4),
        masked("BlueMask", 0.1),
        of("CIMix", straight(1, 0, 0), {{"inputBackgroundImage", flat(straight(0, 0, 1))}, {"inputAmount", 0.3}},
            straight(0.3, 0, 0.7)),
    };
}

} // namespace facts
