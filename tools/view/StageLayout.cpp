#include "tools/view/StageLayout.h"

#include <algorithm>

namespace vxgui::view {
namespace {

// Screen pixels: more beyond an edge than on the item, which is there to be pressed.
constexpr int32_t kReach = 9;
constexpr int32_t kInside = 2;

int32_t FloorDivided(int32_t value, int32_t divisor) {
    const int32_t quotient = value / divisor;
    return value % divisor < 0 ? quotient - 1 : quotient;
}

int32_t CeilDivided(int32_t value, int32_t divisor) { return (value + divisor - 1) / divisor; }

int32_t Centred(int32_t screen, int32_t item, int32_t factor) {
    return std::max((screen / factor - item) / 2, StageLayout::kRim);
}

bool IsNear(int32_t value, int32_t edge) {
    return value >= edge - kInside && value < edge + kReach;
}

bool IsBeside(int32_t value, int32_t start, int32_t end) {
    return value >= start - kInside && value < end + kReach;
}

int32_t SideOf(int32_t before, int32_t moved, int32_t factor) {
    return std::clamp(before + FloorDivided(moved + factor / 2, factor), StageLayout::kSmallestSide,
                      StageLayout::kLargestSide);
}

}  // namespace

void StageLayout::Arrange(gdi::SIZE screen, gdi::SIZE item, int32_t factor) {
    screen_ = screen;
    item_ = item;
    factor_ = factor;
    at_ = {Centred(screen.cx, item.cx, factor), Centred(screen.cy, item.cy, factor)};
}

gdi::SIZE StageLayout::GroundSize() const {
    return {CeilDivided(screen_.cx, factor_), CeilDivided(screen_.cy, factor_)};
}

gdi::SIZE StageLayout::Needed(gdi::SIZE item, int32_t factor) {
    return {(item.cx + 2 * kRim) * factor, (item.cy + 2 * kRim) * factor};
}

gdi::RECT StageLayout::ItemOnScreen() const {
    return {at_.x * factor_, at_.y * factor_, (at_.x + item_.cx) * factor_,
            (at_.y + item_.cy) * factor_};
}

gdi::POINT StageLayout::PixelAt(gdi::POINT screen) const {
    return {FloorDivided(screen.x, factor_) - at_.x, FloorDivided(screen.y, factor_) - at_.y};
}

bool StageLayout::IsOnItem(gdi::POINT screen) const {
    const gdi::POINT pixel = PixelAt(screen);
    return pixel.x >= 0 && pixel.y >= 0 && pixel.x < item_.cx && pixel.y < item_.cy;
}

Grip StageLayout::GripAt(gdi::POINT screen) const {
    const gdi::RECT box = ItemOnScreen();
    return {IsNear(screen.x, box.right) && IsBeside(screen.y, box.top, box.bottom),
            IsNear(screen.y, box.bottom) && IsBeside(screen.x, box.left, box.right)};
}

gdi::SIZE StageLayout::Dragged(gdi::SIZE before, Grip grip, gdi::POINT from, gdi::POINT to) const {
    gdi::SIZE size = before;
    if (grip.right) size.cx = SideOf(before.cx, to.x - from.x, factor_);
    if (grip.bottom) size.cy = SideOf(before.cy, to.y - from.y, factor_);
    return size;
}

}  // namespace vxgui::view
