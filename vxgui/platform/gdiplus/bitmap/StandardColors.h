#pragma once

#include <array>
#include <vector>

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// The 16 colours of the system palette, in its order.
constexpr std::array<ARGB, 16> kSystemColors = {
    0xFF000000, 0xFF800000, 0xFF008000, 0xFF808000, 0xFF000080, 0xFF800080, 0xFF008080, 0xFF808080,
    0xFFC0C0C0, 0xFFFF0000, 0xFF00FF00, 0xFFFFFF00, 0xFF0000FF, 0xFFFF00FF, 0xFF00FFFF, 0xFFFFFFFF,
};

/// All mixtures of so many intensities of each channel, evenly spaced and cut to whole numbers;
/// blue changes fastest.
std::vector<ARGB> ColorCube(ARGB reds, ARGB greens, ARGB blues);

}  // namespace vxgui::gdiplus
