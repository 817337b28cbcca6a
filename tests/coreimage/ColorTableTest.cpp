// Colors through cubes and curves.
#include "tests/coreimage/Colors.h"

#include <cstring>

using namespace pictures;

namespace {

CIData bytes(const std::vector<float>& numbers)
{
    CIData data(numbers.size() * sizeof(float));
    std::memcpy(data.data(), numbers.data(), data.size());
    return data;
}

/// A cube that holds f(color) at each of its corners, premultiplied by an alpha of `alpha`.
template <class F>
CIData cube(int side, F f, float alpha = 1)
{
    std::vector<float> numbers;
    const auto step = float(side - 1);
    for (int b = 0; b < side; ++b)
        for (int g = 0; g < side; ++g)
            for (int r = 0; r < side; ++r) {
                const std::array<float, 3> c = f(float(r) / step, float(g) / step, float(b) / step);
                numbers.insert(numbers.end(), {c[0] * alpha, c[1] * alpha, c[2] * alpha, alpha});
            }
    return bytes(numbers);
}

std::array<float, 3> turned(float r, float g, float b) { return {g, b, r}; }
const Color kTurned{0.25, 0.1, 0.5, 1};

} // namespace

TEST(ColorCube, GoesThroughEveryLinearMapExactly)
{
    const CIImage image = CIImage::fromBitmap(noise(67, 9));
    const auto f = filter("CIColorCube", image);
    EXPECT_LT(difference(rendered(f->outputImage(), image.extent()), rendered(image, image.extent())).largest, 1e-6);
    for (const int side : {2, 5, 33}) {
        const CIDictionary table{{"inputCubeDimension", side}, {"inputCubeData", cube(side, turned)}};
        expectColor(result("CIColorCube", kSome, table), kTurned);
        // All orders of the components, each of which has its own tetrahedron.
        for (const Color& c : {Color{0.3, 0.6, 0.9, 1}, Color{0.3, 0.9, 0.6, 1}, Color{0.6, 0.3, 0.9, 1},
                 Color{0.9, 0.3, 0.6, 1}, Color{0.6, 0.9, 0.3, 1}, Color{1, 1, 1, 1}, Color{0.5, 0.5, 0, 1}})
            expectColor(result("CIColorCube", c, table), {c[1], c[2], c[0], 1});
    }
}
