#include "widgets/StripPaging.h"
#include "widgets/ScrollerLayout.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(StripPaging, CountsWhatFitsAndKeepsTheFirstItemWithinTheStrip)
{
    StripPaging strip;
    strip.current_page = 9;
    strip.setPageCount(10, 4 * 51 + 50);
    EXPECT_EQ(strip.view_page_count, 4);
    EXPECT_EQ(strip.current_page, 6);
    EXPECT_EQ(strip.maxShownPage(), 10);
    strip.setPageCount(2, 4 * 51);
    EXPECT_EQ(strip.current_page, 0) << "fewer items than fit";
    EXPECT_EQ(strip.documentWidth(204), 204);
    EXPECT_EQ(strip.documentWidth(100), 3 * 51) << "one more than there are";
    strip.setPageCount(0, 30);
    EXPECT_EQ(strip.view_page_count, 0);
    EXPECT_EQ(strip.current_page, 0);
}

TEST(StripPaging, HidesStepsThatLeadNowhere)
{
    StripPaging strip;
    strip.setPageCount(5, 3 * 51);
    EXPECT_TRUE(strip.hidesPrevious(0));
    EXPECT_FALSE(strip.hidesPrevious(-4)) << "while it swings beyond the start";
    EXPECT_FALSE(strip.hidesNext(0, 3 * 51));
    EXPECT_FALSE(strip.hidesNext(2 * 51 - 1, 3 * 51));
    EXPECT_TRUE(strip.hidesNext(2 * 51, 3 * 51));
}

TEST(StripPaging, StepsOneItemPastTheEndAtMost)
{
    StripPaging strip;
    strip.setPageCount(5, 3 * 51);
    strip.current_page = 3;
    strip.boundAfterStep();
    EXPECT_EQ(strip.current_page, 3) << "one empty place is allowed";
    strip.current_page = 4;
    strip.boundAfterStep();
    EXPECT_EQ(strip.current_page, 3);
    strip.pullBack();
    EXPECT_EQ(strip.current_page, 2) << "but not after the strip got another width";
}

TEST(StripPaging, StepsTowardsItemsThatAreHardlySeen)
{
    StripPaging strip;
    const double width = 4 * 51, origin = 2 * 51; // items 2 to 5
    EXPECT_EQ(strip.stepToShow(2, origin, width), -1) << "its neighbor can't be seen";
    EXPECT_EQ(strip.stepToShow(3, origin, width), 0);
    EXPECT_EQ(strip.stepToShow(4, origin, width), 0);
    EXPECT_EQ(strip.stepToShow(5, origin, width), 1);
    EXPECT_EQ(strip.stepToShow(1, origin, width), -1);
    EXPECT_EQ(strip.stepToShow(2, origin - 26, width), 0) << "half of it is enough";
}

TEST(ScrollerLayout, KnobFollowsProportionAndPosition)
{
    ScrollerLayout parts{.length = 224, .arrow = 12, .minKnob = 20, .proportion = 0.25, .position = 0};
    EXPECT_EQ(parts.slotLength(), 200);
    EXPECT_EQ(parts.knobLength(), 50);
    EXPECT_EQ(parts.knobStart(), 12);
    parts.position = 1;
    EXPECT_EQ(parts.knobStart() + parts.knobLength(), 212);
    for (double position : {0.0, 0.3, 1.0}) {
        parts.position = position;
        EXPECT_NEAR(parts.positionOf(parts.knobStart()), position, 1e-12);
    }
    EXPECT_EQ(parts.positionOf(-50), 0);
    EXPECT_EQ(parts.positionOf(500), 1);
    parts.proportion = 0.001;
    EXPECT_EQ(parts.knobLength(), 20) << "can still be grabbed";
    parts.length = 40;
    EXPECT_EQ(parts.arrowLength(), 0) << "no room for arrows";
    EXPECT_EQ(parts.slotLength(), 40);
}

} // namespace
