// Convolutions with weights of the user's own.
#include "platform/coreimage/passes/Convolution.h"
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

/// Weights of one shape. Those called RGB leave alpha alone; the others sum alpha as well, and with a bias they reach
/// everywhere.
struct ConvolutionFilter : RecipeFilter {
    ConvolutionFilter(const std::string& shape, const std::string& displayName, int columns, int rows, bool keepsAlpha)
        : RecipeFilter(declared(shape, displayName, columns, columns * rows), [=](const Values& in) {
            const std::vector<double> values = in.vector("inputWeights").values();
            return convolved(in.image(), {values, columns, rows, in.number("inputBias"), keepsAlpha});
        })
    {
    }

private:
    /// Light from the lower left on a picture in relief: what lies before the middle is taken away, the rest added.
    static CIVector relief(std::size_t count)
    {
        std::vector<double> weights(count, 8.0 / double(count - 1));
        std::fill_n(weights.begin(), count / 2, -weights.front());
        weights[count / 2] = 1;
        return CIVector(weights);
    }
    static Declaration declared(const std::string& shape, const std::string& displayName, int columns, int count)
    {
        std::vector<double> nothing(std::size_t(count), 0.0);
        nothing[nothing.size() / 2] = 1;
        return {.name = "CIConvolution" + shape,
            .displayName = displayName,
            .category = kCICategoryStylize,
            .usage = Video | HighDynamicRange,
            .inputs = {image(),
                meant(Role::Weights,
                    fitted(vector("inputWeights", "Weights", CIVector(nothing), CIVector(nothing)),
                        relief(std::size_t(count))),
                    columns),
                scalar("inputBias", "Bias", {.standard = 0, .identity = 0})}};
    }
};

const ConvolutionFilter convolution3X3{"3X3", "3 by 3 Convolution", 3, 3, false};
const ConvolutionFilter convolution5X5{"5X5", "5 by 5 Convolution", 5, 5, false};
const ConvolutionFilter convolution7X7{"7X7", "7 by 7 Convolution", 7, 7, false};
const ConvolutionFilter convolution9Horizontal{"9Horizontal", "Horizontal 9 Convolution", 9, 1, false};
const ConvolutionFilter convolution9Vertical{"9Vertical", "Vertical 9 Convolution", 1, 9, false};
const ConvolutionFilter convolutionRGB3X3{"RGB3X3", "3 by 3 RGB Convolution", 3, 3, true};
const ConvolutionFilter convolutionRGB5X5{"RGB5X5", "5 by 5 RGB Convolution", 5, 5, true};
const ConvolutionFilter convolutionRGB7X7{"RGB7X7", "7 by 7 RGB Convolution", 7, 7, true};
const ConvolutionFilter convolutionRGB9Horizontal{"RGB9Horizontal", "Horizontal 9 RGB Convolution", 9, 1, true};
const ConvolutionFilter convolutionRGB9Vertical{"RGB9Vertical", "Vertical 9 RGB Convolution", 1, 9, true};

} // namespace
} // namespace ci
