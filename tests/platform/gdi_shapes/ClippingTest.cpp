#include <limits>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

using namespace test;

class Clipping : public testing::Test {
protected:
    void Paint() {
        const RECT all{0, 0, 8, 4};
        FillRect(canvas.dc, &all, red);
    }
    RECT ClipBox() {
        RECT box{-1, -1, -1, -1};
        GetClipBox(canvas.dc, &box);
        return box;
    }

    Canvas canvas{8, 4};
    Owned<HBRUSH> red{CreateSolidBrush(kRed)};
    Owned<HRGN> region{CreateRectRgn(1, 1, 4, 3)};
    Owned<HRGN> other{CreateRectRgn(3, 0, 6, 2)};
};

TEST_F(Clipping, WithoutAClipTheBoxIsTheBitmaps) {
    RECT box{};
    EXPECT_EQ(GetClipBox(canvas.dc, &box), SIMPLEREGION);
    EXPECT_EQ(box, (RECT{0, 0, 8, 4}));
    EXPECT_EQ(GetClipRgn(canvas.dc, other), 0);
    EXPECT_TRUE(PtInRegion(other, 3, 0)) << "the region stays as it was";
}

TEST_F(Clipping, TheRegionIsCopied) {
    EXPECT_EQ(SelectClipRgn(canvas.dc, region), SIMPLEREGION);
    OffsetRgn(region, 1, 1);
    EXPECT_EQ(ClipBox(), (RECT{1, 1, 4, 3}));
    EXPECT_EQ(GetClipRgn(canvas.dc, other), 1);
    OffsetRgn(other, 1, 1);
    EXPECT_EQ(ClipBox(), (RECT{1, 1, 4, 3}));
    EXPECT_TRUE(EqualRgn(region, other));
    Paint();
    EXPECT_EQ(canvas.Picture(kRed), (Picture{"........", ".###....", ".###....", "........"}))
        << "GetPixel sees the clip's pixels alone";
}

TEST_F(Clipping, NoRegionEndsClipping) {
    SelectClipRgn(canvas.dc, region);
    EXPECT_EQ(SelectClipRgn(canvas.dc, nullptr), SIMPLEREGION);
    Paint();
    EXPECT_EQ(canvas.Count(kRed), 32);
}

TEST_F(Clipping, CombinesByMode) {
    const struct {
        int mode, kind;
        Picture picture;
    } cases[] = {
        {RGN_AND, SIMPLEREGION, {"........", "...#....", "........", "........"}},
        {RGN_OR, COMPLEXREGION, {"...###..", ".#####..", ".###....", "........"}},
        {RGN_XOR, COMPLEXREGION, {"...###..", ".##.##..", ".###....", "........"}},
        {RGN_DIFF, COMPLEXREGION, {"........", ".##.....", ".###....", "........"}},
        {RGN_COPY, SIMPLEREGION, {"...###..", "...###..", "........", "........"}},
    };
    for (const auto& c : cases) {
        SelectClipRgn(canvas.dc, nullptr);
        const RECT all{0, 0, 8, 4};
        FillRect(canvas.dc, &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
        SelectClipRgn(canvas.dc, region);
        EXPECT_EQ(ExtSelectClipRgn(canvas.dc, other, c.mode), c.kind) << c.mode;
        Paint();
        SelectClipRgn(canvas.dc, nullptr);
        EXPECT_EQ(canvas.Picture(kRed), c.picture) << c.mode;
    }
}

TEST_F(Clipping, ModesOtherThanCopyNeedARegion) {
    SelectClipRgn(canvas.dc, region);
    for (const int mode : {RGN_AND, RGN_OR, RGN_XOR, RGN_DIFF, 0, 6}) {
        EXPECT_EQ(ExtSelectClipRgn(canvas.dc, nullptr, mode), ERROR) << mode;
    }
    EXPECT_EQ(ExtSelectClipRgn(canvas.dc, other, 6), ERROR);
    EXPECT_EQ(ClipBox(), (RECT{1, 1, 4, 3}));
}

TEST_F(Clipping, WithoutAClipTheWholeBitmapIsCombined) {
    EXPECT_EQ(ExtSelectClipRgn(canvas.dc, other, RGN_DIFF), COMPLEXREGION);
    Paint();
    SelectClipRgn(canvas.dc, nullptr);
    EXPECT_EQ(canvas.Picture(kRed), (Picture{"###...##", "###...##", "########", "########"}));
}

TEST_F(Clipping, RectanglesAreIntersectedAndExcluded) {
    EXPECT_EQ(IntersectClipRect(canvas.dc, 7, 3, 1, 0), SIMPLEREGION);
    EXPECT_EQ(ClipBox(), (RECT{1, 0, 7, 3}));
    EXPECT_EQ(ExcludeClipRect(canvas.dc, 3, 1, 5, 2), COMPLEXREGION);
    EXPECT_EQ(ClipBox(), (RECT{1, 0, 7, 3}));
    EXPECT_EQ(IntersectClipRect(canvas.dc, 3, 1, 5, 2), NULLREGION);
    EXPECT_EQ(ClipBox(), RECT{});
    Paint();
    SelectClipRgn(canvas.dc, nullptr);
    EXPECT_EQ(canvas.Count(kRed), 0);
}

TEST_F(Clipping, TheBoxIsCutAtTheBitmap) {
    constexpr int kLow = std::numeric_limits<int>::min();
    constexpr int kHigh = std::numeric_limits<int>::max();
    EXPECT_EQ(IntersectClipRect(canvas.dc, kLow, 2, kHigh, kHigh), SIMPLEREGION);
    EXPECT_EQ(ClipBox(), (RECT{0, 2, 8, 4}));
    EXPECT_EQ(GetClipRgn(canvas.dc, region), 1);
    RECT whole{};
    GetRgnBox(region, &whole);
    EXPECT_EQ(whole, (RECT{kLow, 2, kHigh, kHigh})) << "the region itself stays whole";
}

TEST_F(Clipping, RestoredWithTheRestOfTheContext) {
    SelectClipRgn(canvas.dc, region);
    const int level = SaveDC(canvas.dc);
    SelectClipRgn(canvas.dc, nullptr);
    EXPECT_TRUE(RestoreDC(canvas.dc, level));
    EXPECT_EQ(ClipBox(), (RECT{1, 1, 4, 3}));
}

TEST_F(Clipping, WrongHandlesFail) {
    RECT box{7, 7, 7, 7};
    HRGN stale = CreateRectRgn(0, 0, 1, 1);
    DeleteObject(stale);
    EXPECT_EQ(SelectClipRgn(nullptr, region), ERROR);
    EXPECT_EQ(SelectClipRgn(canvas.dc, stale), ERROR);
    EXPECT_EQ(IntersectClipRect(nullptr, 0, 0, 1, 1), ERROR);
    EXPECT_EQ(ExcludeClipRect(nullptr, 0, 0, 1, 1), ERROR);
    EXPECT_EQ(GetClipBox(nullptr, &box), ERROR);
    EXPECT_EQ(GetClipBox(canvas.dc, nullptr), ERROR);
    EXPECT_EQ(GetClipRgn(nullptr, region), -1);
    EXPECT_EQ(GetClipRgn(canvas.dc, stale), -1);
    EXPECT_EQ(box, (RECT{7, 7, 7, 7}));
}

}  // namespace
}  // namespace vxgui::gdi
