#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// What is drawn on a graphics. Coordinates are those of its world.
namespace vxgui::gdiplus {

extern "C" {

/// Asked with the data that was given along with it; true ends the drawing, which answers
/// `Aborted`.
using DrawImageAbort = BOOL (*)(void*);

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

// Figures, as a path would have them. Angles are in degrees, clockwise from the x axis. A polygon
// is closed; Bezier curves are a start and three points each.
VXPLATFORM_API GpStatus GdipDrawEllipse(GpGraphics* graphics, GpPen* pen, REAL x, REAL y,
                                        REAL width, REAL height);
VXPLATFORM_API GpStatus GdipDrawEllipseI(GpGraphics* graphics, GpPen* pen, INT x, INT y, INT width,
                                         INT height);
VXPLATFORM_API GpStatus GdipFillEllipse(GpGraphics* graphics, GpBrush* brush, REAL x, REAL y,
                                        REAL width, REAL height);
VXPLATFORM_API GpStatus GdipFillEllipseI(GpGraphics* graphics, GpBrush* brush, INT x, INT y,
                                         INT width, INT height);
VXPLATFORM_API GpStatus GdipDrawArc(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width,
                                    REAL height, REAL startAngle, REAL sweepAngle);
VXPLATFORM_API GpStatus GdipDrawArcI(GpGraphics* graphics, GpPen* pen, INT x, INT y, INT width,
                                     INT height, REAL startAngle, REAL sweepAngle);
VXPLATFORM_API GpStatus GdipDrawPie(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width,
                                    REAL height, REAL startAngle, REAL sweepAngle);
VXPLATFORM_API GpStatus GdipDrawPieI(GpGraphics* graphics, GpPen* pen, INT x, INT y, INT width,
                                     INT height, REAL startAngle, REAL sweepAngle);
VXPLATFORM_API GpStatus GdipFillPie(GpGraphics* graphics, GpBrush* brush, REAL x, REAL y,
                                    REAL width, REAL height, REAL startAngle, REAL sweepAngle);
VXPLATFORM_API GpStatus GdipFillPieI(GpGraphics* graphics, GpBrush* brush, INT x, INT y, INT width,
                                     INT height, REAL startAngle, REAL sweepAngle);
VXPLATFORM_API GpStatus GdipDrawPolygon(GpGraphics* graphics, GpPen* pen, const GpPointF* points,
                                        INT count);
VXPLATFORM_API GpStatus GdipDrawPolygonI(GpGraphics* graphics, GpPen* pen, const GpPoint* points,
                                         INT count);
VXPLATFORM_API GpStatus GdipFillPolygon(GpGraphics* graphics, GpBrush* brush,
                                        const GpPointF* points, INT count, FillMode fillMode);
VXPLATFORM_API GpStatus GdipFillPolygonI(GpGraphics* graphics, GpBrush* brush,
                                         const GpPoint* points, INT count, FillMode fillMode);
VXPLATFORM_API GpStatus GdipDrawBezier(GpGraphics* graphics, GpPen* pen, REAL x1, REAL y1, REAL x2,
                                       REAL y2, REAL x3, REAL y3, REAL x4, REAL y4);
VXPLATFORM_API GpStatus GdipDrawBezierI(GpGraphics* graphics, GpPen* pen, INT x1, INT y1, INT x2,
                                        INT y2, INT x3, INT y3, INT x4, INT y4);
VXPLATFORM_API GpStatus GdipDrawBeziers(GpGraphics* graphics, GpPen* pen, const GpPointF* points,
                                        INT count);
VXPLATFORM_API GpStatus GdipDrawBeziersI(GpGraphics* graphics, GpPen* pen, const GpPoint* points,
                                         INT count);

// Images. Negative sizes mirror. A part's own border isn't crossed by filters, so that what stands
// beside it in the image doesn't bleed in. Beyond the image's border nothing is drawn, unless the
// attributes give a wrap mode. By default pixels are sampled at their upper left corners, those of
// mirrored images and of images that a mode of high quality shrinks at their middles.

/// Whole, or the part, in its size on paper by the resolutions of both.
VXPLATFORM_API GpStatus GdipDrawImage(GpGraphics* graphics, GpImage* image, REAL x, REAL y);
VXPLATFORM_API GpStatus GdipDrawImageI(GpGraphics* graphics, GpImage* image, INT x, INT y);
VXPLATFORM_API GpStatus GdipDrawImagePointRect(GpGraphics* graphics, GpImage* image, REAL x, REAL y,
                                               REAL srcx, REAL srcy, REAL srcwidth, REAL srcheight,
                                               Unit srcUnit);
VXPLATFORM_API GpStatus GdipDrawImagePointRectI(GpGraphics* graphics, GpImage* image, INT x, INT y,
                                                INT srcx, INT srcy, INT srcwidth, INT srcheight,
                                                Unit srcUnit);
/// Whole, in a rectangle or in the parallelogram of three corners: upper left, upper right, lower
/// left.
VXPLATFORM_API GpStatus GdipDrawImageRect(GpGraphics* graphics, GpImage* image, REAL x, REAL y,
                                          REAL width, REAL height);
VXPLATFORM_API GpStatus GdipDrawImageRectI(GpGraphics* graphics, GpImage* image, INT x, INT y,
                                           INT width, INT height);
VXPLATFORM_API GpStatus GdipDrawImagePoints(GpGraphics* graphics, GpImage* image,
                                            const GpPointF* dstpoints, INT count);
VXPLATFORM_API GpStatus GdipDrawImagePointsI(GpGraphics* graphics, GpImage* image,
                                             const GpPoint* dstpoints, INT count);
/// A part, in `srcUnit` by the image's resolution, with attributes or null.
VXPLATFORM_API GpStatus GdipDrawImagePointsRect(GpGraphics* graphics, GpImage* image,
                                                const GpPointF* points, INT count, REAL srcx,
                                                REAL srcy, REAL srcwidth, REAL srcheight,
                                                Unit srcUnit,
                                                const GpImageAttributes* imageAttributes,
                                                DrawImageAbort callback, void* callbackData);
VXPLATFORM_API GpStatus GdipDrawImagePointsRectI(GpGraphics* graphics, GpImage* image,
                                                 const GpPoint* points, INT count, INT srcx,
                                                 INT srcy, INT srcwidth, INT srcheight,
                                                 Unit srcUnit,
                                                 const GpImageAttributes* imageAttributes,
                                                 DrawImageAbort callback, void* callbackData);
VXPLATFORM_API GpStatus GdipDrawImageRectRect(GpGraphics* graphics, GpImage* image, REAL dstx,
                                              REAL dsty, REAL dstwidth, REAL dstheight, REAL srcx,
                                              REAL srcy, REAL srcwidth, REAL srcheight,
                                              Unit srcUnit,
                                              const GpImageAttributes* imageAttributes,
                                              DrawImageAbort callback, void* callbackData);
VXPLATFORM_API GpStatus GdipDrawImageRectRectI(GpGraphics* graphics, GpImage* image, INT dstx,
                                               INT dsty, INT dstwidth, INT dstheight, INT srcx,
                                               INT srcy, INT srcwidth, INT srcheight, Unit srcUnit,
                                               const GpImageAttributes* imageAttributes,
                                               DrawImageAbort callback, void* callbackData);

/// A part (null: the whole) after an effect, if there is one, and attributes, where the matrix
/// (null: none) takes its rectangle. An effect that spreads the part shows around it.
VXPLATFORM_API GpStatus GdipDrawImageFX(GpGraphics* graphics, GpImage* image, GpRectF* source,
                                        GpMatrix* xForm, CGpEffect* effect,
                                        GpImageAttributes* imageAttributes, Unit srcUnit);

/// A copy of a bitmap's pixels that is quick to draw, on any graphics whose world only moves;
/// else `WrongState`.
VXPLATFORM_API GpStatus GdipCreateCachedBitmap(GpBitmap* bitmap, GpGraphics* graphics,
                                               GpCachedBitmap** cachedBitmap);
VXPLATFORM_API GpStatus GdipDeleteCachedBitmap(GpCachedBitmap* cachedBitmap);
VXPLATFORM_API GpStatus GdipDrawCachedBitmap(GpGraphics* graphics, GpCachedBitmap* cachedBitmap,
                                             INT x, INT y);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_DRAWING(X) \
    X(GdipCreateCachedBitmap)    \
    X(GdipDeleteCachedBitmap)    \
    X(GdipDrawArc)               \
    X(GdipDrawArcI)              \
    X(GdipDrawBezier)            \
    X(GdipDrawBezierI)           \
    X(GdipDrawBeziers)           \
    X(GdipDrawBeziersI)          \
    X(GdipDrawCachedBitmap)      \
    X(GdipDrawEllipse)           \
    X(GdipDrawEllipseI)          \
    X(GdipDrawImage)             \
    X(GdipDrawImageFX)           \
    X(GdipDrawImageI)            \
    X(GdipDrawImagePointRect)    \
    X(GdipDrawImagePointRectI)   \
    X(GdipDrawImagePoints)       \
    X(GdipDrawImagePointsI)      \
    X(GdipDrawImagePointsRect)   \
    X(GdipDrawImagePointsRectI)  \
    X(GdipDrawImageRect)         \
    X(GdipDrawImageRectI)        \
    X(GdipDrawImageRectRect)     \
    X(GdipDrawImageRectRectI)    \
    X(GdipDrawLine)              \
    X(GdipDrawLineI)             \
    X(GdipDrawLines)             \
    X(GdipDrawLinesI)            \
    X(GdipDrawPath)              \
    X(GdipDrawPie)               \
    X(GdipDrawPieI)              \
    X(GdipDrawPolygon)           \
    X(GdipDrawPolygonI)          \
    X(GdipDrawRectangle)         \
    X(GdipDrawRectangleI)        \
    X(GdipDrawRectangles)        \
    X(GdipDrawRectanglesI)       \
    X(GdipFillEllipse)           \
    X(GdipFillEllipseI)          \
    X(GdipFillPath)              \
    X(GdipFillPie)               \
    X(GdipFillPieI)              \
    X(GdipFillPolygon)           \
    X(GdipFillPolygonI)          \
    X(GdipFillRectangle)         \
    X(GdipFillRectangleI)        \
    X(GdipFillRectangles)        \
    X(GdipFillRectanglesI)       \
    X(GdipGraphicsClear)
