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

/// Values that are none of their enumeration give `InvalidParameter`. Caps of dashes lie within the
/// dash, caps of the line beyond its end.
VXPLATFORM_API GpStatus GdipSetPenLineCap197819(GpPen* pen, LineCap startCap, LineCap endCap,
                                                DashCap dashCap);
VXPLATFORM_API GpStatus GdipSetPenStartCap(GpPen* pen, LineCap startCap);
VXPLATFORM_API GpStatus GdipGetPenStartCap(GpPen* pen, LineCap* startCap);
VXPLATFORM_API GpStatus GdipSetPenEndCap(GpPen* pen, LineCap endCap);
VXPLATFORM_API GpStatus GdipGetPenEndCap(GpPen* pen, LineCap* endCap);
VXPLATFORM_API GpStatus GdipSetPenDashCap197819(GpPen* pen, DashCap dashCap);
VXPLATFORM_API GpStatus GdipGetPenDashCap197819(GpPen* pen, DashCap* dashCap);
VXPLATFORM_API GpStatus GdipSetPenLineJoin(GpPen* pen, LineJoin lineJoin);
VXPLATFORM_API GpStatus GdipGetPenLineJoin(GpPen* pen, LineJoin* lineJoin);
/// The longest mitre as a multiple of the width; less than 1 counts as 1.
VXPLATFORM_API GpStatus GdipSetPenMiterLimit(GpPen* pen, REAL miterLimit);
VXPLATFORM_API GpStatus GdipGetPenMiterLimit(GpPen* pen, REAL* miterLimit);
/// Inset strokes lie within their closed figures, whole and without compound stripes.
VXPLATFORM_API GpStatus GdipSetPenMode(GpPen* pen, PenAlignment penMode);
VXPLATFORM_API GpStatus GdipGetPenMode(GpPen* pen, PenAlignment* penMode);

/// Dashes and gaps in turn, in widths of the pen, all above 0. An array makes the style custom; a
/// style sets the array, but for custom, which keeps what is there.
VXPLATFORM_API GpStatus GdipSetPenDashStyle(GpPen* pen, DashStyle dashStyle);
VXPLATFORM_API GpStatus GdipGetPenDashStyle(GpPen* pen, DashStyle* dashStyle);
VXPLATFORM_API GpStatus GdipSetPenDashOffset(GpPen* pen, REAL offset);
VXPLATFORM_API GpStatus GdipGetPenDashOffset(GpPen* pen, REAL* offset);
VXPLATFORM_API GpStatus GdipGetPenDashCount(GpPen* pen, INT* count);
VXPLATFORM_API GpStatus GdipSetPenDashArray(GpPen* pen, const REAL* dash, INT count);
VXPLATFORM_API GpStatus GdipGetPenDashArray(GpPen* pen, REAL* dash, INT count);

/// Where stripes begin and end, in shares of the width from its left: an even number of them,
/// ascending from 0 to 1.
VXPLATFORM_API GpStatus GdipGetPenCompoundCount(GpPen* pen, INT* count);
VXPLATFORM_API GpStatus GdipSetPenCompoundArray(GpPen* pen, const REAL* dash, INT count);
VXPLATFORM_API GpStatus GdipGetPenCompoundArray(GpPen* pen, REAL* dash, INT count);

/// Of the nib, whose place doesn't count. A null matrix is the identity.
VXPLATFORM_API GpStatus GdipSetPenTransform(GpPen* pen, GpMatrix* matrix);
VXPLATFORM_API GpStatus GdipGetPenTransform(GpPen* pen, GpMatrix* matrix);
VXPLATFORM_API GpStatus GdipResetPenTransform(GpPen* pen);
VXPLATFORM_API GpStatus GdipMultiplyPenTransform(GpPen* pen, const GpMatrix* matrix,
                                                 MatrixOrder order);
VXPLATFORM_API GpStatus GdipTranslatePenTransform(GpPen* pen, REAL dx, REAL dy, MatrixOrder order);
VXPLATFORM_API GpStatus GdipScalePenTransform(GpPen* pen, REAL sx, REAL sy, MatrixOrder order);
VXPLATFORM_API GpStatus GdipRotatePenTransform(GpPen* pen, REAL angle, MatrixOrder order);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_PEN(X)    \
    X(GdipClonePen)             \
    X(GdipCreatePen1)           \
    X(GdipCreatePen2)           \
    X(GdipDeletePen)            \
    X(GdipGetPenBrushFill)      \
    X(GdipGetPenColor)          \
    X(GdipGetPenCompoundArray)  \
    X(GdipGetPenCompoundCount)  \
    X(GdipGetPenDashArray)      \
    X(GdipGetPenDashCap197819)  \
    X(GdipGetPenDashCount)      \
    X(GdipGetPenDashOffset)     \
    X(GdipGetPenDashStyle)      \
    X(GdipGetPenEndCap)         \
    X(GdipGetPenFillType)       \
    X(GdipGetPenLineJoin)       \
    X(GdipGetPenMiterLimit)     \
    X(GdipGetPenMode)           \
    X(GdipGetPenStartCap)       \
    X(GdipGetPenTransform)      \
    X(GdipGetPenUnit)           \
    X(GdipGetPenWidth)          \
    X(GdipMultiplyPenTransform) \
    X(GdipResetPenTransform)    \
    X(GdipRotatePenTransform)   \
    X(GdipScalePenTransform)    \
    X(GdipSetPenBrushFill)      \
    X(GdipSetPenColor)          \
    X(GdipSetPenCompoundArray)  \
    X(GdipSetPenDashArray)      \
    X(GdipSetPenDashCap197819)  \
    X(GdipSetPenDashOffset)     \
    X(GdipSetPenDashStyle)      \
    X(GdipSetPenEndCap)         \
    X(GdipSetPenLineCap197819)  \
    X(GdipSetPenLineJoin)       \
    X(GdipSetPenMiterLimit)     \
    X(GdipSetPenMode)           \
    X(GdipSetPenStartCap)       \
    X(GdipSetPenTransform)      \
    X(GdipSetPenUnit)           \
    X(GdipSetPenWidth)          \
    X(GdipTranslatePenTransform)
