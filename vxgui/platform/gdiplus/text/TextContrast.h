#pragma once

#include <array>

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

constexpr UINT kNeutralContrast = 4, kMostContrast = 12;

/// What a text contrast makes of each coverage.
using ContrastTable = std::array<uint8_t, 256>;

/// The more contrast, the heavier is what is partly covered. The neutral one changes nothing.
const ContrastTable& TableOfContrast(UINT contrast);

}  // namespace vxgui::gdiplus
