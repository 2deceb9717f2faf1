#include "vxgui/platform/gdi/PixelRegion.h"

#include <array>
#include <limits>
#include <random>

#include "RegionModel.h"
#include "ShapesTestSupport.h"

namespace vxgui::gdi {
namespace {

using test::RegionModel;
constexpr int32_t kLow = std::numeric_limits<int32_t>::min();
constexpr int32_t kHigh = std::numeric_limits<int32_t>::max();

std::vector<RECT> RectanglesOf(const PixelRegion& region) {
    std::vector<RECT> result;
    for (const pixman_box32_t& box : region.Boxes()) result.push_back(RectOf(box));
    return result;
}

PixelRegion Combined(const PixelRegion& a, const PixelRegion& b, int mode) {
    PixelRegion result;
    EXPECT_TRUE(result.Combine(a, b, mode));
    return result;
}

TEST(PixelRegion, CornersArePutInOrder) {
    for (const RECT& r : {RECT{2, 3, 7, 9}, RECT{7, 3, 2, 9}, RECT{2, 9, 7, 3}, RECT{7, 9, 2, 3}}) {
        EXPECT_EQ(RectanglesOf(PixelRegion(r)), std::vector{(RECT{2, 3, 7, 9})}) << r;
    }
}

TEST(PixelRegion, WithoutWidthOrHeightItIsEmpty) {
    for (const RECT& r : {RECT{}, RECT{4, 1, 4, 9}, RECT{1, 4, 9, 4}}) {
        EXPECT_EQ(PixelRegion(r).Kind(), NULLREGION);
        EXPECT_EQ(PixelRegion(r).Bounds(), RECT{});
    }
}

TEST(PixelRegion, EmptyRegionsAreEqualWhereverTheyWere) {
    const PixelRegion a(RECT{10, 10, 20, 20});
    const PixelRegion b(RECT{30, 30, 40, 40});
    EXPECT_EQ(Combined(a, a, RGN_DIFF), Combined(b, b, RGN_DIFF));
    EXPECT_EQ(Combined(a, a, RGN_XOR), PixelRegion());
    EXPECT_FALSE(PixelRegion() == a);
}

TEST(PixelRegion, EqualNeighboursMerge) {
    const PixelRegion left(RECT{0, 0, 4, 4});
    const PixelRegion right(RECT{4, 0, 9, 4});
    const PixelRegion below(RECT{0, 4, 9, 6});
    const PixelRegion row = Combined(left, right, RGN_OR);
    EXPECT_EQ(row.Kind(), SIMPLEREGION);
    EXPECT_EQ(RectanglesOf(Combined(row, below, RGN_OR)), std::vector{(RECT{0, 0, 9, 6})});
}

TEST(PixelRegion, OverlappingRectanglesBecomeBands) {
    const PixelRegion region =
        Combined(PixelRegion(RECT{0, 0, 4, 4}), PixelRegion(RECT{2, 2, 6, 6}), RGN_OR);
    EXPECT_EQ(region.Kind(), COMPLEXREGION);
    EXPECT_EQ(RectanglesOf(region), (std::vector<RECT>{{0, 0, 4, 2}, {0, 2, 6, 4}, {2, 4, 6, 6}}));
}

TEST(PixelRegion, AnUnknownModeChangesNothing) {
    PixelRegion region(RECT{0, 0, 4, 4});
    for (const int mode : {0, 6, -1}) EXPECT_FALSE(region.Combine(PixelRegion(), region, mode));
    EXPECT_EQ(region, PixelRegion(RECT{0, 0, 4, 4}));
}

TEST(PixelRegion, HoldsTheWholeCoordinateSpace) {
    PixelRegion all(RECT{kHigh, kHigh, kLow, kLow});
    EXPECT_EQ(all.Bounds(), (RECT{kLow, kLow, kHigh, kHigh}));
    EXPECT_TRUE(all.Contains(kLow, kHigh - 1));
    EXPECT_FALSE(all.Contains(0, kHigh));
    const PixelRegion hole = Combined(all, PixelRegion(RECT{0, 0, 1, 1}), RGN_DIFF);
    EXPECT_EQ(hole.Boxes().size(), 4u);
    EXPECT_FALSE(hole.Contains(0, 0));
}

TEST(PixelRegion, AnOffsetOutOfRangeIsRefused) {
    PixelRegion region(RECT{0, 0, 10, 10});
    EXPECT_FALSE(region.Offset(kHigh - 9, 0));
    EXPECT_EQ(region.Bounds(), (RECT{0, 0, 10, 10}));
    EXPECT_TRUE(region.Offset(kHigh - 10, kLow));
    EXPECT_EQ(region.Bounds(), (RECT{kHigh - 10, kLow, kHigh, kLow + 10}));
    EXPECT_TRUE(PixelRegion().Offset(kHigh, kLow));
}

TEST(PixelRegion, AShiftedCopyLosesWhatLeavesTheRange) {
    const PixelRegion region(RECT{0, 0, 10, 10});
    EXPECT_EQ(region.Shifted(kHigh - 4, 0).Bounds(), (RECT{kHigh - 4, 0, kHigh, 10}));
    EXPECT_EQ(region.Shifted(0, kLow).Bounds(), (RECT{0, kLow, 10, kLow + 10}));
    EXPECT_TRUE(PixelRegion(RECT{-10, -10, -5, -5}).Shifted(kLow, kLow).Empty());
}

TEST(PixelRegion, CopiesAreIndependent) {
    PixelRegion a = Combined(PixelRegion(RECT{0, 0, 2, 2}), PixelRegion(RECT{4, 0, 6, 2}), RGN_OR);
    const PixelRegion before = a;
    PixelRegion copy = a;
    a.Offset(5, 5);
    EXPECT_EQ(copy, before);
    copy = std::move(a);
    EXPECT_EQ(copy.Bounds(), (RECT{5, 5, 11, 7}));
}

// One region beside its model, and how a mismatch between the two reads.
struct Pair {
    PixelRegion region;
    RegionModel model;

