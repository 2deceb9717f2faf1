#include "tests/platform/gdiplus_graphics/GraphicsFixture.h"

namespace vxgui::gdiplus {
namespace {

using GdiplusFills = test::GraphicsFixture;

TEST_F(GdiplusFills, CoverThePixelsWhoseSamplesLieInside) {
    struct {
        REAL x, width;
        int left, right;
    } const cases[] = {{2, 3, 2, 5}, {1.5f, 3, 2, 5}, {1.25f, 3.5f, 2, 5}, {2.1f, 0.5f, 0, 0}};
    for (const auto& c : cases) {
        ASSERT_EQ(GdipGraphicsClear(onContext_, 0), Ok);
        ASSERT_EQ(GdipFillRectangle(onContext_, Solid(kRed), c.x, 0, c.width, 2), Ok);
        ExpectSame(OnContext(), Box(c.left, 0, c.right, 2, kRed));
    }
}

TEST_F(GdiplusFills, OfNoExtentDrawNothing) {
    for (const REAL extent : {0.0f, -3.0f}) {
        EXPECT_EQ(GdipFillRectangle(onContext_, Solid(kRed), 5, 5, extent, 3), Ok);
        EXPECT_EQ(GdipFillRectangle(onContext_, Solid(kRed), 5, 5, 3, extent), Ok);
    }
    ExpectSame(OnContext(), Box(0, 0, 0, 0, 0));
}

TEST_F(GdiplusFills, FarOutsideDrawWhatShows) {
    ASSERT_EQ(GdipFillRectangle(onContext_, Solid(kRed), -1e9f, -1e9f, 2e9f, 2e9f), Ok);
    ExpectSame(OnContext(), Box(0, 0, kWidth, kHeight, kRed));
    EXPECT_EQ(GdipFillRectangleI(onContext_, Solid(kBlue), INT32_MAX, 0, INT32_MAX, 5), Ok);
    ExpectSame(OnContext(), Box(0, 0, kWidth, kHeight, kRed));
}

TEST_F(GdiplusFills, WantABrush) {
    EXPECT_EQ(GdipFillRectangle(onContext_, nullptr, 0, 0, 1, 1), InvalidParameter);
    EXPECT_EQ(GdipFillRectangle(nullptr, Solid(kRed), 0, 0, 1, 1), InvalidParameter);
    EXPECT_EQ(GdipFillRectangleI(onContext_, reinterpret_cast<GpBrush*>(onContext_), 0, 0, 1, 1),
              InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
