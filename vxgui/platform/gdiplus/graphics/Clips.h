#pragma once

#include "vxgui/platform/gdiplus/Graphics.h"
#include "vxgui/platform/gdiplus/Path.h"

namespace vxgui::gdiplus {

/// The pixels that a shape in world coordinates covers, without soft edges.
Clip ClipOfRect(const Graphics& graphics, const GpRectF& rect);
Clip ClipOfPath(const Graphics& graphics, PathPoints path, FillMode mode);

/// The clip's box in world coordinates; one without bounds keeps its numbers.
GpRectF ClipBounds(const Graphics& graphics);
/// The same for what the clip leaves of the target.
GpRectF VisibleBounds(const Graphics& graphics);

/// The pixels whose samples lie between the edges of a box in device coordinates, the lower ones
/// included. Pixels are sampled `offset` before their middles.
GpRect SampledBy(const GpRectF& box, double offset);

/// The pixels that a rectangle in world coordinates covers when its sides stay level.
std::optional<GpRectF> LevelBox(const Graphics& graphics, const GpRectF& rect);

}  // namespace vxgui::gdiplus
