#pragma once

#include "vxgui/platform/gdi/DeviceContext.h"

namespace vxgui::gdi {

// Every fill keeps to the target and the clip, and leaves alpha 0 in 32-bit pixels.
void FillArea(const DeviceContext& dc, const RECT& area, const Brush& brush);
void FillArea(const DeviceContext& dc, const PixelRegion& region, const Brush& brush);

/// Inverts all bits of the pixels, alpha included.
void InvertArea(const DeviceContext& dc, const RECT& area);
void InvertArea(const DeviceContext& dc, const PixelRegion& region);

/// A brush for the length of a call, without a handle.
inline Brush PlainBrush(COLORREF color) { return Brush(LOGBRUSH{BS_SOLID, color, 0}); }

}  // namespace vxgui::gdi
