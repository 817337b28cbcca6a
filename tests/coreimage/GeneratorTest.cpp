// Generators and gradients.
#include "platform/coreimage/CITextRenderer.h"
#include "tests/coreimage/Colors.h"

using namespace pictures;

namespace {

CIImage made(const std::string& name, const CIDictionary& inputs = {})
{
    const auto f = CIFilter::filterWithName(name);
    f->setDefaults();
    for (const auto& [key, value] : inputs)
        f->setValueForKey(value, key);
    return f->outputImage();
}

CIData bytes(const std::string& text)
{
    CIData data;
    for (const char c : text)
        data.push_back(std::byte(c));
    return data;
}

float redAt(const CIImage& image, double x, double y) { return at(rendered(image, {x, y, 1, 1}), 0, 0, 0); }

} // namespace

TEST(Patterns, ChangeColorAtEveryWidthFromTheCenter)
{
    for (const auto& [x, y, board, stripes] : {std::tuple{150, 150, 1, 1}, {149, 150, 0, 0}, {149, 149, 1, 0},
             {229, 229, 1, 1}, {230, 150, 0, 0}, {230, 230, 1, 0}, {310, 0, 1, 1}}) {
        EXPECT_EQ(redAt(made("CICheckerboardGenerator"), x, y), float(board)) << x << ", " << y;
        EXPECT_EQ(redAt(made("CIStripesGenerator"), x, y), float(stripes)) << x << ", " << y;
    }
    const CIImage soft = made("CIStripesGenerator", {{"inputSharpness", 0.5}, {"inputCenter", CIVector{0, 0}}});
    EXPECT_NEAR(redAt(soft, 10, 0), 0.5 + 10.5 / 40, 1e-5); // the edge is 40 px wide
}

TEST(Gradients, ReachTheirColorsAtTheirRadii)
{
    const CIDictionary at0{{"inputCenter", CIVector{0.5, 0.5}}, {"inputRadius0", 10}, {"inputRadius1", 30}};
    const CIImage radial = made("CIRadialGradient", at0);
    EXPECT_EQ(redAt(radial, 9, 0), 1);
    EXPECT_NEAR(redAt(radial, 20, 0), 0.5, 1e-6);
    EXPECT_EQ(redAt(radial, 0, 30), 0);
    const CIImage bell = made("CIGaussianGradient", {{"inputCenter", CIVector{0.5, 0.5}}, {"inputRadius", 30}});
    EXPECT_EQ(redAt(bell, 0, 0), 1);
    EXPECT_NEAR(redAt(bell, 10, 0), std::exp(-0.5), 0.01); // a third of the radius is a standard deviation
    EXPECT_EQ(redAt(bell, 31, 0), 0);
}

TEST(RoundedRectangle, CutsItsCornersAndStrokesItsOutline)
{
    const CIDictionary square{{"inputExtent", CIVector{0, 0, 40, 40}}, {"inputRadius", 20}};
    const CIImage disc = made("CIRoundedRectangleGenerator", square),
                  ring = made("CIRoundedRectangleStrokeGenerator", square);
    double area = 0;
    const CIBitmap out = rendered(disc, {0, 0, 40, 40});
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x)
            area += double(at(out, x, y, 3));
    EXPECT_NEAR(area, M_PI * 20.17 * 20.17, 5);
    EXPECT_EQ(ring.extent(), (CIRect{-5, -5, 50, 50}));
    EXPECT_EQ(redAt(ring, 20, 20), 0);
    EXPECT_EQ(redAt(ring, 0, 20), 1);
    EXPECT_NEAR(redAt(made("CIBlurredRectangleGenerator", {{"inputSigma", 0}}), 99, 50), 1, 1e-3);
}

TEST(Random, IsUniformWithoutCorrelationAndRepeats)
{
    const CIImage noise = made("CIRandomGenerator");
    const CIBitmap out = rendered(noise, {0, 0, 257, 257});
    double sum[4] = {}, squares = 0, neighbors = 0;
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x) {
            for (int c = 0; c < 4; ++c)
                sum[c] += double(at(out, x, y, c));
            const double v = double(at(out, x, y, 3)) - 0.5;
            squares += v * v;
            neighbors += v * (double(at(out, x + 1, y, 3)) - 0.5);
        }
    for (const double s : sum)
        EXPECT_NEAR(s / 65536, 0.5, 0.01);
    EXPECT_NEAR(squares / 65536, 1 / 12.0, 0.002);
    EXPECT_LT(std::abs(neighbors / squares), 0.02);
    EXPECT_EQ(difference(rendered(noise, {-256, 512, 9, 9}), rendered(noise, {0, 0, 9, 9})).largest, 0);
}

