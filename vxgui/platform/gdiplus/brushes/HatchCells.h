#pragma once

#include <array>

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

constexpr int kHatchSize = 8;

/// How much of each pixel of a hatch's cell has the foreground's colour, 255 being all; row by
/// row from the upper left corner. `style` is one of the 53.
std::array<BYTE, kHatchSize * kHatchSize> HatchCell(HatchStyle style);

}  // namespace vxgui::gdiplus
