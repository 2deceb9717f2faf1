#pragma once

#include <cairo.h>

#include "vxgui/platform/gdiplus/Path.h"
#include "vxgui/platform/gdiplus/Pen.h"
#include "vxgui/platform/gdiplus/Vec.h"

namespace vxgui::gdiplus {

/// What units of length mean where a stroke is drawn.
struct StrokePlace {
    Affine worldToDevice;
    REAL dpi = 96;  ///< of the device: pens in units of length don't scale with the world
};

/// Appends a path to the current path of a context whose user space is the world.
void AppendPath(cairo_t* cairo, const PathPoints& path);

/// Strokes `path` with the pen's geometry (caps, anchors, joins, dashes, compound, inset, unit and
/// transform) with the source that is set. The context's user space is the world.
void StrokePath(cairo_t* cairo, const PenSettings& pen, const PathPoints& path,
                const StrokePlace& place);

/// What the stroke covers, as polygons in world coordinates that are filled by winding. Curves are
/// flattened within `flatness` pixels; a pen thinner than `thinnest` pixels is as wide as that.
Polygons StrokePolygons(const PenSettings& pen, const PathPoints& path, const StrokePlace& place,
                        REAL flatness, REAL thinnest = 1);

/// The box that `StrokePath` stays in, in world coordinates.
GpRectF StrokeBounds(const PenSettings& pen, const PathPoints& path, const StrokePlace& place);

}  // namespace vxgui::gdiplus
