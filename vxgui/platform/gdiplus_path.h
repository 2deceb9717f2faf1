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

/// These go on with the open figure, by a line to their first point unless it ends there, or begin
/// one. Beziers are a start and then three points a curve.
VXPLATFORM_API GpStatus GdipAddPathLine(GpPath* path, REAL x1, REAL y1, REAL x2, REAL y2);
VXPLATFORM_API GpStatus GdipAddPathLineI(GpPath* path, INT x1, INT y1, INT x2, INT y2);
VXPLATFORM_API GpStatus GdipAddPathLine2(GpPath* path, const GpPointF* points, INT count);
VXPLATFORM_API GpStatus GdipAddPathLine2I(GpPath* path, const GpPoint* points, INT count);
VXPLATFORM_API GpStatus GdipAddPathBezier(GpPath* path, REAL x1, REAL y1, REAL x2, REAL y2, REAL x3,
                                          REAL y3, REAL x4, REAL y4);
VXPLATFORM_API GpStatus GdipAddPathBezierI(GpPath* path, INT x1, INT y1, INT x2, INT y2, INT x3,
                                           INT y3, INT x4, INT y4);
VXPLATFORM_API GpStatus GdipAddPathBeziers(GpPath* path, const GpPointF* points, INT count);
VXPLATFORM_API GpStatus GdipAddPathBeziersI(GpPath* path, const GpPoint* points, INT count);
/// Angles are in degrees, clockwise from the x axis, and those of rays from the middle. A piece of
/// the arc spans a quarter of the ellipse at most.
VXPLATFORM_API GpStatus GdipAddPathArc(GpPath* path, REAL x, REAL y, REAL width, REAL height,
                                       REAL startAngle, REAL sweepAngle);
VXPLATFORM_API GpStatus GdipAddPathArcI(GpPath* path, INT x, INT y, INT width, INT height,
                                        REAL startAngle, REAL sweepAngle);
/// Cardinal splines, whose handles are `tension` / 3 (0.5 / 3 when it isn't given) of the line
/// between the neighbours long. The third form draws `numberOfSegments` from the point `offset` on.
VXPLATFORM_API GpStatus GdipAddPathCurve(GpPath* path, const GpPointF* points, INT count);
VXPLATFORM_API GpStatus GdipAddPathCurveI(GpPath* path, const GpPoint* points, INT count);
VXPLATFORM_API GpStatus GdipAddPathCurve2(GpPath* path, const GpPointF* points, INT count,
                                          REAL tension);
VXPLATFORM_API GpStatus GdipAddPathCurve2I(GpPath* path, const GpPoint* points, INT count,
                                           REAL tension);
VXPLATFORM_API GpStatus GdipAddPathCurve3(GpPath* path, const GpPointF* points, INT count,
                                          INT offset, INT numberOfSegments, REAL tension);
VXPLATFORM_API GpStatus GdipAddPathCurve3I(GpPath* path, const GpPoint* points, INT count,
                                           INT offset, INT numberOfSegments, REAL tension);

/// Closed figures. A rectangle without area adds nothing.
VXPLATFORM_API GpStatus GdipAddPathClosedCurve(GpPath* path, const GpPointF* points, INT count);
VXPLATFORM_API GpStatus GdipAddPathClosedCurveI(GpPath* path, const GpPoint* points, INT count);
VXPLATFORM_API GpStatus GdipAddPathClosedCurve2(GpPath* path, const GpPointF* points, INT count,
                                                REAL tension);
VXPLATFORM_API GpStatus GdipAddPathClosedCurve2I(GpPath* path, const GpPoint* points, INT count,
                                                 REAL tension);
VXPLATFORM_API GpStatus GdipAddPathRectangle(GpPath* path, REAL x, REAL y, REAL width, REAL height);
VXPLATFORM_API GpStatus GdipAddPathRectangleI(GpPath* path, INT x, INT y, INT width, INT height);
VXPLATFORM_API GpStatus GdipAddPathRectangles(GpPath* path, const GpRectF* rects, INT count);
VXPLATFORM_API GpStatus GdipAddPathRectanglesI(GpPath* path, const GpRect* rects, INT count);
VXPLATFORM_API GpStatus GdipAddPathEllipse(GpPath* path, REAL x, REAL y, REAL width, REAL height);
VXPLATFORM_API GpStatus GdipAddPathEllipseI(GpPath* path, INT x, INT y, INT width, INT height);
VXPLATFORM_API GpStatus GdipAddPathPie(GpPath* path, REAL x, REAL y, REAL width, REAL height,
                                       REAL startAngle, REAL sweepAngle);
VXPLATFORM_API GpStatus GdipAddPathPieI(GpPath* path, INT x, INT y, INT width, INT height,
                                        REAL startAngle, REAL sweepAngle);
VXPLATFORM_API GpStatus GdipAddPathPolygon(GpPath* path, const GpPointF* points, INT count);
VXPLATFORM_API GpStatus GdipAddPathPolygonI(GpPath* path, const GpPoint* points, INT count);

/// Adds all figures of another path; with `connect`, the first of them goes on from the open
/// figure, unless it is closed.
VXPLATFORM_API GpStatus GdipAddPathPath(GpPath* path, const GpPath* addingPath, BOOL connect);

VXPLATFORM_API GpStatus GdipStartPathFigure(GpPath* path);
VXPLATFORM_API GpStatus GdipClosePathFigure(GpPath* path);
VXPLATFORM_API GpStatus GdipClosePathFigures(GpPath* path);
VXPLATFORM_API GpStatus GdipSetPathMarker(GpPath* path);
VXPLATFORM_API GpStatus GdipClearPathMarkers(GpPath* path);
/// The same lines from their end to their start.
VXPLATFORM_API GpStatus GdipReversePath(GpPath* path);
/// `InvalidParameter` for an empty path.
VXPLATFORM_API GpStatus GdipGetPathLastPoint(GpPath* path, GpPointF* lastPoint);

