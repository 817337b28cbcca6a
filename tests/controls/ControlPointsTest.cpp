#include "controls/picture/ControlPoints.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace ParmMode;
using testing::ElementsAre;

namespace {

std::shared_ptr<CIFilter> filter(const char* name, const std::string& key, const CIValue& value)
{
    const auto made = CIFilter::filterWithName(name);
    made->setDefaults();
    made->setValueForKey(value, key);
    return made;
}

} // namespace

TEST(ControlPoints, StandForPositionsRectanglesAndTransforms)
{
    EXPECT_THAT(controlPoints(*filter("CIBumpDistortion", "inputCenter", CIVector{30, 40})),
        ElementsAre(ControlPoint{"inputCenter", kPosition, {30, 40}, "Bump Distortion Center"}));
    EXPECT_THAT(controlPoints(*filter("CICrop", "inputRectangle", CIVector{10, 20, 100, 50})),
        ElementsAre(ControlPoint{"inputRectangle", kTopRight, {110, 70}, "Crop Rectangle top right"},
            ControlPoint{"inputRectangle", kTopLeft, {10, 70}, "Crop Rectangle top left"},
            ControlPoint{"inputRectangle", kBottomRight, {110, 20}, "Crop Rectangle bottom right"},
            ControlPoint{"inputRectangle", kBottomLeft, {10, 20}, "Crop Rectangle bottom left"}));
    const auto turned = filter("CIAffineTransform", "inputTransform", CIAffineTransform{0, 1, -1, 0, 7, 8});
    ASSERT_EQ(controlPoints(*turned).size(), 1u);
    EXPECT_EQ(controlPoints(*turned)[0].mode, kOrigin);
    EXPECT_EQ(controlPoints(*turned)[0].position, (CIPoint{7, 8}));
    EXPECT_TRUE(controlPoints(*filter("CIGaussianBlur", "inputRadius", 3)).empty());
    EXPECT_TRUE(controlPoints(*filter("CIAreaAverage", "inputExtent", CIVector{0, 0, 9, 9})).empty())
        << "not the user's";
}

TEST(ControlPoints, TheNearestIsTakenAndTheEarlierOfTwo)
{
    const auto crop = filter("CICrop", "inputRectangle", CIVector{0, 0, 100, 100});
    const auto points = controlPoints(*crop);
    const auto modeNear = [&](CIPoint p) { return points[*nearestControlPoint(points, p)].mode; };
    EXPECT_EQ(modeNear({-5000, -4000}), kBottomLeft) << "however far away";
    EXPECT_EQ(modeNear({90, 10}), kBottomRight);
    EXPECT_EQ(modeNear({50, 50}), kTopRight);
    EXPECT_EQ(modeNear({0, 50}), kTopLeft);
    EXPECT_EQ(modeNear({50, 0}), kBottomRight);
    EXPECT_FALSE(nearestControlPoint({}, {0, 0}));
}

TEST(DraggedValue, MovesAPointAndKeepsTheRest)
{
    EXPECT_EQ(draggedValue(CIVector{1, 2, 3, 4}, kPosition, {9, 8})->value, CIValue(CIVector{9, 8, 0, 0}));
    EXPECT_EQ(draggedValue(CIVector{1, 2, 3}, kPosition3, {9, 8})->value, CIValue(CIVector{9, 8, 3}));
    EXPECT_EQ(draggedValue(CIAffineTransform{2, 1, -1, 2, 3, 4}, kOrigin, {9, 8})->value,
        CIValue(CIAffineTransform{2, 1, -1, 2, 9, 8}));
    EXPECT_EQ(draggedValue(CIValue(), kOrigin, {9, 8})->value, CIValue(CIAffineTransform::translation(9, 8)));
    EXPECT_FALSE(draggedValue(CIVector{1, 2}, kNothing, {9, 8}));
    EXPECT_FALSE(draggedValue(CIVector{1, 2}, 6, {9, 8})) << "a number that crossing a corner leads to";
}

TEST(DraggedValue, MovesACornerWithinItsRectangle)
{
    const CIVector rect{10, 20, 100, 50};
    const auto moved = [&](std::uint32_t mode) { return draggedValue(rect, mode, {30, 40})->value.toVector(); };
    EXPECT_EQ(moved(kTopLeft), (CIVector{30, 20, 80, 20}));
    EXPECT_EQ(moved(kBottomLeft), (CIVector{30, 40, 80, 30}));
    EXPECT_EQ(moved(kTopRight), (CIVector{10, 20, 20, 20}));
    EXPECT_EQ(moved(kBottomRight), (CIVector{10, 40, 20, 30}));
}

TEST(DraggedValue, RenumbersACornerThatCrossesTheOthers)
{
    const CIVector rect{10, 20, 100, 50};
    const auto dragged = [&](std::uint32_t mode, CIPoint p) { return *draggedValue(rect, mode, p); };
    const CIPoint sideways[] = {{200, 30}, {0, 30}}; // beyond the right and the left edge
    const CIPoint across[] = {{50, 100}, {50, 0}}; // beyond the upper and the lower edge
    EXPECT_EQ(dragged(kBottomLeft, sideways[0]).mode, kTopRight);
    EXPECT_EQ(dragged(kBottomLeft, across[0]).mode, kBottomRight);
    EXPECT_EQ(dragged(kTopRight, sideways[1]).mode, kBottomLeft);
    EXPECT_EQ(dragged(kTopRight, across[1]).mode, 6u);
    EXPECT_EQ(dragged(kTopLeft, sideways[0]).mode, 1u);
    EXPECT_EQ(dragged(kTopLeft, across[1]).mode, 0u);
    EXPECT_EQ(dragged(kBottomRight, sideways[1]).mode, 6u);
    EXPECT_EQ(dragged(kBottomRight, across[0]).mode, 3u);
    EXPECT_EQ(dragged(kBottomLeft, {200, 100}).mode, 6u) << "over both: first sideways, then up";
    EXPECT_EQ(dragged(kBottomLeft, {200, 100}).value, CIValue(CIVector{110, 70, 90, 30})) << "never negative";
    // Compared in single precision: a hair over the edge isn't across.
    EXPECT_EQ(dragged(kTopLeft, {110 + 1e-9, 70}).mode, kTopLeft);
}
