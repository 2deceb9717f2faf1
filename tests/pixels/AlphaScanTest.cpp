#include "vxgui/pixels/AlphaScan.h"

#include <gtest/gtest.h>

#include <vector>

namespace vxgui {
namespace {

TEST(AlphaScan, UniformAlphaHasNoOther) {
    for (int alpha = 0; alpha < 256; ++alpha) {
        std::vector<ARGB> pixels(600, ARGB{1, 2, 3, static_cast<uint8_t>(alpha)});
        pixels[300] = {9, 8, 7, static_cast<uint8_t>(alpha)};
        EXPECT_FALSE(HasOtherAlpha(pixels, static_cast<uint8_t>(alpha)));
        EXPECT_TRUE(HasOtherAlpha(pixels, static_cast<uint8_t>(alpha ^ 1)));
        EXPECT_TRUE(HasOtherAlpha(pixels, static_cast<uint8_t>(alpha ^ 128)));
    }
}

TEST(AlphaScan, OneOtherPixelIsFoundWhereverItIs) {
    for (size_t size : {1, 2, 17, 256, 257, 600}) {
        std::vector<ARGB> pixels(size, ARGB{0, 0, 0, 255});
        for (size_t i = 0; i < size; ++i) {
            pixels[i].Alpha = 254;
            EXPECT_TRUE(HasOtherAlpha(pixels, 255)) << i << " of " << size;
            pixels[i].Alpha = 255;
        }
        EXPECT_FALSE(HasOtherAlpha(pixels, 255));
    }
}

TEST(AlphaScan, NoPixelsHaveNoOtherAlpha) { EXPECT_FALSE(HasOtherAlpha({}, 0)); }

}  // namespace
}  // namespace vxgui
