#include "vxgui/pixels/Tint.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/pixels/Reference.h"

namespace vxgui {
namespace {

TEST(Tint, EveryAlphaGetsTheColourPremultiplied) {
    std::vector<ARGB> pixels, expected;
    for (int alpha = 0; alpha < 256; ++alpha) {
        const auto a = static_cast<uint8_t>(alpha);
        pixels.push_back({9, 99, 199, a});
        expected.push_back({reference::PremultiplyByte(0x30, a),
                            reference::PremultiplyByte(0x20, a),
                            reference::PremultiplyByte(0x10, a), a});
    }
    Tint(pixels, 0xFF302010);
    EXPECT_EQ(pixels, expected);
}

}  // namespace
}  // namespace vxgui
