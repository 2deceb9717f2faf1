#pragma once

#include "vxgui/platform/gdi/BlitAxis.h"
#include "vxgui/platform/gdi/DeviceContext.h"

namespace vxgui::gdi {

/// Which pixels a blit writes, and which source pixel each of them shows.
struct BlitGeometry {
    BlitAxis across;
    BlitAxis down;

    bool Empty() const { return across.Empty() || down.Empty(); }
    bool Plain() const { return across.Plain() && down.Plain(); }
    /// What is written. Not before `CutToTarget`.
    RECT Area() const { return {across.Low(), down.Low(), across.High(), down.High()}; }
    /// Cuts what is written to the context's pixels and the box around its clip.
    void CutToTarget(const DeviceContext& dc);
    /// Cuts what is written to what shows a pixel of `source`.
    void CutToSource(const PixelTarget& source);
    /// The source pixels shown. Not for an empty geometry, nor before `CutToSource`.
    RECT SourceArea() const;
};

/// The rectangle from (x, y): a negative extent runs leftwards or upwards, the start included.
/// Cut to 32 bits, which no target passes.
RECT RectFromExtents(int x, int y, int width, int height);

}  // namespace vxgui::gdi