/// The matrix, which may be null, comes first; then curves become lines that stay within
/// `flatness`.
VXPLATFORM_API GpStatus GdipTransformPath(GpPath* path, GpMatrix* matrix);
VXPLATFORM_API GpStatus GdipFlattenPath(GpPath* path, GpMatrix* matrix, REAL flatness);
/// What the path fills, by outlines that don't cross; its fill mode becomes winding.
VXPLATFORM_API GpStatus GdipWindingModeOutline(GpPath* path, GpMatrix* matrix, REAL flatness);
/// What the pen strokes, by outlines that don't cross. A path of less than two points gives
/// `OutOfMemory`.
VXPLATFORM_API GpStatus GdipWidenPath(GpPath* path, GpPen* pen, GpMatrix* matrix, REAL flatness);
/// Takes the source rectangle to three corners of a parallelogram or four of a quadrilateral: upper
/// left, upper right, lower left, lower right. Here the matrix comes after the warp.
VXPLATFORM_API GpStatus GdipWarpPath(GpPath* path, GpMatrix* matrix, const GpPointF* points,
                                     INT count, REAL srcx, REAL srcy, REAL srcwidth, REAL srcheight,
                                     WarpMode warpMode, REAL flatness);

/// The box of all points, those that steer curves included; with a pen, as much larger as its width
/// times its miter limit.
VXPLATFORM_API GpStatus GdipGetPathWorldBounds(GpPath* path, GpRectF* bounds,
                                               const GpMatrix* matrix, const GpPen* pen);
VXPLATFORM_API GpStatus GdipGetPathWorldBoundsI(GpPath* path, GpRect* bounds,
                                                const GpMatrix* matrix, const GpPen* pen);
/// Whether the fill or the stroke covers a point of the world; left and upper edges belong to it.
/// With a graphics, at its resolution.
VXPLATFORM_API GpStatus GdipIsVisiblePathPoint(GpPath* path, REAL x, REAL y, GpGraphics* graphics,
                                               BOOL* result);
VXPLATFORM_API GpStatus GdipIsVisiblePathPointI(GpPath* path, INT x, INT y, GpGraphics* graphics,
                                                BOOL* result);
VXPLATFORM_API GpStatus GdipIsOutlineVisiblePathPoint(GpPath* path, REAL x, REAL y, GpPen* pen,
                                                      GpGraphics* graphics, BOOL* result);
VXPLATFORM_API GpStatus GdipIsOutlineVisiblePathPointI(GpPath* path, INT x, INT y, GpPen* pen,
                                                       GpGraphics* graphics, BOOL* result);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_PATH(X)         \
    X(GdipAddPathArc)                 \
    X(GdipAddPathArcI)                \
    X(GdipAddPathBezier)              \
    X(GdipAddPathBezierI)             \
    X(GdipAddPathBeziers)             \
    X(GdipAddPathBeziersI)            \
    X(GdipAddPathClosedCurve)         \
    X(GdipAddPathClosedCurve2)        \
    X(GdipAddPathClosedCurve2I)       \
    X(GdipAddPathClosedCurveI)        \
    X(GdipAddPathCurve)               \
    X(GdipAddPathCurve2)              \
    X(GdipAddPathCurve2I)             \
    X(GdipAddPathCurve3)              \
    X(GdipAddPathCurve3I)             \
    X(GdipAddPathCurveI)              \
    X(GdipAddPathEllipse)             \
    X(GdipAddPathEllipseI)            \
    X(GdipAddPathLine)                \
    X(GdipAddPathLine2)               \
    X(GdipAddPathLine2I)              \
    X(GdipAddPathLineI)               \
    X(GdipAddPathPath)                \
    X(GdipAddPathPie)                 \
    X(GdipAddPathPieI)                \
    X(GdipAddPathPolygon)             \
    X(GdipAddPathPolygonI)            \
    X(GdipAddPathRectangle)           \
    X(GdipAddPathRectangleI)          \
    X(GdipAddPathRectangles)          \
    X(GdipAddPathRectanglesI)         \
    X(GdipClearPathMarkers)           \
    X(GdipClonePath)                  \
    X(GdipClosePathFigure)            \
    X(GdipClosePathFigures)           \
    X(GdipCreatePath)                 \
    X(GdipCreatePath2)                \
    X(GdipCreatePath2I)               \
    X(GdipDeletePath)                 \
    X(GdipFlattenPath)                \
    X(GdipGetPathData)                \
    X(GdipGetPathFillMode)            \
    X(GdipGetPathLastPoint)           \
    X(GdipGetPathPoints)              \
    X(GdipGetPathPointsI)             \
    X(GdipGetPathTypes)               \
    X(GdipGetPathWorldBounds)         \
    X(GdipGetPathWorldBoundsI)        \
    X(GdipGetPointCount)              \
    X(GdipIsOutlineVisiblePathPoint)  \
    X(GdipIsOutlineVisiblePathPointI) \
    X(GdipIsVisiblePathPoint)         \
    X(GdipIsVisiblePathPointI)        \
    X(GdipResetPath)                  \
    X(GdipReversePath)                \
    X(GdipSetPathFillMode)            \
    X(GdipSetPathMarker)              \
    X(GdipStartPathFigure)            \
    X(GdipTransformPath)              \
    X(GdipWarpPath)                   \
    X(GdipWidenPath)                  \
    X(GdipWindingModeOutline)
