#pragma once

#include "vxgui/platform/gdi/BlitGeometry.h"
#include "vxgui/platform/gdi/PixelConverter.h"
#include "vxgui/platform/gdi/Rop3.h"

namespace vxgui::gdi {

/// The pixels that a blit reads, and the colours for those of a monochrome bitmap.
struct BlitSource {
    PixelTarget pixels;
    MonoColors mono;
};

/// Combines the source with the context's pixels, where they show a source pixel. A source on
/// the same memory counts as copied first. False when memory runs out.
bool RopBlit(const DeviceContext& dc, const BlitSource& source, BlitGeometry geometry,
             const Rop3& rop, const Brush& brush);

/// Combines the brush with the context's pixels in `area`, by an operation without a source.
/// An operation that uses a null brush draws nothing.
void RopFill(const DeviceContext& dc, const RECT& area, const Rop3& rop, const Brush& brush);

}  // namespace vxgui::gdi
