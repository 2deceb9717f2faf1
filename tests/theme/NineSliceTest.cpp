#include "vxgui/theme/NineSlice.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "vxgui/theme/RectLayout.h"

namespace vxgui {
namespace {

TEST(SliceAxis, BandsShareTheirBorders) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int32_t> size(0, 60), margin(0, 30), start(-50, 50);
    for (int i = 0; i < 20000; ++i) {
        const Span target{start(random), size(random)}, frame{start(random), size(random)};
        const SlicedAxis axis = SliceAxis(target, frame, margin(random), margin(random));
        EXPECT_EQ(axis.near.target.start, target.start);
        EXPECT_EQ(axis.middle.target.start, axis.near.target.start + axis.near.target.size);
        EXPECT_EQ(axis.far.target.start, axis.middle.target.start + axis.middle.target.size);
        EXPECT_EQ(axis.far.target.start + axis.far.target.size, target.start + target.size);
        for (const Band& band : {axis.near, axis.middle, axis.far}) EXPECT_GE(band.source.size, 1);
    }
}

TEST(SliceAxis, CropsAndNeverShrinks) {
    const SlicedAxis axis = SliceAxis({0, 20}, {0, 30}, 4, 4);
    EXPECT_EQ(axis.middle.source, (Span{4, 12}));
    EXPECT_EQ(axis.far.source, (Span{26, 4}));
}

TEST(SliceAxis, ExtremeNumbersWrapInsteadOfFailing) {
    const int32_t huge = 2147483647;
    const SlicedAxis axis = SliceAxis({huge, huge}, {huge, huge}, huge, -huge);
    EXPECT_GE(axis.middle.source.size, 1);
}

TEST(RectLayout, DeflatesAndAligns) {
    EXPECT_EQ(Deflate({10, 50}, 3, 4), (Span{13, 43}));
    EXPECT_EQ(AlignAlong({10, 20}, 5, 0), 10);
    EXPECT_EQ(AlignAlong({10, 20}, 5, 1), 17);
    EXPECT_EQ(AlignAlong({10, 20}, 5, 2), 25);
    EXPECT_EQ(AlignAlong({10, 20}, 25, 1), 8);  // halves are cut towards nought
}

}  // namespace
}  // namespace vxgui
