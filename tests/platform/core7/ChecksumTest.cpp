#include <gtest/gtest.h>

#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

TEST(Checksum, IsTheOneOfPng) {
    const char text[] = "123456789";  // the check value that the algorithm is known by
    EXPECT_EQ(Checksum(reinterpret_cast<const uint8_t*>(text), 9), 0xCBF43926u);
    EXPECT_EQ(Checksum(nullptr, 0), 0u);
}

}  // namespace
}  // namespace vxgui::core7
