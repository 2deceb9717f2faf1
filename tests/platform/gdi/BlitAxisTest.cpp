#include "vxgui/platform/gdi/BlitAxis.h"

#include <gtest/gtest.h>

#include <vector>

namespace vxgui::gdi {
namespace {

std::vector<int64_t> Shown(const BlitAxis& axis) {
    std::vector<int64_t> sources;
    for (int32_t at = axis.Low(); at < axis.High(); ++at) sources.push_back(axis.Source(at));
    return sources;
}

using Sources = std::vector<int64_t>;

TEST(BlitAxis, EnlargingShowsTheNearestAndTheLowerOfTwo) {
    EXPECT_EQ(Shown({0, 4, 0, 2}), (Sources{0, 0, 1, 1}));
    EXPECT_EQ(Shown({0, 5, 0, 2}), (Sources{0, 0, 0, 1, 1}));
    EXPECT_EQ(Shown({0, 7, 0, 3}), (Sources{0, 0, 1, 1, 1, 2, 2}));
}

TEST(BlitAxis, ShrinkingKeepsOneSourcePixelForEach) {
    EXPECT_EQ(Shown({0, 2, 0, 4}), (Sources{0, 2}));
    EXPECT_EQ(Shown({0, 2, 0, 5}), (Sources{1, 3}));
    EXPECT_EQ(Shown({0, 1, 0, 4}), (Sources{1}));
}

TEST(BlitAxis, EqualExtentsShowEachPixelOnce) {
    EXPECT_EQ(Shown({10, 3, 5, 3}), (Sources{5, 6, 7}));
}

TEST(BlitAxis, ANegativeExtentRunsDownFromItsStartTheStartIncluded) {
    const BlitAxis mirrored(9, -3, 0, 3);
    EXPECT_EQ(mirrored.Low(), 7);
    EXPECT_EQ(mirrored.High(), 10);
    EXPECT_EQ(Shown(mirrored), (Sources{2, 1, 0}));
    EXPECT_EQ(Shown({0, 3, 9, -3}), (Sources{9, 8, 7}));
    const BlitAxis both(9, -3, 9, -3);
    EXPECT_TRUE(both.Plain());
    EXPECT_EQ(Shown(both), (Sources{7, 8, 9}));
}

TEST(BlitAxis, TheTableHoldsWhatEachCoordinateShows) {
    for (int extent = -30; extent <= 30; ++extent) {
        for (int source = -30; source <= 30; ++source) {
            BlitAxis axis(3, extent, 5, source);
            axis.Cut(-11, 17);
            std::vector<int32_t> table(static_cast<size_t>(axis.High() - axis.Low()));
            if (axis.Empty()) continue;
            axis.Tabulate(table.data());
            ASSERT_EQ(Sources(table.begin(), table.end()), Shown(axis)) << extent << " " << source;
        }
    }
}

TEST(BlitAxis, AZeroExtentIsEmpty) {
    EXPECT_TRUE(BlitAxis(0, 0, 0, 4).Empty());
    EXPECT_TRUE(BlitAxis(0, 4, 0, 0).Empty());
}

TEST(BlitAxis, CuttingKeepsTheScaleOfTheWhole) {
    BlitAxis axis(0, 10, -2, 5);
    axis.CutToSource(2);
    EXPECT_EQ(axis.Low(), 4);
    EXPECT_EQ(Shown(axis), (Sources{0, 0, 1, 1}));
    axis.Cut(5, 100);
    EXPECT_EQ(Shown(axis), (Sources{0, 1, 1}));
    axis.Cut(50, 100);
    EXPECT_TRUE(axis.Empty());
}

TEST(BlitAxis, CutsAMirroredSource) {
    BlitAxis axis(0, 6, 3, -6);
    axis.CutToSource(3);
    EXPECT_EQ(axis.Low(), 1);
    EXPECT_EQ(Shown(axis), (Sources{2, 1, 0}));
}

TEST(BlitAxis, TheLargestExtentsDontOverflow) {
    BlitAxis axis(INT32_MIN, INT32_MAX, INT32_MIN, INT32_MIN);
    axis.CutToSource(1);
    EXPECT_TRUE(axis.Empty());
    BlitAxis wide(-INT32_MAX, INT32_MAX, 0, 2);
    wide.Cut(-4, 100);
    EXPECT_EQ(Shown(wide), (Sources{1, 1, 1, 1}));
}

TEST(BlitAxis, NamesTheSourceThatItShows) {
    BlitAxis axis(0, 6, 8, -3);
    EXPECT_EQ(axis.SourceLow(), 6);
    EXPECT_EQ(axis.SourceHigh(), 9);
    axis.MoveSource(-6);
    EXPECT_EQ(axis.SourceLow(), 0);
}

}  // namespace
}  // namespace vxgui::gdi
