#pragma once

#include <cstddef>
#include <cstdint>

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// Rows of premultiplied pixels where they stand, blue lowest in the word.
struct WordRows {
    uint8_t* top = nullptr;  ///< null for none
    ptrdiff_t stride = 0;    ///< bytes from one row to the one below it; may be negative
    INT width = 0, height = 0;

    explicit operator bool() const { return top != nullptr; }
    /// Rows without gaps.
    static WordRows Packed(ARGB* top, INT width, INT height) {
        return {reinterpret_cast<uint8_t*>(top), ptrdiff_t{width} * 4, width, height};
    }
    ARGB* At(INT x, INT y) const { return reinterpret_cast<ARGB*>(top + y * stride) + x; }
    bool operator==(const WordRows&) const = default;
};

}  // namespace vxgui::gdiplus
