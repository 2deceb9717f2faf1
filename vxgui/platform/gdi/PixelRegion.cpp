#include "vxgui/platform/gdi/PixelRegion.h"

#include <algorithm>
#include <limits>
#include <new>
#include <utility>

#include "vxgui/platform/gdi/RegionCost.h"

namespace vxgui::gdi {
namespace {

constexpr int64_t kLowest = std::numeric_limits<int32_t>::min();
constexpr int64_t kHighest = std::numeric_limits<int32_t>::max();

// pixman answers false when memory runs out, and for nothing else that is asked here.
void Expect(pixman_bool_t done) {
    if (!done) throw std::bad_alloc();
}

bool Holds(int64_t low, int64_t high, int64_t shift) {
    return low + shift >= kLowest && high + shift <= kHighest;
}

// The coordinates that stay in range when `shift` is added.
int32_t LowestBefore(int64_t shift) {
    return static_cast<int32_t>(kLowest - std::min<int64_t>(shift, 0));
}
int32_t HighestBefore(int64_t shift) {
    return static_cast<int32_t>(kHighest - std::max<int64_t>(shift, 0));
}

}  // namespace

PixelRegion::PixelRegion(const RECT& rect) {
    const RECT r = InOrder(rect);
    const pixman_box32_t box{r.left, r.top, r.right, r.bottom};
    const bool inside = r.left < r.right && r.top < r.bottom;
    if (inside) {
        pixman_region32_init_with_extents(&region_, &box);
    } else {
        pixman_region32_init(&region_);
    }
}

PixelRegion PixelRegion::FromBoxes(std::span<const pixman_box32_t> boxes) {
    PixelRegion region;
    Expect(
        pixman_region32_init_rects(&region.region_, boxes.data(), static_cast<int>(boxes.size())));
    return region;
}

PixelRegion::PixelRegion(const PixelRegion& other) : PixelRegion() {
    Expect(pixman_region32_copy(&region_, &other.region_));
}

PixelRegion::PixelRegion(PixelRegion&& other) noexcept : PixelRegion() {
    std::swap(region_, other.region_);
}

PixelRegion& PixelRegion::operator=(PixelRegion other) noexcept {
    std::swap(region_, other.region_);
    return *this;
}

int PixelRegion::Kind() const {
    const size_t count = Boxes().size();
    return count == 0 ? NULLREGION : count == 1 ? SIMPLEREGION : COMPLEXREGION;
}

RECT PixelRegion::Bounds() const {
    return Empty() ? RECT{} : RectOf(*pixman_region32_extents(&region_));
}

bool PixelRegion::Contains(int32_t x, int32_t y) const {
    return pixman_region32_contains_point(&region_, x, y, nullptr) != 0;
}

bool PixelRegion::Overlaps(const RECT& rect) const {
    const RECT r = InOrder(rect);
    if (r.left == r.right || r.top == r.bottom) return false;
    const pixman_box32_t box{r.left, r.top, r.right, r.bottom};
    return pixman_region32_contains_rectangle(&region_, &box) != PIXMAN_REGION_OUT;
}

bool PixelRegion::Combine(const PixelRegion& a, const PixelRegion& b, int mode) {
    if (mode < RGN_AND || mode > RGN_COPY) return false;
    if (mode != RGN_COPY) Expect(MayBeCombined(a.Boxes(), b.Boxes()));
    // What pixman can't finish it leaves broken, so this region gets the result when it is there.
    *this = Combined(a, b, mode);
    return true;
}

PixelRegion PixelRegion::Combined(const PixelRegion& a, const PixelRegion& b, int mode) {
    PixelRegion result;
    switch (mode) {
        case RGN_AND:
            Expect(pixman_region32_intersect(&result.region_, &a.region_, &b.region_));
            return result;
        case RGN_OR:
            Expect(pixman_region32_union(&result.region_, &a.region_, &b.region_));
            return result;
        case RGN_XOR:
            return Combined(Combined(a, b, RGN_DIFF), Combined(b, a, RGN_DIFF), RGN_OR);
        case RGN_DIFF:
            Expect(pixman_region32_subtract(&result.region_, &a.region_, &b.region_));
            return result;
        default:
            return a;
    }
}

bool PixelRegion::Offset(int32_t dx, int32_t dy) {
    const RECT box = Bounds();
    if (Empty()) return true;
    if (!Holds(box.left, box.right, dx) || !Holds(box.top, box.bottom, dy)) return false;
    pixman_region32_translate(&region_, dx, dy);
    return true;
}

PixelRegion PixelRegion::Shifted(int32_t dx, int32_t dy) const {
    const PixelRegion room(
        RECT{LowestBefore(dx), LowestBefore(dy), HighestBefore(dx), HighestBefore(dy)});
    PixelRegion moved;
    moved.Combine(*this, room, RGN_AND);
    moved.Offset(dx, dy);
    return moved;
}

std::span<const pixman_box32_t> PixelRegion::Boxes() const {
    int count = 0;
    const pixman_box32_t* boxes = pixman_region32_rectangles(&region_, &count);
    return {boxes, static_cast<size_t>(count)};
}

std::span<const pixman_box32_t> PixelRegion::BoxesInRows(int32_t top, int32_t bottom) const {
    const auto boxes = Boxes();
    const auto first = std::ranges::partition_point(
        boxes, [top](const pixman_box32_t& box) { return box.y2 <= top; });
    const auto end = std::ranges::partition_point(
        boxes, [bottom](const pixman_box32_t& box) { return box.y1 < bottom; });
    return first < end ? std::span(first, end) : std::span<const pixman_box32_t>();
}

bool operator==(const PixelRegion& a, const PixelRegion& b) {
    // pixman remembers where an empty region once was, and would tell two of them apart.
    if (a.Empty() || b.Empty()) return a.Empty() && b.Empty();
    return pixman_region32_equal(&a.region_, &b.region_) != 0;
}

}  // namespace vxgui::gdi
