#include "app/modes/InputValues.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

const CIRect kPicture{0, 0, 400, 300};

bool contains(const CIRect& r, CIPoint p)
{
    return p.x >= r.left() && p.x <= r.right() && p.y >= r.bottom() && p.y <= r.top();
}

void expectSensible(const CIInputAttributes& input, const CIValue& value)
{
    if (input.isNumber() && input.kind != InputKind::Boolean) {
        EXPECT_GE(value.toDouble(), input.sliderMin.value_or(input.min.value_or(0)));
        EXPECT_LE(value.toDouble(), input.sliderMax.value_or(input.max.value_or(0)));
        if (input.kind == InputKind::Integer || input.kind == InputKind::Count) {
            EXPECT_EQ(value.toDouble(), std::floor(value.toDouble()));
        }
    } else if (input.kind == InputKind::Position || input.kind == InputKind::Position3) {
        EXPECT_TRUE(contains(kPicture, value.toVector().point()));
        EXPECT_EQ(value.toVector().count(), input.kind == InputKind::Position ? 2U : 3U);
    } else if (input.kind == InputKind::Rectangle) {
        const CIRect r = value.toVector().rect();
        EXPECT_TRUE(contains(kPicture, {r.left(), r.bottom()}) && contains(kPicture, {r.right(), r.top()}));
        EXPECT_GE(r.width, kPicture.width / 4);
    } else if (input.isVector()) {
        EXPECT_EQ(value.toVector().count(), input.defaultValue.toVector().count());
    }
}

TEST(InputValues, AreWithinSlidersAndPictureForEveryFilter)
{
    std::mt19937 random(1);
    std::size_t chosen = 0;
    for (const std::string& name : CIFilter::filterNamesInCategory("")) {
        const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(name);
        filter->setDefaults();
        for (const std::string& key : filter->inputKeys()) {
            SCOPED_TRACE(name + " " + key);
            const CIInputAttributes& input = *filter->attributesForKey(key);
            for (int i = 0; i < 20; ++i) {
                const std::optional<CIValue> value = randomValue(input, filter->valueForKey(key), kPicture, random);
                EXPECT_EQ(value.has_value(), canBeRandom(input));
                if (value)
                    expectSensible(input, *value);
                chosen += value.has_value();
            }
            const std::optional<CIValue> nowhere = randomValue(input, filter->valueForKey(key), {}, random);
            EXPECT_FALSE(nowhere && input.kind == InputKind::Position) << "without a picture";
        }
    }
    EXPECT_GT(chosen, 1000U);
}

TEST(InputValues, AreTheUsersButForThePictureAndItsExtent)
{
    const auto isUsers = [](const char* name, const char* key) {
        const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(name);
        const std::vector<const CIInputAttributes*> inputs = usersInputs(*filter);
        return std::ranges::any_of(inputs, [key](const CIInputAttributes* input) { return input->key == key; });
    };
    EXPECT_FALSE(isUsers("CIGaussianBlur", "inputImage"));
    EXPECT_TRUE(isUsers("CIGaussianBlur", "inputRadius"));
    EXPECT_FALSE(isUsers("CISourceOverCompositing", "inputBackgroundImage"));
    EXPECT_TRUE(isUsers("CISourceOverCompositing", "inputImage"));
    EXPECT_FALSE(isUsers("CIPageCurlTransition", "inputExtent"));
}

} // namespace
