#include "widgets/PictureLayout.h"
#include "widgets/ZoomSteps.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(ZoomSteps, AreTwentiethsBelowOneAndFifthsAbove)
{
    EXPECT_FLOAT_EQ(zoomAfterWheelStep(1.0f, 1), 1.05f);
    EXPECT_FLOAT_EQ(zoomAfterWheelStep(2.0f, 0.1), 2.4f);
    EXPECT_FLOAT_EQ(zoomAfterWheelStep(1.0f, -1), 0.95f);
    EXPECT_FLOAT_EQ(zoomAfterWheelStep(2.0f, -7), 1.6f);
    EXPECT_EQ(zoomAfterWheelStep(1.5f, 0), 1.5f);
    EXPECT_FLOAT_EQ(zoomAfterWheelStep(1.09f, -1), 1.04f) << "the limit lies higher going down than going up";
    EXPECT_FLOAT_EQ(zoomAfterWheelStep(1.1f, -1), 0.88f) << "1.1 as a float is above 1.1";
}

TEST(ZoomSteps, NeverLeaveTheRange)
{
    EXPECT_FLOAT_EQ(zoomAfterWheelStep(0.12f, -1), 0.1f);
    float zoom = 0.1f;
    for (int i = 0; i < 100; ++i)
        zoom = zoomAfterWheelStep(zoom, 1);
    EXPECT_EQ(zoom, 10.0f);
    EXPECT_EQ(clampedZoom(std::nanf("")), 0.1f);
    EXPECT_EQ(clampedZoom(INFINITY), 10.0f);
}

TEST(PictureBounds, CenterASmallPictureAndCoverTheVisiblePart)
{
    EXPECT_EQ(pictureBounds({100, 50}, {400, 300}, 2), (CIRect{-50, -50, 200, 150}));
    EXPECT_EQ(pictureBounds({1000, 50}, {400, 300}, 1), (CIRect{0, -125, 1000, 300})) << "wide and low";
    EXPECT_EQ(pictureBounds({1000, 900}, {400, 300}, 1), (CIRect{0, 0, 1000, 900}));
    EXPECT_EQ(pictureBounds({0, 0}, {400, 300}, 0.5), (CIRect{-400, -300, 800, 600})) << "without a picture";
}

namespace {

const PictureLayoutRequest kBigPicture{.clip = {300, 200, 400, 300},
    .pictureSize = {1000, 900},
    .oldBounds = {0, 0, 1000, 900},
    .zoom = 2,
    .previousZoom = 1,
    .mouse = {},
    .force = true,
    .center = PictureCenter::Toward};

}

TEST(LayOutPicture, PullsTheCenterTowardTheMouseByTheDifferenceOfTheZooms)
{
    PictureLayoutRequest r = kBigPicture;
    r.zoom = 1.5;
    r.mouse = CIPoint{600, 350}; // 100 right of the center
    const PictureLayout layout = layOutPicture(r);
    ASSERT_TRUE(layout.scrollTo);
    EXPECT_DOUBLE_EQ(layout.scrollTo->x, 500 + 0.5 * 100 - 200 / 1.5);
    EXPECT_DOUBLE_EQ(layout.scrollTo->y, 350 - 150 / 1.5);

    r.center = PictureCenter::Mouse;
    EXPECT_DOUBLE_EQ(layOutPicture(r).scrollTo->x, 600 - 200 / 1.5);
    r.center = PictureCenter::Visible;
    EXPECT_DOUBLE_EQ(layOutPicture(r).scrollTo->x, 500 - 200 / 1.5);
}

TEST(LayOutPicture, LeavesTheScrollPositionWhenTheZoomStays)
{
    PictureLayoutRequest r = kBigPicture;
    r.zoom = r.previousZoom;
    EXPECT_FALSE(layOutPicture(r).scrollTo);
    EXPECT_FALSE(layOutPicture(r).unchanged);
    r.force = false;
    EXPECT_TRUE(layOutPicture(r).unchanged);
    r.pictureSize.x = 1001;
    EXPECT_FALSE(layOutPicture(r).unchanged);
}

TEST(ScrollPosition, StaysWithinTheFrame)
{
    EXPECT_EQ(clampedScrollPosition({-5, 700}, {1000, 900}, {400, 300}), (CIPoint{0, 600}));
    EXPECT_EQ(clampedScrollPosition({5, 7.25}, {400, 900}, {400, 300}), (CIPoint{0, 7.25}));
}