    std::string Mismatch() const {
        const std::vector<RECT> expected = model.Rectangles();
        const std::vector<RECT> actual = RectanglesOf(region);
        if (actual != expected) {
            return "rectangles " + testing::PrintToString(actual) + " instead of " +
                   testing::PrintToString(expected);
        }
        if (!(region.Bounds() == model.Bounds())) return "wrong bounds";
        const size_t count = expected.size();
        const int kind = count > 1 ? COMPLEXREGION : count == 1 ? SIMPLEREGION : NULLREGION;
        return region.Kind() == kind ? "" : "wrong kind";
    }
};

class RandomRegions {
public:
    explicit RandomRegions(unsigned seed) : random_(seed) {}

    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

    /// Does one random operation and describes it.
    std::string Step() {
        const int kind = Below(8);
        return kind == 0 ? Rectangle() : kind == 1 ? Move() : CombineTwo();
    }
    Pair& Last() { return pairs_[last_]; }
    Pair& Any() { return pairs_[static_cast<size_t>(Below(kCount))]; }

private:
    static constexpr int kCount = 5;

    Pair& Choose() { return pairs_[last_ = static_cast<size_t>(Below(kCount))]; }

    std::string Rectangle() {
        constexpr int kSide = RegionModel::kSide + 1;
        const RECT r{Below(kSide), Below(kSide), Below(kSide), Below(kSide)};
        Choose() = {PixelRegion(r), RegionModel(r)};
        return "rectangle " + testing::PrintToString(r);
    }

    std::string Move() {
        Pair& pair = Choose();
        const RECT box = pair.model.Bounds();
        const int dx = Below(RegionModel::kSide - (box.right - box.left) + 1) - box.left;
        const int dy = Below(RegionModel::kSide - (box.bottom - box.top) + 1) - box.top;
        EXPECT_TRUE(pair.region.Offset(dx, dy));
        pair.model = pair.model.Shifted(dx, dy);
        return "offset by " + std::to_string(dx) + ' ' + std::to_string(dy);
    }

    std::string CombineTwo() {
        const Pair& a = Any();
        const Pair& b = Any();
        const int mode = RGN_AND + Below(5);
        const RegionModel model = RegionModel::Combined(a.model, b.model, mode);
        Pair& target = Choose();
        EXPECT_TRUE(target.region.Combine(a.region, b.region, mode));
        target.model = model;
        return "combine by mode " + std::to_string(mode);
    }

    std::mt19937 random_;
    std::array<Pair, kCount> pairs_;
    size_t last_ = 0;
};

TEST(PixelRegion, RandomOperationsAgreeWithABitmap) {
    for (unsigned seed = 1; seed <= 40; ++seed) {
        RandomRegions regions(seed);
        for (int step = 0; step < 150; ++step) {
            const std::string what = regions.Step();
            ASSERT_EQ(regions.Last().Mismatch(), "")
                << "seed " << seed << ", step " << step << ": " << what;
            const Pair& other = regions.Any();
            ASSERT_EQ(regions.Last().region == other.region, regions.Last().model == other.model)
                << "seed " << seed << ", step " << step << ": equality";
        }
    }
}

TEST(PixelRegion, FindsTheRectanglesOfSomeRows) {
    for (unsigned seed = 1; seed <= 10; ++seed) {
        RandomRegions regions(seed);
        for (int step = 0; step < 60; ++step) regions.Step();
        const PixelRegion& region = regions.Any().region;
        for (int top = -2; top < 50; ++top) {
            for (int bottom = top + 1; bottom < 50; bottom += 3) {
                std::vector<RECT> expected, actual;
                for (const RECT& r : RectanglesOf(region)) {
                    if (r.bottom > top && r.top < bottom) expected.push_back(r);
                }
                for (const auto& box : region.BoxesInRows(top, bottom)) {
                    actual.push_back(RectOf(box));
                }
                ASSERT_EQ(actual, expected) << seed << ": " << top << ' ' << bottom;
            }
        }
    }
}

TEST(PixelRegion, RandomQuestionsAgreeWithABitmap) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        RandomRegions regions(seed);
        for (int step = 0; step < 60; ++step) regions.Step();
        const Pair& pair = regions.Any();
        for (int i = 0; i < 300; ++i) {
            const RECT r{regions.Below(50), regions.Below(50), regions.Below(50),
                         regions.Below(50)};
            ASSERT_EQ(pair.region.Contains(r.left, r.top), pair.model.At(r.left, r.top)) << seed;
            const RegionModel shared = RegionModel::Combined(pair.model, RegionModel(r), RGN_AND);
            ASSERT_EQ(pair.region.Overlaps(r), !(shared == RegionModel())) << seed << ' ' << r;
        }
    }
}

}  // namespace
}  // namespace vxgui::gdi
