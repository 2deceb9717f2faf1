#include <gtest/gtest.h>

#include <cstdlib>

#include "fuzz/drawing/RandomCalls.h"
#include "tests/support/Sanitizers.h"

namespace vxgui::fuzz {
namespace {

TEST(RandomCalls, GiveTheSamePixelsInEveryBuild) {
    EXPECT_EQ(ChecksumAfter(0), 500679665u);
    EXPECT_EQ(ChecksumAfter(1000), 8434933u);
    EXPECT_EQ(ChecksumAfter(100000), 2688130911u);
}

TEST(RandomCalls, TenMillionGiveTheSamePixelsInEveryBuild) {
    if (test::kSanitized && !std::getenv("VXGUI_LONG_RUNS"))
        GTEST_SKIP() << "takes minutes under a sanitizer; run it with VXGUI_LONG_RUNS=1";
    EXPECT_EQ(ChecksumAfter(10000000), 4121314190u);
}

}  // namespace
}  // namespace vxgui::fuzz
