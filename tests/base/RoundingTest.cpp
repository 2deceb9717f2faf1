#include "vxgui/base/Rounding.h"

#include <gtest/gtest.h>

namespace vxgui {
namespace {

TEST(Rounding, HalvesGoToEven) {
    EXPECT_EQ(RoundHalfEven(0.5), 0);
    EXPECT_EQ(RoundHalfEven(1.5), 2);
    EXPECT_EQ(RoundHalfEven(2.5), 2);
    EXPECT_EQ(RoundHalfEven(-0.5), 0);
    EXPECT_EQ(RoundHalfEven(-1.5), -2);
    EXPECT_EQ(RoundHalfEven(7.5), 8);
}

TEST(Rounding, WrapsAtTheWidth) {
    EXPECT_EQ(RoundHalfEven<uint8_t>(257.0), 1);
    EXPECT_EQ(RoundHalfEven<int16_t>(32768.0), -32768);
    EXPECT_EQ(RoundHalfEven(1e300), 0);
    EXPECT_EQ(RoundHalfEven(std::nan("")), 0);
}

TEST(Rounding, CheckedRaisesTheOverflowError) {
    EXPECT_EQ(RoundHalfEvenChecked<uint8_t>(255.5 - 0.1, "x"), 255);
    try {
        RoundHalfEvenChecked<uint8_t>(255.5, "x");
        FAIL() << "no error";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), 6);
    }
}

TEST(Rounding, TruncationDropsTheFraction) {
    EXPECT_EQ(Truncate(1.9), 1);
    EXPECT_EQ(Truncate(-1.9), -1);
}

TEST(Wrapping, IntegersWrapSilently) {
    EXPECT_EQ(WrapAdd<int32_t>(2147483647, 1), -2147483647 - 1);
    EXPECT_EQ(WrapSub<int16_t>(-32768, 1), 32767);
    EXPECT_EQ(WrapMul(65536, 65536), 0);
}

}  // namespace
}  // namespace vxgui
