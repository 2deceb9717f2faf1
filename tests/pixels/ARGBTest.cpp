#include "vxgui/pixels/ARGB.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>

namespace vxgui {
namespace {

TEST(ARGB, FieldsFollowEachOtherInMemory) {
    EXPECT_EQ(offsetof(ARGB, Blue), 0u);
    EXPECT_EQ(offsetof(ARGB, Green), 1u);
    EXPECT_EQ(offsetof(ARGB, Red), 2u);
    EXPECT_EQ(offsetof(ARGB, Alpha), 3u);
}

TEST(ARGB, ValueHasBlueLowestAndAlphaHighest) {
    EXPECT_EQ(ValueFromARGB({0x11, 0x22, 0x33, 0x44}), 0x44332211);
    EXPECT_EQ(ARGBFromValue(0x44332211), (ARGB{0x11, 0x22, 0x33, 0x44}));
}

TEST(ARGB, OpaqueValueIsNegative) {
    EXPECT_EQ(ValueFromARGB({0, 0, 0, 255}), -16777216);
    EXPECT_EQ(ARGBFromValue(-1), (ARGB{255, 255, 255, 255}));
}

TEST(ARGB, ValueIsTheMemoryOfTheRecord) {
    const ARGB color{1, 128, 254, 255};
    int32_t value = 0;
    std::memcpy(&value, &color, sizeof value);
    EXPECT_EQ(value, ValueFromARGB(color));
    EXPECT_EQ(ARGBFromValue(value), color);
}

TEST(ARGB, NewRecordIsClear) { EXPECT_EQ(ARGB{}, ARGBFromValue(0)); }

}  // namespace
}  // namespace vxgui
