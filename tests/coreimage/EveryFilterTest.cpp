// What must hold for every filter, worked out from its declaration.
#include "platform/coreimage/Declaration.h"
#include "tests/coreimage/Pictures.h"

#include <gtest/gtest.h>

using namespace pictures;

namespace {

constexpr CIRect kView{-7, -5, 101, 67}; // odd, and beyond the pictures on all sides

class EveryFilter : public testing::TestWithParam<std::string> {
protected:
    const ci::Declaration& declaration() const { return *ci::findDeclaration(GetParam()); }
};

/// Random values, in the slider's range or far beyond it.
void scatter(CIFilter& filter, std::mt19937& random, bool beyond)
{
    const auto uniform = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    for (const std::string& key : filter.inputKeys()) {
        const CIInputAttributes& input = *filter.attributesForKey(key);
        if (input.isNumber()) {
            const double low = input.sliderMin.value_or(input.min.value_or(-1)),
                         high = input.sliderMax.value_or(input.max.value_or(low + 10));
            filter.setValueForKey(beyond ? uniform(-1e4, 1e4) * std::pow(10, uniform(-8, 3)) : uniform(low, high), key);
        } else if (input.isVector() && input.defaultValue.isVector()) {
            std::vector<double> values = input.defaultValue.toVector().values();
            for (double& v : values)
                v = beyond ? uniform(-1e4, 1e4) : (std::abs(v) > 1e6 ? 50 : v) * uniform(0.5, 1.5) + uniform(-0.1, 0.1);
            filter.setValueForKey(CIVector(values), key);
        } else if (input.isColor()) {
            filter.setValueForKey(CIColor(uniform(0, 1), uniform(0, 1), uniform(0, 1), uniform(0, 1)), key);
        } else if (input.kind == InputKind::Transform) {
            filter.setValueForKey(CIAffineTransform{uniform(-2, 2), uniform(-2, 2), uniform(-2, 2), uniform(-2, 2),
                                      uniform(-50, 50), uniform(-50, 50)},
                key);
        }
    }
}

/// Whether two roundings of the same sums agree: a few pixels may fall to the other side of an edge.
void expectAlike(const CIBitmap& p, const CIBitmap& q, double tolerance, const char* what)
{
    const Difference d = difference(p, q);
    EXPECT_TRUE(d.finite) << what;
    EXPECT_LE(d.mean, tolerance) << what;
    long strays = 0;
    for (int y = 0; y < p.height(); ++y) {
        const auto a = p.row<float>(y), b = q.row<float>(y);
        for (std::size_t i = 0; i < a.size(); ++i)
            strays += std::abs(a[i] - b[i]) > 20 * float(tolerance) * std::max(1.0f, std::abs(a[i]));
    }
    EXPECT_LE(strays, 4L * p.width() * p.height() / 200) << what;
}

} // namespace

TEST_P(EveryFilter, BatchesAgreeWithFloats)
{
    std::mt19937 random(7);
    for (const CIBitmap& source : {noise(1, 1), noise(67, 43), noise(64, 5, -2, 8)}) {
        SCOPED_TRACE(std::to_string(source.width()) + " px wide");
        const auto f = filter(GetParam(), CIImage::fromBitmap(source));
        for (int round = 0; round < 4; ++round) {
            if (round)
                scatter(*f, random, false);
            const CIImage image = f->outputImage();
            if (image.isNull())
                continue;
            expectAlike(rendered(image, kView), rendered(image, kView, 1, CIContext::Arithmetic::Floats),
                double(declaration().tolerance), round ? "scattered" : "defaults");
        }
    }
}

TEST_P(EveryFilter, NeverLeavesNumbers)
{
    CIBitmap hostile = noise(33, 21, -1e6f, 1e30f);
    hostile.mutableRow<float>(3)[8] = NAN;
    hostile.mutableRow<float>(4)[9] = INFINITY;
    std::mt19937 random(11);
    const auto f = filter(GetParam(), CIImage::fromBitmap(hostile));
    for (int round = 0; round < 12; ++round) {
        scatter(*f, random, true);
        const CIImage image = f->outputImage();
        if (image.isNull())
            continue;
        const CIBitmap out = rendered(image, kView, round % 3 ? 1 : 0.37);
        EXPECT_TRUE(difference(out, out).finite);
    }
    for (const std::string& key : f->inputKeys())
        if (f->attributesForKey(key)->isNumber())
            f->setValueForKey(NAN, key);
    if (const CIImage image = f->outputImage()) {
        const CIBitmap out = rendered(image, kView);
        EXPECT_TRUE(difference(out, out).finite);
    }
}

TEST_P(EveryFilter, TilesEqualOnePiece)
{
    const CIImage image = filter(GetParam(), CIImage::fromBitmap(noise8(90, 61)))->outputImage();
    if (image.isNull())
        return;
    const CIBitmap whole = rendered(image, kView);
    for (int y = 0; y < 60; y += 23)
        for (int x = 0; x < 90; x += 37) {
            const CIBitmap tile = rendered(image, {kView.x + x, kView.y + y, 13, 7});
            for (int i = 0; i < 13 * 7 * 4; ++i) {
                const int column = i / 4 % 13, line = i / 52;
                ASSERT_NEAR(at(tile, column, line, i % 4), at(whole, x + column, y + line, i % 4),
                    double(declaration().tolerance) * 10)
                    << x + column << ", " << y + line;
            }
        }
}

TEST_P(EveryFilter, HalfScaleResemblesTheReducedWhole)
{
    if (declaration().boundToPixelGrid)
        GTEST_SKIP() << "tied to the pixel grid";
    const CIImage image = filter(GetParam(), CIImage::fromBitmap(smooth(240, 160)))->outputImage();
    if (image.isNull())
        return;
    const CIRect rect{20, 20, 200, 120};
    const CIBitmap full = rendered(image, rect), half = rendered(image, rect, 0.5);
    ASSERT_EQ(half.width(), 100);
    double sum = 0;
    for (int y = 0; y < half.height(); ++y)
        for (int x = 0; x < half.width(); ++x)
            for (int c = 0; c < 4; ++c) {
                const float mean = (at(full, 2 * x, 2 * y, c) + at(full, 2 * x + 1, 2 * y, c)
                                       + at(full, 2 * x, 2 * y + 1, c) + at(full, 2 * x + 1, 2 * y + 1, c))
                    / 4;
                sum += std::abs(double(mean) - double(at(half, x, y, c)));
            }
    EXPECT_LT(sum / (4 * half.width() * half.height()), 0.02);
}

INSTANTIATE_TEST_SUITE_P(All, EveryFilter, testing::ValuesIn(CIFilter::filterNamesInCategory("")),
    [](const auto& info) { return info.param; });

TEST(Declarations, AreConsistent)
{
    for (const ci::Declaration* d : ci::declarations()) {
        SCOPED_TRACE(d->name);
        const auto f = CIFilter::filterWithName(d->name);
        EXPECT_EQ(CIFilter::localizedNameForFilterName(d->name), d->displayName);
        EXPECT_TRUE(bool(d->output));
        for (const CIInputAttributes& input : d->inputs) {
            EXPECT_EQ(input.key.rfind("input", 0), 0u) << input.key;
            const CIDictionary entries = f->attributes().at(input.key).toDictionary();
            if (input.defaultValue.isNumber()) {
                EXPECT_EQ(entries.at(kCIAttributeDefault).toDouble(), input.defaultValue.toDouble());
            }
        }
    }
}
