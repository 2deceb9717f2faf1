#pragma once

#include "vxgui/platform/gdi/BlitGeometry.h"
#include "vxgui/platform/gdi/DeviceContext.h"

namespace vxgui::gdi {

/// Copies the words of one 32-bit bitmap into another, or within one, as a blit whose geometry is
/// cut to both and isn't empty. False when memory runs out.
bool CopyWords(const DeviceContext& dc, const PixelTarget& source, const BlitGeometry& geometry);

}  // namespace vxgui::gdi
