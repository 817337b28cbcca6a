// Reductions: an area in a few pixels.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

const CIVector kArea{20, 30, 40, 20}; // of the picture that tells places

Fact reduced(
    const char* filter, const CIImage& image, const CIVector& area, CIDictionary inputs, const std::vector<Seen>& seen)
{
    inputs.insert({{"inputImage", image}, {"inputExtent", area}});
    return Fact{filter, std::move(inputs), seen, 1e-4}.answered().atFullSize();
}
Fact ofRamp(const char* filter, const std::vector<Seen>& seen) { return reduced(filter, ramp(), kArea, {}, seen); }

Fact histogram(const char* filter, CIDictionary inputs, const Color& color, const std::vector<Color>& bins)
{
    std::vector<Seen> seen;
    for (std::size_t i = 0; i < bins.size(); ++i)
        seen.push_back({{double(i) + 0.5, 0.5}, bins[i]});
    inputs.insert({"inputCount", double(bins.size())});
    return reduced(filter, flat(color), CIVector{0, 0, 40, 40}, std::move(inputs), seen)
        .reaching({0, 0, double(bins.size()), 1});
}

/// One row of bins.
CIImage bins()
{
    return painted(3, 1, [](double x, double) {
        return x < 1 ? Color{0.1, 0.2, 0, 1} : x < 2 ? Color{0.4, 0, 0, 1} : Color{0.2, 0, 0.3, 1};
    });
}

} // namespace

Facts reductions()
{
    const CIImage dots = painted(40, 40, [](double x, double y) {
        return x == 12.5 && y == 9.5 ? Color{0.1, 0.2, 0.3, 0.4}
            : x == 31.5 && y == 20.5 ? Color{0.7, 0.8, 0.1, 0.9}
                                     : Color{0, 0.5, 0.5, 0.6};
    });
    const CIVector all{2, 4, 36, 32};
    const Color thin = straight(0.3, 0.6, 0.9, 0.5); // 0.15, 0.3, 0.45 with alpha
    const CIImage two = halves(straight(0.8, 0.1, 0.1), straight(0.05, 0.1, 0.6));
    const CIImage seeds = painted(2, 1, [](double x, double) { return x < 1 ? straight(0, 0, 1) : straight(1, 0, 0); });
    const auto quarters = painted(40, 40, [](double x, double) { return gray(light(x < 10 ? 0.252 : 0.752)); });
    return {
        ofRamp("CIAreaAverage", {{{0.5, 0.5}, rampAt(40, 40)}}),
        ofRamp("CIAreaMaximum", {{{0.5, 0.5}, rampAt(59.5, 49.5)}}),
        ofRamp("CIAreaMinimum", {{{0.5, 0.5}, rampAt(20.5, 30.5)}}),
        ofRamp("CIAreaMinMax", {{{0.5, 0.5}, rampAt(20.5, 30.5)}, {{1.5, 0.5}, rampAt(59.5, 49.5)}}),
        ofRamp("CIAreaMinMaxRed", {{{0.5, 0.5}, {0.205, 0.595, 0, 1}}}),
        reduced("CIAreaMaximumAlpha", dots, all, {}, {{{0.5, 0.5}, {0.7, 0.8, 0.1, 0.9}}}),
        reduced("CIAreaMinimumAlpha", dots, all, {}, {{{0.5, 0.5}, {0.1, 0.2, 0.3, 0.4}}}),
        reduced("CIAreaBoundsRed", dots, all, {}, {{{0.5, 0.5}, {10 / 36.0, 5 / 32.0, 20 / 36.0, 12 / 32.0}}}),
        ofRamp("CIColumnAverage", {{{10.5, 0.5}, rampAt(30.5, 40)}, {{39.5, 0.5}, rampAt(59.5, 40)}})
            .reaching({0, 0, 40, 1}),
        ofRamp("CIRowAverage", {{{0.5, 5.5}, rampAt(40, 35.5)}, {{0.5, 19.5}, rampAt(40, 49.5)}})
            .reaching({0, 0, 1, 20}),
        // Where the four components of all pixels fall.
        histogram("CIAreaHistogram", {}, thin, {{1, 0, 0, 0}, {0, 1, 1, 0}, {0, 0, 0, 1}, {0, 0, 0, 0}}),
        histogram("CIAreaHistogram", {{"inputScale", 3}}, straight(-1, 0.99, 4), {{3, 0, 0, 0}, {0, 3, 3, 3}}),
        histogram(
            "CIAreaAlphaWeightedHistogram", {}, thin, {{0, 0, 0, 0}, {0.5, 0, 0, 0}, {0, 0.5, 0, 1}, {0, 0, 0.5, 0}}),
        histogram("CIAreaLogarithmicHistogram", {{"inputMinimumStop", -2}, {"inputMaximumStop", 2}},
            straight(0.51, 2.1, 0.26), {{0, 0, 1, 0}, {1, 0, 0, 0}, {0, 0, 0, 0}, {0, 1, 0, 1}}),
        // The highest bin is as high as the chart; darker before the low limit, lighter behind the high one.
        Fact{"CIHistogramDisplayFilter",
            {{"inputImage", bins()}, {"inputHeight", 8}, {"inputLowLimit", 0.4}, {"inputHighLimit", 0.6}},
            {{{0.5, 1.5}, {0.25, 0.25, 0, 1}}, {{0.5, 3.5}, {0, 0.25, 0, 1}}, {{0.5, 4.5}, {0, 0, 0, 0.5}},
                {{1.5, 7.5}, {0.6, 0, 0, 1}}, {{2.5, 5.5}, {0, 0, 1, 1}}, {{2.5, 6.5}, {0, 0, 0, 0.5}}}}
            .reaching({0, 0, 3, 8})
            .answered()
            .atFullSize(),
        // Of a picture first the codes are counted: three quarters of its pixels have 0.752.
        Fact{"CIHistogramDisplayFilter", {{"inputImage", quarters}, {"inputHeight", 9}},
            {{{192.5, 8.5}, {0.6, 0.6, 0.6, 1}}, {{64.5, 2.5}, {0.6, 0.6, 0.6, 1}}, {{64.5, 3.5}, {0, 0, 0, 0.5}}}}
            .answered()
            .atFullSize()
            .within(0.01),
        reduced("CIKMeans", two, CIVector{0, 0, 100, 100}, {{"inputMeans", seeds}, {"inputCount", 2}},
            {{{0.5, 0.5}, straight(0.05, 0.1, 0.6)}, {{1.5, 0.5}, straight(0.8, 0.1, 0.1)}}),
        // One mean of three quarters dark and a quarter light, as light and as displays grade it.
        reduced("CIKMeans", quarters, CIVector{0, 0, 40, 40}, {{"inputCount", 1}},
            {{{0.5, 0.5}, gray(0.25 * light(0.252) + 0.75 * light(0.752))}}),
        reduced("CIKMeans", quarters, CIVector{0, 0, 40, 40}, {{"inputCount", 1}, {"inputPerceptual", true}},
            {{{0.5, 0.5}, coded(0.627, 0.627, 0.627)}}),
        reduced("CIKMeans", quarters, CIVector{0, 0, 40, 40},
            {{"inputMeans", seeds}, {"inputCount", 0}, {"inputPasses", 0}},
            {{{0.5, 0.5}, straight(0, 0, 1)}, {{1.5, 0.5}, straight(1, 0, 0)}})
            .reaching({0, 0, 2, 1}),
    };
}

} // namespace facts
