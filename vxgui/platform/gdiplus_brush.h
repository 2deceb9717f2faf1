#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Brushes of any kind, of one colour and of hatches.
namespace vxgui::gdiplus {

extern "C" {

/// Makes an independent copy.
VXPLATFORM_API GpStatus GdipCloneBrush(GpBrush* brush, GpBrush** cloneBrush);
VXPLATFORM_API GpStatus GdipDeleteBrush(GpBrush* brush);
VXPLATFORM_API GpStatus GdipGetBrushType(GpBrush* brush, BrushType* type);

VXPLATFORM_API GpStatus GdipCreateSolidFill(ARGB color, GpBrush** brush);
VXPLATFORM_API GpStatus GdipSetSolidFillColor(GpBrush* brush, ARGB color);
VXPLATFORM_API GpStatus GdipGetSolidFillColor(GpBrush* brush, ARGB* color);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_BRUSH(X) \
    X(GdipCloneBrush)          \
    X(GdipCreateSolidFill)     \
    X(GdipDeleteBrush)         \
    X(GdipGetBrushType)        \
    X(GdipGetSolidFillColor)   \
    X(GdipSetSolidFillColor)
