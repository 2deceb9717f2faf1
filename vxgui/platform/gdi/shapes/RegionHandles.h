#pragma once

#include "vxgui/platform/gdi/Region.h"

namespace vxgui::gdi {

/// A handle of its own for `region`; null when the table is full.
HRGN EnterRegion(PixelRegion region);

/// The region that a handle names; null for a stale or wrong one.
GdiRef<Region> FindRegion(HRGN region);

}  // namespace vxgui::gdi
