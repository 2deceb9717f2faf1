#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// What is drawn on a graphics. Coordinates are those of its world.
namespace vxgui::gdiplus {

extern "C" {

/// Sets every pixel of the clip to a straight colour.
VXPLATFORM_API GpStatus GdipGraphicsClear(GpGraphics* graphics, ARGB color);

/// Two points or more.
VXPLATFORM_API GpStatus GdipDrawLine(GpGraphics* graphics, GpPen* pen, REAL x1, REAL y1, REAL x2,
                                     REAL y2);
VXPLATFORM_API GpStatus GdipDrawLineI(GpGraphics* graphics, GpPen* pen, INT x1, INT y1, INT x2,
                                      INT y2);
VXPLATFORM_API GpStatus GdipDrawLines(GpGraphics* graphics, GpPen* pen, const GpPointF* points,
                                      INT count);
VXPLATFORM_API GpStatus GdipDrawLinesI(GpGraphics* graphics, GpPen* pen, const GpPoint* points,
                                       INT count);
VXPLATFORM_API GpStatus GdipDrawRectangle(GpGraphics* graphics, GpPen* pen, REAL x, REAL y,
                                          REAL width, REAL height);
VXPLATFORM_API GpStatus GdipDrawRectangleI(GpGraphics* graphics, GpPen* pen, INT x, INT y,
                                           INT width, INT height);
VXPLATFORM_API GpStatus GdipDrawRectangles(GpGraphics* graphics, GpPen* pen, const GpRectF* rects,
                                           INT count);
VXPLATFORM_API GpStatus GdipDrawRectanglesI(GpGraphics* graphics, GpPen* pen, const GpRect* rects,
                                            INT count);
VXPLATFORM_API GpStatus GdipDrawPath(GpGraphics* graphics, GpPen* pen, GpPath* path);

/// Rectangles whose edges lie on pixels are filled exactly, with antialiasing too. Those of no
/// extent, or a negative one, draw nothing.
VXPLATFORM_API GpStatus GdipFillRectangle(GpGraphics* graphics, GpBrush* brush, REAL x, REAL y,
                                          REAL width, REAL height);
VXPLATFORM_API GpStatus GdipFillRectangleI(GpGraphics* graphics, GpBrush* brush, INT x, INT y,
                                           INT width, INT height);
VXPLATFORM_API GpStatus GdipFillRectangles(GpGraphics* graphics, GpBrush* brush,
                                           const GpRectF* rects, INT count);
VXPLATFORM_API GpStatus GdipFillRectanglesI(GpGraphics* graphics, GpBrush* brush,
                                            const GpRect* rects, INT count);
VXPLATFORM_API GpStatus GdipFillPath(GpGraphics* graphics, GpBrush* brush, GpPath* path);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_DRAWING(X) \
    X(GdipDrawLine)              \
    X(GdipDrawLineI)             \
    X(GdipDrawLines)             \
    X(GdipDrawLinesI)            \
    X(GdipDrawPath)              \
    X(GdipDrawRectangle)         \
    X(GdipDrawRectangleI)        \
    X(GdipDrawRectangles)        \
    X(GdipDrawRectanglesI)       \
    X(GdipFillPath)              \
    X(GdipFillRectangle)         \
    X(GdipFillRectangleI)        \
    X(GdipFillRectangles)        \
    X(GdipFillRectanglesI)       \
    X(GdipGraphicsClear)
