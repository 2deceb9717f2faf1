#pragma once

#include <pixman.h>

#include <span>

#include "vxgui/platform/gdi_types.h"

namespace vxgui::gdi {

/// A set of pixels, kept y-x banded by pixman. A value: copied and moved freely.
class PixelRegion {
public:
    PixelRegion() { pixman_region32_init(&region_); }
    explicit PixelRegion(const RECT& r) {
        if (r.right > r.left && r.bottom > r.top) {
            pixman_region32_init_rect(
                &region_, r.left, r.top,
                static_cast<unsigned>(r.right) - static_cast<unsigned>(r.left),
                static_cast<unsigned>(r.bottom) - static_cast<unsigned>(r.top));
        } else {
            pixman_region32_init(&region_);
        }
    }
    PixelRegion(const PixelRegion& other) : PixelRegion() {
        pixman_region32_copy(&region_, &other.region_);
    }
    PixelRegion& operator=(const PixelRegion& other) {
        if (this != &other) pixman_region32_copy(&region_, &other.region_);
        return *this;
    }
    ~PixelRegion() { pixman_region32_fini(&region_); }

    pixman_region32_t* get() { return &region_; }
    /// pixman's readers take a pointer that isn't const.
    pixman_region32_t* get() const { return &region_; }

    /// The rectangles, in bands from the top, each from the left.
    std::span<const pixman_box32_t> Boxes() const {
        int count = 0;
        const pixman_box32_t* boxes = pixman_region32_rectangles(&region_, &count);
        return {boxes, static_cast<size_t>(count)};
    }

private:
    mutable pixman_region32_t region_;
};

}  // namespace vxgui::gdi
