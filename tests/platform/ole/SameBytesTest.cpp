#include "vxgui/platform/ole/SameBytes.h"

#include <gtest/gtest.h>

#include <string>

namespace vxgui::ole {
namespace {

TEST(SameBytes, EachByteCountsAndNoneBesides) {
    for (size_t size = 0; size <= 40; ++size) {
        const std::string one = "<" + std::string(size, 'a') + ">";
        const std::string other = "(" + std::string(size, 'a') + ")";
        EXPECT_TRUE(SameBytes(one.data() + 1, other.data() + 1, size)) << size;
        for (size_t at = 1; at <= size; ++at) {
            std::string changed = other;
            changed[at] = 'b';
            EXPECT_FALSE(SameBytes(one.data() + 1, changed.data() + 1, size)) << size << at;
        }
    }
}

}  // namespace
}  // namespace vxgui::ole
