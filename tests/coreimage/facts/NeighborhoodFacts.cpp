// Filters that look at the pixels next to each other: edges, gradients, convolutions.
#include "tests/coreimage/facts/Facts.h"

namespace facts {
namespace {

/// What lies around a single pixel of a color on black, by offsets from it.
struct Around {
    int dx, dy;
    Color color;
};
Fact around(const char* filter, const Color& dot, CIDictionary inputs, const std::vector<Around>& colors)
{
    inputs["inputImage"] = dotOn(kBlack, dot);
    std::vector<Seen> seen;
    for (const Around& a : colors)
        seen.push_back({{10.5 + a.dx, 10.5 + a.dy}, a.color});
    return Fact{filter, std::move(inputs), std::move(seen), 1e-5}.atFullSize();
}

/// Weights are read as a page is: the neighbor to the upper left has the first one. So what lies to the lower right of
/// a dot sees it by the first weight. The weights add up to 1, so that alpha stays.
void convolution(Facts& facts, const std::string& shape, int columns, int rows)
{
    std::vector<double> weights(std::size_t(columns * rows), 0);
    const int right = columns / 2, up = rows / 2;
    weights.front() = 0.25, weights[1] = 0.3, weights.back() = 0.45;
    const bool isUpright = columns == 1;
    const std::vector<Around> seen{{right, -up, gray(0.25)},
        {isUpright ? 0 : right - 1, isUpright ? 1 - up : -up, gray(0.3)}, {-right, up, gray(0.45)}, {0, 0, kBlack}};
    std::vector<Around> lighter = seen;
    for (Around& a : lighter)
        for (std::size_t c = 0; c < 3; ++c)
            a.color[c] += 0.125;
    facts.push_back(around(("CIConvolution" + shape).c_str(), kWhite, {{"inputWeights", CIVector(weights)}}, seen));
    facts.push_back(around(("CIConvolutionRGB" + shape).c_str(), kWhite,
        {{"inputWeights", CIVector(weights)}, {"inputBias", 0.125}}, lighter));
    // Alpha is weighed as well, and a bias reaches everywhere; or not.
    for (double& w : weights)
        w /= 2;
    const CIDictionary inputs{
        {"inputImage", flat(straight(0.8, 0.4, 0.2, 0.5))}, {"inputWeights", CIVector(weights)}, {"inputBias", 0.25}};
    facts.push_back({"CIConvolution" + shape, inputs, {{{21, 21}, {0.45, 0.35, 0.3, 0.5}}}});
    facts.push_back({"CIConvolutionRGB" + shape, inputs, {{{21, 21}, {0.325, 0.225, 0.175, 0.5}}}});
}

/// On a gray picture of which `bright` tells the light.
template <class F>
Fact canny(CIDictionary inputs, F bright, const std::vector<Seen>& seen)
{
    inputs["inputImage"] = painted(100, 100, [&](double x, double y) { return gray(double(bright(x, y))); });
    inputs.insert({"inputGaussianSigma", 0});
    return Fact{"CICannyEdgeDetector", std::move(inputs), seen}.atFullSize();
}

Fact cannyStep(double low, double high, bool perceptual, const Color& found)
{
    return Fact{"CICannyEdgeDetector",
        {{"inputImage", halves(gray(low), gray(high))}, {"inputGaussianSigma", 0}, {"inputPerceptual", perceptual}},
        {{{49.5, 50.5}, found}, {{50.5, 50.5}, kBlack}}}
        .atFullSize();
}

Color slope(double x, double y) { return {x, y, 0, 1}; }

} // namespace

Facts neighborhoods()
{
    const auto rising = [](double x, double y) { return x + y > 100; };
    const auto across = [](double x, double) { return x < 50 ? 0 : x < 51 ? 0.5 : 1; };
    const auto falling = [](double x, double y) { return x - y > 0; };
    Facts facts{
        // A step of 1 answers 1, so a slope twice its rise in a pixel.
        Fact{"CIEdges", {{"inputImage", ramp()}, {"inputIntensity", 10}}, {{{41, 31}, {0.2, 0.2, 0, 1}}}},
        around("CIEdges", straight(0.8, 0.4, 0), {},
            {{-1, 0, straight(0.4, 0.2, 0)}, {1, 1, straight(0.2 * std::sqrt(2), 0.1 * std::sqrt(2), 0)},
                {0, -1, straight(0.4, 0.2, 0)}, {0, 0, kBlack}}),
        // Sobel's weights, of the color that is steepest.
        around("CISobelGradients", straight(0.2, 0.5, 0.9), {},
            {{-1, 0, slope(0.45, 0)}, {1, 0, slope(-0.45, 0)}, {0, -1, slope(0, 0.45)}, {0, 1, slope(0, -0.45)},
                {-1, -1, slope(0.225, 0.225)}, {1, -1, slope(-0.225, 0.225)}}),
        around("CISobelGradients", straight(0.9, 0.5, 0.2), {}, {{-1, 0, slope(0.45, 0)}}),
        around("CISobelGradients", straight(0.2, 0.9, 0.5), {}, {{-1, 0, slope(0.45, 0)}, {0, 1, slope(0, -0.45)}}),
        // The weights of a Gabor function.
        around("CIGaborGradients", straight(0, 1, 0), {},
            {{-1, 0, slope(0.543, 0)}, {1, 0, slope(-0.543, 0)}, {0, -1, slope(0, 0.543)},
                {-1, -1, slope(0.177, 0.177)}, {1, 1, slope(-0.177, -0.177)}, {-2, 0, slope(0.045, 0)},
                {0, 2, slope(0, -0.045)}, {-2, -1, slope(0.018, 0.0095)}, {1, 2, slope(-0.0095, -0.018)},
                {-2, 1, slope(0.018, -0.0095)}, {-1, 1, slope(0.177, -0.177)}, {1, -2, slope(-0.0095, 0.018)}}),
        around("CIGaborGradients", straight(0.2, 0.5, 1), {}, {{-1, 0, slope(0.543, 0)}}),

        // One line along a step, of two equal ones the first; both sides of a diagonal, whose neighbors lie across it.
        cannyStep(0.5, 0.56, false, kWhite),
        cannyStep(0.5, 0.54, false, kBlack),
        cannyStep(0.5, 0.54, true, kBlack), // the codes 0.735 and 0.761
        cannyStep(0.01, 0.03, true, kWhite), // 0.1 and 0.19
        canny({}, rising,
            {{{48.5, 50.5}, kBlack}, {{49.5, 50.5}, kWhite}, {{50.5, 50.5}, kWhite}, {{51.5, 50.5}, kBlack}}),
        canny({}, falling,
            {{{48.5, 50.5}, kBlack}, {{50.5, 50.5}, kWhite}, {{51.5, 50.5}, kWhite}, {{52.5, 50.5}, kBlack}}),
        canny({}, [](double, double y) { return y > 50; }, {{{31.5, 49.5}, kWhite}, {{31.5, 50.5}, kBlack}}),
        // Blurred by 8 px, a step rises by 0.0995 over the two pixels in its middle.
        canny({{"inputGaussianSigma", 8}, {"inputThresholdHigh", 0.09}}, across,
            {{{50.5, 50.5}, kWhite}, {{48.5, 50.5}, kBlack}}),
        canny({{"inputGaussianSigma", 8}, {"inputThresholdHigh", 0.11}}, across, {{{50.5, 50.5}, kBlack}}),
    };
    convolution(facts, "3X3", 3, 3);
    convolution(facts, "5X5", 5, 5);
    convolution(facts, "7X7", 7, 7);
    convolution(facts, "9Horizontal", 9, 1);
    convolution(facts, "9Vertical", 1, 9);
    return facts;
}

} // namespace facts
