#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/graphics/GraphicsCall.h"
#include "vxgui/platform/gdiplus/graphics/Shapes.h"
#include "vxgui/platform/gdiplus/paths/Curves.h"
#include "vxgui/platform/gdiplus/paths/Figures.h"
#include "vxgui/platform/gdiplus_drawing.h"

namespace vxgui::gdiplus {
namespace {

/// Strokes what `build(path)` adds to an empty path.
template <class Build>
GpStatus StrokeFigure(GpGraphics* graphics, GpPen* pen, Build build) {
    return DrawWith<Pen>(graphics, pen, [&](Graphics& found, Pen& stroke) {
        Path path(FillModeAlternate);
        build(path);
        return StrokeShape(found, stroke, path.data);
    });
}

/// The same, filled.
template <class Build>
GpStatus FillFigure(GpGraphics* graphics, GpBrush* brush, FillMode mode, Build build) {
    return DrawWith<Brush>(graphics, brush, [&](Graphics& found, Brush& paint) {
        Path path(mode);
        build(path);
        return FillShape(found, paint, path.data, mode);
    });
}

auto Ellipse(const GpRectF& box) {
    return [box](Path& path) { AddClosedFigure(path, ArcCurve(box, 0, 360), PathPointTypeBezier); };
}

auto Pie(const GpRectF& box, REAL start, REAL sweep) {
    return [=](Path& path) { AddPieFigure(path, box, start, sweep); };
}

template <class Point>
auto Polygon(const Point* points, INT count) {
    return [=](Path& path) { AddClosedFigure(path, ToFloats(points, count), PathPointTypeLine); };
}

template <class Point>
GpStatus StrokePolygon(GpGraphics* graphics, GpPen* pen, const Point* points, INT count) {
    if (!points || count < 2) return InvalidParameter;
    return StrokeFigure(graphics, pen, Polygon(points, count));
}

template <class Point>
GpStatus FillPolygon(GpGraphics* graphics, GpBrush* brush, const Point* points, INT count,
                     FillMode mode) {
    if (!points || count < 1) return InvalidParameter;
    if (mode != FillModeAlternate && mode != FillModeWinding) return InvalidParameter;
    return FillFigure(graphics, brush, mode, Polygon(points, count));
}

// A start and three points for each curve.
template <class Point>
GpStatus StrokeBeziers(GpGraphics* graphics, GpPen* pen, const Point* points, INT count) {
    if (!points || count < 4 || count % 3 != 1) return InvalidParameter;
    return StrokeFigure(graphics, pen, [&](Path& path) {
        AddToFigure(path, ToFloats(points, count), PathPointTypeBezier);
    });
}

}  // namespace

extern "C" {

GpStatus GdipDrawEllipse(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width,
                         REAL height) {
    return StrokeFigure(graphics, pen, Ellipse({x, y, width, height}));
}

GpStatus GdipDrawEllipseI(GpGraphics* graphics, GpPen* pen, INT x, INT y, INT width, INT height) {
    return StrokeFigure(graphics, pen, Ellipse(ToFloat(GpRect{x, y, width, height})));
}

GpStatus GdipFillEllipse(GpGraphics* graphics, GpBrush* brush, REAL x, REAL y, REAL width,
                         REAL height) {
    return FillFigure(graphics, brush, FillModeAlternate, Ellipse({x, y, width, height}));
}

GpStatus GdipFillEllipseI(GpGraphics* graphics, GpBrush* brush, INT x, INT y, INT width,
                          INT height) {
    return FillFigure(graphics, brush, FillModeAlternate,
                      Ellipse(ToFloat(GpRect{x, y, width, height})));
}

GpStatus GdipDrawArc(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width, REAL height,
                     REAL startAngle, REAL sweepAngle) {
    return StrokeFigure(graphics, pen, [&](Path& path) {
        AddToFigure(path, ArcCurve({x, y, width, height}, startAngle, sweepAngle),
                    PathPointTypeBezier);
    });
}

GpStatus GdipDrawArcI(GpGraphics* graphics, GpPen* pen, INT x, INT y, INT width, INT height,
                      REAL startAngle, REAL sweepAngle) {
    const GpRectF box = ToFloat(GpRect{x, y, width, height});
    return GdipDrawArc(graphics, pen, box.X, box.Y, box.Width, box.Height, startAngle, sweepAngle);
}

GpStatus GdipDrawPie(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width, REAL height,
                     REAL startAngle, REAL sweepAngle) {
    return StrokeFigure(graphics, pen, Pie({x, y, width, height}, startAngle, sweepAngle));
}

GpStatus GdipDrawPieI(GpGraphics* graphics, GpPen* pen, INT x, INT y, INT width, INT height,
                      REAL startAngle, REAL sweepAngle) {
    return StrokeFigure(graphics, pen,
                        Pie(ToFloat(GpRect{x, y, width, height}), startAngle, sweepAngle));
}

GpStatus GdipFillPie(GpGraphics* graphics, GpBrush* brush, REAL x, REAL y, REAL width, REAL height,
                     REAL startAngle, REAL sweepAngle) {
    return FillFigure(graphics, brush, FillModeAlternate,
                      Pie({x, y, width, height}, startAngle, sweepAngle));
}

GpStatus GdipFillPieI(GpGraphics* graphics, GpBrush* brush, INT x, INT y, INT width, INT height,
                      REAL startAngle, REAL sweepAngle) {
    return FillFigure(graphics, brush, FillModeAlternate,
                      Pie(ToFloat(GpRect{x, y, width, height}), startAngle, sweepAngle));
}

GpStatus GdipDrawPolygon(GpGraphics* graphics, GpPen* pen, const GpPointF* points, INT count) {
    return StrokePolygon(graphics, pen, points, count);
}

GpStatus GdipDrawPolygonI(GpGraphics* graphics, GpPen* pen, const GpPoint* points, INT count) {
    return StrokePolygon(graphics, pen, points, count);
}

GpStatus GdipFillPolygon(GpGraphics* graphics, GpBrush* brush, const GpPointF* points, INT count,
                         FillMode fillMode) {
    return FillPolygon(graphics, brush, points, count, fillMode);
}

GpStatus GdipFillPolygonI(GpGraphics* graphics, GpBrush* brush, const GpPoint* points, INT count,
                          FillMode fillMode) {
    return FillPolygon(graphics, brush, points, count, fillMode);
}

GpStatus GdipDrawBezier(GpGraphics* graphics, GpPen* pen, REAL x1, REAL y1, REAL x2, REAL y2,
                        REAL x3, REAL y3, REAL x4, REAL y4) {
    const GpPointF points[] = {{x1, y1}, {x2, y2}, {x3, y3}, {x4, y4}};
    return StrokeBeziers(graphics, pen, points, 4);
}

GpStatus GdipDrawBezierI(GpGraphics* graphics, GpPen* pen, INT x1, INT y1, INT x2, INT y2, INT x3,
                         INT y3, INT x4, INT y4) {
    const GpPoint points[] = {{x1, y1}, {x2, y2}, {x3, y3}, {x4, y4}};
    return StrokeBeziers(graphics, pen, points, 4);
}

GpStatus GdipDrawBeziers(GpGraphics* graphics, GpPen* pen, const GpPointF* points, INT count) {
    return StrokeBeziers(graphics, pen, points, count);
}

GpStatus GdipDrawBeziersI(GpGraphics* graphics, GpPen* pen, const GpPoint* points, INT count) {
    return StrokeBeziers(graphics, pen, points, count);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
