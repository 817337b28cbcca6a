#include "tests/support/Golden.h"

#include <cstdio>

#include <gtest/gtest.h>

namespace {

TEST(Golden, FiltersComeNearTheReferenceRenderings)
{
    const std::vector<GoldenCase> cases = goldenCases();
    if (cases.empty())
        GTEST_SKIP() << "no reference renderings here";
    std::printf("%-36s %8s %6s\n", "filter", "dB", "floor");
    for (const GoldenCase& golden : cases) {
        SCOPED_TRACE(golden.filter);
        const auto filter = filterOfCase(golden);
        if (!filter || filter->outputImage().isNull()) { // text needs a renderer that tests don't have
            std::printf("%-36s %8s\n", golden.filter.c_str(), "none");
            continue;
        }
        const double reached = psnrOfCase(golden, *filter);
        std::printf("%-36s %8.1f %6.4g\n", golden.filter.c_str(), reached, golden.floor.value_or(0));
        EXPECT_GE(reached, golden.floor.value_or(0));
    }
}

} // namespace
