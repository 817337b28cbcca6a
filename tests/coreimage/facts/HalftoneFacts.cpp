// Halftone screens of 40 px on flat tones: where ink ends. Light is in the middle between two lines or dots.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

struct Spot {
    double x, y; // from the center
    Color color;
};
Fact screen(
    const char* filter, const Color& tone, const std::vector<Spot>& spots, double angle = 0, CIDictionary inputs = {})
{
    inputs.insert({{"inputImage", flat(tone, 200, 200)}, {"inputCenter", at(101, 101)}, {"inputWidth", 40},
        {"inputSharpness", 1}});
    const auto made = CIFilter::filterWithName(filter);
    if (made->attributesForKey("inputAngle"))
        inputs.insert({"inputAngle", angle});
    std::vector<Seen> seen;
    for (const Spot& s : spots)
        seen.push_back({{101 + s.x, 101 + s.y}, s.color});
    return {filter, std::move(inputs), std::move(seen), 5e-3};
}
/// A spot of a screen that is turned by so many degrees.
Spot turned(double degrees, double x, double y, const Color& color)
{
    const double c = std::cos(degrees * M_PI / 180), s = std::sin(degrees * M_PI / 180);
    return {c * x - s * y, s * x + c * y, color};
}

} // namespace

Facts halftones()
{
    const Color quarter = gray(0.25), most = gray(0.7);
    const CIDictionary soft{{"inputSharpness", 0.5}}, plain{{"inputGCR", 0}}, removed{{"inputUCR", 1}},
        shadows{{"inputUCR", 0}};
    const Color r = straight(0, 1, 1), g = straight(1, 0, 1), b = straight(1, 1, 0);
    return {
        // A quarter of each period is lit: 5 px to both sides of its middle, at 20 px.
        screen("CILineScreen", quarter,
            {{0, 7, kBlack}, {17, 3, kWhite}, {23, 50, kWhite}, {12, 0, kBlack}, {28, 0, kBlack}, {57, 0, kWhite}}),
        screen("CILineScreen", straight(0.5, 0.25, 0, 0.5),
            {{20, 0, {0.5, 0.5, 0.5, 0.5}}, {8, 0, {0, 0, 0, 0.5}}}), // luminance 0.2851
        screen("CILineScreen", quarter, {{0, 20, kWhite}, {20, 0, kBlack}}, M_PI / 2),
        screen("CILineScreen", quarter, {{15, 0, gray(0.5)}, {17, 0, gray(0.7)}, {24, 0, gray(0.6)}, {6, 0, kBlack}}, 0,
            soft), // edges 10 px wide
        screen("CICircularScreen", quarter,
            {{0, 20, kWhite}, {-20, 0, kWhite}, {0, 28, kBlack}, {2, 2, kBlack}, {36, 48, kWhite}}),
        // Where both screens of half the period let light through.
        screen("CIHatchedScreen", quarter,
            {{20, 20, kWhite}, {12, 28, kWhite}, {20, 7, kBlack}, {7, 20, kBlack}, {20, 0, kBlack}}),
        screen("CIHatchedScreen", quarter, {turned(30, 12, 28, kWhite), turned(30, 20, 6, kBlack)}, M_PI / 6)
            .atFullSize(),
        // The share of a period's square below a level of (cos u + cos v) / 2: on the diagonal 12.3 px from a dot's
        // middle.
        screen("CIDotScreen", quarter,
            {{14, 14, kWhite}, {10, 10, kBlack}, {20, 20, kWhite}, {0, 0, kBlack}, {20, 5, kBlack}, {20, 14, kWhite}}),
        screen("CIDotScreen", gray(0.5), {{10, 10, gray(0.5)}, {12, 12, kWhite}, {8, 8, kBlack}}),
        screen("CIDotScreen", most, {{10, 10, kWhite}, {6, 6, kBlack}, {0, 0, kBlack}, {20, 0, kWhite}}),
        screen("CIDotScreen", quarter,
            {turned(30, 14, 14, kWhite), turned(30, 60, 5, kBlack), turned(30, 60, 14, kWhite)}, M_PI / 6)
            .atFullSize(),
        screen("CIDotScreen", quarter, {{20, 20, kWhite}, {10, 10, gray(0.1462)}, {12, 12, gray(0.4552)}}, 0,
            {{"inputSharpness", 0}}),
        // Each ink at its angle: 15, 75, 0 and 45 degrees.
        screen("CICMYKHalftone", straight(0.25, 1, 1),
            {turned(15, 14, 14, kWhite), turned(15, 60, 5, r), turned(15, 60, 14, kWhite), turned(15, 40, 0, r)})
            .atFullSize(),
        screen("CICMYKHalftone", straight(1, 0.25, 1),
            {turned(75, 14, 14, kWhite), turned(75, 60, 5, g), turned(75, 60, 14, kWhite), turned(75, 40, 0, g)})
            .atFullSize(),
        screen("CICMYKHalftone", straight(1, 1, 0.25),
            {{14, 14, kWhite}, {60, 5, b}, {60, 14, kWhite}, {40, 0, b}, {40, 40, b}}),
        screen("CICMYKHalftone", straight(1, 1, 0.25), {turned(30, 60, 5, b), turned(30, 60, 14, kWhite)}, M_PI / 6)
            .atFullSize(),
        // Gray in black alone; half of it in shadows; none.
        screen("CICMYKHalftone", gray(0.5),
            {turned(45, 12, 12, kWhite), turned(45, 60, 20, kWhite), turned(45, 40, 0, kBlack),
                turned(45, 8, 8, kBlack)},
            0, removed),
        screen("CICMYKHalftone", gray(0.5), {{-38, -18, kBlack}, {-48, -46, kBlack}}, 0, removed).atFullSize(),
        screen("CICMYKHalftone", gray(0.5), {{-38, -18, r}, {-38, 18, g}, {-48, -46, b}, turned(45, 40, 0, kBlack)}, 0,
            shadows)
            .atFullSize(),
        screen("CICMYKHalftone", gray(0.5), {{-60, 26, r}, {-60, -30, g}, {-52, -40, straight(1, 0, 0)}}, 0, plain)
            .atFullSize(),
    };
}

} // namespace facts
