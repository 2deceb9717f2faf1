#pragma once

#include <gtest/gtest.h>

#include "vxgui/platform/limits.h"

namespace vxgui::test {

/// Gives the apartment its own limits back at the end.
class LimitsTest : public ::testing::Test {
protected:
    ~LimitsTest() override { ApartmentLimits() = {}; }

    /// Whether `works()` with a limit at its value, and fails with one that is lower by one.
    template <class T, class Works>
    static void ExpectBound(T Limits::*limit, T needed, Works works) {
        ApartmentLimits().*limit = needed;
        EXPECT_TRUE(works()) << "at the limit";
        ApartmentLimits().*limit = needed - 1;
        EXPECT_FALSE(works()) << "beyond the limit";
        ApartmentLimits().*limit = Limits().*limit;
    }
};

}  // namespace vxgui::test
