#pragma once

#include <cstdint>

namespace vxgui {

/// Widths along the four sides of a rectangle, in pixels.
struct Margin {
    int32_t left = 0;
    int32_t top = 0;
    int32_t right = 0;
    int32_t bottom = 0;

    friend bool operator==(const Margin&, const Margin&) = default;
};

}  // namespace vxgui
