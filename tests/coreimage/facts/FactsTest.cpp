// Looks at every fact at full and at half scale, and with everything moved.
#include "tests/coreimage/facts/Facts.h"

#include "platform/coreimage/CITextRenderer.h"
#include "platform/coreimage/Declaration.h"

#include <gtest/gtest.h>

namespace facts {
namespace {

constexpr CIPoint kMove{37, -22}; // odd one way: half the scale then has other cells

const Facts& all()
{
    static const Facts every = [] {
        Facts facts;
        for (const Facts& some : {blends(), colors(), tones(), looks(), distortions(), geometry(), tiles(), blurs(),
                 styles(), neighborhoods(), generators(), lights(), codes(), transitions(), reductions(), halftones()})
            facts.insert(facts.end(), some.begin(), some.end());
        return facts;
    }();
    return every;
}

/// At a place between cell centers, linearly.
Color seenAt(const CIImage& image, CIPoint place, double scale)
{
    const double x = place.x * scale - 0.5, y = place.y * scale - 0.5, left = std::floor(x), low = std::floor(y);
    const CIBitmap cells = pictures::rendered(image, {left / scale, low / scale, 2 / scale, 2 / scale}, scale);
    Color color{};
    for (int c = 0; c < 4; ++c)
        for (int i = 0; i < 4; ++i) {
            const double across = i % 2 ? x - left : left + 1 - x, along = i / 2 ? y - low : low + 1 - y;
            color[std::size_t(c)] += across * along * double(pictures::at(cells, i % 2, i / 2, c));
        }
    return color;
}

CIImage imageOf(const Fact& fact, bool isMoved)
{
    const auto filter = CIFilter::filterWithName(fact.filter);
    if (!filter)
        return {};
    filter->setDefaults();
    for (const auto& [key, value] : fact.inputs)
        filter->setValueForKey(value, key);
    for (const std::string& key : filter->inputKeys()) {
        const CIValue value = filter->valueForKey(key);
        if (isMoved && value.isImage())
            filter->setValueForKey(moved(value.toImage(), kMove.x, kMove.y), key);
        if (isMoved && value.isVector() && filter->attributesForKey(key)->isPlace() && key != "inputSize") {
            std::vector<double> v = value.toVector().values();
            v[0] += kMove.x, v[1] += kMove.y;
            filter->setValueForKey(CIVector(v), key);
        }
    }
    return filter->outputImage();
}

void expectFact(const Fact& fact, bool isMoved, double scale)
{
    const CIImage image = imageOf(fact, isMoved);
    ASSERT_FALSE(image.isNull());
    const bool along = isMoved && fact.moved == Moved::Along;
    const CIPoint by = along ? kMove : CIPoint{0, 0};
    for (const Seen& seen : fact.seen) {
        const Color color = seenAt(image, {seen.at.x + by.x, seen.at.y + by.y}, scale);
        for (std::size_t c = 0; c < 4; ++c)
            EXPECT_NEAR(color[c], seen.color[c], fact.tolerance)
                << "component " << c << " at " << seen.at.x << ", " << seen.at.y << (isMoved ? ", moved" : "")
                << ", scale " << scale;
    }
    if (fact.extent) {
        const CIRect e = image.extent();
        const CIRect expected{fact.extent->x + by.x, fact.extent->y + by.y, fact.extent->width, fact.extent->height};
        EXPECT_TRUE(std::abs(e.x - expected.x) < 1e-6 && std::abs(e.y - expected.y) < 1e-6
            && std::abs(e.width - expected.width) < 1e-6 && std::abs(e.height - expected.height) < 1e-6)
            << "reaches " << e.x << ", " << e.y << ", " << e.width << " by " << e.height;
    }
}

/// Lent to the text generators: a gray square for every letter.
struct Squares : CITextRenderer {
    CIBitmap render(const CIText& text) const override
    {
        double width = 0, height = 0;
        for (const CITextRun& run : text.runs) {
            width += run.fontSize * text.scale * double(run.text.size());
            height = std::max(height, run.fontSize * text.scale);
        }
        const int x = int(width) + 2 * text.padding, y = int(height) + 2 * text.padding;
        CIBitmap bitmap(x, y, CIFormat::RGBAf, CIAlpha::Premultiplied, CIColorSpace::LinearSRGB);
        for (int row = text.padding; row < y - text.padding; ++row)
            for (int i = 4 * text.padding; i < 4 * (x - text.padding); ++i)
                bitmap.mutableRow<float>(row)[std::size_t(i)] = i % 4 == 3 ? 1 : float(text.runs[0].color.red());
        return bitmap;
    }
};

class EveryFact : public testing::TestWithParam<std::size_t> {
protected:
    static void SetUpTestSuite() { CITextRenderer::install(std::make_shared<Squares>()); }
    static void TearDownTestSuite() { CITextRenderer::install(nullptr); }
};

TEST_P(EveryFact, Holds)
{
    const Fact& fact = all()[GetParam()];
    for (const bool isMoved : {false, true})
        for (const double scale : {1.0, 0.5})
            if ((scale == 1 || fact.reduced) && !(isMoved && fact.moved == Moved::Never))
                expectFact(fact, isMoved, scale);
}

INSTANTIATE_TEST_SUITE_P(, EveryFact, testing::Range(std::size_t(0), all().size()),
    [](const auto& info) { return all()[info.param].filter + "_" + std::to_string(info.param); });

TEST(Facts, ThereAreSomeForEveryFilter)
{
    std::map<std::string, int> known;
    for (const Fact& fact : all())
        known[fact.filter] += int(fact.seen.size());
    for (const ci::Declaration* d : ci::declarations())
        EXPECT_GT(known[d->name], 0) << d->name;
}

} // namespace
} // namespace facts
