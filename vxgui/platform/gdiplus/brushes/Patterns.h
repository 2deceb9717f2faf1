#pragma once

#include "vxgui/platform/gdiplus/Brush.h"
#include "vxgui/platform/gdiplus/graphics/Surface.h"

namespace vxgui::gdiplus {

/// Paints nothing.
Pattern ClearPattern();
/// One straight colour everywhere.
Pattern SolidPattern(ARGB color);

/// A surface as a pattern; `worldToSurface` takes the world to its pixels. Null for no surface.
Pattern SurfacePattern(const Surface& surface, const Affine& worldToSurface, cairo_extend_t extend,
                       cairo_filter_t filter = CAIRO_FILTER_NEAREST);

/// A clear surface with memory of its own, or null.
Surface MakeSurface(INT width, INT height);

/// The rows of a surface of 32-bit pixels. Between the first use and `cairo_surface_mark_dirty`
/// they are the caller's to write.
inline uint32_t* RowOf(const Surface& surface, INT y) {
    return reinterpret_cast<uint32_t*>(cairo_image_surface_get_data(surface.get()) +
                                       ptrdiff_t{y} *
                                           cairo_image_surface_get_stride(surface.get()));
}

}  // namespace vxgui::gdiplus
