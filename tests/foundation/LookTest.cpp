// Whether the colors of the program can be told apart by everybody.
#include "platform/foundation/Look.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

/// Contrast ratio as the Web Content Accessibility Guidelines 2.1 define it: 1 (none) to 21 (black on white).
double contrast(const QColor& a, const QColor& b)
{
    const auto linear = [](double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    const auto luminance = [&](const QColor& c) {
        return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
    };
    const double one = luminance(a), other = luminance(b);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

class LookTest : public testing::TestWithParam<const Look*> { };

INSTANTIATE_TEST_SUITE_P(Both, LookTest, testing::Values(&Look::light(), &Look::dark()),
    [](const auto& look) { return look.param == &Look::dark() ? "Dark" : "Light"; });

TEST_P(LookTest, TextCanBeRead)
{
    const Look& look = *GetParam();
    for (const QColor& ground : {look.window, look.panel, look.field, look.button, look.hover, look.pressed})
        EXPECT_GE(contrast(look.text, ground), 4.5) << qPrintable(ground.name());
    for (const QColor& ground : {look.window, look.panel, look.field, look.hover, look.surround})
        EXPECT_GE(contrast(look.secondaryText, ground), 4.5) << qPrintable(ground.name());
    EXPECT_GE(contrast(look.accentText, look.accent), 4.5);
}

TEST_P(LookTest, ControlsStandOut)
{
    const Look& look = *GetParam();
    for (const QColor& ground : {look.window, look.panel, look.field}) {
        EXPECT_GE(contrast(look.edge, ground), 3) << qPrintable(ground.name());
        EXPECT_GE(contrast(look.accentMark, ground), 3) << qPrintable(ground.name());
    }
    EXPECT_GE(contrast(look.accentMark, look.button), 3) << "a focus ring";
}

} // namespace
