#pragma once

#include <array>

#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdi_types.h"

namespace vxgui {

/// Where the eight copies around a text stand, in the order in which they are painted.
inline std::array<gdi::POINT, 8> RingPlaces(int32_t x, int32_t y) {
    const int32_t left = WrapSub(0, x), up = WrapSub(0, y);
    return {{{left, up}, {0, up}, {x, up}, {x, 0}, {left, 0}, {left, y}, {0, y}, {x, y}}};
}

/// Where two copies on a diagonal stand.
inline std::array<gdi::POINT, 2> DiagonalPlaces(int32_t x, int32_t y) {
    return {{{WrapSub(0, x), WrapSub(0, y)}, {x, y}}};
}

}  // namespace vxgui
