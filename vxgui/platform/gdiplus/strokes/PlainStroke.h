#pragma once

#include "vxgui/platform/gdiplus/strokes/Nib.h"

namespace vxgui::gdiplus {

/// Strokes with cairo's own pen what that draws as the interface asks; false for the rest.
bool StrokePlainly(cairo_t* cairo, const PenSettings& pen, const PathPoints& path, const Nib& nib);

}  // namespace vxgui::gdiplus
