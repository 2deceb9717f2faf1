#pragma once

#include "vxgui/platform/gdi/Region.h"

namespace vxgui::gdi {

/// A handle of its own for `region`; null when the table is full.
HRGN EnterRegion(PixelRegion region);

/// The region that a handle names; null for a stale or wrong one.
GdiRef<Region> FindRegion(HRGN region);

/// What `FrameRgn` paints: the region less its intersection with itself shifted by `width` left
/// and right and by `height` up and down.
PixelRegion FrameOf(const PixelRegion& region, int width, int height);

}  // namespace vxgui::gdi
