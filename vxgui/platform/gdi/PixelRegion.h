#pragma once

#include <pixman.h>

#include <span>

#include "vxgui/platform/gdi_types.h"

namespace vxgui::gdi {

/// A set of pixels, kept by pixman as rectangles in bands from the top, equal neighbours merged,
/// so that equal sets have equal rectangles. A value: copied and moved freely. Holds any 32-bit
/// coordinates; running out of memory throws std::bad_alloc, and so does what would have more
/// rectangles than the apartment's limit.
class PixelRegion {
public:
    PixelRegion() { pixman_region32_init(&region_); }
    /// The rectangle, its corners put in order.
    explicit PixelRegion(const RECT& rect);
    /// The union of `boxes`, which may overlap; those without an inside count for nothing.
    static PixelRegion FromBoxes(std::span<const pixman_box32_t> boxes);
    PixelRegion(const PixelRegion& other);
    PixelRegion(PixelRegion&& other) noexcept;
    PixelRegion& operator=(PixelRegion other) noexcept;
    ~PixelRegion() { pixman_region32_fini(&region_); }

    bool Empty() const { return Boxes().empty(); }
    /// NULLREGION, SIMPLEREGION (one rectangle) or COMPLEXREGION.
    int Kind() const;
    /// The smallest rectangle around it; all 0 when the region is empty.
    RECT Bounds() const;
    bool Contains(int32_t x, int32_t y) const;
    /// Whether a pixel of `rect`, its corners put in order, belongs to the region.
    bool Overlaps(const RECT& rect) const;

    /// Becomes `a` combined with `b` by an RGN_ mode; RGN_COPY ignores `b`. Either may be this
    /// region. False, and nothing changed, for an unknown mode.
    bool Combine(const PixelRegion& a, const PixelRegion& b, int mode);
    /// False, and nothing changed, when the result would leave the 32-bit coordinates.
    bool Offset(int32_t dx, int32_t dy);
    /// A moved copy without what would leave the 32-bit coordinates.
    PixelRegion Shifted(int32_t dx, int32_t dy) const;

    /// The rectangles, in bands from the top, each from the left.
    std::span<const pixman_box32_t> Boxes() const;
    /// Those of them that have a part in the rows [top, bottom).
    std::span<const pixman_box32_t> BoxesInRows(int32_t top, int32_t bottom) const;

    friend bool operator==(const PixelRegion& a, const PixelRegion& b);

private:
    static PixelRegion Combined(const PixelRegion& a, const PixelRegion& b, int mode);

    pixman_region32_t region_;
};

/// The rectangle with left not above right and top not above bottom.
constexpr RECT InOrder(const RECT& r) {
    return {r.left < r.right ? r.left : r.right, r.top < r.bottom ? r.top : r.bottom,
            r.left < r.right ? r.right : r.left, r.top < r.bottom ? r.bottom : r.top};
}
constexpr RECT RectOf(const pixman_box32_t& box) { return {box.x1, box.y1, box.x2, box.y2}; }

}  // namespace vxgui::gdi
