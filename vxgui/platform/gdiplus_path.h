#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Paths: figures of lines and Bezier curves.
namespace vxgui::gdiplus {

extern "C" {

/// What these make is released with `GdipDeletePath`. Points with types that make no path give
/// `InvalidParameter`: Bezier points come in threes, and a figure begins with a start.
VXPLATFORM_API GpStatus GdipCreatePath(FillMode brushMode, GpPath** path);
VXPLATFORM_API GpStatus GdipCreatePath2(const GpPointF* points, const BYTE* types, INT count,
                                        FillMode fillMode, GpPath** path);
VXPLATFORM_API GpStatus GdipCreatePath2I(const GpPoint* points, const BYTE* types, INT count,
                                         FillMode fillMode, GpPath** path);
VXPLATFORM_API GpStatus GdipClonePath(GpPath* path, GpPath** clonePath);
VXPLATFORM_API GpStatus GdipDeletePath(GpPath* path);
/// Empty, with the fill mode alternate.
VXPLATFORM_API GpStatus GdipResetPath(GpPath* path);

VXPLATFORM_API GpStatus GdipGetPathFillMode(GpPath* path, FillMode* fillmode);
VXPLATFORM_API GpStatus GdipSetPathFillMode(GpPath* path, FillMode fillmode);
VXPLATFORM_API GpStatus GdipGetPointCount(GpPath* path, INT* count);
/// A `count` below the path's gives `InsufficientBuffer`.
VXPLATFORM_API GpStatus GdipGetPathTypes(GpPath* path, BYTE* types, INT count);
VXPLATFORM_API GpStatus GdipGetPathPoints(GpPath* path, GpPointF* points, INT count);
VXPLATFORM_API GpStatus GdipGetPathPointsI(GpPath* path, GpPoint* points, INT count);
/// Fills the caller's arrays, for which `Count` says how long they are, and sets `Count`.
VXPLATFORM_API GpStatus GdipGetPathData(GpPath* path, GpPathData* pathData);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_PATH(X) \
    X(GdipClonePath)          \
    X(GdipCreatePath)         \
    X(GdipCreatePath2)        \
    X(GdipCreatePath2I)       \
    X(GdipDeletePath)         \
    X(GdipGetPathData)        \
    X(GdipGetPathFillMode)    \
    X(GdipGetPathPoints)      \
    X(GdipGetPathPointsI)     \
    X(GdipGetPathTypes)       \
    X(GdipGetPointCount)      \
    X(GdipResetPath)          \
    X(GdipSetPathFillMode)
