#include "vxgui/theme/ScaledAxis.h"

#include <gtest/gtest.h>

#include "vxgui/theme/ScaledLength.h"

namespace vxgui {
namespace {

std::vector<int32_t> SizesOf(const ScaledAxis& axis) {
    std::vector<AreaBand> bands;
    axis.AddBands(0, 1, bands);
    std::vector<int32_t> sizes;
    for (const AreaBand& band : bands) sizes.push_back(band.size);
    return sizes;
}

using Sizes = std::vector<int32_t>;

TEST(ScaledLength, RoundsOnceAndHalvesAwayFromNought) {
    EXPECT_EQ(ScaledLength(3, 1.25), 4);
    EXPECT_EQ(ScaledLength(3, 1.5), 5);
    EXPECT_EQ(ScaledLength(-3, 1.5), -5);
    EXPECT_EQ(ScaledLength(1, 0.25), 0);
    EXPECT_EQ(ScaledLength(0, 16), 0);
    EXPECT_EQ(ScaledLength(2147483647, 16), 2147483647);
    EXPECT_EQ(ScaledLength(-2147483647, 16), -2147483647);
}

TEST(ScaledAxis, TheMiddleTakesWhatTheRoundedMarginsLeaveOfTheRoundedFrame) {
    EXPECT_EQ(SizesOf({30, 3, 5, 1.5, false}), (Sizes{5, 32, 8}));  // 45 of 30
    EXPECT_EQ(SizesOf({11, 3, 3, 1.25, false}), (Sizes{4, 6, 4}));  // 13.75
    EXPECT_EQ(SizesOf({40, 4, 4, 0.25, false}), (Sizes{1, 8, 1}));
    EXPECT_EQ(SizesOf({9, 4, 4, 0.25, false}), (Sizes{1, 1, 1}));  // a middle stays one
    EXPECT_EQ(SizesOf({30, 3, 5, 1, false}), (Sizes{3, 22, 5}));
}

TEST(ScaledAxis, WithoutAMiddleTheMarginsMeet) {
    EXPECT_EQ(SizesOf({6, 3, 3, 1.5, false}), (Sizes{5, 5}));
    EXPECT_EQ(SizesOf({6, 0, 6, 2, true}), Sizes{12});
}

TEST(ScaledAxis, MarginsThatDontFitCutNothing) {
    EXPECT_EQ(SizesOf({6, 4, 4, 1.5, true}), Sizes{9});
    EXPECT_EQ(SizesOf({6, -1, 4, 1.5, true}), Sizes{9});
    EXPECT_EQ(SizesOf({1, 0, 0, 0.25, true}), Sizes{1});
    EXPECT_EQ(SizesOf({2, 1, 1, 0.25, true}), Sizes{1});  // nothing would be left of it
}

TEST(ScaledAxis, ATiledMiddleHasRoomForTheWidestTile) {
    const ScaledAxis axis(11, 4, 4, 1.25, true);
    EXPECT_EQ(SizesOf(axis), (Sizes{5, 4, 5}));
    EXPECT_DOUBLE_EQ(axis.TilePitch(), 3.75);
    const ScaledAxis whole(12, 4, 4, 1.25, true);
    EXPECT_EQ(SizesOf(whole), (Sizes{5, 5, 5}));
    EXPECT_DOUBLE_EQ(whole.TilePitch(), 5);
}

TEST(ScaledAxis, AMiddleOfOnePixelOrNoneHasNoTiles) {
    EXPECT_EQ(ScaledAxis(9, 4, 4, 3, true).TilePitch(), 0);
    EXPECT_EQ(ScaledAxis(8, 4, 4, 3, true).TilePitch(), 0);
    EXPECT_EQ(ScaledAxis(30, 4, 4, 3, false).TilePitch(), 0);
}

TEST(ScaledAxis, BandsStandSideBySideInAStripOfAnyDensity) {
    std::vector<AreaBand> bands;
    ScaledAxis(10, 2, 3, 1.5, false).AddBands(20, 2, bands);
    ASSERT_EQ(bands.size(), 3u);
    EXPECT_EQ(bands[0].from, 20);
    EXPECT_EQ(bands[0].to, 24);
    EXPECT_EQ(bands[1].from, 24);
    EXPECT_EQ(bands[1].to, 34);
    EXPECT_EQ(bands[2].from, 34);
    EXPECT_EQ(bands[2].to, 40);
}

}  // namespace
}  // namespace vxgui
