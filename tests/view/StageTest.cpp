#include <gtest/gtest.h>

#include "tools/view/StageLayout.h"
#include "tools/view/Zoom.h"

namespace vxgui::view {
namespace {

TEST(Zoom, GoesThroughItsStepsAndStopsAtBothEnds) {
    Zoom zoom;
    EXPECT_FALSE(zoom.Out());
    int steps = 1;
    for (int32_t last = zoom.Factor(); zoom.In(); ++steps) {
        EXPECT_GT(zoom.Factor(), last);
        last = zoom.Factor();
    }
    EXPECT_EQ(zoom.Factor(), Zoom::kLargest);
    while (zoom.Out()) --steps;
    EXPECT_EQ(zoom.Factor(), 1);
    EXPECT_EQ(steps, 1);
}

TEST(Zoom, TakesTheStepBelowAnyFactor) {
    Zoom zoom;
    for (const auto& [given, taken] : {std::pair(5, 4), {8, 8}, {0, 1}, {-3, 1}, {1000, 32}}) {
        zoom.Factor(given);
        EXPECT_EQ(zoom.Factor(), taken) << given;
    }
}

TEST(Zoom, HasRoomForAGridFromSixPixelsOn) {
    Zoom zoom;
    zoom.Factor(4);
    EXPECT_FALSE(zoom.HasRoomForGrid());
    zoom.In();
    EXPECT_TRUE(zoom.HasRoomForGrid());
}

StageLayout Arranged(int32_t width, int32_t height, int32_t factor) {
    StageLayout layout;
    layout.Arrange({600, 400}, {width, height}, factor);
    return layout;
}

TEST(StageLayout, PutsTheItemInTheMiddleOnWholePixels) {
    const gdi::RECT box = Arranged(33, 21, 4).ItemOnScreen();
    EXPECT_EQ(box.left % 4, 0);
    EXPECT_EQ(box.top % 4, 0);
    EXPECT_EQ(box.right - box.left, 33 * 4);
    EXPECT_LE(std::abs((box.left + box.right) / 2 - 300), 4);
    EXPECT_LE(std::abs((box.top + box.bottom) / 2 - 200), 4);
}

TEST(StageLayout, LeavesARimWhereTheItemIsTooLarge) {
    const StageLayout layout = Arranged(700, 500, 2);
    EXPECT_EQ(layout.ItemAt().x, StageLayout::kRim);
    EXPECT_EQ(layout.ItemAt().y, StageLayout::kRim);
    EXPECT_EQ(StageLayout::Needed({700, 500}, 2).cx, (700 + 2 * StageLayout::kRim) * 2);
}

TEST(StageLayout, GroundCoversTheWholeScreen) {
    const gdi::SIZE ground = Arranged(10, 10, 7).GroundSize();
    EXPECT_EQ(ground.cx, 86);  // 600 pixels are 85 squares of 7 and a part of one more
    EXPECT_EQ(ground.cy, 58);
}

TEST(StageLayout, FindsThePixelUnderEachScreenPosition) {
    const StageLayout layout = Arranged(5, 3, 8);
    const gdi::RECT box = layout.ItemOnScreen();
    for (int32_t y = box.top - 20; y < box.bottom + 20; ++y) {
        for (int32_t x = box.left - 20; x < box.right + 20; ++x) {
            const gdi::POINT pixel = layout.PixelAt({x, y});
            EXPECT_LE(box.left + pixel.x * 8, x);
            EXPECT_GT(box.left + (pixel.x + 1) * 8, x);
            EXPECT_LE(box.top + pixel.y * 8, y);
            const bool inside = x >= box.left && x < box.right && y >= box.top && y < box.bottom;
            EXPECT_EQ(layout.IsOnItem({x, y}), inside);
        }
    }
}

TEST(StageLayout, HasGripsAtTheRightAndBottomSidesAlone) {
    const StageLayout layout = Arranged(100, 40, 1);
    const gdi::RECT box = layout.ItemOnScreen();
    const int32_t x = (box.left + box.right) / 2, y = (box.top + box.bottom) / 2;
    EXPECT_EQ(layout.GripAt({box.right + 3, y}), (Grip{true, false}));
    EXPECT_EQ(layout.GripAt({x, box.bottom + 3}), (Grip{false, true}));
    EXPECT_EQ(layout.GripAt({box.right + 3, box.bottom + 3}), (Grip{true, true}));
    EXPECT_TRUE(layout.GripAt({box.left, y}).IsNone());
    EXPECT_TRUE(layout.GripAt({x, box.top}).IsNone());
    EXPECT_TRUE(layout.GripAt({x, y}).IsNone());
    EXPECT_TRUE(layout.GripAt({box.right + 30, y}).IsNone());
}

TEST(StageLayout, DragsByWholePixelsOfThePicture) {
    const StageLayout layout = Arranged(100, 40, 4);
    const gdi::SIZE wider = layout.Dragged({100, 40}, {true, false}, {50, 50}, {70, 90});
    EXPECT_EQ(wider.cx, 105);
    EXPECT_EQ(wider.cy, 40);
    const gdi::SIZE both = layout.Dragged({100, 40}, {true, true}, {50, 50}, {10, 62});
    EXPECT_EQ(both.cx, 90);
    EXPECT_EQ(both.cy, 43);
}

TEST(StageLayout, NeverDragsBeyondItsLimits) {
    const StageLayout layout = Arranged(100, 40, 1);
    EXPECT_EQ(layout.Dragged({100, 40}, {true, false}, {0, 0}, {-500, 0}).cx, 1);
    EXPECT_EQ(layout.Dragged({100, 40}, {false, true}, {0, 0}, {0, 90000}).cy,
              StageLayout::kLargestSide);
}

TEST(StageLayout, KeepsTheLeftTopCornerWhileASideIsHeld) {
    StageLayout layout = Arranged(100, 40, 1);
    const gdi::RECT before = layout.ItemOnScreen();
    layout.Resize({140, 60});
    const gdi::RECT after = layout.ItemOnScreen();
    EXPECT_EQ(after.left, before.left);
    EXPECT_EQ(after.top, before.top);
    EXPECT_EQ(after.right, before.left + 140);
}

}  // namespace
}  // namespace vxgui::view
