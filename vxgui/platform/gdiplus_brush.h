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

/// A pattern of 8 by 8 pixels of the device, which begins at the rendering origin.
VXPLATFORM_API GpStatus GdipCreateHatchBrush(HatchStyle hatchstyle, ARGB forecol, ARGB backcol,
                                             GpBrush** brush);
VXPLATFORM_API GpStatus GdipGetHatchStyle(GpBrush* brush, HatchStyle* hatchstyle);
VXPLATFORM_API GpStatus GdipGetHatchForegroundColor(GpBrush* brush, ARGB* forecol);
VXPLATFORM_API GpStatus GdipGetHatchBackgroundColor(GpBrush* brush, ARGB* backcol);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_BRUSH(X)     \
    X(GdipCloneBrush)              \
    X(GdipCreateHatchBrush)        \
    X(GdipCreateSolidFill)         \
    X(GdipDeleteBrush)             \
    X(GdipGetBrushType)            \
    X(GdipGetHatchBackgroundColor) \
    X(GdipGetHatchForegroundColor) \
    X(GdipGetHatchStyle)           \
    X(GdipGetSolidFillColor)       \
    X(GdipSetSolidFillColor)
