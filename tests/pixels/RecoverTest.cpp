#include "vxgui/pixels/Recover.h"

#include <gtest/gtest.h>

#include <array>

#include "vxgui/pixels/Blend.h"

namespace vxgui {
namespace {

ARGB Over(ARGB pixel, uint8_t ground) {
    std::array target{ARGB{ground, ground, ground, 255}};
    BlendPremultiplied(std::array{pixel}, target);
    return target[0];
}

TEST(Recover, FindsEveryPremultipliedPixelThatWasBlended) {
    for (int alpha = 0; alpha < 256; ++alpha) {
        for (int colour = 0; colour <= alpha; ++colour) {
            const auto top = static_cast<uint8_t>(alpha);
            const ARGB pixel{static_cast<uint8_t>(colour), top, 0, top};
            ASSERT_EQ(Recover(Over(pixel, 0), Over(pixel, 255)), pixel) << alpha << " " << colour;
        }
    }
}

TEST(Recover, TakesTheChannelThatHidesMost) {
    // Green alone was painted opaque.
    EXPECT_EQ(Recover({0, 90, 0, 0}, {255, 90, 255, 0}), (ARGB{0, 90, 0, 255}));
}

TEST(Recover, NeverAnswersAColourAboveItsAlpha) {
    EXPECT_EQ(Recover({200, 200, 200, 9}, {255, 255, 255, 9}), (ARGB{200, 200, 200, 200}));
    EXPECT_EQ(Recover({0, 0, 0, 255}, {255, 255, 255, 255}), (ARGB{0, 0, 0, 0}));
    EXPECT_EQ(Recover({255, 0, 0, 0}, {0, 0, 0, 0}), (ARGB{255, 0, 0, 255}));
}

}  // namespace
}  // namespace vxgui
