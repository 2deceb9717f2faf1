#pragma once

#include <cstdint>
#include <span>

#include "vxgui/platform/gdi_types.h"

namespace vxgui::gdi {

/// The lengths in pixels of a pen style's dashes and gaps, in turn; empty for an unbroken line.
std::span<const int> DashesOf(UINT style);

/// Whether pixel number `step` of a line belongs to a dash.
bool InDash(std::span<const int> dashes, int64_t step);

}  // namespace vxgui::gdi
