#include "vxgui/pixels/Level.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace vxgui {
namespace {

TEST(ScaleLevel, AgreesWithTheFormulaForEveryChannelAndLevel) {
    std::vector<ARGB> pixels(256), expected(256);
    for (int level = 0; level <= 65536; ++level) {
        const auto scaled = [&](int c) {
            return static_cast<uint8_t>(std::min(c * level / 256, 255));
        };
        for (int c = 0; c < 256; ++c) {
            const auto i = static_cast<size_t>(c);
            const int other = 255 - c, third = c ^ 0x55, fourth = c ^ 0xAA;
            pixels[i] = {static_cast<uint8_t>(c), static_cast<uint8_t>(other),
                         static_cast<uint8_t>(third), static_cast<uint8_t>(fourth)};
            expected[i] = {scaled(c), scaled(other), scaled(third), scaled(fourth)};
        }
        ScaleLevel(pixels, level);
        ASSERT_EQ(pixels, expected) << "level " << level;
    }
}

TEST(ScaleLevel, LevelsOutsideAreHeldToTheEnds) {
    ARGB pixel{1, 2, 3, 4};
    ScaleLevel({&pixel, 1}, 65537);
    EXPECT_EQ(pixel, (ARGB{255, 255, 255, 255}));
    ScaleLevel({&pixel, 1}, -1);
    EXPECT_EQ(pixel, ARGB{});
}

struct Factor {
    float factor;
    int32_t level;
};
const Factor kFactors[] = {
    {1.0F, 256},
    {0.5F, 128},
    {2.0F, 512},
    {0.0F, 0},
    {-1.0F, 0},
    {256.0F, 65536},
    {300.0F, 65536},
    {1e30F, 65536},
    {std::numeric_limits<float>::infinity(), 65536},
    {1.25F, 320},
    {0.001953125F, 0},  // 0.5 rounds to the even 0
    {0.005859375F, 2},  // 1.5 rounds to 2
    {0.009765625F, 2},  // 2.5 rounds to 2
    {std::numeric_limits<float>::quiet_NaN(), 0},
};

TEST(LevelOfFactor, IsThe256thPartsRoundedAndHeldToTheScale) {
    for (const Factor& factor : kFactors) {
        EXPECT_EQ(LevelOfFactor(factor.factor), factor.level) << factor.factor;
    }
}

}  // namespace
}  // namespace vxgui
