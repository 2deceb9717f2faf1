#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Pens: what a stroke is drawn with.
namespace vxgui::gdiplus {

extern "C" {

/// What these make is released with `GdipDeletePen`. A brush is copied. Widths in `UnitWorld` grow
/// with the world of a graphics; in another unit they are the same everywhere.
VXPLATFORM_API GpStatus GdipCreatePen1(ARGB color, REAL width, Unit unit, GpPen** pen);
VXPLATFORM_API GpStatus GdipCreatePen2(GpBrush* brush, REAL width, Unit unit, GpPen** pen);
VXPLATFORM_API GpStatus GdipClonePen(GpPen* pen, GpPen** clonepen);
VXPLATFORM_API GpStatus GdipDeletePen(GpPen* pen);

VXPLATFORM_API GpStatus GdipSetPenWidth(GpPen* pen, REAL width);
VXPLATFORM_API GpStatus GdipGetPenWidth(GpPen* pen, REAL* width);
VXPLATFORM_API GpStatus GdipSetPenUnit(GpPen* pen, Unit unit);
VXPLATFORM_API GpStatus GdipGetPenUnit(GpPen* pen, Unit* unit);

/// Setting makes the fill one colour; asking gives `WrongState` for another fill.
VXPLATFORM_API GpStatus GdipSetPenColor(GpPen* pen, ARGB argb);
VXPLATFORM_API GpStatus GdipGetPenColor(GpPen* pen, ARGB* argb);
/// Both copy the brush; what is answered is the caller's.
VXPLATFORM_API GpStatus GdipSetPenBrushFill(GpPen* pen, GpBrush* brush);
VXPLATFORM_API GpStatus GdipGetPenBrushFill(GpPen* pen, GpBrush** brush);
VXPLATFORM_API GpStatus GdipGetPenFillType(GpPen* pen, PenType* type);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_PEN(X) \
    X(GdipClonePen)          \
    X(GdipCreatePen1)        \
    X(GdipCreatePen2)        \
    X(GdipDeletePen)         \
    X(GdipGetPenBrushFill)   \
    X(GdipGetPenColor)       \
    X(GdipGetPenFillType)    \
    X(GdipGetPenUnit)        \
    X(GdipGetPenWidth)       \
    X(GdipSetPenBrushFill)   \
    X(GdipSetPenColor)       \
    X(GdipSetPenUnit)        \
    X(GdipSetPenWidth)
