#pragma once

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// The brightness of a colour by the weights of ITU-R BT.601, rounded.
constexpr ARGB Luminance(ARGB color) {
    return ((color >> 16 & 255) * 299 + (color >> 8 & 255) * 587 + (color & 255) * 114 + 500) /
           1000;
}

}  // namespace vxgui::gdiplus
