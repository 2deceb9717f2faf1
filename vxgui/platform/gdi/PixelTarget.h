#pragma once

#include <array>
#include <cstddef>

#include "vxgui/platform/gdi_types.h"

namespace vxgui::gdi {

/// The colours of a bitmap of up to 8 bits, as 0x00RRGGBB.
struct ColorTable {
    int count = 0;
    std::array<uint32_t, 256> colors{};
};

/// A view of pixels in device coordinates: row 0 is the picture's top row, wherever it lies in
/// memory. A 32-bit pixel is a word 0xAARRGGBB; bits of a 1-bit row run from the highest down.
struct PixelTarget {
    uint8_t* top = nullptr;
    ptrdiff_t stride = 0;  ///< bytes from one row to the one below it; negative for bottom-up
    int32_t width = 0;
    int32_t height = 0;
    int depth = 0;  ///< 1, 8, 24 or 32
    /// Null above 8 bits and for a monochrome bitmap, whose colours are those of the contexts.
    const ColorTable* colors = nullptr;

    uint8_t* Row(int32_t y) const { return top + y * stride; }
    uint32_t* Row32(int32_t y) const { return reinterpret_cast<uint32_t*>(Row(y)); }
    RECT Bounds() const { return {0, 0, width, height}; }
};

/// The part that two rectangles share; empty (right not above left, or bottom not above top)
/// when there is none.
constexpr RECT Intersection(const RECT& a, const RECT& b) {
    return {a.left > b.left ? a.left : b.left, a.top > b.top ? a.top : b.top,
            a.right < b.right ? a.right : b.right, a.bottom < b.bottom ? a.bottom : b.bottom};
}
constexpr bool IsEmpty(const RECT& r) { return r.right <= r.left || r.bottom <= r.top; }

}  // namespace vxgui::gdi
