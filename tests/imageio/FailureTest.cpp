#include "platform/imageio/Failure.h"

#include <gtest/gtest.h>

namespace {

TEST(Failure, SaysAllThatIsKnownAndNoMore)
{
    EXPECT_EQ(englishText({Reason::CannotRead, "a %2.png", "No entry"}), "“a %2.png” can't be read: No entry.");
    EXPECT_EQ(englishText({Reason::CannotRead, "a.png"}), "“a.png” can't be read.");
    EXPECT_EQ(englishText({Reason::CannotRead}), "The picture can't be read.");
    EXPECT_EQ(englishText({Reason::CannotRead, "", "No entry"}), "The picture can't be read.");
}

TEST(Failure, EveryReasonHasWordsForAPictureWithoutAName)
{
    for (int reason = 0; reason <= int(Reason::NoMemoryToSave); ++reason) {
        const std::string text = englishText({Reason(reason)});
        EXPECT_TRUE(text.ends_with('.')) << reason;
        EXPECT_EQ(text.find('%'), text.npos) << text;
    }
}

} // namespace