TEST(Barcodes, HoldTheMessageInModulesOfAPixel)
{
    const CIImage qr =
        made("CIQRCodeGenerator", {{"inputMessage", bytes("Hello world")}, {"inputCorrectionLevel", "L"}});
    EXPECT_EQ(qr.extent(), (CIRect{0, 0, 23, 23}));
    // A finder pattern in the upper left: black ring, white ring, black middle.
    const CIBitmap modules = rendered(qr, qr.extent());
    for (int i = 0; i < 7; ++i)
        EXPECT_NEAR(at(modules, 1 + i, 18, 0), i == 1 || i == 5 ? 1 : 0, 1e-5);
    EXPECT_NEAR(at(modules, 0, 0, 0), 1, 1e-5);
    const CIImage bars = made("CICode128BarcodeGenerator",
        {{"inputMessage", bytes("Hello world")}, {"inputQuietSpace", 20}, {"inputBarcodeHeight", 100}});
    EXPECT_EQ(bars.extent(), (CIRect{0, 0, 196, 140}));
    EXPECT_EQ(made("CIAztecCodeGenerator", {{"inputMessage", bytes("Hi")}, {"inputLayers", 2}}).extent(),
        (CIRect{0, 0, 23, 23}));
    const CIImage stacked = made("CIPDF417BarcodeGenerator", {{"inputMessage", bytes("Hi")}, {"inputDataColumns", 3}});
    EXPECT_EQ(stacked.extent().width, 17 * (3 + 4) + 1 + 4);
    EXPECT_TRUE(made("CIQRCodeGenerator", {{"inputMessage", CIData()}}).isNull());
    EXPECT_TRUE(made("CIQRCodeGenerator", {{"inputMessage", bytes(std::string(5000, 'x'))}}).isNull());
}

TEST(Text, IsPaintedByTheRendererThatIsLent)
{
    struct Painter : CITextRenderer {
        CIBitmap render(const CIText& text) const override
        {
            const double side = text.runs[0].fontSize * text.scale;
            return CIBitmap(int(side * double(text.runs[0].text.size())), int(side));
        }
    };
    const CIDictionary text{{"inputText", "four"}, {"inputScaleFactor", 2}};
    EXPECT_TRUE(made("CITextImageGenerator", text).isNull());
    CITextRenderer::install(std::make_shared<Painter>());
    EXPECT_EQ(made("CITextImageGenerator", text).extent(), (CIRect{0, 0, 96, 24}));
    EXPECT_TRUE(made("CITextImageGenerator").isNull());
    CITextRenderer::install(nullptr);
}

TEST(Mesh, DrawsSegmentsAsWideAsAskedFor)
{
    EXPECT_TRUE(made("CIMeshGenerator").isNull());
    const CIArray mesh{CIVector{10, 10, 50, 10}, CIArray{10, 10, 10, 40}, CIVector{1, 2}};
    const CIImage lines = made("CIMeshGenerator", {{"inputMesh", mesh}, {"inputWidth", 4}});
    EXPECT_EQ(redAt(lines, 30, 8), 1);
    EXPECT_EQ(redAt(lines, 30, 12), 0);
    EXPECT_EQ(redAt(lines, 9, 30), 1);
    EXPECT_EQ(redAt(lines, 30, 30), 0);
}

TEST(DistanceGradient, MeasuresToTheNearestMarkedPixel)
{
    CIBitmap mask(40, 30, CIFormat::RGBAf, CIAlpha::Opaque, CIColorSpace::LinearSRGB);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x)
            mask.mutableRow<float>(y)[std::size_t(4 * x + 3)] = 1;
    for (const auto& [x, y] : {std::pair{5, 7}, {30, 20}, {31, 20}})
        mask.mutableRow<float>(29 - y)[std::size_t(4 * x)] = 1;
    for (const double farthest : {20.0, 200.0}) {
        const CIImage distances = made("CIDistanceGradientFromRedMask",
            {{"inputImage", CIImage::fromBitmap(mask)}, {"inputMaximumDistance", farthest}});
        const CIBitmap out = rendered(distances, {-10, -10, 60, 50});
        for (int y = -10; y < 40; ++y)
            for (int x = -10; x < 50; ++x) {
                const double nearest =
                    std::min({std::hypot(x - 5, y - 7), std::hypot(x - 30, y - 20), std::hypot(x - 31, y - 20)});
                ASSERT_NEAR(at(out, x + 10, y + 10, 0), std::min(nearest / farthest, 1.0), 1e-5) << x << ", " << y;
            }
    }
}
