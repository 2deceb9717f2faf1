#pragma once

#include "vxgui/platform/gdi/PixelRegion.h"
#include "vxgui/platform/gdiplus/Path.h"

namespace vxgui::gdiplus {

/// The pixels within `within` whose middles lie inside a path in device coordinates.
gdi::PixelRegion PixelsOfPath(const PathPoints& path, FillMode mode, const GpRect& within);

}  // namespace vxgui::gdiplus
