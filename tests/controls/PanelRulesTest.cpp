// Numbers, captions, transforms and places of the panel, without a window.
#include "controls/panel/PanelLayout.h"
#include "controls/panel/ParameterText.h"
#include "widgets/rows/TransformParts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

namespace {

constexpr double kPi = std::numbers::pi;

TEST(Readout, ShowsEachUnitInItsFormat)
{
    const auto shown = [](double value, InputKind kind) {
        const std::int32_t unit = unitClassOf(kind);
        return shownText(value, unit, readoutFormatOf(unit)).toStdString();
    };
    EXPECT_EQ(shown(kPi / 2, InputKind::Angle), "90.0");
    EXPECT_EQ(shown(-kPi / 180, InputKind::Angle), "-1.0");
    EXPECT_EQ(shown(0.5, InputKind::Time), "50.000");
    EXPECT_EQ(shown(12.34, InputKind::Distance), "12.3");
    EXPECT_EQ(shown(0.126, InputKind::Scalar), "0.13");
    EXPECT_EQ(shown(3, InputKind::Count), "3.00");
    EXPECT_EQ(formattedNumber(7, {4, 1}), " 7.0") << "filled up to its width";
    EXPECT_EQ(formattedNumber(1e30, {4, 2}).size(), 31) << "no longer than its buffer";
    for (std::int32_t unit : {UnitClass::kScalar, UnitClass::kAngle, UnitClass::kTime, UnitClass::kDistance})
        EXPECT_DOUBLE_EQ(storedNumber(displayedNumber(0.7, unit), unit), 0.7);
    EXPECT_FLOAT_EQ(float(storedNumber(45, UnitClass::kAngle)), 0.785398f);
}

TEST(Readout, TakesNumbersAndNothingElse)
{
    EXPECT_EQ(typedNumber(" 12.5 "), 12.5);
    EXPECT_EQ(typedNumber("0,25"), 0.25);
    EXPECT_EQ(typedNumber("-3e2"), -300);
    EXPECT_EQ(typedNumber(QString(QChar(0x2212)) + "4"), -4);
    for (const char* bad : {"", "-", "abc", "1x", "nan", "inf", "-inf", "1e7", "-2e9", "1e400", "1.2.3", "1 2", "0x10"})
        EXPECT_FALSE(typedNumber(bad)) << bad;
}

CIInputAttributes inputOf(const char* key, const char* displayName)
{
    CIInputAttributes input;
    input.key = key;
    input.displayName = displayName;
    return input;
}

TEST(Caption, IsTheDisplayNameOrTheWordsOfTheKey)
{
    EXPECT_EQ(captionText(inputOf("inputRadius", "The Radius")), "The Radius");
    EXPECT_EQ(captionText(inputOf("inputEVAmount", "")), "E V Amount");
    EXPECT_EQ(captionText(inputOf("inputSize2", "")), "Size 2");
    EXPECT_EQ(wordsOfKey("pointSize"), "point Size");
    EXPECT_EQ(wordsOfKey("Point12"), "Point 1 2");
    EXPECT_EQ(wordsOfKey("radius"), "radius");
    EXPECT_EQ(wordsOfKey(""), "");
}

void expectNear(const CIAffineTransform& a, const CIAffineTransform& b, double limit)
{
    EXPECT_NEAR(a.a, b.a, limit);
    EXPECT_NEAR(a.b, b.b, limit);
    EXPECT_NEAR(a.c, b.c, limit);
    EXPECT_NEAR(a.d, b.d, limit);
}

TEST(Transform, HasPartsThatComposeToItAgain)
{
    EXPECT_EQ(transformParts({}), TransformParts());
    const TransformParts turned = transformParts(CIAffineTransform::rotation(-kPi / 2));
    EXPECT_FLOAT_EQ(turned.scale, 1);
    EXPECT_FLOAT_EQ(turned.stretch, 1);
    const TransformParts wide = transformParts(CIAffineTransform::scaling(6, 2));
    EXPECT_FLOAT_EQ(wide.scale, 2);
    EXPECT_FLOAT_EQ(wide.stretch, 3);
    EXPECT_EQ(composedTransform({}, {3, 4}), (CIAffineTransform{1, 0, 0, 1, 3, 4}));

    std::mt19937 random(7);
    std::uniform_real_distribution<double> number(-3, 3);
    for (int i = 0; i < 20000; ++i) {
        const CIAffineTransform t{number(random), number(random), number(random), number(random), 5, -6};
        if (std::abs(t.determinant()) < 0.01)
            continue;
        SCOPED_TRACE(testing::Message() << t.a << " " << t.b << " " << t.c << " " << t.d);
        const TransformParts parts = transformParts(t);
        EXPECT_GE(parts.angle, 0);
        EXPECT_LE(parts.angle, float(2 * kPi));
        const CIAffineTransform again = composedTransform(parts, {t.tx, t.ty});
        expectNear(again, t, 1e-5 * (1 + std::abs(double(parts.skew))));
        EXPECT_EQ(again.tx, 5);
        if (HasFailure())
            break;
    }
}

TEST(Transform, WithoutAPlaneHasNumbersAllTheSame)
{
    const double none = std::numeric_limits<double>::denorm_min();
    for (const CIAffineTransform& flat :
        {CIAffineTransform{0, 0, 0, 0, 1, 1}, CIAffineTransform{1, 1, 1, 1, 0, 0}, CIAffineTransform{0, 0, 0, 1, 0, 0},
            CIAffineTransform{1, 0, 0, 0, 0, 0}, CIAffineTransform{none, none, 1, 0, 0, 0}}) {
        const TransformParts parts = transformParts(flat);
        for (float part : {parts.scale, parts.angle, parts.stretch, parts.skew})
            EXPECT_TRUE(std::isfinite(part));
    }
}

TEST(Panel, StacksRowsFromTheTopAndColorsInTwoColumns)
{
    RowStack stack{.controlTopPosition = 490};
    EXPECT_EQ(stack.place(RowKind::Slider, 300), QRect(0, 472, 288, 18));
    EXPECT_EQ(stack.place(RowKind::CheckBox, 300), QRect(2, 456, 290, 16));
    EXPECT_EQ(stack.place(RowKind::ImageWell, 300), QRect(2, 411, 290, 44));
    EXPECT_EQ(stack.place(RowKind::Transform, 300), QRect(2, 340, 290, 67));
    EXPECT_EQ(stack.place(RowKind::Vector, 300), QRect(2, 323, 290, 16));
    EXPECT_EQ(stack.place(RowKind::Offset, 300), QRect(2, 306, 290, 16));
    EXPECT_EQ(stack.controlTopPosition, 305);
    EXPECT_EQ(stack.place(RowKind::ColorWell, 300), QRect(2, 279, 140, 26));
    EXPECT_EQ(stack.place(RowKind::ColorWell, 300), QRect(142, 279, 140, 26));
    EXPECT_EQ(stack.place(RowKind::ColorWell, 300), QRect(2, 249, 140, 26)) << "the third starts a line";
    EXPECT_EQ(stack.controlTopPosition, 245);
    EXPECT_EQ(stack.place(RowKind::Slider, 301), QRect(0, 227, 289, 18));
    EXPECT_EQ(stack.place(RowKind::ColorWell, 301), QRect(2, 201, 140, 26)) << "after another row a new line";
}

} // namespace
