#include "tests/support/GuardedPixels.h"

#include <gtest/gtest.h>

#include <cstring>

namespace vxgui::test {
namespace {

using Guard = GuardedPixels::Guard;

void Touch(volatile uint8_t* byte) { *byte = 1; }

TEST(GuardedPixels, EveryByteIsThereAndCleared) {
    for (const Guard guard : {Guard::Behind, Guard::InFront}) {
        GuardedPixels pixels(guard);
        for (const size_t size : {1, 4, 4096, 4097, 100000}) {
            uint8_t* const bits = pixels.Take(size, true);
            for (size_t i = 0; i < size; ++i) ASSERT_EQ(bits[i], 0);
            std::memset(bits, 7, size);
            pixels.GiveBack(bits);
        }
    }
}

TEST(GuardedPixelsDeathTest, ABytePastTheEndStopsTheTest) {
    GuardedPixels pixels(Guard::Behind);
    uint8_t* const bits = pixels.Take(400, true);
    EXPECT_DEATH(Touch(bits + 400), "");
}

TEST(GuardedPixelsDeathTest, AByteBeforeTheStartStopsTheTest) {
    GuardedPixels pixels(Guard::InFront);
    uint8_t* const bits = pixels.Take(400, true);
    EXPECT_DEATH(Touch(bits - 1), "");
}

TEST(GuardedPixelsDeathTest, WhatWasGivenBackIsOutOfReach) {
    GuardedPixels pixels(Guard::Behind);
    uint8_t* const bits = pixels.Take(400, true);
    pixels.GiveBack(bits);
    EXPECT_DEATH(Touch(bits), "");
}

}  // namespace
}  // namespace vxgui::test
