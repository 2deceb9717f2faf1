#include "vxgui/surface/HlsAdjustment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "tests/surface/HlsReference.h"

namespace vxgui::test {
namespace {

using reference::HlsSettings;

/// 33 levels of each channel: every way in which channels can tie, among others.
std::vector<ARGB> ColourCube() {
    std::vector<ARGB> cube;
    const auto level = [](int i) { return static_cast<uint8_t>(i == 32 ? 255 : i * 8); };
    for (int r = 0; r < 33; ++r) {
        for (int g = 0; g < 33; ++g) {
            for (int b = 0; b < 33; ++b) {
                cube.push_back({level(b), level(g), level(r), static_cast<uint8_t>(r * g + b)});
            }
        }
    }
    return cube;
}

std::vector<ARGB> Adjusted(std::vector<ARGB> pixels, const HlsSettings& s) {
    HlsAdjustment(s.hue, s.luminance, s.saturation, s.colourize).Apply(pixels);
    return pixels;
}

ARGB Adjusted(ARGB pixel, const HlsSettings& s) { return Adjusted(std::vector{pixel}, s)[0]; }

void CompareOverTheCube(const HlsSettings& s) {
    static const std::vector<ARGB> cube = ColourCube();
    const std::vector<ARGB> actual = Adjusted(cube, s);
    reference::HlsPixel rule(s);
    for (size_t i = 0; i < cube.size(); ++i) {
        ASSERT_EQ(ValueFromARGB(actual[i]), ValueFromARGB(rule.Adjust(cube[i])))
            << testing::PrintToString(s) << " red " << int(cube[i].Red) << " green "
            << int(cube[i].Green) << " blue " << int(cube[i].Blue);
    }
}

/// The settings that all 2^24 colours are tried with: each step alone and all together, both signs.
class HlsAdjustmentOfAllColours : public testing::TestWithParam<HlsSettings> {};

TEST_P(HlsAdjustmentOfAllColours, FollowsTheRules) {
    reference::HlsPixel rule(GetParam());
    std::vector<ARGB> colours(65536), expected(colours.size());
    for (int32_t red = 0; red < 256; ++red) {
        for (int32_t i = 0; i < 65536; ++i) {
            const auto at = static_cast<size_t>(i);
            colours[at] = ARGBFromValue(red << 16 | i);
            expected[at] = rule.Adjust(colours[at]);
        }
        const std::vector<ARGB> actual = Adjusted(colours, GetParam());
        if (actual == expected) continue;
        const auto wrong = std::ranges::mismatch(actual, expected).in1 - actual.begin();
        FAIL() << "colour " << (red << 16 | wrong);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Settings, HlsAdjustmentOfAllColours,
    testing::Values(HlsSettings{40, 15, 30, false}, HlsSettings{-77, -20, -45.5, false},
                    HlsSettings{200, 0, 63, false}, HlsSettings{301, 0, 0, false},
                    HlsSettings{0, 12, 37, false}, HlsSettings{0, -9, -63, false},
                    HlsSettings{0, 33, 0, false}, HlsSettings{0, -33, 0, false},
                    HlsSettings{75, 10, 44, true}, HlsSettings{1, 0, 0.37F, false}));

TEST(HlsAdjustment, FollowsTheRulesForEverySectorAndSign) {
    for (const float hue : {0.0F, 30.0F, 60.0F, 100.5F, 179.0F, 240.0F, 299.0F, 300.0F, 301.0F,
                            359.0F, -1.0F, -59.0F, -61.0F, -200.0F, -359.0F}) {
        for (const float saturation : {0.0F, 37.0F, -63.0F}) {
            CompareOverTheCube({hue, 0, saturation, false});
            CompareOverTheCube({hue, 0, saturation, true});
        }
    }
}

TEST(HlsAdjustment, FollowsTheRulesForEveryLuminanceAndSaturation) {
    for (const float luminance : {0.5F, 0.6F, 41.3F, 100.0F, -0.5F, -1.0F, -72.0F, -100.0F}) {
        for (const float saturation : {0.0F, 0.4F, 100.0F, -100.0F, 12.0F}) {
            CompareOverTheCube({0, luminance, saturation, false});
            CompareOverTheCube({75, luminance, saturation, saturation > 0});
        }
    }
}

TEST(HlsAdjustment, BoundsSaturationAndLuminance) {
    CompareOverTheCube({0, 900, 0, false});
    CompareOverTheCube({0, -900, 0, true});
    CompareOverTheCube({20, 0, 900, false});
    CompareOverTheCube({20, 0, -900, false});
    CompareOverTheCube({20, 0, -900, true});
    CompareOverTheCube({3600020, 0, 900, true});
}

TEST(HlsAdjustment, NothingAskedForChangesNothing) {
    EXPECT_EQ(Adjusted(ColourCube(), {0, 0, 0, false}), ColourCube());
}

TEST(HlsAdjustment, ALuminanceUpToAHalfIsNone) {
    EXPECT_EQ(Adjusted(ColourCube(), {0, 0.4F, 0, false}), ColourCube());
    EXPECT_EQ(Adjusted(ColourCube(), {0, 0.5F, 0, false}), ColourCube());
    EXPECT_EQ(Adjusted(ColourCube(), {0, -0.5F, 0, false}), ColourCube());
    EXPECT_NE(Adjusted(ColourCube(), {0, 0.6F, 0, false}), ColourCube());
}

TEST(HlsAdjustment, FullLuminanceIsWhiteAndItsOppositeBlack) {
    for (const bool colourize : {false, true}) {
        for (const ARGB pixel : Adjusted(ColourCube(), {33, 100, 20, colourize})) {
            ASSERT_EQ(ValueFromARGB(pixel) & 0xFFFFFF, 0xFFFFFF);
        }
        for (const ARGB pixel : Adjusted(ColourCube(), {33, -100, 20, colourize})) {
            ASSERT_EQ(ValueFromARGB(pixel) & 0xFFFFFF, 0);
        }
    }
}

TEST(HlsAdjustment, AFullTurnOfTheHueIsNone) {
    EXPECT_EQ(Adjusted(ColourCube(), {360, 0, 0, false}), ColourCube());
    EXPECT_EQ(Adjusted(ColourCube(), {-720, 0, 0, false}), ColourCube());
    EXPECT_EQ(Adjusted(ColourCube(), {360, 5, 50, false}),
              Adjusted(ColourCube(), {0, 5, 50, false}));
}

TEST(HlsAdjustment, ColourizeWithoutSaturationIsTheTruncatedAverage) {
    EXPECT_EQ(Adjusted(ARGB{1, 2, 2, 9}, {200, 0, 0, true}), (ARGB{1, 1, 1, 9}));
    EXPECT_EQ(Adjusted(ARGB{255, 254, 255, 9}, {200, 0, 0, true}), (ARGB{254, 254, 254, 9}));
}

TEST(HlsAdjustment, ASixthOfATurnTakesRedToYellow) {
    EXPECT_EQ(Adjusted(ARGB{0, 0, 255, 7}, {60, 0, 0, false}), (ARGB{0, 255, 255, 7}));
    EXPECT_EQ(Adjusted(ARGB{0, 0, 255, 7}, {-60, 0, 0, false}), (ARGB{255, 0, 255, 7}));
}

TEST(HlsAdjustment, ValuesThatAreNoNumbersAreSafe) {
    const float none = std::nanf("");
    const float endless = HUGE_VALF;
    for (const bool colourize : {false, true}) {
        Adjusted(ColourCube(), {none, none, none, colourize});
        Adjusted(ColourCube(), {endless, -endless, endless, colourize});
        Adjusted(ColourCube(), {-endless, endless, -endless, colourize});
    }
}

}  // namespace
}  // namespace vxgui::test
